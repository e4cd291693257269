#include "csv/ContactRows.h"

#include "csv/NumberText.h"
#include "csv/Unicode.h"
#include "memories/Failure.h"

namespace orva
{

namespace
{

constexpr std::size_t rowsAtMost = 1000000;
constexpr std::size_t octetsAtMost = 256U << 20;
constexpr std::size_t valueUnitsAtMost = 65535; // what a value call takes

constexpr int secondShift = 16;
constexpr int columnMask = 0xFFFF;

} // namespace

int joinedColumns(int first, int second)
{
    return first | (second + 1) << secondShift;
}

FieldMap::FieldMap(const Profile& profile, const int* map)
{
    for (const Field& field : profile.fields()) {
        const int entry = *map++;
        const bool number = field.kind == "Number" || field.kind == "Mobile";
        if (entry < 0)
            m_sources.push_back({-1, -1, number});
        else
            m_sources.push_back({entry & columnMask, (entry >> secondShift) - 1, number});
    }
}

// Appends a field's text to m_value; false for one that is not fit to be a value.
bool FieldMap::appendValue(const Row& row, const Source& source)
{
    m_value.clear();
    if (source.first < 0)
        return true;
    if (!appendUtf16(row.column(source.first), m_value))
        return false;
    if (source.second >= 0) {
        const std::string_view second = row.column(source.second);
        if (!m_value.empty() && !second.empty())
            m_value.push_back(u' ');
        if (!appendUtf16(second, m_value))
            return false;
    }
    if (source.number)
        cleanNumber(m_value, 0);
    return m_value.size() <= valueUnitsAtMost;
}

bool FieldMap::add(const Row& row, RowBlock& into, bool* unreadable)
{
    bool anything = false;
    into.beginRow(row.line());
    for (const Source& source : m_sources) {
        if (!appendValue(row, source)) {
            *unreadable = true;
            into.dropRow();
            return false;
        }
        anything = anything || !m_value.empty();
        into.addValue(m_value);
    }
    if (!anything)
        into.dropRow();
    return anything;
}

RowBlock readContacts(const std::string& path, const Profile& profile, const int* map, const RowReader::Report& report,
                      const ReaderLimits& limits)
{
    RowReader reader(path, report, limits);
    Row row;
    if (!reader.next(row)) // the titles
        throw Failure(ORVA_E_FORMAT, "empty file");
    FieldMap fields(profile, map);
    RowBlock rows(fields.fields());
    while (reader.next(row)) {
        bool unreadable = false;
        fields.add(row, rows, &unreadable);
        if (unreadable && report)
            report(row.line(), "text that cannot be read");
        if (rows.rows() > rowsAtMost || rows.bytes() > octetsAtMost)
            throw Failure(ORVA_E_TOO_LONG, "too many contacts");
    }
    if (rows.empty())
        throw Failure(ORVA_E_FORMAT, "no usable row");
    return rows;
}

} // namespace orva
