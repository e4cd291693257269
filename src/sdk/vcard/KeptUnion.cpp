#include "vcard/KeptUnion.h"

#include <algorithm>

#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

bool sameProperty(const CardProperty& a, const CardProperty& b)
{
    return a.is(b.name()) && a.parameters() == b.parameters() && a.value() == b.value();
}

// Those with a group stand together with the others of theirs, all others alone; in the order of their first.
std::vector<std::vector<CardProperty>> byGroup(const std::vector<CardProperty>& properties)
{
    std::vector<std::vector<CardProperty>> all;
    for (const CardProperty& property : properties) {
        const auto found = std::find_if(all.begin(), all.end(), [&property](const std::vector<CardProperty>& other) {
            return !property.group().empty() && sameCardName(other.front().group(), property.group());
        });
        if (found == all.end())
            all.push_back({property});
        else
            found->push_back(property);
    }
    return all;
}

} // namespace

KeptUnion::KeptUnion(const std::string& lines) : m_first(lines), m_properties(keptProperties(lines)) {}

void KeptUnion::add(const std::string& lines)
{
    for (const Properties& together : byGroup(keptProperties(lines)))
        addTogether(together);
}

void KeptUnion::add(const CardProperty& property)
{
    addTogether({property});
}

bool KeptUnion::holds(const Properties& together) const
{
    const std::vector<Properties> all = byGroup(m_properties);
    return std::any_of(all.begin(), all.end(), [&together](const Properties& other) {
        return std::equal(other.begin(), other.end(), together.begin(), together.end(), sameProperty);
    });
}

std::string KeptUnion::freeGroup() const
{
    for (int number = 1;; ++number) {
        std::string group = "item" + std::to_string(number);
        if (std::none_of(m_properties.begin(), m_properties.end(),
                         [&group](const CardProperty& other) { return sameCardName(other.group(), group); }))
            return group;
    }
}

void KeptUnion::addTogether(const Properties& together)
{
    if (holds(together))
        return;
    m_changed = true;
    const std::string& group = together.front().group();
    const bool taken = !group.empty() &&
                       std::any_of(m_properties.begin(), m_properties.end(),
                                   [&group](const CardProperty& other) { return sameCardName(other.group(), group); });
    const std::string another = taken ? freeGroup() : std::string();
    for (const CardProperty& property : together) {
        if (!taken) {
            m_properties.push_back(property);
            continue;
        }
        CardProperty moved(property.name(), another);
        moved.setParameters(property.parameters());
        moved.setValue(property.value());
        m_properties.push_back(std::move(moved));
    }
}

std::string KeptUnion::lines() const
{
    return m_changed ? linesOf(m_properties) : m_first;
}

} // namespace orva
