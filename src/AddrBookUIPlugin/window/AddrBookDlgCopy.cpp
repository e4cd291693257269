// Contacts dropped on a node of the tree: moved or copied between groups, or turned into records of another memory and
// handed to the worker.

#include "window/AddrBookDlg.h"

#include <QPointer>

#include "dialogs/AddrBookWaitingDlg.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/SdkTransaction.h"
#include "logic/Texts.h"
#include "widgets/PBTreeWidget.h"

// The selection change at the end of a drop: the current node is the target.
void AddrBookDlg::finishDrop()
{
    m_enDragTargetMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(m_enDragTargetMemory, iGroupId);
    const QPointer<AddrBookDlg> pSelf(this);
    moveOrCopyAllContacts(m_ptreePhonebook->m_listDragData.size(), iGroupId);
    if (pSelf.isNull())
        return;
    m_ptreePhonebook->m_listDragData.clear();
    m_ptreePhonebook->m_bCopyInLocal = false;
    m_ptreePhonebook->m_bDropped = false;
    m_ptreePhonebook->m_bHandleSelection = true;
}

void AddrBookDlg::moveOrCopyAllContacts(int iCount, int iTargetGroup)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    // Taken out of the tree: a selection change on the way, such as a node that goes, must not drop them again.
    QList<QString> lstDragData;
    lstDragData.swap(m_ptreePhonebook->m_listDragData);
    const bool bCopyInLocal = m_ptreePhonebook->m_bCopyInLocal;
    const _ORVA_EN_PHONEBOOK_MEMORY enTarget = m_enDragTargetMemory;
    QList<AddrBookRecord> lstRecords;
    QList<QString> lstSourceFields;
    QList<QString> lstTargetFields;
    bool bBetweenTypes = false;
    const AddrBookWaitingDlg* pdlgWaiting = nullptr;

    SdkTransaction transaction(enTarget);
    for (int i = 0; i < iCount && i + 1 < lstDragData.size(); i += 2) {
        const int iRecordId = lstDragData.at(i).toInt();
        const int iGroupId = lstDragData.at(i + 1).toInt();
        if (enTarget == PB_MEM_LOCAL && m_enDragSourceMemory == PB_MEM_LOCAL) {
            if (iGroupId == iTargetGroup)
                return;
            moveOrCopyContactInLocal(iGroupId, iTargetGroup, iRecordId, PB_MEM_LOCAL, bCopyInLocal);
            continue;
        }
        if (enTarget == m_enDragSourceMemory && isDeviceMemory(enTarget))
            return;
        bBetweenTypes = true;
        if (i == 0 && m_pAddrBookLogic != nullptr) {
            m_pAddrBookLogic->GetFieldNames(m_enDragSourceMemory, lstSourceFields);
            m_pAddrBookLogic->GetFieldNames(enTarget, lstTargetFields);
        }
        if (pdlgWaiting == nullptr)
            pdlgWaiting = openWaitingDialog("IDS_COPY_STATUS", iCount / 2, true);
        QThread::yieldCurrentThread();
        moveOrCopyContactBetweenType(lstRecords, iRecordId, lstSourceFields, lstTargetFields);
    }
    transaction.end();
    initThreadForMoveorCopy(bBetweenTypes, lstRecords, iTargetGroup, ADDRBOOK_OP_COPY);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::moveOrCopyContactInLocal(int iSourceGroup, int iTargetGroup, int iRecordId,
                                           _ORVA_EN_PHONEBOOK_MEMORY enMemory, bool bCopy)
{
    if (m_pAddrBookLogic == nullptr || iSourceGroup == iTargetGroup)
        return;
    if (iSourceGroup == 0) {
        m_pAddrBookLogic->AddAddrToGroup(enMemory, iRecordId, iTargetGroup);
    } else {
        if (!bCopy)
            m_pAddrBookLogic->RemoveAddrFromGroup(enMemory, iRecordId, iSourceGroup);
        if (iTargetGroup != 0)
            m_pAddrBookLogic->AddAddrToGroup(enMemory, iRecordId, iTargetGroup);
    }
    SavePBInfoForAgent(QLatin1String("PB01"), QLatin1String("PBisUsing"), QLatin1String("1"));
}

void AddrBookDlg::moveOrCopyContactBetweenType(QList<AddrBookRecord>& lstRecords, int iRecordId,
                                               QList<QString> lstSourceFields, QList<QString> lstTargetFields)
{
    QList<QString> lstValues;
    if (m_pAddrBookLogic == nullptr ||
        m_pAddrBookLogic->GetRecord(m_enDragSourceMemory, iRecordId, lstValues) != ADDRBOOK_OK) {
        ADDRBOOK_LOG("GetRecord failed");
        return;
    }
    if (lstTargetFields.size() < lstSourceFields.size()) {
        limitNameField(lstSourceFields, lstValues);
        constructRecordsForCopy(lstRecords, lstSourceFields, lstTargetFields, lstValues, iRecordId);
    } else {
        AddrBookRecord record;
        record.iID = iRecordId;
        foreach (const QString& strField, lstTargetFields)
            record.lstValues.append(lstValues.value(lstSourceFields.indexOf(strField), QLatin1String("")));
        lstRecords.append(record);
    }
    SavePBInfoForAgent(QLatin1String("PB01"), QLatin1String("PBisUsing"), QLatin1String("1"));
}

void AddrBookDlg::limitNameField(QList<QString> lstFieldNames, QList<QString>& lstValues)
{
    if (m_pAddrBookLogic == nullptr)
        return;
    QList<AddrBookField> lstFields;
    m_pAddrBookLogic->GetAllFields(lstFields, m_enDragTargetMemory);
    int iLimit = 0;
    foreach (const AddrBookField& field, lstFields) {
        if (field.strName.compare(QLatin1String("Name"), Qt::CaseInsensitive) == 0)
            iLimit = field.iMaxLength;
    }
    for (int i = 0; i < lstFieldNames.size() && i < lstValues.size(); ++i) {
        if (lstFieldNames.at(i) == QLatin1String("ID_STR_NAME")) {
            QString strName;
            m_pAddrBookLogic->GetFieldString(strName, lstValues.at(i), iLimit, m_enDragTargetMemory);
            lstValues[i] = strName;
        }
    }
}

// Fills the target's slots with the values of the source's fields in the order in which they come, emits a record each
// time the slots are full, throws out the field that filled the last one and starts over. Other software relies on
// exactly these results, so the walk stays as it is.
void AddrBookDlg::constructRecordsForCopy(QList<AddrBookRecord>& lstRecords, QList<QString> lstSourceFields,
                                          QList<QString> lstTargetFields, QList<QString> lstValues, int iRecordId)
{
    const int iPhoneCount = getPhoneFieldCount(lstSourceFields);
    int iEmptyPhones = 0;
    QList<QString> lstPending;
    int i = 0;
    while (i < lstSourceFields.size() && i < lstValues.size()) {
        const bool bMatched = lstTargetFields.contains(lstSourceFields.at(i));
        const bool bSpare = !bMatched && isPhoneField(lstSourceFields.at(i));
        if (bMatched || bSpare)
            lstPending.append(lstValues.at(i));
        if (lstPending.size() != lstTargetFields.size()) {
            if (!bMatched && !bSpare)
                removeFieldNameAndInfo(lstSourceFields, lstValues, i);
            else
                ++i;
            continue;
        }
        AddrBookRecord record;
        record.iID = 0;
        bool bComplete = true;
        int iEmptyValues = 0;
        for (int j = 0; j < lstPending.size(); ++j) {
            if (lstPending.at(j).isEmpty()) {
                ++iEmptyValues;
                if (isPhoneField(lstSourceFields.at(j)) && ++iEmptyPhones < iPhoneCount) {
                    bComplete = false;
                    break;
                }
            }
            record.lstValues.append(lstPending.at(j));
        }
        if (bComplete && lstPending.size() != iEmptyValues) {
            record.iID = iRecordId;
            lstRecords.append(record);
        }
        removeFieldNameAndInfo(lstSourceFields, lstValues, i);
        i = 0;
        lstPending.clear();
    }
}

void AddrBookDlg::initThreadForMoveorCopy(bool bBetweenTypes, QList<AddrBookRecord> lstRecords, int iTargetGroup,
                                          _ADDRBOOK_OPERATION_TYPE enOperation)
{
    ADDRBOOK_LOG_ENTER();
    if (!bBetweenTypes) {
        _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
        int iGroupId = 0;
        QTreeWidgetItem* pitem = getGroupId(enMemory, iGroupId);
        if (pitem != nullptr) {
            rePaintTree();
            m_pitemCurrentTreeWidgetItem = nullptr;
            OnTreeClicked(pitem);
        }
        return;
    }
    if (lstRecords.isEmpty())
        return;
    AddrBookBatch::Order order;
    order.enOperation = enOperation;
    order.enSource = m_enDragSourceMemory;
    order.enMemory = m_enDragTargetMemory;
    order.iGroupId = iTargetGroup;
    order.lstRecords = lstRecords;
    if (!makeRoomForBatch(order.enMemory) || !m_bNewContactEnabled)
        return;
    // The end of the batch before has made the current node, this drop's target, the source of the next drag.
    m_enDragSourceMemory = order.enSource;
    if (enOperation == ADDRBOOK_OP_MOVE || enOperation == ADDRBOOK_OP_COPY)
        startBatch(order);
    ADDRBOOK_LOG_EXIT();
}
