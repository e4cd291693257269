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
        Source source = {-1, -1, field.kind == "Number" || field.kind == "Mobile", field.kind == "Email", 0};
        if (entry >= 0) {
            source.first = entry & columnMask;
            source.second = (entry >> secondShift) - 1;
        }
        if (field.kind == "Remaik" && field.maxLength > 0)
            source.noteUnits = static_cast<std::size_t>(field.maxLength);
        m_sources.push_back(source);
    }
}

// Reads a field's text into m_value; false for one that is not fit to be a value.
bool FieldMap::readValue(const Row& row, const Source& source)
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
    if (source.number || source.email)
        keepFirst(m_value);
    if (source.number)
        cleanNumber(m_value);
    return true;
}

// Cuts m_value to a length, between characters.
void FieldMap::cutValue(std::size_t units)
{
    const bool splitsPair = (m_value[units - 1] & 0xFC00) == 0xD800;
    m_value.resize(splitsPair ? units - 1 : units);
}

bool FieldMap::add(const Row& row, RowBlock& into, const RowReader::Report& report)
{
    bool anything = false;
    into.beginRow(row.line());
    for (const Source& source : m_sources) {
        const bool text = readValue(row, source);
        if (text && source.noteUnits > 0 && m_value.size() > source.noteUnits) {
            cutValue(source.noteUnits);
            if (report)
                report(row.line(), "note cut to what its field holds");
        }
        if (!text || m_value.size() > valueUnitsAtMost) {
            if (report)
                report(row.line(), text ? "row passed over: value too long" : "row passed over: not text");
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
        fields.add(row, rows, report);
        if (rows.rows() > rowsAtMost || rows.bytes() > octetsAtMost)
            throw Failure(ORVA_E_TOO_LONG, "too many contacts");
    }
    if (rows.empty())
        throw Failure(ORVA_E_FORMAT, "no usable row");
    return rows;
}

} // namespace orva
