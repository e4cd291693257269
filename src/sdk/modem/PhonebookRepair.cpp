#include "modem/PhonebookRepair.h"

#include <algorithm>

#include "base/Log.h"

namespace orva
{

namespace
{

constexpr int attempts = 12;

bool sameAt(const Listing& a, const Listing& b, int location)
{
    const auto one = a.find(location);
    const auto other = b.find(location);
    if (one == a.end() || other == b.end())
        return one == a.end() && other == b.end();
    return one->second.sameContent(other->second);
}

std::set<int> differences(const Listing& a, const Listing& b)
{
    std::set<int> found;
    for (const Listing* const listing : {&a, &b}) {
        for (const auto& [location, entry] : *listing) {
            if (!sameAt(a, b, location))
                found.insert(location);
        }
    }
    return found;
}

} // namespace

Listing listingOf(const std::vector<PhonebookEntry>& entries)
{
    Listing listing;
    for (const PhonebookEntry& entry : entries)
        listing[entry.location] = entry;
    return listing;
}

std::set<int> strayLocations(const Listing& before, const Listing& now, int asked, const PhonebookEntry* entry)
{
    std::set<int> found;
    if (entry == nullptr && now.count(asked) == 0)
        return found;
    for (const int location : differences(before, now)) {
        const auto there = now.find(location);
        const bool ours =
            entry == nullptr ? there == now.end() : there != now.end() && there->second.sameContent(*entry);
        if (location != asked && ours)
            found.insert(location);
    }
    return found;
}

bool PhonebookRepair::asWanted(const Listing& now, int location) const
{
    return sameAt(now, m_wanted, location);
}

// The range is a ring: behind the last location some go on with the first.
int PhonebookRepair::within(int location) const
{
    const int length = m_storage.last - m_storage.first + 1;
    return m_storage.first + ((location - m_storage.first) % length + length) % length;
}

// One command for `asked` with what is meant for another location. What comes of it the list tells.
void PhonebookRepair::command(int asked, int meant, const Listing& now)
{
    try {
        const auto wanted = m_wanted.find(meant);
        if (wanted == m_wanted.end()) {
            m_book.erase(m_storage, asked);
            return;
        }
        PhonebookEntry entry = wanted->second;
        entry.location = asked;
        const auto there = now.find(asked);
        m_book.write(m_storage, entry,
                     there == now.end() ? std::nullopt : std::optional<PhonebookEntry>(there->second));
    } catch (const PortGone&) {
        throw;
    } catch (const Failure& failure) {
        logFormat("%s, location %d: %s", m_storage.name.c_str(), asked, failure.what());
    }
}

// False if there is nothing to be learnt, and nothing else to be tried.
bool PhonebookRepair::learn(const Listing& before, const Listing& after, int asked, bool erasing)
{
    int& shift = erasing ? m_eraseShift : m_writeShift;
    const std::set<int> hit = differences(before, after);
    m_touched.insert(hit.begin(), hit.end());
    if (!hit.empty()) {
        shift = *hit.begin() - asked;
        return true;
    }
    // An empty location that was hit does not show; then erasing goes where writing goes.
    if (!erasing || m_eraseShift == m_writeShift)
        return false;
    m_eraseShift = m_writeShift;
    return true;
}

bool PhonebookRepair::putBack(Listing now, int asked, const std::set<int>& hit, bool erased)
{
    m_touched = hit;
    m_touched.insert(asked);
    m_writeShift = *hit.begin() - asked;
    m_eraseShift = erased ? m_writeShift : 0;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto wrong =
            std::find_if(m_touched.begin(), m_touched.end(), [&](int location) { return !asWanted(now, location); });
        if (wrong == m_touched.end())
            return true;
        const int meant = *wrong;
        const bool erasing = m_wanted.count(meant) == 0;
        const int aim = within(meant - (erasing ? m_eraseShift : m_writeShift));
        command(aim, meant, now);
        const Listing after = listingOf(m_book.readAll(m_storage));
        if (!asWanted(after, meant) && !learn(now, after, aim, erasing))
            return false;
        now = after;
    }
    return false;
}

} // namespace orva
