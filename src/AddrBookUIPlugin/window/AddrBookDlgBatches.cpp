// The batches on the window's worker: delete and remove from a group are started here; every batch's results and its
// end are told here.

#include "window/AddrBookDlg.h"

#include <QCoreApplication>
#include <QScopedPointer>

#include "dialogs/AddrBookWaitingDlg.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"

void AddrBookDlg::handleMultipleContact(_ADDRBOOK_OPERATION_TYPE enOperation)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptableContacts == nullptr)
        return;
    // The table is deaf until the operation ends.
    QObject::disconnect(m_ptableContacts, nullptr, nullptr, nullptr);
    QList<AddrBookRecord> lstRecords;
    const QList<QTableWidgetSelectionRange> lstRanges = m_ptableContacts->selectedRanges();
    for (int i = lstRanges.size() - 1; i >= 0; --i) {
        for (int iRow = lstRanges.at(i).topRow(); iRow <= lstRanges.at(i).bottomRow(); ++iRow) {
            QTableWidgetItem* pitem = m_ptableContacts->item(iRow, 0);
            if (!isRowOf(pitem, m_enMemory))
                continue;
            getContactInfoFromSDK(pitem, m_recordCurrent);
            lstRecords.append(m_recordCurrent);
        }
    }
    if (!isSimorDeviceNodeExist())
        return;
    if (lstRecords.isEmpty()) {
        connectHandlersForTable();
        return;
    }
    if (!makeRoomForBatch())
        return;
    copyContactsForPushNotify(lstRecords, m_enMemory);
    m_threadWorker.StopOperation();
    m_enOperation = enOperation;
    m_iProcessedRowCount = 0;
    m_iSuccessRowCount = 0;
    m_iTotalRowCount = lstRecords.size();
    m_threadWorker.SetOperation(enOperation, m_enMemory, lstRecords, m_iGroupId);
    m_pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (m_pdlgWaiting != nullptr)
        m_pdlgWaiting->ShowAnimation(tr(QLatin1String("IDS_DELETE_STATUS")), m_iTotalRowCount);
    checkMaxCapacity(m_enMemory, true);
    m_bThreadBusy = true;
    m_threadWorker.start(QThread::InheritPriority);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnDelResult(bool bVal, int iRecordId)
{
    ADDRBOOK_LOG_CALLED();
    ++m_iProcessedRowCount;
    if (m_pdlgWaiting == nullptr) {
        releaseOrphanedBatch();
        return;
    }
    m_pdlgWaiting->UpDateProgress(m_iProcessedRowCount, m_iTotalRowCount);
    if (bVal) {
        ++m_iSuccessRowCount;
        if (m_enOperation == ADDRBOOK_OP_DELETE)
            sendNotifyToSMS(iRecordId, 290);
        checkMaxCapWithLocals(m_enMemory, ADDRBOOK_OP_DELETE);
    }
    if (m_pdlgWaiting != nullptr && m_pdlgWaiting->GetProgressDlgCancelStatus())
        m_threadWorker.StopOperation();
    m_threadWorker.SetSlotExecutionStatus();
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
        const QPointer<AddrBookDlg> pSelf(this);
        if (!m_bNewContactEnabled)
            stopAtFullMemory();
        if (pSelf.isNull())
            return;
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
    const QPointer<AddrBookDlg> pSelf(this);
    if (m_enOperation == ADDRBOOK_OP_IMPORT) {
        const QString strText = tr(QLatin1String("IDS_IMPORT_TOTAL_NUMBER")) + QString::number(m_iTotalRowCount) +
                                tr(QLatin1String("IDS_IMPORT_IMPORTED_NUMBER")) + QString::number(m_iSuccessRowCount);
        showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"), strText);
    } else if (m_enOperation == ADDRBOOK_OP_COPY || m_enOperation == ADDRBOOK_OP_MOVE) {
        showCopyCompletedAlert(m_iTotalRowCount, m_iSuccessRowCount);
    }
    // The window may go while the box is open.
    if (pSelf.isNull())
        return;
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

// A result that finds no waiting dialog: nobody could cancel this batch any more, and a worker must not wait for good.
void AddrBookDlg::releaseOrphanedBatch()
{
    m_threadWorker.StopOperation();
    m_threadWorker.SetSlotExecutionStatus();
}

// Before the worker gets a new list: a cancelled batch may still have a record in hand. Ends it, and lets its queued
// results and its end be told. True if there was one.
bool AddrBookDlg::retireBatch()
{
    if (!m_bThreadBusy)
        return false;
    m_threadWorker.StopOperation();
    // Waited for, since isRunning() turns false a moment before "finished" is sent.
    while (!m_threadWorker.wait(1))
        m_threadWorker.SetSlotExecutionStatus();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    return true;
}

// Retires the batch before the one that is about to start. Its end reads memory and group from the tree and reloads the
// table: the new batch keeps its own, and the new table is deaf too. False if the new batch cannot run.
bool AddrBookDlg::makeRoomForBatch()
{
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = m_enMemory;
    const int iGroupId = m_iGroupId;
    const QPointer<AddrBookDlg> pSelf(this);
    if (!retireBatch())
        return true;
    if (pSelf.isNull())
        return false;
    m_enMemory = enMemory;
    m_iGroupId = iGroupId;
    if (m_ptableContacts != nullptr)
        QObject::disconnect(m_ptableContacts, nullptr, nullptr, nullptr);
    return isSimorDeviceNodeExist();
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
