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

int indexIn(const Card& card, const CardProperty& property)
{
    return static_cast<int>(&property - card.properties.data());
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

// A field, and where it comes from.
struct Place {
    std::string* text = nullptr;
    int* source = nullptr;
};

// False if there is no place for it.
bool addNumber(const Card& card, const CardProperty& property, CardContact& contact)
{
    std::string number = cardText(property, card.version);
    if (sameCardName(std::string_view(number).substr(0, 4), "TEL:"))
        number.erase(0, 4);
    if (number.empty())
        return true;
    if (property.hasType("FAX") || property.hasType("PAGER"))
        return false;
    const Place mobile = {&contact.mobile, &contact.sources.mobile};
    const Place office = {&contact.office, &contact.sources.office};
    const Place home = {&contact.home, &contact.sources.home};
    const Place place = property.hasType("CELL")   ? mobile
                        : property.hasType("WORK") ? office
                        : property.hasType("HOME") ? home
                                                   : Place();
    for (const Place& next : {place, mobile, home, office}) {
        if (next.text != nullptr && next.text->empty()) {
            *next.text = number;
            *next.source = indexIn(card, property);
            return true;
        }
        if (next.text != nullptr && next.text == place.text)
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

void leave(const Card& card, const CardProperty& property, CardContact& contact)
{
    std::string name = property.name();
    for (char& c : name)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 0x20 : c);
    contact.left.push_back(std::move(name));
    contact.kept.push_back(property);
    contact.keptAt.push_back(indexIn(card, property));
}

// False for one that another of its name came before, and for a name that has no field. `email` is the address taken.
bool addText(const Card& card, const CardProperty& property, CardContact& contact, const CardProperty*& email)
{
    Place place;
    if (property.is("FN"))
        place = {&contact.name, &contact.sources.name};
    else if (property.is("NOTE"))
        place = {&contact.note, &contact.sources.note};
    else if (property.is("EMAIL"))
        place = {&contact.email, &contact.sources.email};
    else
        return false;
    std::string text = cardText(property, card.version);
    if (!place.text->empty() && *place.text == text)
        return true;
    if (!place.text->empty()) {
        if (!property.is("EMAIL") || !isPreferred(property))
            return false;
        leave(card, *email, contact); // the one that was there
    }
    if (property.is("EMAIL"))
        email = &property;
    *place.text = std::move(text);
    *place.source = indexIn(card, property);
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
    int structured = -1;
    const CardProperty* company = nullptr;
    const CardProperty* email = nullptr;
    std::vector<const CardProperty*> numbers; // those of a kind go first
    for (const CardProperty& property : card.properties) {
        if (property.is("N") && structuredName.empty()) {
            structuredName = spokenName(property, card.version);
            structured = indexIn(card, property);
        } else if (property.is("ORG") && company == nullptr) {
            company = &property;
        } else if (property.is("TEL")) {
            numbers.push_back(&property);
        } else if (property.is("CATEGORIES")) {
            for (std::string& group : cardList(property, card.version))
                if (!group.empty())
                    contact.groups.push_back(std::move(group));
        } else if (!saysNoMore(property) && !addText(card, property, contact, email)) {
            leave(card, property, contact);
        }
    }
    const auto ofKind = [](const CardProperty* p) {
        return p->hasType("CELL") || p->hasType("WORK") || p->hasType("HOME");
    };
    std::stable_partition(numbers.begin(), numbers.end(), ofKind);
    for (const CardProperty* number : numbers)
        if (!addNumber(card, *number, contact))
            leave(card, *number, contact);
    const std::string companyName =
        company == nullptr ? std::string() : joined(cardComponents(*company, card.version).front());
    if (contact.name.empty() && !structuredName.empty()) {
        contact.name = structuredName;
        contact.sources.name = structured;
    }
    if (contact.name.empty() && !companyName.empty()) {
        contact.name = companyName;
        contact.sources.name = indexIn(card, *company);
    } else if (company != nullptr && !saysNoMore(*company)) {
        leave(card, *company, contact);
    }
    if (contact.name.empty()) {
        contact.name = contact.email;
        contact.sources.name = contact.sources.email;
    }
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
