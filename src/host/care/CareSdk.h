#ifndef LINKHAND_HOST_CARE_CARESDK_H
#define LINKHAND_HOST_CARE_CARESDK_H

#include "orva/orva_care.h"
#include "orva/orva_sdk.h"
#include "orva/orva_store.h"

// What the care page needs beyond the phonebook itself. Null where the SDK in use does not have it.
#pragma weak ORVA_Care_GetBin
#pragma weak ORVA_Care_BinRelease
#pragma weak ORVA_Care_GetBinRecord
#pragma weak ORVA_Care_GetBinGroups
#pragma weak ORVA_Care_Undelete
#pragma weak ORVA_Care_GetKeptProperty
#pragma weak ORVA_Care_SetKeptProperty
#pragma weak ORVA_Care_GetDuplicates
#pragma weak ORVA_Care_DuplicatesRelease
#pragma weak ORVA_Care_PreviewMerge
#pragma weak ORVA_Care_Merge
#pragma weak ORVA_Care_OpenImport
#pragma weak ORVA_Care_Import_Step
#pragma weak ORVA_Care_Import_GetCounts
#pragma weak ORVA_Care_Import_GetContact
#pragma weak ORVA_Care_Import_GetFindings
#pragma weak ORVA_Care_Import_Release
#pragma weak ORVA_Care_FindingsRelease
#pragma weak ORVA_Care_Export
#pragma weak ORVA_Care_ExportWithProgress
#pragma weak ORVA_Store_CheckInWords
#pragma weak ORVA_Store_GetDamage
#pragma weak ORVA_Store_GetAccess
#pragma weak ORVA_Store_GetBackups
#pragma weak ORVA_Store_BackupsRelease
#pragma weak ORVA_Store_KeepBackup
#pragma weak ORVA_Store_RestoreBackup
#pragma weak ORVA_Store_CheckBackup
#pragma weak ORVA_Store_CompareBackup
#pragma weak ORVA_Store_DifferencesRelease

namespace CareSdk
{

// True if the SDK in use has all of it.
inline bool IsThere()
{
    return &ORVA_Care_GetBin != nullptr && &ORVA_Store_CompareBackup != nullptr &&
           &ORVA_Care_SetKeptProperty != nullptr;
}

// True if it takes contacts in and gives them out by itself.
inline bool HasImport()
{
    return &ORVA_Care_OpenImport != nullptr && &ORVA_Care_Export != nullptr;
}

} // namespace CareSdk

#endif // LINKHAND_HOST_CARE_CARESDK_H
