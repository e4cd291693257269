// What is exported comes back unchanged.

#include <algorithm>
#include <random>

#include "SdkFiles.h"

using namespace files;

namespace
{

// Pieces of text in many scripts, and everything that means something in a CSV file.
const std::vector<std::string> pieces = {"Anna",   "Müller", "Łukasz", "Øyvind", "Ελένη",
                                         "Иван",   "محمد",   "דוד",    "王小明", "佐藤",
                                         "김민준", "सीता",   "สมชาย",  "😀",      "👩‍👩‍👧",
                                         "é",      "\u00A0", "\u200F", ",",      ";",
                                         "\t",     "\"",     "\"\"",   "\r\n",   "\n",
                                         "\r",     " ",      "  ",     "'",      "=1+1",
                                         "@",      "-",      "|",      "sep=;",  "\\",
                                         "0049",   "1e5",    "\u2028", "\uFEFF", "a,\"b\"",
                                         "\x7F",   "€",      "/",      "NULL"};

std::string randomText(std::mt19937& random, std::size_t unitsAtMost)
{
    std::string text;
    for (unsigned n = random() % 8; n > 0; --n) {
        const std::string next = text + pieces[random() % pieces.size()];
        if (utf16(next).size() <= unitsAtMost)
            text = next;
    }
    return text;
}

// A row of nothing else is no contact.
bool isBlank(const std::string& text)
{
    return text.find_first_not_of(" \t") == std::string::npos;
}

std::string randomNumber(std::mt19937& random)
{
    std::string number = random() % 2 == 0 ? "+" : "";
    for (unsigned n = random() % 15; n > 0; --n)
        number += "0123456789*#"[random() % 12];
    return number;
}

// Any other text is no e-mail address, and comes in as a note.
std::string randomEmail(std::mt19937& random)
{
    std::string text;
    for (unsigned n = random() % 80; n > 0; --n)
        text += "abcXYZ0189._-"[random() % 13];
    return text.empty() ? text : "a" + text + "z@example.org";
}

} // namespace

TEST(randomContactsComeBackUnchanged)
{
    const FreshStore store;
    std::mt19937 random(3);
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL), ORVA_OK);
    std::vector<std::vector<std::string>> expected;
    std::vector<int> ids;
    for (int i = 0; i < 2000; ++i) {
        expected.push_back({randomText(random, 100), randomNumber(random), randomNumber(random), randomNumber(random),
                            randomEmail(random), randomText(random, 500)});
        if (std::all_of(expected.back().begin(), expected.back().end(), isBlank))
            expected.back()[0] = "somebody";
        ids.push_back(add(ORVA_MEMORY_LOCAL, expected.back()));
    }
    CHECK_EQ(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL), ORVA_OK);
    const std::string path = inHome("all.csv");
    REQUIRE(exportTo(path, ids, ORVA_MEMORY_LOCAL) == ORVA_OK);
    const std::vector<Record> back = import(path, {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL);
    REQUIRE(back.size() == expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        for (std::size_t field = 0; field < expected[i].size(); ++field)
            if (!CHECK_EQ(back[i].values[field], expected[i][field]))
                return;
}

TEST(eachPieceAloneComesBackUnchanged)
{
    const FreshStore store;
    std::vector<int> ids;
    for (const std::string& piece : pieces)
        ids.push_back(add(ORVA_MEMORY_LOCAL, {piece, isBlank(piece) ? "1" : "", "", "", "", piece}));
    const std::string path = inHome("pieces.csv");
    REQUIRE(exportTo(path, ids, ORVA_MEMORY_LOCAL) == ORVA_OK);
    const std::vector<Record> back = import(path, {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL);
    REQUIRE(back.size() == pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        CHECK_EQ(back[i].values[0], pieces[i]);
        CHECK_EQ(back[i].values[5], pieces[i]);
    }
}

TEST(aSecondExportIsTheSameFile)
{
    const FreshStore store;
    std::mt19937 random(4);
    std::vector<int> ids;
    for (int i = 0; i < 200; ++i)
        ids.push_back(add(ORVA_MEMORY_LOCAL, {"x" + randomText(random, 90), randomNumber(random)}));
    REQUIRE(exportTo(inHome("first.csv"), ids, ORVA_MEMORY_LOCAL) == ORVA_OK);
    std::vector<int> again;
    again.reserve(ids.size());
    for (const Record& record : import(inHome("first.csv"), {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL))
        again.push_back(add(ORVA_MEMORY_LOCAL, record.values));
    REQUIRE(exportTo(inHome("second.csv"), again, ORVA_MEMORY_LOCAL) == ORVA_OK);
    CHECK(files::read(inHome("first.csv")) == files::read(inHome("second.csv")));
}

TEST(groupsStandInALastColumnWhereSomebodyIsInOne)
{
    const FreshStore store;
    const auto group = [](const char* name, int parent) {
        void* made = nullptr;
        int id = 0;
        CHECK_EQ(ORVA_PBSrv_CreateAddrGroup(ORVA_MEMORY_LOCAL, &made), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(made, api(utf16(name))), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddrGroup_SetParentID(made, parent), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddGroup(made, &id), ORVA_OK);
        ORVA_PBSrv_AddrGroup_Release(made);
        return id;
    };
    const int friends = group("Friends", 0);
    const int choir = group("Choir", friends);
    const int odd = group("A;B\\", 0);
    const int ada = add(ORVA_MEMORY_LOCAL, {"Ada", "1"});
    const int bo = add(ORVA_MEMORY_LOCAL, {"Bo", "2"});
    for (const int id : {choir, odd})
        CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(id, ada, ORVA_MEMORY_LOCAL), ORVA_OK);
    const std::string path = inHome("groups.csv");
    REQUIRE(exportTo(path, {bo, ada}, ORVA_MEMORY_LOCAL) == ORVA_OK);
    CHECK_EQ(files::read(path), "\xEF\xBB\xBFName,Mobile,officePhone,homePhone,email,remark,Groups\r\n"
                                "Bo,2,,,,,\r\nAda,1,,,,,\"Friends/Choir;A\\;B\\\\\"\r\n");
    CHECK_EQ(import(path, {0, 1, 2, 3, 4, 5}, ORVA_MEMORY_LOCAL).size(), 2U);
    REQUIRE(exportTo(path, {bo}, ORVA_MEMORY_LOCAL) == ORVA_OK);
    CHECK_EQ(files::read(path).find("Groups"), std::string::npos);
}

CHECK_MAIN
