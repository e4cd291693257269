#include "support/modem/Storage.h"

#include "support/modem/Answer.h"
#include "support/modem/Text.h"

namespace modemsim
{

static const char numberCharacters[] = "0123456789+*#pPwW,?ABCabc";

Storage::Storage(const StoragePlan& plan) : m_plan(plan)
{
    for (const Entry& entry : plan.entries)
        put(entry);
    m_plan.entries.clear();
}

bool Storage::onCard() const
{
    return m_plan.name == "SM" || m_plan.name == "FD" || m_plan.name == "ON";
}

int Storage::lastUsed() const
{
    return m_entries.empty() ? 0 : m_entries.rbegin()->first;
}

int Storage::firstFree() const
{
    for (int location = 1; location <= m_plan.total; ++location) {
        if (m_entries.count(location) == 0)
            return location;
    }
    return 0;
}

const Entry* Storage::find(int location) const
{
    const auto found = m_entries.find(location);
    return found == m_entries.end() ? nullptr : &found->second;
}

std::vector<Entry> Storage::entries() const
{
    std::vector<Entry> all;
    for (const auto& [location, entry] : m_entries)
        all.push_back(entry);
    return all;
}

void Storage::put(const Entry& entry)
{
    m_entries[entry.location] = entry;
}

bool Storage::remove(int location)
{
    return m_entries.erase(location) != 0;
}

int Storage::units(const std::string& name, const Quirks& quirks) const
{
    const std::u32string text = fromUtf8(name);
    return static_cast<int>(onCard() && !quirks.has("text_units") ? toAlpha(text).size() : toUtf16(text).size());
}

int Storage::fit(Entry& entry, const Quirks& quirks) const
{
    if (entry.number.find_first_not_of(numberCharacters) != std::string::npos) {
        if (!quirks.has("drop_characters"))
            return NumberInvalid;
        std::string kept;
        for (const char c : entry.number)
            kept += std::string(numberCharacters).find(c) == std::string::npos ? std::string() : std::string(1, c);
        entry.number = kept;
    }
    const bool plus = !entry.number.empty() && entry.number[0] == '+';
    if (static_cast<int>(entry.number.size()) - (plus ? 1 : 0) > m_plan.numberLength)
        return NumberTooLong;
    if (onCard() && entry.number.size() > 20 + (plus ? 1 : 0) && quirks.has("ext_full"))
        return MemoryFull;
    while (units(entry.name, quirks) > m_plan.textLength) {
        if (!quirks.has("truncate"))
            return TextTooLong;
        std::u32string text = fromUtf8(entry.name);
        text.pop_back();
        entry.name = toUtf8(text);
    }
    return 0;
}

} // namespace modemsim
