// The simulated hardware and its events.

#include <unistd.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <mutex>

#include "Phonebook.h"

using namespace phonebook;

namespace
{

std::mutex eventMutex;
std::vector<int> seen; // identifiers in the order in which they came
std::thread::id eventThread;

int note(int event, void* data)
{
    const std::lock_guard<std::mutex> lock(eventMutex);
    CHECK(data == nullptr);
    seen.push_back(event);
    eventThread = std::this_thread::get_id();
    return 1;
}

std::vector<int> events()
{
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
    const std::lock_guard<std::mutex> lock(eventMutex);
    return std::exchange(seen, {});
}

using Register = long (*)(ORVA_CALLBACK);

const Register registers[] = {ORVA_DevSrv_RegisterDevInitEventCallback, ORVA_DevSrv_RegisterDevMgrCallback,
                              ORVA_NetSrv_RegisterNetSrvEvent, ORVA_PBSrv_RegisterPBCallback};
const Register unregisters[] = {ORVA_DevSrv_UnRegisterDevInitEventCallback, ORVA_DevSrv_UnRegisterDevMgrCallback,
                                ORVA_NetSrv_UnRegisterNetSrvEvent, ORVA_PBSrv_UnRegisterPBCallback};

void listenToAll()
{
    useFreshFolder();
    seen.clear();
    for (const Register listen : registers)
        CHECK_EQ(listen(note), ORVA_OK);
}

std::vector<short> memories()
{
    unsigned short count = 0;
    CHECK_EQ(ORVA_PBSrv_PBGetMemoryListType(nullptr, &count), ORVA_OK);
    std::vector<short> types(count, -1);
    if (count != 0)
        CHECK_EQ(ORVA_PBSrv_PBGetMemoryListType(types.data(), &count), ORVA_OK);
    return types;
}

std::atomic<bool> insideCallback{false};
std::atomic<bool> mayLeave{false};
std::atomic<int> calls{0};

int slow(int /*event*/, void* /*data*/)
{
    ++calls;
    insideCallback = true;
    while (!mayLeave)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    insideCallback = false;
    return 1;
}

// Whether a thread of this process waits for something.
bool isAsleep(pid_t thread)
{
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    const std::string stat((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    const size_t name = stat.rfind(')');
    return name != std::string::npos && stat.compare(name, 3, ") S") == 0;
}

int once(int /*event*/, void* /*data*/)
{
    ++calls;
    CHECK_EQ(ORVA_NetSrv_UnRegisterNetSrvEvent(once), ORVA_OK);
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_Reset(nullptr), ORVA_E_ARGUMENT);
    return 1;
}

int throwing(int /*event*/, void* /*data*/)
{
    throw std::runtime_error("a client's mistake");
}

// What the window's logic asks from within its callback.
int asking(int event, void* data)
{
    int status = 0;
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(&status), ORVA_OK);
    int states[2] = {0, 0};
    ORVA_DevSrv_GetRFSwitch(states);
    ORVA_NetSrv_GetSrvStatus(&status);
    return note(event, data);
}

} // namespace

TEST(aFreshProfileHasADeviceWithACard)
{
    useFreshFolder();
    int number = 0;
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(&number), ORVA_OK);
    CHECK_EQ(number, 3);
    unsigned char bytes[3] = {7, 7, 7};
    CHECK_EQ(ORVA_DevSrv_GetPinStatus(0, &number, &bytes[0], &bytes[1], &bytes[2]), ORVA_OK);
    CHECK_EQ(number, 1);
    CHECK_EQ(bytes[0] + bytes[1] + bytes[2], 0);
    CHECK_EQ(ORVA_DevSrv_GetPinStatus(0, &number, nullptr, nullptr, nullptr), ORVA_OK);
    CHECK_EQ(ORVA_DevSrv_GetPinStatus(1, &number, nullptr, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetProductType(&number), ORVA_OK);
    CHECK_EQ(number, 0);
    CHECK_EQ(ORVA_DevSrv_GetSimType(&number), ORVA_OK);
    CHECK_EQ(number, 1);
    int states[2] = {0, 0};
    CHECK_EQ(ORVA_DevSrv_GetRFSwitch(states), ORVA_OK);
    CHECK_EQ(states[0] * 10 + states[1], 11);
    CHECK_EQ(ORVA_NetSrv_GetSrvStatus(&number), ORVA_OK);
    CHECK_EQ(number, 2);
    unsigned char mode[2] = {7, 7};
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(mode, nullptr, nullptr, nullptr), ORVA_OK);
    CHECK_EQ(mode[0] + mode[1], 0);
    CHECK(memories() == (std::vector<short>{card, device}));
}

TEST(noDeviceMeansNoMemoryEntries)
{
    useFreshFolder();
    ORVA_Sim_SetDevice(0);
    CHECK(memories().empty());
    int number = 0;
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(&number), ORVA_OK);
    CHECK_EQ(number, 4);
    CHECK_EQ(ORVA_DevSrv_GetPinStatus(0, &number, nullptr, nullptr, nullptr), ORVA_E_ABSENT);
    CHECK_EQ(ORVA_DevSrv_GetSimType(&number), ORVA_E_ABSENT);
    CHECK_EQ(ORVA_NetSrv_GetSrvStatus(&number), ORVA_E_ABSENT);
    int states[2] = {0, 0};
    CHECK_EQ(ORVA_DevSrv_GetRFSwitch(states), ORVA_E_ABSENT);
    CHECK_EQ(ORVA_DevSrv_GetProductType(&number), ORVA_OK);
    ORVA_Sim_SetDevice(1);
    ORVA_Sim_SetCard(0);
    CHECK(memories() == std::vector<short>{device});
    CHECK_EQ(ORVA_DevSrv_GetSimType(&number), ORVA_E_ABSENT);
}

TEST(theMemoryListStaysWithinItsBuffer)
{
    useFreshFolder();
    short types[4] = {-1, -1, -1, -1};
    unsigned short count = 1;
    CHECK_EQ(ORVA_PBSrv_PBGetMemoryListType(types, &count), ORVA_OK);
    CHECK_EQ(types[0], card);
    CHECK_EQ(types[1], -1);
    count = 4;
    CHECK_EQ(ORVA_PBSrv_PBGetMemoryListType(types, &count), ORVA_OK);
    CHECK_EQ(types[1], device);
    CHECK_EQ(types[2], -1);
    CHECK_EQ(count, 4);
    CHECK_EQ(ORVA_PBSrv_PBGetMemoryListType(types, nullptr), ORVA_E_ARGUMENT);
}

TEST(whatIsAbsentGivesACodeEverywhere)
{
    useFreshFolder();
    const int id = add(card, {{"Name", u"Anna"}});
    void* record = nullptr;
    REQUIRE(newRecord(card, {{"Name", u"Berta"}}, &record) == ORVA_OK);
    void* set = nullptr;
    REQUIRE(ORVA_PBSrv_GetAddrRecList(card, &set) == ORVA_OK);
    ORVA_PROFILE_ENTRY* entries = nullptr;
    int number = 0;
    for (const bool deviceGone : {false, true}) {
        deviceGone ? ORVA_Sim_SetDevice(0) : ORVA_Sim_SetCard(0);
        void* handle = nullptr;
        CHECK_EQ(ORVA_PBSrv_CreateAddrRecord(card, &handle), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_GetAddrRecord(id, card, &handle), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_GetAddrRecList(card, &handle), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &number), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(record, id), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_DelAddrRec(id, card), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_GetProfile(card, &entries, &number), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_GetCapacity(card, &number), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_GetSize(card, &number), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_BeginTransaction(card), ORVA_E_ABSENT);
        CHECK_EQ(ORVA_PBSrv_EndTransaction(card), ORVA_OK);
        deviceGone ? ORVA_Sim_SetDevice(1) : ORVA_Sim_SetCard(1);
    }
    // Back again, with everything that was on it.
    CHECK_EQ(valueOf(card, id, "Name"), u"Anna");
    CHECK_EQ(ORVA_PBSrv_AddrRecordSet_MoveFirst(set), ORVA_OK);
    ORVA_PBSrv_AddrRecordSet_Release(set);
    ORVA_PBSrv_AddrRecord_Release(record);
}

TEST(aPinKeepsTheCardClosed)
{
    useFreshFolder();
    add(card, {{"Name", u"Anna"}});
    int number = 7;
    for (const int closed : {0, 2, 3, 7}) {
        ORVA_Sim_SetPinStatus(closed);
        CHECK_EQ(sizeOf(card), -1);
        CHECK_EQ(ORVA_PBSrv_GetCapacity(card, &number), ORVA_OK);
        CHECK_EQ(number, 0);
        CHECK_EQ(tryAdd(card, {{"Name", u"x"}}), -ORVA_E_ABSENT);
        CHECK_EQ(sizeOf(device), 0);
    }
    for (const int open : {8, 1}) {
        ORVA_Sim_SetPinStatus(open);
        CHECK_EQ(sizeOf(card), 1);
    }
}

TEST(aMemoryThatIsNotReadyIsBusy)
{
    useFreshFolder();
    ORVA_Sim_SetCapacity(card, 0);
    int number = 7;
    CHECK_EQ(ORVA_PBSrv_GetCapacity(card, &number), ORVA_OK);
    CHECK_EQ(number, 0);
    CHECK_EQ(tryAdd(card, {{"Name", u"x"}}), -ORVA_E_BUSY);
}

TEST(everyChangeSendsItsEventsInOrder)
{
    listenToAll();
    ORVA_Sim_SetDevice(0);
    CHECK(events() == std::vector<int>{6014});
    ORVA_Sim_SetDevice(0);
    CHECK(events().empty());
    ORVA_Sim_SetDevice(1);
    CHECK(events() == (std::vector<int>{6014, 20301, 20302, 20303}));
    ORVA_Sim_SetCard(0);
    CHECK(events() == std::vector<int>{6002});
    ORVA_Sim_SetDevice(0);
    ORVA_Sim_SetDevice(1);
    CHECK(events() == (std::vector<int>{6014, 6014, 20301, 20303}));
    ORVA_Sim_SetCard(1);
    CHECK(events() == (std::vector<int>{6601, 20302}));
    ORVA_Sim_SetPinStatus(2);
    ORVA_Sim_SetPinStatus(2);
    CHECK(events() == std::vector<int>{6604});
    ORVA_Sim_SetRadio(1, 0);
    CHECK(events() == std::vector<int>{6615});
    ORVA_Sim_SetNetwork(1);
    CHECK(events() == std::vector<int>{7});
    ORVA_Sim_SetProductType(1);
    ORVA_Sim_SetCardType(3);
    ORVA_Sim_SetMultiModeCard(1, 2);
    CHECK(events().empty());
    ORVA_Sim_SetAutoReady(0);
    ORVA_Sim_SetDevice(0);
    ORVA_Sim_SetDevice(1);
    ORVA_Sim_SetCard(0);
    ORVA_Sim_SetCard(1);
    CHECK(events() == (std::vector<int>{6014, 6014, 20301, 6002, 6601}));
    ORVA_Sim_SendEvent(20302);
    CHECK(events() == std::vector<int>{20302});
    CHECK(eventThread != std::this_thread::get_id());
}

TEST(eachEventBelongsToOneService)
{
    useFreshFolder();
    const std::vector<std::vector<int>> owned{
        {6014}, {6002, 6601, 6604, 6615}, {7, 0, -5, 6003, 30000}, {20301, 20302, 20303}};
    for (std::size_t service = 0; service < owned.size(); ++service) {
        CHECK_EQ(registers[service](note), ORVA_OK);
        for (const auto& list : owned) {
            for (const int event : list)
                ORVA_Sim_SendEvent(event);
        }
        CHECK(events() == owned[service]);
        CHECK_EQ(unregisters[service](note), ORVA_OK);
        ORVA_Sim_SendEvent(owned[service].front());
        CHECK(events().empty());
    }
}

TEST(registeringTwiceChangesNothing)
{
    useFreshFolder();
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(note), ORVA_OK);
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(note), ORVA_OK);
    ORVA_Sim_SendEvent(7);
    CHECK(events() == std::vector<int>{7});
    CHECK_EQ(ORVA_NetSrv_UnRegisterNetSrvEvent(note), ORVA_OK);
    CHECK_EQ(ORVA_NetSrv_UnRegisterNetSrvEvent(note), ORVA_E_NOT_FOUND);
    ORVA_Sim_SendEvent(7);
    CHECK(events().empty());
    for (const Register listen : registers)
        CHECK_EQ(listen(nullptr), ORVA_E_ARGUMENT);
    for (const Register leave : unregisters)
        CHECK_EQ(leave(nullptr), ORVA_E_ARGUMENT);
}

TEST(anUnregisterWaitsForARunningCallback)
{
    useFreshFolder();
    calls = 0;
    mayLeave = false;
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(slow), ORVA_OK);
    for (int i = 0; i < 5; ++i)
        ORVA_Sim_SendEvent(7);
    REQUIRE(waitFor([] { return insideCallback.load(); }));
    std::atomic<bool> returned{false};
    std::atomic<pid_t> thread{0};
    std::thread leaving([&] {
        thread = ::gettid();
        ORVA_NetSrv_UnRegisterNetSrvEvent(slow);
        returned = true;
    });
    // It cannot return while the callback is inside, and so falls asleep; a wrong one returns.
    REQUIRE(waitFor([&] { return returned || isAsleep(thread); }));
    CHECK(!returned);
    mayLeave = true;
    leaving.join();
    CHECK(!insideCallback);
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
    CHECK_EQ(calls.load(), 1);
}

TEST(aCallbackMayUnregisterItself)
{
    useFreshFolder();
    calls = 0;
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(once), ORVA_OK);
    ORVA_Sim_SendEvent(7);
    ORVA_Sim_SendEvent(7);
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
    CHECK_EQ(calls.load(), 1);
}

TEST(aCallbackThatThrowsEndsNothing)
{
    useFreshFolder();
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(throwing), ORVA_OK);
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(note), ORVA_OK);
    ORVA_Sim_SendEvent(7);
    CHECK(events() == std::vector<int>{7});
}

TEST(aCallbackMayAskTheLibrary)
{
    useFreshFolder();
    for (const Register listen : registers)
        CHECK_EQ(listen(asking), ORVA_OK);
    for (int i = 0; i < 20; ++i)
        ORVA_Sim_SetDevice(i % 2);
    // One event each time it goes, four each time it comes.
    CHECK_EQ(events().size(), 50U);
}

TEST(theStateOutlivesTheProcessAndTheTestSwitchesDoNot)
{
    const std::string data = useFreshFolder();
    ORVA_Sim_SetDevice(0);
    ORVA_Sim_SetDeviceFields(3);
    ORVA_Sim_SetPinStatus(8);
    ORVA_Sim_SetProductType(1);
    ORVA_Sim_SetCapacity(local, 77);
    ORVA_Sim_SetFieldLengths(card, 20, 30);
    ORVA_Sim_SetDelay(card, 5000, 5000);
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    int number = 0;
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(&number), ORVA_OK);
    CHECK_EQ(number, 4);
    ORVA_DevSrv_GetProductType(&number);
    CHECK_EQ(number, 1);
    ORVA_PBSrv_GetCapacity(local, &number);
    CHECK_EQ(number, 77);
    ORVA_Sim_SetDevice(1);
    ORVA_PROFILE_ENTRY* entries = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetProfile(card, &entries, &number), ORVA_OK);
    CHECK_EQ(entries[0].max_length, 20);
    CHECK_EQ(entries[1].max_length, 30);
    ORVA_PBSrv_ProfileRelease(card, &entries);
    CHECK_EQ(ORVA_PBSrv_GetProfile(device, &entries, &number), ORVA_OK);
    CHECK_EQ(number, 3);
    ORVA_PBSrv_ProfileRelease(device, &entries);
    // Without the delay, or this would take seconds.
    const auto before = std::chrono::steady_clock::now();
    add(card, {{"Name", u"x"}});
    CHECK(std::chrono::steady_clock::now() - before < std::chrono::seconds(4));
}

TEST(aSlowCardThatIsPulledOutLetsGoAtOnce)
{
    useFreshFolder();
    add(card, {{"Name", u"Anna"}});
    add(card, {{"Name", u"Berta"}});
    ORVA_Sim_SetDelay(card, 10000, 10000);
    for (const bool reading : {true, false}) {
        long code = -1;
        std::thread user([&] {
            void* set = nullptr;
            if (reading && ORVA_PBSrv_GetAddrRecList(card, &set) == ORVA_OK) {
                code = ORVA_PBSrv_AddrRecordSet_MoveFirst(set);
                ORVA_PBSrv_AddrRecordSet_Release(set);
            } else {
                code = ORVA_PBSrv_DelAddrRec(1, card);
            }
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const auto before = std::chrono::steady_clock::now();
        ORVA_Sim_SetCard(0);
        user.join();
        CHECK(std::chrono::steady_clock::now() - before < std::chrono::seconds(5));
        CHECK_EQ(code, ORVA_E_ABSENT);
        ORVA_Sim_SetCard(1);
    }
    ORVA_Sim_SetDelay(card, 0, 0);
    CHECK_EQ(sizeOf(card), 2);
}

TEST(aSlowCardTakesItsTime)
{
    useFreshFolder();
    for (int i = 0; i < 5; ++i)
        add(card, {{"Name", u"Anna"}});
    ORVA_Sim_SetDelay(card, 20, 0);
    const auto before = std::chrono::steady_clock::now();
    CHECK_EQ(idsOf(card).size(), 5U);
    CHECK(std::chrono::steady_clock::now() - before >= std::chrono::milliseconds(100));
}

TEST(switchesRefuseWhatIsOutOfRange)
{
    useFreshFolder();
    CHECK_EQ(ORVA_Sim_SetDelay(local, 1, 1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetDelay(card, -1, 1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetDelay(card, 1, 10001), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetCapacity(2, 1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetCapacity(card, -1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetCapacity(card, 1000001), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetFieldLengths(local, 1, 1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetFieldLengths(card, 0, 1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetFieldLengths(card, 1, 256), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetDeviceFields(1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Sim_SetDeviceFields(5), ORVA_E_ARGUMENT);
}

TEST(deviceQueriesRefuseNull)
{
    useFreshFolder();
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetPinStatus(0, nullptr, nullptr, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetProductType(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetSimType(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetRFSwitch(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(nullptr, nullptr, nullptr, nullptr), ORVA_E_ARGUMENT);
    unsigned char mode[2];
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(mode, mode, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_NetSrv_GetSrvStatus(nullptr), ORVA_E_ARGUMENT);
}

CHECK_MAIN
