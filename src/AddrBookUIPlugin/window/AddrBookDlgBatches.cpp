// The batches on the window's worker: delete and remove from a group are started here; every batch's results and its
// end are told here.

#include "window/AddrBookDlg.h"

#include <QCoreApplication>
#include <QScopedPointer>

#include "dialogs/AddrBookWaitingDlg.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/PointerCarrier.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/BatchTexts.h"
#include "window/Notices.h"
#include "window/TableRows.h"

namespace
{
// A program that goes down has nobody to tell.
void tell(QWidget* pParent, const QString& strText)
{
    if (!strText.isEmpty() && !CommonUtils::IsShuttingDown())
        showMessageOk(QMessageBox::Information, pParent, QLatin1String("IDS_PROMPT_CAPTION"), strText);
}
} // namespace

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
    foreach (int iRow, TableRows::selected(m_ptableContacts)) {
        QTableWidgetItem* pitem = m_ptableContacts->item(iRow, 0);
        if (!TableRows::belongsTo(pitem, order.enMemory))
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

// The waiting dialog for the next operation; while records are still being read its counter is blank. A cancel that a
// batch has not heard of yet stays a cancel.
AddrBookWaitingDlg* AddrBookDlg::openWaitingDialog(const char* pTextId, int iSteps, bool bReading)
{
    m_batch.isCancelled();
    AddrBookWaitingDlg* pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (pdlgWaiting == nullptr)
        return nullptr;
    pdlgWaiting->ShowAnimation(tr(QLatin1String(pTextId)), iSteps);
    if (bReading)
        pdlgWaiting->UpDateLabel(0, 0);
    return pdlgWaiting;
}

void AddrBookDlg::showProgressBar(int iSteps)
{
    m_pdlgWaiting = openWaitingDialog(BatchTexts::progress(m_enOperation), iSteps, false);
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
            Notices::announce(m_batch.notifyRecords(), m_batch.memory(), iRecordId, PHONEBOOK_CONTACT_DELETED);
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
        Notices::announce(m_listNotifyRecords, m_batch.memory(), pRecord->iID, PHONEBOOK_CONTACT_ADDED);
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
    const QString strText = BatchTexts::full(m_batch.operation(), m_batch.succeeded());
    m_batch.setTold();
    m_enOperation = ADDRBOOK_OP_NONE;
    if (m_pdlgWaiting != nullptr)
        m_pdlgWaiting->CloseWaitingDialog();
    const QPointer<AddrBookDlg> pSelf(this);
    tell(this, strText);
    return !pSelf.isNull() && m_batch.isRunning() && m_batch.number() == iBatch;
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
        tell(this, BatchTexts::importEnd(m_batch.total(), m_batch.succeeded()));
    else if (m_batch.operation() == ADDRBOOK_OP_COPY || m_batch.operation() == ADDRBOOK_OP_MOVE)
        tell(this, BatchTexts::copyEnd(m_batch.operation(), m_batch.source(), m_batch.memory(), m_batch.total(),
                                       m_batch.succeeded()));
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
    tell(this, BatchTexts::copyEnd(m_enOperation, m_enDragSourceMemory, m_enDragTargetMemory, iTotal, iSuccess));
}

void AddrBookDlg::copyContactsForPushNotify(QList<AddrBookRecord> lstRecords, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    QList<AddrBookField> lstFields;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetAllFields(lstFields, enMemory);
    m_listNotifyRecords = Notices::numbersOf(lstRecords, lstFields);
}
