// A sync that is killed at any moment, and two at once.

#include <set>

#include "SyncFixture.h"
#include "sdk/core/Child.h"
#include "sdk/core/RawStore.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

// Lines that no two syncs write alike.
std::string withoutStamps(const std::string& card)
{
    std::string out;
    for (std::size_t at = 0; at < card.size();) {
        const std::size_t end = card.find('\n', at) + 1;
        const std::string line = card.substr(at, end - at);
        if (line.rfind("REV:", 0) != 0 && line.rfind("UID:", 0) != 0)
            out += line;
        at = end;
    }
    return out;
}

struct State {
    std::multiset<std::string> contacts;
    std::multiset<std::string> cards;
    std::set<std::string> bin;

    bool operator==(const State& other) const
    {
        return contacts == other.contacts && cards == other.cards && bin == other.bin;
    }
};

std::string narrow(const Text& text)
{
    return std::string(text.begin(), text.end());
}

State stateOf(const std::string& cards)
{
    State state;
    for (const int id : idsOf(local)) {
        std::string contact;
        for (const char* key : {"Name", "Mobile", "homePhone", "email"})
            contact += narrow(valueOf(local, id, key)) + "|";
        contact += keptOf(id) + "|";
        for (const int group : groupIds()) {
            const std::vector<int> members = membersOf(group);
            contact += std::count(members.begin(), members.end(), id) != 0 ? "x" : "-";
        }
        state.contacts.insert(contact);
    }
    for (const std::string& name : cardNames(cards))
        state.cards.insert(withoutStamps(readFile(cards + "/" + name)));
    const std::vector<Text> names = binValues("Name");
    const std::vector<Text> numbers = binValues("Mobile");
    for (std::size_t i = 0; i < names.size(); ++i)
        state.bin.insert(narrow(names[i]) + "|" + narrow(numbers[i]));
    return state;
}

std::string numberCard(int i, const std::string& number, const std::string& more)
{
    const std::string text = std::to_string(i);
    return cardText("uid-" + text, "Person " + text,
                    "TEL;TYPE=CELL:" + number + "\r\nEMAIL:p" + text + "@b\r\n" + more);
}

// A phonebook and a folder after a sync, and then everything that can happen to either side.
void prepare(const std::string& cards)
{
    for (int i = 0; i < 24; ++i)
        writeFile(cards + "/" + std::to_string(i) + ".vcf", numberCard(i, "1", "ORG:Acme\r\n"));
    CHECK_EQ(synchronise(cards).counts.added_here, 24);
    const int group = addGroup(u"Friends");
    ORVA_PBSrv_BeginTransaction(local);
    for (const int id : idsOf(local)) {
        const int i = std::stoi(narrow(valueOf(local, id, "Name")).substr(7));
        const std::string path = cards + "/" + std::to_string(i) + ".vcf";
        if (i % 8 == 0)
            change(id, {{"Mobile", u"2"}});
        if (i % 8 == 1)
            writeFile(path, numberCard(i, "3", "ORG:Other\r\n"));
        if (i % 8 == 2 || i % 8 == 3) {
            change(id, {{"Mobile", u"2"}});
            writeFile(path, numberCard(i, "3", i % 8 == 2 ? "REV:29990101T000000Z\r\n" : "REV:20010101T000000Z\r\n"));
        }
        if (i % 8 == 4)
            ORVA_PBSrv_DelAddrRec(id, local);
        if (i % 8 == 5)
            fs::remove(path);
        if (i % 8 == 6)
            ORVA_PBSrv_AddAddrToGroup(group, id, local);
    }
    ORVA_PBSrv_EndTransaction(local);
    for (int i = 0; i < 6; ++i) {
        const std::string text = std::to_string(i);
        add(local, {{"Name", u"Twin"}, {"Mobile", u"9"}});
        add(local, {{"Name", wide("New " + text)}, {"Mobile", wide("5" + text)}});
        writeFile(cards + "/new" + text + ".vcf", cardText("new-" + text, "Fresh " + text));
    }
}

} // namespace

TEST(aSyncThatIsKilledIsMadeUpForByTheNext)
{
    const std::string template_ = useFreshFolder();
    const std::string cards = freshCards();
    prepare(cards);
    ORVA_Sim_Reset(nullptr);
    fs::remove_all(template_ + "/backups");
    const std::string data = template_ + "-run";
    const auto begin = [&] {
        ORVA_Sim_Reset(nullptr);
        fs::remove_all(data);
        fs::remove_all(cards + "-run");
        fs::copy(template_, data, fs::copy_options::recursive);
        fs::copy(cards, cards + "-run", fs::copy_options::recursive);
    };
    // The folder is known by its marker, wherever it lies.
    begin();
    CHECK_EQ(Child({"--sync", data, cards + "-run"}).wait(), 0);
    ORVA_Sim_Reset(data.c_str());
    const State wanted = stateOf(cards + "-run");
    CHECK(wanted.bin.count("Person 2|2") == 1 && wanted.bin.count("Person 3|3") == 1);
    CHECK_EQ(wanted.contacts.size(), 24U - 6 + 12 + 6);
    CHECK_EQ(wanted.cards.size(), wanted.contacts.size());
    // The moments are spread over the time that a sync takes just now.
    int cut = 0;
    double length = 20000;
    for (int kill = 0; kill < 200; ++kill) {
        begin();
        {
            Child child({"--sync", data, cards + "-run"});
            std::string line;
            CHECK(child.readLine(line));
            child.readFor(std::chrono::microseconds(static_cast<int>(length * (kill * 37 % 100) / 100)));
            child.kill();
            const bool wasCut = child.wait() < 0;
            cut += wasCut ? 1 : 0;
            length *= wasCut ? 1.05 : 0.85;
        }
        ORVA_Sim_Reset(data.c_str());
        CHECK_EQ(synchronise(cards + "-run").code, ORVA_OK);
        const State found = stateOf(cards + "-run");
        if (!(found == wanted)) {
            CHECK(found.contacts == wanted.contacts);
            CHECK(found.cards == wanted.cards);
            CHECK(found.bin == wanted.bin);
            std::fprintf(stderr, "after kill %d\n", kill);
        }
        CHECK(isQuiet(cards + "-run"));
        CHECK_EQ(RawStore(data).findings(), "");
    }
    std::printf("%d of 200 syncs were cut off\n", cut);
    CHECK(cut > 100);
}

TEST(twoSyncsAtOnceEndAsOne)
{
    const std::string data = useFreshFolder();
    const std::string cards = freshCards();
    for (int i = 0; i < 60; ++i)
        writeFile(cards + "/" + std::to_string(i) + ".vcf", numberCard(i, "1", ""));
    for (int i = 0; i < 60; ++i)
        add(local, {{"Name", wide("Mine " + std::to_string(i))}});
    ORVA_Sim_Reset(nullptr);
    {
        Child one({"--sync", data, cards});
        Child other({"--sync", data, cards});
        CHECK_EQ(one.wait(), 0);
        CHECK_EQ(other.wait(), 0);
    }
    ORVA_Sim_Reset(data.c_str());
    CHECK_EQ(sizeOf(local), 120);
    CHECK_EQ(cardNames(cards).size(), 120U);
    CHECK(isQuiet(cards));
}

TEST(twoPhonebooksWithOneFolderEndTheSame)
{
    const std::string one = useFreshFolder();
    add(local, {{"Name", u"One"}});
    const std::string other = useFreshFolder();
    add(local, {{"Name", u"Other"}});
    const std::string cards = freshCards();
    ORVA_Sim_Reset(nullptr);
    for (int round = 0; round < 2; ++round) {
        Child first({"--sync", one, cards});
        Child second({"--sync", other, cards});
        CHECK_EQ(first.wait(), 0);
        CHECK_EQ(second.wait(), 0);
    }
    for (const std::string& data : {one, other}) {
        ORVA_Sim_Reset(data.c_str());
        CHECK_EQ(synchronise(cards).code, ORVA_OK);
        CHECK_EQ(sizeOf(local), 2);
    }
    CHECK_EQ(cardNames(cards).size(), 2U);
}

int main(int argc, char** argv)
{
    if (argc == 4 && std::string(argv[1]) == "--sync") {
        ORVA_Sim_Reset(argv[2]);
        say("ready");
        void* result = nullptr;
        const long code = ORVA_Sync_Run(local, api(wide(argv[3])), 0, 60000, &result);
        ORVA_Sync_Result_Release(result);
        return code == ORVA_OK ? 0 : 1;
    }
    return check::runAll(argc, argv);
}
