#include "ImportFindings.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "Shown.h"
#include "csv/ContactRows.h"
#include "csv/RowReader.h"

namespace pbctl
{

namespace
{

constexpr int findingsShown = 20;

orva::Profile profileOf(const std::vector<Field>& fields)
{
    std::vector<orva::Field> known;
    for (const Field& field : fields) {
        known.emplace_back();
        known.back().key = field.key;
        known.back().kind = field.kind;
        known.back().labelId = field.labelId;
        known.back().maxLength = field.maxLength;
    }
    return orva::Profile(std::move(known));
}

bool hasText(std::string_view column)
{
    return column.find_first_not_of(" \t\r\n") != std::string_view::npos;
}

} // namespace

void ImportFindings::say(const std::string& text)
{
    if (++m_said <= findingsShown)
        std::fprintf(stderr, "pbctl: %s\n", text.c_str());
}

void ImportFindings::leftColumn(const std::string& name, int values)
{
    m_columns.push_back(name + " (" + std::to_string(values) + (values == 1 ? " value)" : " values)"));
}

void ImportFindings::finish() const
{
    if (m_said > findingsShown)
        std::fprintf(stderr, "pbctl: and %d findings more\n", m_said - findingsShown);
    for (const std::string& column : m_columns)
        std::fprintf(stderr, "pbctl: %s: not taken: no field is for it\n", column.c_str());
}

// The column of the file behind one that may be made up: one that is no text, or else the first that has something.
int CsvWalk::sourceIn(const orva::Row& row, int column) const
{
    const std::vector<int> sources = columns.sourcesOf(column);
    const auto find = [&](auto&& wanted) {
        return std::find_if(sources.begin(), sources.end(), [&](int source) { return wanted(row.column(source)); });
    };
    auto found = find([](std::string_view text) { return text.find('\0') != std::string_view::npos; });
    if (found == sources.end())
        found = find(hasText);
    return found == sources.end() ? column : *found;
}

void CsvWalk::run(ImportFindings& findings)
{
    const int groupsColumn = withGroups ? columns.groups() : -1;
    const auto column = [this](int index) {
        const auto at = static_cast<std::size_t>(index);
        const bool titled = index >= 0 && at < titles.size() && !titles[at].empty();
        return titled ? "column \"" + shown(titles[at]) + "\"" : "column " + std::to_string(index + 1);
    };
    orva::RowReader reader(
        file, [&findings](int line, const char* what) { findings.say("line " + std::to_string(line) + ": " + what); });
    orva::FieldMap taking(profileOf(fields), map.data());
    bool told = false;
    orva::Row row;
    const orva::RowReader::Report report = [&](int line, const char* what) {
        told = true;
        // That a number is none is said with the contact, which is refused for it.
        if (std::strcmp(what, orva::notANumber) != 0)
            findings.say("line " + std::to_string(line) + ": " + column(sourceIn(row, taking.reportedColumn())) + ": " +
                         what);
    };
    std::vector<int> values; // by column
    orva::RowBlock block;
    reader.next(row); // the titles
    while (reader.next(row)) {
        values.resize(std::max(values.size(), static_cast<std::size_t>(row.columns())));
        for (int i = 0; i < row.columns(); ++i)
            values[static_cast<std::size_t>(i)] += hasText(row.column(i)) ? 1 : 0;
        if (groupsColumn >= 0 && !row.column(groupsColumn).empty())
            groups.emplace(row.line(), row.column(groupsColumn));
        columns.appendTo(row);
        block.clear(taking.fields());
        told = false;
        if (!taking.add(row, block, report) && !told)
            findings.say("line " + std::to_string(row.line()) +
                         ": not taken: nothing in the columns that have a field");
    }
    if (groupsColumn >= 0 && static_cast<std::size_t>(groupsColumn) < values.size())
        values[static_cast<std::size_t>(groupsColumn)] = 0;
    for (const int entry : map)
        for (const int used : columns.sourcesOf(entry))
            if (used >= 0 && static_cast<std::size_t>(used) < values.size())
                values[static_cast<std::size_t>(used)] = 0;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (values[i] > 0)
            findings.leftColumn(column(static_cast<int>(i)), values[i]);
}

} // namespace pbctl
