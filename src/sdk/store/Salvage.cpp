#include "store/Salvage.h"

#include <algorithm>
#include <climits>
#include <functional>

#include "store/SyncTables.h"

namespace orva
{

namespace
{

// Identifiers tried behind the last one that was read before a table is taken to be at its end.
constexpr long long furthestSkip = 1000000;

// Reads a table by ascending identifier and steps over what cannot be read: after a failure it goes on further and
// further behind the last row that came.
void readAround(Database& source, const std::string& select, const std::function<void(Query&, int id)>& take)
{
    long long next = 1;
    long long skip = 1;
    while (next <= INT_MAX && skip <= furthestSkip) {
        try {
            Query rows(source, select.c_str());
            rows.bind(1, static_cast<int>(next));
            while (rows.step()) {
                const int id = rows.integer(0);
                // A damaged page can hold anything; only what ascends is a row.
                if (id < next)
                    throw SqlFailure(SQLITE_CORRUPT, "rows out of order");
                take(rows, id);
                next = static_cast<long long>(id) + 1;
                skip = 1;
            }
            return;
        } catch (const SqlFailure& failure) {
            if (!failure.isDamage())
                throw;
            next += skip;
            skip *= 2;
        }
    }
}

std::string joined(const Columns& columns, const std::string& separator)
{
    std::string text;
    for (const std::string& column : columns)
        text += separator + column;
    return text;
}

void salvageRecords(Database& source, Database& target, const Columns& columns, Salvaged& found)
{
    std::string places;
    for (std::size_t i = 0; i < columns.size(); ++i)
        places += ", ?";
    const std::string insert =
        "INSERT OR IGNORE INTO records (id" + joined(columns, ", ") + ") VALUES (?" + places + ")";
    const std::string select = "SELECT id" + joined(columns, ", ") + " FROM records WHERE id >= ? ORDER BY id";
    readAround(source, select, [&](Query& rows, int id) {
        std::vector<std::u16string> values;
        for (std::size_t i = 0; i < columns.size(); ++i)
            values.emplace_back(rows.text(static_cast<int>(i) + 1));
        Query record(target, insert.c_str());
        record.bind(1, id);
        for (std::size_t i = 0; i < columns.size(); ++i)
            record.bind(static_cast<int>(i) + 2, values[i]);
        record.step();
        ++found.records;
    });
}

void salvageGroups(Database& source, Database& target, Salvaged& found)
{
    // A group whose parent is lost, or comes later, goes to the first level.
    readAround(source, "SELECT id, name, parent FROM groups WHERE id >= ? ORDER BY id", [&](Query& rows, int id) {
        const std::u16string name(rows.text(1));
        Query group(target, "INSERT OR IGNORE INTO groups (id, name, parent) "
                            "VALUES (?, ?, (SELECT id FROM groups WHERE id = ?))");
        group.bind(1, id).bind(2, name).bind(3, rows.integer(2));
        group.step();
        ++found.groups;
    });
    readAround(source, "SELECT id, grp, record FROM memberships WHERE id >= ? ORDER BY id", [&](Query& rows, int) {
        Query membership(target, "INSERT OR IGNORE INTO memberships (grp, record) "
                                 "SELECT groups.id, records.id FROM groups, records "
                                 "WHERE groups.id = ? AND records.id = ?");
        membership.bind(1, rows.integer(1)).bind(2, rows.integer(2));
        membership.step();
        found.memberships += sqlite3_changes(target.handle());
    });
}

void salvageBin(Database& source, Database& target, const Columns& columns)
{
    std::string places;
    for (std::size_t i = 0; i < columns.size(); ++i)
        places += ", ?";
    const std::string names = joined(columns, ", ");
    // A store of an earlier release has a bin without them.
    const bool hasKept = source.queryInt("SELECT count(*) FROM pragma_table_info('bin') WHERE name = 'kept'") > 0;
    const std::string kept = hasKept ? "kept" : "NULL";
    const std::string insert = "INSERT OR IGNORE INTO bin (id, record, reason, time, kept, grps" + names +
                               ") VALUES (?, ?, ?, ?, ?, ?" + places + ")";
    const std::string select =
        "SELECT id, record, reason, time, " + kept + ", grps" + names + " FROM bin WHERE id >= ? ORDER BY id";
    readAround(source, select, [&](Query& rows, int id) {
        std::vector<std::u16string> texts;
        for (std::size_t i = 0; i <= columns.size(); ++i)
            texts.emplace_back(rows.text(static_cast<int>(i) + 5));
        const std::string lines = rows.octets(4);
        Query entry(target, insert.c_str());
        entry.bind(1, id)
            .bind(2, rows.integer(1))
            .bind(3, rows.integer(2))
            .bind(4, rows.wideInteger(3))
            .bindOctets(5, lines);
        for (std::size_t i = 0; i < texts.size(); ++i)
            entry.bind(static_cast<int>(i) + 6, texts[i]);
        entry.step();
    });
}

void salvageKept(Database& source, Database& target)
{
    readAround(source, "SELECT record, lines FROM kept WHERE record >= ? ORDER BY record", [&](Query& rows, int id) {
        const std::string lines = rows.octets(1);
        Query kept(target, "INSERT OR IGNORE INTO kept (record, lines) SELECT id, ? FROM records WHERE id = ?");
        kept.bindOctets(1, lines).bind(2, id);
        kept.step();
    });
}

void salvageBinGroups(Database& source, Database& target)
{
    readAround(source, "SELECT id, parent, name, time FROM bin_groups WHERE id >= ? ORDER BY id",
               [&](Query& rows, int id) {
                   const std::u16string name(rows.text(2));
                   Query group(target, "INSERT OR IGNORE INTO bin_groups (id, parent, name, time) VALUES (?, ?, ?, ?)");
                   group.bind(1, id).bind(2, rows.integer(1)).bind(3, name).bind(4, rows.wideInteger(3));
                   group.step();
               });
}

void salvageSync(Database& source, Database& target)
{
    const SyncCopy copy(target);
    readAround(source, SyncCopy::selectLinks, [&](Query& rows, int) { copy.takeLink(rows); });
    readAround(source, SyncCopy::selectFolders, [&](Query& rows, int) { copy.takeFolder(rows); });
}

// What cannot be read of one table must not keep the others from being read.
void tryPart(const std::function<void()>& part)
{
    try {
        part();
    } catch (const SqlFailure& failure) {
        const int primary = failure.sqlCode() & 0xff;
        if (primary != SQLITE_CORRUPT && primary != SQLITE_NOTADB && primary != SQLITE_ERROR)
            throw;
    }
}

} // namespace

Salvaged salvage(const std::string& damagedPath, Database& target, const Columns& columns)
{
    Salvaged found;
    Database source(damagedPath, Database::Mode::Salvage);
    target.execute("BEGIN IMMEDIATE");
    try {
        tryPart([&] { salvageRecords(source, target, columns, found); });
        tryPart([&] { salvageGroups(source, target, found); });
        tryPart([&] { salvageKept(source, target); });
        tryPart([&] { salvageBin(source, target, columns); });
        tryPart([&] { salvageBinGroups(source, target); });
        tryPart([&] { salvageSync(source, target); });
        tryPart([&] {
            // Identifiers that were given out stay given out, also those of records that are lost.
            const int record = source.queryInt("SELECT value FROM counters WHERE name = 'record'");
            const int group = source.queryInt("SELECT value FROM counters WHERE name = 'group'");
            Query(target, "UPDATE counters SET value = ? WHERE name = 'record'").bind(1, std::max(record, 0)).step();
            Query(target, "UPDATE counters SET value = ? WHERE name = 'group'").bind(1, std::max(group, 0)).step();
        });
        target.execute("COMMIT");
    } catch (...) {
        if (target.inTransaction())
            sqlite3_exec(target.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
    return found;
}

} // namespace orva
