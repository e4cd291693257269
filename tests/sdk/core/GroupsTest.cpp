// Groups and memberships through the C functions.

#include <climits>

#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;

TEST(aGroupSetWithoutGroupsSaysMinusOne)
{
    useFreshFolder();
    void* set = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetGroupList(local, &set), ORVA_OK);
    REQUIRE(set != nullptr);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveFirst(set), -1);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveNext(set), ORVA_E_END);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetID(set, &id), ORVA_E_END);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_Release(set), ORVA_OK);
}

TEST(groupsComeBackWithParentNameAndSize)
{
    useFreshFolder();
    const int family = addGroup(u"Family");
    const int cousins = addGroup(u"Cousins \x4e2d", family);
    const int anna = add(local, {{"Name", u"Anna"}});
    const int berta = add(local, {{"Name", u"Berta"}});
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(cousins, berta, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(cousins, anna, local), ORVA_OK);
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveFirst(set), ORVA_OK);
    int number = -1;
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetID(set, &number), ORVA_OK);
    CHECK_EQ(number, family);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetParentID(set, &number), ORVA_OK);
    CHECK_EQ(number, 0);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetGroupSize(set, &number), ORVA_OK);
    CHECK_EQ(number, 0); // those of its sub-group are not counted
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveNext(set), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetParentID(set, &number), ORVA_OK);
    CHECK_EQ(number, family);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetGroupSize(set, &number), ORVA_OK);
    CHECK_EQ(number, 2);
    unsigned short* name = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(set, &name), ORVA_OK);
    CHECK_EQ(take(name), u"Cousins \x4e2d");
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveNext(set), ORVA_E_END);
    ORVA_PBSrv_AddrGroupSet_Release(set);
    // In the order in which they joined.
    CHECK(membersOf(cousins) == (std::vector<int>{berta, anna}));
    CHECK(membersOf(family).empty());
    CHECK(membersOf(99) == std::vector<int>{-1});
}

namespace
{

// "1 name 2": identifier, name and size of each group, as a list that is fetched now shows them.
std::u16string groupList()
{
    std::u16string text;
    const auto put = [&text](int number) {
        for (const char digit : std::to_string(number))
            text += static_cast<char16_t>(digit);
    };
    void* set = nullptr;
    if (ORVA_PBSrv_GetGroupList(local, &set) != ORVA_OK)
        return u"failed";
    for (long code = ORVA_PBSrv_AddrGroupSet_MoveFirst(set); code == ORVA_OK;
         code = ORVA_PBSrv_AddrGroupSet_MoveNext(set)) {
        int id = 0;
        int size = 0;
        unsigned short* name = nullptr;
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetID(set, &id), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetGroupSize(set, &size), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(set, &name), ORVA_OK);
        put(id);
        text += u" " + take(name) + u" ";
        put(size);
        text += u"; ";
    }
    ORVA_PBSrv_AddrGroupSet_Release(set);
    return text;
}

} // namespace

TEST(everyListShowsWhatWasWrittenBeforeIt)
{
    const std::string folder = useFreshFolder();
    CHECK_EQ(groupList(), u"");
    const int group = addGroup(u"A");
    CHECK_EQ(groupList(), u"1 A 0; ");
    const int anna = add(local, {{"Name", u"Anna"}});
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, anna, local), ORVA_OK);
    CHECK_EQ(groupList(), u"1 A 1; ");
    CHECK_EQ(groupList(), u"1 A 1; ");
    // Inside an open transaction too, and by another connection, such as that of another process.
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK_EQ(groupList(), u"1 A 0; ");
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(groupList(), u"1 A 0; ");
    RawStore other(folder);
    CHECK_EQ(other.ask("UPDATE groups SET name = 'B'"), "");
    CHECK_EQ(groupList(), u"1 B 0; ");
    CHECK_EQ(ORVA_PBSrv_DelGroup(group, local), ORVA_OK);
    CHECK_EQ(groupList(), u"");
}

TEST(aListStaysAsItWasFetched)
{
    useFreshFolder();
    const int group = addGroup(u"A");
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_DelGroup(group, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveFirst(set), ORVA_OK);
    unsigned short* name = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(set, &name), ORVA_OK);
    CHECK_EQ(take(name), u"A");
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveNext(set), ORVA_E_END);
    ORVA_PBSrv_AddrGroupSet_Release(set);
}

TEST(groupZeroIsNoGroupAndJoiningItDoesNothing)
{
    useFreshFolder();
    const int anna = add(local, {});
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(0, anna, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(0, 12345, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_DelAddrFromGroup(0, anna, local), ORVA_E_NOT_FOUND);
}

TEST(joiningTwiceSucceedsAndCountsOnce)
{
    useFreshFolder();
    const int group = addGroup(u"G");
    const int anna = add(local, {});
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, anna, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, anna, local), ORVA_OK);
    CHECK(membersOf(group) == std::vector<int>{anna});
}

TEST(membershipsNeedBothSides)
{
    useFreshFolder();
    const int group = addGroup(u"G");
    const int anna = add(local, {});
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group + 1, anna, local), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, anna + 1, local), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(-1, anna, local), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_DelAddrFromGroup(group, anna, local), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, anna, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_DelAddrFromGroup(group, anna, local), ORVA_OK);
    CHECK(membersOf(group).empty());
    CHECK_EQ(sizeOf(local), 1);
}

TEST(deletingARecordTakesItsMemberships)
{
    useFreshFolder();
    const int first = addGroup(u"1");
    const int second = addGroup(u"2");
    const int anna = add(local, {});
    ORVA_PBSrv_AddAddrToGroup(first, anna, local);
    ORVA_PBSrv_AddAddrToGroup(second, anna, local);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK(membersOf(first).empty());
    CHECK(membersOf(second).empty());
}

TEST(deletingAGroupTakesSubGroupsAndNoContact)
{
    useFreshFolder();
    const int top = addGroup(u"top");
    int below = top;
    const int anna = add(local, {});
    // Deeper than a trigger could go.
    ORVA_PBSrv_BeginTransaction(local);
    for (int depth = 0; depth < 1200; ++depth) {
        below = addGroup(u"below", below);
        ORVA_PBSrv_AddAddrToGroup(below, anna, local);
    }
    const int beside = addGroup(u"beside");
    ORVA_PBSrv_EndTransaction(local);
    CHECK_EQ(ORVA_PBSrv_DelGroup(top, local), ORVA_OK);
    CHECK(groupIds() == std::vector<int>{beside});
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(ORVA_PBSrv_DelGroup(top, local), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_DelGroup(0, local), ORVA_E_NOT_FOUND);
    // Its identifier is not given out again.
    CHECK(addGroup(u"new") > beside);
}

TEST(renamingLeavesTheParentAlone)
{
    useFreshFolder();
    const int top = addGroup(u"top");
    const int sub = addGroup(u"sub", top);
    void* group = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrGroup(local, &group) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(group, api(u"new")), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_UpdateGroup(group, sub), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_UpdateGroup(group, 99), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_AddrGroup_Release(group), ORVA_OK);
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    ORVA_PBSrv_AddrGroupSet_MoveFirst(set);
    ORVA_PBSrv_AddrGroupSet_MoveNext(set);
    unsigned short* name = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(set, &name), ORVA_OK);
    CHECK_EQ(take(name), u"new");
    int parent = 0;
    ORVA_PBSrv_AddrGroupSet_GetParentID(set, &parent);
    CHECK_EQ(parent, top);
    ORVA_PBSrv_AddrGroupSet_Release(set);
}

TEST(aGroupWhoseParentIsNotThereIsRefused)
{
    useFreshFolder();
    CHECK_EQ(tryAddGroup(u"orphan", 17), -ORVA_E_NOT_FOUND);
    CHECK(groupIds().empty());
    void* group = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrGroup(local, &group) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroup_SetParentID(group, -1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(group, api(Text(2000, u'x'))), ORVA_E_TOO_LONG);
    ORVA_PBSrv_AddrGroup_Release(group);
}

TEST(namesMayStandTwice)
{
    useFreshFolder();
    const int first = addGroup(u"same");
    const int second = addGroup(u"same");
    CHECK(first != second);
}

TEST(cardsAndDevicesHaveNoGroups)
{
    useFreshFolder();
    for (const int memory : {card, device}) {
        void* handle = nullptr;
        CHECK_EQ(ORVA_PBSrv_GetGroupList(memory, &handle), ORVA_E_UNSUPPORTED);
        CHECK(handle == nullptr);
        CHECK_EQ(ORVA_PBSrv_CreateAddrGroup(memory, &handle), ORVA_E_UNSUPPORTED);
        CHECK_EQ(ORVA_PBSrv_DelGroup(1, memory), ORVA_E_UNSUPPORTED);
        CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(1, 1, memory), ORVA_E_UNSUPPORTED);
        CHECK_EQ(ORVA_PBSrv_DelAddrFromGroup(1, 1, memory), ORVA_E_UNSUPPORTED);
    }
    void* handle = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetGroupList(3, &handle), ORVA_E_ARGUMENT);
}

TEST(groupFunctionsRefuseNullAndWrongHandles)
{
    useFreshFolder();
    int number = 0;
    int* ids = nullptr;
    unsigned short* name = nullptr;
    void* record = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrRecord(local, &record) == ORVA_OK);
    for (void* const wrong : {static_cast<void*>(nullptr), record}) {
        const long code = wrong == nullptr ? ORVA_E_ARGUMENT : ORVA_E_HANDLE;
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveFirst(wrong), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveNext(wrong), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetID(wrong, &number), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetParentID(wrong, &number), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(wrong, &name), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetGroupSize(wrong, &number), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(wrong, 1, &number, &ids), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroupSet_Release(wrong), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(wrong, api(u"x")), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroup_SetParentID(wrong, 0), code);
        CHECK_EQ(ORVA_PBSrv_AddrGroup_Release(wrong), code);
        CHECK_EQ(ORVA_PBSrv_AddGroup(wrong, &number), code);
        CHECK_EQ(ORVA_PBSrv_UpdateGroup(wrong, 1), code);
    }
    ORVA_PBSrv_AddrRecord_Release(record);

    addGroup(u"G");
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_MoveFirst(set), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetID(set, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetParentID(set, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetName(set, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetGroupSize(set, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, 1, nullptr, &ids), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, 1, &number, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, 1, &number, &ids), ORVA_OK);
    CHECK_EQ(number, 0);
    CHECK(ids == nullptr);
    ORVA_PBSrv_AddrGroupSet_Release(set);
    CHECK_EQ(ORVA_PBSrv_GetGroupList(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_CreateAddrGroup(local, nullptr), ORVA_E_ARGUMENT);
    void* group = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrGroup(local, &group) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddGroup(group, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrGroup_SetName(group, nullptr), ORVA_E_ARGUMENT);
    ORVA_PBSrv_AddrGroup_Release(group);
}

TEST(membersStayAsTheyWereGivenUntilTheSetIsReleased)
{
    useFreshFolder();
    const int first = addGroup(u"first");
    const int second = addGroup(u"second");
    std::vector<int> records;
    for (int i = 0; i < 40; ++i) {
        records.push_back(add(local, {{"Name", u"member"}}));
        REQUIRE(ORVA_PBSrv_AddAddrToGroup(i < 20 ? first : second, records.back(), local) == ORVA_OK);
    }
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    int count = 0;
    int* ofFirst = nullptr;
    int* ofSecond = nullptr;
    int* again = nullptr;
    REQUIRE(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, first, &count, &ofFirst) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, second, &count, &ofSecond) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_DelAddrFromGroup(first, records[0], local) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(set, first, &count, &again) == ORVA_OK);
    CHECK_EQ(count, 19);
    CHECK(std::vector<int>(ofFirst, ofFirst + 20) == std::vector<int>(records.begin(), records.begin() + 20));
    CHECK(std::vector<int>(ofSecond, ofSecond + 20) == std::vector<int>(records.begin() + 20, records.end()));
    CHECK(std::vector<int>(again, again + 19) == std::vector<int>(records.begin() + 1, records.begin() + 20));
    ORVA_PBSrv_AddrGroupSet_Release(set);
}

CHECK_MAIN
