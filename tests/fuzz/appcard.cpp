// Any text, read as a card of a mail program.

#include "Scratch.h"
#include "contactapps/VCard.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const orva::ContactFields contact = orva::readVCard(std::string_view(reinterpret_cast<const char*>(data), size));
    const std::size_t values = contact.name.size() + contact.mobile.size() + contact.office.size() +
                               contact.home.size() + contact.email.size() + contact.note.size();
    MUST(values <= 20 * size + 6); // the e-mail address may stand in for the name, and some charsets grow as UTF-8
    MUST(contact.empty() == (values == 0));
    return 0;
}
