// What an import left, as a program that shows it asks for it.

#include <atomic>

#include "SdkFiles.h"
#include "orva/orva_care.h"

namespace
{

using namespace files;

constexpr int local = ORVA_MEMORY_LOCAL;
constexpr int card = ORVA_MEMORY_CARD;

struct Found {
    int line;
    int reason;
    int count;
    int column;
    std::string name;
    std::string value;
};

std::string lastSource;
int lastTotal = 0;

std::vector<Found> findings()
{
    ORVA_FINDING* all = nullptr;
    int count = 0;
    unsigned short* source = nullptr;
    REQUIRE(ORVA_Care_GetFindings(&all, &count, &lastTotal, &source) == ORVA_OK);
    lastSource = utf8(take(source));
    std::vector<Found> out;
    for (int i = 0; i < count; ++i)
        out.push_back({all[i].line, all[i].reason, all[i].count, all[i].column,
                       utf8(reinterpret_cast<const char16_t*>(all[i].name)),
                       utf8(reinterpret_cast<const char16_t*>(all[i].value))});
    CHECK_EQ(all == nullptr, count == 0);
    CHECK_EQ(ORVA_Care_FindingsRelease(&all), ORVA_OK);
    CHECK(all == nullptr);
    return out;
}

// One line for each: "line reason count column name=value".
std::string shown()
{
    std::string out;
    for (const Found& found : findings())
        out += std::to_string(found.line) + " " + std::to_string(found.reason) + " " + std::to_string(found.count) +
               " " + std::to_string(found.column) + " " + found.name + "=" + found.value + "\n";
    return out;
}

std::string line(int at, int reason, int count, int column, const std::string& rest)
{
    return std::to_string(at) + " " + std::to_string(reason) + " " + std::to_string(count) + " " +
           std::to_string(column) + " " + rest + "\n";
}

std::string person(const std::string& lines)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + lines + "END:VCARD\r\n";
}

std::atomic<int> told{0};

int onEvent(int event, void*)
{
    told += event == ORVA_EVENT_IMPORT_FINDINGS ? 1 : 0;
    return 0;
}

} // namespace

TEST(withoutAnImportThereIsNothing)
{
    const FreshStore store;
    CHECK_EQ(shown(), "");
    CHECK_EQ(lastTotal, 0);
    CHECK_EQ(lastSource, "");
}

TEST(rowsAndValuesAreNamedWithTheirColumnsAndColumnsComeLast)
{
    const FreshStore store;
    const std::string path = write("left.csv", std::string("Name,Mobile,email,Shoe\n"
                                                           "Ada,1,a@x.org ::: b@x.org,38\n"
                                                           ",,,7\n"
                                                           "Bo,abc,nobody,\n"
                                                           "\"Cy,4\n"
                                                           "Di,5,,9\n"));
    CHECK_EQ(import(path, {0, 1, -1, -1, 2, -1}, local).size(), 3U);
    CHECK_EQ(shown(), line(2, ORVA_FINDING_SEVERAL, 1, 2, "email=a@x.org ::: b@x.org") +
                          line(3, ORVA_FINDING_EMPTY, 1, -1, "=") + line(4, ORVA_FINDING_NUMBER, 1, 1, "Mobile=abc") +
                          line(4, ORVA_FINDING_EMAIL, 1, 2, "email=nobody") + line(5, ORVA_FINDING_QUOTE, 1, -1, "=") +
                          line(0, ORVA_FINDING_COLUMN, 3, 3, "Shoe="));
    CHECK_EQ(lastTotal, 6);
    CHECK_EQ(lastSource, path);
}

TEST(whatIsMadeUpIsNamedByTheColumnOfTheFile)
{
    const FreshStore store;
    const std::string text = "First Name,Last Name,Mobile Phone,Business Phone,Company\n"
                             "Ada,Byron,1,2,Engines\n"
                             ",,3,,Acme\n";
    const std::string path = write("made.csv", text);
    // Both columns made up for a card: name and the best number.
    const std::string all = titles(path);
    CHECK_EQ(all.substr(text.find('\n')), ",Name,Mobile,officePhone,remark,Number");
    CHECK_EQ(import(path, {5, 9}, card).size(), 2U);
    CHECK_EQ(shown(),
             line(2, ORVA_FINDING_FURTHER, 1, 3, "Business Phone=2") + line(0, ORVA_FINDING_COLUMN, 1, 4, "Company="));
    // The PC has a field for either number, and a company is a name where there is no other.
    CHECK_EQ(import(path, {5, 6, 7, -1, -1, 8}, local).size(), 2U);
    CHECK_EQ(shown(), line(0, ORVA_FINDING_COLUMN, 1, 4, "Company="));
}

TEST(cardsTellEachPropertyThatHasNoField)
{
    const FreshStore store;
    const std::string path =
        write("p.vcf", person("FN:Ada\r\nTEL;TYPE=CELL:1\r\nBDAY:1815-12-10\r\nPHOTO;ENCODING=b:AAAA\r\n"
                              "EMAIL:a@x.org\r\nEMAIL:b@x.org\r\nCATEGORIES:Friends\r\n") +
                           person("NICKNAME:none\r\n") + "BEGIN:VCARD\r\nFN:Cut\r\n");
    CHECK_EQ(import(path, {0, 1, 2, 3, 4, 5}, local).size(), 1U);
    CHECK_EQ(shown(), line(1, ORVA_FINDING_PROPERTY, 1, -1, "BDAY=1815-12-10") +
                          line(1, ORVA_FINDING_PROPERTY, 1, -1, "PHOTO=") +
                          line(1, ORVA_FINDING_PROPERTY, 1, -1, "CATEGORIES=Friends") +
                          line(11, ORVA_FINDING_EMPTY, 1, -1, "=") + line(15, ORVA_FINDING_CARD_END, 1, -1, "="));
    // A card takes a name and a number.
    CHECK_EQ(import(write("q.vcf", person("FN:Bo\r\nTEL;TYPE=CELL:1\r\nTEL;TYPE=WORK:2\r\nTEL;TYPE=CELL:3\r\n"
                                          "EMAIL:a@x.org\r\n")),
                    {0, 6}, card)
                 .size(),
             1U);
    CHECK_EQ(shown(), line(1, ORVA_FINDING_PROPERTY, 1, -1, "TEL=3") +
                          line(1, ORVA_FINDING_FURTHER, 1, -1, "officePhone=2") +
                          line(0, ORVA_FINDING_COLUMN, 1, -1, "email="));
}

TEST(whatTheMemoryWillRefuseIsToldBeforehand)
{
    const FreshStore store;
    const std::string longNumber(41, '7');
    const std::string longName(101, 'n');
    import(write("long.csv", "Name,Mobile\n" + longName + ",1\nBo," + longNumber + "\nCy,abc\nDi,2\n"),
           {0, 1, -1, -1, -1, -1}, local);
    const std::vector<Found> all = findings();
    REQUIRE(all.size() == 3);
    CHECK_EQ(all[0].reason, ORVA_FINDING_TOO_LONG);
    CHECK_EQ(all[0].name, "Name");
    CHECK_EQ(all[1].reason, ORVA_FINDING_TOO_LONG);
    CHECK_EQ(all[1].value, longNumber);
    CHECK_EQ(all[2].reason, ORVA_FINDING_NUMBER);

    // Of a card the client cuts the names; the rows that are refused take no room.
    int capacity = 0;
    CHECK_EQ(ORVA_PBSrv_GetCapacity(card, &capacity), ORVA_OK);
    std::string text = "Name,Number\nA name that no card holds,1\nBo,abc\n";
    for (int i = 0; i < capacity + 4; ++i)
        text += "N,1\n";
    import(write("many.csv", text), {0, 1}, card);
    CHECK_EQ(shown(), line(2, ORVA_FINDING_NAME_CUT, 1, -1, "Name=A name that no card holds") +
                          line(3, ORVA_FINDING_NUMBER, 1, 1, "Number=abc") +
                          line(capacity + 3, ORVA_FINDING_FULL, 5, -1, "="));
}

TEST(longTextsAreCutAndOctetsThatAreNoTextAreNotShown)
{
    const FreshStore store;
    std::string value;
    for (int i = 0; i < 300; ++i)
        value += "\xF0\x9F\x98\x80";
    import(write("emoji.csv", "Name,email\nAda," + value + "\nBo,\xFF\xFE\n\xC3\xA4\xC3\xB6,\n"),
           {0, -1, -1, -1, 1, -1}, local);
    const std::vector<Found> all = findings();
    REQUIRE(all.size() == 3);
    CHECK_EQ(all[0].reason, ORVA_FINDING_EMAIL);
    CHECK(all[0].value.size() < 400);
    CHECK_EQ(all[0].value.substr(all[0].value.size() - 3), "\xE2\x80\xA6");
    CHECK_EQ(all[0].value.find("\xEF\xBF\xBD"), std::string::npos);
    CHECK_EQ(all[1].reason, ORVA_FINDING_NOTE_CUT);
    CHECK_EQ(all[2].reason, ORVA_FINDING_NOT_TEXT);
    CHECK_EQ(all[2].value, "");
}

TEST(manyAreCountedAndTheFirstAreKept)
{
    const FreshStore store;
    std::string text = "Name,Mobile\nAda,1\n";
    for (int i = 0; i < ORVA_FINDINGS_KEPT + 5; ++i)
        text += ",\n";
    import(write("many.csv", text), {0, 1, -1, -1, -1, -1}, local);
    CHECK_EQ(findings().size(), static_cast<std::size_t>(ORVA_FINDINGS_KEPT));
    CHECK_EQ(lastTotal, ORVA_FINDINGS_KEPT + 5);
}

TEST(theEventTellsOfFindingsAndThatThereAreNoneAnyMore)
{
    const FreshStore store;
    told = 0;
    CHECK_EQ(ORVA_PBSrv_RegisterPBCallback(onEvent), ORVA_OK);
    const std::string whole = write("whole.csv", "Name,Mobile\nAda,1\n");
    const std::string left = write("left.csv", "Name,Mobile\nAda,1\n,\n");
    const std::string none = write("none.csv", "Name,Mobile\n,\n");
    const std::vector<int> map = {0, 1, -1, -1, -1, -1};
    const auto after = [&](const std::string& path, long code) {
        import(path, map, local, code);
        CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
        return told.load();
    };
    CHECK_EQ(after(whole, ORVA_OK), 0);
    CHECK_EQ(after(left, ORVA_OK), 1);
    CHECK_EQ(findings().size(), 1U);
    CHECK_EQ(after(whole, ORVA_OK), 2);
    CHECK_EQ(findings().size(), 0U);
    CHECK_EQ(after(whole, ORVA_OK), 2);
    // One that fails has findings, too.
    CHECK_EQ(after(none, ORVA_E_FORMAT), 3);
    CHECK_EQ(shown(), line(2, ORVA_FINDING_EMPTY, 1, -1, "="));
    CHECK_EQ(ORVA_PBSrv_UnRegisterPBCallback(onEvent), ORVA_OK);
}

TEST(badArgumentsOfFindingsAreCodes)
{
    ORVA_FINDING* all = nullptr;
    int count = 0;
    CHECK_EQ(ORVA_Care_GetFindings(nullptr, &count, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_GetFindings(&all, nullptr, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_GetFindings(&all, &count, nullptr, nullptr), ORVA_OK);
    CHECK_EQ(ORVA_Care_FindingsRelease(&all), ORVA_OK);
    CHECK_EQ(ORVA_Care_FindingsRelease(nullptr), ORVA_E_ARGUMENT);
}

CHECK_MAIN
