// Import and export through the C functions.

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "SdkFiles.h"

using namespace files;

namespace
{

constexpr int local = ORVA_MEMORY_LOCAL;

} // namespace

TEST(titlesAreHandedOutInTwoCalls)
{
    const FreshStore store;
    const std::string path = files::write("t.csv", "Name,\"Phone, home\",\n1,2,3\n");
    CHECK_EQ(titles(path), "Name,Phone  home,");
    int length = 4;
    char small[4] = {};
    CHECK_EQ(ORVA_PBSrv_GetFileFieldDescription(api(utf16(path)), small, &length), ORVA_E_TOO_LONG);
    CHECK_EQ(small[0], '\0');
}

TEST(aFileWithoutReadableTitlesGivesNoLength)
{
    const FreshStore store;
    titles(files::write("empty.csv", ""), ORVA_E_FORMAT);
    titles(files::write("archive.csv", std::string_view("PK\3\4\x14\0\6\0\x08\0!\0book,1\n", 19)), ORVA_E_FORMAT);
    titles(files::write("zeros.csv", std::string(3000, '\0')), ORVA_E_FORMAT);
    titles(inHome("not-there.csv"), ORVA_E_NOT_FOUND);
    titles(inHome("."), ORVA_E_FORMAT);
}

TEST(titlesOfAWrittenFileComeBack)
{
    const FreshStore store;
    const int id = add(local, {"Anna", "1", "2", "3", "a@example.com", "hi"});
    CHECK_EQ(exportTo(inHome("out.csv"), {id}, local), ORVA_OK);
    CHECK_EQ(titles(inHome("out.csv")), "Name,Mobile,officePhone,homePhone,email,remark");
    CHECK_EQ(add(ORVA_MEMORY_CARD, {"Card", "5"}), 1);
    CHECK_EQ(exportTo(inHome("card.csv"), {1}, ORVA_MEMORY_CARD), ORVA_OK);
    CHECK_EQ(titles(inHome("card.csv")), "Name,Number");
    CHECK_EQ(files::read(inHome("card.csv")), "\xEF\xBB\xBFName,Number\r\nCard,5\r\n");
}

TEST(anImportStoresNothing)
{
    const FreshStore store;
    const std::string path = files::write("i.csv", "Name,Mobile\nAnna,+49 30 1\nBo,2\n");
    const std::vector<Record> records = import(path, {0, 1, -1, -1, -1, -1}, local);
    REQUIRE(records.size() == 2);
    CHECK_EQ(records[0].values[0], "Anna");
    CHECK_EQ(records[0].values[1], "+49301");
    CHECK_EQ(records[0].values[5], "");
    CHECK_EQ(stored(local).size(), 0U);
    int size = -1;
    CHECK_EQ(ORVA_PBSrv_GetSize(local, &size), ORVA_OK);
    CHECK_EQ(size, 0);
}

TEST(anImportFitsTheMemoryItIsFor)
{
    const FreshStore store;
    const std::string path = files::write("i.csv", "Name,Mobile\nAnna,+49 30 1\n");
    const std::vector<Record> records = import(path, {0, 1}, ORVA_MEMORY_CARD);
    REQUIRE(records.size() == 1);
    CHECK_EQ(records[0].values.size(), 2U);
    CHECK_EQ(records[0].values[1], "+49301");
    CHECK_EQ(ORVA_Sim_SetCard(0), ORVA_OK);
    void* set = nullptr;
    int map[] = {0, 1};
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(api(utf16(path)), map, ORVA_MEMORY_CARD, &set), ORVA_E_ABSENT);
    CHECK(set == nullptr);
}

TEST(aFileWithNoUsableRowsGivesACodeAndNoSet)
{
    const FreshStore store;
    import(files::write("t.csv", "Name,Mobile\n"), {0, 1, -1, -1, -1, -1}, local, ORVA_E_FORMAT);
    import(files::write("e.csv", ""), {0, 1, -1, -1, -1, -1}, local, ORVA_E_FORMAT);
    import(inHome("none.csv"), {0, 1, -1, -1, -1, -1}, local, ORVA_E_NOT_FOUND);
}

TEST(aMapThatLeavesEveryFieldEmptyGivesNoRecords)
{
    const FreshStore store;
    import(files::write("i.csv", "Name,Mobile\nAnna,1\n"), {-1, -1, -1, -1, -1, -1}, local, ORVA_E_FORMAT);
}

TEST(twoColumnsOfTheSameTitleAreToldByPosition)
{
    const FreshStore store;
    const std::string path = files::write("i.csv", "Name,Phone,Phone\nAnna,1,2\n");
    CHECK_EQ(titles(path), "Name,Phone,Phone,Mobile,homePhone,remark,Number");
    CHECK_EQ(import(path, {0, 2, -1, -1, -1, -1}, local)[0].values[1], "2");
}

TEST(rowsThatCannotBeReadAreInTheLog)
{
    const FreshStore store;
    const std::string path = files::write("i.csv", "\xEF\xBB\xBFName,Mobile\nAnna,1\nB\xFF,2\nCarl,3\n");
    CHECK_EQ(import(path, {0, 1, -1, -1, -1, -1}, local).size(), 2U);
    CHECK(log().find("line 3: column 1: row passed over: not text") != std::string::npos);
    CHECK(log().find("Anna") == std::string::npos);
}

TEST(aFileOfBadRowsDoesNotFloodTheLog)
{
    const FreshStore store;
    std::string content = "\xEF\xBB\xBFName,Mobile\nAnna,1\n";
    for (int i = 0; i < 5000; ++i)
        content += "\xFF,2\n";
    CHECK_EQ(import(files::write("i.csv", content), {0, 1, -1, -1, -1, -1}, local).size(), 1U);
    const std::string text = log();
    CHECK(std::count(text.begin(), text.end(), '\n') < 1100);
    CHECK(text.find("4000 more") != std::string::npos);
}

TEST(exportsKeepTheOrderOfTheIdentifiersAndPassOverMissingOnes)
{
    const FreshStore store;
    const int a = add(local, {"A"});
    const int b = add(local, {"B"});
    const int c = add(local, {"C"});
    CHECK_EQ(exportTo(inHome("o.csv"), {c, 9999, a, b, c, -1, 0}, local), ORVA_OK);
    std::string names;
    for (const Record& record : import(inHome("o.csv"), {0, -1, -1, -1, -1, -1}, local))
        names += record.values[0];
    CHECK_EQ(names, "CABC");
}

TEST(anExportOfNobodyIsAFileOfTitles)
{
    const FreshStore store;
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(utf16(inHome("n.csv"))), nullptr, 0, local), ORVA_OK);
    CHECK_EQ(files::read(inHome("n.csv")), "\xEF\xBB\xBFName,Mobile,officePhone,homePhone,email,remark\r\n");
}

TEST(anExportKeepsTheFileThatItReplaces)
{
    const std::string path = write("again.csv", "first");
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(utf16(path)), nullptr, 0, local), ORVA_OK);
    const std::string exported = read(path);
    CHECK(exported != "first");
    CHECK_EQ(read(path + ".~1~"), "first");
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(utf16(path)), nullptr, 0, local), ORVA_OK);
    CHECK_EQ(read(path + ".~1~"), "first");
    CHECK_EQ(read(path + ".~2~"), exported);
}

TEST(aPatternIsNoNameOfAnExport)
{
    const std::string path = inHome("*.csv");
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(utf16(path)), nullptr, 0, local), ORVA_E_ARGUMENT);
    CHECK(access(path.c_str(), F_OK) != 0);
}

TEST(anExportThatFailsLeavesTheOldFile)
{
    const FreshStore store;
    const int id = add(local, {"A"});
    CHECK_EQ(exportTo(inHome("no/such/o.csv"), {id}, local), ORVA_E_STORE);
    CHECK_EQ(exportTo("/dev/full", {id}, local), ORVA_E_STORE);
    const std::string path = files::write("old.csv", "old");
    CHECK_EQ(ORVA_Sim_SetCard(0), ORVA_OK);
    CHECK_EQ(exportTo(path, {id}, ORVA_MEMORY_CARD), ORVA_E_ABSENT);
    CHECK_EQ(files::read(path), "old");
}

TEST(badArgumentsAreCodes)
{
    const FreshStore store;
    const std::u16string path = utf16(files::write("i.csv", "Name\nAnna\n"));
    const std::u16string empty;
    int map[6] = {0, -1, -1, -1, -1, -1};
    int length = 0;
    void* set = &length;
    CHECK_EQ(ORVA_PBSrv_GetFileFieldDescription(nullptr, nullptr, &length), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetFileFieldDescription(api(path), nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetFileFieldDescription(api(empty), nullptr, &length), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(nullptr, map, local, &set), ORVA_E_ARGUMENT);
    CHECK(set == nullptr);
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(api(path), nullptr, local, &set), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(api(path), map, local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(api(path), map, 3, &set), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ImportFromOutlook(nullptr, map, local, &set), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_IsOutlookInstalled(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ExportToFile(nullptr, map, 1, local), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(path), nullptr, 1, local), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(path), map, -1, local), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ExportToFile(api(path), map, 1, 7), ORVA_E_ARGUMENT);
}

TEST(theCodingFunctionTakesTextAndLength)
{
    const FreshStore store;
    short result = -1;
    const std::u16string text = u"Анна Berg";
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 9, true, false, &result), ORVA_OK);
    CHECK_EQ(result, 12);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 4, true, false, &result), ORVA_OK);
    CHECK_EQ(result, 7);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 9, false, false, &result), ORVA_OK);
    CHECK_EQ(result, 19);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 9, true, true, &result), ORVA_OK);
    CHECK_EQ(result, 9);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 0, true, false, &result), ORVA_OK);
    CHECK_EQ(result, 0);
    // A length beyond the end stops at the end.
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 30000, true, true, &result), ORVA_OK);
    CHECK_EQ(result, 9);
    const std::u16string endless(32767, u'ж');
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(endless), 32767, true, false, &result), ORVA_OK);
    CHECK_EQ(result, 32767);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), -1, true, false, &result), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(nullptr, 1, true, false, &result), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(text), 1, true, false, nullptr), ORVA_E_ARGUMENT);
}

TEST(theDemoComesInWhole)
{
    const FreshStore store;
    const std::string folder = check::environment("LINKHAND_SOURCE_DIR") + "/demo/";
    const std::vector<Record> contacts = import(folder + "contacts.csv", {0, 1, 2, 3, 4, 5}, local);
    CHECK(contacts.size() >= 1000);
    for (const Record& record : contacts) {
        CHECK(!record.values[0].empty());
        for (const int field : {1, 2, 3})
            CHECK_EQ(record.values[static_cast<std::size_t>(field)].find_first_not_of("0123456789+*#"),
                     std::string::npos);
    }
    const std::vector<Record> card = import(folder + "card.csv", {0, 1}, ORVA_MEMORY_CARD);
    CHECK_EQ(card.size(), 120U);
    for (const Record& record : card)
        add(ORVA_MEMORY_CARD, record.values);
    CHECK_EQ(stored(ORVA_MEMORY_CARD).size(), 120U);
}

CHECK_MAIN
