// The phonebook and a folder of vCards: who is added, changed and deleted, on either side.

#include <sys/stat.h>

#include "SyncFixture.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

TEST(aFirstSyncBringsBothSidesTogether)
{
    useFreshFolder();
    const std::string cards = freshCards();
    add(local, {{"Name", u"Anna"}, {"Mobile", u"+491715551234"}, {"email", u"anna@example.org"}});
    writeFile(cards + "/b.vcf", cardText("uid-b", "Bert", "TEL;TYPE=HOME:030 1234\r\n"));
    const Synced first = synchronise(cards);
    CHECK_EQ(first.code, ORVA_OK);
    CHECK_EQ(first.counts.added_here, 1);
    CHECK_EQ(first.counts.added_there, 1);
    CHECK_EQ(first.changes(), 2);
    REQUIRE(idsOf(local).size() == 2);
    CHECK_EQ(valueOf(local, 2, "Name"), u"Bert");
    CHECK_EQ(valueOf(local, 2, "homePhone"), u"0301234");
    CHECK_EQ(cardNames(cards).size(), 2U);
    CHECK(isQuiet(cards));
    CHECK_EQ(readFile(cards + "/b.vcf"), cardText("uid-b", "Bert", "TEL;TYPE=HOME:030 1234\r\n"));
}

TEST(aNewCardSaysAllOfItsContact)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const int id = add(local, {{"Name", u"Anna"},
                               {"Mobile", u"1"},
                               {"officePhone", u"2"},
                               {"homePhone", u"3"},
                               {"email", u"a@b"},
                               {"remark", u"one, two\nthree"}});
    const int friends = addGroup(u"Friends");
    ORVA_PBSrv_AddAddrToGroup(addGroup(u"Choir", friends), id, local);
    CHECK_EQ(synchronise(cards).code, ORVA_OK);
    const std::string text = onlyCardIn(cards);
    for (const char* line :
         {"FN:Anna\r\n", "TEL;TYPE=CELL:1\r\n", "TEL;TYPE=WORK:2\r\n", "TEL;TYPE=HOME:3\r\n", "EMAIL:a@b\r\n",
          "NOTE:one\\, two\\nthree\r\n", "CATEGORIES:Friends/Choir\r\n", "\r\nUID:", "\r\nREV:"})
        CHECK(holds(text, line));
    struct stat state = {};
    CHECK_EQ(::stat((cards + "/" + cardNames(cards).front()).c_str(), &state), 0);
    CHECK_EQ(state.st_mode & 0777, 0600U);
}

TEST(differentFieldsOfBothSidesLive)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:1\r\nORG:Acme\r\nEMAIL:old@b\r\n"));
    synchronise(cards);
    change(1, {{"Mobile", u"2"}});
    writeFile(cards + "/a.vcf",
              cardText("a", "Anna", "TEL;TYPE=CELL:1\r\nORG:Other\r\nEMAIL:new@b\r\nBDAY:1990-01-31\r\n"));
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.changed_here, 1);
    CHECK_EQ(synced.counts.changed_there, 1);
    CHECK_EQ(synced.events.size(), 0U);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"2");
    CHECK_EQ(valueOf(local, 1, "email"), u"new@b");
    CHECK_EQ(keptOf(1), "ORG:Other\r\nBDAY:1990-01-31\r\n");
    CHECK(holds(onlyCardIn(cards), "TEL;TYPE=CELL:2\r\nORG:Other\r\nEMAIL:new@b\r\nBDAY:1990-01-31\r\n"));
    CHECK(isQuiet(cards));
}

TEST(ofTheSameFieldTheLaterRevisionCountsAndTheOtherGoesToTheBin)
{
    for (const bool cardIsLater : {true, false}) {
        useFreshFolder();
        const std::string cards = freshCards();
        writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:1\r\n"));
        synchronise(cards);
        change(1, {{"Mobile", u"2"}});
        const std::string revision = cardIsLater ? "REV:29990101T000000Z\r\n" : "REV:20010101T000000Z\r\n";
        writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:3\r\n" + revision));
        const Synced synced = synchronise(cards);
        REQUIRE(synced.events.size() == 1);
        CHECK_EQ(synced.events[0].kind, ORVA_SYNC_CONFLICT);
        CHECK_EQ(synced.events[0].what, u"Mobile");
        CHECK_EQ(synced.events[0].name, u"Anna");
        CHECK_EQ(synced.events[0].record, 1);
        CHECK_EQ(synced.events[0].hereWon, !cardIsLater);
        CHECK_EQ(valueOf(local, 1, "Mobile"), cardIsLater ? u"3" : u"2");
        CHECK(holds(onlyCardIn(cards), cardIsLater ? "TEL;TYPE=CELL:3\r\n" : "TEL;TYPE=CELL:2\r\n"));
        CHECK_EQ(binValues("Mobile")[0], cardIsLater ? u"2" : u"3");
        CHECK(isQuiet(cards));
    }
}

TEST(aDeletionGoesToTheOtherSide)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    synchronise(cards);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    fs::remove(cards + "/b.vcf");
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.deleted_here, 1);
    CHECK_EQ(synced.counts.deleted_there, 1);
    CHECK_EQ(sizeOf(local), 0);
    CHECK_EQ(cardNames(cards).size(), 0U);
    CHECK(isQuiet(cards));
}

TEST(aChangeOutlivesADeletionOnTheOtherSide)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "ORG:Acme\r\n"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert", "ORG:Acme\r\n"));
    synchronise(cards);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "ORG:Other\r\n"));
    fs::remove(cards + "/b.vcf");
    change(2, {{"Mobile", u"2"}});
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.added_here, 1);
    CHECK_EQ(synced.counts.added_there, 1);
    CHECK_EQ(synced.changes(), 2);
    CHECK_EQ(valueOf(local, 3, "Name"), u"Anna");
    CHECK_EQ(keptOf(3), "ORG:Other\r\n");
    CHECK(holds(readFile(cards + "/b.vcf"), "ORG:Acme\r\nTEL;TYPE=CELL:2\r\n"));
    CHECK(isQuiet(cards));
}

TEST(aCardThatWasOnlyWrittenAnewIsDeletedAllTheSame)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf",
              cardText("a", "Anna", "TEL;TYPE=CELL,VOICE:1\r\nADR;TYPE=HOME;LANGUAGE=de:;;x;;;;\r\n"));
    synchronise(cards);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    writeFile(cards + "/a.vcf", cardText("a", "Anna",
                                         "adr;language=de;type=home:;;x;;;;\r\nTEL;TYPE=\"CELL,VOICE\":1\r\n"
                                         "REV:20300101T000000Z\r\nPRODID:another\r\n"));
    CHECK_EQ(synchronise(cards).counts.deleted_there, 1);
}

TEST(manyDeletionsAtOnceAreHeldUntilForced)
{
    for (const bool here : {true, false}) {
        useFreshFolder();
        const std::string cards = freshCards();
        for (int i = 0; i < 40; ++i)
            writeFile(cards + "/" + std::to_string(i) + ".vcf",
                      cardText("u" + std::to_string(i), "N" + std::to_string(i)));
        CHECK_EQ(synchronise(cards).counts.added_here, 40);
        const auto deleteSome = [&](int from, int to) {
            for (int i = from; i < to; ++i)
                here ? static_cast<void>(ORVA_PBSrv_DelAddrRec(idsOf(local).front(), local))
                     : static_cast<void>(fs::remove(cards + "/" + cardNames(cards).front()));
        };
        // Ten are allowed, whatever part of all they are.
        deleteSome(0, 10);
        Synced synced = synchronise(cards);
        CHECK_EQ(synced.counts.deleted_here + synced.counts.deleted_there, 10);
        CHECK_EQ(sizeOf(local), 30);
        deleteSome(10, 21);
        synced = synchronise(cards);
        CHECK_EQ(synced.changes(), 0);
        CHECK_EQ(here ? synced.counts.held_there : synced.counts.held_here, 11);
        CHECK_EQ(sizeOf(local), here ? 19 : 30);
        CHECK_EQ(cardNames(cards).size(), here ? 30U : 19U);
        synced = synchronise(cards, ORVA_SYNC_FORCE);
        CHECK_EQ(synced.counts.deleted_here + synced.counts.deleted_there, 11);
        CHECK_EQ(sizeOf(local), 19);
        CHECK_EQ(cardNames(cards).size(), 19U);
    }
}

TEST(aFolderWithoutItsMarkerIsLeftAlone)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna"));
    synchronise(cards);
    // An empty folder stands where another was mounted.
    fs::rename(cards, cards + ".away");
    CHECK_EQ(synchronise(cards).code, ORVA_E_MARKER);
    CHECK(!fs::exists(cards));
    fs::create_directory(cards);
    change(1, {{"Mobile", u"2"}});
    CHECK_EQ(synchronise(cards).code, ORVA_E_MARKER);
    CHECK_EQ(sizeOf(local), 1);
    CHECK(fs::is_empty(cards));
    fs::remove(cards);
    fs::rename(cards + ".away", cards);
    CHECK_EQ(synchronise(cards).counts.changed_there, 1);
    fs::remove(cards + "/.linkhand-sync");
    fs::remove(cards + "/a.vcf");
    CHECK_EQ(synchronise(cards).code, ORVA_E_MARKER);
    CHECK_EQ(synchronise(cards, ORVA_SYNC_FORCE).counts.deleted_here, 1);
    CHECK_EQ(synchronise(cards).code, ORVA_OK);
}

TEST(theFirstSyncDoublesNobody)
{
    const std::string one = useFreshFolder();
    const std::string cards = freshCards();
    add(local, {{"Name", u"Anna"}, {"Mobile", u"+491715551234"}, {"email", u"a@b"}});
    add(local, {{"Name", u"Twin"}, {"Mobile", u"7"}});
    add(local, {{"Name", u"Twin"}, {"Mobile", u"7"}});
    writeFile(cards + "/x.vcf",
              cardText("x", "ANNA", "TEL;TYPE=CELL:+49 171 5551234\r\nTEL;TYPE=WORK:5\r\nORG:Acme\r\n"));
    writeFile(cards + "/t.vcf", cardText("t", "Twin", "TEL;TYPE=CELL:7\r\n"));
    writeFile(cards + "/u.vcf", cardText("u", "Twin", "TEL;TYPE=CELL:7\r\n"));
    const Synced first = synchronise(cards);
    CHECK_EQ(first.counts.added_here + first.counts.added_there, 0);
    CHECK_EQ(sizeOf(local), 3);
    CHECK_EQ(cardNames(cards).size(), 3U);
    CHECK_EQ(valueOf(local, 1, "officePhone"), u"5");
    CHECK(holds(readFile(cards + "/x.vcf"), "EMAIL:a@b\r\n"));
    CHECK(isQuiet(cards));
    // A second phonebook with the same folder, and the first with a copy of it: known by the UID.
    useFreshFolder();
    CHECK_EQ(synchronise(cards).counts.added_here, 3);
    CHECK(isQuiet(cards));
    CHECK_EQ(ORVA_Sim_Reset(one.c_str()), ORVA_OK);
    CHECK(isQuiet(cards));
    const std::string copy = freshCards();
    for (const std::string& name : cardNames(cards))
        fs::copy_file(cards + "/" + name, copy + "/" + replaced(name, ".vcf", "-copy.vcf"));
    change(1, {{"Name", u"Quite another"}, {"Mobile", u""}, {"email", u""}});
    const Synced second = synchronise(copy);
    CHECK_EQ(second.counts.added_here + second.counts.added_there, 0);
}

TEST(aBackupIsMadeBeforeTheFirstSync)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    const std::string cards = freshCards();
    synchronise(cards);
    synchronise(cards);
    CHECK_EQ(std::distance(fs::directory_iterator(data + "/backups"), fs::directory_iterator()), 1);
}

TEST(aDryRunTellsAndDoesNothing)
{
    useFreshFolder();
    const std::string cards = freshCards();
    add(local, {{"Name", u"Anna"}});
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    const Synced dry = synchronise(cards, ORVA_SYNC_DRY_RUN);
    CHECK_EQ(dry.counts.added_here, 1);
    CHECK_EQ(dry.counts.added_there, 1);
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(std::distance(fs::directory_iterator(cards), fs::directory_iterator()), 1);
    CHECK_EQ(synchronise(cards).changes(), 2);
}

TEST(aContactBackFromTheBinIsTheSameAsBefore)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "ORG:Acme\r\n"));
    synchronise(cards);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    REQUIRE(ORVA_Care_GetBin(local, &entries, &count) == ORVA_OK && count == 1);
    int id = 0;
    CHECK_EQ(ORVA_Care_Undelete(local, entries[0].id, &id), ORVA_OK);
    ORVA_Care_BinRelease(local, &entries);
    CHECK_EQ(synchronise(cards).changes(), 0);
    CHECK_EQ(cardNames(cards).size(), 1U);
    change(id, {{"Mobile", u"2"}});
    CHECK_EQ(synchronise(cards).counts.changed_there, 1);
    CHECK(holds(readFile(cards + "/a.vcf"), "UID:a\r\n"));
    CHECK(isQuiet(cards));
}

TEST(whatIsNoneOfItIsRefused)
{
    useFreshFolder();
    const std::string cards = freshCards();
    void* result = nullptr;
    CHECK_EQ(ORVA_Sync_Run(card, api(wide(cards)), 0, 0, &result), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Sync_Run(local, nullptr, 0, 0, &result), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sync_Run(local, api(u""), 0, 0, &result), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sync_Run(local, api(wide(cards)), 8, 0, &result), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sync_Run(local, api(wide(cards)), 0, -1, &result), ORVA_E_ARGUMENT);
    CHECK(result == nullptr);
    CHECK_EQ(ORVA_Sync_Result_Release(nullptr), ORVA_E_ARGUMENT);
    ORVA_SYNC_EVENT event = {};
    REQUIRE(ORVA_Sync_Run(local, api(wide(cards)), 0, 0, &result) == ORVA_OK);
    CHECK_EQ(ORVA_Sync_Result_GetEvent(result, 0, &event), ORVA_E_END);
    CHECK_EQ(ORVA_Sync_Result_GetEvent(result, -1, &event), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sync_Hold_Release(result), ORVA_E_HANDLE);
    CHECK_EQ(ORVA_Sync_Result_Release(result), ORVA_OK);
}

TEST(aHoldKeepsASyncOut)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    add(local, {{"Name", u"Anna"}});
    void* one = nullptr;
    void* other = nullptr;
    CHECK_EQ(ORVA_Sync_Hold(local, 0, &one), ORVA_OK);
    CHECK_EQ(ORVA_Sync_Hold(local, 0, &other), ORVA_OK);
    CHECK_EQ(synchronise(cards, 0, 0).code, ORVA_E_BUSY);
    CHECK_EQ(ORVA_Sync_Hold_Release(one), ORVA_OK);
    CHECK_EQ(synchronise(cards, 0, 0).code, ORVA_E_BUSY);
    // One that waits has its turn when the last hold ends.
    std::thread ends([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        CHECK_EQ(ORVA_Sync_Hold_Release(other), ORVA_OK);
    });
    CHECK_EQ(synchronise(cards).counts.added_there, 1);
    ends.join();
    CHECK_EQ(ORVA_Sync_Hold(card, 0, &one), ORVA_E_UNSUPPORTED);
}

CHECK_MAIN
