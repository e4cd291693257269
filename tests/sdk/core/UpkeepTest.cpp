// What keeps a store and its folder in order: backups that are worth one, a log of whole lines, files put aside without
// loss, a kept state of the hardware that is read with care.

#include <fstream>

#include "Phonebook.h"
#include "RawStore.h"
#include "base/DataFolder.h"
#include "devices/HardwareState.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"
#include "store/Damage.h"
#include "store/Schema.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

Text path(const std::string& bytes)
{
    return Text(bytes.begin(), bytes.end());
}

int countAside(const std::string& data, const std::string& word)
{
    int count = 0;
    for (const auto& entry : fs::directory_iterator(data))
        count += entry.path().filename().string().find(word) != std::string::npos ? 1 : 0;
    return count;
}

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

int kept(const std::string& line, int orva::HardwareState::*member)
{
    return orva::readHardwareState(line + "\n").*member;
}

} // namespace

// ---- Backups

TEST(aBackupWithAMembershipOfNobodyIsRefused)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const int group = addGroup(u"group");
    ORVA_PBSrv_AddAddrToGroup(group, anna, local);
    const std::string file = data + "/copy.db";
    CHECK_EQ(ORVA_Store_Backup(local, api(path(file))), ORVA_OK);
    {
        RawStore raw(data, "copy");
        raw.ask("PRAGMA foreign_keys = OFF");
        raw.ask("DELETE FROM records");
    }
    CHECK_EQ(ORVA_Store_Restore(local, api(path(file))), ORVA_E_FORMAT);
    CHECK(membersOf(group) == std::vector<int>{anna});
    CHECK(!fs::exists(data + "/backups"));
}

TEST(identifiersGivenOutSinceTheBackupAreNotGivenOutByTheNextProcess)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    addGroup(u"group");
    const std::string file = data + "/copy.db";
    CHECK_EQ(ORVA_Store_Backup(local, api(path(file))), ORVA_OK);
    const int record = add(local, {{"Name", u"late"}});
    const int group = addGroup(u"late");
    CHECK_EQ(ORVA_Store_Restore(local, api(path(file))), ORVA_OK);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(add(local, {{"Name", u"new"}}), record + 1);
    CHECK_EQ(addGroup(u"new"), group + 1);
}

TEST(restoringAgainAtOnceKeepsEachStoreThatWasThere)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    const std::string file = data + "/copy.db";
    CHECK_EQ(ORVA_Store_Backup(local, api(path(file))), ORVA_OK);
    // Far more within a second than its names have seconds.
    for (int i = 0; i < 5; ++i)
        CHECK_EQ(ORVA_Store_Restore(local, api(path(file))), ORVA_OK);
    CHECK_EQ(countAside(data + "/backups", "-restore"), 5);
    CHECK_EQ(sizeOf(local), 1);
}

TEST(whatWasGivenOutBeforeTheDamageIsNotGivenOutAfterIt)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    const int record = add(local, {{"Name", u"late"}});
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(record, local), ORVA_OK);
    addGroup(u"group");
    const int group = addGroup(u"late");
    CHECK_EQ(ORVA_PBSrv_DelGroup(group, local), ORVA_OK);
    CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_OK);
    CHECK_EQ(RawStore(data).ask("DROP TABLE memberships"), "");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK(countAside(data, "damaged") > 0);
    CHECK(groupIds() == std::vector<int>{1});
    CHECK_EQ(add(local, {{"Name", u"new"}}), record + 1);
    CHECK_EQ(addGroup(u"new"), group + 1);
}

// ---- Files

TEST(everyConnectionWaitsForTheDiskAndForgetsWhatIsDeleted)
{
    const std::string file = useFreshFolder() + "/other.db";
    fs::create_directories(fs::path(file).parent_path());
    std::ofstream(file).close();
    orva::Database db(fs::canonical(file).string(), orva::Database::Mode::ReadWrite);
    orva::createSchema(db, {"name"}, 1);
    const int full = 2;
    const int fast = 2;
    CHECK_EQ(db.queryInt("PRAGMA synchronous"), full);
    CHECK_EQ(db.queryInt("PRAGMA secure_delete"), fast);
    CHECK_EQ(db.queryInt("PRAGMA foreign_keys"), 1);
}

TEST(aDeletedContactIsNotLeftInTheFileOnceTheBinIsEmptied)
{
    const std::string data = useFreshFolder();
    const int id = add(local, {{"Name", u"Geheimrat Anselm"}, {"remark", u"somewhere in the hills"}});
    add(local, {{"Name", u"Berta"}});
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(id, local), ORVA_OK);
    CHECK_EQ(ORVA_Care_EmptyBin(local, 0), ORVA_OK);
    CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_OK);
    CHECK(!fs::exists(data + "/local.db-wal"));
    const std::string content = contentOf(data + "/local.db");
    const Text left = u"in the hills";
    const std::string bytes(reinterpret_cast<const char*>(left.data()), left.size() * sizeof left[0]);
    CHECK(content.size() > bytes.size());
    CHECK(content.find(bytes) == std::string::npos);
}

TEST(rightsOfTheGroupAloneAreTakenOffAStore)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_OK);
    fs::permissions(data + "/local.db", fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK(fs::status(data + "/local.db").permissions() == (fs::perms::owner_read | fs::perms::owner_write));
}

TEST(aDataHomeThatIsNoAbsolutePathCountsAsNone)
{
    CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_OK);
    const char* const own = std::getenv("LINKHAND_DATA_DIR");
    const std::string before = own != nullptr ? own : "";
    ::unsetenv("LINKHAND_DATA_DIR");
    ::setenv("HOME", "/home/of/nobody", 1);
    ::setenv("XDG_DATA_HOME", "relative/path", 1);
    CHECK_EQ(orva::dataFolder(), "/home/of/nobody/.local/share/linkhand");
    ::setenv("XDG_DATA_HOME", "", 1);
    CHECK_EQ(orva::dataFolder(), "/home/of/nobody/.local/share/linkhand");
    ::setenv("XDG_DATA_HOME", "/data", 1);
    CHECK_EQ(orva::dataFolder(), "/data/linkhand");
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("LINKHAND_DATA_DIR", before.c_str(), 1);
}

TEST(aLineOfTheLogIsOneLineWhateverAPathHolds)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    CHECK_EQ(ORVA_Store_Backup(local, api(path(data + "/none\n2026-01-01 forged\r\t\x1b[2J/copy.db"))),
             ORVA_E_NOT_FOUND);
    const std::string log = contentOf(data + "/log/sdk.log");
    CHECK(log.find("/none 2026-01-01 forged   [2J") != std::string::npos);
    for (const char character : log)
        CHECK(character == '\n' || static_cast<unsigned char>(character) >= ' ');
}

// ---- The hardware's state

TEST(aKeptNumberCountsOnlyWholeAndInItsRange)
{
    using State = orva::HardwareState;
    CHECK_EQ(kept("card=0", &State::card), 0);
    CHECK_EQ(kept("card=0x", &State::card), 1);
    CHECK_EQ(kept("card=0 ", &State::card), 1);
    CHECK_EQ(kept("card=", &State::card), 1);
    CHECK_EQ(kept("card=2", &State::card), 1);
    CHECK_EQ(kept("card=-1", &State::card), 1);
    CHECK_EQ(kept("card=99999999999", &State::card), 1);
    CHECK_EQ(kept("deviceFields=1", &State::deviceFields), 2);
    CHECK_EQ(kept("deviceFields=0", &State::deviceFields), 2);
    CHECK_EQ(kept("deviceFields=4", &State::deviceFields), 4);
    CHECK_EQ(kept("deviceFields=5", &State::deviceFields), 2);
    CHECK_EQ(kept("cardName=0", &State::cardNameLength), 14);
    CHECK_EQ(kept("cardName=255", &State::cardNameLength), 255);
    CHECK_EQ(kept("cardName=256", &State::cardNameLength), 14);
    CHECK_EQ(kept("multiMode1=255", &State::multiModeFirst), 255);
    CHECK_EQ(kept("multiMode2=256", &State::multiModeSecond), 0);
    CHECK_EQ(kept("deviceCapacity=1000000", &State::deviceCapacity), 1000000);
    CHECK_EQ(kept("deviceCapacity=1000001", &State::deviceCapacity), 500);
    CHECK_EQ(kept("pin=-7", &State::pinStatus), -7);
}

TEST(whatAnotherProcessHasSwitchedStaysAsItIs)
{
    orva::HardwareState before;
    orva::HardwareState after = before;
    after.network = 1;
    after.pinStatus = 3;
    orva::HardwareState disk = before;
    disk.network = 7;
    disk.card = 0;
    disk.radioFirst = 5;
    const orva::HardwareState merged = orva::withChanges(disk, before, after);
    CHECK_EQ(merged.network, 1);
    CHECK_EQ(merged.pinStatus, 3);
    CHECK_EQ(merged.card, 0);
    CHECK_EQ(merged.radioFirst, 5);
}

// ---- The note on a damage

TEST(whatWasFoundInSeveralLinesIsRememberedInOne)
{
    const std::string store = useFreshFolder() + "/local.db";
    add(local, {{"Name", u"Anna"}});
    REQUIRE(fs::exists(store));
    orva::Damage damage;
    damage.time = 1700000000;
    damage.records = 7;
    damage.file = store;
    damage.what = "*** in database main ***\nfile=/nowhere\r\nrecords=0";
    orva::rememberDamage(store, damage);
    const auto found = orva::rememberedDamage(store);
    REQUIRE(found.has_value());
    CHECK_EQ(found->file, store);
    CHECK_EQ(found->records, 7);
    CHECK_EQ(found->time, 1700000000LL);
    CHECK_EQ(found->what, "*** in database main *** file=/nowhere  records=0");
    CHECK(!found->told);
}

CHECK_MAIN
