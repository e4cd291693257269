// The way back for what was deleted and overwritten.

#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

std::vector<ORVA_BIN_ENTRY> bin()
{
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = -1;
    CHECK_EQ(ORVA_Care_GetBin(local, &entries, &count), ORVA_OK);
    std::vector<ORVA_BIN_ENTRY> all(entries, entries + count);
    CHECK_EQ(ORVA_Care_BinRelease(local, &entries), ORVA_OK);
    CHECK(entries == nullptr);
    return all;
}

Text binValue(int entry, const char* key)
{
    void* record = nullptr;
    if (ORVA_Care_GetBinRecord(local, entry, &record) != ORVA_OK)
        return u"(none)";
    unsigned short* value = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, key, &value), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    return take(value);
}

Text binGroups(int entry)
{
    unsigned short* paths = nullptr;
    return ORVA_Care_GetBinGroups(local, entry, &paths) == ORVA_OK ? take(paths) : Text(u"(none)");
}

int undelete(int entry)
{
    int id = 0;
    CHECK_EQ(ORVA_Care_Undelete(local, entry, &id), ORVA_OK);
    return id;
}

} // namespace

TEST(aDeletedContactComesBackWithItsGroupsUnderANewIdentifier)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna \x4e2d"}, {"Mobile", u"+491715551234"}, {"remark", u"note"}});
    const int friends = addGroup(u"Friends");
    const int choir = addGroup(u"Choir", friends);
    ORVA_PBSrv_AddAddrToGroup(choir, anna, local);
    CHECK(bin().empty());
    const auto before = static_cast<long long>(::time(nullptr));
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    // Another process would find it as well.
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    const auto entries = bin();
    REQUIRE(entries.size() == 1);
    CHECK_EQ(entries[0].record, anna);
    CHECK_EQ(entries[0].reason, ORVA_BIN_DELETED);
    CHECK(entries[0].time >= before && entries[0].time <= static_cast<long long>(::time(nullptr)));
    CHECK_EQ(binValue(entries[0].id, "Name"), u"Anna \x4e2d");
    CHECK_EQ(binGroups(entries[0].id), u"Friends/Choir");
    CHECK_EQ(sizeOf(local), 0);
    const int back = undelete(entries[0].id);
    CHECK(back > anna);
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(valueOf(local, back, "Mobile"), u"+491715551234");
    CHECK_EQ(valueOf(local, back, "remark"), u"note");
    CHECK(membersOf(choir) == std::vector<int>{back});
    CHECK(bin().empty());
    int id = 0;
    CHECK_EQ(ORVA_Care_Undelete(local, entries[0].id, &id), ORVA_E_NOT_FOUND);
    CHECK_EQ(sizeOf(local), 1);
}

TEST(groupsThatWereDeletedSinceAreMadeAgainButNotTwice)
{
    useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const int bert = add(local, {{"Name", u"Bert"}});
    const int friends = addGroup(u"Friends");
    const int choir = addGroup(u"Choir", friends);
    ORVA_PBSrv_AddAddrToGroup(choir, anna, local);
    ORVA_PBSrv_AddAddrToGroup(choir, bert, local);
    ORVA_PBSrv_DelAddrRec(anna, local);
    ORVA_PBSrv_DelAddrRec(bert, local);
    CHECK_EQ(ORVA_PBSrv_DelGroup(friends, local), ORVA_OK);
    CHECK(groupIds().empty());
    const auto entries = bin();
    REQUIRE(entries.size() == 2);
    CHECK_EQ(binValue(entries[0].id, "Name"), u"Bert");
    CHECK_EQ(binGroups(entries[0].id), u"Friends/Choir");
    const int first = undelete(entries[0].id);
    const int second = undelete(entries[1].id);
    const auto groups = groupIds();
    REQUIRE(groups.size() == 2);
    CHECK(groups[0] > choir);
    CHECK(membersOf(groups[1]) == (std::vector<int>{first, second}));
}

TEST(whatAnUpdateOverwritesIsKeptUnlessItIsTheSame)
{
    useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}, {"email", u"anna@example.org"}});
    CHECK_EQ(update(local, anna, {{"Name", u"Anna"}, {"email", u"anna@example.org"}}), ORVA_OK);
    CHECK(bin().empty());
    CHECK_EQ(update(local, anna, {{"Name", u"Anne"}}), ORVA_OK);
    const auto entries = bin();
    REQUIRE(entries.size() == 1);
    CHECK_EQ(entries[0].reason, ORVA_BIN_CHANGED);
    CHECK_EQ(entries[0].record, anna);
    CHECK_EQ(binValue(entries[0].id, "email"), u"anna@example.org");
    const int back = undelete(entries[0].id);
    CHECK_EQ(valueOf(local, back, "Name"), u"Anna");
    CHECK_EQ(valueOf(local, anna, "Name"), u"Anne");
}

TEST(theBinForgetsAfterThirtyDays)
{
    const std::string data = useFreshFolder();
    for (const char16_t* name : {u"old", u"young"})
        ORVA_PBSrv_DelAddrRec(add(local, {{"Name", name}}), local);
    const auto entries = bin();
    REQUIRE(entries.size() == 2);
    ORVA_Sim_Reset(nullptr);
    CHECK_EQ(RawStore(data).ask("UPDATE bin SET time = time - 86400 * 30 - 5 WHERE name = 'old'"), "");
    CHECK_EQ(RawStore(data).ask("UPDATE bin SET time = time - 86400 * 30 + 60 WHERE name = 'young'"), "");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    REQUIRE(bin().size() == 1);
    CHECK_EQ(bin()[0].id, entries[0].id);
    int id = 0;
    CHECK_EQ(ORVA_Care_Undelete(local, entries[1].id, &id), ORVA_E_NOT_FOUND);
    CHECK_EQ(binValue(entries[1].id, "Name"), u"(none)");
    // It is in no file any more once something was written.
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM bin"), "2");
    add(local, {{"Name", u"new"}});
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM bin"), "1");
}

TEST(theBinIsEmptiedByOneEntryOrWhole)
{
    useFreshFolder();
    for (int i = 0; i < 3; ++i)
        ORVA_PBSrv_DelAddrRec(add(local, {{"Name", u"x"}}), local);
    const auto entries = bin();
    CHECK_EQ(ORVA_Care_EmptyBin(local, entries[1].id), ORVA_OK);
    CHECK_EQ(ORVA_Care_EmptyBin(local, entries[1].id), ORVA_E_NOT_FOUND);
    CHECK_EQ(bin().size(), 2U);
    CHECK_EQ(ORVA_Care_EmptyBin(local, 0), ORVA_OK);
    CHECK(bin().empty());
    ORVA_PBSrv_DelAddrRec(add(local, {{"Name", u"x"}}), local);
    CHECK(bin()[0].id > entries[0].id);
}

TEST(aContactThatDoesNotFitStaysInTheBin)
{
    useFreshFolder();
    ORVA_PBSrv_DelAddrRec(add(local, {{"Name", u"Anna"}}), local);
    add(local, {{"Name", u"Bert"}});
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 1), ORVA_OK);
    int id = 0;
    // Also inside a transaction, which goes on.
    ORVA_PBSrv_BeginTransaction(local);
    CHECK_EQ(ORVA_Care_Undelete(local, bin()[0].id, &id), ORVA_E_FULL);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(bin().size(), 1U);
    CHECK_EQ(sizeOf(local), 1);
}

TEST(twoGroupsThatHaveBecomeOneAreJoinedOnce)
{
    useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const int old = addGroup(u"Friends");
    const int other = addGroup(u"Choir");
    ORVA_PBSrv_AddAddrToGroup(old, anna, local);
    ORVA_PBSrv_AddAddrToGroup(other, anna, local);
    ORVA_PBSrv_DelAddrRec(anna, local);
    ORVA_PBSrv_DelGroup(old, local);
    void* group = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrGroup(local, &group) == ORVA_OK);
    ORVA_PBSrv_AddrGroup_SetName(group, api(u"Friends"));
    CHECK_EQ(ORVA_PBSrv_UpdateGroup(group, other), ORVA_OK);
    ORVA_PBSrv_AddrGroup_Release(group);
    const int back = undelete(bin()[0].id);
    CHECK(groupIds() == std::vector<int>{other});
    CHECK(membersOf(other) == std::vector<int>{back});
}

TEST(aContactThatCannotComeBackWithItsGroupsDoesNotComeAtAll)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    ORVA_PBSrv_AddAddrToGroup(addGroup(u"Friends"), anna, local);
    ORVA_PBSrv_DelAddrRec(anna, local);
    CHECK_EQ(RawStore(data).ask("CREATE TRIGGER refused BEFORE INSERT ON memberships BEGIN SELECT RAISE(ABORT, 'no'); "
                                "END"),
             "");
    // Inside a transaction, which goes on.
    ORVA_PBSrv_BeginTransaction(local);
    int id = 0;
    CHECK(ORVA_Care_Undelete(local, bin()[0].id, &id) != ORVA_OK);
    CHECK_EQ(sizeOf(local), 0);
    const int berta = add(local, {{"Name", u"Berta"}});
    ORVA_PBSrv_EndTransaction(local);
    CHECK(idsOf(local) == std::vector<int>{berta});
    CHECK_EQ(bin().size(), 1U);
    CHECK_EQ(RawStore(data).ask("SELECT name FROM records"), "Berta");
}

TEST(aDeletionThatIsNotCommittedLeavesNothingInTheBin)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    ORVA_PBSrv_BeginTransaction(local);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM bin"), "0");
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM bin"), "1");
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM records"), "0");
}

TEST(cardAndDeviceHaveNoBin)
{
    const std::string data = useFreshFolder();
    ORVA_PBSrv_DelAddrRec(add(card, {{"Name", u"Anna"}}), card);
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    int id = 0;
    void* record = nullptr;
    unsigned short* paths = nullptr;
    CHECK_EQ(ORVA_Care_GetBin(card, &entries, &count), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_Undelete(device, 1, &id), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_GetBinRecord(card, 1, &record), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_GetBinGroups(card, 1, &paths), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_EmptyBin(card, 0), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_GetBin(7, &entries, &count), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_GetBin(local, nullptr, &count), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_GetBin(local, &entries, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_EmptyBin(local, -1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_Undelete(local, 1, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(RawStore(data, "card").ask("SELECT count(*) FROM bin"), "0");
}

TEST(aStoreOfAnEarlierReleaseGetsABinAfterABackup)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    ORVA_Sim_Reset(nullptr);
    {
        RawStore raw(data);
        CHECK_EQ(raw.ask("DROP TABLE bin"), "");
        CHECK_EQ(raw.ask("DROP TABLE bin_groups"), "");
        CHECK_EQ(raw.ask("DROP TABLE kept"), "");
        CHECK_EQ(raw.ask("DROP TABLE sync_links"), "");
        CHECK_EQ(raw.ask("DROP TABLE sync_folders"), "");
        CHECK_EQ(raw.ask("PRAGMA user_version = 1"), "");
    }
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(valueOf(local, anna, "Name"), u"Anna");
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK_EQ(bin().size(), 1U);
    bool kept = false;
    for (const auto& entry : fs::directory_iterator(data + "/backups"))
        kept = kept || entry.path().filename().string().find("-migration") != std::string::npos;
    CHECK(kept);
}

TEST(theBinOutlivesDamageAndARestore)
{
    const std::string data = useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const int group = addGroup(u"Friends");
    ORVA_PBSrv_AddAddrToGroup(group, anna, local);
    ORVA_PBSrv_DelAddrRec(anna, local);
    ORVA_PBSrv_DelGroup(group, local);
    const int entry = bin()[0].id;
    const std::string file = data + "/copy.db";
    CHECK_EQ(ORVA_Store_Backup(local, api(Text(file.begin(), file.end()))), ORVA_OK);
    ORVA_Sim_Reset(nullptr);
    CHECK_EQ(RawStore(data).ask("DROP TABLE memberships"), "");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(bin().size(), 1U);
    CHECK_EQ(binGroups(entry), u"Friends");
    CHECK_EQ(binValue(entry, "Name"), u"Anna");
    CHECK_EQ(ORVA_Care_EmptyBin(local, 0), ORVA_OK);
    CHECK_EQ(ORVA_Store_Restore(local, api(Text(file.begin(), file.end()))), ORVA_OK);
    REQUIRE(bin().size() == 1);
    // The restored store fills its bin like any other.
    const int back = undelete(entry);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(back, local), ORVA_OK);
    CHECK_EQ(bin().size(), 1U);
}

CHECK_MAIN
