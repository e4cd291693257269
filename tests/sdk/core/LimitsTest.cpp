// The last number, the longest text, and what lies one beyond.

#include <climits>

#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;

namespace
{

// Has the store go on behind this identifier.
void setCounter(const std::string& data, const char* name, int value)
{
    CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_OK);
    RawStore(data).ask("UPDATE counters SET value = " + std::to_string(value) + " WHERE name = '" + name + "'");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
}

} // namespace

TEST(theLargestRecordIdentifierIsTheLast)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    setCounter(data, "record", INT_MAX - 1);
    CHECK_EQ(add(local, {{"Name", u"Berta"}}), INT_MAX);
    CHECK_EQ(tryAdd(local, {{"Name", u"Carl"}}), -ORVA_E_FULL);
    CHECK(idsOf(local) == (std::vector<int>{1, INT_MAX}));
    // Deleting makes room for a contact, but for no identifier.
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(INT_MAX, local), ORVA_OK);
    CHECK_EQ(tryAdd(local, {{"Name", u"Carl"}}), -ORVA_E_FULL);
    CHECK_EQ(update(local, 1, {{"Name", u"Anton"}}), ORVA_OK);
    CHECK_EQ(valueOf(local, 1, "Name"), u"Anton");
}

TEST(theLargestGroupIdentifierIsTheLast)
{
    const std::string data = useFreshFolder();
    addGroup(u"first");
    setCounter(data, "group", INT_MAX - 1);
    CHECK_EQ(addGroup(u"last"), INT_MAX);
    CHECK_EQ(tryAddGroup(u"too many"), -ORVA_E_FULL);
    CHECK(groupIds() == (std::vector<int>{1, INT_MAX}));
}

TEST(aGroupNameOf1024UnitsIsTheLongest)
{
    useFreshFolder();
    void* group = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrGroup(local, &group) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(group, api(Text(1024, u'g'))), ORVA_OK);
    // What does not fit leaves the name that was set before.
    CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(group, api(Text(1025, u'x'))), ORVA_E_TOO_LONG);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddGroup(group, &id), ORVA_OK);
    ORVA_PBSrv_AddrGroup_Release(group);
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_AddrGroupSet_MoveFirst(set) == ORVA_OK);
    unsigned short* name = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(set, &name), ORVA_OK);
    CHECK(take(name) == Text(1024, u'g'));
    ORVA_PBSrv_AddrGroupSet_Release(set);
}

TEST(aTextOf65536UnitsIsTheLongestThatIsTaken)
{
    useFreshFolder();
    void* record = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrRecord(local, &record) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, "remark", api(Text(65536, u'r'))), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, "remark", api(Text(65537, u'x'))), ORVA_E_TOO_LONG);
    unsigned short* value = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, "remark", &value), ORVA_OK);
    CHECK(take(value) == Text(65536, u'r'));
    // Far beyond what the field holds: taken by the record, refused by the memory.
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_E_TOO_LONG);
    ORVA_PBSrv_AddrRecord_Release(record);
}

CHECK_MAIN
