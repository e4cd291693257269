#include "csv/ContactRows.h"

#include <algorithm>
#include <tuple>

#include "base/EmailText.h"
#include "base/Failure.h"
#include "base/Unicode.h"
#include "csv/LeftBehind.h"
#include "csv/MadeUpColumns.h"
#include "csv/Titles.h"

namespace orva
{

namespace
{

constexpr std::size_t rowsAtMost = 1000000;
constexpr std::size_t octetsAtMost = 256U << 20;
constexpr std::uint64_t unitsReservedAtMost = 16U << 20;
constexpr std::size_t octetsOfARow = 32;        // a short one
constexpr std::size_t valueUnitsAtMost = 65535; // what a value call takes

constexpr std::u16string_view blanks = u" \t";
constexpr std::size_t npos = std::u16string_view::npos;

constexpr int secondShift = 16;
constexpr int columnMask = 0xFFFF;

// Of several values in one column, as some programs write them ("1 ::: 2"), the length of the first.
std::size_t firstLength(std::u16string_view text)
{
    constexpr std::u16string_view between = u" ::: ";
    for (std::size_t at = text.find(u' '); at < text.size(); at = text.find(u' ', at + 1))
        if (text.substr(at, between.size()) == between)
            return at;
    return text.size();
}

} // namespace

int joinedColumns(int first, int second)
{
    return first | (second + 1) << secondShift;
}

std::pair<int, int> columnsOf(int entry)
{
    return {entry & columnMask, (entry >> secondShift) - 1};
}

FieldMap::FieldMap(const Profile& profile, const int* map)
{
    for (const Field& field : profile.fields()) {
        const int entry = *map++;
        Source source = {-1, -1, isNumberField(field), field.kind == "Email", pausesOf(field), 0};
        if (entry >= 0) {
            std::tie(source.first, source.second) = columnsOf(entry);
        }
        if (field.kind == "Remaik" && field.maxLength > 0)
            source.noteUnits = static_cast<std::size_t>(field.maxLength);
        m_hasNote = source.noteUnits != 0 || (m_hasNote && !source.number && !source.email);
        m_sources.push_back(source);
    }
}

bool FieldMap::appendColumn(std::string_view column)
{
    if (m_value.size() < m_length + column.size())
        m_value.resize(2 * (m_length + column.size()));
    const std::size_t units = toUtf16(column, m_value.data() + m_length);
    if (units == std::string_view::npos)
        return false;
    m_length += units;
    return true;
}

// Reads a field's text into m_value; false for one that is not fit to be a value.
bool FieldMap::readValue(const Row& row, const Source& source)
{
    m_length = 0;
    m_several = false;
    m_reportedColumn = source.first;
    if (source.first < 0)
        return true;
    if (!appendColumn(row.column(source.first)))
        return false;
    if (source.second >= 0) {
        const std::string_view second = row.column(source.second);
        if (m_length > 0 && !second.empty())
            appendColumn(" ");
        if (!appendColumn(second))
            return false;
    }
    const bool plain = source.number && isPlainNumber({m_value.data(), m_length}, source.pauses);
    if (!plain && (source.number || source.email))
        m_several = takeFirst();
    return true;
}

// Leaves the first of several values in m_value; false if there is only one.
bool FieldMap::takeFirst()
{
    const std::size_t whole = m_length;
    m_length = firstLength({m_value.data(), m_length});
    return m_length < whole;
}

// Of a value that cannot be read: why, and its column in m_reportedColumn.
int FieldMap::whyNotText(const Row& row, const Source& source)
{
    std::u16string units;
    if (source.second >= 0 && appendUtf16(row.column(source.first), units))
        m_reportedColumn = source.second;
    const bool zero = row.column(m_reportedColumn).find('\0') != std::string_view::npos;
    return zero ? ORVA_FINDING_ZERO : ORVA_FINDING_NOT_TEXT;
}

void FieldMap::tell(const Row& row, int reason, const RowReader::Report& report) const
{
    if (report)
        report({row.line(), reason, 1, m_reportedColumn, {}, row.column(m_reportedColumn)});
}

// Cleans the number in m_value. False, and only its ends trimmed, for a text that is none, or has an extension that no
// note takes.
bool FieldMap::readNumberValue(const Source& source)
{
    if (isPlainNumber({m_value.data(), m_length}, source.pauses))
        return true;
    trim();
    const std::optional<NumberText> read = readNumber({m_value.data(), m_length}, source.pauses);
    if (!read || (!read->extension.empty() && !m_hasNote))
        return false;
    m_length = read->number.copy(m_value.data(), read->number.size());
    if (!read->extension.empty())
        leaveForNote(extensionNote(*read));
    return true;
}

// Leaves for the note what is no e-mail address; false if it is one, or no note takes it.
bool FieldMap::moveEmail()
{
    const std::u16string_view text(m_value.data(), m_length);
    if (!m_hasNote || isEmailText(text) || text.find_first_not_of(blanks) == npos)
        return false;
    leaveForNote(std::u16string(text));
    m_length = 0;
    return true;
}

void FieldMap::leaveForNote(const std::u16string& line)
{
    m_noted += (m_noted.empty() ? u"" : u"\n") + line;
}

// Puts what the fields before it left behind the note in m_value.
void FieldMap::appendNoted()
{
    if (m_noted.empty())
        return;
    if (m_length > 0)
        m_noted.insert(m_noted.begin(), u'\n');
    if (m_value.size() < m_length + m_noted.size())
        m_value.resize(m_length + m_noted.size());
    m_length += m_noted.copy(m_value.data() + m_length, m_noted.size());
    m_noted.clear();
}

// Takes the blanks at the ends off, which are no part of a number.
void FieldMap::trim()
{
    const std::u16string_view text(m_value.data(), m_length);
    const std::size_t begin = std::min(text.find_first_not_of(blanks), m_length);
    const std::size_t behind = text.find_last_not_of(blanks) + 1; // of nothing but blanks: 0
    m_length = behind > begin ? behind - begin : 0;
    std::copy_n(m_value.data() + begin, m_length, m_value.data());
}

// Cuts the value to a length, between characters; false if it is not longer.
bool FieldMap::cutNote(std::size_t units)
{
    if (units == 0 || m_length <= units)
        return false;
    m_length = cutLength({m_value.data(), m_length}, units);
    return true;
}

bool FieldMap::readSources(const Row& row, RowBlock& into, const RowReader::Report& report)
{
    for (const Source& source : m_sources) {
        const bool text = readValue(row, source);
        if (text && source.number && !readNumberValue(source))
            tell(row, ORVA_FINDING_NUMBER, report);
        if (text && m_several)
            tell(row, ORVA_FINDING_SEVERAL, report);
        if (text && source.email && moveEmail())
            tell(row, ORVA_FINDING_EMAIL, report);
        if (text && source.noteUnits != 0)
            appendNoted();
        if (text && cutNote(source.noteUnits))
            tell(row, ORVA_FINDING_NOTE_CUT, report);
        if (!text || m_length > valueUnitsAtMost) {
            tell(row, text ? ORVA_FINDING_VALUE_LENGTH : whyNotText(row, source), report);
            return false;
        }
        m_anything = m_anything || std::u16string_view(m_value.data(), m_length).find_first_not_of(blanks) != npos;
        into.addValue({m_value.data(), m_length});
    }
    return true;
}

bool FieldMap::add(const Row& row, RowBlock& into, const RowReader::Report& report)
{
    m_anything = false;
    m_noted.clear();
    into.beginRow(row.line());
    const bool read = readSources(row, into, report);
    m_reportedColumn = -1;
    if (read && !m_anything)
        tell(row, ORVA_FINDING_EMPTY, report);
    if (!read || !m_anything)
        into.dropRow();
    return read && m_anything;
}

RowBlock readContacts(const std::string& path, const Profile& profile, const int* map, const RowReader::Report& report,
                      const ReaderLimits& limits, const RowTaken& taken)
{
    RowReader reader(path, report, limits);
    Row row;
    if (!reader.next(row)) // the titles
        throw Failure(ORVA_E_FORMAT, "empty file");
    MadeUpColumns madeUp(titlesOf(row));
    FieldMap fields(profile, map);
    LeftBehind left(madeUp, titlesOf(row), map, fields.fields(), report);
    RowBlock rows(fields.fields());
    // Room that is not needed in the end costs nothing but addresses.
    const auto units = static_cast<std::size_t>(std::min<std::uint64_t>(reader.octets(), unitsReservedAtMost));
    rows.reserve(units / octetsOfARow, units);
    while (reader.next(row)) {
        left.makeUp(row);
        if (fields.add(row, rows, left.report()) && taken)
            taken(row);
        if (rows.rows() > rowsAtMost || rows.bytes() > octetsAtMost)
            throw Failure(ORVA_E_TOO_LONG, "too many contacts");
    }
    left.finish();
    if (rows.empty())
        throw Failure(ORVA_E_FORMAT, "no usable row");
    return rows;
}

} // namespace orva
