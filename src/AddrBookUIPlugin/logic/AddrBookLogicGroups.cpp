#include <QtAlgorithms>

#include <memory>
#include <new>
#include <utility>

#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkHandle.h"
#include "logic/SdkText.h"

// Groups of the local memory.

namespace
{

bool moveToNextGroup(void* hAddrGroupSet)
{
    long lResult = 0;
    SDK_WALK(lResult, ORVA_PBSrv_AddrGroupSet_MoveNext, (hAddrGroupSet));
    return lResult == 0;
}

bool readGroupName(void* hAddrGroupSet, QString& strName)
{
    unsigned short* pBuffer = nullptr;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetName, (hAddrGroupSet, &pBuffer));
    if (lResult != 0)
        return false;
    strName = takeSdkText(pBuffer);
    return true;
}

// The set's current group. False at the first failure.
bool readGroup(void* hAddrGroupSet, AddrBookGroup& group)
{
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetID, (hAddrGroupSet, &group.iGroupID));
    if (lResult != 0)
        return false;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetParentID, (hAddrGroupSet, &group.iParentID));
    if (lResult != 0 || !readGroupName(hAddrGroupSet, group.strName))
        return false;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetGroupSize, (hAddrGroupSet, &group.iSize));
    return lResult == 0;
}

// A new handle with a name on it. False at the first failure; the handle is the caller's in every case.
bool createNamedGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const QString& strName, void*& hAddrGroup)
{
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_CreateAddrGroup, (enMemory, &hAddrGroup));
    if (lResult != 0 || hAddrGroup == nullptr)
        return false;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroup_SetName, (hAddrGroup, sdkText(strName)));
    return lResult == 0;
}

} // namespace

int AddrBookLogic::GetGroups(QList<AddrBookGroup*>& lstGroups, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    void* hAddrGroupSet = nullptr;
    long lResult = 0;
    beginSdkTransaction(enMemory);
    SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &hAddrGroupSet));
    endSdkTransaction(enMemory);
    if (lResult != 0 || hAddrGroupSet == nullptr) {
        ADDRBOOK_WARN("no group list");
        releaseGroupSet(hAddrGroupSet);
        return ADDRBOOK_FAILED;
    }

    beginSdkTransaction(enMemory);
    // A set without groups answers -1, and that too is reported as a failure.
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_MoveFirst, (hAddrGroupSet));
    bool bOk = lResult == 0;
    if (bOk) {
        do {
            std::unique_ptr<AddrBookGroup> pGroup(new (std::nothrow) AddrBookGroup);
            bOk = pGroup != nullptr && readGroup(hAddrGroupSet, *pGroup);
            if (bOk)
                lstGroups.append(pGroup.release());
        } while (bOk && moveToNextGroup(hAddrGroupSet));
    }
    endSdkTransaction(enMemory);
    releaseGroupSet(hAddrGroupSet);
    return bOk ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::GetGroupInfo(_ORVA_EN_PHONEBOOK_MEMORY enMemory, AddrBookGroup& group)
{
    ADDRBOOK_LOG_CALLED();
    QList<AddrBookGroup*> lstGroups;
    GetGroups(lstGroups, enMemory);
    if (lstGroups.isEmpty()) {
        ADDRBOOK_WARN("GetGroups in GetGroupInfo returns empty list");
        return ADDRBOOK_FAILED;
    }
    int iResult = ADDRBOOK_FAILED;
    for (const AddrBookGroup* pGroup : std::as_const(lstGroups)) {
        if (pGroup->iGroupID == group.iGroupID) {
            group.iParentID = pGroup->iParentID;
            group.strName = pGroup->strName;
            group.iSize = pGroup->iSize;
            iResult = ADDRBOOK_OK;
            break;
        }
    }
    // Logged whether the group was found or not.
    ADDRBOOK_WARN("GetGroupInfo could not find the info for the given group id");
    qDeleteAll(lstGroups);
    return iResult;
}

int AddrBookLogic::IsGroupAlreadyExists(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strName, int iParentID)
{
    ADDRBOOK_LOG_CALLED();
    void* hAddrGroupSet = nullptr;
    long lResult = 0;
    beginSdkTransaction(enMemory);
    SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &hAddrGroupSet));
    endSdkTransaction(enMemory);
    if (lResult != 0 || hAddrGroupSet == nullptr) {
        releaseGroupSet(hAddrGroupSet);
        return ADDRBOOK_FAILED;
    }
    int iResult = ADDRBOOK_OK;
    SDK_WALK(lResult, ORVA_PBSrv_AddrGroupSet_MoveFirst, (hAddrGroupSet));
    if (lResult != -1) {
        do {
            QString strCurrent;
            if (!readGroupName(hAddrGroupSet, strCurrent)) {
                iResult = ADDRBOOK_FAILED;
                break;
            }
            int iCurrentParent = 0;
            SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetParentID, (hAddrGroupSet, &iCurrentParent));
            if (lResult != 0)
                break; // ends the search, without counting as an error
            if (strCurrent == strName && iCurrentParent == iParentID)
                iResult = ADDRBOOK_GROUP_EXISTS;
        } while (iResult == ADDRBOOK_OK && moveToNextGroup(hAddrGroupSet));
    }
    releaseGroupSet(hAddrGroupSet);
    return iResult;
}

int AddrBookLogic::AddGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strName, int iParentID, int& iGroupID)
{
    ADDRBOOK_LOG_CALLED();
    const int iExists = IsGroupAlreadyExists(enMemory, strName, iParentID);
    if (iExists != ADDRBOOK_OK) {
        ADDRBOOK_WARN("IsGroupAlreadyExists returned %d", iExists);
        return iExists;
    }
    void* hAddrGroup = nullptr;
    long lResult = 1;
    if (createNamedGroup(enMemory, strName, hAddrGroup)) {
        SDK_CALL(lResult, ORVA_PBSrv_AddrGroup_SetParentID, (hAddrGroup, iParentID));
        if (lResult == 0)
            SDK_CALL(lResult, ORVA_PBSrv_AddGroup, (hAddrGroup, &iGroupID));
    }
    releaseGroup(hAddrGroup);
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::UpdateGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID, QString strName, int iParentID)
{
    ADDRBOOK_LOG_CALLED();
    const int iExists = IsGroupAlreadyExists(enMemory, strName, iParentID);
    if (iExists != ADDRBOOK_OK) {
        ADDRBOOK_WARN("IsGroupAlreadyExists returned %d", iExists);
        return iExists;
    }
    // The parent is not set: a rename does not move a group.
    void* hAddrGroup = nullptr;
    long lResult = 1;
    if (createNamedGroup(enMemory, strName, hAddrGroup))
        SDK_CALL(lResult, ORVA_PBSrv_UpdateGroup, (hAddrGroup, iGroupID));
    releaseGroup(hAddrGroup);
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::DelGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupID)
{
    ADDRBOOK_LOG_CALLED();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_DelGroup, (iGroupID, enMemory));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::AddAddrToGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, int iGroupID)
{
    ADDRBOOK_LOG_CALLED();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddAddrToGroup, (iGroupID, iRecordID, enMemory));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}

int AddrBookLogic::RemoveAddrFromGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iRecordID, int iGroupID)
{
    ADDRBOOK_LOG_CALLED();
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_DelAddrFromGroup, (iGroupID, iRecordID, enMemory));
    return lResult == 0 ? ADDRBOOK_OK : ADDRBOOK_FAILED;
}
