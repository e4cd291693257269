// What a sync makes of files and cards: names, links, sizes, groups, and what has no field.

#include <sys/stat.h>

#include "SyncFixture.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

std::vector<Text> pathsOf(int id)
{
    std::map<int, std::pair<int, Text>> groups;
    std::vector<Text> paths;
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetGroupList(local, &set) == ORVA_OK);
    long more = ORVA_PBSrv_AddrGroupSet_MoveFirst(set);
    for (; more == ORVA_OK; more = ORVA_PBSrv_AddrGroupSet_MoveNext(set)) {
        int group = 0;
        int parent = 0;
        unsigned short* name = nullptr;
        ORVA_PBSrv_AddrGroupSet_GetID(set, &group);
        ORVA_PBSrv_AddrGroupSet_GetParentID(set, &parent);
        ORVA_PBSrv_AddrGroupSet_GetName(set, &name);
        groups[group] = {parent, (parent == 0 ? Text() : groups[parent].second + u"/") + take(name)};
    }
    ORVA_PBSrv_AddrGroupSet_Release(set);
    for (const auto& group : groups) {
        const std::vector<int> members = membersOf(group.first);
        if (std::find(members.begin(), members.end(), id) != members.end())
            paths.push_back(group.second.second);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

using Paths = std::vector<Text>;

void checkPaths(int id, const Paths& expected)
{
    Text found;
    for (const Text& path : pathsOf(id))
        found += path + u";";
    Text wanted;
    for (const Text& path : expected)
        wanted += path + u";";
    CHECK_EQ(found, wanted);
}

std::string groupCard(const std::string& name, const std::string& members, bool newer)
{
    std::string text = std::string("BEGIN:VCARD\r\nVERSION:") + (newer ? "4.0" : "3.0") +
                       "\r\nUID:group\r\nFN:" + name + "\r\n" +
                       (newer ? "KIND:group\r\n" : "X-ADDRESSBOOKSERVER-KIND:group\r\n");
    for (const char member : members)
        text += std::string(newer ? "MEMBER" : "X-ADDRESSBOOKSERVER-MEMBER") + ":urn:uuid:" + member + "\r\n";
    return text + "END:VCARD\r\n";
}

// All lines of a card but those that a change of the note writes.
std::vector<std::string> linesBesideNotes(const std::string& card)
{
    std::vector<std::string> lines;
    bool leaving = false;
    bool soft = false; // a line that ends in "=" goes on in the next, in cards of version 2.1
    for (std::size_t at = 0; at < card.size();) {
        const std::size_t end = std::min(card.find('\n', at), card.size() - 1) + 1;
        const std::string line = card.substr(at, end - at);
        if (line.front() != ' ' && line.front() != '\t' && !soft)
            leaving = line.rfind("NOTE", 0) == 0 || line.rfind("REV", 0) == 0;
        soft = line.find("=\r") != std::string::npos || line.find("=\n") != std::string::npos;
        if (!leaving)
            lines.push_back(line);
        at = end;
    }
    return lines;
}

} // namespace

TEST(aUidThatIsNoSafeNameIsHashedAndNothingIsWrittenElsewhere)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("../../escape", "Anna"));
    writeFile(cards + "/b.vcf", cardText(".hidden", "Bert"));
    synchronise(cards);
    // Deleted there and changed here at once: the files come back under names of ours.
    fs::remove(cards + "/a.vcf");
    fs::remove(cards + "/b.vcf");
    writeFile(cards + "/a.vcf", cardText("c", "Carl"));
    change(1, {{"Mobile", u"1"}});
    CHECK_EQ(synchronise(cards).code, ORVA_OK);
    for (const std::string& name : cardNames(cards))
        CHECK(name.find("..") == std::string::npos);
    // As sha256sum has it.
    const char digest[] = "efbf103bcec54b370d5fdbcd97c853944c0e6bf61a446c27f2552c06847c5df6";
    CHECK(holds(readFile(cards + "/" + digest + ".vcf"), "UID:../../escape\r\n"));
    CHECK(!fs::exists(cards + "/../../escape.vcf"));
}

TEST(linksLargeAndUnreadableFilesAreLeftAndNamed)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const std::string elsewhere = freshCards();
    writeFile(elsewhere + "/secret.vcf", cardText("s", "Secret"));
    fs::create_symlink(elsewhere + "/secret.vcf", cards + "/link.vcf");
    fs::create_directory(cards + "/folder.vcf");
    writeFile(cards + "/large.vcf", cardText("l", "Large", "PHOTO;ENCODING=b:" + std::string(6U << 20, 'A') + "\r\n"));
    writeFile(cards + "/none.vcf", "nothing\r\n");
    writeFile(cards + "/two.vcf", cardText("t", "One") + cardText("v", "Two"));
    writeFile(cards + "/empty.vcf", cardText("e", ""));
    writeFile(cards + "/a.vcf", cardText("a", "Anna"));
    writeFile(cards + "/a-copy.vcf", cardText("a", "Anna again"));
    writeFile(cards + "/.hidden.vcf", cardText("h", "Hidden"));
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.added_here, 1);
    Text left;
    for (const Synced::Event& event : synced.events)
        left += event.file + u" ";
    CHECK_EQ(left, u"empty.vcf folder.vcf large.vcf link.vcf none.vcf two.vcf a.vcf ");
    CHECK(isQuiet(cards));
    // One that can be read no longer is no deletion.
    writeFile(cards + "/a-copy.vcf", "BEGIN:VCARD\r\nFN:half");
    CHECK_EQ(synchronise(cards).counts.deleted_here, 0);
    CHECK_EQ(sizeOf(local), 1);
    change(1, {{"Mobile", u"1"}});
    CHECK_EQ(synchronise(cards).counts.changed_there, 0);
    CHECK_EQ(readFile(cards + "/a-copy.vcf"), "BEGIN:VCARD\r\nFN:half");
}

TEST(aFileIsTrustedByItsContentAndNotByItsTime)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const std::string file = cards + "/a.vcf";
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(100);
    writeFile(file, cardText("a", "Anna", "TEL;TYPE=CELL:1\r\n"));
    fs::last_write_time(file, old);
    synchronise(cards);
    CHECK(isQuiet(cards));
    // The same length and the same time, in place.
    std::ofstream(file, std::ios::binary | std::ios::in) << cardText("a", "Anna", "TEL;TYPE=CELL:2\r\n");
    fs::last_write_time(file, old);
    CHECK_EQ(synchronise(cards).counts.changed_here, 1);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"2");
}

TEST(aFileThatWasOnlyTouchedIsNoChange)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const std::string text = cardText("a", "Anna", "TEL;TYPE=CELL:1\r\n");
    writeFile(cards + "/a.vcf", text);
    synchronise(cards);
    fs::last_write_time(cards + "/a.vcf", fs::file_time_type::clock::now() + std::chrono::hours(1));
    CHECK_EQ(synchronise(cards).changes(), 0);
    // Written anew as it was: the change on the other side is no conflict, whatever the times say.
    writeFile(cards + "/a.vcf", text);
    fs::last_write_time(cards + "/a.vcf", fs::file_time_type::clock::now() + std::chrono::hours(2));
    change(1, {{"Mobile", u"2"}});
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.events.size(), 0U);
    CHECK_EQ(synced.counts.changed_there, 1);
    CHECK_EQ(synced.counts.changed_here, 0);
    CHECK(holds(onlyCardIn(cards), "TEL;TYPE=CELL:2\r\n"));
}

TEST(aFileMayGetAnotherName)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna"));
    synchronise(cards);
    fs::rename(cards + "/a.vcf", cards + "/other.vcf");
    CHECK_EQ(synchronise(cards).changes(), 0);
    change(1, {{"Mobile", u"1"}});
    CHECK_EQ(synchronise(cards).counts.changed_there, 1);
    CHECK(holds(onlyCardIn(cards), "TEL;TYPE=CELL:1\r\n"));
}

TEST(cardsOfOtherProgramsGoThroughUnchanged)
{
    useFreshFolder();
    const std::string cards = freshCards();
    std::map<std::string, std::string> written;
    const fs::path fixtures = fs::path(std::getenv("LINKHAND_SOURCE_DIR")) / "tests/sdk/vcard/cards";
    for (const auto& entry : fs::directory_iterator(fixtures)) {
        if (entry.path().extension() != ".vcf")
            continue;
        // One file a card.
        const std::string text = readFile(entry.path().string());
        int number = 0;
        for (std::size_t at = text.find("BEGIN:VCARD"); at != std::string::npos;) {
            const std::size_t next = text.find("BEGIN:VCARD", at + 1);
            const std::string name = entry.path().stem().string() + std::to_string(++number) + ".vcf";
            written[name] = text.substr(at, next - at);
            writeFile(cards + "/" + name, written[name]);
            at = next;
        }
    }
    REQUIRE(written.size() > 9);
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.events.size(), 0U);
    CHECK_EQ(synced.counts.added_here, static_cast<int>(written.size()));
    CHECK(isQuiet(cards));
    for (const auto& file : written)
        CHECK(readFile(cards + "/" + file.first) == file.second);
    // Property for property where the contact did change.
    const std::vector<int> ids = idsOf(local);
    for (const int id : ids)
        change(id, {{"remark", u"changed"}});
    CHECK_EQ(synchronise(cards).counts.changed_there, static_cast<int>(ids.size()));
    for (const auto& file : written) {
        const std::string now = readFile(cards + "/" + file.first);
        std::size_t at = 0;
        for (const std::string& line : linesBesideNotes(file.second)) {
            const std::size_t found = now.find(line, at);
            CHECK(found != std::string::npos || holds(now, line));
            at = found == std::string::npos ? at : found + line.size();
        }
    }
    CHECK(isQuiet(cards));
}

TEST(groupsAreCategoriesInBothDirections)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "CATEGORIES:Friends/Choir,myContacts,* Old\r\nORG:Acme\r\n"));
    synchronise(cards);
    checkPaths(1, {u"Friends/Choir", u"Old"});
    CHECK(isQuiet(cards));
    const int work = addGroup(u"Work, paid");
    ORVA_PBSrv_AddAddrToGroup(work, 1, local);
    CHECK_EQ(synchronise(cards).counts.changed_there, 1);
    CHECK(holds(onlyCardIn(cards), "CATEGORIES:Friends/Choir,myContacts,* Old,Work\\, paid\r\n"));
    // One side joins, the other leaves.
    writeFile(cards + "/a.vcf", replaced(onlyCardIn(cards), "Friends/Choir,", "New,"));
    ORVA_PBSrv_DelAddrFromGroup(work, 1, local);
    CHECK_EQ(synchronise(cards).events.size(), 0U);
    checkPaths(1, {u"New", u"Old"});
    CHECK(holds(onlyCardIn(cards), "CATEGORIES:New,myContacts,* Old\r\n"));
    CHECK(isQuiet(cards));
    // A group's new name is a change of its members.
    void* group = nullptr;
    ORVA_PBSrv_CreateAddrGroup(local, &group);
    ORVA_PBSrv_AddrGroup_SetName(group, api(u"Newer"));
    ORVA_PBSrv_UpdateGroup(group, groupIds().back());
    ORVA_PBSrv_AddrGroup_Release(group);
    CHECK_EQ(synchronise(cards).counts.changed_there, 1);
    CHECK(holds(onlyCardIn(cards), "CATEGORIES:myContacts,* Old,Newer\r\n"));
}

TEST(cardsOfGroupsHoldTheirMembers)
{
    for (const bool newer : {true, false}) {
        useFreshFolder();
        const std::string cards = freshCards();
        writeFile(cards + "/a.vcf", cardText("a", "Anna"));
        writeFile(cards + "/b.vcf", cardText("b", "Bert"));
        writeFile(cards + "/g.vcf", groupCard("Team", "a", newer));
        CHECK_EQ(synchronise(cards).counts.added_here, 2);
        checkPaths(1, {u"Team"});
        checkPaths(2, {});
        CHECK(isQuiet(cards));
        CHECK_EQ(readFile(cards + "/g.vcf"), groupCard("Team", "a", newer));
        // In the card, out here.
        writeFile(cards + "/g.vcf", groupCard("Team", "ab", newer));
        synchronise(cards);
        checkPaths(2, {u"Team"});
        ORVA_PBSrv_DelAddrFromGroup(groupIds()[0], 1, local);
        synchronise(cards);
        checkPaths(1, {});
        CHECK(readFile(cards + "/g.vcf").find("urn:uuid:a\r\n") == std::string::npos);
        CHECK(holds(readFile(cards + "/g.vcf"), "urn:uuid:b\r\n"));
        // Out of the card, in here.
        writeFile(cards + "/g.vcf", groupCard("Team", "", newer));
        ORVA_PBSrv_AddAddrToGroup(groupIds()[0], 1, local);
        synchronise(cards);
        checkPaths(1, {u"Team"});
        checkPaths(2, {});
        CHECK(holds(readFile(cards + "/g.vcf"), "urn:uuid:a\r\n"));
        CHECK(readFile(cards + "/a.vcf").find("CATEGORIES") == std::string::npos);
        CHECK(isQuiet(cards));
        fs::remove(cards + "/g.vcf");
        synchronise(cards);
        checkPaths(1, {});
    }
}

TEST(whatNoFieldTakesInWholeIsKeptAndComesOutAgain)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const std::string note(700, 'n');
    const std::string text = cardText("a", "Anna",
                                      "TEL;TYPE=CELL:call me\r\nTEL:+49 30 1234 ext. 12\r\nEMAIL:no address\r\n"
                                      "NOTE:" +
                                          note + "\r\n");
    writeFile(cards + "/a.vcf", text);
    synchronise(cards);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"+49301234");
    CHECK_EQ(valueOf(local, 1, "email"), u"");
    CHECK_EQ(valueOf(local, 1, "remark"), Text(500, u'n'));
    CHECK(holds(keptOf(1), "TEL;TYPE=CELL:call me\r\n"));
    CHECK(holds(keptOf(1), "NOTE:" + note));
    CHECK_EQ(readFile(cards + "/a.vcf"), text);
    change(1, {{"remark", u"short"}, {"email", u"a@b"}});
    synchronise(cards);
    const std::string now = onlyCardIn(cards);
    CHECK(holds(now, "NOTE:short\r\nNOTE:" + note));
    CHECK(holds(now, "EMAIL:a@b\r\nEMAIL:no address\r\n"));
    CHECK(holds(now, "TEL:+49 30 1234 ext. 12\r\n"));
    CHECK_EQ(valueOf(local, 1, "remark"), u"short\n+49301234 ext. 12");
    CHECK(isQuiet(cards));
}

TEST(aChangedNameIsChangedInItsParts)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const auto card = [](const std::string& name, const std::string& parts) {
        return "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:" + parts.substr(0, 3) + "\r\nFN:" + name + "\r\nN:" + parts +
               "\r\nEND:VCARD\r\n";
    };
    writeFile(cards + "/1.vcf", card("Petr Novak", "Novak;Petr;Q.;;jun."));
    writeFile(cards + "/2.vcf", card("Dr. Mary O'Hara", "O'Hara;Mary;;Dr.;"));
    writeFile(cards + "/3.vcf", card("Acme", "Acme;;;;"));
    synchronise(cards);
    change(1, {{"Name", u"Pavel Novak"}});
    change(2, {{"Name", u"Dr. Mary Smith, Jones"}});
    change(3, {{"Name", u"Acme Corp"}});
    synchronise(cards);
    CHECK(holds(readFile(cards + "/1.vcf"), "FN:Pavel Novak\r\nN:Novak;Pavel;Q.;;jun.\r\n"));
    CHECK(holds(readFile(cards + "/2.vcf"), "N:Smith\\, Jones;Mary;;Dr.;\r\n"));
    CHECK(holds(readFile(cards + "/3.vcf"), "FN:Acme Corp\r\nN:Acme Corp;;;;\r\n"));
    CHECK(isQuiet(cards));
}

TEST(aNumberThatIsTakenAwayLeavesTheOthersInTheirFields)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna", "TEL:1\r\nTEL:2\r\nTEL;TYPE=CELL;VALUE=uri:tel:+3\r\n"));
    synchronise(cards);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"+3");
    CHECK_EQ(valueOf(local, 1, "homePhone"), u"1");
    CHECK_EQ(valueOf(local, 1, "officePhone"), u"2");
    change(1, {{"Mobile", u""}});
    synchronise(cards);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"");
    CHECK_EQ(valueOf(local, 1, "homePhone"), u"1");
    CHECK_EQ(valueOf(local, 1, "officePhone"), u"2");
    CHECK(isQuiet(cards));
    change(1, {{"Mobile", u"+4"}, {"homePhone", u""}});
    synchronise(cards);
    CHECK_EQ(valueOf(local, 1, "Mobile"), u"+4");
    CHECK_EQ(valueOf(local, 1, "homePhone"), u"");
    CHECK_EQ(valueOf(local, 1, "officePhone"), u"2");
}

TEST(aFullPhonebookLeavesTheRestInTheFolder)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf", cardText("a", "Anna"));
    writeFile(cards + "/b.vcf", cardText("b", "Bert"));
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 1), ORVA_OK);
    const Synced synced = synchronise(cards);
    CHECK_EQ(synced.counts.added_here, 1);
    REQUIRE(synced.events.size() == 1);
    CHECK_EQ(synced.events[0].file, u"b.vcf");
    CHECK_EQ(synced.events[0].what, u"the phonebook is full");
    CHECK_EQ(cardNames(cards).size(), 2U);
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 10), ORVA_OK);
    CHECK_EQ(synchronise(cards).counts.added_here, 1);
}

TEST(aCardThatWouldBeTooLargeIsNotWritten)
{
    useFreshFolder();
    const std::string cards = freshCards();
    void* record = nullptr;
    REQUIRE(newRecord(local, {{"Name", u"Anna"}}, &record) == ORVA_OK);
    const std::string kept = "PHOTO;ENCODING=b:" + std::string(6U << 20, 'A') + "\r\n";
    CHECK_EQ(ORVA_Care_SetKept(record, kept.data(), static_cast<int>(kept.size())), ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    for (int round = 0; round < 2; ++round) {
        const Synced synced = synchronise(cards);
        CHECK_EQ(synced.changes(), 0);
        REQUIRE(synced.events.size() == 1);
        CHECK_EQ(synced.events[0].record, id);
        CHECK_EQ(synced.events[0].what, u"its card would be larger than 5 MB");
    }
    CHECK_EQ(cardNames(cards).size(), 0U);
    CHECK_EQ(sizeOf(local), 1);
}

TEST(twoFilesOfOneContactBecomeOneCard)
{
    useFreshFolder();
    const std::string cards = freshCards();
    const std::string before = freshCards();
    const std::string one = cards + "/one";
    const std::string other = cards + "/other";
    const auto merge = [&](const unsigned short* folder) {
        return ORVA_Sync_MergeCards(api(wide(one)), api(wide(other)), folder);
    };
    const std::string text = cardText("a/b", "Anna", "TEL;TYPE=CELL:1\r\nEMAIL:a@b\r\nORG:Acme\r\nTITLE:Boss\r\n");
    writeFile(before + "/whatever.vcf", text);
    writeFile(one, replaced(replaced(text, "CELL:1", "CELL:2"), "TITLE:Boss\r\n", ""));
    writeFile(other, replaced(replaced(text, "a@b", "c@d"), "Acme", "Other"));
    CHECK_EQ(merge(api(wide(before))), ORVA_OK);
    CHECK(holds(readFile(one), "TEL;TYPE=CELL:2\r\nEMAIL:c@d\r\nORG:Other\r\nREV:"));
    CHECK_EQ(readFile(one), readFile(other));
    // The later one of the same field; without what was before nothing goes that one of them has.
    writeFile(one, replaced(text, "ORG:Acme", "URL:x\r\nREV:20300101T000000Z"));
    writeFile(other, replaced(text, "CELL:1", "CELL:3\r\nREV:20200101T000000Z"));
    CHECK_EQ(merge(nullptr), ORVA_OK);
    CHECK(holds(readFile(other), "TEL;TYPE=CELL:1\r\n"));
    CHECK(holds(readFile(other), "ORG:Acme\r\nTITLE:Boss\r\nURL:x\r\n"));
    writeFile(one, "nothing");
    CHECK_EQ(merge(nullptr), ORVA_E_FORMAT);
    std::filesystem::remove(one);
    CHECK_EQ(merge(nullptr), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_Sync_MergeCards(nullptr, api(wide(one)), nullptr), ORVA_E_ARGUMENT);
}

TEST(whatIsKeptIsMergedPropertyByProperty)
{
    useFreshFolder();
    const std::string cards = freshCards();
    writeFile(cards + "/a.vcf",
              cardText("a", "Anna", "ORG:Acme\r\nADR;TYPE=HOME:;;1 Street;;;;\r\nTITLE:Boss\r\nURL:x\r\n"));
    synchronise(cards);
    // Here another firm and no title; there another address, and a firm of its own.
    void* record = nullptr;
    REQUIRE(ORVA_PBSrv_GetAddrRecord(1, local, &record) == ORVA_OK);
    const std::string kept = "ORG:Here\r\nADR;TYPE=HOME:;;1 Street;;;;\r\nURL:x\r\n";
    CHECK_EQ(ORVA_Care_SetKept(record, kept.data(), static_cast<int>(kept.size())), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(record, 1), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    writeFile(
        cards + "/a.vcf",
        cardText("a", "Anna", "ORG:There\r\nADR;TYPE=HOME:;;2 Street;;;;\r\nTITLE:Boss\r\nURL:x\r\nREV:19990101\r\n"));
    const Synced synced = synchronise(cards);
    REQUIRE(synced.events.size() == 1);
    CHECK_EQ(synced.events[0].what, u"ORG");
    CHECK(synced.events[0].hereWon);
    CHECK_EQ(keptOf(1), "ORG:Here\r\nADR;TYPE=HOME:;;2 Street;;;;\r\nURL:x\r\n");
    const std::string now = onlyCardIn(cards);
    CHECK(now.find("TITLE") == std::string::npos);
    CHECK(isQuiet(cards));
}

CHECK_MAIN
