#include "store/Store.h"

#include <sys/stat.h>

#include <algorithm>
#include <climits>

#include "base/Log.h"
#include "orva/orva_care.h"

namespace orva
{

namespace
{

// Text that one read gathers at most, so that open sets stay small whatever the values.
constexpr std::size_t blockBytes = 256 * 1024;

std::string listed(const Columns& columns, std::size_t count, const std::string& before, const std::string& after)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text.append(before).append(columns[i]).append(after);
    return text;
}

Failure notThere(const char* what)
{
    return Failure(ORVA_E_NOT_FOUND, std::string("no such ") + what);
}

} // namespace

// ---- Frame

Store::Store(std::string folder, std::string name, Columns columns, Bin bin)
    : m_folder(std::move(folder)),
      m_path(m_folder + "/" + name + ".db"),
      m_columns(std::move(columns)),
      m_bin(bin),
      m_backups(m_folder, name)
{
    makeStatements();
}

Store::~Store()
{
    shutDown();
}

void Store::makeStatements()
{
    for (std::size_t fields = 0; fields <= m_columns.size(); ++fields) {
        const std::string select = "SELECT id" + listed(m_columns, fields, ", ", "") + " FROM records WHERE id ";
        m_selectRange.push_back(select + "BETWEEN ? AND ? ORDER BY id LIMIT ?");
        m_selectOne.push_back(select + "= ?");
    }
    std::string insert = "INSERT INTO records (" + listed(m_columns, m_columns.size(), "", ", ") + "id) VALUES (";
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        insert += "?, ";
    m_insert = insert + "?)";
    m_append = insert + "NULL)";
    m_update = "UPDATE records SET " + listed(m_columns, m_columns.size(), "", " = ?, ");
    m_update.erase(m_update.size() - 2);
    m_update += " WHERE id = ?";
    m_selectBin = "SELECT id" + listed(m_columns, m_columns.size(), ", ", "") + " FROM bin WHERE id = ?";
}

// ---- Records

int Store::size()
{
    return reading([&] {
        refresh();
        return m_count;
    });
}

Extent Store::extent()
{
    return reading([&] {
        refresh();
        return Extent{m_count, m_lastRecord};
    });
}

void Store::read(int first, int last, std::size_t maxRows, int fields, RowBlock& rows)
{
    reading([&] {
        rows.clear(fields);
        reconnectIfReplaced();
        Query query(*m_db, m_selectRange[static_cast<std::size_t>(fields)].c_str());
        query.bind(1, first).bind(2, last).bind(3, static_cast<int>(std::min<std::size_t>(maxRows, INT_MAX)));
        while (query.step()) {
            rows.beginRow(query.integer(0));
            for (int field = 0; field < fields; ++field)
                query.addText(field + 1, rows);
            if (rows.bytes() > blockBytes)
                break;
        }
    });
}

void Store::readSome(const int* ids, std::size_t count, int fields, RowBlock& rows)
{
    reading([&] {
        rows.clear(fields);
        // While this one is open, those below share its read transaction and take no locks of their own.
        Query holder(*m_db, "SELECT id FROM records LIMIT 1");
        holder.step();
        for (std::size_t i = 0; i < count; ++i) {
            Query query(*m_db, m_selectOne[static_cast<std::size_t>(fields)].c_str());
            if (!query.bind(1, ids[i]).step())
                continue;
            rows.beginRow(ids[i]);
            for (int field = 0; field < fields; ++field)
                query.addText(field + 1, rows);
        }
    });
}

Values Store::readOne(int id, int fields)
{
    return reading([&] {
        Query query(*m_db, m_selectOne[static_cast<std::size_t>(fields)].c_str());
        if (!query.bind(1, id).step())
            throw notThere("record");
        Values values;
        values.reserve(static_cast<std::size_t>(fields));
        for (int field = 0; field < fields; ++field)
            values.emplace_back(query.text(field + 1));
        return values;
    });
}

int Store::add(const Values& values, int capacity, const std::string* kept)
{
    backUpIfAsked();
    return writing([&] {
        if (kept == nullptr || kept->empty())
            return insertRecord(values, capacity);
        return wholly([&] {
            const int id = insertRecord(values, capacity);
            writeKept(id, *kept);
            return id;
        });
    });
}

int Store::insertRecord(const Values& values, int capacity)
{
    if (m_count >= capacity || m_lastRecord == INT_MAX)
        throw Failure(ORVA_E_FULL, "the memory is full");
    const int id = m_lastRecord + 1;
    // Behind the highest identifier in the table SQLite comes to the same, and need not look for the place.
    const bool append = m_newest == m_lastRecord && m_newest != 0;
    Query query(*m_db, append ? m_append.c_str() : m_insert.c_str());
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        query.bind(static_cast<int>(i) + 1, i < values.size() ? std::u16string_view(values[i]) : std::u16string_view());
    if (!append)
        query.bind(static_cast<int>(m_columns.size()) + 1, id);
    query.step();
    if (append && sqlite3_last_insert_rowid(m_db->handle()) != id)
        throw Failure(ORVA_E_STORE, "the last record is not the one that was added last");
    m_lastRecord = m_touched = m_newest = id;
    m_countersChanged = true;
    ++m_count;
    return id;
}

void Store::update(int id, const Values& values, const std::string* kept)
{
    backUpIfAsked();
    writing([&] {
        if (kept == nullptr) {
            replaceRecord(id, values);
            return 0;
        }
        return wholly([&] {
            storeContent(id, values, *kept);
            return 0;
        });
    });
}

void Store::storeContent(int id, const Values& values, const std::string& kept)
{
    const bool differs = readKept(id) != kept;
    const int before = sqlite3_total_changes(m_db->handle());
    replaceRecord(id, values);
    // The fields alone bring themselves into the bin.
    const bool fieldsDiffer = sqlite3_total_changes(m_db->handle()) - before > 1;
    if (differs && !fieldsDiffer && m_bin == Bin::Filled)
        copyToBin(*m_db, m_columns, id, ORVA_BIN_CHANGED);
    if (differs)
        writeKept(id, kept);
}

void Store::replaceRecord(int id, const Values& values)
{
    m_touched = id;
    Query query(*m_db, m_update.c_str());
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        query.bind(static_cast<int>(i) + 1, i < values.size() ? std::u16string_view(values[i]) : std::u16string_view());
    query.bind(static_cast<int>(m_columns.size()) + 1, id).step();
    if (sqlite3_changes(m_db->handle()) == 0)
        throw notThere("record");
    ++m_changes;
}

void Store::erase(int id)
{
    writing([&] {
        m_touched = id;
        eraseRecord(id);
        return 0;
    });
}

void Store::eraseRecord(int id)
{
    // Memberships go with it by the schema, and a copy into the bin by the connection.
    Query(*m_db, "DELETE FROM records WHERE id = ?").bind(1, id).step();
    if (sqlite3_changes(m_db->handle()) == 0)
        throw notThere("record");
    m_newest = 0;
    --m_count;
    ++m_changes;
}

std::string Store::kept(int id)
{
    return reading([&] { return readKept(id); });
}

std::string Store::readKept(int id)
{
    Query query(*m_db, "SELECT lines FROM kept WHERE record = ?");
    return query.bind(1, id).step() ? query.octets(0) : std::string();
}

void Store::writeKept(int id, const std::string& kept)
{
    Query query(*m_db, kept.empty() ? "DELETE FROM kept WHERE record = ?"
                                    : "INSERT OR REPLACE INTO kept (record, lines) VALUES (?, ?)");
    query.bind(1, id);
    if (!kept.empty())
        query.bindOctets(2, kept);
    query.step();
}

// ---- Groups

std::shared_ptr<const std::vector<StoredGroup>> Store::groups()
{
    return reading([&] {
        refresh();
        if (m_groups == nullptr) {
            std::vector<StoredGroup> groups;
            Query query(*m_db, "SELECT id, parent, (SELECT count(*) FROM memberships WHERE grp = groups.id), name "
                               "FROM groups ORDER BY id");
            while (query.step())
                groups.push_back({query.integer(0), query.integer(1), query.integer(2), std::u16string(query.text(3))});
            m_groups = std::make_shared<const std::vector<StoredGroup>>(std::move(groups));
        }
        return m_groups;
    });
}

std::vector<int> Store::members(int group)
{
    return reading([&] {
        Query there(*m_db, "SELECT 1 FROM groups WHERE id = ?");
        if (!there.bind(1, group).step())
            throw notThere("group");
        std::vector<int> records;
        Query query(*m_db, "SELECT record FROM memberships WHERE grp = ? ORDER BY id");
        query.bind(1, group);
        while (query.step())
            records.push_back(query.integer(0));
        return records;
    });
}

int Store::addGroup(std::u16string_view name, int parent)
{
    return writing([&] { return insertGroup(name, parent); });
}

int Store::insertGroup(std::u16string_view name, int parent)
{
    if (m_lastGroup == INT_MAX)
        throw Failure(ORVA_E_FULL, "no group identifier is left");
    const int id = m_lastGroup + 1;
    Query query(*m_db, parent == 0 ? "INSERT INTO groups (id, name) VALUES (?, ?)"
                                   : "INSERT INTO groups (id, name, parent) SELECT ?, ?, id FROM groups WHERE id = ?");
    query.bind(1, id).bind(2, name);
    if (parent != 0)
        query.bind(3, parent);
    query.step();
    if (sqlite3_changes(m_db->handle()) == 0)
        throw notThere("parent group");
    m_lastGroup = id;
    m_countersChanged = true;
    return id;
}

void Store::renameGroup(int id, std::u16string_view name)
{
    writing([&] {
        Query(*m_db, "UPDATE groups SET name = ? WHERE id = ?").bind(1, name).bind(2, id).step();
        if (sqlite3_changes(m_db->handle()) == 0)
            throw notThere("group");
        return 0;
    });
}

void Store::eraseGroup(int id)
{
    writing([&] {
        // Sub-groups at any depth in the same statement; memberships go with them by the schema.
        Query(*m_db, "WITH RECURSIVE below (id) AS (SELECT id FROM groups WHERE id = ? "
                     "UNION SELECT groups.id FROM groups JOIN below ON groups.parent = below.id) "
                     "DELETE FROM groups WHERE id IN below")
            .bind(1, id)
            .step();
        if (sqlite3_changes(m_db->handle()) == 0)
            throw notThere("group");
        return 0;
    });
}

void Store::join(int group, int record)
{
    writing([&] {
        m_touched = record;
        Query both(*m_db, "SELECT 1 FROM groups, records WHERE groups.id = ? AND records.id = ?");
        if (!both.bind(1, group).bind(2, record).step())
            throw notThere("record or group");
        Query(*m_db, "INSERT OR IGNORE INTO memberships (grp, record) VALUES (?, ?)")
            .bind(1, group)
            .bind(2, record)
            .step();
        return 0;
    });
}

void Store::leave(int group, int record)
{
    writing([&] {
        m_touched = record;
        Query(*m_db, "DELETE FROM memberships WHERE grp = ? AND record = ?").bind(1, group).bind(2, record).step();
        if (sqlite3_changes(m_db->handle()) == 0)
            throw notThere("membership");
        return 0;
    });
}

} // namespace orva
