#include <QtAlgorithms>

#include <memory>
#include <new>
#include <utility>

#include "linkhand/SdkText.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/SdkHandle.h"
#include "logic/SdkTransaction.h"

// Groups of the local memory.

namespace
{

const long NO_GROUPS = -1; // the answer of a set without groups

bool moveToNextGroup(void* hAddrGroupSet)
{
    long lResult = 0;
    SDK_WALK(lResult, ORVA_PBSrv_AddrGroupSet_MoveNext, (hAddrGroupSet));
    return lResult == 0;
}

bool readGroupName(void* hAddrGroupSet, QString& strName)
{
    SdkText text;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetName, (hAddrGroupSet, text.out()));
    if (lResult != 0)
        return false;
    strName = text.toString();
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

// A new handle with a name on it. False at the first failure.
bool createNamedGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const QString& strName, SdkGroup& group)
{
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_CreateAddrGroup, (enMemory, &group.out()));
    if (lResult != 0 || group.isNull())
        return false;
    SDK_CALL(lResult, ORVA_PBSrv_AddrGroup_SetName, (group.get(), sdkText(strName)));
    return lResult == 0;
}

// The set of all groups, under a transaction of its own. False if there is none.
bool getGroupList(_ORVA_EN_PHONEBOOK_MEMORY enMemory, SdkGroupSet& set)
{
    const SdkTransaction transaction(enMemory);
    long lResult = 0;
    SDK_CALL(lResult, ORVA_PBSrv_GetGroupList, (enMemory, &set.out()));
    return lResult == 0 && !set.isNull();
}

} // namespace

int AddrBookLogic::GetGroups(QList<AddrBookGroup*>& lstGroups, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    ADDRBOOK_LOG_CALLED();
    SdkGroupSet set;
    if (!getGroupList(enMemory, set)) {
        ADDRBOOK_WARN("no group list");
        return ADDRBOOK_FAILED;
    }
    const SdkTransaction transaction(enMemory);
    long lResult = 0;
    // A set without groups is no failure of the SDK's, and is reported as one all the same.
    SDK_CALL_OR(NO_GROUPS, lResult, ORVA_PBSrv_AddrGroupSet_MoveFirst, (set.get()));
    if (lResult != 0)
        return ADDRBOOK_FAILED;
    do {
        std::unique_ptr<AddrBookGroup> pGroup(new (std::nothrow) AddrBookGroup);
        if (pGroup == nullptr || !readGroup(set.get(), *pGroup))
            return ADDRBOOK_FAILED;
        lstGroups.append(pGroup.release());
    } while (moveToNextGroup(set.get()));
    return ADDRBOOK_OK;
}

bool AddrBookLogic::HasNoGroups(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    SdkGroupSet set;
    if (!getGroupList(enMemory, set))
        return false;
    long lResult = 0;
    SDK_CALL_OR(NO_GROUPS, lResult, ORVA_PBSrv_AddrGroupSet_MoveFirst, (set.get()));
    return lResult == NO_GROUPS;
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
    SdkGroupSet set;
    if (!getGroupList(enMemory, set))
        return ADDRBOOK_FAILED;
    long lResult = 0;
    SDK_CALL_OR(NO_GROUPS, lResult, ORVA_PBSrv_AddrGroupSet_MoveFirst, (set.get()));
    if (lResult == NO_GROUPS)
        return ADDRBOOK_OK;
    do {
        QString strCurrent;
        if (!readGroupName(set.get(), strCurrent))
            return ADDRBOOK_FAILED;
        int iCurrentParent = 0;
        SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetParentID, (set.get(), &iCurrentParent));
        if (lResult != 0)
            break; // ends the search, without counting as an error
        if (strCurrent == strName && iCurrentParent == iParentID)
            return ADDRBOOK_GROUP_EXISTS;
    } while (moveToNextGroup(set.get()));
    return ADDRBOOK_OK;
}

int AddrBookLogic::AddGroup(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strName, int iParentID, int& iGroupID)
{
    ADDRBOOK_LOG_CALLED();
    const int iExists = IsGroupAlreadyExists(enMemory, strName, iParentID);
    if (iExists != ADDRBOOK_OK) {
        ADDRBOOK_WARN("IsGroupAlreadyExists returned %d", iExists);
        return iExists;
    }
    SdkGroup group;
    long lResult = 1;
    if (createNamedGroup(enMemory, strName, group)) {
        SDK_CALL(lResult, ORVA_PBSrv_AddrGroup_SetParentID, (group.get(), iParentID));
        if (lResult == 0)
            SDK_CALL(lResult, ORVA_PBSrv_AddGroup, (group.get(), &iGroupID));
    }
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
    SdkGroup group;
    long lResult = 1;
    if (createNamedGroup(enMemory, strName, group))
        SDK_CALL(lResult, ORVA_PBSrv_UpdateGroup, (group.get(), iGroupID));
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
