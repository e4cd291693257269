// Rows of a file, and contacts of an application.

#include <algorithm>
#include <map>
#include <utility>

#include "base/Failure.h"
#include "base/RowBlock.h"
#include "contactapps/ContactApps.h"
#include "csv/ContactRows.h"
#include "csv/MadeUpColumns.h"
#include "csv/RowReader.h"
#include "csv/Titles.h"
#include "transfer/ContactSource.h"
#include "vcard/GroupNames.h"

namespace orva
{

namespace
{

class RowSource final : public ContactSource
{
public:
    RowSource(const Profile& profile, std::vector<int> map, std::vector<std::string> titles)
        : m_profile(profile), m_map(std::move(map)), m_titles(std::move(titles))
    {
    }

    void take(RowBlock rows, std::map<int, std::string> groups)
    {
        m_rows = std::move(rows);
        m_groups = std::move(groups);
    }

    bool next(ImportContact& contact) override
    {
        if (m_next == m_rows.rows())
            return false;
        contact.line = m_rows.id(m_next);
        contact.values.resize(static_cast<std::size_t>(m_rows.fields()));
        for (int field = 0; field < m_rows.fields(); ++field)
            contact.values[static_cast<std::size_t>(field)] = m_rows.value(m_next, field);
        contact.kept.clear();
        contact.keptNames.clear();
        contact.findings.clear();
        contact.groups.clear();
        const auto groups = m_groups.find(contact.line);
        if (groups != m_groups.end())
            contact.groups = splitGroups(groups->second);
        ++m_next;
        return true;
    }

    int total() const override { return static_cast<int>(m_rows.rows()); }

    std::string titleOf(std::size_t field) const override
    {
        const int column = columnOf(field);
        return column >= 0 ? m_titles[static_cast<std::size_t>(column)] : m_profile.fields()[field].key;
    }

    int columnOf(std::size_t field) const override
    {
        const int column = m_map[field] < 0 ? -1 : columnsOf(m_map[field]).first;
        return static_cast<std::size_t>(column) < m_titles.size() ? column : -1;
    }

private:
    const Profile m_profile;
    const std::vector<int> m_map;
    const std::vector<std::string> m_titles; // of the file
    RowBlock m_rows;
    std::map<int, std::string> m_groups; // by the lines of their rows
    std::size_t m_next = 0;
};

std::vector<int> mapByTitles(const Profile& profile, const MadeUpColumns& columns)
{
    std::vector<int> map;
    for (const Field& field : profile.fields())
        map.push_back(columns.forField(field.key));
    if (std::all_of(map.begin(), map.end(), [](int entry) { return entry < 0; }))
        throw Failure(ORVA_E_FORMAT, "no column is known by its title");
    return map;
}

} // namespace

std::unique_ptr<ContactSource> openRows(const std::string& file, const Profile& profile, const SourceSettings& settings,
                                        const FindingReport& report)
{
    std::vector<std::string> titles;
    {
        RowReader reader(file, RowReader::Report());
        titles = readTitles(reader);
    }
    const MadeUpColumns columns(titles);
    const std::vector<int> map = settings.map.empty() ? mapByTitles(profile, columns) : settings.map;
    const int groupsColumn = settings.hasGroups ? columns.groups() : -1;
    std::map<int, std::string> groups;
    RowTaken taken;
    if (groupsColumn >= 0 && settings.withGroups)
        taken = [&groups, groupsColumn](const Row& row) {
            if (!row.column(groupsColumn).empty())
                groups.emplace(row.line(), row.column(groupsColumn));
        };
    // A column of groups that nobody wants is no loss.
    const FindingReport others = [&report, groupsColumn](const Finding& finding) {
        if (finding.reason != ORVA_FINDING_GROUPS || finding.column != groupsColumn)
            report(finding);
    };
    auto source = std::make_unique<RowSource>(profile, map, titles);
    RowBlock rows = readContacts(file, profile, map.data(), others, ReaderLimits(), taken);
    source->take(std::move(rows), std::move(groups));
    return source;
}

std::unique_ptr<ContactSource> openApplication(const std::string& name, const Profile& profile,
                                               const SourceSettings& settings, const FindingReport& report)
{
    std::vector<int> map = settings.map;
    for (int field = static_cast<int>(map.size()); field < profile.size(); ++field)
        map.push_back(field);
    auto source = std::make_unique<RowSource>(profile, map, std::vector<std::string>());
    source->take(readContactApp(name, profile, map.data(), report), {});
    return source;
}

} // namespace orva
