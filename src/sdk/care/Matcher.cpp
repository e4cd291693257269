#include "care/Matcher.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Unicode.h"
#include "care/NumberKey.h"

namespace orva
{

namespace
{

constexpr char between = '\x1F'; // keeps "ab" + "c" apart from "a" + "bc"

} // namespace

std::string foldedText(std::u16string_view text)
{
    std::string octets;
    appendUtf8(text, octets);
    // Most names need no table.
    if (std::all_of(octets.begin(), octets.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        for (char& c : octets)
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        return octets;
    }
    utf8proc_uint8_t* folded = nullptr;
    const auto options = static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD);
    const utf8proc_ssize_t length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(octets.data()),
                                                 static_cast<utf8proc_ssize_t>(octets.size()), &folded, options);
    if (length == UTF8PROC_ERROR_NOMEM)
        throw Failure(ORVA_E_NO_MEMORY, "folding a text");
    if (length < 0)
        return octets;
    std::string out(reinterpret_cast<const char*>(folded), static_cast<std::size_t>(length));
    std::free(folded);
    return out;
}

Matcher::Matcher(const Profile& profile, std::string region) : m_profile(profile), m_region(std::move(region)) {}

Matcher::Keys Matcher::keysOf(const Values& values) const
{
    Keys keys;
    std::string name;
    std::string email;
    bool anything = false;
    for (std::size_t i = 0; i < m_profile.fields().size() && i < values.size(); ++i) {
        const Field& field = m_profile.fields()[i];
        std::string text = isNumberField(field) ? numberKey(values[i], m_region) : foldedText(values[i]);
        anything = anything || !text.empty();
        keys.whole += text + between;
        if (text.empty())
            continue;
        if (field.kind == "Name")
            name = std::move(text);
        else if (field.kind == "Email")
            email = std::move(text);
        else if (isNumberField(field) &&
                 std::find(keys.numbers.begin(), keys.numbers.end(), text) == keys.numbers.end())
            keys.numbers.push_back(std::move(text));
    }
    if (!anything)
        keys.whole.clear();
    if (name.empty())
        return keys;
    name += between;
    for (const std::string& number : keys.numbers)
        keys.person.push_back(name + number);
    if (!email.empty())
        keys.person.push_back(name + between + email);
    return keys;
}

std::size_t Matcher::rootOf(std::size_t contact)
{
    while (m_parents[contact] != contact) {
        m_parents[contact] = m_parents[m_parents[contact]];
        contact = m_parents[contact];
    }
    return contact;
}

void Matcher::add(int id, const Values& values)
{
    const Keys keys = keysOf(values);
    const std::size_t contact = m_ids.size();
    m_ids.push_back(id);
    m_parents.push_back(contact);
    for (const std::string& key : keys.person) {
        const std::size_t one = rootOf(m_persons.emplace(key, contact).first->second);
        const std::size_t other = rootOf(contact);
        m_parents[std::max(one, other)] = std::min(one, other);
    }
    for (const std::string& number : keys.numbers) {
        const auto place = m_numbers.emplace(number, m_byNumber.size());
        if (place.second)
            m_byNumber.emplace_back();
        m_byNumber[place.first->second].push_back(contact);
    }
    if (!keys.whole.empty())
        m_wholes.emplace(keys.whole, contact);
}

int Matcher::find(const Values& values) const
{
    const Keys keys = keysOf(values);
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

std::vector<DuplicateSet> Matcher::duplicates()
{
    std::vector<DuplicateSet> found;
    std::vector<std::vector<std::size_t>> persons(m_ids.size()); // by their first contact
    for (std::size_t contact = 0; contact < m_ids.size(); ++contact)
        persons[rootOf(contact)].push_back(contact);
    const auto give = [&](bool same, const std::vector<std::size_t>& contacts) {
        found.emplace_back();
        found.back().same = same;
        for (const std::size_t contact : contacts)
            found.back().ids.push_back(m_ids[contact]);
    };
    for (const std::vector<std::size_t>& person : persons)
        if (person.size() > 1)
            give(true, person);
    for (const std::vector<std::size_t>& sharing : m_byNumber) {
        const std::size_t root = rootOf(sharing.front());
        if (std::any_of(sharing.begin(), sharing.end(), [&](std::size_t other) { return rootOf(other) != root; }))
            give(false, sharing);
    }
    return found;
}

} // namespace orva
