#include "contactapps/VCard.h"

#include <utility>

#include "vcard/CardContact.h"
#include "vcard/CardLines.h"

namespace orva
{

AppContact readVCard(std::string_view text)
{
    const Card card = parseCard(text);
    const CardProperty* list = card.find("X-EVOLUTION-LIST");
    if (list != nullptr && sameCardName(list->value(), "TRUE"))
        return AppContact();
    CardContact read = contactOf(card);
    AppContact contact;
    contact.name = std::move(read.name);
    contact.mobile = std::move(read.mobile);
    contact.office = std::move(read.office);
    contact.home = std::move(read.home);
    contact.email = std::move(read.email);
    contact.note = std::move(read.note);
    for (std::string& name : read.left)
        if (!sameCardName(std::string_view(name).substr(0, 12), "X-EVOLUTION-")) // its own bookkeeping
            contact.left.push_back(std::move(name));
    return contact;
}

} // namespace orva
