// Contacts for whom nothing has happened are not looked at any more; whatever happens to one is seen all the same.

#include <chrono>
#include <thread>

#include "SyncFixture.h"
#include "sdk/core/RawStore.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

// Synchronises until every file is old enough to be told by its times.
void settle(const std::string& data, const std::string& cards)
{
    const std::string young = "SELECT count(*) FROM sync_links WHERE look = x'' OR touched OR doubtful";
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!isQuiet(cards) || RawStore(data).ask(young) != "0") {
        REQUIRE(std::chrono::steady_clock::now() < giveUp);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

struct Settled {
    std::string data = useFreshFolder();
    std::string cards = freshCards();

    Settled()
    {
        writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL;TYPE=CELL:1\r\n"));
        writeFile(cards + "/b.vcf", cardText("b", "Bert", "CATEGORIES:Friends\r\n"));
        writeFile(cards + "/c.vcf", cardText("c", "Carl"));
        synchronise(cards);
        settle(data, cards);
    }
};

} // namespace

TEST(aChangeOfASettledContactIsSeenOnEitherSide)
{
    const Settled at;
    change(1, {{"Mobile", u"2"}});
    CHECK_EQ(synchronise(at.cards).counts.changed_there, 1);
    settle(at.data, at.cards);
    // As long as it was.
    const std::string text = readFile(at.cards + "/a.vcf");
    writeFile(at.cards + "/a.vcf", replaced(text, "CELL:2", "CELL:3"));
    CHECK_EQ(synchronise(at.cards).counts.changed_here, 1);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"3");
    settle(at.data, at.cards);
    ORVA_PBSrv_AddAddrToGroup(groupIds()[0], 3, local);
    CHECK_EQ(synchronise(at.cards).counts.changed_there, 1);
    CHECK(holds(readFile(at.cards + "/c.vcf"), "CATEGORIES:Friends\r\n"));
}

TEST(aDeletionOfASettledContactIsSeenOnEitherSide)
{
    const Settled at;
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(1, local), ORVA_OK);
    fs::remove(at.cards + "/b.vcf");
    add(local, {{"Name", u"Doris"}}); // as many as before
    const Synced synced = synchronise(at.cards);
    CHECK_EQ(synced.counts.deleted_there, 1);
    CHECK_EQ(synced.counts.deleted_here, 1);
    CHECK_EQ(synced.counts.added_there, 1);
    CHECK_EQ(sizeOf(local), 2);
    CHECK_EQ(cardNames(at.cards).size(), 2U);
}

TEST(aSettledContactThatWentPastTheLibraryIsMissed)
{
    const Settled at;
    ORVA_Sim_Reset(nullptr);
    CHECK_EQ(RawStore(at.data).ask("DELETE FROM records WHERE id = 3"), "");
    CHECK_EQ(ORVA_Sim_Reset(at.data.c_str()), ORVA_OK);
    CHECK_EQ(synchronise(at.cards).counts.deleted_there, 1);
    CHECK_EQ(cardNames(at.cards).size(), 2U);
}

TEST(aSettledCardThatIsCopiedOrRenamedStaysWho)
{
    const Settled at;
    writeFile(at.cards + "/copy.vcf", readFile(at.cards + "/a.vcf"));
    const Synced synced = synchronise(at.cards);
    CHECK_EQ(synced.changes(), 0);
    CHECK_EQ(synced.events.size(), 1U);
    CHECK_EQ(sizeOf(local), 3);
    fs::remove(at.cards + "/copy.vcf");
    fs::rename(at.cards + "/a.vcf", at.cards + "/other.vcf");
    CHECK(isQuiet(at.cards));
    settle(at.data, at.cards);
    change(1, {{"Mobile", u"2"}});
    CHECK_EQ(synchronise(at.cards).counts.changed_there, 1);
    CHECK(holds(readFile(at.cards + "/other.vcf"), "TEL;TYPE=CELL:2\r\n"));
}

TEST(aCardOfAGroupTakesSettledContactsInAndLetsThemGo)
{
    const Settled at;
    const std::string group = at.cards + "/group.vcf";
    const std::string head = "BEGIN:VCARD\r\nVERSION:4.0\r\nUID:g\r\nKIND:group\r\nFN:Choir\r\n";
    const auto members = [&at] {
        const std::string sql = "SELECT group_concat(record) FROM memberships WHERE grp = "
                                "(SELECT max(id) FROM groups)";
        return RawStore(at.data).ask(sql);
    };
    writeFile(group, head + "MEMBER:urn:uuid:a\r\nEND:VCARD\r\n");
    CHECK_EQ(synchronise(at.cards).counts.changed_here, 1);
    CHECK_EQ(members(), "1");
    settle(at.data, at.cards);
    writeFile(group, head + "MEMBER:urn:uuid:a\r\nMEMBER:urn:uuid:c\r\nEND:VCARD\r\n");
    CHECK_EQ(synchronise(at.cards).counts.changed_here, 1);
    CHECK_EQ(members(), "1,3");
    settle(at.data, at.cards);
    fs::remove(group);
    CHECK_EQ(synchronise(at.cards).counts.changed_here, 2);
    CHECK_EQ(members(), "");
}

TEST(newcomersAreFoundBesideSettledContacts)
{
    const Settled at;
    add(local, {{"Name", u"Doris"}, {"Mobile", u"4"}});
    writeFile(at.cards + "/e.vcf", cardText("e", "Erik"));
    const Synced synced = synchronise(at.cards);
    CHECK_EQ(synced.counts.added_there, 1);
    CHECK_EQ(synced.counts.added_here, 1);
    CHECK_EQ(synced.changes(), 2);
    CHECK(isQuiet(at.cards));
}

TEST(aFileIsReplacedAndNeverWrittenInto)
{
    const Settled at;
    const std::string before = readFile(at.cards + "/a.vcf");
    fs::create_hard_link(at.cards + "/a.vcf", at.cards + "/a.before");
    change(1, {{"Mobile", u"2"}});
    CHECK_EQ(synchronise(at.cards).counts.changed_there, 1);
    CHECK_EQ(readFile(at.cards + "/a.before"), before);
    CHECK(readFile(at.cards + "/a.vcf") != before);
}

TEST(aSettledFileThatBecomesALinkIsLeft)
{
    const Settled at;
    fs::rename(at.cards + "/a.vcf", at.cards + "/a.txt");
    fs::create_symlink(at.cards + "/a.txt", at.cards + "/a.vcf");
    const Synced synced = synchronise(at.cards);
    CHECK_EQ(synced.changes(), 0);
    CHECK_EQ(synced.events.size(), 1U);
    CHECK_EQ(sizeOf(local), 3);
}

CHECK_MAIN
