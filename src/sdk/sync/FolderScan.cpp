#include "sync/FolderScan.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "base/Sha256.h"
#include "sync/CardView.h"
#include "vcard/CardReader.h"

namespace orva
{

std::optional<Card> onlyCard(const std::string& octets)
{
    std::istringstream in(octets);
    CardReader reader(in, CardReport());
    Card card;
    Card another;
    if (!reader.next(card) || reader.next(another))
        return std::nullopt;
    return card;
}

FolderScan::FolderScan(const VdirFolder& folder, std::vector<SyncLink> links, SyncReport& report)
    : m_folder(folder), m_report(report)
{
    m_links.reserve(links.size());
    m_byFile.reserve(links.size());
    for (SyncLink& link : links) {
        m_links.emplace_back();
        m_links.back().link = std::move(link);
        m_byFile.emplace(m_links.back().link.file, static_cast<int>(m_links.size()) - 1);
    }
    std::vector<VdirEntry> others;
    for (VdirEntry& entry : folder.list())
        if (!takeUnread(entry))
            others.push_back(std::move(entry));
    std::sort(others.begin(), others.end(), [](const VdirEntry& a, const VdirEntry& b) { return a.name < b.name; });
    for (VdirEntry& entry : others)
        look(std::move(entry));
    if (!m_fresh.empty())
        settleFresh();
}

// Most files are as they were.
bool FolderScan::takeUnread(VdirEntry& entry)
{
    if (entry.left != nullptr || entry.look.empty())
        return false;
    const auto known = m_byFile.find(entry.name);
    if (known == m_byFile.end())
        return false;
    ScannedLink& link = m_links[static_cast<std::size_t>(known->second)];
    if (entry.look != link.link.look)
        return false;
    link.card.emplace();
    link.card->entry = std::move(entry);
    return true;
}

// First those whose file has kept its name, so that a copy of one does not take its place.
void FolderScan::settleFresh()
{
    for (std::size_t i = 0; i < m_links.size(); ++i)
        if (!m_links[i].link.uid.empty())
            m_byUid.emplace(m_links[i].link.uid, static_cast<int>(i));
    for (Fresh& fresh : m_fresh) {
        ScannedLink* const link = fresh.link < 0 ? nullptr : &m_links[static_cast<std::size_t>(fresh.link)];
        if (link == nullptr || !isFor(*link, fresh.card))
            continue;
        attach(*link, std::move(fresh.card));
        fresh.card.entry.name.clear();
    }
    for (Fresh& fresh : m_fresh)
        if (!fresh.card.entry.name.empty())
            settle(fresh);
}

void FolderScan::leave(const std::string& file, const char* why)
{
    SyncEvent event;
    event.kind = SyncEvent::Kind::Left;
    event.file = file;
    event.what = why;
    m_report.events.push_back(std::move(event));
    const auto known = m_byFile.find(file);
    if (known != m_byFile.end())
        m_links[static_cast<std::size_t>(known->second)].unknown = true;
}

void FolderScan::look(VdirEntry entry)
{
    if (entry.left != nullptr) {
        leave(entry.name, entry.left);
        return;
    }
    const auto known = m_byFile.find(entry.name);
    ScannedLink* const link = known == m_byFile.end() ? nullptr : &m_links[static_cast<std::size_t>(known->second)];
    const std::optional<std::string> octets = m_folder.read(entry.name);
    if (!octets) {
        if (m_folder.has(entry.name))
            leave(entry.name, "it cannot be read");
        return;
    }
    ScannedCard card;
    card.digest = sha256Of(*octets);
    const std::string& name = card.entry.name;
    card.entry = std::move(entry);
    if (link != nullptr && card.digest == link->link.remote) {
        card.uid = link->link.uid;
        attach(*link, std::move(card));
        return;
    }
    std::optional<Card> found = onlyCard(*octets);
    if (!found) {
        leave(name, "it does not hold one vCard");
        return;
    }
    if (isGroupCard(*found)) {
        m_groups.add(name, *octets, std::move(*found));
        return;
    }
    const CardView view = viewOf(*found);
    if (link == nullptr && view.empty()) {
        leave(name, "it has nothing that a field is meant for");
        return;
    }
    card.uid = uidOf(*found);
    card.values = view.content.content.values;
    m_fresh.push_back({std::move(card), link == nullptr ? -1 : known->second});
}

bool FolderScan::isFor(const ScannedLink& link, const ScannedCard& card) const
{
    return link.link.uid.empty() || card.uid.empty() || link.link.uid == card.uid;
}

void FolderScan::attach(ScannedLink& link, ScannedCard card)
{
    link.changed = card.digest != link.link.remote;
    link.card = std::move(card);
}

void FolderScan::settle(Fresh& fresh)
{
    const auto known = fresh.card.uid.empty() ? m_byUid.end() : m_byUid.find(fresh.card.uid);
    if (known == m_byUid.end()) {
        // The next of the same UID is a copy.
        if (!fresh.card.uid.empty())
            m_byUid.emplace(fresh.card.uid, -1);
        m_strangers.push_back(std::move(fresh.card));
        return;
    }
    ScannedLink* const link = known->second < 0 ? nullptr : &m_links[static_cast<std::size_t>(known->second)];
    if (link == nullptr || link->card || link->unknown) {
        leave(fresh.card.entry.name, "another file has the same UID");
        return;
    }
    attach(*link, std::move(fresh.card)); // it was given another name
}

} // namespace orva
