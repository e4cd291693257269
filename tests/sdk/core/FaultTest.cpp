// Errors injected at every step under the library: a code comes back, and nothing acknowledged is lost.
//
// The normal run takes a sample of the steps, LINKHAND_FULL=1 every one.

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <map>
#include <set>

#include "FaultyVfs.h"
#include "Phonebook.h"
#include "RawStore.h"

using namespace phonebook;

namespace
{

Text digits(long number)
{
    const std::string text = std::to_string(number);
    return Text(text.begin(), text.end());
}

// What a run was told, and what it was not.
struct Ledger {
    std::map<int, Text> certain; // by identifier
    std::set<int> doubtful;
    int codes = 0; // failures that came back
    std::set<long> kinds;

    void failed(long code)
    {
        ++codes;
        kinds.insert(code);
    }
};

void addOneByOne(Ledger& ledger)
{
    for (int i = 0; i < 3; ++i) {
        const long id = tryAdd(local, {{"Name", digits(i)}, {"remark", Text(200, u'r')}});
        if (id > 0)
            ledger.certain[static_cast<int>(id)] = digits(i);
        else
            ledger.failed(-id);
    }
}

// Twenty records, each into the group if there is one. Gives those that were taken, by identifier.
std::map<int, Text> addMembers(Ledger& ledger, long group)
{
    std::map<int, Text> added;
    for (int i = 10; i < 30; ++i) {
        const long id = tryAdd(local, {{"Name", digits(i)}, {"remark", Text(400, u's')}});
        if (id < 0) {
            ledger.failed(-id);
            continue;
        }
        added[static_cast<int>(id)] = digits(i);
        if (group > 0) {
            const long joined = ORVA_PBSrv_AddAddrToGroup(static_cast<int>(group), static_cast<int>(id), local);
            if (joined != ORVA_OK)
                ledger.failed(joined);
        }
    }
    return added;
}

// A transaction with additions and a deletion: certain only when its end says so.
void changeInATransaction(Ledger& ledger, long group)
{
    std::set<int> gone;
    if (const long begun = ORVA_PBSrv_BeginTransaction(local); begun != ORVA_OK)
        ledger.failed(begun);
    const std::map<int, Text> open = addMembers(ledger, group);
    if (!ledger.certain.empty()) {
        const int first = ledger.certain.begin()->first;
        const long deleted = ORVA_PBSrv_DelAddrRec(first, local);
        gone.insert(first);
        if (deleted != ORVA_OK)
            ledger.failed(deleted);
    }
    const long ended = ORVA_PBSrv_EndTransaction(local);
    if (ended == ORVA_OK) {
        // A write that failed by itself had no part in it.
        for (const auto& record : open)
            ledger.certain.insert(record);
    } else {
        ledger.failed(ended);
        for (const auto& record : open)
            ledger.doubtful.insert(record.first);
    }
    for (const int id : gone) {
        ledger.certain.erase(id);
        ledger.doubtful.insert(id);
    }
}

void read(Ledger& ledger)
{
    void* set = nullptr;
    if (const long listed = ORVA_PBSrv_GetAddrRecList(local, &set); listed != ORVA_OK) {
        ledger.failed(listed);
    } else if (set != nullptr) {
        long moved = ORVA_PBSrv_AddrRecordSet_MoveFirst(set);
        for (; moved == ORVA_OK; moved = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
            unsigned short* value = nullptr;
            if (ORVA_PBSrv_AddrRecordSet_GetValue(set, "Name", &value) == ORVA_OK)
                delete[] value;
        }
        if (moved != ORVA_E_END)
            ledger.failed(moved);
        ORVA_PBSrv_AddrRecordSet_Release(set);
    }
    void* groups = nullptr;
    if (const long listed = ORVA_PBSrv_GetGroupList(local, &groups); listed != ORVA_OK)
        ledger.failed(listed);
    else
        ORVA_PBSrv_AddrGroupSet_Release(groups);
}

// A day in the life of a store. Each call's result goes into the ledger.
void live(Ledger& ledger)
{
    addOneByOne(ledger);
    const long group = tryAddGroup(u"group");
    if (group < 0)
        ledger.failed(-group);
    changeInATransaction(ledger, group);
    read(ledger);
}

// After the fault is over: everything certain is there, and the store is sound.
void examine(const std::string& data, const Ledger& ledger, const std::string& what)
{
    REQUIRE(ORVA_Sim_Reset(data.c_str()) == ORVA_OK);
    int wrong = 0;
    for (const auto& record : ledger.certain)
        wrong += valueOf(local, record.first, "Name") != record.second ? 1 : 0;
    if (wrong != 0)
        check::report(__FILE__, __LINE__, what + ": " + std::to_string(wrong) + " acknowledged records are gone");
    CHECK(tryAdd(local, {{"Name", u"after"}}) > 0);
    CHECK_EQ(RawStore(data).findings(), "");
    // Faults of the disk are no damage: nothing was put aside.
    for (const auto& entry : std::filesystem::directory_iterator(data))
        CHECK(entry.path().string().find("damaged") == std::string::npos);
}

int stride()
{
    return std::getenv("LINKHAND_FULL") != nullptr ? 1 : 7;
}

void failEachStep(faulty::Fault fault, bool stays)
{
    faulty::install();
    long tried = 0;
    long noticed = 0;
    std::set<long> kinds;
    for (long step = 0;; step += stride()) {
        const std::string data = useFreshFolder();
        faulty::arm(fault, step, stays);
        Ledger ledger;
        live(ledger);
        const long hits = faulty::plan().hits;
        faulty::disarm();
        // The transaction that could not be ended is over by now; its failure is told once.
        examine(data, ledger, "step " + std::to_string(step));
        std::filesystem::remove_all(data);
        if (hits == 0)
            break;
        ++tried;
        noticed += ledger.codes > 0 ? 1 : 0;
        kinds.insert(ledger.kinds.begin(), ledger.kinds.end());
    }
    std::printf("%ld steps failed, %ld of them seen by the client, codes:", tried, noticed);
    for (const long kind : kinds)
        std::printf(" %ld", kind);
    std::printf("\n");
    CHECK(tried > 5);
    CHECK(noticed > 0);
    for (const long kind : kinds)
        CHECK(kind == ORVA_E_STORE || kind == ORVA_E_NO_SPACE || kind == ORVA_E_BUSY || kind == ORVA_E_NOT_FOUND);
}

} // namespace

// The sanitizers bring their own allocation.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

namespace
{

std::atomic<long> allocationsLeft{-1}; // -1: no end
std::atomic<long> failedAllocations{0};

bool allocationFails()
{
    if (allocationsLeft.load(std::memory_order_relaxed) < 0)
        return false;
    if (allocationsLeft.fetch_sub(1) != 0)
        return false;
    ++failedAllocations;
    return true;
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = allocationFails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

// Not inlined: the compiler would see new meet free and take it for a mistake.
__attribute__((noinline)) void operator delete(void* memory) noexcept
{
    std::free(memory);
}

__attribute__((noinline)) void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace
{

// What the calls of one life gave back; its memory is there before the first of them.
struct Codes {
    std::vector<long> all;

    Codes() { all.reserve(64); }
    void operator<<(long code) { all.push_back(code); }

    // Those that are no answer to a lack of memory.
    long others() const
    {
        return std::count_if(all.begin(), all.end(), [](long code) {
            return code != ORVA_OK && code != ORVA_E_NO_MEMORY && code != ORVA_E_END;
        });
    }
};

void storeARecord(Codes& codes, const Text& name)
{
    void* record = nullptr;
    codes << ORVA_PBSrv_CreateAddrRecord(local, &record);
    if (record == nullptr)
        return;
    int id = 0;
    codes << ORVA_PBSrv_AddrRecord_SetValue(record, "Name", api(name));
    codes << ORVA_PBSrv_AddAddrRec(record, &id);
    unsigned short* value = nullptr;
    codes << ORVA_PBSrv_AddrRecord_GetValue(record, "Name", &value);
    delete[] value;
    codes << ORVA_PBSrv_AddrRecord_Release(record);
}

void readRecords(Codes& codes)
{
    void* set = nullptr;
    codes << ORVA_PBSrv_GetAddrRecList(local, &set);
    if (set == nullptr)
        return;
    codes << ORVA_PBSrv_AddrRecordSet_MoveFirst(set);
    unsigned short* value = nullptr;
    codes << ORVA_PBSrv_AddrRecordSet_GetValue(set, "remark", &value);
    delete[] value;
    codes << ORVA_PBSrv_AddrRecordSet_Release(set);
}

void readGroups(Codes& codes, int group)
{
    codes << ORVA_PBSrv_AddAddrToGroup(group, 1, local);
    void* groups = nullptr;
    codes << ORVA_PBSrv_GetGroupList(local, &groups);
    if (groups == nullptr)
        return;
    int count = 0;
    int* ids = nullptr;
    codes << ORVA_PBSrv_AddrGroupSet_GetAddrInGroupByID(groups, group, &count, &ids);
    codes << ORVA_PBSrv_AddrGroupSet_Release(groups);
}

void readProfile(Codes& codes)
{
    ORVA_PROFILE_ENTRY* entries = nullptr;
    int count = 0;
    codes << ORVA_PBSrv_GetProfile(local, &entries, &count);
    if (entries != nullptr)
        codes << ORVA_PBSrv_ProfileRelease(local, &entries);
}

} // namespace

TEST(anAllocationThatFailsGivesACodeWhereverItIs)
{
    long tried = 0;
    for (long step = 0;; step += stride()) {
        const std::string data = useFreshFolder();
        add(local, {{"Name", u"Anna"}, {"remark", Text(300, u'r')}});
        const int group = addGroup(u"group");
        const Text longName(90, u'n');
        REQUIRE(ORVA_Sim_Reset(data.c_str()) == ORVA_OK);

        Codes codes;
        failedAllocations = 0;
        allocationsLeft = step;
        storeARecord(codes, longName);
        readRecords(codes);
        readGroups(codes, group);
        readProfile(codes);
        allocationsLeft = -1;
        const long failed = failedAllocations;

        CHECK_EQ(codes.others(), 0);
        REQUIRE(ORVA_Sim_Reset(data.c_str()) == ORVA_OK);
        CHECK_EQ(valueOf(local, 1, "Name"), u"Anna");
        CHECK_EQ(RawStore(data).findings(), "");
        std::filesystem::remove_all(data);
        if (failed == 0)
            break;
        ++tried;
    }
    std::printf("%ld allocations failed\n", tried);
    CHECK(tried > 3);
}

#endif

TEST(aReadOrWriteThatFailsOnceLosesNothing)
{
    failEachStep(faulty::Fault::Io, false);
}

TEST(aDiskThatFailsAndStaysSoLosesNothing)
{
    failEachStep(faulty::Fault::Io, true);
}

TEST(aDiskThatIsFullLosesNothing)
{
    failEachStep(faulty::Fault::Full, true);
}

TEST(aDiskThatIsFullForAMomentLosesNothing)
{
    failEachStep(faulty::Fault::Full, false);
}

TEST(aCommitThatFailsIsToldByTheEndOfItsTransaction)
{
    faulty::install();
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"before"}});
    REQUIRE(ORVA_PBSrv_BeginTransaction(local) == ORVA_OK);
    const int lost = add(local, {{"Name", u"lost"}});
    faulty::arm(faulty::Fault::Full, 0, true);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    faulty::disarm();
    // Once: the next transaction is another one.
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(valueOf(local, lost, "Name"), u"(none)");
    // An identifier that a client has seen is not given to another record.
    CHECK(add(local, {{"Name", u"after"}}) > lost);
}

TEST(aTransactionThatTheLibraryEndsAndCannotIsToldByTheNextEnd)
{
    faulty::install();
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"before"}});
    REQUIRE(ORVA_PBSrv_BeginTransaction(local) == ORVA_OK);
    add(local, {{"Name", u"lost"}});
    faulty::arm(faulty::Fault::Full, 0, true);
    // Its own thread tries, and fails.
    CHECK(waitFor([] { return faulty::plan().hits > 0 && sizeOf(local) == 1; }));
    faulty::disarm();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    CHECK_EQ(sizeOf(local), 1);
}

CHECK_MAIN
