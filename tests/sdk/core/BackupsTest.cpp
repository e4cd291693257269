// Automatic backups: when they are made, what is one, which stay.

#include <algorithm>
#include <ctime>
#include <fstream>

#include "FaultyVfs.h"
#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

struct Backup {
    std::string name;
    int reason;
    int records;
    long long time;
};

std::vector<Backup> backups(int memory = local)
{
    ORVA_STORE_BACKUP* found = nullptr;
    int count = -1;
    CHECK_EQ(ORVA_Store_GetBackups(memory, &found, &count), ORVA_OK);
    std::vector<Backup> all;
    for (int i = 0; i < count; ++i) {
        std::string name;
        for (const unsigned short* unit = found[i].name; *unit != 0; ++unit)
            name += static_cast<char>(*unit);
        all.push_back({name, found[i].reason, found[i].records, found[i].time});
    }
    CHECK_EQ(ORVA_Store_BackupsRelease(memory, &found), ORVA_OK);
    CHECK(found == nullptr);
    return all;
}

std::string reasons()
{
    std::string all;
    for (const Backup& backup : backups())
        all += std::to_string(backup.reason);
    return all;
}

// Gives a backup another time, some days ago; its new name.
std::string age(const std::string& data, const std::string& name, int days)
{
    const std::time_t then = std::time(nullptr) - 86400LL * days;
    std::tm parts{};
    ::gmtime_r(&then, &parts);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y%m%dT%H%M%SZ", &parts);
    const std::string older = name.substr(0, name.find('-') + 1) + stamp + name.substr(name.find("Z-") + 1);
    fs::rename(data + "/backups/" + name + ".db", data + "/backups/" + older + ".db");
    return older;
}

std::string ageNewest(const std::string& data, int days)
{
    return age(data, backups().front().name, days);
}

bool keepDaily(int memory = local)
{
    int made = -1;
    CHECK_EQ(ORVA_Store_KeepDailyBackup(memory, &made), ORVA_OK);
    return made == 1;
}

long restore(const std::string& name)
{
    return ORVA_Store_RestoreBackup(local, api(Text(name.begin(), name.end())));
}

void addMany(int count)
{
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    for (int i = 0; i < count; ++i)
        add(local, {{"Name", u"N"}});
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
}

void import(const std::string& data, int rows)
{
    const std::string file = data + "/rows.csv";
    std::ofstream out(file);
    out << "Name,Mobile\n";
    for (int i = 0; i < rows; ++i)
        out << "N" << i << "," << i << "\n";
    out.close();
    void* set = nullptr;
    int map[] = {0, 1, -1, -1, -1, -1};
    CHECK_EQ(ORVA_PBSrv_ImportFromFile(api(Text(file.begin(), file.end())), map, local, &set), ORVA_OK);
    ORVA_PBSrv_AddrRecordSet_Release(set);
}

void merge()
{
    const int one = add(local, {{"Name", u"A"}});
    const int two = add(local, {{"Name", u"A"}});
    const ORVA_DUPLICATE pair[] = {{1, 0, one}, {1, 0, two}};
    CHECK_EQ(ORVA_Care_Merge(local, pair, 2), ORVA_OK);
}

} // namespace

TEST(aDayHasOneBackupOfTheUserAlone)
{
    const std::string data = useFreshFolder();
    ::umask(0);
    CHECK(!keepDaily()); // of nothing
    CHECK(!fs::exists(data + "/backups"));
    const int anna = add(local, {{"Name", u"Anna"}});
    CHECK(keepDaily());
    CHECK(!keepDaily());
    ORVA_PBSrv_DelAddrRec(anna, local);
    add(local, {{"Name", u"Berta"}});
    CHECK(!keepDaily());
    REQUIRE(backups().size() == 1);
    CHECK_EQ(backups()[0].reason, ORVA_BACKUP_DAILY);
    CHECK_EQ(backups()[0].records, 1);
    CHECK(std::abs(backups()[0].time - static_cast<long long>(std::time(nullptr))) < 60);
    struct stat state = {};
    CHECK_EQ(::stat((data + "/backups/" + backups()[0].name + ".db").c_str(), &state), 0);
    CHECK_EQ(state.st_mode & 0777, 0600U);
    CHECK_EQ(::stat((data + "/backups").c_str(), &state), 0);
    CHECK_EQ(state.st_mode & 0777, 0700U);
    ::umask(022);
    ageNewest(data, 2);
    CHECK(keepDaily());
    CHECK_EQ(reasons(), std::string("11"));
    CHECK_EQ(restore(backups()[1].name), ORVA_OK);
    CHECK_EQ(valueOf(local, anna, "Name"), u"Anna");
    CHECK(keepDaily(card) == false);
}

TEST(whatHasNotChangedIsNotBackedUpAgain)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    CHECK(keepDaily());
    ageNewest(data, 3);
    ORVA_Sim_Reset(nullptr); // closed, and all in the one file
    fs::last_write_time(data + "/local.db", fs::file_time_type::clock::now() - std::chrono::hours(24 * 4));
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK(!keepDaily());
    add(local, {{"Name", u"Berta"}});
    CHECK(keepDaily());
}

TEST(eachStepThatGoesFarHasABackupBefore)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    merge();
    REQUIRE(reasons() == "4");
    CHECK_EQ(backups()[0].records, 3);
    CHECK_EQ(restore(backups()[0].name), ORVA_OK);
    CHECK_EQ(reasons(), std::string("34"));
    CHECK_EQ(backups()[0].records, 2);
    CHECK_EQ(sizeOf(local), 3);
    // An import is a backup's concern when it begins to change something.
    import(data, 100);
    add(local, {{"Name", u"B"}});
    CHECK_EQ(backups().size(), 2U);
    import(data, 101);
    CHECK_EQ(backups().size(), 2U);
    add(local, {{"Name", u"C"}});
    CHECK_EQ(reasons(), std::string("534"));
    CHECK_EQ(backups()[0].records, 4);
    add(local, {{"Name", u"D"}});
    CHECK_EQ(backups().size(), 3U);
    import(data, 101);
    CHECK_EQ(update(local, 1, {{"Name", u"E"}}), ORVA_OK);
    CHECK_EQ(reasons(), std::string("5534"));
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_IMPORT), ORVA_OK);
    CHECK_EQ(backups().size(), 5U);
}

TEST(theLastTenStayAndTheLastWithFarMoreContacts)
{
    const std::string data = useFreshFolder();
    addMany(7);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    const std::string seven = ageNewest(data, 40);
    addMany(1);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    const std::string eight = ageNewest(data, 39);
    for (int id = 1; id <= 5; ++id)
        ORVA_PBSrv_DelAddrRec(id, local);
    for (int i = 0; i < 14; ++i) {
        CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
        if (i < 4)
            ageNewest(data, 38 - i);
    }
    auto left = backups();
    REQUIRE(left.size() == 11);
    CHECK_EQ(left.back().name, eight); // 8 > 2 * 3
    CHECK_EQ(left.front().records, 3);
    // Four contacts are half of eight: nothing is worth more than the last ten.
    addMany(1);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    left = backups();
    CHECK_EQ(left.size(), 10U);
    CHECK_EQ(left.front().records, 4);
    for (const Backup& backup : left)
        CHECK(backup.name != seven && backup.name != eight);
}

TEST(aRestoreTakesNothingAwayFromItself)
{
    const std::string data = useFreshFolder();
    addMany(1);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    const std::string oldest = ageNewest(data, 9);
    addMany(1);
    for (int i = 0; i < 9; ++i)
        CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    CHECK_EQ(restore(oldest), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(backups().size(), 11U);
    CHECK_EQ(backups().back().name, oldest);
    CHECK_EQ(backups().front().records, 2);
}

TEST(aClockThatWasWrongCostsNoNewBackup)
{
    const std::string data = useFreshFolder();
    addMany(1);
    for (int i = 0; i < 10; ++i) {
        CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_MERGE), ORVA_OK);
        const auto all = backups();
        age(data,
            std::find_if(all.begin(), all.end(), [](const Backup& b) { return b.time < std::time(nullptr) + 60; })
                ->name,
            -400 - i);
    }
    CHECK(keepDaily());
    const auto all = backups();
    CHECK_EQ(all.size(), 11U);
    CHECK_EQ(all.back().reason, ORVA_BACKUP_DAILY);
}

TEST(whatIsDamagedIsMendedAndNotBackedUp)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const int group = addGroup(u"Friends");
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, anna, local), ORVA_OK);
    {
        RawStore raw(data);
        raw.ask("PRAGMA foreign_keys = OFF");
        CHECK_EQ(raw.ask("INSERT INTO memberships (grp, record) VALUES (1, 99)"), "");
    }
    CHECK(keepDaily());
    REQUIRE(backups().size() == 1);
    RawStore copy(data + "/backups", backups()[0].name);
    CHECK_EQ(copy.findings(), "");
    CHECK_EQ(copy.ask("SELECT count(*) FROM memberships"), "1");
    ORVA_STORE_DAMAGE damage = {};
    CHECK_EQ(ORVA_Store_GetDamage(local, 0, &damage), ORVA_OK);
    take(damage.file);
    take(damage.what);
    CHECK(membersOf(group) == std::vector<int>{anna});
}

TEST(aBackupThatCannotBeWrittenLeavesNothingBehind)
{
    faulty::install();
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    long operations = 0;
    faulty::arm(faulty::Fault::Full, -1, false);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    operations = faulty::plan().operations;
    CHECK(operations > 3);
    ageNewest(data, 1);
    for (long at = 0; at < operations; ++at) {
        faulty::arm(faulty::Fault::Full, at, true);
        const long code = ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY);
        faulty::disarm();
        if (faulty::plan().hits > 0)
            CHECK(code == ORVA_E_NO_SPACE || code == ORVA_E_STORE);
        if (code == ORVA_OK)
            ageNewest(data, 2);
        for (const auto& entry : fs::directory_iterator(data + "/backups"))
            CHECK_EQ(entry.path().extension().string(), std::string(".db"));
        CHECK_EQ(sizeOf(local), 1);
    }
    // A merge is not made without one.
    const int one = add(local, {{"Name", u"Anna"}});
    const ORVA_DUPLICATE pair[] = {{1, 0, one - 1}, {1, 0, one}};
    fs::remove_all(data + "/backups");
    std::ofstream(data + "/backups") << "in the way";
    CHECK_EQ(ORVA_Care_Merge(local, pair, 2), ORVA_E_STORE);
    CHECK_EQ(sizeOf(local), 2);
    // An import adds, and goes on.
    import(data, 101);
    CHECK(add(local, {{"Name", u"B"}}) > 0);
}

TEST(whatIsLeftOfABrokenBackupIsNoneAndGoes)
{
    const std::string data = useFreshFolder();
    addMany(1);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    const std::string half = data + "/backups/local-20200101T000000Z-merge.db.part";
    std::ofstream(half) << "half";
    std::ofstream(half + "-journal") << "half";
    std::ofstream(data + "/backups/local-20200101T000000Z-lunch.db") << "another's";
    std::ofstream(data + "/backups/local-20200102T000000Z-daily-3.db") << "no database";
    auto all = backups();
    REQUIRE(all.size() == 2);
    CHECK_EQ(all[1].records, -1);
    CHECK_EQ(restore(all[1].name), ORVA_E_FORMAT);
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    CHECK(fs::exists(half)); // another process may be at it
    for (const std::string& part : {half, half + "-journal"})
        fs::last_write_time(part, fs::file_time_type::clock::now() - std::chrono::hours(25));
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_DAILY), ORVA_OK);
    CHECK(!fs::exists(half));
    CHECK(!fs::exists(half + "-journal"));
    CHECK_EQ(backups(card).size(), 0U);
}

TEST(aFolderElsewhereServesAsWell)
{
    const std::string data = useFreshFolder();
    addMany(1);
    fs::create_directories(data + "/disk");
    fs::create_directory_symlink(data + "/disk", data + "/backups");
    CHECK(keepDaily());
    REQUIRE(backups().size() == 1);
    CHECK_EQ(backups()[0].records, 1);
    CHECK_EQ(restore(backups()[0].name), ORVA_OK);
    CHECK_EQ(backups().size(), 2U);
}

TEST(othersWriteWhileABackupIsMade)
{
    useFreshFolder();
    std::thread writer([] {
        for (int i = 0; i < 100; ++i)
            add(local, {{"Name", u"N"}});
    });
    for (int i = 0; i < 8; ++i)
        CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_MERGE), ORVA_OK);
    writer.join();
    CHECK_EQ(sizeOf(local), 100);
    int before = 100;
    for (const Backup& backup : backups()) {
        CHECK(backup.records >= 0 && backup.records <= before);
        before = backup.records;
    }
}

TEST(whatIsNoBackupGivesACode)
{
    useFreshFolder();
    add(card, {{"Name", u"A"}});
    int made = 0;
    ORVA_STORE_BACKUP* found = nullptr;
    int count = 0;
    CHECK_EQ(restore("local-20200102T000000Z-daily"), ORVA_E_NOT_FOUND);
    CHECK_EQ(restore("../local"), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_Store_RestoreBackup(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_KeepBackup(local, 0), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_KeepBackup(local, 7), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_KeepBackup(7, ORVA_BACKUP_DAILY), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_KeepDailyBackup(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_GetBackups(local, nullptr, &count), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_GetBackups(local, &found, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_KeepBackup(card, ORVA_BACKUP_DAILY), ORVA_OK);
    CHECK_EQ(backups(card).size(), 1U);
    CHECK_EQ(backups(local).size(), 0U);
    ORVA_Sim_SetCard(0);
    CHECK_EQ(ORVA_Store_KeepDailyBackup(card, &made), ORVA_E_ABSENT);
}

CHECK_MAIN
