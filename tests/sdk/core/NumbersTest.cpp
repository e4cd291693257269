// Telephone numbers as people write them: by themselves, and on their way into a memory.

#include "Phonebook.h"
#include "orva/orva_care.h"

using namespace phonebook;

namespace
{

struct Row {
    const char16_t* text;
    const char16_t* number; // null: refused
    const char16_t* extension;
};

constexpr Row everywhere[] = {
    // What is there for the eye.
    {u"", u"", u""},
    {u" -\u00A0", u"", u""},
    {u"112", u"112", u""},
    {u"*#06#", u"*#06#", u""},
    {u"+49 (30) 1234-5678", u"+493012345678", u""},
    {u"030/231.25.000\t1\r\n", u"030231250001", u""},
    {u"\u202A+1\u00A0202\u2011555\u20130100\u202C", u"+12025550100", u""},
    {u"\u200E\u206603\u30FC1234\u2069\uFEFF", u"031234", u""},
    {u"\uFF08\uFF10\uFF13\uFF09 \uFF11\uFF0D\uFF12\uFF0E\uFF13\uFF0F\uFF14", u"031234", u""},
    // Digits of other scripts, in and beyond the basic plane.
    {u"\u0660\u0661\u0669", u"019", u""},
    {u"\u06F0\u06F9 \u0966\u096F \u0E50\u0E59", u"090909", u""},
    {u"\U0001E950\U0001E959\U0001D7CE\U0001D7FF", u"0909", u""},
    {u"\uFF0B\uFF14\uFF19\uFF0A\uFF03", u"+49*#", u""},
    {u"\u066A1", nullptr, nullptr},
    // A zero that is not dialled from abroad.
    {u"+49 (0)171 5551234", u"+491715551234", u""},
    {u"+49(0)171", u"+49171", u""},
    {u"(+44) ( 0 ) 20", u"+4420", u""},
    {u"0049 (0)171", u"0049171", u""},
    {u"+39 (0)6 1234", u"+39061234", u""},
    {u"+378 (0)549", u"+3780549", u""},
    {u"(0)171 555", u"0171555", u""},
    {u"(0171) 555", u"0171555", u""},
    {u"+49 171 (0) 555", u"+491710555", u""},
    {u"030 (0) 1", u"03001", u""},
    // Prefixes.
    {u"0049 171", u"0049171", u""},
    {u"tel:+49-171-555", u"+49171555", u""},
    {u" TEL: 0171", u"0171", u""},
    {u"fax:0171", nullptr, nullptr},
    {u"tel\u066A0171", nullptr, nullptr},
    {u"tel:7042;phone-context=example.com", nullptr, nullptr},
    // Extensions.
    {u"030 1234 ext. 12", u"0301234", u"12"},
    {u"030 1234, Ext 12", u"0301234", u"12"},
    {u"030 1234 EXTENSION: 0012", u"0301234", u"0012"},
    {u"030 1234extn12", u"0301234", u"12"},
    {u"030 1234 (ext. 12)", u"0301234", u"12"},
    {u"+1 202 555-0100 x12", u"+12025550100", u"12"},
    {u"555X\u0661\u0662 ", u"555", u"12"},
    {u"tel:+49-30-1234;ext=12", u"+49301234", u"12"},
    {u"1 x1234567", u"1", u"1234567"},
    {u"1 x12345678", nullptr, nullptr},
    {u"ext. 12", nullptr, nullptr},
    {u"+ x12", nullptr, nullptr},
    {u"030 ext.", nullptr, nullptr},
    {u"030 x1 x2", nullptr, nullptr},
    {u"030 ext. 1 or 2", nullptr, nullptr},
    // No numbers.
    {u"abc", nullptr, nullptr},
    {u"4.9E+11", nullptr, nullptr},
    {u"4,9E+11", nullptr, nullptr},
    {u"1-800-FLOWERS", nullptr, nullptr},
    {u"anna@example.com", nullptr, nullptr},
    {u"12,34", nullptr, nullptr},
    {u"1;2", nullptr, nullptr},
    {u"030 1234 \u263A", nullptr, nullptr},
    {u"030 b\u00FCro", nullptr, nullptr},
};

struct Cleaned {
    long code;
    Text number;
    Text extension;
};

Cleaned clean(int memory, const Text& text)
{
    unsigned short* number = nullptr;
    unsigned short* extension = nullptr;
    const long code = ORVA_Care_CleanNumber(memory, api(text), &number, &extension);
    if (code == ORVA_OK)
        return {code, take(number), take(extension)};
    CHECK(number == nullptr && extension == nullptr);
    return {code, u"", u""};
}

void expect(int memory, const Row& row)
{
    const Cleaned cleaned = clean(memory, row.text);
    bool right = CHECK_EQ(cleaned.code, row.number == nullptr ? ORVA_E_NUMBER : ORVA_OK);
    if (row.number != nullptr) {
        right = CHECK_EQ(cleaned.number, row.number) && right;
        right = CHECK_EQ(cleaned.extension, row.extension) && right;
    }
    if (!right)
        CHECK_EQ(Text(row.text), u"as expected");
}

} // namespace

TEST(numbersAreReadAsPeopleWriteThem)
{
    for (const int memory : {card, device, local})
        for (const Row& row : everywhere)
            expect(memory, row);
}

TEST(everyDigitOfAScriptCountsFromItsZero)
{
    for (const char16_t zero : Text(u"\u07C0\u09E6\u0AE6\u0BE6\u0ED0\u0F20\u1040\u17E0\u1810\uA8D0\uABF0"))
        for (int digit = 0; digit < 10; ++digit)
            CHECK_EQ(clean(local, Text(1, static_cast<char16_t>(zero + digit))).number,
                     Text(1, static_cast<char16_t>(u'0' + digit)));
    CHECK_EQ(clean(local, u"\u0670").code, ORVA_E_NUMBER);
}

TEST(aNumberOfCardAndDeviceMayPauseAndWait)
{
    for (const int memory : {card, device}) {
        expect(memory, {u"0171-555 p12W3", u"0171555p12w3", u""});
        expect(memory, {u"0171p1 ext. 2", u"0171p1", u"2"});
        expect(memory, {u"0171 port", nullptr, nullptr});
    }
    expect(local, {u"0171p12", nullptr, nullptr});
    expect(local, {u"0171w12", nullptr, nullptr});
}

TEST(badArgumentsOfTheCleanerAreCodes)
{
    unsigned short* number = nullptr;
    unsigned short* extension = nullptr;
    CHECK_EQ(ORVA_Care_CleanNumber(3, api(u"1"), &number, &extension), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_CleanNumber(local, nullptr, &number, &extension), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_CleanNumber(local, api(u"1"), nullptr, &extension), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_CleanNumber(local, api(Text(70000, u'1')), &number, &extension), ORVA_E_TOO_LONG);
    // Who does not ask for an extension does not lose one.
    CHECK_EQ(ORVA_Care_CleanNumber(local, api(u"1 x2"), &number, nullptr), ORVA_E_NUMBER);
    CHECK(number == nullptr && extension == nullptr);
    REQUIRE(ORVA_Care_CleanNumber(local, api(u"1-2"), &number, nullptr) == ORVA_OK);
    CHECK_EQ(take(number), u"12");
}

TEST(aNumberIsStoredCleanAndItsSeparatorsDoNotCount)
{
    useFreshFolder();
    Text spaced;
    for (int i = 0; i < 40; ++i)
        spaced += u"1 - ";
    const int id = add(local, {{"Name", u"Anna - (x)"}, {"Mobile", spaced}, {"officePhone", u"+49 (0)30-1"}});
    CHECK_EQ(valueOf(local, id, "Mobile"), Text(40, u'1'));
    CHECK_EQ(valueOf(local, id, "officePhone"), u"+49301");
    CHECK_EQ(valueOf(local, id, "Name"), u"Anna - (x)");
    CHECK_EQ(tryAdd(local, {{"Mobile", spaced + u"1"}}), -ORVA_E_TOO_LONG);
    CHECK_EQ(update(local, id, {{"homePhone", u"tel:0049 30"}}), ORVA_OK);
    CHECK_EQ(valueOf(local, id, "homePhone"), u"004930");
    for (const int memory : {card, device}) {
        const int other = add(memory, {{"Name", u"Bo"}, {"Number", u"(0171) 555 1234 - 5678 - 90P1"}});
        CHECK_EQ(valueOf(memory, other, "Number"), u"01715551234567890p1");
    }
}

TEST(whatIsNoNumberIsRefusedWhole)
{
    useFreshFolder();
    const int id = add(local, {{"Name", u"Anna"}, {"Mobile", u"1"}});
    for (const char16_t* text : {u"abc", u"4.9E+11", u"030 1234 ext. 12", u"1p2"}) {
        CHECK_EQ(tryAdd(local, {{"Name", u"Bo"}, {"homePhone", text}}), -ORVA_E_NUMBER);
        CHECK_EQ(update(local, id, {{"Name", u"Bo"}, {"homePhone", text}}), ORVA_E_NUMBER);
    }
    CHECK_EQ(tryAdd(card, {{"Name", u"Bo"}, {"Number", u"1a2"}}), -ORVA_E_NUMBER);
    CHECK_EQ(valueOf(local, id, "Name"), u"Anna");
    int size = 0;
    CHECK_EQ(ORVA_PBSrv_GetSize(local, &size), ORVA_OK);
    CHECK_EQ(size, 1);
}

TEST(aRecordHoldsWhatItStored)
{
    useFreshFolder();
    void* record = nullptr;
    REQUIRE(newRecord(local, {{"Mobile", u"+49 171"}}, &record) == ORVA_OK);
    unsigned short* value = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, "Mobile", &value), ORVA_OK);
    CHECK_EQ(take(value), u"+49 171");
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, "Mobile", &value), ORVA_OK);
    CHECK_EQ(take(value), u"+49171");
    ORVA_PBSrv_AddrRecord_Release(record);
}

CHECK_MAIN
