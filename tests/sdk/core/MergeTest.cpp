// Several contacts that become one.

#include <algorithm>

#include "FaultyVfs.h"
#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"

using namespace phonebook;

namespace
{

const char* const keys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};

int addKept(const Fields& fields, const std::string& kept)
{
    void* record = nullptr;
    CHECK_EQ(newRecord(local, fields, &record), ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, kept.data(), static_cast<int>(kept.size())), ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    return id;
}

std::string takeKept(void* record)
{
    char* text = nullptr;
    int octets = -1;
    CHECK_EQ(ORVA_Care_GetKept(record, &text, &octets), ORVA_OK);
    const std::string kept(text, static_cast<std::size_t>(octets));
    delete[] text;
    ORVA_PBSrv_AddrRecord_Release(record);
    return kept;
}

std::string kept(int id)
{
    void* record = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetAddrRecord(id, local, &record), ORVA_OK);
    return takeKept(record);
}

long merge(const std::vector<std::vector<int>>& sets)
{
    std::vector<ORVA_DUPLICATE> entries;
    for (std::size_t set = 0; set < sets.size(); ++set)
        for (const int id : sets[set])
            entries.push_back({static_cast<int>(set) + 1, ORVA_DUPLICATE_SAME, id});
    return ORVA_Care_Merge(local, entries.data(), static_cast<int>(entries.size()));
}

std::vector<ORVA_BIN_ENTRY> bin()
{
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    CHECK_EQ(ORVA_Care_GetBin(local, &entries, &count), ORVA_OK);
    std::vector<ORVA_BIN_ENTRY> all(entries, entries + count);
    ORVA_Care_BinRelease(local, &entries);
    return all;
}

int undelete(int record)
{
    const auto entries = bin();
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [record](const ORVA_BIN_ENTRY& entry) { return entry.record == record; });
    int id = 0;
    REQUIRE(found != entries.end());
    CHECK_EQ(ORVA_Care_Undelete(local, found->id, &id), ORVA_OK);
    return id;
}

Text all(int id)
{
    Text text;
    for (const char* key : keys)
        text += valueOf(local, id, key) + u"|";
    return text;
}

} // namespace

TEST(theFirstTakesOverWhatItHasNoValueForAndTheRestGoesToTheNote)
{
    useFreshFolder();
    const int one = add(local, {{"Name", u"Zoë Quill"}, {"Mobile", u"+441"}, {"remark", u"mine"}});
    const int two = add(local, {{"Name", u"ZOE\u0308 QUILL"},
                                {"Mobile", u"2"},
                                {"homePhone", u"00441"},
                                {"email", u"zoe@example.org"},
                                {"remark", u"hers"}});
    const int three = add(local, {{"Name", u"Zoë"},
                                  {"Mobile", u"2"},
                                  {"officePhone", u"3"},
                                  {"homePhone", u"4"},
                                  {"email", u"z@example.org"},
                                  {"remark", u"mine"}});
    CHECK_EQ(merge({{one, two, three}}), ORVA_OK);
    CHECK(idsOf(local) == std::vector<int>{one});
    CHECK_EQ(all(one), u"Zoë Quill|+441|3|4|zoe@example.org|mine\nMobile: 2\nName: Zoë\nE-mail: z@example.org\nhers|");
    CHECK_EQ(sizeOf(local), 1);
}

TEST(aNumberThatFindsAFieldAfterAllIsInNoNote)
{
    useFreshFolder();
    const int one = add(local, {{"Name", u"A"}, {"Mobile", u"1"}});
    const int two = add(local, {{"Name", u"A"}, {"Mobile", u"2"}});
    const int three = add(local, {{"Name", u"A"}, {"homePhone", u"2"}});
    CHECK_EQ(merge({{one, two, three}}), ORVA_OK);
    CHECK_EQ(all(one), u"A|1||2|||");
}

TEST(whatTheNoteHasNoRoomForIsKept)
{
    useFreshFolder();
    const Text filled(495, u'n');
    const int one = add(local, {{"Name", u"A"}, {"Mobile", u"1"}, {"email", u"a@example.org"}, {"remark", filled}});
    const int two =
        add(local, {{"Name", u"B;b"}, {"Mobile", u"2"}, {"email", u"b@example.org"}, {"remark", u"hers, too"}});
    CHECK_EQ(merge({{one, two}}), ORVA_OK);
    CHECK_EQ(valueOf(local, one, "remark"), filled);
    CHECK_EQ(kept(one),
             std::string("NOTE:Name: B\\;b\r\nTEL;TYPE=CELL:2\r\nEMAIL:b@example.org\r\nNOTE:hers\\, too\r\n"));
    // Merged once more, nothing of it is there twice.
    const int again = undelete(two);
    CHECK_EQ(merge({{one, again}}), ORVA_OK);
    CHECK_EQ(kept(one),
             std::string("NOTE:Name: B\\;b\r\nTEL;TYPE=CELL:2\r\nEMAIL:b@example.org\r\nNOTE:hers\\, too\r\n"));
}

TEST(groupsAndWhatIsKeptOfBothStay)
{
    useFreshFolder();
    const std::string shared = "ADR;TYPE=HOME:;;1 Street;Town;;;\r\n";
    const std::string labelled = "item1.TEL:5\r\nitem1.X-ABLabel:Boat\r\n";
    const int one = addKept({{"Name", u"A"}}, shared + "item1.TEL:4\r\nitem1.X-ABLabel:Boat\r\n");
    const int two = addKept({{"Name", u"A"}}, shared + labelled + "BDAY:2001-02-03\r\n");
    const int friends = addGroup(u"Friends");
    const int choir = addGroup(u"Choir", friends);
    for (const int group : {friends, choir})
        CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, two, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(friends, one, local), ORVA_OK);
    CHECK_EQ(merge({{one, two}}), ORVA_OK);
    CHECK_EQ(kept(one), shared + "item1.TEL:4\r\nitem1.X-ABLabel:Boat\r\nitem2.TEL:5\r\nitem2.X-ABLabel:Boat\r\n"
                                 "BDAY:2001-02-03\r\n");
    CHECK(membersOf(friends) == std::vector<int>{one});
    CHECK(membersOf(choir) == std::vector<int>{one});
    // And both come back as they were.
    const int back = undelete(two);
    CHECK_EQ(kept(back), shared + labelled + "BDAY:2001-02-03\r\n");
    CHECK(membersOf(choir) == (std::vector<int>{one, back}));
    const int before = undelete(one);
    CHECK_EQ(kept(before), shared + "item1.TEL:4\r\nitem1.X-ABLabel:Boat\r\n");
    CHECK(membersOf(choir) == (std::vector<int>{one, back}));
}

TEST(aPreviewShowsWhatTheMergeThenDoesAndChangesNothing)
{
    useFreshFolder();
    const int one = add(local, {{"Name", u"A"}, {"Mobile", u"1"}});
    const int two = addKept({{"Name", u"A"}, {"Mobile", u"2"}}, "NICKNAME:Al\r\n");
    const int friends = addGroup(u"Friends");
    const int choir = addGroup(u"Choir", friends);
    ORVA_PBSrv_AddAddrToGroup(choir, one, local);
    ORVA_PBSrv_AddAddrToGroup(choir, two, local);
    ORVA_PBSrv_AddAddrToGroup(friends, two, local);
    void* record = nullptr;
    unsigned short* groups = nullptr;
    const int ids[] = {one, two};
    CHECK_EQ(ORVA_Care_PreviewMerge(local, ids, 2, &record, &groups), ORVA_OK);
    CHECK_EQ(take(groups), u"Friends/Choir\nFriends");
    Text shown;
    for (const char* key : keys) {
        unsigned short* value = nullptr;
        CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, key, &value), ORVA_OK);
        shown += take(value) + u"|";
    }
    const std::string keptThen = takeKept(record);
    CHECK(idsOf(local) == (std::vector<int>{one, two}));
    CHECK_EQ(valueOf(local, one, "remark"), u"");
    CHECK(bin().empty());
    CHECK_EQ(merge({{one, two}}), ORVA_OK);
    CHECK_EQ(all(one), shown);
    CHECK_EQ(kept(one), keptThen);
}

TEST(allSetsAreMergedOrNone)
{
    const std::string data = useFreshFolder();
    std::vector<int> ids;
    for (int i = 0; i < 6; ++i)
        ids.push_back(add(local, {{"Name", u"A"}, {"remark", Text(1, static_cast<char16_t>(u'a' + i))}}));
    CHECK_EQ(merge({{ids[0], ids[1]}, {ids[2], 99}}), ORVA_E_NOT_FOUND);
    CHECK_EQ(merge({{ids[0], ids[1]}, {ids[2], ids[1]}}), ORVA_E_ARGUMENT);
    CHECK_EQ(merge({{ids[0], ids[1]}, {ids[2]}}), ORVA_E_ARGUMENT);
    CHECK(idsOf(local) == ids);
    CHECK_EQ(sizeOf(local), 6);
    CHECK(bin().empty());
    CHECK_EQ(merge({{ids[0], ids[1]}, {ids[2], ids[3], ids[4]}}), ORVA_OK);
    CHECK(idsOf(local) == (std::vector<int>{ids[0], ids[2], ids[5]}));
    CHECK_EQ(valueOf(local, ids[2], "remark"), u"c\nd\ne");
    CHECK_EQ(bin().size(), 5U);
    CHECK_EQ(merge({}), ORVA_OK);
    CHECK_EQ(RawStore(data).findings(), "");
}

TEST(insideATransactionAMergeIsOneWriteOfIt)
{
    faulty::install();
    const std::string data = useFreshFolder();
    std::vector<int> ids;
    for (int i = 0; i < 4; ++i)
        ids.push_back(add(local, {{"Name", u"A"}}));
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    const int late = add(local, {{"Name", u"late"}});
    CHECK_EQ(merge({{ids[0], ids[1]}, {ids[2], 99}}), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(sizeOf(local), 5);
    CHECK(idsOf(local) == (std::vector<int>{ids[0], ids[1], ids[2], ids[3], late}));
    // Of a lost transaction each record of the merge is told.
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(local), ORVA_OK);
    CHECK_EQ(merge({{ids[0], ids[1], ids[2]}}), ORVA_OK);
    faulty::arm(faulty::Fault::Full, 0, true);
    const long ended = ORVA_PBSrv_EndTransaction(local);
    faulty::disarm();
    CHECK_EQ(ended, ORVA_E_NO_SPACE);
    long code = 0;
    int records = 0;
    CHECK_EQ(ORVA_Store_TakeLoss(local, &code, &records), ORVA_OK);
    CHECK_EQ(records, 3);
    CHECK_EQ(idsOf(local).size(), 5U);
}

TEST(aMergeIsOnDiskOrHasChangedNothing)
{
    faulty::install();
    const std::string data = useFreshFolder();
    const int one = add(local, {{"Name", u"A"}, {"Mobile", u"1"}});
    const int two = add(local, {{"Name", u"A"}, {"Mobile", u"2"}});
    faulty::arm(faulty::Fault::Full, 0, true);
    const long refused = merge({{one, two}});
    faulty::disarm();
    CHECK_EQ(refused, ORVA_E_STORE);
    CHECK(idsOf(local) == (std::vector<int>{one, two}));
    CHECK(bin().empty());
    CHECK_EQ(merge({{one, two}}), ORVA_OK);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK(idsOf(local) == std::vector<int>{one});
}

TEST(whatIsNoMergeGivesACode)
{
    useFreshFolder();
    const int one = add(local, {{"Name", u"A"}});
    const int two = add(local, {{"Name", u"A"}});
    const int ids[] = {one, two, one};
    void* record = nullptr;
    unsigned short* groups = nullptr;
    const ORVA_DUPLICATE pair[] = {{1, 0, one}, {1, 0, two}};
    CHECK_EQ(ORVA_Care_PreviewMerge(card, ids, 2, &record, &groups), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_PreviewMerge(7, ids, 2, &record, &groups), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_PreviewMerge(local, ids, 3, &record, &groups), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_PreviewMerge(local, ids, 1, &record, &groups), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_PreviewMerge(local, ids, -1, &record, &groups), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_PreviewMerge(local, nullptr, 2, &record, &groups), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_PreviewMerge(local, ids, 2, nullptr, &groups), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_PreviewMerge(local, ids, 2, &record, nullptr), ORVA_E_ARGUMENT);
    CHECK(record == nullptr);
    CHECK_EQ(ORVA_Care_Merge(device, pair, 2), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_Merge(local, nullptr, 2), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_Merge(local, nullptr, 0), ORVA_OK);
    // More than can be kept.
    const std::string half(ORVA_KEPT_MAX / 2, 'x');
    const int three = addKept({{"Name", u"A"}}, "PHOTO:" + half + "\r\n");
    const int four = addKept({{"Name", u"A"}}, "LOGO:" + half + "\r\n");
    CHECK_EQ(merge({{three, four}}), ORVA_E_TOO_LONG);
    CHECK_EQ(sizeOf(local), 4);
}

CHECK_MAIN
