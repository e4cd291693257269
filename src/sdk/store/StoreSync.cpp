// Store: the records and the state of the last sync, for the next one.

#include <algorithm>
#include <climits>
#include <ctime>
#include <map>
#include <set>
#include <utility>

#include "base/Sha256.h"
#include "base/Text.h"
#include "orva/orva_care.h"
#include "store/GroupPaths.h"
#include "store/Store.h"
#include "store/SyncTables.h"

namespace orva
{

namespace
{

const char selectLink[] = "SELECT uid, file, look, remote, local, grps, changed, card IS NOT NULL, touched, "
                          "doubtful, NOT EXISTS (SELECT 1 FROM records WHERE records.id = record) "
                          "FROM sync_links WHERE folder = ? AND record = ?";

// The groups of a store by their paths, made where they are missing.
class GroupPaths
{
public:
    explicit GroupPaths(Database& db)
    {
        std::map<int, std::u16string> paths;
        Query query(db, "SELECT id, parent, name FROM groups ORDER BY id");
        while (query.step()) {
            // A parent has a smaller identifier than its child, whatever a file says.
            const auto above = paths.find(query.integer(1));
            const std::u16string before = above == paths.end() ? std::u16string() : above->second + u"/";
            paths.emplace(query.integer(0), before + std::u16string(query.text(2)));
        }
        for (const auto& path : paths) {
            m_paths.emplace(path.first, toUtf8(path.second));
            m_ids.emplace(m_paths.at(path.first), path.first);
        }
    }

    // The path of a group, as records name it.
    const std::string& of(int group) const { return m_paths.at(group); }
    bool has(int group) const { return m_paths.count(group) != 0; }

    template <typename Insert>
    int provide(const std::string& path, const Insert& insert)
    {
        const auto known = m_ids.find(path);
        if (known != m_ids.end())
            return known->second;
        const std::size_t slash = path.rfind('/');
        const int parent = slash == std::string::npos ? 0 : provide(path.substr(0, slash), insert);
        const int id = insert(fromUtf8(slash == std::string::npos ? path : path.substr(slash + 1)), parent);
        m_ids.emplace(path, id);
        m_paths.emplace(id, path);
        return id;
    }

private:
    std::map<std::string, int> m_ids;
    std::map<int, std::string> m_paths;
};

std::vector<int> groupsOfRecord(Database& db, int record)
{
    std::vector<int> groups;
    Query query(db, "SELECT grp FROM memberships WHERE record = ?");
    query.bind(1, record);
    while (query.step())
        groups.push_back(query.integer(0));
    return groups;
}

void removeLink(Database& db, const std::string& folder, int record)
{
    Query query(db, "DELETE FROM sync_links WHERE folder = ? AND record = ?");
    query.bindOctets(1, folder).bind(2, record);
    query.step();
}

void writeLink(Database& db, const std::string& folder, const SyncLink& link, const std::string* card)
{
    Query query(db, "INSERT OR REPLACE INTO sync_links (folder, record, uid, file, look, remote, local, grps, changed, "
                    "touched, doubtful, card) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, 0, 0, nullif(?, x''))");
    query.bindOctets(1, folder).bind(2, link.record).bindOctets(3, link.uid).bindOctets(4, link.file);
    // What has no card is never left out by how its file looks.
    query.bindOctets(5, card == nullptr ? std::string_view() : link.look)
        .bindOctets(6, link.remote)
        .bindOctets(7, link.local);
    query.bindOctets(8, link.groups).bind(9, link.changed).bindOctets(10, card == nullptr ? std::string_view() : *card);
    query.step();
}

} // namespace

std::string joinedGroups(const std::vector<std::string>& groups)
{
    std::string lines;
    for (const std::string& group : groups)
        lines += group + '\n';
    return lines;
}

std::vector<std::string> splitGroupLines(const std::string& lines)
{
    std::vector<std::string> groups;
    for (std::size_t at = 0; at < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', at), lines.size());
        groups.push_back(lines.substr(at, end - at));
        at = end + 1;
    }
    return groups;
}

std::string digestOf(const SyncContent& content)
{
    Sha256 digest;
    const auto add = [&digest](std::string_view text) {
        digest.add(std::to_string(text.size()) + ':');
        digest.add(text);
    };
    for (const std::u16string& value : content.content.values)
        add(std::string_view(reinterpret_cast<const char*>(value.data()), value.size() * sizeof(char16_t)));
    add(content.content.kept);
    add(joinedGroups(content.groups));
    return digest.hex();
}

std::string Store::syncFolderAt(const std::string& path)
{
    return reading([&] {
        Query query(*m_db, "SELECT folder FROM sync_folders WHERE path = ? ORDER BY time DESC");
        return query.bindOctets(1, path).step() ? query.octets(0) : std::string();
    });
}

void Store::rememberSyncFolder(const std::string& folder, const std::string& path)
{
    writing([&] {
        // A folder that lies elsewhere now takes what is known of it along.
        Query query(*m_db, "INSERT INTO sync_folders (folder, path, time) VALUES (?, ?, ?) "
                           "ON CONFLICT (folder) DO UPDATE SET path = excluded.path, time = excluded.time");
        query.bindOctets(1, folder).bindOctets(2, path).bind(3, static_cast<long long>(std::time(nullptr)));
        query.step();
        return 0;
    });
}

void SyncLooks::add(const SyncLook& look)
{
    const Head head = {look.record, static_cast<std::uint32_t>(look.file.size()),
                       static_cast<std::uint32_t>(look.look.size()), look.settled};
    const std::size_t at = m_words.size();
    if (at + wordsOf(head) > UINT32_MAX)
        throw Failure(ORVA_E_NO_MEMORY, "the names of a folder's files");
    m_words.resize(at + wordsOf(head));
    std::memcpy(&m_words[at], &head, sizeof head);
    char* const text = reinterpret_cast<char*>(m_words.data() + at + headWords);
    look.file.copy(text, look.file.size());
    look.look.copy(text + look.file.size(), look.look.size());
    ++m_size;
}

SyncLooks Store::syncLooks(const std::string& folder)
{
    return reading([&] {
        reconnectIfReplaced();
        SyncLooks looks;
        looks.reserve(static_cast<std::size_t>(std::max(m_count, 0)));
        Query query(*m_db, selectSyncLooks);
        query.bindOctets(1, folder);
        while (query.step()) {
            SyncLook look;
            look.record = query.integer(0);
            look.file = query.octetsView(1);
            look.look = query.octetsView(2);
            look.settled =
                query.integer(3) == 0 && !look.look.empty() && query.octetsView(4).find('\t') == std::string_view::npos;
            looks.add(look);
        }
        return looks;
    });
}

std::vector<std::pair<int, std::string>> Store::syncUids(const std::string& folder)
{
    return reading([&] {
        std::vector<std::pair<int, std::string>> uids;
        Query query(*m_db, selectSyncUids);
        query.bindOctets(1, folder);
        while (query.step())
            uids.emplace_back(query.integer(0), query.octets(1));
        return uids;
    });
}

std::optional<SyncLink> Store::syncLink(const std::string& folder, int record)
{
    return reading([&]() -> std::optional<SyncLink> {
        Query query(*m_db, selectLink);
        if (!query.bindOctets(1, folder).bind(2, record).step())
            return std::nullopt;
        SyncLink link;
        link.record = record;
        link.uid = query.octets(0);
        link.file = query.octets(1);
        link.look = query.octets(2);
        link.remote = query.octets(3);
        link.local = query.octets(4);
        link.groups = query.octets(5);
        link.changed = query.wideInteger(6);
        link.hasCard = query.integer(7) != 0;
        link.touched = query.integer(8) != 0;
        link.doubtful = query.integer(9) != 0;
        link.gone = query.integer(10) != 0;
        return link;
    });
}

std::vector<int> Store::linksWithoutRecord(const std::string& folder)
{
    return reading([&] {
        std::vector<int> records;
        Query query(*m_db, "SELECT record FROM sync_links WHERE folder = ? AND record NOT IN (SELECT id FROM records)");
        query.bindOctets(1, folder);
        while (query.step())
            records.push_back(query.integer(0));
        return records;
    });
}

std::string Store::syncCard(const std::string& folder, int record)
{
    return reading([&] {
        Query query(*m_db, "SELECT card FROM sync_links WHERE folder = ? AND record = ?");
        return query.bindOctets(1, folder).bind(2, record).step() ? query.octets(0) : std::string();
    });
}

std::vector<SyncLink> Store::recordsWithoutLink(const std::string& folder)
{
    return reading([&] {
        std::vector<SyncLink> records;
        // A record of another folder has its UID already.
        Query query(*m_db, "SELECT id, (SELECT uid FROM sync_links WHERE record = records.id LIMIT 1) FROM records "
                           "WHERE id NOT IN (SELECT record FROM sync_links WHERE folder = ?) ORDER BY id");
        query.bindOctets(1, folder);
        while (query.step()) {
            records.emplace_back();
            records.back().record = query.integer(0);
            records.back().uid = query.octets(1);
        }
        return records;
    });
}

SyncContent Store::readSyncContent(int record)
{
    SyncContent all;
    all.content = readContent(record);
    std::set<std::string> paths;
    Query query(*m_db, groupPathsSql);
    query.bind(1, record);
    while (query.step())
        paths.insert(toUtf8(query.text(0)));
    all.groups.assign(paths.begin(), paths.end());
    return all;
}

std::optional<SyncContent> Store::syncContent(int record)
{
    return reading([&]() -> std::optional<SyncContent> {
        try {
            return readSyncContent(record);
        } catch (const Failure& failure) {
            if (failure.code() != ORVA_E_NOT_FOUND)
                throw;
            return std::nullopt;
        }
    });
}

long long Store::changedAt(int record)
{
    return reading([&] {
        Query query(*m_db, "SELECT max(time) FROM bin WHERE record = ? AND reason = ?");
        return query.bind(1, record).bind(2, ORVA_BIN_CHANGED).step() ? query.wideInteger(0) : 0;
    });
}

// Puts content that no record has into the bin, unless it stands there already as the newest of its record: a sync that
// was broken off comes again.
void Store::keepInBin(int record, const Content& content)
{
    int newest = 0;
    {
        Query query(*m_db, "SELECT max(id) FROM bin WHERE record = ?");
        newest = query.bind(1, record).step() ? query.integer(0) : 0;
    }
    if (newest != 0) {
        Query query(*m_db, m_selectBin.c_str());
        bool same = query.bind(1, newest).step();
        for (std::size_t i = 0; same && i < m_columns.size(); ++i)
            same = query.text(static_cast<int>(i) + 1) == content.values[i];
        Query kept(*m_db, "SELECT kept FROM bin WHERE id = ?");
        if (same && kept.bind(1, newest).step() && kept.octets(0) == content.kept)
            return;
    }
    std::string sql = "INSERT INTO bin (record, reason, time, grps, kept";
    for (const std::string& column : m_columns)
        sql += ", " + column;
    sql += ") VALUES (?, ?, CAST(strftime('%s', 'now') AS INTEGER), '', nullif(?, x'')";
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        sql += ", ?";
    Query query(*m_db, (sql + ")").c_str());
    query.bind(1, record).bind(2, ORVA_BIN_CHANGED).bindOctets(3, content.kept);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        query.bind(static_cast<int>(i) + 4, std::u16string_view(content.values[i]));
    query.step();
}

void Store::applySync(const std::string& folder, std::vector<SyncStep>& steps, int capacity)
{
    writing([&] {
        if (m_count < 0)
            m_count = m_db->queryInt("SELECT count(*) FROM records");
        wholly([&] {
            GroupPaths groups(*m_db);
            const auto setGroups = [&](int record, const std::vector<std::string>& wanted) {
                std::set<std::string> missing(wanted.begin(), wanted.end());
                for (const int group : groupsOfRecord(*m_db, record)) {
                    if (groups.has(group) &&
                        (missing.erase(groups.of(group)) != 0 ||
                         std::find(wanted.begin(), wanted.end(), groups.of(group)) != wanted.end()))
                        continue;
                    Query(*m_db, "DELETE FROM memberships WHERE grp = ? AND record = ?")
                        .bind(1, group)
                        .bind(2, record)
                        .step();
                }
                for (const std::string& path : missing) {
                    const int group = groups.provide(
                        path, [this](const std::u16string& name, int parent) { return insertGroup(name, parent); });
                    Query(*m_db, "INSERT OR IGNORE INTO memberships (grp, record) VALUES (?, ?)")
                        .bind(1, group)
                        .bind(2, record)
                        .step();
                }
            };
            for (SyncStep& step : steps)
                applySyncStep(folder, step, capacity, setGroups);
            return 0;
        });
        // Of each of them it has to be told if the transaction is lost.
        for (const SyncStep& step : steps)
            if (gathers() && step.content)
                m_gathered.push_back(step.link.record);
        return 0;
    });
}

namespace
{

// Whether a step may only be taken on the record as it was read.
bool needsRecord(const SyncStep& step)
{
    switch (step.kind) {
    case SyncStep::Kind::Keep:
    case SyncStep::Kind::Forget:
        return false;
    case SyncStep::Kind::Look:
        return !step.expected.empty();
    default:
        return step.link.record != 0;
    }
}

} // namespace

void Store::applySyncStep(const std::string& folder, SyncStep& step, int capacity,
                          const std::function<void(int, const std::vector<std::string>&)>& setGroups)
{
    SyncLink& link = step.link;
    step.done = false;
    if (needsRecord(step)) {
        std::string now;
        Query there(*m_db, "SELECT 1 FROM records WHERE id = ?");
        if (there.bind(1, link.record).step())
            now = digestOf(readSyncContent(link.record));
        if (now != step.expected)
            return;
    }
    switch (step.kind) {
    case SyncStep::Kind::Reserve:
        writeLink(*m_db, folder, link, nullptr);
        break;
    case SyncStep::Kind::Keep:
        keepInBin(link.record, step.content->content);
        break;
    case SyncStep::Kind::Forget:
        removeLink(*m_db, folder, link.record);
        break;
    case SyncStep::Kind::Look: {
        Query query(*m_db,
                    "UPDATE sync_links SET file = ?, look = ?, touched = touched AND ?, doubtful = doubtful AND ? "
                    "WHERE folder = ? AND record = ?");
        query.bindOctets(1, link.file).bindOctets(2, link.look).bind(3, step.expected.empty() ? 1 : 0);
        query.bind(4, step.expected.empty() ? 1 : 0).bindOctets(5, folder).bind(6, link.record);
        query.step();
        break;
    }
    case SyncStep::Kind::Erase:
        eraseRecord(link.record);
        removeLink(*m_db, folder, link.record);
        break;
    case SyncStep::Kind::Settle:
        if (link.record == 0 && (m_count >= capacity || m_lastRecord == INT_MAX)) {
            step.failure = ORVA_E_FULL;
            return;
        }
        if (step.content && link.record == 0) {
            link.record = insertRecord(step.content->content.values, capacity);
            if (!step.content->content.kept.empty())
                writeKept(link.record, step.content->content.kept);
        } else if (step.content) {
            storeContent(link.record, step.content->content.values, step.content->content.kept);
        }
        if (step.content)
            setGroups(link.record, step.content->groups);
        if (step.was != 0 && step.was != link.record)
            removeLink(*m_db, folder, step.was);
        link.local = digestOf(readSyncContent(link.record));
        writeLink(*m_db, folder, link, &step.card);
        break;
    }
    step.done = true;
}

} // namespace orva
