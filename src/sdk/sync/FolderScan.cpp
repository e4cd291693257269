#include "sync/FolderScan.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <unordered_set>
#include <utility>

#include "base/Sha256.h"
#include "orva/orva_sync.h"
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

LooksByFile::LooksByFile(const SyncLooks& looks) : m_looks(looks)
{
    std::size_t slots = 16;
    while (slots < 2 * looks.size())
        slots *= 2;
    m_slots.resize(slots);
    for (SyncLooks::Place place = 0; place < looks.end(); place = looks.next(place)) {
        const std::size_t hash = hashOf(looks[place].file);
        std::size_t slot = hash & (slots - 1);
        while (m_slots[slot].place != none)
            slot = (slot + 1) & (slots - 1);
        m_slots[slot] = {static_cast<std::uint32_t>(hash >> 32), place};
    }
}

std::size_t LooksByFile::begin(std::string_view file) const
{
    const std::size_t hash = hashOf(file);
    __builtin_prefetch(&m_slots[hash & (m_slots.size() - 1)]);
    return hash;
}

// Of the first that can be it, which mostly is.
void LooksByFile::fetch(std::size_t hash) const
{
    const Slot& at = m_slots[hash & (m_slots.size() - 1)];
    if (at.place != none)
        m_looks.fetch(at.place);
}

SyncLooks::Place LooksByFile::find(std::string_view file, std::size_t hash) const
{
    for (std::size_t slot = hash & (m_slots.size() - 1);; slot = (slot + 1) & (m_slots.size() - 1)) {
        const Slot& at = m_slots[slot];
        if (at.place == none)
            return none;
        if (at.hash == static_cast<std::uint32_t>(hash >> 32) && m_looks[at.place].file == file)
            return at.place;
    }
}

FolderScan::FolderScan(const VdirFolder& folder, Store& store, const std::string& identifier, SyncReport& report)
    : m_folder(folder),
      m_store(store),
      m_identifier(identifier),
      m_report(report),
      m_looks(store.syncLooks(identifier)),
      m_byFile(m_looks),
      m_quietAt(m_looks.end())
{
    std::vector<VdirEntry> others;
    for (VdirEntry& entry : folder.list([this](std::vector<VdirFolder::Listed>& files) { markQuiet(files); }))
        if (!takeUnread(entry))
            others.push_back(std::move(entry));
    std::sort(others.begin(), others.end(), [](const VdirEntry& a, const VdirEntry& b) { return a.name < b.name; });
    for (VdirEntry& entry : others)
        look(std::move(entry));
    if (m_quiet < static_cast<int>(m_looks.size()))
        for (Place place = 0; place < m_looks.end(); place = m_looks.next(place))
            if (!m_quietAt[place])
                link(place);
    if (!m_groups.isEmpty())
        lookAtMembers();
    if (!m_fresh.empty())
        settleFresh();
    sort();
}

// Most files are as they were.
void FolderScan::markQuiet(std::vector<VdirFolder::Listed>& files)
{
    m_hashes.clear();
    for (const VdirFolder::Listed& file : files)
        m_hashes.push_back(m_byFile.begin(file.name));
    for (const std::size_t hash : m_hashes)
        m_byFile.fetch(hash);
    for (std::size_t i = 0; i < files.size(); ++i)
        files[i].known = isQuiet(m_byFile.find(files[i].name, m_hashes[i]), files[i].look);
}

bool FolderScan::isQuiet(Place place, std::string_view look)
{
    if (place == LooksByFile::none || m_quietAt[place])
        return false;
    const SyncLook known = m_looks[place];
    if (!known.settled || known.look != look)
        return false;
    m_quietAt[place] = true;
    ++m_quiet;
    return true;
}

// The one at a place, with all that is known of it; null for no place and for one that is not there any more.
ScannedLink* FolderScan::link(Place place)
{
    if (place == LooksByFile::none)
        return nullptr;
    const auto found = m_found.find(place);
    if (found != m_found.end())
        return found->second;
    std::optional<SyncLink> link = m_store.syncLink(m_identifier, m_looks[place].record);
    m_stale = m_stale || !link;
    if (!link)
        return nullptr;
    m_links.emplace_back();
    m_links.back().link = std::move(*link);
    m_quiet -= m_quietAt[place] ? 1 : 0;
    m_quietAt[place] = false;
    m_found.emplace(place, &m_links.back());
    return &m_links.back();
}

void FolderScan::addGone()
{
    std::unordered_set<int> linked;
    for (const ScannedLink& known : m_links)
        linked.insert(known.link.record);
    std::unordered_set<int> gone;
    for (const int record : m_store.linksWithoutRecord(m_identifier))
        if (linked.count(record) == 0)
            gone.insert(record);
    for (Place place = 0; !gone.empty() && place < m_looks.end(); place = m_looks.next(place)) {
        if (!m_quietAt[place] || gone.count(m_looks[place].record) == 0)
            continue;
        ScannedLink* const found = link(place);
        std::optional<VdirEntry> entry = m_folder.entry(std::string(m_looks[place].file));
        m_stale = m_stale || !entry || entry->look != m_looks[place].look;
        if (found != nullptr && entry)
            takeUnread(*entry);
    }
    sort();
}

// By their records. They move, so none is found by its place afterwards.
void FolderScan::sort()
{
    std::sort(m_links.begin(), m_links.end(),
              [](const ScannedLink& a, const ScannedLink& b) { return a.link.record < b.link.record; });
}

// One whose look is that of the link, but for whom something else has to be looked at.
bool FolderScan::takeUnread(VdirEntry& entry)
{
    if (entry.left != ORVA_SYNC_REASON_NONE || entry.look.empty())
        return false;
    ScannedLink* const known = linkOf(entry.name);
    if (known == nullptr || known->card || entry.look != known->link.look)
        return false;
    known->card.emplace();
    known->card->entry = std::move(entry);
    return true;
}

// Who has come into a group by the group's card.
void FolderScan::lookAtMembers()
{
    readUids();
    for (const auto& [uid, place] : m_uids) {
        if (!m_quietAt[place] || m_groups.of(uid).empty())
            continue;
        std::optional<VdirEntry> entry = m_folder.entry(std::string(m_looks[place].file));
        if (!entry || link(place) == nullptr || !takeUnread(*entry))
            m_stale = true;
    }
}

// Most syncs look for nobody by a UID.
void FolderScan::readUids()
{
    if (std::exchange(m_uidsRead, true))
        return;
    std::unordered_map<int, Place> places;
    for (Place place = 0; place < m_looks.end(); place = m_looks.next(place))
        places.emplace(m_looks[place].record, place);
    for (auto& [record, uid] : m_store.syncUids(m_identifier)) {
        const auto known = places.find(record);
        if (known != places.end())
            m_uids.emplace_back(std::move(uid), known->second);
        else
            m_stale = true;
    }
    m_stale = m_stale || m_uids.size() != m_looks.size();
}

// First those whose file has kept its name, so that a copy of one does not take its place.
void FolderScan::settleFresh()
{
    for (Fresh& fresh : m_fresh) {
        ScannedLink* const known = link(fresh.place);
        if (known == nullptr || !isFor(*known, fresh.card))
            continue;
        attach(*known, std::move(fresh.card));
        fresh.card.entry.name.clear();
    }
    for (Fresh& fresh : m_fresh)
        if (!fresh.card.entry.name.empty())
            settle(fresh);
}

void FolderScan::leave(const std::string& file, int reason)
{
    SyncEvent event = leftFor(reason);
    event.file = file;
    m_report.events.push_back(std::move(event));
    if (ScannedLink* const known = linkOf(file))
        known->unknown = true;
}

void FolderScan::look(VdirEntry entry)
{
    if (entry.left != ORVA_SYNC_REASON_NONE) {
        leave(entry.name, entry.left);
        return;
    }
    const Place place = m_byFile.find(entry.name);
    ScannedLink* const known = link(place);
    const std::optional<std::string> octets = m_folder.read(entry.name);
    if (!octets) {
        if (m_folder.has(entry.name))
            leave(entry.name, ORVA_SYNC_REASON_UNREADABLE);
        return;
    }
    ScannedCard card;
    card.digest = sha256Of(*octets);
    const std::string& name = card.entry.name;
    card.entry = std::move(entry);
    if (known != nullptr && card.digest == known->link.remote) {
        card.uid = known->link.uid;
        attach(*known, std::move(card));
        return;
    }
    std::optional<Card> found = onlyCard(*octets);
    if (!found) {
        leave(name, ORVA_SYNC_REASON_NO_CARD);
        return;
    }
    if (isGroupCard(*found)) {
        m_groups.add(name, *octets, std::move(*found));
        return;
    }
    const CardView view = viewOf(*found);
    if (known == nullptr && view.empty()) {
        leave(name, ORVA_SYNC_REASON_EMPTY);
        return;
    }
    card.uid = uidOf(*found);
    card.values = view.content.content.values;
    m_fresh.push_back({std::move(card), place});
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
    if (m_byUid.empty()) {
        readUids();
        for (const auto& [uid, place] : m_uids)
            if (!uid.empty())
                m_byUid.emplace(uid, place);
    }
    const auto known = fresh.card.uid.empty() ? m_byUid.end() : m_byUid.find(fresh.card.uid);
    if (known == m_byUid.end()) {
        // The next of the same UID is a copy.
        if (!fresh.card.uid.empty())
            m_byUid.emplace(fresh.card.uid, LooksByFile::none);
        m_strangers.push_back(std::move(fresh.card));
        return;
    }
    const bool quiet = known->second != LooksByFile::none && m_quietAt[known->second];
    ScannedLink* const holder = quiet ? nullptr : link(known->second);
    if (holder == nullptr || holder->card || holder->unknown) {
        leave(fresh.card.entry.name, ORVA_SYNC_REASON_COPY);
        return;
    }
    attach(*holder, std::move(fresh.card)); // it was given another name
}

} // namespace orva
