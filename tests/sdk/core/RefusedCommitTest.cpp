// What a memory does after a commit that the disk refused: it takes nothing that it cannot keep, and says what was
// lost.

#include <atomic>

#include "FaultyVfs.h"
#include "Phonebook.h"
#include "orva/orva_store.h"

using namespace phonebook;

namespace
{

struct Loss {
    long code = -1;
    int records = -1;
};

Loss takeLoss(int memory)
{
    Loss loss;
    CHECK_EQ(ORVA_Store_TakeLoss(memory, &loss.code, &loss.records), ORVA_OK);
    return loss;
}

void checkLoss(int memory, long code, int records)
{
    const Loss loss = takeLoss(memory);
    CHECK_EQ(loss.code, code);
    CHECK_EQ(loss.records, records);
}

std::atomic<int> lossEvents{0};

int onEvent(int event, void* /*data*/)
{
    if (event == ORVA_EVENT_STORE_LOSS)
        ++lossEvents;
    return 0;
}

void fillDisk()
{
    faulty::arm(faulty::Fault::Full, 0, true);
}

// An open store with one record, on a disk that can be filled.
int storeWithOneRecord(int memory = local)
{
    faulty::install();
    useFreshFolder();
    return add(memory, {{"Name", u"before"}});
}

void begin(int memory = local)
{
    REQUIRE(ORVA_PBSrv_BeginTransaction(memory) == ORVA_OK);
}

// A transaction of some records that the disk refuses.
void loseTransaction(int records, int memory = local)
{
    begin(memory);
    for (int i = 0; i < records; ++i)
        add(memory, {{"Name", u"lost"}});
    fillDisk();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(memory), ORVA_E_NO_SPACE);
}

} // namespace

TEST(nothingIsTakenWhileTheDiskRefuses)
{
    const int first = storeWithOneRecord();
    const int group = addGroup(u"group");
    loseTransaction(5);
    begin();
    CHECK_EQ(tryAdd(local, {{"Name", u"refused"}}), -ORVA_E_NO_SPACE);
    CHECK_EQ(update(local, first, {{"Name", u"refused"}}), ORVA_E_NO_SPACE);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(first, local), ORVA_E_NO_SPACE);
    CHECK_EQ(tryAddGroup(u"refused"), -ORVA_E_NO_SPACE);
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, first, local), ORVA_E_NO_SPACE);
    // Nothing of it was taken, so nothing is lost with it.
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    faulty::disarm();
    CHECK_EQ(sizeOf(local), 1);
    CHECK_EQ(valueOf(local, first, "Name"), u"before");
    checkLoss(local, ORVA_E_NO_SPACE, 5);
}

TEST(writesAreTakenAgainWhenACommitGoesThrough)
{
    storeWithOneRecord();
    loseTransaction(3);
    begin();
    CHECK_EQ(tryAdd(local, {{"Name", u"refused"}}), -ORVA_E_NO_SPACE);
    faulty::disarm();
    // The first one is committed by itself, the others are gathered again.
    const int alone = add(local, {{"Name", u"alone"}});
    const int gathered = add(local, {{"Name", u"gathered"}});
    fillDisk();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    faulty::disarm();
    CHECK_EQ(valueOf(local, alone, "Name"), u"alone");
    CHECK_EQ(valueOf(local, gathered, "Name"), u"(none)");
    checkLoss(local, ORVA_E_NO_SPACE, 4);
}

TEST(aWriteThatChangesNothingProvesNothing)
{
    const int first = storeWithOneRecord();
    const int group = addGroup(u"group");
    REQUIRE(ORVA_PBSrv_AddAddrToGroup(group, first, local) == ORVA_OK);
    loseTransaction(1);
    begin();
    CHECK_EQ(ORVA_PBSrv_AddAddrToGroup(group, first, local), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(9999, local), ORVA_E_NOT_FOUND);
    CHECK_EQ(tryAdd(local, {{"Name", u"refused"}}), -ORVA_E_NO_SPACE);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_OK);
    faulty::disarm();
}

TEST(theLossIsCountedByRecordAndToldOnce)
{
    const int first = storeWithOneRecord();
    const int group = addGroup(u"group");
    checkLoss(local, ORVA_OK, 0);
    begin();
    const int added = add(local, {{"Name", u"lost"}});
    REQUIRE(update(local, added, {{"Name", u"lost twice"}}) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_AddAddrToGroup(group, added, local) == ORVA_OK);
    REQUIRE(ORVA_PBSrv_AddAddrToGroup(group, first, local) == ORVA_OK);
    addGroup(u"another");
    fillDisk();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    faulty::disarm();
    checkLoss(local, ORVA_E_NO_SPACE, 2);
    checkLoss(local, ORVA_OK, 0);
}

TEST(aLossOfGroupsAloneIsOneToo)
{
    storeWithOneRecord();
    begin();
    addGroup(u"lost");
    fillDisk();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    faulty::disarm();
    checkLoss(local, ORVA_E_NO_SPACE, 0);
}

TEST(aWriteThatFailsByItselfIsNoLoss)
{
    storeWithOneRecord();
    fillDisk();
    CHECK_EQ(tryAdd(local, {{"Name", u"refused"}}), -ORVA_E_NO_SPACE);
    faulty::disarm();
    checkLoss(local, ORVA_OK, 0);
}

TEST(eachMemoryHasItsOwnLossAlsoWhenItIsOut)
{
    storeWithOneRecord(device);
    loseTransaction(2, device);
    faulty::disarm();
    REQUIRE(ORVA_Sim_SetDevice(0) == ORVA_OK);
    checkLoss(local, ORVA_OK, 0);
    checkLoss(card, ORVA_OK, 0);
    checkLoss(device, ORVA_E_NO_SPACE, 2);
    REQUIRE(ORVA_Sim_SetDevice(1) == ORVA_OK);
    Loss loss;
    CHECK_EQ(ORVA_Store_TakeLoss(2, &loss.code, &loss.records), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_TakeLoss(local, nullptr, &loss.records), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Store_TakeLoss(local, &loss.code, nullptr), ORVA_E_ARGUMENT);
}

TEST(anEventTellsOfALossWhoeverEndedTheTransaction)
{
    storeWithOneRecord();
    lossEvents = 0;
    REQUIRE(ORVA_PBSrv_RegisterPBCallback(onEvent) == ORVA_OK);
    loseTransaction(1);
    CHECK(waitFor([] { return lossEvents == 1; }));
    faulty::disarm();
    // Here the library's own thread.
    add(local, {{"Name", u"through"}});
    begin();
    add(local, {{"Name", u"lost"}});
    fillDisk();
    CHECK(waitFor([] { return lossEvents == 2; }));
    CHECK_EQ(tryAdd(local, {{"Name", u"refused"}}), -ORVA_E_NO_SPACE);
    faulty::disarm();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    checkLoss(local, ORVA_E_NO_SPACE, 2);
    CHECK_EQ(ORVA_PBSrv_UnRegisterPBCallback(onEvent), ORVA_OK);
    CHECK_EQ(lossEvents.load(), 2);
}

TEST(aBackupThatCannotCommitIsToldByTheEndOfTheTransaction)
{
    storeWithOneRecord();
    begin();
    const int lost = add(local, {{"Name", u"lost"}});
    const std::string copy = folder() + "/copy" + std::to_string(::getpid()) + ".db";
    fillDisk();
    CHECK_EQ(ORVA_Store_Backup(local, api(Text(copy.begin(), copy.end()))), ORVA_E_NO_SPACE);
    faulty::disarm();
    CHECK_EQ(ORVA_PBSrv_EndTransaction(local), ORVA_E_NO_SPACE);
    CHECK_EQ(valueOf(local, lost, "Name"), u"(none)");
    checkLoss(local, ORVA_E_NO_SPACE, 1);
}

TEST(whatABatchCountsIsStoredOrToldAsLost)
{
    // In transactions of 20, as a client does it that looks at no end; the disk fills up and has room again later.
    for (const int full : {0, 1, 19, 20, 21, 50}) {
        storeWithOneRecord();
        int taken = 0;
        for (int i = 0; i < 100; ++i) {
            if (i % 20 == 0)
                begin();
            if (i == full)
                fillDisk();
            if (i == full + 35)
                faulty::disarm();
            taken += tryAdd(local, {{"Name", u"batch"}}) > 0 ? 1 : 0;
            if (i % 20 == 19)
                ORVA_PBSrv_EndTransaction(local);
        }
        faulty::disarm();
        const Loss loss = takeLoss(local);
        CHECK_EQ(sizeOf(local) - 1, taken - loss.records);
        CHECK(loss.records <= 20);
        CHECK(taken < 100);
    }
}

CHECK_MAIN
