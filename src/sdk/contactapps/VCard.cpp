#include "contactapps/VCard.h"

#include <algorithm>

#include "vcard/CardContact.h"
#include "vcard/CardLines.h"

namespace orva
{

ContactFields readVCard(std::string_view text)
{
    const Card card = parseCard(text);
    const CardProperty* list = card.find("X-EVOLUTION-LIST");
    if (list != nullptr && sameCardName(list->value(), "TRUE"))
        return ContactFields();
    ContactFields contact = contactOf(card); // without what else the card says
    std::vector<std::string>& left = contact.left;
    const auto own = [](const std::string& name) {
        return sameCardName(std::string_view(name).substr(0, 12), "X-EVOLUTION-"); // its own bookkeeping
    };
    left.erase(std::remove_if(left.begin(), left.end(), own), left.end());
    return contact;
}

} // namespace orva
