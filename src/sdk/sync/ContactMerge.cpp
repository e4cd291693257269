#include "sync/ContactMerge.h"

#include <algorithm>
#include <ctime>
#include <map>
#include <set>

#include "base/Profile.h"
#include "care/NumberKey.h"
#include "sync/CardEditor.h"
#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

using Groups = std::vector<std::string>;

// What is kept with a contact, by key.
class KeptSet
{
public:
    explicit KeptSet(const std::string& lines)
    {
        for (CardProperty& property : keptProperties(lines)) {
            m_keys.push_back(propertyKey(property));
            m_properties.push_back(std::move(property));
        }
    }

    std::size_t size() const { return m_keys.size(); }
    const std::string& key(std::size_t i) const { return m_keys[i]; }
    const CardProperty& at(std::size_t i) const { return m_properties[i]; }
    bool has(const std::string& key) const { return std::find(m_keys.begin(), m_keys.end(), key) != m_keys.end(); }
    std::multiset<std::string> keys() const { return {m_keys.begin(), m_keys.end()}; }

    // The places of those that another set does not have.
    std::vector<std::size_t> without(const KeptSet& other) const
    {
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < size(); ++i)
            if (!other.has(m_keys[i]))
                places.push_back(i);
        return places;
    }

private:
    std::vector<std::string> m_keys;
    std::vector<CardProperty> m_properties;
};

Groups minus(const Groups& all, const Groups& others)
{
    Groups rest;
    for (const std::string& one : all)
        if (std::find(others.begin(), others.end(), one) == others.end())
            rest.push_back(one);
    return rest;
}

bool isIn(const std::string& one, const Groups& all)
{
    return std::find(all.begin(), all.end(), one) != all.end();
}

// Whether somebody has one of the kind.
bool isSingle(const CardProperty& property)
{
    for (const char* name : {"BDAY", "ANNIVERSARY", "GENDER", "PHOTO", "ORG", "TITLE", "ROLE", "NICKNAME"})
        if (property.is(name))
            return true;
    return false;
}

class Merge
{
public:
    Merge(const ContactSides& sides, const Groups& groupCards, const std::string& region)
        : m_sides(sides),
          m_groupCards(groupCards),
          m_region(region),
          m_there(viewOf(sides.there)),
          m_editor(sides.there)
    {
        m_out.hereWins = sides.timeHere > sides.timeThere;
        m_base.content.values.resize(contactFields);
        if (sides.base != nullptr)
            m_base = viewOf(*sides.base).content;
        m_base.groups = sides.baseGroups;
    }

    MergedContact run()
    {
        mergeFields();
        mergeKept();
        mergeGroups();
        if (m_editor.changed())
            m_editor.setRevision(revision());
        m_out.changesThere = m_editor.changed();
        m_out.there = m_editor.card();
        const Groups groups = m_out.here.groups;
        m_out.here = viewOf(m_out.there).content;
        m_out.here.groups = groups;
        m_out.changesHere = !sameContent(m_out.here, m_sides.here);
        return std::move(m_out);
    }

private:
    // When the later of the two was written, as far as that is known; of memberships alone it never is.
    long long revision() const
    {
        const bool known = m_sides.timeHere != 0 && (m_sides.here.content.values != m_base.content.values ||
                                                     m_sides.here.content.kept != m_base.content.kept);
        return std::max(known ? m_sides.timeHere : static_cast<long long>(std::time(nullptr)), m_sides.timeThere);
    }

    const std::u16string& here(std::size_t field) const { return m_sides.here.content.values[field]; }
    const std::u16string& there(std::size_t field) const { return m_there.content.content.values[field]; }

    // Where nothing is known of before, another way of writing a number is no other number.
    bool isSameNumber(std::size_t field) const
    {
        const auto name = static_cast<ContactField>(field);
        return m_sides.base == nullptr && name != ContactField::Name && name != ContactField::Email &&
               name != ContactField::Note && numberKey(here(field), m_region) == numberKey(there(field), m_region);
    }

    void mergeFields()
    {
        std::vector<ContactField> ours;
        for (std::size_t field = 0; field < contactFields; ++field) {
            const std::u16string& base = m_base.content.values[field];
            if (here(field) == base || here(field) == there(field) || isSameNumber(field))
                continue;
            const bool bothChanged = there(field) != base;
            if (bothChanged)
                m_out.conflicts.push_back(localProfile().fields()[field].key);
            if (!bothChanged || m_out.hereWins)
                ours.push_back(static_cast<ContactField>(field));
        }
        if (!ours.empty())
            m_editor.setFields(m_sides.here.content.values, ours);
    }

    void mergeKept()
    {
        const KeptSet base(m_base.content.kept);
        const KeptSet ours(m_sides.here.content.kept);
        const KeptSet theirs(m_there.content.content.kept);
        std::vector<std::size_t> gone = base.without(ours);
        std::vector<std::size_t> foreign = theirs.without(base);
        for (const std::size_t place : ours.without(base)) {
            if (theirs.has(ours.key(place)))
                continue;
            const CardProperty& property = ours.at(place);
            // One that goes while another of its name comes is one that changes.
            const auto was = std::find_if(gone.begin(), gone.end(),
                                          [&](std::size_t other) { return base.at(other).is(property.name()); });
            if (was != gone.end()) {
                changeKept(base.key(*was), property, theirs, foreign);
                gone.erase(was);
            } else if (isSingle(property)) {
                changeKept(std::string(), property, theirs, foreign);
            } else {
                m_editor.addKept(property);
            }
        }
        for (const std::size_t place : gone)
            m_editor.removeKept(base.key(place));
    }

    void changeKept(const std::string& was, const CardProperty& property, const KeptSet& theirs,
                    std::vector<std::size_t>& foreign)
    {
        if (!was.empty() && m_editor.replaceKept(was, property))
            return;
        const auto other = std::find_if(foreign.begin(), foreign.end(),
                                        [&](std::size_t place) { return theirs.at(place).is(property.name()); });
        if (other == foreign.end()) {
            m_editor.addKept(property); // deleted there, and changed here
            return;
        }
        m_out.conflicts.push_back(property.name());
        if (m_out.hereWins)
            m_editor.replaceKept(theirs.key(*other), property);
        foreign.erase(other);
    }

    void mergeGroups()
    {
        const Groups& own = m_there.content.groups;
        std::set<std::string> all(own.begin(), own.end());
        all.insert(m_sides.groupsThere.begin(), m_sides.groupsThere.end());
        const Groups joined = minus(m_sides.here.groups, m_base.groups);
        const Groups left = minus(m_base.groups, m_sides.here.groups);
        Groups added;
        Groups removed;
        for (const std::string& group : joined) {
            if (!all.insert(group).second)
                continue;
            (isIn(group, m_groupCards) ? m_out.joins : added).push_back(group);
        }
        for (const std::string& group : left) {
            all.erase(group);
            if (isIn(group, own))
                removed.push_back(group);
            if (isIn(group, m_sides.groupsThere))
                m_out.leaves.push_back(group);
        }
        if (!added.empty() || !removed.empty())
            m_editor.changeGroups(added, removed);
        m_out.here.groups.assign(all.begin(), all.end());
    }

    const ContactSides& m_sides;
    const Groups& m_groupCards;
    const std::string& m_region;
    const CardView m_there;
    SyncContent m_base;
    CardEditor m_editor;
    MergedContact m_out;
};

} // namespace

bool sameContent(const SyncContent& one, const SyncContent& other)
{
    return one.content.values == other.content.values && one.groups == other.groups &&
           (one.content.kept == other.content.kept ||
            KeptSet(one.content.kept).keys() == KeptSet(other.content.kept).keys());
}

MergedContact mergeContact(const ContactSides& sides, const Groups& groupCards, const std::string& region)
{
    return Merge(sides, groupCards, region).run();
}

} // namespace orva
