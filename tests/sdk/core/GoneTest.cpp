// Contacts that another program deletes under the hands of this one.

#include <atomic>

#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_store.h"

using namespace phonebook;

namespace
{

std::atomic<int> told{0};

int onEvent(int event, void*)
{
    told += event == ORVA_EVENT_RECORD_GONE ? 1 : 0;
    return 0;
}

int toldNow()
{
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
    return told.exchange(0);
}

long get(int memory, long id)
{
    void* record = nullptr;
    const long code = ORVA_PBSrv_GetAddrRecord(static_cast<int>(id), memory, &record);
    if (code == ORVA_OK)
        ORVA_PBSrv_AddrRecord_Release(record);
    return code;
}

} // namespace

TEST(aContactThatAnotherProgramDeletedIsToldWhenItIsWanted)
{
    const std::string data = useFreshFolder();
    CHECK_EQ(ORVA_PBSrv_RegisterPBCallback(onEvent), ORVA_OK);
    const long ada = tryAdd(local, {{"Name", u"Ada"}});
    const long bo = tryAdd(local, {{"Name", u"Bo"}});
    CHECK_EQ(RawStore(data).ask("DELETE FROM records WHERE id = " + std::to_string(ada)), "");
    CHECK_EQ(get(local, bo), ORVA_OK);
    CHECK_EQ(toldNow(), 0);
    CHECK_EQ(get(local, ada), ORVA_E_NOT_FOUND);
    CHECK_EQ(toldNow(), 1);
    CHECK_EQ(update(local, static_cast<int>(ada), {{"Name", u"Ada"}}), ORVA_E_NOT_FOUND);
    CHECK_EQ(toldNow(), 1);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(static_cast<int>(ada), local), ORVA_E_NOT_FOUND);
    CHECK_EQ(toldNow(), 1);

    // What this process has deleted itself it knows.
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(static_cast<int>(bo), local), ORVA_OK);
    CHECK_EQ(get(local, bo), ORVA_E_NOT_FOUND);
    CHECK_EQ(get(local, 0), ORVA_E_NOT_FOUND);
    CHECK_EQ(toldNow(), 0);
    CHECK_EQ(ORVA_PBSrv_UnRegisterPBCallback(onEvent), ORVA_OK);
}

TEST(withoutAnotherProgramNothingIsTold)
{
    useFreshFolder();
    CHECK_EQ(ORVA_PBSrv_RegisterPBCallback(onEvent), ORVA_OK);
    CHECK_EQ(get(local, 77), ORVA_E_NOT_FOUND);
    CHECK_EQ(get(card, 77), ORVA_E_NOT_FOUND);
    CHECK_EQ(toldNow(), 0);
    CHECK_EQ(ORVA_PBSrv_UnRegisterPBCallback(onEvent), ORVA_OK);
}

CHECK_MAIN
