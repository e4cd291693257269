#ifndef SDK_SYNC_GROUPCARDS_H
#define SDK_SYNC_GROUPCARDS_H

#include <map>
#include <set>
#include <string>
#include <vector>

#include "sync/VdirFolder.h"
#include "vcard/Card.h"

namespace orva
{

// The cards of a folder that stand for groups, each of which names its members by their UIDs.
class GroupCards
{
public:
    void add(const std::string& file, const std::string& octets, Card card);

    // The groups' paths.
    const std::vector<std::string>& paths() const { return m_paths; }

    bool isEmpty() const { return m_byUid.empty(); }

    // The groups that a contact is in by their cards, sorted.
    std::vector<std::string> of(const std::string& uid) const;

    void join(const std::string& path, const std::string& uid);
    void leave(const std::string& path, const std::string& uid);

    // Writes those that were changed. False if one has changed in the folder meanwhile; it is left then.
    bool write(const VdirFolder& folder);

private:
    struct Group {
        std::string file;
        std::string digest;
        std::string path;
        Card card;
        bool changed = false;
    };

    std::vector<Group> m_groups;
    std::vector<std::string> m_paths;
    std::map<std::string, std::set<std::string>> m_byUid;
};

} // namespace orva

#endif // SDK_SYNC_GROUPCARDS_H
