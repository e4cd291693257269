// Records and record sets through the C functions.

#include <climits>
#include <memory>

#include "Phonebook.h"

using namespace phonebook;

namespace
{

const Fields anna{{"Name", u"Anna"},      {"Mobile", u"+491701"}, {"officePhone", u"030"},
                  {"homePhone", u"0331"}, {"email", u"a@b.org"},  {"remark", u"first\r\nsecond"}};

void* openSet(int memory)
{
    void* set = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetAddrRecList(memory, &set), ORVA_OK);
    return set;
}

} // namespace

TEST(aRecordComesBackAsItWasStored)
{
    useFreshFolder();
    const int id = add(local, anna);
    CHECK_EQ(id, 1);
    for (const auto& field : anna)
        CHECK_EQ(valueOf(local, id, field.first.c_str()), field.second);
}

TEST(keysAreComparedWithoutRegardToCase)
{
    useFreshFolder();
    const int id = add(local, {{"NAME", u"Anna"}, {"MOBILE", u"1"}});
    CHECK_EQ(valueOf(local, id, "name"), u"Anna");
    CHECK_EQ(valueOf(local, id, "Mobile"), u"1");
}

TEST(everyUnitOfATextIsKept)
{
    useFreshFolder();
    const Text names[] = {u"\xfeff"
                          u"mark",
                          u"\xfffe"
                          u"swapped",
                          u"\xfeff\xfeff",
                          u"\xd83d\xde00",
                          Text(1, 0xd800),
                          Text(1, 0xdfff) + u"x",
                          u"\x4e2d\x6587 \x0627\x0644",
                          u"'; DROP TABLE records; --",
                          u"\x1\x7f\xffff"};
    for (const Text& name : names) {
        const int id = add(local, {{"Name", name}});
        CHECK_EQ(valueOf(local, id, "Name"), name);
    }
    void* const set = openSet(local);
    std::size_t row = 0;
    for (long moved = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); moved == ORVA_OK;
         moved = ORVA_PBSrv_AddrRecordSet_MoveNext(set))
        CHECK_EQ(setValue(set, "Name"), names[row++]);
    CHECK_EQ(row, std::size(names));
    ORVA_PBSrv_AddrRecordSet_Release(set);
}

TEST(anEmptyValueAndAnEmptyRecordAreAllowed)
{
    useFreshFolder();
    const int empty = add(local, {});
    const int named = add(local, {{"Name", u""}});
    CHECK_EQ(valueOf(local, empty, "Name"), u"");
    CHECK_EQ(valueOf(local, named, "Name"), u"");
    CHECK_EQ(sizeOf(local), 2);
}

TEST(anUpdateReplacesEveryField)
{
    useFreshFolder();
    const int id = add(local, anna);
    CHECK_EQ(update(local, id, {{"Name", u"Berta"}}), ORVA_OK);
    CHECK_EQ(valueOf(local, id, "Name"), u"Berta");
    CHECK_EQ(valueOf(local, id, "Mobile"), u"");
    CHECK_EQ(valueOf(local, id, "remark"), u"");
    CHECK_EQ(sizeOf(local), 1);
}

TEST(whatIsNotThereCannotBeChanged)
{
    useFreshFolder();
    const int id = add(local, anna);
    for (const int other : {0, -1, id + 1, INT_MAX, INT_MIN}) {
        CHECK_EQ(update(local, other, anna), ORVA_E_NOT_FOUND);
        CHECK_EQ(ORVA_PBSrv_DelAddrRec(other, local), ORVA_E_NOT_FOUND);
        int marker = 0;
        void* record = &marker;
        CHECK_EQ(ORVA_PBSrv_GetAddrRecord(other, local, &record), ORVA_E_NOT_FOUND);
        CHECK(record == nullptr);
    }
    CHECK_EQ(sizeOf(local), 1);
}

TEST(identifiersAscendFromOneAndAreNeverUsedTwice)
{
    const std::string data = useFreshFolder();
    CHECK_EQ(add(local, anna), 1);
    CHECK_EQ(add(local, anna), 2);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(2, local), ORVA_OK);
    CHECK_EQ(add(local, anna), 3);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(3, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    // Also not by the next process.
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(add(local, anna), 4);
}

TEST(memoriesAreApart)
{
    useFreshFolder();
    CHECK_EQ(add(local, {{"Name", u"PC"}}), 1);
    CHECK_EQ(add(card, {{"Name", u"card"}}), 1);
    CHECK_EQ(add(device, {{"Name", u"device"}}), 1);
    CHECK_EQ(valueOf(local, 1, "Name"), u"PC");
    CHECK_EQ(valueOf(card, 1, "Name"), u"card");
    CHECK_EQ(valueOf(device, 1, "Name"), u"device");
}

TEST(anEmptyMemoryGivesANullSetAndNoError)
{
    useFreshFolder();
    for (const int memory : {local, card, device}) {
        int marker = 0;
        void* set = &marker;
        CHECK_EQ(ORVA_PBSrv_GetAddrRecList(memory, &set), ORVA_OK);
        CHECK(set == nullptr);
    }
}

TEST(aSetWalksInOrderAndEnds)
{
    useFreshFolder();
    for (int i = 0; i < 3; ++i)
        add(local, {{"Name", Text(1, static_cast<char16_t>(u'a' + i))}});
    void* const set = openSet(local);
    int count = 0;
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set, &count), ORVA_OK);
    CHECK_EQ(count, 3);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetID(set, &id), ORVA_E_END);
    for (int round = 0; round < 2; ++round) {
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_OK);
        CHECK_EQ(setValue(set, "Name"), u"a");
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_OK);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_OK);
        CHECK_EQ(setValue(set, "name"), u"c");
        CHECK_EQ(setValue(set, "remark"), u"");
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_E_END);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_E_END);
        unsigned short* value = nullptr;
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetValue(set, "Name", &value), ORVA_E_END);
    }
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_Release(set), ORVA_OK);
}

TEST(aSetIsStableWhileRecordsComeAndGo)
{
    useFreshFolder();
    ORVA_PBSrv_BeginTransaction(local);
    for (int i = 0; i < 1000; ++i)
        add(local, {{"Name", u"old"}});
    ORVA_PBSrv_EndTransaction(local);
    void* const set = openSet(local);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_OK);
    // Behind the cursor, at it, right ahead of it and far ahead.
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_OK);
    for (const int gone : {1, 2, 3, 4, 700, 1000})
        CHECK_EQ(ORVA_PBSrv_DelAddrRec(gone, local), ORVA_OK);
    CHECK_EQ(update(local, 6, {{"Name", u"new"}}), ORVA_OK);
    CHECK_EQ(add(local, {{"Name", u"late"}}), 1001);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetID(set, &id), ORVA_OK);
    CHECK_EQ(id, 2);
    CHECK_EQ(setValue(set, "Name"), u"old");
    std::vector<int> rest;
    while (ORVA_PBSrv_AddrRecordSet_MoveNext(set) == ORVA_OK) {
        ORVA_PBSrv_AddrRecordSet_GetID(set, &id);
        rest.push_back(id);
        CHECK_EQ(setValue(set, "Name"), id == 6 ? u"new" : u"old");
    }
    std::vector<int> expected;
    for (int i = 5; i < 1000; ++i) {
        if (i != 700)
            expected.push_back(i);
    }
    CHECK(rest == expected);
    int count = 0;
    ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set, &count);
    CHECK_EQ(count, 1000);
    ORVA_PBSrv_AddrRecordSet_Release(set);
}

TEST(aSetWhoseRecordsAreAllGoneIsAtItsEnd)
{
    useFreshFolder();
    const int id = add(local, anna);
    void* const set = openSet(local);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(id, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_E_END);
    ORVA_PBSrv_AddrRecordSet_Release(set);
}

TEST(aFullMemoryTakesNoMore)
{
    useFreshFolder();
    for (const int memory : {local, card, device}) {
        CHECK_EQ(ORVA_Sim_SetCapacity(memory, 2), ORVA_OK);
        add(memory, {{"Name", u"1"}});
        const int second = add(memory, {{"Name", u"2"}});
        CHECK_EQ(tryAdd(memory, {{"Name", u"3"}}), -ORVA_E_FULL);
        CHECK_EQ(sizeOf(memory), 2);
        CHECK_EQ(ORVA_PBSrv_DelAddrRec(second, memory), ORVA_OK);
        CHECK(tryAdd(memory, {{"Name", u"3"}}) > 0);
        // What is stored stays when less fits.
        CHECK_EQ(ORVA_Sim_SetCapacity(memory, 1), ORVA_OK);
        CHECK_EQ(sizeOf(memory), 2);
        CHECK_EQ(update(memory, 1, {{"Name", u"x"}}), ORVA_OK);
    }
}

TEST(nullPointersAndWrongNumbersGiveACode)
{
    useFreshFolder();
    int number = 0;
    void* handle = nullptr;
    for (const int memory : {-1, 2, 3, 5, INT_MAX}) {
        CHECK_EQ(ORVA_PBSrv_CreateAddrRecord(memory, &handle), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, memory), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_GetAddrRecord(1, memory, &handle), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_GetAddrRecList(memory, &handle), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_GetCapacity(memory, &number), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_GetSize(memory, &number), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_BeginTransaction(memory), ORVA_E_ARGUMENT);
        CHECK_EQ(ORVA_PBSrv_EndTransaction(memory), ORVA_E_ARGUMENT);
    }
    CHECK_EQ(ORVA_PBSrv_CreateAddrRecord(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetAddrRecord(1, local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetAddrRecList(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetCapacity(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetSize(local, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(nullptr, &number), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(nullptr, 1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_Release(nullptr), ORVA_E_ARGUMENT);

    void* record = nullptr;
    REQUIRE(newRecord(local, anna, &record) == ORVA_OK);
    unsigned short* value = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, nullptr, api(u"x")), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, "Name", nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, "Number", api(u"x")), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(record, "", api(u"x")), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, "Name", nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, nullptr, &value), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, "nothing", &value), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(sizeOf(local), 0);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);

    void* const set = openSet(local);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetID(set, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetValue(set, nullptr, &value), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetValue(set, "Name", nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetValue(set, "nothing", &value), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_Release(set), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(record), ORVA_OK);
}

TEST(aHandleOfTheWrongKindAStaleOneAndAForeignOneGiveACode)
{
    useFreshFolder();
    add(local, anna);
    void* record = nullptr;
    REQUIRE(newRecord(local, anna, &record) == ORVA_OK);
    void* const set = openSet(local);
    void* groups = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &groups) == ORVA_OK);
    void* group = nullptr;
    REQUIRE(ORVA_PBSrv_CreateAddrGroup(local, &group) == ORVA_OK);

    int id = 0;
    unsigned short* value = nullptr;
    int onStack = 0;
    const auto onHeap = std::make_unique<long[]>(16);
    std::vector<void*> notRecords{set,
                                  groups,
                                  group,
                                  &onStack,
                                  onHeap.get(),
                                  reinterpret_cast<void*>(~std::uintptr_t{0}),
                                  reinterpret_cast<void*>(std::uintptr_t{1})};
    for (void* const wrong : notRecords) {
        CHECK_EQ(ORVA_PBSrv_AddrRecord_SetValue(wrong, "Name", api(u"x")), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(wrong, "Name", &value), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddAddrRec(wrong, &id), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(wrong, 1), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(wrong), ORVA_E_HANDLE);
    }
    for (void* const wrong : {record, groups, group}) {
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(wrong), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(wrong), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetID(wrong, &id), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetValue(wrong, "Name", &value), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(wrong, &id), ORVA_E_HANDLE);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_Release(wrong), ORVA_E_HANDLE);
    }
    CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(record), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(record), ORVA_E_HANDLE);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_Release(set), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveNext(set), ORVA_E_HANDLE);
    // A new handle in the same place is another one.
    void* again = nullptr;
    REQUIRE(newRecord(local, anna, &again) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(record), ORVA_E_HANDLE);
    CHECK_EQ(ORVA_PBSrv_AddrRecord_Release(again), ORVA_OK);
    ORVA_PBSrv_AddrGroupSet_Release(groups);
    ORVA_PBSrv_AddrGroup_Release(group);
}

TEST(leftHandlesAreHarmless)
{
    useFreshFolder();
    add(local, anna);
    for (int i = 0; i < 3000; ++i) {
        void* record = nullptr;
        CHECK_EQ(ORVA_PBSrv_CreateAddrRecord(local, &record), ORVA_OK);
    }
    void* const set = openSet(local);
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_OK);
    useFreshFolder();
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_E_HANDLE);
}

TEST(profilesNameTheFieldsOfEachMemory)
{
    useFreshFolder();
    struct Expected {
        const char* key;
        const char* kind;
        const char* label;
    };
    const std::vector<Expected> ofLocal{{"Name", "Name", "ID_STR_NAME"},
                                        {"Mobile", "Mobile", "ID_STR_MOBILE_PHONE"},
                                        {"officePhone", "Number", "ID_STR_BUSINESS_PHONE"},
                                        {"homePhone", "Number", "ID_STR_HOME_PHONE"},
                                        {"email", "Email", "ID_STR_EMAIL"},
                                        {"remark", "Remaik", "ID_STR_NOTES"}};
    const std::vector<Expected> ofDevice{{"Name", "Name", "ID_STR_NAME"},
                                         {"Number", "Number", "ID_STR_MOBILE_PHONE"},
                                         {"homePhone", "Number", "ID_STR_HOME_PHONE"},
                                         {"email", "Email", "ID_STR_EMAIL"}};
    const auto compare = [](int memory, const std::vector<Expected>& expected, std::size_t size) {
        ORVA_PROFILE_ENTRY* entries = nullptr;
        int count = 0;
        REQUIRE(ORVA_PBSrv_GetProfile(memory, &entries, &count) == ORVA_OK);
        CHECK_EQ(static_cast<std::size_t>(count), size);
        for (std::size_t i = 0; i < size; ++i) {
            CHECK_EQ(std::string(entries[i].key), expected[i].key);
            CHECK_EQ(std::string(entries[i].kind), expected[i].kind);
            CHECK_EQ(std::string(entries[i].label_id), expected[i].label);
            const std::string kind = entries[i].kind;
            const bool digits = kind == "Mobile" || kind == "Number";
            CHECK_EQ(std::string(entries[i].accepted),
                     digits ? (memory == local ? "0123456789+*#" : "0123456789+*#pw") : "null");
            CHECK_EQ(std::string(entries[i].refused), "null");
            CHECK_EQ(entries[i].flag != 0, i == 0);
            CHECK(entries[i].max_length > 0);
        }
        if (memory == card) {
            CHECK_EQ(entries[0].max_length, 14);
            CHECK_EQ(entries[1].max_length, 20);
        }
        CHECK_EQ(ORVA_PBSrv_ProfileRelease(memory, &entries), ORVA_OK);
        CHECK(entries == nullptr);
    };
    compare(local, ofLocal, 6);
    compare(card, ofDevice, 2);
    compare(device, ofDevice, 2);
    CHECK_EQ(ORVA_Sim_SetDeviceFields(4), ORVA_E_ARGUMENT);
    for (const int fields : {3, 4, 2}) {
        ORVA_Sim_SetDevice(0);
        CHECK_EQ(ORVA_Sim_SetDeviceFields(fields), ORVA_OK);
        ORVA_Sim_SetDevice(1);
        compare(device, ofDevice, static_cast<std::size_t>(fields));
    }
}

TEST(anArrayThatIsNoProfileIsNotFreed)
{
    useFreshFolder();
    ORVA_PROFILE_ENTRY own{};
    ORVA_PROFILE_ENTRY* entries = &own;
    CHECK_EQ(ORVA_PBSrv_ProfileRelease(local, &entries), ORVA_E_HANDLE);
    entries = nullptr;
    CHECK_EQ(ORVA_PBSrv_ProfileRelease(local, &entries), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_ProfileRelease(local, nullptr), ORVA_E_ARGUMENT);
    int count = 0;
    CHECK_EQ(ORVA_PBSrv_GetProfile(9, &entries, &count), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetProfile(local, nullptr, &count), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_PBSrv_GetProfile(local, &entries, nullptr), ORVA_E_ARGUMENT);
    REQUIRE(ORVA_PBSrv_GetProfile(local, &entries, &count) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_ProfileRelease(7, &entries), ORVA_E_ARGUMENT);
    ORVA_PROFILE_ENTRY* const copy = entries;
    CHECK_EQ(ORVA_PBSrv_ProfileRelease(local, &entries), ORVA_OK);
    entries = copy;
    CHECK_EQ(ORVA_PBSrv_ProfileRelease(local, &entries), ORVA_E_HANDLE);
}

TEST(capacitiesAreThoseOfTheHardware)
{
    useFreshFolder();
    int capacity = 0;
    CHECK_EQ(ORVA_PBSrv_GetCapacity(card, &capacity), ORVA_OK);
    CHECK_EQ(capacity, 250);
    CHECK_EQ(ORVA_PBSrv_GetCapacity(device, &capacity), ORVA_OK);
    CHECK_EQ(capacity, 500);
    CHECK_EQ(ORVA_PBSrv_GetCapacity(local, &capacity), ORVA_OK);
    CHECK_EQ(capacity, 100000);
}

TEST(transactionsAreFlatAndTolerant)
{
    const std::string data = useFreshFolder();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    add(local, anna);
    // The other threads' view is the same.
    int seen = 0;
    std::thread([&] { seen = sizeOf(local); }).join();
    CHECK_EQ(seen, 1);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    add(local, anna);
    // A process that ends in order commits what is open.
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 2);
}

TEST(theLogFolderEndsInASlashAndIsThere)
{
    const std::string data = useFreshFolder();
    unsigned short* path = nullptr;
    CHECK_EQ(ORVA_GetLogDirectory(&path), ORVA_OK);
    const Text text = take(path);
    const std::string bytes(text.begin(), text.end());
    CHECK_EQ(bytes, data + "/log/");
    CHECK(std::filesystem::is_directory(bytes));
    CHECK_EQ(ORVA_GetLogDirectory(nullptr), ORVA_E_ARGUMENT);
}

CHECK_MAIN
