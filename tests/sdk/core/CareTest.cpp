// Check, backup and restore.

#include <fstream>

#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

Text path(const std::string& bytes)
{
    return Text(bytes.begin(), bytes.end());
}

long backup(const std::string& file, int memory = local)
{
    return ORVA_Store_Backup(memory, api(path(file)));
}

long restore(const std::string& file, int memory = local)
{
    return ORVA_Store_Restore(memory, api(path(file)));
}

int countAside(const std::string& data, const std::string& word)
{
    int count = 0;
    for (const auto& entry : fs::directory_iterator(data))
        count += entry.path().filename().string().find(word) != std::string::npos ? 1 : 0;
    return count;
}

} // namespace

TEST(aSoundStoreHasNoFindings)
{
    useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    int findings = -1;
    for (const int memory : {local, card, device}) {
        CHECK_EQ(ORVA_Store_Check(memory, &findings), ORVA_OK);
        CHECK_EQ(findings, 0);
    }
    CHECK_EQ(ORVA_Store_Check(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_Check(2, &findings), ORVA_E_ARGUMENT);
    ORVA_Sim_SetCard(0);
    CHECK_EQ(ORVA_Store_Check(card, &findings), ORVA_E_ABSENT);
}

TEST(aMembershipWithoutItsRecordIsAFinding)
{
    const std::string data = useFreshFolder();
    const int id = add(local, {{"Name", u"Anna"}});
    const int group = addGroup(u"group");
    ORVA_PBSrv_AddAddrToGroup(group, id, local);
    RawStore raw(data);
    raw.ask("PRAGMA foreign_keys = OFF");
    raw.ask("DELETE FROM records");
    int findings = -1;
    CHECK_EQ(ORVA_Store_Check(local, &findings), ORVA_OK);
    CHECK_EQ(findings, 1);
}

TEST(aBackupHoldsWhatWasThereAndRestoringBringsItBack)
{
    const std::string data = useFreshFolder();
    const std::string file = data + "/copy.db";
    const int anna = add(local, {{"Name", u"Anna \x4e2d"}});
    const int group = addGroup(u"group");
    ORVA_PBSrv_AddAddrToGroup(group, anna, local);
    // Also what is not committed yet.
    ORVA_PBSrv_BeginTransaction(local);
    const int berta = add(local, {{"Name", u"Berta"}});
    CHECK_EQ(backup(file), ORVA_OK);
    ORVA_PBSrv_EndTransaction(local);
    struct stat state = {};
    CHECK_EQ(::stat(file.c_str(), &state), 0);
    CHECK_EQ(state.st_mode & 0777, 0600U);
    CHECK(!fs::exists(file + "-wal"));
    // Never over another file.
    CHECK_EQ(backup(file), ORVA_E_STORE);

    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    const int late = add(local, {{"Name", u"late"}});
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetAddrRecList(local, &set) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_AddrRecordSet_MoveFirst(set) == ORVA_OK);
    CHECK_EQ(restore(file), ORVA_OK);
    CHECK(idsOf(local) == (std::vector<int>{anna, berta}));
    CHECK_EQ(valueOf(local, anna, "Name"), u"Anna \x4e2d");
    CHECK(membersOf(group) == std::vector<int>{anna});
    // An open set goes on over what is there now.
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_E_END);
    ORVA_PBSrv_AddrRecordSet_Release(set);
    // What was there before the restore is kept, and its identifiers are not used again.
    CHECK_EQ(countAside(data + "/backups", "-restore"), 1);
    CHECK(add(local, {{"Name", u"new"}}) > late);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 3);
    CHECK_EQ(RawStore(data).findings(), "");
}

TEST(whatIsNoBackupIsRefusedAndChangesNothing)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    add(card, {{"Name", u"Anna"}});
    const std::string file = data + "/copy.db";
    CHECK_EQ(restore(data + "/none.db"), ORVA_E_NOT_FOUND);
    CHECK_EQ(restore(data + "/none/none.db"), ORVA_E_NOT_FOUND);
    CHECK_EQ(restore(""), ORVA_E_ARGUMENT);
    CHECK_EQ(restore(data + "/"), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_Restore(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_Backup(local, nullptr), ORVA_E_ARGUMENT);
    std::ofstream(file) << std::string(5000, 'x');
    CHECK_EQ(restore(file), ORVA_E_FORMAT);
    fs::remove(file);
    std::ofstream(file).close();
    CHECK_EQ(restore(file), ORVA_E_FORMAT);
    // A card's store has other columns.
    fs::remove(file);
    CHECK_EQ(backup(file, card), ORVA_OK);
    CHECK_EQ(restore(file), ORVA_E_FORMAT);
    // A damaged one, and a newer one.
    fs::remove(file);
    CHECK_EQ(backup(file), ORVA_OK);
    RawStore(data, "copy").ask("PRAGMA user_version = 99");
    CHECK_EQ(restore(file), ORVA_E_VERSION);
    RawStore(data, "copy").ask("PRAGMA user_version = 1");
    fs::resize_file(file, fs::file_size(file) / 2);
    CHECK_EQ(restore(file), ORVA_E_FORMAT);
    CHECK_EQ(sizeOf(local), 1);
    CHECK(!fs::exists(data + "/backups"));
    CHECK_EQ(RawStore(data).findings(), "");
}

TEST(aBackupCannotGoWhereThereIsNoFolder)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    CHECK_EQ(backup(data + "/none/copy.db"), ORVA_E_NOT_FOUND);
    fs::create_symlink(data + "/elsewhere", data + "/link.db");
    CHECK_EQ(backup(data + "/link.db"), ORVA_E_STORE);
    CHECK(!fs::exists(data + "/elsewhere"));
}

CHECK_MAIN
