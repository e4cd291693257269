// Eight threads at once on every part of the library. Two seconds in the normal run, a minute with LINKHAND_FULL=1.

#include <atomic>
#include <fstream>
#include <map>
#include <random>

#include "Child.h"
#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;

namespace
{

std::atomic<bool> over{false};
std::atomic<int> faults{0};

void expectThat(bool condition, const char* what)
{
    if (condition)
        return;
    ++faults;
    std::fprintf(stderr, "fault: %s\n", what);
}

// Whoever waits for three seconds while another holds the store is told so, has changed nothing and may try again; on a
// machine with much else to do that is no fault.
template <typename Write>
long patiently(Write write)
{
    long code = 0;
    do
        code = write();
    while (code == ORVA_E_BUSY || code == -ORVA_E_BUSY);
    return code;
}

#define EXPECT(condition) expectThat((condition), #condition)

Text digits(long number)
{
    const std::string text = std::to_string(number);
    return Text(text.begin(), text.end());
}

// Owns some records and alone changes them: what it reads is what it wrote.
void owner(int thread)
{
    std::map<int, long> mine;
    std::mt19937 random(static_cast<unsigned>(thread));
    for (long round = 0; !over; ++round) {
        if (round % 20 == 0)
            EXPECT(ORVA_PBSrv_BeginTransaction(local) == ORVA_OK);
        if (mine.size() < 50) {
            const long id = patiently([round] {
                return tryAdd(local, {{"Name", u"owned"}, {"Mobile", digits(round)}, {"remark", digits(round)}});
            });
            EXPECT(id > 0);
            if (id > 0)
                mine[static_cast<int>(id)] = round;
        }
        auto chosen = mine.begin();
        std::advance(chosen, static_cast<std::ptrdiff_t>(random() % mine.size()));
        EXPECT(valueOf(local, chosen->first, "Mobile") == digits(chosen->second));
        const int own = chosen->first;
        EXPECT(
            patiently([own, round] {
                return update(local, own, {{"Name", u"owned"}, {"Mobile", digits(round)}, {"remark", digits(round)}});
            }) == ORVA_OK);
        chosen->second = round;
        if (round % 7 == 0) {
            EXPECT(patiently([own] { return ORVA_PBSrv_DelAddrRec(own, local); }) == ORVA_OK);
            mine.erase(chosen);
        }
        if (round % 20 == 13)
            EXPECT(ORVA_PBSrv_EndTransaction(local) == ORVA_OK);
    }
    EXPECT(ORVA_PBSrv_EndTransaction(local) == ORVA_OK);
    for (const auto& record : mine)
        EXPECT(valueOf(local, record.first, "Mobile") == digits(record.second));
}

// Walks: identifiers ascend, and no record is seen in part.
void walker()
{
    while (!over) {
        void* set = nullptr;
        EXPECT(ORVA_PBSrv_GetAddrRecList(local, &set) == ORVA_OK);
        if (set == nullptr)
            continue;
        int count = 0;
        int last = 0;
        EXPECT(ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set, &count) == ORVA_OK);
        int seen = 0;
        for (long moved = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); moved == ORVA_OK;
             moved = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
            int id = 0;
            EXPECT(ORVA_PBSrv_AddrRecordSet_GetID(set, &id) == ORVA_OK);
            EXPECT(id > last);
            last = id;
            ++seen;
            if (setValue(set, "Name") == u"owned")
                EXPECT(setValue(set, "Mobile") == setValue(set, "remark"));
        }
        EXPECT(seen <= count);
        EXPECT(ORVA_PBSrv_AddrRecordSet_Release(set) == ORVA_OK);
    }
}

void grouper()
{
    while (!over) {
        const long top = patiently([] { return tryAddGroup(u"top"); });
        const long sub = patiently([top] { return tryAddGroup(u"sub", static_cast<int>(top)); });
        EXPECT(top > 0 && sub > 0);
        const int id = static_cast<int>(patiently([] { return tryAdd(local, {{"Name", u"member"}}); }));
        EXPECT(id > 0);
        const int group = static_cast<int>(sub);
        EXPECT(patiently([group, id] { return ORVA_PBSrv_AddAddrToGroup(group, id, local); }) == ORVA_OK);
        EXPECT(membersOf(group) == std::vector<int>{id});
        EXPECT(patiently([id] { return ORVA_PBSrv_DelAddrRec(id, local); }) == ORVA_OK);
        EXPECT(membersOf(group).empty());
        EXPECT(patiently([top] { return ORVA_PBSrv_DelGroup(static_cast<int>(top), local); }) == ORVA_OK);
        EXPECT(membersOf(group) == std::vector<int>{-1});
    }
}

// Uses a card that is pulled and put back all the time: a code, or the truth.
void cardUser()
{
    while (!over) {
        const long id = tryAdd(card, {{"Name", u"on card"}});
        EXPECT(id > 0 || id == -ORVA_E_ABSENT || id == -ORVA_E_FULL);
        for (const int each : idsOf(card)) {
            const long deleted = ORVA_PBSrv_DelAddrRec(each, card);
            EXPECT(deleted == ORVA_OK || deleted == ORVA_E_ABSENT || deleted == ORVA_E_NOT_FOUND);
        }
    }
}

void switcher()
{
    for (int round = 0; !over; ++round) {
        EXPECT(ORVA_Sim_SetCard(round % 2) == ORVA_OK);
        EXPECT(ORVA_Sim_SetDevice(round % 3 == 0 ? 0 : 1) == ORVA_OK);
        EXPECT(ORVA_Sim_SetRadio(round % 2, 1) == ORVA_OK);
        int status = 0;
        EXPECT(ORVA_DevSrv_GetDevStatus(&status) == ORVA_OK);
    }
}

std::atomic<int> listening{0};

// A callback must not run once its unregister has returned.
int heard(int /*event*/, void* /*data*/)
{
    expectThat(listening > 0, "a callback after its unregister");
    int status = 0;
    ORVA_DevSrv_GetDevStatus(&status);
    return 1;
}

void subscriber()
{
    while (!over) {
        ++listening;
        EXPECT(ORVA_DevSrv_RegisterDevMgrCallback(heard) == ORVA_OK);
        EXPECT(ORVA_DevSrv_RegisterDevInitEventCallback(heard) == ORVA_OK);
        ORVA_Sim_SendEvent(6601);
        ORVA_Sim_SendEvent(6014);
        EXPECT(ORVA_DevSrv_UnRegisterDevMgrCallback(heard) == ORVA_OK);
        EXPECT(ORVA_DevSrv_UnRegisterDevInitEventCallback(heard) == ORVA_OK);
        --listening;
    }
}

// Parses a file over and over and stores what it holds.
void importer(const std::string& file)
{
    int map[6] = {0, 1, -1, -1, -1, -1};
    const Text path(file.begin(), file.end());
    while (!over) {
        void* set = nullptr;
        EXPECT(ORVA_PBSrv_ImportFromFile(api(path), map, local, &set) == ORVA_OK);
        int count = 0;
        EXPECT(ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set, &count) == ORVA_OK);
        EXPECT(count == 2);
        EXPECT(ORVA_PBSrv_AddrRecordSet_MoveFirst(set) == ORVA_OK);
        const int id = static_cast<int>(patiently([set] { return tryAdd(local, {{"Name", setValue(set, "Name")}}); }));
        EXPECT(id > 0);
        EXPECT(patiently([id] { return ORVA_PBSrv_DelAddrRec(id, local); }) == ORVA_OK);
        EXPECT(ORVA_PBSrv_AddrRecordSet_Release(set) == ORVA_OK);
    }
}

int secondProcess(const std::string& data)
{
    ORVA_Sim_Reset(data.c_str());
    std::thread stop([] {
        char byte = 0;
        // The parent closes the pipe, or ends.
        while (::read(STDIN_FILENO, &byte, 1) > 0) {
        }
        over = true;
    });
    std::thread walking(walker);
    owner(100);
    walking.join();
    stop.join();
    say(std::to_string(faults.load()));
    return 0;
}

} // namespace

TEST(eightThreadsAndTwoProcessesAtOnce)
{
    const bool full = std::getenv("LINKHAND_FULL") != nullptr;
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"first"}});
    const std::string file = folder() + "/two.csv";
    std::ofstream(file) << "Name,Mobile\r\nAnna,123\r\nBerta,456\r\n";

    int input[2];
    REQUIRE(::pipe2(input, O_CLOEXEC) == 0);
    const int keptInput = ::dup(STDIN_FILENO);
    ::dup2(input[0], STDIN_FILENO);
    Child other({"--second", data});
    ::dup2(keptInput, STDIN_FILENO);
    ::close(keptInput);
    ::close(input[0]);

    std::vector<std::thread> threads;
    threads.emplace_back(owner, 1);
    threads.emplace_back(owner, 2);
    threads.emplace_back(walker);
    threads.emplace_back(grouper);
    threads.emplace_back(cardUser);
    threads.emplace_back(switcher);
    threads.emplace_back(subscriber);
    threads.emplace_back(importer, file);
    std::this_thread::sleep_for(full ? std::chrono::seconds(60) : std::chrono::seconds(2));
    over = true;
    for (std::thread& thread : threads)
        thread.join();
    ::close(input[1]);
    CHECK_EQ(other.readAll(), "0\n");
    CHECK_EQ(other.wait(), 0);
    CHECK_EQ(faults.load(), 0);
    ORVA_Sim_Reset(data.c_str());
    CHECK_EQ(RawStore(data).findings(), "");
}

int main(int argc, char** argv)
{
    if (argc == 3 && std::string(argv[1]) == "--second")
        return secondProcess(argv[2]);
    return check::runAll(argc, argv);
}
