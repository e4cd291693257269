#include "contactapps/VCard.h"

#include <algorithm>
#include <string>
#include <vector>

#include "vcard/CardLines.h"
#include "vcard/CardText.h"

namespace orva
{

namespace
{

// TYPE=PREF and a bare PREF of the older versions, PREF=1 of the newest.
bool isPreferred(const CardProperty& property)
{
    return property.hasType("PREF") || property.parameter("PREF") != nullptr;
}

// The values of a component that is a list.
std::string joined(const std::vector<std::string>& values)
{
    std::string out;
    for (const std::string& value : values) {
        if (!out.empty() && !value.empty())
            out += ", ";
        out += value;
    }
    return out;
}

// "Family;Given;Additional;..." as it is said.
std::string spokenName(const CardProperty& property, CardVersion version)
{
    const auto names = cardComponents(property, version);
    std::string out = names.size() > 1 ? joined(names[1]) : std::string();
    const std::string family = joined(names[0]);
    if (!out.empty() && !family.empty())
        out.push_back(' ');
    return out + family;
}

void addNumber(const CardProperty& property, CardVersion version, AppContact& contact)
{
    if (property.hasType("FAX") || property.hasType("PAGER"))
        return;
    std::string number = cardText(property, version);
    if (sameCardName(std::string_view(number).substr(0, 4), "TEL:"))
        number.erase(0, 4);
    std::string* place = property.hasType("CELL")   ? &contact.mobile
                         : property.hasType("WORK") ? &contact.office
                         : property.hasType("HOME") ? &contact.home
                                                    : nullptr;
    for (std::string* next : {place, &contact.mobile, &contact.home, &contact.office}) {
        if (next != nullptr && next->empty()) {
            *next = number;
            return;
        }
        if (next != nullptr && next == place)
            return; // a second one of its kind
    }
}

} // namespace

AppContact readVCard(std::string_view text)
{
    AppContact contact;
    std::string structuredName;
    std::string company;
    const Card card = parseCard(text);
    std::vector<const CardProperty*> numbers; // those of a kind go first
    for (const CardProperty& property : card.properties) {
        if (property.is("X-EVOLUTION-LIST") && sameCardName(property.value(), "TRUE"))
            return AppContact();
        if (property.is("FN") && contact.name.empty())
            contact.name = cardText(property, card.version);
        else if (property.is("N") && structuredName.empty())
            structuredName = spokenName(property, card.version);
        else if (property.is("ORG") && company.empty())
            company = joined(cardComponents(property, card.version).front());
        else if (property.is("EMAIL") && (contact.email.empty() || isPreferred(property)))
            contact.email = cardText(property, card.version);
        else if (property.is("NOTE") && contact.note.empty())
            contact.note = cardText(property, card.version);
        else if (property.is("TEL"))
            numbers.push_back(&property);
    }
    const auto ofKind = [](const CardProperty* p) {
        return p->hasType("CELL") || p->hasType("WORK") || p->hasType("HOME");
    };
    std::stable_partition(numbers.begin(), numbers.end(), ofKind);
    for (const CardProperty* number : numbers)
        addNumber(*number, card.version, contact);
    for (const std::string* other : {&structuredName, &company, &contact.email})
        if (contact.name.empty())
            contact.name = *other;
    return contact;
}

} // namespace orva
