#include "memories/ModemMemory.h"

#include "base/Text.h"
#include "memories/Limits.h"

namespace orva
{

namespace
{

void appendRow(RowBlock& rows, int id, const PhonebookEntry& entry)
{
    rows.beginRow(id);
    rows.addValue(entry.alpha);
    rows.addValue(fromUtf8(entry.number));
}

} // namespace

int ModemMemory::size()
{
    m_hardware.requireOpen(m_memory);
    return m_hardware.state().with(m_memory, [](ModemBook& book) { return book.entries.size(); });
}

Extent ModemMemory::extent()
{
    m_hardware.requireOpen(m_memory);
    m_hardware.noteOpened(m_memory);
    return m_hardware.state().with(m_memory, [](ModemBook& book) {
        return Extent{book.entries.size(), book.entries.last()};
    });
}

std::size_t ModemMemory::preferredRows()
{
    return rowsReadAhead;
}

void ModemMemory::read(int first, int last, std::size_t maxRows, RowBlock& rows)
{
    m_hardware.requireOpen(m_memory);
    const int fields = profile()->size();
    m_hardware.state().with(m_memory, [&](ModemBook& book) {
        rows.clear(fields);
        const auto& entries = book.entries.entries();
        for (auto it = entries.lower_bound(first); it != entries.end() && it->first <= last && rows.rows() < maxRows;
             ++it)
            appendRow(rows, it->first, it->second);
    });
}

void ModemMemory::readSome(const int* ids, std::size_t count, RowBlock& rows)
{
    m_hardware.requireOpen(m_memory);
    const int fields = profile()->size();
    m_hardware.state().with(m_memory, [&](ModemBook& book) {
        rows.clear(fields);
        for (std::size_t i = 0; i < count; ++i) {
            const PhonebookEntry* const entry = book.entries.find(ids[i]);
            if (entry != nullptr)
                appendRow(rows, ids[i], *entry);
        }
    });
}

Values ModemMemory::readOne(int id)
{
    m_hardware.requireOpen(m_memory);
    return m_hardware.state().with(m_memory, [id](ModemBook& book) {
        const PhonebookEntry* const entry = book.entries.find(id);
        if (entry == nullptr)
            throw Failure(ORVA_E_NOT_FOUND, "no such record");
        return Values{entry->alpha, fromUtf8(entry->number)};
    });
}

LengthOf ModemMemory::lengthRule() const
{
    return m_memory == ORVA_MEMORY_CARD && !m_countsUnits ? cardLength : plainLength;
}

int ModemMemory::lengthOf(const Field& field, std::u16string_view value)
{
    return lengthRule()(field, value);
}

PhonebookEntry ModemMemory::entryFor(const Values& values)
{
    m_hardware.requireOpen(m_memory);
    if (capacity() == 0)
        throw Failure(ORVA_E_BUSY, "the memory is not ready");
    if (values.size() != 2)
        throw Failure(ORVA_E_ARGUMENT, "the record was made for other fields");
    const std::string number = toUtf8(values[1]);
    requireFit(*profile(), values, lengthRule());
    PhonebookEntry entry;
    entry.alpha = values[0];
    entry.number = cleanNumber(number);
    if (entry.number != number)
        throw Failure(ORVA_E_ARGUMENT, "a number with other characters than a card stores");
    // A location without either is an empty one.
    if (entry.alpha.empty() && entry.number.empty())
        throw Failure(ORVA_E_ARGUMENT, "a card has no entry without name and number");
    return entry;
}

int ModemMemory::add(const Values& values)
{
    const PhonebookEntry entry = entryFor(values);
    int id = 0;
    m_hardware.perform([&](ModemSession& session) {
        if (m_batch.exchange(false))
            session.beginBatch(m_memory);
        id = session.add(m_memory, entry);
    });
    return id;
}

void ModemMemory::update(int id, const Values& values)
{
    const PhonebookEntry entry = entryFor(values);
    m_hardware.perform([&](ModemSession& session) {
        if (m_batch.exchange(false))
            session.beginBatch(m_memory);
        session.update(m_memory, id, entry);
    });
}

void ModemMemory::erase(int id)
{
    m_hardware.requireOpen(m_memory);
    m_hardware.perform([&](ModemSession& session) {
        if (m_batch.exchange(false))
            session.beginBatch(m_memory);
        session.erase(m_memory, id);
    });
}

void ModemMemory::begin()
{
    m_hardware.requireOpen(m_memory);
    m_batch = true;
}

void ModemMemory::end()
{
    // Every write was through when it returned.
}

void ModemMemory::backup(const std::string& path)
{
    m_hardware.requireOpen(m_memory);
    m_hardware.perform([&](ModemSession& session) { session.backup(m_memory, path); });
}

void ModemMemory::restore(const std::string& path)
{
    m_hardware.requireOpen(m_memory);
    m_hardware.perform([&](ModemSession& session) { session.restore(m_memory, path); });
}

} // namespace orva
