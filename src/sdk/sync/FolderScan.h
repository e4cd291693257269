#ifndef SDK_SYNC_FOLDERSCAN_H
#define SDK_SYNC_FOLDERSCAN_H

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "store/Store.h"
#include "store/SyncLink.h"
#include "sync/GroupCards.h"
#include "sync/SyncReport.h"
#include "sync/VdirFolder.h"

namespace orva
{

// A card of the folder that stands for somebody.
struct ScannedCard {
    VdirEntry entry;
    std::string digest;
    std::string uid;
    Values values; // of one that no link is for
};

// What the folder says of one link's contact.
struct ScannedLink {
    SyncLink link;
    std::optional<ScannedCard> card;
    bool changed = false; // its octets
    bool unknown = false; // it is there, but cannot be read

    // Of a card that needed no reading the link knows what else is to be known.
    void complete()
    {
        if (card && card->digest.empty()) {
            card->digest = link.remote;
            card->uid = link.uid;
        }
    }
};

// Finds a link by the name of its file.
class LooksByFile
{
public:
    explicit LooksByFile(const SyncLooks& looks);

    static constexpr SyncLooks::Place none = UINT32_MAX;

    SyncLooks::Place find(std::string_view file) const { return find(file, hashOf(file)); }

    // The same for many: first all of these, then all of those, and what is looked at is near in memory by the third.
    std::size_t begin(std::string_view file) const;
    void fetch(std::size_t hash) const;
    SyncLooks::Place find(std::string_view file, std::size_t hash) const;

private:
    static std::size_t hashOf(std::string_view file) { return std::hash<std::string_view>()(file); }

    struct Slot {
        std::uint32_t hash = 0; // of the file, so that few names are compared in vain
        SyncLooks::Place place = none;
    };

    const SyncLooks& m_looks;
    std::vector<Slot> m_slots; // at most half of them taken
};

// One look at a folder: for whom of those known there is something to look at, and who else is in it.
class FolderScan
{
public:
    FolderScan(const VdirFolder& folder, Store& store, const std::string& identifier, SyncReport& report);

    // In the order of their records; without those for whom nothing has happened on either side, who are counted.
    std::deque<ScannedLink>& links() { return m_links; }
    int quiet() const { return m_quiet; }
    std::vector<ScannedCard>& strangers() { return m_strangers; }
    GroupCards& groups() { return m_groups; }

    // Somebody has written the store meanwhile.
    bool isStale() const { return m_stale; }

    // Those who have no record, whoever took it.
    void addGone();

private:
    struct Fresh {
        ScannedCard card;
        SyncLooks::Place place = LooksByFile::none; // of the one whose file had that name
    };
    using Place = SyncLooks::Place;

    void markQuiet(std::vector<VdirFolder::Listed>& files);
    bool isQuiet(Place place, std::string_view look);
    ScannedLink* link(Place place);
    ScannedLink* linkOf(const std::string& file) { return link(m_byFile.find(file)); }
    bool takeUnread(VdirEntry& entry);
    void look(VdirEntry entry);
    void lookAtMembers();
    void readUids();
    void settleFresh();
    void settle(Fresh& fresh);
    bool isFor(const ScannedLink& link, const ScannedCard& card) const;
    void attach(ScannedLink& link, ScannedCard card);
    void leave(const std::string& file, int reason);
    void sort();

    const VdirFolder& m_folder;
    Store& m_store;
    const std::string m_identifier;
    SyncReport& m_report;
    const SyncLooks m_looks;
    const LooksByFile m_byFile;
    std::vector<std::size_t> m_hashes;               // of the files asked about
    std::vector<bool> m_quietAt;                     // which of the looks are
    std::unordered_map<Place, ScannedLink*> m_found; // those linked, by their places; until they are sorted
    bool m_uidsRead = false;
    std::vector<std::pair<std::string, Place>> m_uids;
    std::unordered_map<std::string, Place> m_byUid; // once it is needed
    std::deque<ScannedLink> m_links;
    int m_quiet = 0;
    bool m_stale = false;
    std::vector<Fresh> m_fresh;
    std::vector<ScannedCard> m_strangers;
    GroupCards m_groups;
};

// The one card of a file's octets; nothing if there is none, or more than one.
std::optional<Card> onlyCard(const std::string& octets);

} // namespace orva

#endif // SDK_SYNC_FOLDERSCAN_H
