#include "care/Merger.h"

#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "care/ContactKeys.h"
#include "care/NumberKey.h"
#include "vcard/CardText.h"
#include "vcard/KeptUnion.h"

namespace orva
{

namespace
{

// How a value that lost its field is called in a note, and in a card.
struct Word {
    const char* key;
    const char16_t* label;
    const char* property;
    const char* type;
};

constexpr Word words[] = {
    {"Name", u"Name", "NOTE", nullptr},        {"Mobile", u"Mobile", "TEL", "CELL"},
    {"officePhone", u"Office", "TEL", "WORK"}, {"homePhone", u"Home", "TEL", "HOME"},
    {"email", u"E-mail", "EMAIL", nullptr},
};

const Word& wordFor(const Field& field)
{
    const auto* const found =
        std::find_if(std::begin(words), std::end(words), [&field](const Word& word) { return field.key == word.key; });
    if (found == std::end(words))
        throw Failure(ORVA_E_INTERNAL, "no word for the field " + field.key);
    return *found;
}

std::u16string labelled(const Field& field, const std::u16string& value)
{
    return std::u16string(wordFor(field).label) + u": " + value;
}

CardProperty cardProperty(const char* name, const char* type, const std::u16string& value)
{
    CardProperty property(name);
    if (type != nullptr)
        property.setParameters({{"TYPE", {type}}});
    setCardText(property, toUtf8(value), CardVersion::V30);
    return property;
}

// What does not fit the note any more.
CardProperty asProperty(const Field& field, const std::u16string& value)
{
    const Word& word = wordFor(field);
    const bool note = std::string_view(word.property) == "NOTE";
    return cardProperty(word.property, word.type, note ? labelled(field, value) : value);
}

// Whether the text stands in a note already, from the beginning of a line to the end of one.
bool holdsLines(std::u16string_view note, std::u16string_view text)
{
    for (std::size_t at = note.find(text); at != std::u16string_view::npos; at = note.find(text, at + 1)) {
        const std::size_t end = at + text.size();
        if ((at == 0 || note[at - 1] == u'\n') && (end == note.size() || note[end] == u'\n'))
            return true;
    }
    return false;
}

} // namespace

Merger::Merger(const Profile& profile, std::string region) : m_profile(profile), m_region(std::move(region))
{
    const auto& fields = profile.fields();
    const auto note = std::find_if(fields.begin(), fields.end(), [](const Field& f) { return f.kind == "Remaik"; });
    if (note == fields.end())
        throw Failure(ORVA_E_UNSUPPORTED, "contacts of this memory have no notes");
    m_note = static_cast<std::size_t>(note - fields.begin());
}

bool Merger::hasNumber(const Values& values, std::u16string_view number) const
{
    const std::string compared = numberKey(number, m_region);
    for (std::size_t i = 0; i < values.size(); ++i)
        if (isNumberField(m_profile.fields()[i]) && numberKey(values[i], m_region) == compared)
            return true;
    return false;
}

std::vector<Merger::Rest> Merger::fillFields(Values& values, const Values& other) const
{
    std::vector<Rest> rest;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i == m_note || other[i].empty())
            continue;
        const bool there = isNumberField(m_profile.fields()[i]) ? hasNumber(values, other[i])
                                                                : foldedText(values[i]) == foldedText(other[i]);
        if (there)
            continue;
        if (values[i].empty())
            values[i] = other[i];
        else
            rest.push_back({i, other[i]});
    }
    return rest;
}

bool Merger::addNote(Values& values, std::u16string_view text) const
{
    std::u16string& note = values[m_note];
    if (text.empty() || holdsLines(note, text))
        return true;
    const std::size_t between = note.empty() ? 0 : 1;
    if (note.size() + between + text.size() > static_cast<std::size_t>(m_profile.fields()[m_note].maxLength))
        return false;
    note.append(between, u'\n').append(text);
    return true;
}

Content Merger::merged(const std::vector<Content>& contacts) const
{
    Content one = contacts.front();
    KeptUnion kept(one.kept);
    std::vector<Rest> rest;
    for (auto other = contacts.begin() + 1; other != contacts.end(); ++other) {
        for (Rest& value : fillFields(one.values, other->values))
            rest.push_back(std::move(value));
        kept.add(other->kept);
    }
    // First what is short: a number in the note is worth more than the end of another note.
    for (const Rest& value : rest) {
        const Field& field = m_profile.fields()[value.field];
        const bool found = isNumberField(field) && hasNumber(one.values, value.value);
        if (!found && !addNote(one.values, labelled(field, value.value)))
            kept.add(asProperty(field, value.value));
    }
    for (auto other = contacts.begin() + 1; other != contacts.end(); ++other)
        if (!addNote(one.values, other->values[m_note]))
            kept.add(cardProperty("NOTE", nullptr, other->values[m_note]));
    one.kept = kept.lines();
    return one;
}

} // namespace orva
