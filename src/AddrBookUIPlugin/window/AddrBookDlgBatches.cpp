// The batches on the window's worker: delete and remove from a group are started here; every batch's results and its
// end are told here.

#include "window/AddrBookDlg.h"

#include <QCoreApplication>
#include <QScopedPointer>

#include "dialogs/AddrBookWaitingDlg.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"

// The rows selected, as every operation on a selection takes them: the last range first, each from the top down.
QList<int> AddrBookDlg::selectedRows() const
{
    QList<int> lstRows;
    if (m_ptableContacts == nullptr)
        return lstRows;
    const QList<QTableWidgetSelectionRange> lstRanges = m_ptableContacts->selectedRanges();
    for (int i = lstRanges.size() - 1; i >= 0; --i) {
        for (int iRow = lstRanges.at(i).topRow(); iRow <= lstRanges.at(i).bottomRow(); ++iRow)
            lstRows.append(iRow);
    }
    return lstRows;
}

void AddrBookDlg::handleMultipleContact(_ADDRBOOK_OPERATION_TYPE enOperation)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptableContacts == nullptr)
        return;
    // The table is deaf until the operation ends.
    QObject::disconnect(m_ptableContacts, nullptr, nullptr, nullptr);
    AddrBookBatch::Order order;
    order.enOperation = enOperation;
    order.enMemory = m_enMemory;
    order.iGroupId = m_iGroupId;
    foreach (int iRow, selectedRows()) {
        QTableWidgetItem* pitem = m_ptableContacts->item(iRow, 0);
        if (!isRowOf(pitem, order.enMemory))
            continue;
        getContactInfoFromSDK(pitem, m_recordCurrent);
        order.lstRecords.append(m_recordCurrent);
    }
    if (!isSimorDeviceNodeExist())
        return;
    if (order.lstRecords.isEmpty()) {
        connectHandlersForTable();
        return;
    }
    if (!makeRoomForBatch(order.enMemory))
        return;
    // The end of the batch before has reloaded the table: the new one is deaf too.
    if (m_ptableContacts != nullptr)
        QObject::disconnect(m_ptableContacts, nullptr, nullptr, nullptr);
    copyContactsForPushNotify(order.lstRecords, order.enMemory);
    order.lstNotify = m_listNotifyRecords;
    startBatch(order);
    ADDRBOOK_LOG_EXIT();
}

// Before a batch starts: the one before has ended and is told, and the capacity cache begins with the store's figures.
// False if the new one cannot run: its memory's node has gone, or the window.
bool AddrBookDlg::makeRoomForBatch(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    const QPointer<AddrBookDlg> pSelf(this);
    // The end may open a box, and what the user does behind it may start another.
    while (m_batch.isRunning()) {
        m_batch.stop();
        QCoreApplication::sendPostedEvents(&m_threadWorker, QEvent::MetaCall);
        if (!pSelf.isNull())
            QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
        if (pSelf.isNull())
            return false;
    }
    m_enMemory = enMemory;
    if (!isSimorDeviceNodeExist())
        return false;
    checkMaxCapacity(enMemory, true);
    return true;
}

// The one place in which a batch starts. The members say what it is to whoever looks; it reads none of them back.
void AddrBookDlg::startBatch(const AddrBookBatch::Order& order)
{
    m_enOperation = order.enOperation;
    m_enMemory = order.enMemory;
    m_iGroupId = order.iGroupId;
    showProgressBar(order.lstRecords.size());
    m_bThreadBusy = true;
    m_batch.start(order, m_pdlgWaiting);
    showBatchCounts();
}

void AddrBookDlg::showBatchCounts()
{
    m_iTotalRowCount = m_batch.total();
    m_iProcessedRowCount = m_batch.processed();
    m_iSuccessRowCount = m_batch.succeeded();
}

// The waiting dialog for the next operation. A cancel that a batch has not heard of yet stays a cancel.
AddrBookWaitingDlg* AddrBookDlg::openWaitingDialog(const char* pTextId, int iSteps)
{
    m_batch.isCancelled();
    AddrBookWaitingDlg* pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (pdlgWaiting != nullptr)
        pdlgWaiting->ShowAnimation(tr(QLatin1String(pTextId)), iSteps);
    return pdlgWaiting;
}

void AddrBookDlg::showProgressBar(int iSteps)
{
    const char* pTextId = "IDS_COPY_STATUS";
    if (m_enOperation == ADDRBOOK_OP_MOVE)
        pTextId = "IDS_MOVE_STATUS";
    else if (m_enOperation == ADDRBOOK_OP_IMPORT)
        pTextId = "IDS_IMPORT_STATUS";
    else if (m_enOperation == ADDRBOOK_OP_DELETE || m_enOperation == ADDRBOOK_OP_REMOVE_FROM_GROUP)
        pTextId = "IDS_DELETE_STATUS";
    m_pdlgWaiting = openWaitingDialog(pTextId, iSteps);
}

// A reading that failed has taken the waiting dialog along. A batch that still runs gets another, so that it can be
// cancelled.
void AddrBookDlg::dropWaitingDialog()
{
    AddrBookWaitingDlg::Destroy();
    if (!m_batch.needsDialog())
        return;
    m_enOperation = m_batch.operation();
    showProgressBar(m_batch.total());
    m_batch.setDialog(m_pdlgWaiting);
}

void AddrBookDlg::OnDelResult(bool bVal, int iRecordId)
{
    ADDRBOOK_LOG_CALLED();
    const bool bOrphaned = m_batch.isOrphaned();
    m_batch.count(bVal && !bOrphaned);
    showBatchCounts();
    if (bVal && !bOrphaned) {
        if (m_batch.operation() == ADDRBOOK_OP_DELETE) {
            announce(m_batch.notifyRecords(), m_batch.memory(), iRecordId, 290);
            m_listNotifyRecords = m_batch.notifyRecords();
        }
        checkMaxCapWithLocals(m_batch.memory(), ADDRBOOK_OP_DELETE);
    }
    m_batch.release();
}

void AddrBookDlg::OnAddResult(bool bSuccess, qlonglong iPtrRecord)
{
    ADDRBOOK_LOG_CALLED();
    const QScopedPointer<AddrBookRecord> pRecord(carrierToPointer<AddrBookRecord>(iPtrRecord));
    if (pRecord.isNull())
        return;
    if (m_batch.isOrphaned()) {
        m_batch.release();
        return;
    }
    m_batch.count(bSuccess);
    showBatchCounts();
    if (bSuccess) {
        QList<AddrBookRecord> lstRecords;
        lstRecords.append(*pRecord);
        copyContactsForPushNotify(lstRecords, m_batch.memory());
        announce(m_listNotifyRecords, m_batch.memory(), pRecord->iID, 288);
        checkMaxCapWithLocals(m_batch.memory(), ADDRBOOK_OP_ADD);
        if (!m_bNewContactEnabled && !stopAtFullMemory())
            return;
    }
    m_batch.release();
}

// False if what runs behind the message is not this batch any more.
bool AddrBookDlg::stopAtFullMemory()
{
    const int iBatch = m_batch.number();
    m_threadWorker.StopOperation();
    QString strText;
    if (m_batch.operation() == ADDRBOOK_OP_IMPORT)
        strText = tr(QLatin1String("IDS_IMPORT_DEVICEFULL"));
    else if (m_batch.operation() == ADDRBOOK_OP_COPY || m_batch.operation() == ADDRBOOK_OP_MOVE)
        strText = tr(QLatin1String("IDS_MOVE_REC_DEV_FULL"));
    m_batch.setTold();
    m_enOperation = ADDRBOOK_OP_NONE;
    if (m_pdlgWaiting != nullptr)
        m_pdlgWaiting->CloseWaitingDialog();
    const QPointer<AddrBookDlg> pSelf(this);
    if (!strText.isEmpty())
        showBatchMessage(strText + QString::number(m_batch.succeeded()));
    return !pSelf.isNull() && m_batch.isRunning() && m_batch.number() == iBatch;
}

// A program that goes down has nobody to tell.
void AddrBookDlg::showBatchMessage(const QString& strText)
{
    if (!CommonUtils::IsShuttingDown())
        showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"), strText);
}

void AddrBookDlg::OnFinished()
{
    ADDRBOOK_LOG_ENTER();
    m_batch.finish();
    connectHandlersForTable();
    m_bThreadBusy = false;
    // The node under contacts that hover is only lit: what the table shows is read again, and dragged on.
    if (m_ptreePhonebook != nullptr)
        m_ptreePhonebook->EndHover();
    QTreeWidgetItem* pitem = getGroupId(m_enMemory, m_iGroupId);
    if (pitem != nullptr) {
        rePaintTree();
        m_pitemCurrentTreeWidgetItem = nullptr;
        OnTreeClicked(pitem);
    }
    const QPointer<AddrBookDlg> pSelf(this);
    if (m_batch.operation() == ADDRBOOK_OP_IMPORT)
        showBatchMessage(tr(QLatin1String("IDS_IMPORT_TOTAL_NUMBER")) + QString::number(m_batch.total()) +
                         tr(QLatin1String("IDS_IMPORT_IMPORTED_NUMBER")) + QString::number(m_batch.succeeded()));
    else if (m_batch.operation() == ADDRBOOK_OP_COPY || m_batch.operation() == ADDRBOOK_OP_MOVE)
        showCopyEnd(m_batch.operation(), m_batch.source(), m_batch.memory(), m_batch.total(), m_batch.succeeded());
    // The window may go while the box is open, and the next batch may come.
    if (pSelf.isNull() || m_batch.isRunning())
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
    showCopyEnd(m_enOperation, m_enDragSourceMemory, m_enDragTargetMemory, iTotal, iSuccess);
}

void AddrBookDlg::showCopyEnd(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enSource,
                              _ORVA_EN_PHONEBOOK_MEMORY enTarget, int iTotal, int iSuccess)
{
    if (!isDeviceMemory(enTarget) && !isDeviceMemory(enSource))
        return;
    QString strText;
    if (enOperation == ADDRBOOK_OP_MOVE)
        strText = tr(QLatin1String("IDS_MOVE_COMPLETE"));
    else if (enOperation == ADDRBOOK_OP_COPY)
        strText = tr(QLatin1String("IDS_COPY_COMPLETE"));
    strText += QLatin1Char(' ') + tr(QLatin1String("IDS_TOTAL_COUNT")) + QString::number(iTotal) +
               tr(QLatin1String("IDS_SUCCESS_COUNT")) + QString::number(iSuccess);
    showBatchMessage(strText);
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
