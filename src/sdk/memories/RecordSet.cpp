#include "memories/RecordSet.h"

#include <algorithm>
#include <climits>

namespace orva
{

namespace
{

// While records change under a reader, it reads this many ahead, and more again as they stay the same.
constexpr std::size_t rowsAheadOfChanges = 8;

int fieldOf(const Profile& profile, const char* key, int& hint)
{
    const int field = profile.indexOf(key, hint);
    if (field < 0)
        throw Failure(ORVA_E_ARGUMENT, "no such field");
    hint = field + 1 < profile.size() ? field + 1 : 0;
    return field;
}

Failure noCurrentRecord()
{
    return Failure(ORVA_E_END, "no current record");
}

} // namespace

StoredRecordSet::StoredRecordSet(Memory& memory, Extent extent)
    : m_memory(memory),
      m_profile(memory.profile()),
      m_extent(extent),
      m_rows(m_profile->size()),
      m_ahead(memory.preferredRows())
{
}

bool StoredRecordSet::fetchFrom(int first)
{
    m_valid = false;
    // Read before the rows: a change in between is noticed at the next move.
    const std::uint64_t changes = m_memory.changes();
    m_memory.read(first, m_extent.last, m_ahead, m_rows);
    m_changes = changes;
    m_row = 0;
    m_valid = !m_rows.empty();
    return m_valid;
}

bool StoredRecordSet::moveFirst()
{
    m_started = true;
    m_hint = 0;
    return fetchFrom(1);
}

bool StoredRecordSet::moveNext()
{
    if (!m_started)
        return moveFirst();
    if (!m_valid)
        return false;
    m_hint = 0;
    const bool changed = m_memory.changes() != m_changes;
    if (!changed && m_row + 1 < m_rows.rows()) {
        ++m_row;
        return true;
    }
    const std::size_t most = m_memory.preferredRows();
    m_ahead = changed ? std::min(rowsAheadOfChanges, most) : std::min(m_ahead * 2, most);
    const int current = m_rows.id(m_row);
    if (current >= m_extent.last) {
        m_valid = false;
        return false;
    }
    return fetchFrom(current + 1);
}

int StoredRecordSet::id() const
{
    if (!m_valid)
        throw noCurrentRecord();
    return m_rows.id(m_row);
}

std::u16string_view StoredRecordSet::value(const char* key)
{
    const int field = fieldOf(*m_profile, key, m_hint);
    if (!m_valid)
        throw noCurrentRecord();
    return m_rows.value(m_row, field);
}

RowsRecordSet::RowsRecordSet(std::shared_ptr<const Profile> profile, RowBlock rows)
    : m_profile(std::move(profile)), m_rows(std::move(rows))
{
    if (m_rows.fields() != m_profile->size())
        throw Failure(ORVA_E_INTERNAL, "rows do not fit the profile");
}

bool RowsRecordSet::moveFirst()
{
    m_next = 0;
    return moveNext();
}

bool RowsRecordSet::moveNext()
{
    m_hint = 0;
    if (m_next <= m_rows.rows())
        ++m_next;
    return m_next <= m_rows.rows();
}

int RowsRecordSet::id() const
{
    if (m_next == 0 || m_next > m_rows.rows())
        throw noCurrentRecord();
    return m_rows.id(m_next - 1);
}

std::u16string_view RowsRecordSet::value(const char* key)
{
    const int field = fieldOf(*m_profile, key, m_hint);
    if (m_next == 0 || m_next > m_rows.rows())
        throw noCurrentRecord();
    return m_rows.value(m_next - 1, field);
}

} // namespace orva
