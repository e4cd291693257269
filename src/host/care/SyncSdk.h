#ifndef LINKHAND_HOST_CARE_SYNCSDK_H
#define LINKHAND_HOST_CARE_SYNCSDK_H

#include "orva/orva_sync.h"

// What the section about syncs needs. Null where the SDK in use does not have it.
#pragma weak ORVA_Sync_SetUpServer
#pragma weak ORVA_Sync_SetUpFolder
#pragma weak ORVA_Sync_KeepPassword
#pragma weak ORVA_Sync_GetSetUp
#pragma weak ORVA_Sync_SetUpRelease
#pragma weak ORVA_Sync_RunSetUp
#pragma weak ORVA_Sync_GetLastRun
#pragma weak ORVA_Sync_Result_GetRun
#pragma weak ORVA_Sync_Result_GetCounts
#pragma weak ORVA_Sync_Result_GetEvent
#pragma weak ORVA_Sync_Result_GetReason
#pragma weak ORVA_Sync_Result_Release

namespace SyncSdk
{

// True if the SDK in use has all of it.
inline bool IsThere()
{
    return &ORVA_Sync_RunSetUp != nullptr && &ORVA_Sync_GetLastRun != nullptr && &ORVA_Sync_Result_GetEvent != nullptr;
}

} // namespace SyncSdk

#endif // LINKHAND_HOST_CARE_SYNCSDK_H
