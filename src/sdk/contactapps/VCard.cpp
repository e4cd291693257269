#include "contactapps/VCard.h"

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
    return contactOf(card); // without what else the card says
}

} // namespace orva
