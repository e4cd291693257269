#include "sync/Synchroniser.h"

#include <algorithm>
#include <utility>

#include "base/Files.h"
#include "orva/orva_sync.h"
#include "sync/Pairing.h"
#include "sync/Uid.h"

namespace orva
{

namespace
{

// How often a sync begins anew when somebody else writes meanwhile.
constexpr int passesAtMost = 5;

// More than so many deletions, and more than this part of a side, are no deletions but an accident.
constexpr int deletionsUnasked = 10;
constexpr int deletionsPart = 5; // one in so many

std::vector<std::string> heldGroups(const std::string& lines)
{
    std::vector<std::string> held;
    for (const std::string& group : splitGroupLines(lines))
        if (group[0] == '\t')
            held.push_back(group.substr(1));
    return held;
}

// How many of those known have a record.
int countPresent(FolderScan& scan)
{
    return scan.quiet() + static_cast<int>(std::count_if(scan.links().begin(), scan.links().end(),
                                                         [](const ScannedLink& link) { return !link.link.gone; }));
}

bool tooMany(int gone, int all)
{
    return gone > deletionsUnasked && gone * deletionsPart > all;
}

} // namespace

Synchroniser::Synchroniser(Store& store, std::string path, SyncSettings settings)
    : m_store(store), m_path(std::move(path)), m_settings(std::move(settings))
{
}

void Synchroniser::openFolder()
{
    const std::string known = m_store.syncFolderAt(m_path);
    if (known.empty() && !fileExists(m_path) && !m_settings.dryRun)
        m_path = preparePrivateFolder(m_path);
    try {
        m_folder.emplace(m_path);
    } catch (const Failure& failure) {
        if (failure.code() == ORVA_E_NOT_FOUND && !known.empty())
            throw Failure(ORVA_E_MARKER, "the folder of the last sync is not there");
        throw;
    }
    m_identifier = m_folder->marker();
    if (m_identifier.empty() && !known.empty() && !m_settings.force)
        throw Failure(ORVA_E_MARKER, "the folder has lost the marker of the last sync");
    if (m_settings.dryRun) {
        m_identifier = m_identifier.empty() ? known : m_identifier;
        return;
    }
    if (!m_folder->lockMarker())
        throw Failure(ORVA_E_BUSY, "another sync has the folder");
    m_identifier = m_folder->marker();
    if (m_identifier.empty()) {
        m_identifier = known.empty() ? newIdentifier() : known;
        m_folder->writeMarker(m_identifier);
    }
    if (known != m_identifier)
        m_store.rememberSyncFolder(m_identifier, m_path);
}

SyncReport Synchroniser::run()
{
    openFolder();
    for (int passes = 0; passes < passesAtMost; ++passes) {
        m_report.events.clear();
        m_report.heldHere = m_report.heldThere = 0;
        if (!pass())
            break;
    }
    return std::move(m_report);
}

// One look at everything; true if something could not be settled since somebody wrote meanwhile.
bool Synchroniser::pass()
{
    m_again = false;
    FolderScan scan(*m_folder, m_store, m_identifier, m_report);
    m_present = countPresent(scan);
    if (m_present != m_store.size()) {
        scan.addGone();
        m_present = countPresent(scan);
    }
    if (scan.isStale())
        return true;
    const bool first = scan.quiet() == 0 && std::none_of(scan.links().begin(), scan.links().end(),
                                                         [](const ScannedLink& link) { return link.link.hasCard; });
    if ((first || m_settings.force) && !m_settings.dryRun && !std::exchange(m_backedUp, true) && m_settings.backUp)
        m_settings.backUp();
    countGone(scan);
    settleStrangers(scan);
    for (ScannedLink& link : scan.links())
        settleLink(scan, link);
    flush(scan);
    return m_again;
}

void Synchroniser::countGone(FolderScan& scan)
{
    int all = scan.quiet();
    int here = 0;
    int there = 0;
    for (const ScannedLink& link : scan.links()) {
        all += link.link.hasCard ? 1 : 0;
        if (!link.link.hasCard || link.unknown)
            continue;
        here += link.link.gone && !link.link.doubtful && link.card ? 1 : 0;
        there += !link.link.gone && !link.card ? 1 : 0;
    }
    m_holdThere = !m_settings.force && tooMany(here, all);
    m_holdHere = !m_settings.force && tooMany(there, all);
}

void Synchroniser::settleLink(FolderScan& scan, ScannedLink& link)
{
    if (link.unknown || link.link.record == 0)
        return;
    if (link.link.gone)
        settleGone(scan, link);
    else if (!link.card)
        settleAbsent(scan, link);
    else
        settleBoth(scan, link);
}

// The record is gone.
void Synchroniser::settleGone(FolderScan& scan, ScannedLink& link)
{
    Task task;
    task.step.kind = SyncStep::Kind::Forget;
    task.step.link = link.link;
    if (!link.card) {
        add(scan, std::move(task));
        return;
    }
    link.complete();
    if (!link.link.hasCard || link.link.doubtful) {
        addHere(scan, *link.card, link.link.record);
        return;
    }
    if (link.changed) {
        const std::optional<std::string> octets = read(*link.card);
        const std::optional<Card> card = octets ? onlyCard(*octets) : std::nullopt;
        const std::optional<Card> base = baseOf(link.link);
        if (!card)
            return;
        if (!base || !sameContent(viewOf(*card).content, viewOf(*base).content)) {
            addHere(scan, *link.card, link.link.record); // changed there: the change counts
            return;
        }
    }
    if (m_holdThere) {
        ++m_report.heldThere;
        return;
    }
    task.file = Task::File::Remove;
    task.fileDigest = link.card->digest;
    task.step.link.file = link.card->entry.name;
    task.there = &SyncReport::deletedThere;
    for (const std::string& group : scan.groups().of(link.link.uid))
        task.merged.leaves.push_back(group);
    add(scan, std::move(task));
}

// The file is gone.
void Synchroniser::settleAbsent(FolderScan& scan, ScannedLink& link)
{
    const std::optional<SyncContent> content = m_store.syncContent(link.link.record);
    if (!content) {
        m_again = true;
        return;
    }
    const std::string digest = digestOf(*content);
    const std::optional<Card> base = baseOf(link.link);
    if (!base) {
        addThere(scan, link.link, *content, digest);
        return;
    }
    if (digest != link.link.local) {
        SyncContent was = viewOf(*base).content;
        was.groups = groupsOfLink(link.link);
        if (!sameContent(was, *content)) {
            writeThere(scan, link.link, *content, *base); // changed here: the change counts
            return;
        }
    }
    if (m_holdHere) {
        ++m_report.heldHere;
        return;
    }
    Task task;
    task.step.kind = SyncStep::Kind::Erase;
    task.step.link = link.link;
    task.step.expected = digest;
    task.here = &SyncReport::deletedHere;
    add(scan, std::move(task));
}

void Synchroniser::settleBoth(FolderScan& scan, ScannedLink& link)
{
    const bool looked = link.link.touched || link.link.doubtful;
    const bool grouped = !scan.groups().isEmpty() || link.link.groups.find('\t') != std::string::npos;
    const bool moved = grouped && scan.groups().of(link.link.uid) != heldGroups(link.link.groups);
    if (link.link.hasCard && !link.changed && !looked && !moved) {
        noteLook(link, std::string());
        return;
    }
    link.complete();
    const std::optional<SyncContent> content = m_store.syncContent(link.link.record);
    if (!content) {
        m_again = true;
        return;
    }
    const std::string digest = digestOf(*content);
    if (link.link.hasCard && !link.changed && !moved && digest == link.link.local) {
        noteLook(link, digest);
        return;
    }
    std::optional<Card> base = baseOf(link.link);
    // What damage has taken from a record must not be taken for a change.
    if (link.link.doubtful && digest != link.link.local)
        base.reset();
    merge(scan, link.link, *content, *link.card, base);
}

void Synchroniser::noteLook(const ScannedLink& link, const std::string& expected)
{
    const VdirEntry& entry = link.card->entry;
    if (m_settings.dryRun || (expected.empty() && entry.look == link.link.look && entry.name == link.link.file))
        return;
    Task task;
    task.step.kind = SyncStep::Kind::Look;
    task.step.link = link.link;
    task.step.link.look = entry.look;
    task.step.link.file = entry.name;
    task.step.expected = expected;
    m_tasks.push_back(std::move(task));
}

// Who of the records without a link is who of the cards without one; the rest are new.
void Synchroniser::settleStrangers(FolderScan& scan)
{
    std::vector<SyncLink> records;
    std::vector<SyncContent> contents;
    std::vector<Unpaired> here;
    // Mostly everybody has one, and nobody has to be looked for.
    const bool all = m_present == m_store.size();
    for (SyncLink& record : all ? std::vector<SyncLink>() : m_store.recordsWithoutLink(m_identifier)) {
        std::optional<SyncContent> content = m_store.syncContent(record.record);
        if (!content || takeBack(scan, record, *content))
            continue;
        here.push_back({record.uid, content->content.values});
        records.push_back(std::move(record));
        contents.push_back(std::move(*content));
    }
    std::vector<Unpaired> there;
    for (const ScannedCard& card : scan.strangers())
        there.push_back({card.uid, card.values});
    std::vector<bool> paired(records.size());
    std::vector<bool> known(there.size());
    for (const auto& pair : pairUp(here, there, m_settings.region)) {
        const auto one = static_cast<std::size_t>(pair.first);
        const auto other = static_cast<std::size_t>(pair.second);
        paired[one] = known[other] = true;
        records[one].changed = 0;
        merge(scan, records[one], contents[one], scan.strangers()[other], std::nullopt);
    }
    for (std::size_t i = 0; i < known.size(); ++i)
        if (!known[i])
            addHere(scan, scan.strangers()[i], 0);
    std::vector<SyncLink> added;
    std::vector<SyncContent> addedContents;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (paired[i])
            continue;
        added.push_back(std::move(records[i]));
        addedContents.push_back(std::move(contents[i]));
    }
    reserve(scan, added, addedContents);
}

// A record that was deleted and came back out of the bin is who it was.
bool Synchroniser::takeBack(FolderScan& scan, const SyncLink& record, const SyncContent& content)
{
    const std::string digest = digestOf(content);
    for (ScannedLink& link : scan.links()) {
        if (!link.link.gone || !link.card || link.unknown || link.link.local != digest || link.link.record == 0)
            continue;
        link.complete();
        const int was = std::exchange(link.link.record, 0);
        SyncLink taken = link.link;
        taken.record = record.record;
        merge(scan, taken, content, *link.card, onlyCard(m_store.syncCard(m_identifier, was)), was);
        return true;
    }
    return false;
}

// Gives new contacts their UIDs and file names before any file is written, so that a sync that breaks off finds them.
void Synchroniser::reserve(FolderScan& scan, std::vector<SyncLink>& records, const std::vector<SyncContent>& contents)
{
    if (records.empty())
        return;
    std::vector<SyncStep> steps;
    for (std::size_t i = 0; i < records.size(); ++i) {
        SyncLink& link = records[i];
        if (link.uid.empty())
            link.uid = newUid();
        link.file = vdirName(link.uid);
        if (m_folder->has(link.file))
            link.file = vdirName(newUid());
        steps.emplace_back();
        steps.back().kind = SyncStep::Kind::Reserve;
        steps.back().link = link;
        steps.back().expected = digestOf(contents[i]);
    }
    if (!m_settings.dryRun)
        m_store.applySync(m_identifier, steps, m_settings.capacity);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (!steps[i].done && !m_settings.dryRun)
            m_again = true;
        else
            addThere(scan, records[i], contents[i], steps[i].expected);
    }
}

} // namespace orva
