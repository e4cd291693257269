// Several processes on one data folder.

#include <atomic>
#include <memory>
#include <set>

#include "Child.h"
#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;

namespace
{

Text ascii(const std::string& text)
{
    return Text(text.begin(), text.end());
}

// Adds records named after itself from two threads, some in transactions, and raises a number in one of them.
int write(const std::string& data, const std::string& name, int count)
{
    ORVA_Sim_Reset(data.c_str());
    std::atomic<int> failures{0};
    const auto work = [&](int part) {
        const long own = tryAdd(local, {{"Name", ascii(name + std::to_string(part))}, {"Mobile", u"0"}});
        if (own <= 0)
            ++failures;
        for (int i = 0; i < count; ++i) {
            if (i % 10 == 0)
                ORVA_PBSrv_BeginTransaction(local);
            const std::string label = name + std::to_string(part) + "-" + std::to_string(i);
            if (tryAdd(local, {{"Name", ascii(label)}}) <= 0)
                ++failures;
            if (update(local, static_cast<int>(own),
                       {{"Name", ascii(name + std::to_string(part))}, {"Mobile", ascii(std::to_string(i + 1))}}) !=
                ORVA_OK)
                ++failures;
            if (i % 10 == 9 && ORVA_PBSrv_EndTransaction(local) != ORVA_OK)
                ++failures;
        }
    };
    std::thread other(work, 1);
    work(0);
    other.join();
    say(std::to_string(failures.load()));
    return failures == 0 ? 0 : 1;
}

// Writes without a pause until it is killed.
int hog(const std::string& data)
{
    ORVA_Sim_Reset(data.c_str());
    bool told = false;
    for (;;) {
        ORVA_PBSrv_BeginTransaction(local);
        for (int i = 0; i < 200; ++i) {
            const long id = tryAdd(local, {{"Name", u"hog"}});
            if (id > 0)
                ORVA_PBSrv_DelAddrRec(static_cast<int>(id), local);
        }
        ORVA_PBSrv_EndTransaction(local);
        if (!told)
            say("writing");
        told = true;
    }
}

} // namespace

TEST(twoProcessesLoseNothingOfEachOther)
{
    const std::string data = useFreshFolder();
    constexpr int count = 150;
    {
        Child first({"--write", data, "first", std::to_string(count)});
        Child second({"--write", data, "second", std::to_string(count)});
        CHECK_EQ(first.readAll(), "0\n");
        CHECK_EQ(second.readAll(), "0\n");
        CHECK_EQ(first.wait(), 0);
        CHECK_EQ(second.wait(), 0);
    }
    CHECK_EQ(sizeOf(local), 4 * (count + 1));
    std::set<Text> names;
    for (const int id : idsOf(local)) {
        const Text name = valueOf(local, id, "Name");
        CHECK(names.insert(name).second);
        if (name.find(u'-') == Text::npos)
            CHECK_EQ(valueOf(local, id, "Mobile"), ascii(std::to_string(count)));
    }
    CHECK_EQ(names.size(), 4U * (count + 1));
    CHECK_EQ(RawStore(data).findings(), "");
}

TEST(processesThatStartAtOnceMakeOneStoreTogether)
{
    constexpr int processes = 4;
    for (int round = 0; round < 10; ++round) {
        const std::string data = useFreshFolder();
        std::vector<std::unique_ptr<Child>> children;
        for (int i = 0; i < processes; ++i)
            children.push_back(std::make_unique<Child>(std::vector<std::string>{"--write", data, "p", "1"}));
        for (const auto& child : children) {
            CHECK_EQ(child->readAll(), "0\n");
            CHECK_EQ(child->wait(), 0);
        }
        CHECK_EQ(sizeOf(local), processes * 4);
        CHECK_EQ(RawStore(data).findings(), "");
    }
}

TEST(anOpenSetAndTheCountsFollowAnotherProcess)
{
    const std::string data = useFreshFolder();
    for (int i = 0; i < 5; ++i)
        add(local, {{"Name", u"mine"}});
    CHECK_EQ(sizeOf(local), 5);
    RawStore raw(data);
    raw.ask("DELETE FROM records WHERE id = 5");
    raw.ask("INSERT INTO records (id, name) VALUES (6, 'other')");
    raw.ask("INSERT INTO records (id, name) VALUES (7, 'other')");
    CHECK_EQ(sizeOf(local), 6);
    CHECK(idsOf(local) == (std::vector<int>{1, 2, 3, 4, 6, 7}));
    CHECK_EQ(valueOf(local, 6, "Name"), u"other");
    CHECK_EQ(add(local, {{"Name", u"mine"}}), 8);
}

TEST(aWriterWithoutPauseKeepsNobodyOut)
{
    const std::string data = useFreshFolder();
    Child child({"--hog", data});
    std::string line;
    REQUIRE(child.readLine(line));
    for (int i = 0; i < 20; ++i)
        CHECK(tryAdd(local, {{"Name", u"polite"}}) > 0);
    child.kill();
    CHECK_EQ(child.wait(), -SIGKILL);
    int polite = 0;
    for (const int id : idsOf(local))
        polite += valueOf(local, id, "Name") == u"polite" ? 1 : 0;
    CHECK_EQ(polite, 20);
}

TEST(aStoreThatAnotherProcessHoldsIsBusyForWritersAndOpenForReaders)
{
    const std::string data = useFreshFolder();
    const int id = add(local, {{"Name", u"Anna"}});
    RawStore raw(data);
    CHECK_EQ(raw.ask("BEGIN IMMEDIATE"), "");
    std::atomic<bool> done{false};
    long code = 0;
    std::thread writer([&] {
        code = tryAdd(local, {{"Name", u"Berta"}});
        done = true;
    });
    // Readers of this process go on while a writer of it waits.
    int reads = 0;
    while (!done) {
        CHECK_EQ(valueOf(local, id, "Name"), u"Anna");
        ++reads;
    }
    writer.join();
    CHECK_EQ(code, -ORVA_E_BUSY);
    CHECK(reads > 10);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(id, local), ORVA_E_BUSY);
    CHECK_EQ(raw.ask("COMMIT"), "");
    CHECK(tryAdd(local, {{"Name", u"Berta"}}) > 0);
    CHECK_EQ(sizeOf(local), 2);
}

TEST(theHardwareStateIsSharedWithTheNextProcess)
{
    const std::string data = useFreshFolder();
    ORVA_Sim_SetCard(0);
    ORVA_Sim_SetNetwork(1);
    Child child({"--hardware", data});
    CHECK_EQ(child.readAll(), "1 1\n");
    CHECK_EQ(child.wait(), 0);
    // What the other process changed stands beside what this one changes later.
    ORVA_Sim_SetNetwork(3);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    int type = 0;
    CHECK_EQ(ORVA_DevSrv_GetProductType(&type), ORVA_OK);
    CHECK_EQ(type, 9);
    CHECK_EQ(ORVA_NetSrv_GetSrvStatus(&type), ORVA_OK);
    CHECK_EQ(type, 3);
}

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "--write" && argc == 5)
        return write(argv[2], argv[3], std::atoi(argv[4]));
    if (mode == "--hog" && argc == 3)
        return hog(argv[2]);
    if (mode == "--hardware" && argc == 3) {
        ORVA_Sim_Reset(argv[2]);
        unsigned short count = 0;
        int network = 0;
        ORVA_PBSrv_PBGetMemoryListType(nullptr, &count);
        ORVA_NetSrv_GetSrvStatus(&network);
        ORVA_Sim_SetProductType(9);
        say(std::to_string(count) + " " + std::to_string(network));
        return 0;
    }
    return check::runAll(argc, argv);
}
