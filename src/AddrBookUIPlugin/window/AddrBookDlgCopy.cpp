// Contacts dropped on a node of the tree: moved or copied between groups, or turned into records of another memory and
// handed to the worker.

#include "window/AddrBookDlg.h"

#include <QScopedPointer>

#include "dialogs/AddrBookWaitingDlg.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/SdkText.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"

void AddrBookDlg::moveOrCopyAllContacts(int iCount, int iTargetGroup)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptreePhonebook == nullptr)
        return;
    // The list is the tree's and may be emptied by events that a dialog lets in.
    const QList<QString> lstDragData = m_ptreePhonebook->m_listDragData;
    const bool bCopyInLocal = m_ptreePhonebook->m_bCopyInLocal;
    const _ORVA_EN_PHONEBOOK_MEMORY enTarget = m_enDragTargetMemory;
    QList<AddrBookRecord> lstRecords;
    QList<QString> lstSourceFields;
    QList<QString> lstTargetFields;
    bool bBetweenTypes = false;
    AddrBookWaitingDlg* pdlgWaiting = nullptr;

    beginSdkTransaction(enTarget);
    for (int i = 0; i < iCount && i + 1 < lstDragData.size(); i += 2) {
        const int iRecordId = lstDragData.at(i).toInt();
        const int iGroupId = lstDragData.at(i + 1).toInt();
        if (enTarget == PB_MEM_LOCAL && m_enDragSourceMemory == PB_MEM_LOCAL) {
            if (iGroupId == iTargetGroup) {
                endSdkTransaction(enTarget);
                return;
            }
            moveOrCopyContactInLocal(iGroupId, iTargetGroup, iRecordId, PB_MEM_LOCAL, bCopyInLocal);
            continue;
        }
        if (enTarget == m_enDragSourceMemory && isDeviceMemory(enTarget)) {
            endSdkTransaction(enTarget);
            return;
        }
        bBetweenTypes = true;
        if (i == 0 && m_pAddrBookLogic != nullptr) {
            m_pAddrBookLogic->GetFieldNames(m_enDragSourceMemory, lstSourceFields);
            m_pAddrBookLogic->GetFieldNames(enTarget, lstTargetFields);
        }
        if (pdlgWaiting == nullptr) {
            pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
            if (pdlgWaiting != nullptr) {
                pdlgWaiting->ShowAnimation(tr(QLatin1String("IDS_COPY_STATUS")), iCount / 2);
                pdlgWaiting->UpDateLabel(0, 0);
            }
        }
        QThread::yieldCurrentThread();
        moveOrCopyContactBetweenType(lstRecords, iRecordId, lstSourceFields, lstTargetFields);
    }
    endSdkTransaction(enTarget);
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
    retireBatch();
    m_threadWorker.StopOperation();
    m_enMemory = m_enDragTargetMemory;
    if (!isSimorDeviceNodeExist())
        return;
    checkMaxCapacity(m_enMemory, true);
    if (!m_bNewContactEnabled)
        return;
    if (enOperation == ADDRBOOK_OP_MOVE)
        m_threadWorker.SetOperation(ADDRBOOK_OP_MOVE, m_enDragSourceMemory, m_enDragTargetMemory, lstRecords,
                                    iTargetGroup);
    else if (enOperation == ADDRBOOK_OP_COPY)
        m_threadWorker.SetOperation(ADDRBOOK_OP_COPY, m_enDragTargetMemory, lstRecords, iTargetGroup);
    else
        return;
    m_enOperation = enOperation;
    m_iProcessedRowCount = 0;
    m_iSuccessRowCount = 0;
    m_iTotalRowCount = lstRecords.size();
    m_iGroupId = iTargetGroup;
    showProgressBar(m_iTotalRowCount);
    m_bThreadBusy = true;
    m_threadWorker.start(QThread::InheritPriority);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::showProgressBar(int iSteps)
{
    m_pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (m_pdlgWaiting == nullptr || m_ptreePhonebook == nullptr)
        return;
    const char* pText = m_enOperation == ADDRBOOK_OP_MOVE ? "IDS_MOVE_STATUS" : "IDS_COPY_STATUS";
    m_pdlgWaiting->ShowAnimation(tr(QLatin1String(pText)), iSteps);
}

void AddrBookDlg::OnAddResult(bool bSuccess, qlonglong iPtrRecord)
{
    ADDRBOOK_LOG_CALLED();
    const QScopedPointer<AddrBookRecord> pRecord(carrierToPointer<AddrBookRecord>(iPtrRecord));
    if (pRecord.isNull())
        return;
    if (m_pdlgWaiting == nullptr) {
        releaseOrphanedBatch();
        return;
    }
    ++m_iProcessedRowCount;
    m_pdlgWaiting->UpDateProgress(m_iProcessedRowCount, m_iTotalRowCount);
    if (bSuccess) {
        ++m_iSuccessRowCount;
        QList<AddrBookRecord> lstRecords;
        lstRecords.append(*pRecord);
        copyContactsForPushNotify(lstRecords, m_enMemory);
        sendNotifyToSMS(pRecord->iID, 288);
        checkMaxCapWithLocals(m_enMemory, ADDRBOOK_OP_ADD);
        if (!m_bNewContactEnabled)
            stopAtFullMemory();
    }
    if (m_pdlgWaiting != nullptr && m_pdlgWaiting->GetProgressDlgCancelStatus())
        m_threadWorker.StopOperation();
    m_threadWorker.SetSlotExecutionStatus();
}

void AddrBookDlg::stopAtFullMemory()
{
    const int iSuccess = m_iSuccessRowCount;
    m_threadWorker.StopOperation();
    QString strText;
    if (m_enOperation == ADDRBOOK_OP_IMPORT)
        strText = tr(QLatin1String("IDS_IMPORT_DEVICEFULL"));
    else if (m_enOperation == ADDRBOOK_OP_COPY || m_enOperation == ADDRBOOK_OP_MOVE)
        strText = tr(QLatin1String("IDS_MOVE_REC_DEV_FULL"));
    m_enOperation = ADDRBOOK_OP_NONE;
    if (m_pdlgWaiting != nullptr)
        m_pdlgWaiting->CloseWaitingDialog();
    if (!strText.isEmpty())
        showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"),
                      strText + QString::number(iSuccess));
}

void AddrBookDlg::OnFinished()
{
    ADDRBOOK_LOG_ENTER();
    connectHandlersForTable();
    m_bThreadBusy = false;
    QTreeWidgetItem* pitem = getGroupId(m_enMemory, m_iGroupId);
    if (pitem != nullptr) {
        rePaintTree();
        m_pitemCurrentTreeWidgetItem = nullptr;
        OnTreeClicked(pitem);
    }
    if (m_enOperation == ADDRBOOK_OP_IMPORT) {
        const QString strText = tr(QLatin1String("IDS_IMPORT_TOTAL_NUMBER")) + QString::number(m_iTotalRowCount) +
                                tr(QLatin1String("IDS_IMPORT_IMPORTED_NUMBER")) + QString::number(m_iSuccessRowCount);
        showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"), strText);
    } else if (m_enOperation == ADDRBOOK_OP_COPY || m_enOperation == ADDRBOOK_OP_MOVE) {
        showCopyCompletedAlert(m_iTotalRowCount, m_iSuccessRowCount);
    }
    m_iTotalRowCount = 0;
    m_iProcessedRowCount = 0;
    m_iSuccessRowCount = 0;
    m_enOperation = ADDRBOOK_OP_NONE;
    AddrBookWaitingDlg::Destroy();
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_NONE;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    m_enDragSourceMemory = enMemory;
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::showCopyCompletedAlert(int iTotal, int iSuccess)
{
    if (!isDeviceMemory(m_enDragTargetMemory) && !isDeviceMemory(m_enDragSourceMemory))
        return;
    QString strText;
    if (m_enOperation == ADDRBOOK_OP_MOVE)
        strText = tr(QLatin1String("IDS_MOVE_COMPLETE"));
    else if (m_enOperation == ADDRBOOK_OP_COPY)
        strText = tr(QLatin1String("IDS_COPY_COMPLETE"));
    strText += QLatin1Char(' ') + tr(QLatin1String("IDS_TOTAL_COUNT")) + QString::number(iTotal) +
               tr(QLatin1String("IDS_SUCCESS_COUNT")) + QString::number(iSuccess);
    showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"), strText);
}

void AddrBookDlg::copyContactsForPushNotify(QList<AddrBookRecord> lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    m_listNotifyRecords.clear();
    QList<AddrBookField> lstFields;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetAllFields(lstFields, enMemory);
    foreach (const AddrBookRecord& record, lstRecords) {
        AddrBookRecord numbers;
        numbers.iID = record.iID;
        for (int i = 0; i < lstFields.size() && i < record.lstValues.size(); ++i) {
            const QString& strType = lstFields.at(i).strType;
            const bool bPhone = strType == QLatin1String("Mobile") || strType == QLatin1String("Number");
            if (bPhone && !record.lstValues.at(i).isEmpty())
                numbers.lstValues.append(record.lstValues.at(i));
        }
        m_listNotifyRecords.append(numbers);
    }
}
