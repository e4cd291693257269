// What the store knows of the last sync, through restores, damage and earlier releases.

#include "SyncFixture.h"
#include "orva/orva_store.h"
#include "sdk/core/RawStore.h"

using namespace phonebook;
namespace fs = std::filesystem;

TEST(afterARestoreNothingIsDeletedAndWhatWasRestoredIsInForce)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:1\r\nREV:20010101T000000Z\r\n"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    synchronise(cards);
    const std::string backup = data + "/copy.db";
    CHECK_EQ(ORVA_Store_Backup(local, api(wide(backup))), ORVA_OK);
    // Since then: one changed, one deleted, one new.
    change(1, {{"Mobile", u"2"}});
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(2, local), ORVA_OK);
    add(local, {{"Name", u"Carl"}, {"Mobile", u"3"}});
    synchronise(cards);
    CHECK_EQ(cardNames(cards).size(), 2U);
    CHECK_EQ(ORVA_Store_Restore(local, api(wide(backup))), ORVA_OK);
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.deleted_here + synced.counts.deleted_there, 0);
    CHECK_EQ(sizeOf(local), 3);
    CHECK_EQ(cardNames(cards).size(), 3U);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"1");
    CHECK(holds(readFile(cards + "/a.vcf"), "TEL;TYPE=CELL:1\r\n"));
    CHECK(isQuiet(cards));
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    CHECK_EQ(synchronise(cards).counts.deleted_there, 1);
}

TEST(whatDamageTookIsNotDeletedThere)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "ORG:Acme\r\nCATEGORIES:Friends\r\n"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    writeFile(cards + "/c.vcf", cardText("c", "Carl", "TEL;TYPE=CELL:1\r\n"));
    synchronise(cards);
    ORVA_Sim_Reset(nullptr);
    {
        // Past the library: a record, what is kept and a table that it cannot do without.
        RawStore raw(data);
        CHECK_EQ(raw.ask("DELETE FROM kept"), "");
        CHECK_EQ(raw.ask("DELETE FROM records WHERE id = 2"), "");
        CHECK_EQ(raw.ask("UPDATE records SET mobile = '2' WHERE id = 3"), "");
        CHECK_EQ(raw.ask("DROP TABLE memberships"), "");
    }
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 2);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM sync_links WHERE card IS NOT NULL"), "2");
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.deleted_there + synced.counts.deleted_here, 0);
    CHECK_EQ(synced.counts.added_here, 1);
    CHECK_EQ(keptOf(1), "ORG:Acme\r\n");
    CHECK_EQ(groupIds().size(), 1U);
    CHECK(holds(readFile(cards + "/a.vcf"), "ORG:Acme\r\nCATEGORIES:Friends\r\n"));
    CHECK(isQuiet(cards));
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    CHECK_EQ(synchronise(cards).counts.deleted_there, 1);
}

TEST(aStoreOfAnEarlierReleaseLearnsToSynchronise)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    ORVA_Sim_Reset(nullptr);
    {
        RawStore raw(data);
        CHECK_EQ(raw.ask("DROP TABLE sync_links"), ""); // and its indices
        CHECK_EQ(raw.ask("DROP TABLE sync_folders"), "");
        CHECK_EQ(raw.ask("DROP INDEX bin_record"), "");
        CHECK_EQ(raw.ask("PRAGMA user_version = 3"), "");
    }
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    const std::string cards = freshCards();
    CHECK_EQ(synchronise(cards).counts.added_there, 1);
    CHECK(isQuiet(cards));
}

TEST(aStoreOfBeforeTheIndexOfLooksKeepsItsLinks)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:1\r\n"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    writeFile(cards + "/c.vcf", cardText("c", "Carl"));
    synchronise(cards);
    ORVA_Sim_Reset(nullptr);
    {
        // Looks were texts then.
        RawStore raw(data);
        CHECK_EQ(raw.ask("DROP INDEX sync_links_look"), "");
        CHECK_EQ(raw.ask("UPDATE sync_links SET look = CAST('1700000000000000000 1700000000000000000 99 7' AS BLOB)"),
                 "");
        CHECK_EQ(raw.ask("PRAGMA user_version = 4"), "");
    }
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(sizeOf(local), 3);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM sync_links WHERE card IS NOT NULL"), "3");
    // A deletion on either side, and a change, since then.
    std::filesystem::remove(cards + "/b.vcf");
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(3, local), ORVA_OK);
    change(1, {{"Mobile", u"2"}});
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.deleted_here, 1);
    CHECK_EQ(synced.counts.deleted_there, 1);
    CHECK_EQ(synced.counts.changed_there, 1);
    CHECK_EQ(synced.changes(), 3);
    CHECK(isQuiet(cards));
    CHECK_EQ(RawStore(data).findings(), "");
}

TEST(onlyWhatWasTouchedIsLookedAt)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "ORG:Acme\r\nCATEGORIES:Friends\r\n"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    synchronise(cards);
    const auto touched = [&data] {
        return RawStore(data).ask("SELECT coalesce(group_concat(record), '') FROM sync_links WHERE touched");
    };
    CHECK_EQ(touched(), "");
    CHECK_EQ(update(local, 1, {{"Name", u"Anna"}}), ORVA_OK); // nothing else
    CHECK_EQ(touched(), "");
    change(2, {{"Mobile", u"1"}});
    CHECK_EQ(touched(), "2");
    synchronise(cards);
    ORVA_PBSrv_AddAddrToGroup(groupIds()[0], 2, local);
    CHECK_EQ(touched(), "2");
    synchronise(cards);
    CHECK_EQ(ORVA_PBSrv_DelGroup(groupIds()[0], local), ORVA_OK);
    CHECK_EQ(touched(), "1,2");
    CHECK_EQ(synchronise(cards).counts.changed_there, 2);
    CHECK_EQ(touched(), "");
    CHECK_EQ(RawStore(data).findings(), "");
}

CHECK_MAIN
