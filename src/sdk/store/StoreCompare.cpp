// Store: what a backup holds, beside what is there.

#include <functional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "orva/orva_store.h"
#include "store/Store.h"

namespace orva
{

namespace
{

struct ComparedRow {
    int id = 0;
    std::u16string name;
    std::u16string content;
};

// Photos need not be in memory all at once.
std::u16string digest(const std::string& octets)
{
    const std::string text = std::to_string(octets.size()) + ":" + std::to_string(std::hash<std::string>()(octets));
    return std::u16string(text.begin(), text.end());
}

// All records of a store or backup, as of one moment.
std::vector<ComparedRow> rowsOf(Database& db, const Columns& columns)
{
    // Stores of the first release keep nothing beside the fields.
    const bool keeps = db.queryInt("SELECT count(*) FROM sqlite_master WHERE name = 'kept'") != 0;
    std::string select = "SELECT records.id";
    for (const std::string& column : columns)
        select += ", " + column;
    select += keeps ? ", lines FROM records LEFT JOIN kept ON record = records.id" : " FROM records";
    std::vector<ComparedRow> rows;
    Query query(db, select.c_str());
    while (query.step()) {
        ComparedRow row;
        row.id = query.integer(0);
        const int fields = static_cast<int>(columns.size());
        for (int field = 0; field < fields; ++field) {
            const std::u16string_view value = query.text(field + 1);
            row.content.append(value).push_back(u'\0');
            if (row.name.empty())
                row.name = value;
        }
        const std::string kept = keeps ? query.octets(fields + 1) : std::string();
        if (!kept.empty())
            row.content += digest(kept);
        rows.push_back(std::move(row));
    }
    return rows;
}

// The rows whose content has no partner among others.
std::vector<const ComparedRow*> withoutPartner(const std::vector<ComparedRow>& rows,
                                               const std::vector<ComparedRow>& others)
{
    std::unordered_map<std::u16string_view, int> partners;
    for (const ComparedRow& other : others)
        ++partners[other.content];
    std::vector<const ComparedRow*> alone;
    for (const ComparedRow& row : rows) {
        const auto found = partners.find(row.content);
        if (found != partners.end() && found->second > 0)
            --found->second;
        else
            alone.push_back(&row);
    }
    return alone;
}

std::vector<Difference> differencesOf(const std::vector<ComparedRow>& there, const std::vector<ComparedRow>& backup)
{
    const std::vector<const ComparedRow*> returning = withoutPartner(backup, there);
    const std::vector<const ComparedRow*> going = withoutPartner(there, backup);
    std::unordered_set<int> changed;
    for (const ComparedRow* row : returning)
        changed.insert(row->id);
    std::unordered_set<int> here;
    std::vector<Difference> found;
    for (const ComparedRow* row : going) {
        here.insert(row->id);
        found.push_back({changed.count(row->id) != 0 ? ORVA_RESTORE_CHANGES : ORVA_RESTORE_GOES, row->name});
    }
    for (const ComparedRow* row : returning)
        if (here.count(row->id) == 0)
            found.push_back({ORVA_RESTORE_RETURNS, row->name});
    return found;
}

} // namespace

void Store::checkBackup(const std::string& path)
{
    try {
        Database source(path, Database::Mode::ReadOnly);
        requireBackup(source);
    } catch (const SqlFailure& failure) {
        if (failure.isDamage() || (failure.sqlCode() & 0xff) == SQLITE_ERROR)
            throw Failure(ORVA_E_FORMAT, std::string("the backup cannot be used: ") + failure.what());
        throw;
    }
}

std::vector<Difference> Store::compareBackup(const std::string& path)
{
    checkBackup(path);
    size(); // opens the file, and migrates and mends it if need be
    Database there(m_path, Database::Mode::ReadWrite);
    Database source(path, Database::Mode::ReadOnly);
    return differencesOf(rowsOf(there, m_columns), rowsOf(source, m_columns));
}

} // namespace orva
