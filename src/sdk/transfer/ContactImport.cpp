#include "transfer/ContactImport.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "base/Unicode.h"
#include "contactapps/CardFile.h"
#include "memories/LocalMemory.h"
#include "orva/orva_store.h"

namespace orva
{

namespace
{

constexpr int writesInATransaction = 200;

// What one contact cannot help ends the import; all else costs that contact alone.
bool isTheEnd(long code)
{
    switch (code) {
    case ORVA_E_STORE:
    case ORVA_E_NO_SPACE:
    case ORVA_E_READ_ONLY:
    case ORVA_E_ABSENT:
    case ORVA_E_NO_MEMORY:
    case ORVA_E_BUSY:
    case ORVA_E_INTERNAL:
    case ORVA_E_VERSION:
        return true;
    default:
        return false;
    }
}

int formatOf(const ContactImport::Settings& settings)
{
    if (settings.format != ORVA_FORMAT_ANY)
        return settings.format;
    return isCardFile(settings.source) || beginsLikeCards(settings.source) ? ORVA_FORMAT_CARDS : ORVA_FORMAT_ROWS;
}

} // namespace

ContactImport::ContactImport(Memory& memory, LocalMemory* local, Settings settings, FindingReport report)
    : m_memory(memory),
      m_local(local),
      m_settings(std::move(settings)),
      m_report(std::move(report)),
      m_profile(memory.profile()),
      m_paths(local != nullptr ? std::make_unique<GroupPaths>(local->store()) : nullptr)
{
    for (const Field& field : m_profile->fields())
        m_rules.push_back({isNumberField(field), field.kind == "Name", pausesOf(field),
                           static_cast<std::size_t>(std::max(field.maxLength, 0))});
}

void ContactImport::addGroup(const std::string& path)
{
    if (!m_paths)
        throw Failure(ORVA_E_UNSUPPORTED, "the memory has no groups");
    GroupPaths::require(path);
    m_groups.push_back(path);
}

bool ContactImport::step(int most)
{
    m_told.clear();
    if (m_failure != ORVA_OK)
        throw Failure(m_failure, "the import has failed before");
    if (m_ended)
        return false;
    m_failure = ORVA_E_INTERNAL; // whatever is thrown but a Failure
    try {
        if (!m_source)
            open();
        const bool more = stepOver(most);
        m_failure = ORVA_OK;
        return more;
    } catch (const Failure& failure) {
        m_failure = failure.code();
        m_counts = m_safe;
        throw;
    }
}

void ContactImport::open()
{
    SourceSettings reading = m_settings.reading;
    reading.hasGroups = m_local != nullptr;
    const int format = formatOf(m_settings);
    if (format == ORVA_FORMAT_APPLICATION)
        m_source = openApplication(m_settings.source, *m_profile, reading, m_report);
    else if (format == ORVA_FORMAT_ROWS)
        m_source = openRows(m_settings.source, *m_profile, reading, m_report);
    else if (m_local == nullptr)
        throw Failure(ORVA_E_UNSUPPORTED, "vCards are for the PC's phonebook");
    else
        m_source = openCards(m_settings.source, *m_profile, reading, m_report);
    m_counts.total = m_source->total();
    m_backUp = m_local != nullptr && m_counts.total > ORVA_BACKUP_IMPORT_ABOVE;
    m_known = std::make_unique<KnownContacts>(m_settings.way, m_memory,
                                              m_local != nullptr ? &m_local->store() : nullptr, m_settings.region);
    m_room = m_memory.capacity() - m_memory.size();
    m_safe = m_counts;
}

bool ContactImport::stepOver(int most)
{
    ImportContact contact;
    if (!m_settings.dry)
        m_memory.begin();
    try {
        for (int done = 0; done < most && !m_ended; ++done) {
            if (m_source->next(contact))
                take(contact);
            else
                end();
        }
    } catch (...) {
        if (!m_settings.dry) {
            m_memory.end();
            m_safe = m_counts;
        }
        throw;
    }
    if (!m_settings.dry)
        m_memory.end();
    m_safe = m_counts;
    return !m_ended;
}

void ContactImport::end()
{
    m_ended = true;
    m_counts.total = m_counts.seen;
    if (m_full > 0)
        say(m_fullLine, ORVA_FINDING_FULL, m_full, {});
}

void ContactImport::take(ImportContact& contact)
{
    ++m_counts.seen;
    m_counts.total = std::max(m_counts.total, m_counts.seen);
    const bool empty =
        std::all_of(contact.values.begin(), contact.values.end(), [](const std::u16string& v) { return v.empty(); });
    if (empty) {
        say(contact.line, ORVA_FINDING_EMPTY, 1, {});
        tell(contact, ORVA_IMPORT_LEFT, 0);
        ++m_counts.left;
    } else if (isNumbersRefused(contact)) {
        // The reader has said which.
        tell(contact, ORVA_IMPORT_LEFT, 0);
        ++m_counts.left;
    } else {
        fitNames(contact);
        takeFit(contact);
    }
}

void ContactImport::takeFit(ImportContact& contact)
{
    int id = 0;
    KnownContacts::Answer answer = m_known->settle(contact, id);
    if (answer == KnownContacts::Answer::New || answer == KnownContacts::Answer::Changed) {
        try {
            store(contact, answer == KnownContacts::Answer::New, id);
        } catch (const Failure& failure) {
            if (failure.code() == ORVA_E_NOT_FOUND && answer == KnownContacts::Answer::Changed) {
                answer = KnownContacts::Answer::New; // it went meanwhile
                store(contact, true, id);
            } else if (isTheEnd(failure.code())) {
                throw;
            } else {
                leave(contact, failure.code());
                return;
            }
        }
    }
    finish(contact, answer, id);
}

void ContactImport::store(ImportContact& contact, bool isNew, int& id)
{
    if (!tooLong(contact).empty())
        throw Failure(ORVA_E_TOO_LONG, "a value is longer than its field");
    if (isNew && m_full > 0)
        throw Failure(ORVA_E_FULL, "no room");
    if (m_settings.dry) {
        if (isNew && m_counts.added >= m_room)
            throw Failure(ORVA_E_FULL, "no room");
        return;
    }
    if (std::exchange(m_backUp, false))
        m_local->store().backUpBeforeChange(ORVA_BACKUP_IMPORT);
    if (isNew && m_local != nullptr)
        id = m_local->add(contact.values, contact.kept.empty() ? nullptr : &contact.kept);
    else if (isNew)
        id = m_memory.add(contact.values);
    else if (m_local != nullptr)
        m_local->update(id, contact.values, &contact.kept);
    else
        m_memory.update(id, contact.values);
}

void ContactImport::finish(const ImportContact& contact, KnownContacts::Answer answer, int id)
{
    if (answer == KnownContacts::Answer::Skipped) {
        ++m_counts.skipped;
        tell(contact, ORVA_IMPORT_SKIPPED, id);
        return;
    }
    joinGroups(contact, id);
    for (const auto& finding : contact.findings)
        say(contact.line, finding.first, 1, finding.second);
    if (answer == KnownContacts::Answer::Same) {
        ++m_counts.same;
        tell(contact, ORVA_IMPORT_SAME, id);
    } else {
        const bool isNew = answer == KnownContacts::Answer::New;
        ++(isNew ? m_counts.added : m_counts.changed);
        for (const std::string& name : contact.keptNames)
            ++m_kept[name];
        tell(contact, isNew ? ORVA_IMPORT_ADDED : ORVA_IMPORT_CHANGED, id);
    }
    wrote();
}

void ContactImport::leave(const ImportContact& contact, long code)
{
    ++m_counts.left;
    if (code == ORVA_E_FULL) {
        m_fullLine = m_full++ == 0 ? contact.line : m_fullLine;
    } else if (code == ORVA_E_TOO_LONG) {
        for (const std::size_t field : tooLong(contact))
            sayField(contact, ORVA_FINDING_TOO_LONG, field);
    } else {
        say(contact.line, ORVA_FINDING_REFUSED, static_cast<int>(code), {});
    }
    tell(contact, ORVA_IMPORT_LEFT, 0);
}

bool ContactImport::isNumbersRefused(const ImportContact& contact) const
{
    for (std::size_t i = 0; i < contact.values.size(); ++i)
        if (m_rules[i].number && !isPlainNumber(contact.values[i], m_rules[i].pauses))
            return true;
    return false;
}

// Cuts names so that the memory takes them.
void ContactImport::fitNames(ImportContact& contact)
{
    for (std::size_t i = 0; i < contact.values.size(); ++i) {
        const Field& field = m_profile->fields()[i];
        std::u16string& name = contact.values[i];
        if (!m_rules[i].name || m_memory.lengthOf(field, name) <= field.maxLength)
            continue;
        // No text counts less than its units.
        name.resize(cutLength(name, m_rules[i].room));
        while (!name.empty() && m_memory.lengthOf(field, name) > field.maxLength)
            name.resize(cutLength(name, name.size() - 1));
        contact.findings.emplace_back(ORVA_FINDING_NAME_CUT, m_source->titleOf(i));
    }
}

// The fields with more than fits. Names are cut before.
std::vector<std::size_t> ContactImport::tooLong(const ImportContact& contact) const
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < contact.values.size(); ++i)
        if (contact.values[i].size() > m_rules[i].room && !m_rules[i].name)
            found.push_back(i);
    return found;
}

// In a dry run it is only looked whether that would go.
void ContactImport::joinGroups(const ImportContact& contact, int id)
{
    if (!m_paths)
        return;
    std::vector<std::string> wanted;
    for (const std::string& path : contact.groups) {
        try {
            GroupPaths::require(path);
            wanted.push_back(path);
        } catch (const Failure& failure) {
            say(contact.line, ORVA_FINDING_GROUP, static_cast<int>(failure.code()), "CATEGORIES", fromUtf8(path));
        }
    }
    wanted.insert(wanted.end(), m_groups.begin(), m_groups.end());
    try {
        for (const std::string& path : wanted)
            if (!m_settings.dry)
                m_paths->join(path, id);
    } catch (const Failure& failure) {
        // Another program may have deleted the contact just now.
        if (failure.code() != ORVA_E_NOT_FOUND)
            throw;
    }
}

void ContactImport::wrote()
{
    if (m_settings.dry || ++m_writes % writesInATransaction != 0)
        return;
    m_memory.end();
    m_safe = m_counts;
    m_memory.begin();
}

void ContactImport::tell(const ImportContact& contact, int outcome, int id)
{
    Told& told = m_told.emplace_back();
    told.line = contact.line;
    told.outcome = outcome;
    told.record = id;
    for (std::size_t i = 0; i < contact.values.size(); ++i) {
        std::u16string& shown = m_rules[i].number ? told.number : told.name;
        if (shown.empty())
            shown = contact.values[i];
    }
}

void ContactImport::sayField(const ImportContact& contact, int reason, std::size_t field)
{
    const std::string name = m_source->titleOf(field);
    const std::string value = toUtf8(contact.values[field]);
    m_report({contact.line, reason, 1, m_source->columnOf(field), name, value});
}

void ContactImport::say(int line, int reason, int count, const std::string& name, const std::u16string& value)
{
    const std::string text = toUtf8(value);
    m_report({line, reason, count, -1, name, text});
}

} // namespace orva
