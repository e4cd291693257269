#include "modem/EntryTable.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "base/Files.h"
#include "base/Log.h"
#include "base/Text.h"

namespace orva
{

namespace
{

constexpr std::size_t fileLimit = 4 * 1024 * 1024;
constexpr int reservation = 64;

std::uint64_t digest(std::string_view text)
{
    std::uint64_t value = 0xCBF29CE484222325ULL;
    for (const char c : text)
        value = (value ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
    return value;
}

} // namespace

int Identifiers::next()
{
    if (m_next == m_reserved)
        reserve();
    return m_next++;
}

void Identifiers::reserve()
{
    if (m_next == 0)
        m_next = 1;
    m_reserved = m_next + reservation;
    if (m_folder.empty())
        return;
    try {
        preparePrivateFolder(m_folder);
        FileLock turn(m_folder + "/identifiers.lock");
        turn.lock();
        // Another process may have gone further meanwhile.
        m_next = std::max(m_next, std::atoi(readSmallFile(m_folder + "/identifiers", 64).c_str()));
        m_reserved = m_next + reservation;
        replacePrivateFile(m_folder + "/identifiers", std::to_string(m_reserved) + "\n");
    } catch (const std::exception& failure) {
        logFormat("keeping the identifiers of a modem's entries: %s", failure.what());
    }
}

std::string EntryTable::path() const
{
    return m_folder + "/" + m_key;
}

std::map<int, EntryTable::Kept> EntryTable::readKept() const
{
    std::map<int, Kept> kept;
    if (m_key.empty() || m_folder.empty())
        return kept;
    std::istringstream lines(readSmallFile(path(), fileLimit));
    Kept one;
    int location = 0;
    while (lines >> std::dec >> location >> one.id >> std::hex >> one.alpha >> one.number)
        kept[location] = one;
    return kept;
}

void EntryTable::keep() const
{
    if (m_key.empty() || m_folder.empty())
        return;
    std::ostringstream lines;
    for (const auto& [location, id] : m_ids) {
        const PhonebookEntry& entry = m_entries.at(id);
        lines << std::dec << location << ' ' << id << ' ' << std::hex << digest(toUtf8(entry.alpha)) << ' '
              << digest(entry.number) << '\n';
    }
    try {
        preparePrivateFolder(m_folder);
        replacePrivateFile(path(), lines.str());
    } catch (const std::exception& failure) {
        logFormat("keeping the identifiers of a modem's entries: %s", failure.what());
    }
}

bool EntryTable::take(const std::string& key, const std::vector<PhonebookEntry>& entries)
{
    std::map<int, Kept> kept;
    if (key == m_key && !m_ids.empty()) {
        for (const auto& [location, id] : m_ids)
            kept[location] = {id, digest(toUtf8(m_entries.at(id).alpha)), digest(m_entries.at(id).number)};
    } else {
        m_key = key;
        kept = readKept();
    }
    std::map<int, PhonebookEntry> taken;
    std::map<int, int> ids;
    for (const PhonebookEntry& entry : entries) {
        const auto found = kept.find(entry.location);
        const bool same = found != kept.end() && (found->second.alpha == digest(toUtf8(entry.alpha)) ||
                                                  found->second.number == digest(entry.number));
        const int id = same && taken.count(found->second.id) == 0 ? found->second.id : m_identifiers.next();
        taken[id] = entry;
        ids[entry.location] = id;
    }
    const bool changed =
        ids != m_ids || !std::equal(taken.begin(), taken.end(), m_entries.begin(), m_entries.end(),
                                    [](const auto& a, const auto& b) { return a.second.sameContent(b.second); });
    m_entries = std::move(taken);
    m_ids = std::move(ids);
    keep();
    return changed;
}

void EntryTable::clear()
{
    m_key.clear();
    m_entries.clear();
    m_ids.clear();
}

const PhonebookEntry* EntryTable::find(int id) const
{
    const auto found = m_entries.find(id);
    return found == m_entries.end() ? nullptr : &found->second;
}

int EntryTable::idAt(int location) const
{
    const auto found = m_ids.find(location);
    return found == m_ids.end() ? 0 : found->second;
}

int EntryTable::freeLocation(int first, int last) const
{
    for (int location = first; location <= last; ++location) {
        if (m_ids.count(location) == 0)
            return location;
    }
    return -1;
}

int EntryTable::add(const PhonebookEntry& entry)
{
    const int id = m_identifiers.next();
    m_entries[id] = entry;
    m_ids[entry.location] = id;
    keep();
    return id;
}

void EntryTable::replace(int id, const PhonebookEntry& entry)
{
    m_entries[id] = entry;
    keep();
}

void EntryTable::erase(int id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    m_ids.erase(found->second.location);
    m_entries.erase(found);
    keep();
}

void EntryTable::notice(const PhonebookEntry& entry)
{
    const int id = idAt(entry.location);
    const bool empty = entry.alpha.empty() && entry.number.empty();
    if (id != 0 && !empty && (m_entries[id].alpha == entry.alpha || m_entries[id].number == entry.number)) {
        replace(id, entry);
        return;
    }
    erase(id);
    if (!empty)
        add(entry);
}

} // namespace orva
