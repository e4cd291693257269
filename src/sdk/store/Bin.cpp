#include "store/Bin.h"

#include <cstdlib>

#include "orva/orva_care.h"

namespace orva
{

namespace
{

constexpr char now[] = "CAST(strftime('%s', 'now') AS INTEGER)";

// What goes into the bin of a row called `row`, a record or what it was.
std::string binCopy(const Columns& columns, const std::string& row, int reason)
{
    std::string names;
    std::string values;
    for (const std::string& column : columns) {
        names += ", " + column;
        values.append(", ").append(row).append(".").append(column);
    }
    return "INSERT INTO bin (record, reason, time, grps, kept" + names + ") SELECT " + row + ".id, " +
           std::to_string(reason) + ", " + now +
           ", (SELECT coalesce(group_concat(grp), '') FROM memberships WHERE record = " + row +
           ".id), (SELECT lines FROM kept WHERE record = " + row + ".id)" + values;
}

} // namespace

void createBin(Database& db)
{
    std::string columns;
    {
        Query names(db, "SELECT name FROM pragma_table_info('records') WHERE name <> 'id'");
        while (names.step())
            columns += ", " + names.bytes(0) + " TEXT NOT NULL DEFAULT ''";
    }
    db.execute(("CREATE TABLE bin (id INTEGER PRIMARY KEY AUTOINCREMENT, record INTEGER NOT NULL, "
                "reason INTEGER NOT NULL, time INTEGER NOT NULL, grps TEXT NOT NULL DEFAULT ''" +
                columns + ")")
                   .c_str());
    db.execute("CREATE TABLE bin_groups (id INTEGER PRIMARY KEY, parent INTEGER, name TEXT NOT NULL, "
               "time INTEGER NOT NULL)");
}

void createKept(Database& db)
{
    db.execute("CREATE TABLE kept (record INTEGER PRIMARY KEY REFERENCES records (id) ON DELETE CASCADE, "
               "lines BLOB NOT NULL)");
    db.execute("ALTER TABLE bin ADD COLUMN kept BLOB");
}

void copyToBin(Database& db, const Columns& columns, int record, int reason)
{
    Query query(db, (binCopy(columns, "records", reason) + " FROM records WHERE id = ?").c_str());
    query.bind(1, record).step();
}

void fillBin(Database& db, const Columns& columns)
{
    std::string differs;
    for (const std::string& column : columns)
        differs.append(differs.empty() ? "OLD." : " OR OLD.").append(column).append(" IS NOT NEW.").append(column);
    db.execute(("CREATE TEMP TRIGGER bin_deleted BEFORE DELETE ON main.records BEGIN " +
                binCopy(columns, "OLD", ORVA_BIN_DELETED) + "; END")
                   .c_str());
    db.execute(("CREATE TEMP TRIGGER bin_changed BEFORE UPDATE ON main.records WHEN " + differs + " BEGIN " +
                binCopy(columns, "OLD", ORVA_BIN_CHANGED) + "; END")
                   .c_str());
    db.execute(("CREATE TEMP TRIGGER bin_group BEFORE DELETE ON main.groups BEGIN "
                "INSERT OR REPLACE INTO bin_groups (id, parent, name, time) VALUES (OLD.id, OLD.parent, OLD.name, " +
                std::string(now) + "); END")
                   .c_str());
}

void purgeBin(Database& db)
{
    static const std::string before = " WHERE time < " + std::string(now) + " - 86400 * " + std::to_string(binDays);
    db.execute(("DELETE FROM bin" + before).c_str());
    db.execute(("DELETE FROM bin_groups" + before).c_str());
}

std::vector<int> splitIdentifiers(const std::string& list)
{
    std::vector<int> ids;
    for (const char* at = list.c_str(); *at != '\0';) {
        char* end = nullptr;
        const long id = std::strtol(at, &end, 10);
        if (end == at)
            break;
        if (id > 0 && id <= 0x7fffffff)
            ids.push_back(static_cast<int>(id));
        at = *end == ',' ? end + 1 : end;
    }
    return ids;
}

} // namespace orva
