#include "csv/LeftBehind.h"

#include <algorithm>
#include <utility>

#include "csv/ContactRows.h"

namespace orva
{

namespace
{

bool hasText(std::string_view column)
{
    return column.find_first_not_of(" \t\r\n") != std::string_view::npos;
}

} // namespace

LeftBehind::LeftBehind(MadeUpColumns& columns, std::vector<std::string> titles, const int* map, int fields,
                       const RowReader::Report& report)
    : m_columns(columns),
      m_titles(std::move(titles)),
      m_map(map),
      m_fields(fields),
      m_report(report),
      m_making(columns.usedBy(map, fields)),
      m_taken(m_titles.size()),
      m_left(m_titles.size())
{
    if (!report)
        return;
    m_named = [this](const Finding& finding) { tellNamed(finding); };
    const auto take = [this](int column) {
        if (column >= 0 && static_cast<std::size_t>(column) < m_taken.size())
            m_taken[static_cast<std::size_t>(column)] = true;
    };
    for (int i = 0; i < fields; ++i) {
        if (map[i] < 0)
            continue;
        const auto [first, second] = columnsOf(map[i]);
        for (const int source : columns.sourcesOf(first))
            take(source);
        take(second);
    }
}

void LeftBehind::makeUp(Row& row)
{
    m_row = &row;
    if (m_report)
        countLeft(row);
    if (!m_making)
        return;
    m_columns.appendTo(row);
    if (m_report)
        tellUnused(row);
}

void LeftBehind::countLeft(const Row& row)
{
    const auto columns = static_cast<std::size_t>(row.columns());
    if (m_left.size() < columns) {
        m_left.resize(columns);
        m_taken.resize(columns);
    }
    for (std::size_t i = 0; i < columns; ++i)
        if (!m_taken[i] && hasText(row.column(static_cast<int>(i))))
            ++m_left[i];
}

// Companies stand in most rows of a file, and are told as a column like others that have no field.
void LeftBehind::tellUnused(const Row& row)
{
    for (const MadeUpColumns::Unused& unused : m_columns.unusedBy(row, m_map, m_fields)) {
        const auto column = static_cast<std::size_t>(unused.column);
        if (!m_taken[column])
            continue; // counted with its column
        if (unused.column == m_columns.company())
            ++m_left[column];
        else
            m_named({row.line(), ORVA_FINDING_FURTHER, 1, unused.column, {}, unused.value});
    }
}

// The column of the file behind one that may be made up: one that is no text, or else the first that has something.
int LeftBehind::sourceOf(int column) const
{
    const std::vector<int> sources = m_columns.sourcesOf(column);
    const auto find = [&](auto&& wanted) {
        return std::find_if(sources.begin(), sources.end(), [&](int source) { return wanted(m_row->column(source)); });
    };
    auto found = find([](std::string_view text) { return text.find('\0') != std::string_view::npos; });
    if (found == sources.end())
        found = find(hasText);
    return found == sources.end() ? column : *found;
}

void LeftBehind::tellNamed(const Finding& finding) const
{
    Finding named = finding;
    if (named.column >= 0)
        named.column = sourceOf(named.column);
    if (named.column >= 0 && static_cast<std::size_t>(named.column) < m_titles.size())
        named.name = m_titles[static_cast<std::size_t>(named.column)];
    m_report(named);
}

void LeftBehind::finish() const
{
    for (std::size_t i = 0; m_report && i < m_left.size(); ++i) {
        if (m_left[i] == 0)
            continue;
        const std::string_view title = i < m_titles.size() ? std::string_view(m_titles[i]) : std::string_view();
        const int column = static_cast<int>(i);
        const int reason = column == m_columns.groups() ? ORVA_FINDING_GROUPS : ORVA_FINDING_COLUMN;
        m_report({0, reason, m_left[i], column, title, {}});
    }
}

} // namespace orva
