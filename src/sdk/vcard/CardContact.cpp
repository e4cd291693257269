#include "vcard/CardContact.h"

#include <algorithm>
#include <string_view>

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

// False if there is no place for it.
bool addNumber(const CardProperty& property, CardVersion version, CardContact& contact)
{
    std::string number = cardText(property, version);
    if (sameCardName(std::string_view(number).substr(0, 4), "TEL:"))
        number.erase(0, 4);
    if (number.empty())
        return true;
    if (property.hasType("FAX") || property.hasType("PAGER"))
        return false;
    std::string* place = property.hasType("CELL")   ? &contact.mobile
                         : property.hasType("WORK") ? &contact.office
                         : property.hasType("HOME") ? &contact.home
                                                    : nullptr;
    for (std::string* next : {place, &contact.mobile, &contact.home, &contact.office}) {
        if (next != nullptr && next->empty()) {
            *next = number;
            return true;
        }
        if (next != nullptr && next == place)
            return false; // a second one of its kind
    }
    return false;
}

// Whether it says nothing of somebody that the fields do not.
bool saysNoMore(const CardProperty& property)
{
    for (const char* name : {"VERSION", "PRODID", "REV", "UID", "KIND", "N"})
        if (property.is(name))
            return true;
    return !property.readable() || property.value().find_first_not_of(" ;") == std::string::npos;
}

void leave(const CardProperty& property, CardContact& contact)
{
    std::string name = property.name();
    for (char& c : name)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 0x20 : c);
    contact.left.push_back(std::move(name));
    contact.kept.push_back(property);
}

// False for one that another of its name came before, and for a name that has no field. `email` is the address taken.
bool addText(const CardProperty& property, CardVersion version, CardContact& contact, const CardProperty*& email)
{
    std::string* place = property.is("FN") ? &contact.name : property.is("NOTE") ? &contact.note : nullptr;
    if (property.is("EMAIL"))
        place = &contact.email;
    if (place == nullptr)
        return false;
    std::string text = cardText(property, version);
    if (!place->empty() && *place != text) {
        if (!property.is("EMAIL") || !isPreferred(property))
            return false;
        leave(*email, contact); // the one that was there
    }
    if (property.is("EMAIL"))
        email = &property;
    *place = std::move(text);
    return true;
}

CardProperty& add(Card& card, const char* name)
{
    card.properties.emplace_back(name);
    return card.properties.back();
}

void addText(Card& card, const char* name, const char* type, const std::string& text)
{
    if (text.empty())
        return;
    CardProperty& property = add(card, name);
    if (type != nullptr)
        property.setParameters({{card.version == CardVersion::V21 ? "" : "TYPE", {type}}});
    setCardText(property, text, card.version);
}

} // namespace

CardContact contactOf(const Card& card)
{
    CardContact contact;
    std::string structuredName;
    const CardProperty* company = nullptr;
    const CardProperty* email = nullptr;
    std::vector<const CardProperty*> numbers; // those of a kind go first
    for (const CardProperty& property : card.properties) {
        if (property.is("N") && structuredName.empty()) {
            structuredName = spokenName(property, card.version);
        } else if (property.is("ORG") && company == nullptr) {
            company = &property;
        } else if (property.is("TEL")) {
            numbers.push_back(&property);
        } else if (property.is("CATEGORIES")) {
            for (std::string& group : cardList(property, card.version))
                if (!group.empty())
                    contact.groups.push_back(std::move(group));
        } else if (!saysNoMore(property) && !addText(property, card.version, contact, email)) {
            leave(property, contact);
        }
    }
    const auto ofKind = [](const CardProperty* p) {
        return p->hasType("CELL") || p->hasType("WORK") || p->hasType("HOME");
    };
    std::stable_partition(numbers.begin(), numbers.end(), ofKind);
    for (const CardProperty* number : numbers)
        if (!addNumber(*number, card.version, contact))
            leave(*number, contact);
    const std::string companyName =
        company == nullptr ? std::string() : joined(cardComponents(*company, card.version).front());
    if (contact.name.empty())
        contact.name = structuredName;
    if (contact.name.empty())
        contact.name = companyName;
    else if (company != nullptr && !saysNoMore(*company))
        leave(*company, contact);
    if (contact.name.empty())
        contact.name = contact.email;
    return contact;
}

Card cardOf(const CardContact& contact, CardVersion version)
{
    Card card = Card::empty(version);
    setCardText(add(card, "FN"), contact.name, version);
    setCardComponents(add(card, "N"), {contact.name, "", "", "", ""}, version);
    addText(card, "TEL", "CELL", contact.mobile);
    addText(card, "TEL", "WORK", contact.office);
    addText(card, "TEL", "HOME", contact.home);
    addText(card, "EMAIL", nullptr, contact.email);
    addText(card, "NOTE", nullptr, contact.note);
    if (!contact.groups.empty())
        setCardList(add(card, "CATEGORIES"), contact.groups, version);
    return card;
}

} // namespace orva
