#include "memories/SimMemory.h"

#include <algorithm>

namespace orva
{

namespace
{

// Time that one read of a slow card may take before its reader looks up again, in milliseconds.
constexpr int patience = 50;

} // namespace

SimMemory::SimMemory(const std::string& folder, SimulatedHardware& hardware, int memory)
    : m_hardware(hardware),
      m_memory(memory),
      m_store(folder, memory == ORVA_MEMORY_CARD ? "card" : "device", {"name", "number", "home_phone", "email"})
{
}

std::shared_ptr<const Profile> SimMemory::profile()
{
    return m_hardware.profile(m_memory);
}

int SimMemory::capacity()
{
    return m_hardware.capacity(m_memory);
}

int SimMemory::size()
{
    m_hardware.requireOpen(m_memory);
    return m_store.size();
}

Extent SimMemory::extent()
{
    m_hardware.requireOpen(m_memory);
    return m_store.extent();
}

std::size_t SimMemory::preferredRows()
{
    const int delay = m_hardware.readDelay(m_memory);
    return delay == 0 ? rowsReadAhead : static_cast<std::size_t>(std::max(1, patience / delay));
}

void SimMemory::read(int first, int last, std::size_t maxRows, RowBlock& rows)
{
    m_hardware.requireOpen(m_memory);
    m_store.read(first, last, maxRows, profile()->size(), rows);
    // Its time is that of the records it gave; who pulls the card meanwhile gets none of them.
    m_hardware.spendReading(m_memory, static_cast<int>(rows.rows()));
}

void SimMemory::readSome(const int* ids, std::size_t count, RowBlock& rows)
{
    m_hardware.requireOpen(m_memory);
    m_store.readSome(ids, count, profile()->size(), rows);
    m_hardware.spendReading(m_memory, static_cast<int>(rows.rows()));
}

Values SimMemory::readOne(int id)
{
    m_hardware.spendReading(m_memory, 1);
    return m_store.readOne(id, profile()->size());
}

LengthOf SimMemory::lengthRule() const
{
    return m_memory == ORVA_MEMORY_CARD && !m_hardware.countsUnits() ? cardLength : plainLength;
}

int SimMemory::lengthOf(const Field& field, std::u16string_view value)
{
    return lengthRule()(field, value);
}

void SimMemory::requireWritable(const Values& values)
{
    m_hardware.requireOpen(m_memory);
    requireFit(*profile(), values, lengthRule());
    m_hardware.spendWriting(m_memory);
}

int SimMemory::add(const Values& values)
{
    const int fits = capacity();
    m_hardware.requireOpen(m_memory);
    if (fits == 0)
        throw Failure(ORVA_E_BUSY, "the memory is not ready");
    requireWritable(values);
    return m_store.add(values, fits);
}

void SimMemory::update(int id, const Values& values)
{
    requireWritable(values);
    m_store.update(id, values);
}

void SimMemory::erase(int id)
{
    m_hardware.requireOpen(m_memory);
    m_hardware.spendWriting(m_memory);
    m_store.erase(id);
}

void SimMemory::begin()
{
    m_hardware.requireOpen(m_memory);
    m_store.begin();
}

void SimMemory::end()
{
    // Also when the hardware is gone: what was written before is kept.
    m_store.end();
}

std::uint64_t SimMemory::changes() const
{
    // Neither part ever goes down, so that no two states of both share a sum.
    return m_store.changes() + m_hardware.epoch();
}

} // namespace orva
