// Who hears of what, and what the questions about the device refuse.

#include <mutex>

#include "Phonebook.h"

using namespace phonebook;

namespace
{

std::mutex s_mutex;
std::vector<int> s_heard;

int note(int event, void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(s_mutex);
    s_heard.push_back(event);
    return 1;
}

std::vector<int> heard()
{
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
    const std::lock_guard<std::mutex> lock(s_mutex);
    std::vector<int> events;
    events.swap(s_heard);
    return events;
}

int sendsAway(int event, void* data)
{
    CHECK_EQ(ORVA_NetSrv_UnRegisterNetSrvEvent(note), ORVA_OK);
    return note(-event, data);
}

using Register = long (*)(ORVA_CALLBACK);

void hearsOnly(Register listen, Register leave, const std::vector<int>& own)
{
    CHECK_EQ(listen(note), ORVA_OK);
    for (const int event : {19999, 20000, 29999, 30000, 6599, 6600, 6699, 6700, 6001, 6002, 6003, 6013, 6014, 6015})
        ORVA_Sim_SendEvent(event);
    CHECK(heard() == own);
    CHECK_EQ(leave(note), ORVA_OK);
}

} // namespace

TEST(eachServiceHearsItsRangeToBothEnds)
{
    useFreshFolder();
    hearsOnly(ORVA_PBSrv_RegisterPBCallback, ORVA_PBSrv_UnRegisterPBCallback, {20000, 29999});
    hearsOnly(ORVA_DevSrv_RegisterDevMgrCallback, ORVA_DevSrv_UnRegisterDevMgrCallback, {6600, 6699, 6002});
    hearsOnly(ORVA_DevSrv_RegisterDevInitEventCallback, ORVA_DevSrv_UnRegisterDevInitEventCallback, {6014});
    hearsOnly(ORVA_NetSrv_RegisterNetSrvEvent, ORVA_NetSrv_UnRegisterNetSrvEvent,
              {19999, 30000, 6599, 6700, 6001, 6003, 6013, 6015});
}

TEST(whoIsRemovedWhileAnotherOneRunsIsNotCalledAnyMore)
{
    useFreshFolder();
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(sendsAway), ORVA_OK);
    CHECK_EQ(ORVA_NetSrv_RegisterNetSrvEvent(note), ORVA_OK);
    ORVA_Sim_SendEvent(7);
    CHECK(heard() == std::vector<int>{-7});
    CHECK_EQ(ORVA_NetSrv_UnRegisterNetSrvEvent(sendsAway), ORVA_OK);
    CHECK_EQ(ORVA_NetSrv_UnRegisterNetSrvEvent(note), ORVA_E_NOT_FOUND);
}

TEST(eachReservedArgumentOfTheMultiModeStatusMustBeNull)
{
    useFreshFolder();
    ORVA_Sim_SetMultiModeCard(3, 4);
    unsigned char status[2] = {9, 9};
    char used = 0;
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(status, &used, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(status, nullptr, &used, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(status, nullptr, nullptr, &used), ORVA_E_ARGUMENT);
    CHECK_EQ(int(status[0]), 9);
    CHECK_EQ(ORVA_DevSrv_GetMultiModeCardStatus(status, nullptr, nullptr, nullptr), ORVA_OK);
    CHECK_EQ(int(status[0]), 3);
    CHECK_EQ(int(status[1]), 4);
}

CHECK_MAIN
