#include "sync/GroupCards.h"

#include <algorithm>
#include <ctime>

#include "base/Sha256.h"
#include "sync/CardEditor.h"
#include "sync/CardView.h"
#include "vcard/CardText.h"
#include "vcard/CardWriter.h"
#include "vcard/GroupNames.h"

namespace orva
{

namespace
{

bool isMember(const CardProperty& property)
{
    return property.is("MEMBER") || property.is("X-ADDRESSBOOKSERVER-MEMBER");
}

std::string memberOf(const CardProperty& property, CardVersion version)
{
    return memberUid(trimmedName(cardText(property, version)));
}

void touch(Card& card)
{
    CardEditor editor(std::move(card));
    editor.setRevision(std::time(nullptr));
    card = editor.card();
}

} // namespace

void GroupCards::add(const std::string& file, const std::string& octets, Card card)
{
    // Read as anybody's card, it gives a name that a group can have.
    Card named = Card::empty(CardVersion::V30);
    named.properties.emplace_back("CATEGORIES");
    setCardList(named.properties.back(), {contactOf(card).name}, CardVersion::V30);
    const std::vector<std::string> paths = viewOf(named).content.groups;
    if (paths.size() != 1)
        return;
    m_paths.push_back(paths.front());
    for (const CardProperty& property : card.properties)
        if (isMember(property))
            m_byUid[memberOf(property, card.version)].insert(paths.front());
    m_groups.push_back({file, sha256Of(octets), paths.front(), std::move(card)});
}

std::vector<std::string> GroupCards::of(const std::string& uid) const
{
    const auto found = uid.empty() ? m_byUid.end() : m_byUid.find(memberUid(uid));
    if (found == m_byUid.end())
        return {};
    return {found->second.begin(), found->second.end()};
}

void GroupCards::join(const std::string& path, const std::string& uid)
{
    const auto group =
        std::find_if(m_groups.begin(), m_groups.end(), [&path](const Group& other) { return other.path == path; });
    if (group == m_groups.end() || !m_byUid[memberUid(uid)].insert(path).second)
        return;
    const bool newer = group->card.version == CardVersion::V40;
    CardProperty member(newer ? "MEMBER" : "X-ADDRESSBOOKSERVER-MEMBER");
    const std::string text = memberUid(uid);
    setCardText(member, "urn:uuid:" + text, group->card.version);
    group->card.properties.push_back(std::move(member));
    group->changed = true;
}

void GroupCards::leave(const std::string& path, const std::string& uid)
{
    m_byUid[memberUid(uid)].erase(path);
    for (Group& group : m_groups) {
        std::vector<CardProperty>& all = group.card.properties;
        const std::size_t before = all.size();
        if (group.path == path)
            all.erase(std::remove_if(all.begin(), all.end(),
                                     [&](const CardProperty& property) {
                                         return isMember(property) &&
                                                memberOf(property, group.card.version) == memberUid(uid);
                                     }),
                      all.end());
        group.changed = group.changed || all.size() != before;
    }
}

bool GroupCards::write(const VdirFolder& folder)
{
    bool all = true;
    for (Group& group : m_groups) {
        if (!group.changed)
            continue;
        group.changed = false;
        const std::optional<std::string> now = folder.read(group.file);
        if (!now || sha256Of(*now) != group.digest) {
            all = false;
            continue;
        }
        touch(group.card);
        std::string octets;
        appendCard(group.card, octets);
        folder.write(group.file, octets);
        group.digest = sha256Of(octets);
    }
    return all;
}

} // namespace orva
