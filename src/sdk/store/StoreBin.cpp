// Store: what was deleted or overwritten, and its way back.

#include <algorithm>
#include <climits>

#include "orva/orva_care.h"
#include "store/Store.h"

namespace orva
{

namespace
{

Failure notInBin()
{
    return Failure(ORVA_E_NOT_FOUND, "no such entry of the bin");
}

// What is too old is not there any more, whether or not a write has removed it.
const char selectEntry[] = "SELECT grps FROM bin WHERE id = ? AND time >= CAST(strftime('%s', 'now') AS INTEGER) - "
                           "86400 * ?";

std::vector<int> groupsOf(Database& db, int entry)
{
    Query query(db, selectEntry);
    if (!query.bind(1, entry).bind(2, binDays).step())
        throw notInBin();
    return splitIdentifiers(query.bytes(0));
}

struct BinGroup {
    int parent = 0;
    std::u16string name;
    bool there = false; // not in the bin, but in its place
};

// A group wherever it is; false if it is nowhere.
bool findGroup(Database& db, int id, BinGroup& group)
{
    for (const bool there : {true, false}) {
        Query query(db, there ? "SELECT parent, name FROM groups WHERE id = ?"
                              : "SELECT parent, name FROM bin_groups WHERE id = ?");
        if (!query.bind(1, id).step())
            continue;
        // A parent has a smaller identifier than its child, whatever a file says.
        group.parent = query.integer(0) < id ? std::max(query.integer(0), 0) : 0;
        group.name = query.text(1);
        group.there = there;
        return true;
    }
    return false;
}

} // namespace

std::vector<BinEntry> Store::bin()
{
    return reading([&] {
        reconnectIfReplaced();
        std::vector<BinEntry> entries;
        Query query(*m_db, "SELECT id, record, reason, time FROM bin "
                           "WHERE time >= CAST(strftime('%s', 'now') AS INTEGER) - 86400 * ? ORDER BY id DESC");
        query.bind(1, binDays);
        while (query.step())
            entries.push_back({query.integer(0), query.integer(1), query.integer(2), query.wideInteger(3)});
        return entries;
    });
}

Values Store::readBin(int entry, int fields)
{
    return reading([&] {
        groupsOf(*m_db, entry);
        Query query(*m_db, m_selectBin.c_str());
        if (!query.bind(1, entry).step())
            throw notInBin();
        Values values;
        for (int field = 0; field < fields; ++field)
            values.emplace_back(query.text(field + 1));
        return values;
    });
}

std::vector<std::u16string> Store::binGroups(int entry)
{
    return reading([&] {
        std::vector<std::u16string> paths;
        for (const int id : groupsOf(*m_db, entry)) {
            BinGroup group;
            if (!findGroup(*m_db, id, group))
                continue;
            std::u16string path = group.name;
            while (group.parent != 0 && findGroup(*m_db, group.parent, group))
                path.insert(0, group.name + u"/");
            paths.push_back(std::move(path));
        }
        return paths;
    });
}

std::string Store::binKept(int entry)
{
    return reading([&] {
        groupsOf(*m_db, entry);
        Query query(*m_db, "SELECT kept FROM bin WHERE id = ?");
        return query.bind(1, entry).step() ? query.octets(0) : std::string();
    });
}

int Store::groupFromBin(int group)
{
    // From the group up to the first that is in its place, then down again.
    std::vector<BinGroup> missing;
    int parent = group;
    while (parent != 0) {
        BinGroup found;
        if (!findGroup(*m_db, parent, found)) {
            if (missing.empty())
                return 0;
            parent = 0;
        } else if (found.there) {
            break;
        } else {
            parent = found.parent;
            missing.push_back(std::move(found));
        }
    }
    for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
        int there = 0;
        {
            Query same(*m_db, "SELECT id FROM groups WHERE coalesce(parent, 0) = ? AND name = ?");
            if (same.bind(1, parent).bind(2, next->name).step())
                there = same.integer(0);
        }
        parent = there != 0 ? there : insertGroup(next->name, parent);
    }
    return parent;
}

int Store::undelete(int entry, int capacity)
{
    const Values values = readBin(entry, static_cast<int>(m_columns.size()));
    return writing([&] {
        return wholly([&] {
            // Another process may have been faster.
            const std::vector<int> groups = groupsOf(*m_db, entry);
            const int id = insertRecord(values, capacity);
            Query(*m_db, "INSERT INTO kept (record, lines) SELECT ?, kept FROM bin WHERE id = ? AND length(kept) > 0")
                .bind(1, id)
                .bind(2, entry)
                .step();
            for (const int was : groups) {
                const int group = groupFromBin(was);
                if (group != 0)
                    Query(*m_db, "INSERT OR IGNORE INTO memberships (grp, record) VALUES (?, ?)")
                        .bind(1, group)
                        .bind(2, id)
                        .step();
            }
            Query(*m_db, "DELETE FROM bin WHERE id = ?").bind(1, entry).step();
            return id;
        });
    });
}

void Store::emptyBin(int entry)
{
    writing([&] {
        Query(*m_db, "DELETE FROM bin WHERE id = ? OR ? = 0").bind(1, entry).bind(2, entry).step();
        if (entry != 0 && sqlite3_changes(m_db->handle()) == 0)
            throw notInBin();
        return 0;
    });
}

} // namespace orva
