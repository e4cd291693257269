// Synchroniser: what is to be done for one contact, and its doing.

#include <algorithm>
#include <ctime>
#include <utility>

#include "base/Sha256.h"
#include "base/Text.h"
#include "orva/orva_sync.h"
#include "sync/CardEditor.h"
#include "sync/Synchroniser.h"
#include "sync/Uid.h"
#include "vcard/CardWriter.h"

namespace orva
{

namespace
{

// So much is gathered for one transaction.
constexpr std::size_t tasksTogether = 200;
constexpr std::size_t octetsTogether = 16U << 20;

std::string octetsOf(const Card& card)
{
    std::string octets;
    appendCard(card, octets);
    return octets;
}

std::string nameOf(const SyncContent& content)
{
    return content.content.values.empty() ? std::string() : toUtf8(content.content.values.front());
}

// Groups as a link has them: with a tab before those that a card of a group holds.
std::string linkGroups(const std::vector<std::string>& all, const std::vector<std::string>& held)
{
    std::string lines;
    for (const std::string& group : all)
        lines += (std::find(held.begin(), held.end(), group) != held.end() ? "\t" : "") + group + '\n';
    return lines;
}

std::vector<std::string> heldAfter(std::vector<std::string> held, const MergedContact& merged)
{
    for (const std::string& group : merged.leaves)
        held.erase(std::remove(held.begin(), held.end(), group), held.end());
    held.insert(held.end(), merged.joins.begin(), merged.joins.end());
    return held;
}

SyncEvent conflictOf(const MergedContact& merged, const SyncContent& content, const SyncLink& link)
{
    SyncEvent event;
    event.kind = SyncEvent::Kind::Conflict;
    event.record = link.record;
    event.file = link.file;
    event.name = nameOf(content);
    for (const std::string& field : merged.conflicts)
        event.what += (event.what.empty() ? "" : ";") + field;
    event.hereWon = merged.hereWins;
    return event;
}

} // namespace

std::vector<std::string> groupsOfLink(const SyncLink& link)
{
    std::vector<std::string> groups = splitGroupLines(link.groups);
    for (std::string& group : groups)
        if (group[0] == '\t')
            group.erase(0, 1);
    return groups;
}

// The octets of a card as they were scanned; nothing if they have changed since.
std::optional<std::string> Synchroniser::read(const ScannedCard& card)
{
    std::optional<std::string> octets = m_folder->read(card.entry.name);
    if (!octets || sha256Of(*octets) != card.digest) {
        m_again = true;
        return std::nullopt;
    }
    return octets;
}

std::optional<Card> Synchroniser::baseOf(const SyncLink& link)
{
    return link.hasCard ? onlyCard(m_store.syncCard(m_identifier, link.record)) : std::nullopt;
}

// The last sync, which has written the link, is the least that is known of a record that changed after it.
long long Synchroniser::timeHere(const SyncLink& link)
{
    return std::max(m_store.changedAt(link.record), link.changed);
}

std::string Synchroniser::freeName(const SyncLink& link) const
{
    if (!link.file.empty() && !m_folder->has(link.file))
        return link.file;
    const std::string name = vdirName(link.uid);
    return m_folder->has(name) ? vdirName(newUid()) : name;
}

// A card without a record becomes one.
void Synchroniser::addHere(FolderScan& scan, const ScannedCard& card, int was)
{
    std::optional<std::string> octets = read(card);
    const std::optional<Card> found = octets ? onlyCard(*octets) : std::nullopt;
    if (!found)
        return;
    Task task;
    const std::vector<std::string> held = scan.groups().of(card.uid);
    SyncContent content = viewOf(*found).content;
    content.groups.insert(content.groups.end(), held.begin(), held.end());
    std::sort(content.groups.begin(), content.groups.end());
    content.groups.erase(std::unique(content.groups.begin(), content.groups.end()), content.groups.end());
    SyncLink& link = task.step.link;
    link.uid = card.uid;
    link.file = card.entry.name;
    link.look = card.entry.look;
    link.remote = card.digest;
    link.groups = linkGroups(content.groups, held);
    link.changed = std::time(nullptr);
    task.step.was = was;
    task.step.card = std::move(*octets);
    task.step.content = std::move(content);
    task.here = &SyncReport::addedHere;
    add(scan, std::move(task));
}

// A record without a card gets one.
void Synchroniser::addThere(FolderScan& scan, SyncLink link, const SyncContent& content, const std::string& expected)
{
    Task task;
    if (link.uid.empty())
        link.uid = newUid();
    SyncContent own = content;
    own.groups.clear();
    for (const std::string& group : content.groups) {
        const std::vector<std::string>& cards = scan.groups().paths();
        const bool hasCard = std::find(cards.begin(), cards.end(), group) != cards.end();
        (hasCard ? task.merged.joins : own.groups).push_back(group);
    }
    CardEditor editor(newCard(own));
    editor.setUid(link.uid);
    const long long changed = m_store.changedAt(link.record);
    editor.setRevision(changed != 0 ? changed : std::time(nullptr));
    link.file = freeName(link);
    link.groups = linkGroups(content.groups, heldAfter({}, task.merged));
    task.octets = octetsOf(editor.card());
    task.step.link = std::move(link);
    task.step.expected = expected;
    task.file = Task::File::Write;
    task.there = &SyncReport::addedThere;
    add(scan, std::move(task));
}

// A file that is gone comes back with what was changed here.
void Synchroniser::writeThere(FolderScan& scan, SyncLink link, const SyncContent& content, const Card& base)
{
    Task task;
    ContactSides sides;
    sides.base = &base;
    sides.baseGroups = groupsOfLink(link);
    sides.here = content;
    sides.there = base;
    sides.groupsThere = scan.groups().of(link.uid);
    sides.timeHere = timeHere(link);
    task.merged = mergeContact(sides, scan.groups().paths(), m_settings.region);
    task.step.expected = digestOf(content);
    if (link.uid.empty())
        link.uid = uidOf(base);
    link.file = freeName(link);
    link.groups = linkGroups(task.merged.here.groups, heldAfter(sides.groupsThere, task.merged));
    if (task.merged.changesHere)
        task.step.content = task.merged.here;
    task.octets = octetsOf(task.merged.there);
    task.step.link = std::move(link);
    task.file = Task::File::Write;
    task.there = &SyncReport::addedThere;
    add(scan, std::move(task));
}

void Synchroniser::merge(FolderScan& scan, SyncLink link, const SyncContent& content, const ScannedCard& card,
                         const std::optional<Card>& base, int was)
{
    std::optional<std::string> octets = read(card);
    std::optional<Card> found = octets ? onlyCard(*octets) : std::nullopt;
    if (!found)
        return;
    Task task;
    ContactSides sides;
    const std::string uid = card.uid.empty() ? link.uid : card.uid;
    sides.base = base ? &*base : nullptr;
    if (base)
        sides.baseGroups = groupsOfLink(link);
    sides.here = content;
    sides.there = std::move(*found);
    sides.groupsThere = scan.groups().of(uid);
    sides.timeHere = timeHere(link);
    const long long revision = revisionOf(sides.there);
    sides.timeThere = revision != 0 ? revision : card.entry.changed;
    task.merged = mergeContact(sides, scan.groups().paths(), m_settings.region);
    link.uid = uid;
    link.file = card.entry.name;
    link.look = card.entry.look;
    link.remote = card.digest;
    link.groups = linkGroups(task.merged.here.groups, heldAfter(sides.groupsThere, task.merged));
    if (!task.merged.conflicts.empty())
        task.events.push_back(conflictOf(task.merged, content, link));
    if (!task.merged.conflicts.empty() && task.merged.hereWins) {
        task.lost.emplace();
        task.lost->kind = SyncStep::Kind::Keep;
        task.lost->link.record = link.record;
        task.lost->content = viewOf(sides.there).content;
    }
    task.step.link = std::move(link);
    task.step.was = was;
    task.step.expected = digestOf(content);
    task.fileDigest = card.digest;
    task.octets = std::move(*octets);
    if (task.merged.changesHere) {
        task.step.content = task.merged.here;
        task.here = &SyncReport::changedHere;
    }
    if (task.merged.changesThere) {
        task.octets = octetsOf(task.merged.there);
        task.file = Task::File::Write;
        task.there = &SyncReport::changedThere;
    }
    task.step.card = task.file == Task::File::Write ? std::string() : std::move(task.octets);
    add(scan, std::move(task));
}

void Synchroniser::add(FolderScan& scan, Task task)
{
    if (task.file == Task::File::Write && task.octets.size() > largestCardFile) {
        SyncEvent event = leftFor(ORVA_SYNC_REASON_LARGE_CARD);
        event.record = task.step.link.record;
        event.file = task.step.link.file;
        m_report.events.push_back(std::move(event));
        return;
    }
    m_gathered += task.octets.size() + task.step.card.size();
    task.step.link.changed = std::time(nullptr);
    m_tasks.push_back(std::move(task));
    if (m_tasks.size() >= tasksTogether || m_gathered >= octetsTogether)
        flush(scan);
}

void Synchroniser::count(const Task& task)
{
    if (task.here != nullptr)
        ++(m_report.*task.here);
    if (task.there != nullptr)
        ++(m_report.*task.there);
    m_report.events.insert(m_report.events.end(), task.events.begin(), task.events.end());
}

// Files first, then the records with what is known of them now. What would be lost goes to the bin before either.
void Synchroniser::flush(FolderScan& scan)
{
    m_gathered = 0;
    std::vector<Task> tasks = std::move(m_tasks);
    m_tasks.clear();
    if (tasks.empty())
        return;
    if (m_settings.dryRun) {
        for (const Task& task : tasks)
            count(task);
        return;
    }
    std::vector<SyncStep> lost;
    for (Task& task : tasks) {
        if (task.lost)
            lost.push_back(std::move(*task.lost));
        for (const std::string& group : task.merged.joins)
            scan.groups().join(group, task.step.link.uid);
        for (const std::string& group : task.merged.leaves)
            scan.groups().leave(group, task.step.link.uid);
    }
    if (!lost.empty())
        m_store.applySync(m_identifier, lost, m_settings.capacity);
    m_again = !scan.groups().write(*m_folder) || m_again;
    std::vector<Task> written;
    bool wrote = false;
    for (Task& task : tasks) {
        wrote = wrote || task.file != Task::File::Leave;
        if (writeFile(task))
            written.push_back(std::move(task));
        else
            m_again = true;
    }
    if (wrote)
        m_folder->sync();
    settle(written);
}

// False if the file is not as it was read.
bool Synchroniser::writeFile(Task& task)
{
    if (task.file == Task::File::Leave)
        return true;
    const std::string& name = task.step.link.file;
    const std::optional<std::string> now = m_folder->read(name);
    if ((now ? sha256Of(*now) : std::string()) != task.fileDigest || (!now && m_folder->has(name)))
        return false;
    if (task.file == Task::File::Remove) {
        m_folder->remove(name);
        return true;
    }
    m_folder->write(name, task.octets);
    task.step.link.remote = sha256Of(task.octets);
    task.step.link.look.clear();
    task.step.card = std::move(task.octets);
    return true;
}

void Synchroniser::settle(std::vector<Task>& tasks)
{
    std::vector<SyncStep> steps;
    steps.reserve(tasks.size());
    for (Task& task : tasks)
        steps.push_back(std::move(task.step));
    if (steps.empty())
        return;
    m_store.applySync(m_identifier, steps, m_settings.capacity);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].done) {
            count(tasks[i]);
        } else if (steps[i].failure == ORVA_E_FULL) {
            SyncEvent event = leftFor(ORVA_SYNC_REASON_FULL);
            event.file = steps[i].link.file;
            event.name = steps[i].content ? nameOf(*steps[i].content) : std::string();
            m_report.events.push_back(std::move(event));
        } else {
            m_again = true;
        }
    }
}

} // namespace orva
