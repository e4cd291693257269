// What of a card goes into which field, and what is left.

#include "vcard/CardContact.h"
#include "support/Check.h"
#include "vcard/CardLines.h"

using namespace orva;

namespace
{

CardContact read(const std::string& lines)
{
    return contactOf(parseCard("VERSION:3.0\n" + lines));
}

// Mobile, business and home number.
std::string numbers(const CardContact& contact)
{
    return contact.mobile + "/" + contact.office + "/" + contact.home;
}

std::string left(const CardContact& contact)
{
    std::string out;
    for (const std::string& name : contact.left)
        out += name + " ";
    return out;
}

} // namespace

TEST(faxesAndPagersAreNobodysNumber)
{
    const CardContact contact = read("FN:A\nTEL;TYPE=FAX:1\nTEL;TYPE=HOME,FAX:2\nTEL;TYPE=PAGER:3\nTEL;TYPE=WORK:4\n");
    CHECK_EQ(numbers(contact), "/4/");
    CHECK_EQ(left(contact), "TEL TEL TEL ");
}

TEST(numbersOfAKindTakeTheirFieldFirst)
{
    CHECK_EQ(numbers(read("FN:A\nTEL:1\nTEL;TYPE=CELL:2\n")), "2//1");
    CHECK_EQ(numbers(read("FN:A\nTEL:1\nTEL:2\nTEL:3\n")), "1/3/2");
}

TEST(secondNumberOfAKindTakesNoOthersField)
{
    const CardContact contact = read("FN:A\nTEL;TYPE=HOME:1\nTEL;TYPE=HOME:2\n");
    CHECK_EQ(numbers(contact), "//1");
    CHECK_EQ(left(contact), "TEL ");
}

TEST(nameIsTakenFromWhatThereIs)
{
    CHECK_EQ(read("FN:Full\nN:Family;Given;;;\nORG:Company\n").name, "Full");
    CHECK_EQ(read("N:Family;Given;;;\nORG:Company\n").name, "Given Family");
    CHECK_EQ(read("ORG:Company;Room\nEMAIL:a@example.org\n").name, "Company");
    CHECK_EQ(read("EMAIL:a@example.org\n").name, "a@example.org");
}

TEST(preferredAddressCountsWhereverItStands)
{
    CHECK_EQ(read("FN:A\nEMAIL:one\nEMAIL;TYPE=PREF:two\n").email, "two");
    CHECK_EQ(read("FN:A\nEMAIL:one\nEMAIL:two\n").email, "one");
    CHECK_EQ(left(read("FN:A\nEMAIL:one\nEMAIL;TYPE=PREF:two\n")), "EMAIL ");
    CHECK_EQ(left(read("FN:A\nNOTE:one\nNOTE:two\n")), "NOTE ");
}
