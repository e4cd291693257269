#include "care/Matcher.h"

#include <algorithm>
#include <utility>

#include "care/ContactKeys.h"

namespace orva
{

Matcher::Matcher(const Profile& profile, std::string region) : m_profile(profile), m_region(std::move(region)) {}

void Matcher::add(int id, const Values& values)
{
    const ContactKeys keys = contactKeys(m_profile, m_region, values);
    const std::size_t contact = m_ids.size();
    m_ids.push_back(id);
    for (const std::string& key : keys.person)
        m_persons.emplace(key, contact);
    if (!keys.whole.empty())
        m_wholes.emplace(keys.whole, contact);
}

int Matcher::find(const Values& values) const
{
    const ContactKeys keys = contactKeys(m_profile, m_region, values);
    const auto whole = m_wholes.find(keys.whole);
    if (whole != m_wholes.end())
        return m_ids[whole->second];
    std::size_t first = m_ids.size();
    for (const std::string& key : keys.person) {
        const auto found = m_persons.find(key);
        if (found != m_persons.end())
            first = std::min(first, found->second);
    }
    return first == m_ids.size() ? 0 : m_ids[first];
}

} // namespace orva
