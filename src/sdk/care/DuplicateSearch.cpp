#include "care/DuplicateSearch.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "care/ContactKeys.h"

namespace orva
{

DuplicateSearch::DuplicateSearch(const Profile& profile, std::string region)
    : m_profile(profile), m_region(std::move(region))
{
}

void DuplicateSearch::add(int id, const Values& values)
{
    const ContactKeys keys = contactKeys(m_profile, m_region, values);
    m_parents.push_back(m_ids.size());
    m_ids.push_back(id);
    for (const std::string& key : keys.person)
        mention(m_persons, key);
    for (const std::string& number : keys.numbers)
        mention(m_numbers, number);
}

void DuplicateSearch::mention(Mentions& mentions, const std::string& text)
{
    mentions.push_back({std::hash<std::string_view>()(text), m_texts.size(), static_cast<std::uint32_t>(text.size()),
                        static_cast<std::uint32_t>(m_ids.size() - 1)});
    m_texts += text;
}

std::string_view DuplicateSearch::textOf(const Mention& mention) const
{
    return std::string_view(m_texts).substr(mention.at, mention.length);
}

// The mentions of each text that several contacts have, in the order in which they came.
std::vector<DuplicateSearch::Mentions> DuplicateSearch::inCommon(Mentions& mentions) const
{
    std::sort(mentions.begin(), mentions.end(), [this](const Mention& a, const Mention& b) {
        if (a.hash != b.hash)
            return a.hash < b.hash;
        const int order = textOf(a).compare(textOf(b));
        return order != 0 ? order < 0 : a.at < b.at;
    });
    std::vector<Mentions> groups;
    for (auto first = mentions.begin(); first != mentions.end();) {
        const auto end = std::find_if(first + 1, mentions.end(), [&](const Mention& other) {
            return other.hash != first->hash || textOf(other) != textOf(*first);
        });
        if (end - first > 1)
            groups.emplace_back(first, end);
        first = end;
    }
    std::sort(groups.begin(), groups.end(),
              [](const Mentions& a, const Mentions& b) { return a.front().at < b.front().at; });
    return groups;
}

std::size_t DuplicateSearch::rootOf(std::size_t contact)
{
    while (m_parents[contact] != contact) {
        m_parents[contact] = m_parents[m_parents[contact]];
        contact = m_parents[contact];
    }
    return contact;
}

void DuplicateSearch::findPersons(std::vector<DuplicateSet>& found)
{
    for (const Mentions& group : inCommon(m_persons)) {
        for (const Mention& mention : group) {
            const std::size_t one = rootOf(group.front().contact);
            const std::size_t other = rootOf(mention.contact);
            m_parents[std::max(one, other)] = std::min(one, other);
        }
    }
    std::vector<std::pair<std::size_t, std::size_t>> further; // contacts behind the first of their person
    for (std::size_t contact = 0; contact < m_ids.size(); ++contact) {
        if (rootOf(contact) != contact)
            further.emplace_back(rootOf(contact), contact);
    }
    std::sort(further.begin(), further.end());
    for (std::size_t i = 0; i < further.size(); ++i) {
        if (i == 0 || further[i].first != further[i - 1].first) {
            found.emplace_back();
            found.back().same = true;
            found.back().ids.push_back(m_ids[further[i].first]);
        }
        found.back().ids.push_back(m_ids[further[i].second]);
    }
}

void DuplicateSearch::findSharers(std::vector<DuplicateSet>& found)
{
    for (const Mentions& group : inCommon(m_numbers)) {
        const std::size_t root = rootOf(group.front().contact);
        if (std::all_of(group.begin(), group.end(),
                        [&](const Mention& mention) { return rootOf(mention.contact) == root; }))
            continue;
        found.emplace_back();
        for (const Mention& mention : group)
            found.back().ids.push_back(m_ids[mention.contact]);
    }
}

std::vector<DuplicateSet> DuplicateSearch::sets()
{
    std::vector<DuplicateSet> found;
    findPersons(found);
    findSharers(found);
    return found;
}

} // namespace orva
