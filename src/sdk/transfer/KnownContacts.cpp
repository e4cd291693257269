#include "transfer/KnownContacts.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "memories/AllRecords.h"
#include "store/Store.h"
#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

using Properties = std::vector<CardProperty>;

Properties ofName(const Properties& all, const std::string& name)
{
    Properties found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&name](const CardProperty& property) { return property.is(name); });
    return found;
}

// What is kept with a contact and what comes to it: all of a name that comes is put in place of what has that name.
std::string updatedKept(const std::string& before, const std::string& newer)
{
    if (newer.empty())
        return before;
    Properties all = keptProperties(before);
    const Properties coming = keptProperties(newer);
    bool differs = false;
    std::set<std::string> done;
    for (const CardProperty& property : coming) {
        const std::string& name = property.name();
        const Properties newOnes = ofName(coming, name);
        if (!done.insert(name).second || linesOf(ofName(all, name)) == linesOf(newOnes))
            continue;
        differs = true;
        all.erase(std::remove_if(all.begin(), all.end(), [&name](const CardProperty& p) { return p.is(name); }),
                  all.end());
        all.insert(all.end(), newOnes.begin(), newOnes.end());
    }
    return differs ? linesOf(all) : before;
}

} // namespace

KnownContacts::KnownContacts(Way way, Memory& memory, Store* store, const std::string& region)
    : m_way(way), m_memory(memory), m_store(store), m_matcher(*memory.profile(), region)
{
    if (looks())
        forAllRecords(memory, [this](int id, const Values& values) { m_matcher.add(id, values); });
}

KnownContacts::Answer KnownContacts::settle(ImportContact& contact, int& id)
{
    id = looks() ? m_matcher.find(contact.values) : 0;
    if (id == 0)
        return Answer::New;
    if (m_way == Way::Skip)
        return Answer::Skipped;
    Values there;
    std::string kept;
    try {
        there = m_memory.readOne(id);
        kept = m_store != nullptr ? m_store->kept(id) : std::string();
    } catch (const Failure& failure) {
        if (failure.code() != ORVA_E_NOT_FOUND)
            throw;
        return Answer::New; // it went meanwhile
    }
    Values updated = there;
    for (std::size_t i = 0; i < updated.size(); ++i)
        if (!contact.values[i].empty())
            updated[i] = contact.values[i];
    std::string updatedLines = updatedKept(kept, contact.kept);
    const bool same = updated == there && updatedLines == kept;
    const bool first = m_taken.insert(id).second;
    if (!same && !first)
        return Answer::New;
    contact.values = std::move(updated);
    contact.kept = std::move(updatedLines);
    return same ? Answer::Same : Answer::Changed;
}

} // namespace orva
