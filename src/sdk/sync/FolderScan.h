#ifndef SDK_SYNC_FOLDERSCAN_H
#define SDK_SYNC_FOLDERSCAN_H

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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

// One look at a folder: who of those known is in it, and who else is.
class FolderScan
{
public:
    FolderScan(const VdirFolder& folder, std::vector<SyncLink> links, SyncReport& report);

    std::vector<ScannedLink>& links() { return m_links; }
    std::vector<ScannedCard>& strangers() { return m_strangers; }
    GroupCards& groups() { return m_groups; }

private:
    struct Fresh {
        ScannedCard card;
        int link = -1; // the one whose file had that name
    };

    bool takeUnread(VdirEntry& entry);
    void look(VdirEntry entry);
    void settleFresh();
    void settle(Fresh& fresh);
    bool isFor(const ScannedLink& link, const ScannedCard& card) const;
    void attach(ScannedLink& link, ScannedCard card);
    void leave(const std::string& file, const char* why);

    const VdirFolder& m_folder;
    SyncReport& m_report;
    std::vector<ScannedLink> m_links;
    std::unordered_map<std::string_view, int> m_byFile;
    std::unordered_map<std::string, int> m_byUid; // once it is needed
    std::vector<Fresh> m_fresh;
    std::vector<ScannedCard> m_strangers;
    GroupCards m_groups;
};

// The one card of a file's octets; nothing if there is none, or more than one.
std::optional<Card> onlyCard(const std::string& octets);

} // namespace orva

#endif // SDK_SYNC_FOLDERSCAN_H
