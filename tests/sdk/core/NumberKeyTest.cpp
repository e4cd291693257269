// Numbers that reach the same telephone, as they are compared; and the country that says so.

#include <cstring>

#include "Phonebook.h"
#include "orva/orva_care.h"

using namespace phonebook;

namespace
{

Text key(const Text& number)
{
    unsigned short* text = nullptr;
    return ORVA_Care_NumberKey(api(number), &text) == ORVA_OK ? take(text) : Text(u"(none)");
}

std::string region()
{
    char letters[] = "??";
    CHECK_EQ(ORVA_Care_GetRegion(letters), ORVA_OK);
    return letters;
}

void inRegion(const char* letters)
{
    ::setenv("LINKHAND_REGION", letters, 1);
}

// Nothing in the environment says a country.
void nowhere()
{
    for (const char* const name : {"LINKHAND_REGION", "LC_ALL", "LC_TELEPHONE", "LANG"})
        ::unsetenv(name);
}

} // namespace

TEST(aNumberIsThatOfItsCountry)
{
    inRegion("DE");
    for (const char16_t* const number :
         {u"0171 5551234", u"+49 171 555-1234", u"0049 (0)171 5551234", u"tel:+491715551234", u"0171 5551234 ext. 7"})
        CHECK_EQ(key(number), u"+491715551234");
    CHECK_EQ(key(u"+1 202 555 0123"), u"+12025550123");
    inRegion("US");
    CHECK_EQ(key(u"(202) 555-0123"), u"+12025550123");
    CHECK_EQ(key(u"011 49 171 5551234"), u"+491715551234");
    CHECK_EQ(key(u"0049 171 5551234"), u"+491715551234"); // as a European writes it in America
    inRegion("IT");
    CHECK_EQ(key(u"06 69812345"), u"+390669812345");
}

TEST(whatNoCountryHasIsComparedAsItIsWritten)
{
    inRegion("DE");
    CHECK_EQ(key(u"112"), u"112");
    CHECK_EQ(key(u"*#06#"), u"*#06#");
    CHECK_EQ(key(u"0171 555 p 12"), u"0171555p12");
    CHECK_EQ(key(u"+"), u"+");
    CHECK_EQ(key(u""), u"");
    CHECK_EQ(key(u"1234567890123456789012345"), u"1234567890123456789012345");
}

TEST(withoutACountryANumberIsAsItIsWritten)
{
    inRegion("none");
    CHECK_EQ(key(u"0171 5551234"), u"01715551234");
    CHECK_EQ(key(u"0049 171 5551234"), u"+491715551234");
    CHECK_EQ(key(u"+49 171 5551234"), u"+491715551234");
}

TEST(theCountryIsTheSettingsOrTheLocales)
{
    useFreshFolder();
    nowhere();
    CHECK_EQ(region(), "");
    ::setenv("LANG", "de_DE.UTF-8", 1);
    CHECK_EQ(region(), "DE");
    ::setenv("LC_TELEPHONE", "it_IT@euro", 1);
    CHECK_EQ(region(), "IT");
    ::setenv("LC_ALL", "C.UTF-8", 1);
    CHECK_EQ(region(), "");
    CHECK_EQ(ORVA_Care_SetRegion("at"), ORVA_OK);
    CHECK_EQ(region(), "AT");
    inRegion("CH");
    CHECK_EQ(region(), "CH");
    nowhere();
    ::setenv("LANG", "de_DE.UTF-8", 1);
    CHECK_EQ(region(), "AT");
    CHECK_EQ(ORVA_Care_SetRegion("none"), ORVA_OK);
    CHECK_EQ(region(), "");
    CHECK_EQ(ORVA_Care_SetRegion(""), ORVA_OK);
    CHECK_EQ(region(), "DE");
}

TEST(badArgumentsOfKeyAndCountryAreCodes)
{
    useFreshFolder();
    unsigned short* text = nullptr;
    CHECK_EQ(ORVA_Care_NumberKey(api(u"abc"), &text), ORVA_E_NUMBER);
    CHECK_EQ(ORVA_Care_NumberKey(nullptr, &text), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_NumberKey(api(u"1"), nullptr), ORVA_E_ARGUMENT);
    CHECK(text == nullptr);
    CHECK_EQ(ORVA_Care_GetRegion(nullptr), ORVA_E_ARGUMENT);
    for (const char* const wrong : {"D", "DEU", "4D", "D\n", "nowhere"})
        CHECK_EQ(ORVA_Care_SetRegion(wrong), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_SetRegion(nullptr), ORVA_E_ARGUMENT);
}

TEST(oneNumberInTwoFormsIsTheSamePerson)
{
    useFreshFolder();
    add(local, {{"Name", u"Anna"}, {"Mobile", u"0171 5551234"}});
    add(local, {{"Name", u"anna"}, {"homePhone", u"+49 171 5551234"}});
    ORVA_DUPLICATE* entries = nullptr;
    int count = 0;
    inRegion("DE");
    CHECK_EQ(ORVA_Care_GetDuplicates(local, &entries, &count), ORVA_OK);
    if (CHECK_EQ(count, 2))
        CHECK(entries[0].kind == ORVA_DUPLICATE_SAME && entries[0].record == 1 && entries[1].record == 2);
    ORVA_Care_DuplicatesRelease(local, &entries);
    inRegion("none");
    CHECK_EQ(ORVA_Care_GetDuplicates(local, &entries, &count), ORVA_OK);
    CHECK_EQ(count, 0);
}

CHECK_MAIN
