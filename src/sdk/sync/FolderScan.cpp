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
    for (SyncLink& link : links) {
        const int index = static_cast<int>(m_links.size());
        m_byFile.emplace(link.file, index);
        if (!link.uid.empty())
            m_byUid.emplace(link.uid, index);
        m_links.emplace_back();
        m_links.back().link = std::move(link);
    }
    for (const VdirEntry& entry : folder.list())
        look(entry);
    // First those whose file has kept its name, so that a copy of one does not take its place.
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

void FolderScan::look(const VdirEntry& entry)
{
    if (entry.left != nullptr) {
        leave(entry.name, entry.left);
        return;
    }
    const auto known = m_byFile.find(entry.name);
    ScannedLink* const link = known == m_byFile.end() ? nullptr : &m_links[static_cast<std::size_t>(known->second)];
    ScannedCard card;
    card.entry = entry;
    if (link != nullptr && !entry.look.empty() && entry.look == link->link.look) {
        card.digest = link->link.remote;
        card.uid = link->link.uid;
        attach(*link, std::move(card));
        return;
    }
    const std::optional<std::string> octets = m_folder.read(entry.name);
    if (!octets) {
        if (m_folder.has(entry.name))
            leave(entry.name, "it cannot be read");
        return;
    }
    card.digest = sha256Of(*octets);
    if (link != nullptr && card.digest == link->link.remote) {
        card.uid = link->link.uid;
        attach(*link, std::move(card));
        return;
    }
    std::optional<Card> found = onlyCard(*octets);
    if (!found) {
        leave(entry.name, "it does not hold one vCard");
        return;
    }
    if (isGroupCard(*found)) {
        m_groups.add(entry.name, *octets, std::move(*found));
        return;
    }
    const CardView view = viewOf(*found);
    if (link == nullptr && view.empty()) {
        leave(entry.name, "it has nothing that a field is meant for");
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
