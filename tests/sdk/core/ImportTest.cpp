// Contacts in from a file, and out again.

#include <sys/stat.h>

#include <fstream>
#include <iterator>

#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"
#include "orva/orva_sync.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

Text wide(const std::string& ascii)
{
    return Text(ascii.begin(), ascii.end());
}

std::string fileOf(const std::string& name, const std::string& content)
{
    const std::string path = folder() + "/" + name;
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string load(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::string vcard(const std::string& name, const std::string& more)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\n" + more + "END:VCARD\r\n";
}

// An import, released at the end of its scope.
class Import
{
public:
    Import(const std::string& file, int existing, int flags = 0, int memory = local)
    {
        ORVA_IMPORT_SETTINGS settings = {};
        settings.existing = existing;
        settings.flags = flags;
        opened = ORVA_Care_OpenImport(memory, api(wide(file)), &settings, &handle);
    }
    ~Import()
    {
        if (handle != nullptr)
            CHECK_EQ(ORVA_Care_Import_Release(handle), ORVA_OK);
    }
    Import(const Import&) = delete;
    Import& operator=(const Import&) = delete;

    long step(int most = 1000) { return ORVA_Care_Import_Step(handle, most); }

    ORVA_IMPORT_COUNTS counts()
    {
        ORVA_IMPORT_COUNTS counts = {};
        CHECK_EQ(ORVA_Care_Import_GetCounts(handle, &counts), ORVA_OK);
        return counts;
    }

    // The outcomes of the last step.
    std::vector<int> outcomes()
    {
        std::vector<int> all;
        ORVA_IMPORT_CONTACT contact;
        long code = ORVA_OK;
        for (int i = 0; (code = ORVA_Care_Import_GetContact(handle, i, &contact)) == ORVA_OK; ++i)
            all.push_back(contact.outcome);
        CHECK_EQ(code, ORVA_E_END);
        return all;
    }

    std::vector<std::pair<int, int>> findings() // lines and reasons
    {
        ORVA_FINDING* found = nullptr;
        int count = 0;
        int total = 0;
        CHECK_EQ(ORVA_Care_Import_GetFindings(handle, &found, &count, &total), ORVA_OK);
        CHECK_EQ(count, total);
        std::vector<std::pair<int, int>> all;
        for (int i = 0; i < count; ++i)
            all.emplace_back(found[i].line, found[i].reason);
        CHECK_EQ(ORVA_Care_FindingsRelease(&found), ORVA_OK);
        return all;
    }

    void* handle = nullptr;
    long opened = ORVA_OK;
};

using Findings = std::vector<std::pair<int, int>>;
using Outcomes = std::vector<int>;

const std::string people = "Name,Mobile,Groups\r\nAda,1,Friends/Choir\r\nBo,2,\r\nCy,3,Friends\r\n";

} // namespace

TEST(aFileComesInWithItsGroups)
{
    useFreshFolder();
    Import import(fileOf("people.csv", people), ORVA_EXISTING_ADD);
    CHECK_EQ(import.step(), ORVA_E_END);
    CHECK_EQ(import.counts().added, 3);
    CHECK_EQ(import.counts().total, 3);
    CHECK(import.findings().empty());
    const std::vector<int> ids = idsOf(local);
    REQUIRE(ids.size() == 3);
    CHECK(valueOf(local, ids[2], "Name") == u"Cy");
    const std::vector<int> groups = groupIds();
    REQUIRE(groups.size() == 2);
    CHECK(membersOf(groups[0]) == std::vector<int>{ids[2]});
    CHECK(membersOf(groups[1]) == std::vector<int>{ids[0]});
    // The end stays the end.
    CHECK_EQ(import.step(), ORVA_E_END);
    CHECK_EQ(sizeOf(local), 3);
}

TEST(aTryStoresNothingAndTellsTheSame)
{
    useFreshFolder();
    add(local, {{"Name", u"bo"}, {"Mobile", u"2"}});
    const std::string file = fileOf("people.csv", people + "Di,abc,\r\n");
    const Outcomes wanted = {ORVA_IMPORT_ADDED, ORVA_IMPORT_SKIPPED, ORVA_IMPORT_ADDED, ORVA_IMPORT_LEFT};
    for (const int flags : {ORVA_IMPORT_TRY, 0}) {
        Import import(file, ORVA_EXISTING_SKIP, flags);
        CHECK_EQ(import.step(), ORVA_E_END);
        CHECK(import.outcomes() == wanted);
        CHECK(import.findings() == Findings({{5, ORVA_FINDING_NUMBER}}));
        CHECK_EQ(import.counts().left, 1);
        CHECK_EQ(sizeOf(local), flags == 0 ? 3 : 1);
        CHECK_EQ(groupIds().size(), flags == 0 ? std::size_t(2) : std::size_t(0));
    }
}

TEST(anUpdateKeepsWhatTheFileDoesNotSay)
{
    useFreshFolder();
    const int id = add(local, {{"Name", u"Ada"}, {"Mobile", u"1"}, {"remark", u"kept"}});
    const std::string file =
        fileOf("ada.vcf", vcard("ADA", "TEL;TYPE=CELL:1\r\nEMAIL:a@example.org\r\nBDAY:1990-01-31\r\n"));
    for (const int wanted : {ORVA_IMPORT_CHANGED, ORVA_IMPORT_SAME}) {
        Import import(file, ORVA_EXISTING_UPDATE);
        CHECK_EQ(import.step(), ORVA_E_END);
        CHECK(import.outcomes() == Outcomes{wanted});
    }
    CHECK_EQ(sizeOf(local), 1);
    CHECK(valueOf(local, id, "Name") == u"ADA");
    CHECK(valueOf(local, id, "remark") == u"kept");
    CHECK(valueOf(local, id, "email") == u"a@example.org");
    void* record = nullptr;
    REQUIRE(ORVA_PBSrv_GetAddrRecord(id, local, &record) == ORVA_OK);
    ORVA_KEPT_PROPERTY property = {};
    CHECK_EQ(ORVA_Care_GetKeptProperty(record, 0, &property), ORVA_OK);
    CHECK(take(property.head) == u"BDAY");
    CHECK(take(property.value) == u"1990-01-31");
    ORVA_PBSrv_AddrRecord_Release(record);
}

TEST(whatACardHasNoFieldForIsKeptOrNamed)
{
    useFreshFolder();
    const std::string file =
        fileOf("one.vcf", vcard("Ada", "TEL;TYPE=CELL:abc\r\nEMAIL:nobody\r\nNOTE:" + std::string(600, 'n') + "\r\n") +
                              vcard("", "X-ONLY:this\r\n"));
    Import import(file, ORVA_EXISTING_ADD);
    CHECK_EQ(import.step(), ORVA_E_END);
    CHECK_EQ(import.counts().added, 1);
    CHECK(import.findings() == Findings({{1, ORVA_FINDING_NOTE_CUT}, {8, ORVA_FINDING_EMPTY}}));
    ORVA_FINDING* kept = nullptr;
    int count = 0;
    CHECK_EQ(ORVA_Care_Import_GetKept(import.handle, &kept, &count), ORVA_OK);
    REQUIRE(count == 2);
    CHECK(Text(reinterpret_cast<char16_t*>(kept[0].name)) == u"EMAIL");
    CHECK(Text(reinterpret_cast<char16_t*>(kept[1].name)) == u"TEL");
    CHECK_EQ(kept[1].count, 1);
    ORVA_Care_FindingsRelease(&kept);
}

TEST(whoStopsKeepsWhatIsIn)
{
    useFreshFolder();
    std::string rows = "Name,Mobile\r\n";
    for (int i = 0; i < 300; ++i)
        rows += "N" + std::to_string(i) + "," + std::to_string(i) + "\r\n";
    {
        Import import(fileOf("many.csv", rows), ORVA_EXISTING_ADD);
        CHECK_EQ(import.step(250), ORVA_OK);
        CHECK_EQ(import.counts().seen, 250);
        CHECK_EQ(import.counts().total, 300);
        CHECK_EQ(import.outcomes().size(), std::size_t(250));
    }
    CHECK_EQ(sizeOf(local), 250);
    // One of so many is preceded by a backup.
    ORVA_STORE_BACKUP* backups = nullptr;
    int count = 0;
    CHECK_EQ(ORVA_Store_GetBackups(local, &backups, &count), ORVA_OK);
    REQUIRE(count == 1);
    CHECK_EQ(backups[0].reason, ORVA_BACKUP_IMPORT);
    CHECK_EQ(backups[0].records, 0);
    ORVA_Store_BackupsRelease(local, &backups);
}

TEST(everyContactJoinsAGroupThatWasAskedFor)
{
    useFreshFolder();
    Import import(fileOf("people.csv", people), ORVA_EXISTING_ADD, ORVA_IMPORT_NO_GROUPS);
    CHECK_EQ(ORVA_Care_Import_AddGroup(import.handle, api(u"New/ /Ones")), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_Import_AddGroup(import.handle, api(Text(2000, u'g'))), ORVA_E_TOO_LONG);
    CHECK_EQ(ORVA_Care_Import_AddGroup(import.handle, api(u"New/Ones")), ORVA_OK);
    CHECK_EQ(import.step(), ORVA_E_END);
    CHECK(import.findings().empty());
    const std::vector<int> groups = groupIds();
    REQUIRE(groups.size() == 2);
    CHECK_EQ(membersOf(groups[1]).size(), std::size_t(3));
}

TEST(aCardTakesWhatFitsAndCutsNames)
{
    useFreshFolder();
    const std::string file = fileOf("card.csv", "Name,Number,Groups\r\n" + std::string(40, 'x') + ",1,Friends\r\nBo," +
                                                    std::string(60, '1') + ",\r\n");
    Import import(file, ORVA_EXISTING_ADD, 0, card);
    CHECK_EQ(ORVA_Care_Import_AddGroup(import.handle, api(u"Friends")), ORVA_E_UNSUPPORTED);
    CHECK_EQ(import.step(), ORVA_E_END);
    CHECK(import.findings() ==
          Findings({{2, ORVA_FINDING_NAME_CUT}, {3, ORVA_FINDING_TOO_LONG}, {0, ORVA_FINDING_GROUPS}}));
    CHECK_EQ(sizeOf(card), 1);
    Import cards(fileOf("ada.vcf", vcard("Ada", "")), ORVA_EXISTING_ADD, 0, card);
    CHECK_EQ(cards.step(), ORVA_E_UNSUPPORTED);
}

TEST(aMemoryThatIsFullSaysSoOnceAndStillTakesChanges)
{
    useFreshFolder();
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 2), ORVA_OK);
    add(local, {{"Name", u"Bo"}, {"Mobile", u"2"}});
    Import import(fileOf("people.csv", "Name,Mobile,Notes\r\nAda,1,\r\nCy,3,\r\nDi,4,\r\nBo,2,new\r\n"),
                  ORVA_EXISTING_UPDATE);
    CHECK_EQ(import.step(), ORVA_E_END);
    CHECK(import.outcomes() == Outcomes({ORVA_IMPORT_ADDED, ORVA_IMPORT_LEFT, ORVA_IMPORT_LEFT, ORVA_IMPORT_CHANGED}));
    CHECK(import.findings() == Findings({{3, ORVA_FINDING_FULL}}));
}

TEST(aFailureEndsTheImport)
{
    useFreshFolder();
    Import none(folder() + "/nowhere.csv", ORVA_EXISTING_ADD);
    CHECK_EQ(none.opened, ORVA_OK);
    CHECK_EQ(none.step(), ORVA_E_NOT_FOUND);
    CHECK_EQ(none.step(), ORVA_E_NOT_FOUND);
    Import unknown(fileOf("shoes.csv", "Shoe,Hat\r\n38,7\r\n"), ORVA_EXISTING_ADD);
    CHECK_EQ(unknown.step(), ORVA_E_FORMAT);
    // What it met before it failed is told.
    Import empty(fileOf("empty.csv", "Name,Mobile\r\n,\r\n"), ORVA_EXISTING_ADD);
    CHECK_EQ(empty.step(), ORVA_E_FORMAT);
    CHECK(empty.findings() == Findings({{2, ORVA_FINDING_EMPTY}}));
}

TEST(settingsAreLookedAt)
{
    useFreshFolder();
    ORVA_IMPORT_SETTINGS settings = {};
    void* import = nullptr;
    CHECK_EQ(ORVA_Care_OpenImport(local, api(u"file"), nullptr, &import), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_OpenImport(2, api(u"file"), &settings, &import), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_OpenImport(local, api(u""), &settings, &import), ORVA_E_ARGUMENT);
    settings.existing = 3;
    CHECK_EQ(ORVA_Care_OpenImport(local, api(u"file"), &settings, &import), ORVA_E_ARGUMENT);
    CHECK(import == nullptr);
    CHECK_EQ(ORVA_Care_Import_Step(&settings, 1), ORVA_E_HANDLE);
    Import nothing(fileOf("people.csv", people), ORVA_EXISTING_ADD);
    CHECK_EQ(nothing.step(0), ORVA_E_ARGUMENT);
}

TEST(anExportKeepsTheFileThatWasThere)
{
    useFreshFolder();
    Import import(fileOf("people.csv", people), ORVA_EXISTING_ADD);
    CHECK_EQ(import.step(), ORVA_E_END);
    for (const std::string name : {"out.csv", "out.vcf"}) {
        const std::string file = fileOf(name, "old");
        int written = 0;
        CHECK_EQ(ORVA_Care_Export(local, api(wide(file)), ORVA_FORMAT_ANY, nullptr, 0, &written), ORVA_OK);
        CHECK_EQ(written, 3);
        CHECK_EQ(load(file + ".~1~"), std::string("old"));
        CHECK(load(file).find("Friends/Choir") != std::string::npos);
        CHECK_EQ(load(file).rfind(name == "out.vcf" ? "BEGIN:VCARD" : "\xEF\xBB\xBFName,", 0), std::size_t(0));
    }
    const int two[] = {3, 9, 1};
    const std::string some = folder() + "/some.csv";
    CHECK_EQ(ORVA_Care_Export(local, api(wide(some)), ORVA_FORMAT_ROWS, two, 3, nullptr), ORVA_OK);
    CHECK(load(some).find("Cy,3") < load(some).find("Ada,1"));
    CHECK(load(some).find("Bo") == std::string::npos);
    CHECK_EQ(ORVA_Care_Export(local, api(wide(folder() + "/*.vcf")), ORVA_FORMAT_ANY, nullptr, 0, nullptr),
             ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_Export(card, api(wide(folder() + "/card.vcf")), ORVA_FORMAT_ANY, nullptr, 0, nullptr),
             ORVA_E_UNSUPPORTED);
}

namespace
{

// Breaks an export off once it has come so far.
struct BreakOff {
    int at;
    int calls = 0;
    int total = 0;
};

int breakOff(int done, int total, void* data)
{
    BreakOff& wish = *static_cast<BreakOff*>(data);
    ++wish.calls;
    wish.total = total;
    return done >= wish.at ? 1 : 0;
}

} // namespace

TEST(aPipeThatNobodyWritesIsRefused)
{
    useFreshFolder();
    for (const std::string name : {"/pipe.vcf", "/pipe.csv", "/pipe"}) {
        const std::string pipe = folder() + name;
        CHECK_EQ(mkfifo(pipe.c_str(), 0600), 0);
        Import import(pipe, ORVA_EXISTING_ADD);
        CHECK_EQ(import.step(), ORVA_E_FORMAT);
    }
}

TEST(anExportThatIsBrokenOffLeavesTheOldFile)
{
    useFreshFolder();
    std::string rows = "Name,Mobile\n";
    for (int i = 0; i < 600; ++i)
        rows += "N" + std::to_string(i) + "," + std::to_string(i) + "\n";
    Import import(fileOf("many.csv", rows), ORVA_EXISTING_ADD);
    CHECK_EQ(import.step(1000), ORVA_E_END);
    for (const std::string name : {"part.csv", "part.vcf"}) {
        const std::string file = fileOf(name, "old");
        BreakOff wish = {1};
        int written = -1;
        CHECK_EQ(ORVA_Care_ExportWithProgress(local, api(wide(file)), ORVA_FORMAT_ANY, nullptr, 0, &written, breakOff,
                                              &wish),
                 ORVA_E_CANCELLED);
        CHECK_EQ(wish.calls, 2);
        CHECK_EQ(wish.total, 600);
        CHECK_EQ(written, -1);
        CHECK_EQ(load(file), std::string("old"));
        CHECK(!std::ifstream(file + ".~1~"));
        BreakOff none = {601};
        CHECK_EQ(ORVA_Care_ExportWithProgress(local, api(wide(file)), ORVA_FORMAT_ANY, nullptr, 0, &written, breakOff,
                                              &none),
                 ORVA_OK);
        CHECK_EQ(written, 600);
        CHECK(none.calls >= 3);
    }
}

CHECK_MAIN
