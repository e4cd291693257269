#include "Existing.h"

#include <algorithm>

#include "orva/orva_care.h"
#include "vcard/KeptLines.h"

namespace pbctl
{

namespace
{

using Properties = std::vector<orva::CardProperty>;

Properties ofName(const Properties& all, const std::string& name)
{
    Properties found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&name](const orva::CardProperty& property) { return property.is(name); });
    return found;
}

// What is kept with a contact and what comes to it: all of a name that comes is put in place of what has that name.
std::string updatedKept(const std::string& before, const std::string& newer)
{
    Properties all = orva::keptProperties(before);
    const Properties coming = orva::keptProperties(newer);
    bool differs = false;
    std::set<std::string> done;
    for (const orva::CardProperty& property : coming) {
        const std::string& name = property.name();
        const Properties newOnes = ofName(coming, name);
        if (!done.insert(name).second || orva::linesOf(ofName(all, name)) == orva::linesOf(newOnes))
            continue;
        differs = true;
        all.erase(std::remove_if(all.begin(), all.end(), [&name](const orva::CardProperty& p) { return p.is(name); }),
                  all.end());
        all.insert(all.end(), newOnes.begin(), newOnes.end());
    }
    return differs ? orva::linesOf(all) : before;
}

} // namespace

Existing::Existing(const Arguments& arguments, int memory, const std::vector<Field>& fields)
    : m_way(arguments.has("skip-existing") ? Way::Skip
            : arguments.has("update")      ? Way::Update
                                           : Way::AddAll),
      m_memory(memory),
      m_fields(fields),
      m_match(ORVA_Care_Match_Release)
{
    if (arguments.has("skip-existing") && arguments.has("update"))
        throw UsageError("--skip-existing and --update exclude each other");
    if (looks())
        check(ORVA_Care_CreateMatch(memory, m_match.out()), "reading the contacts of the " + memoryName(memory));
}

Existing::Answer Existing::settle(Contact& contact)
{
    const int id = looks() ? findSame(m_match.get(), m_memory, m_fields, contact.values) : 0;
    if (id == 0)
        return Answer::New;
    if (m_way == Way::Skip) {
        ++m_skipped;
        return Answer::Skipped;
    }
    Contact there;
    try {
        there = readContact(m_memory, m_fields, id);
    } catch (const SdkError& error) {
        if (error.code() != ORVA_E_NOT_FOUND)
            throw;
        return Answer::New; // it went meanwhile
    }
    Contact updated = there;
    for (std::size_t i = 0; i < updated.values.size(); ++i)
        if (!contact.values[i].empty())
            updated.values[i] = contact.values[i];
    updated.kept = updatedKept(there.kept, contact.kept);
    const bool same = updated.values == there.values && updated.kept == there.kept;
    const bool first = m_taken.insert(id).second;
    if (!same && !first)
        return Answer::New;
    contact = std::move(updated);
    m_same += same ? 1 : 0;
    return same ? Answer::Same : Answer::Changed;
}

std::string Existing::summary() const
{
    if (m_way == Way::Skip)
        return "; " + std::to_string(m_skipped) + " were there already";
    if (m_way == Way::Update)
        return "; " + std::to_string(m_changed) + " changed, " + std::to_string(m_same) + " the same already";
    return {};
}

} // namespace pbctl
