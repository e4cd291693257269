// The user's operations on single contacts and on selections: new, edit, delete, remove from a group, and the capacity
// watch that turns "new" off when a memory is full.

#include "window/AddrBookDlg.h"

#include <QScopedPointer>

#include "dialogs/AddrBookEditDlg.h"
#include "dialogs/AddrBookSelectContactsDlg.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/TableRows.h"
#include "window/ToolItemIds.h"

void AddrBookDlg::OnButtonClickedNewContact()
{
    ADDRBOOK_LOG_ENTER();
    if (!m_bNewContactEnabled)
        return;
    m_enMemory = PB_MEM_LOCAL;
    m_iGroupId = -1;
    getGroupId(m_enMemory, m_iGroupId);
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    QList<AddrBookField> lstFields;
    if (pLogic == nullptr || pLogic->GetAllFields(lstFields, m_enMemory) == ADDRBOOK_FAILED) {
        showMessageOk(QMessageBox::Critical, this, QLatin1String("IDS_ERROR_CAPTION"),
                      tr(QLatin1String("IDS_INIT_DEV_UNDERWAY")));
        return;
    }
    m_enOperation = ADDRBOOK_OP_ADD;
    const QScopedPointer<AddrBookEditDlg> pdlgEdit(new (std::nothrow) AddrBookEditDlg);
    if (pdlgEdit.isNull())
        return;
    pdlgEdit->InitDialog(this, m_iGroupId, m_enMemory, m_enOperation);
    pdlgEdit->setRegEx();
    pdlgEdit->SetWindowTitle(tr(QLatin1String("IDS_ADD_RECORD_INFO")));
    if (runForm(*pdlgEdit) == 0) {
        OnOKBtnClickedNewEditContact(pdlgEdit.data());
        SavePBInfoForAgent(QLatin1String("PB01"), QLatin1String("PBisUsing"), QLatin1String("1"));
    }
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnButtonClickedEditContact()
{
    ADDRBOOK_LOG_ENTER();
    m_enMemory = PB_MEM_LOCAL;
    int iGroupId = -1;
    getGroupId(m_enMemory, iGroupId);
    if (m_ptableContacts == nullptr || m_pAddrBookLogic == nullptr)
        return;
    QTableWidgetItem* pitem = m_ptableContacts->selectedItems().value(0);
    if (pitem == nullptr || !TableRows::belongsTo(pitem, m_enMemory))
        return;
    QList<QString> lstNames;
    m_pAddrBookLogic->GetFieldNames(m_enMemory, lstNames);
    TableRows::makeCurrent(m_ptableContacts, pitem);
    getContactInfoFromSDK(pitem, m_recordCurrent);
    if (lstNames.size() != m_recordCurrent.lstValues.size())
        return;
    const QScopedPointer<AddrBookEditDlg> pdlgEdit(new (std::nothrow) AddrBookEditDlg);
    if (pdlgEdit.isNull())
        return;
    pdlgEdit->InitDialog(this, iGroupId, m_enMemory, ADDRBOOK_OP_EDIT);
    pdlgEdit->SetWindowTitle(tr(QLatin1String("IDS_RECORD_INFO")));
    pdlgEdit->SetEditCotactDetails(m_recordCurrent);
    pdlgEdit->setRegEx();
    m_enOperation = ADDRBOOK_OP_EDIT;
    const QPointer<AddrBookDlg> pSelf(this);
    if (runForm(*pdlgEdit) == 0) {
        SavePBInfoForAgent(QLatin1String("PB01"), QLatin1String("PBisUsing"), QLatin1String("1"));
        OnOKBtnClickedNewEditContact(pdlgEdit.data());
    }
    if (pSelf.isNull())
        return;
    // The sort may have moved the row.
    if (m_ptableContacts != nullptr && !m_ptableContacts->selectedItems().isEmpty())
        m_ptableContacts->setCurrentItem(m_ptableContacts->selectedItems().first());
    ADDRBOOK_LOG_EXIT();
}

int AddrBookDlg::SaveNumberToAddrBook(QString strNumber, QWidget* pParent)
{
    ADDRBOOK_LOG_ENTER();
    m_enOperation = ADDRBOOK_OP_ADD;
    m_enMemory = PB_MEM_LOCAL;
    m_iGroupId = -1;
    getGroupId(m_enMemory, m_iGroupId);
    const QScopedPointer<AddrBookEditDlg> pdlgEdit(new (std::nothrow) AddrBookEditDlg);
    if (pdlgEdit.isNull())
        return 1;
    // A number from outside always goes to the PC's phonebook, whatever the tree shows.
    m_enMemory = PB_MEM_LOCAL;
    pdlgEdit->InitDialog(pParent != nullptr ? pParent : this, m_iGroupId, PB_MEM_LOCAL, ADDRBOOK_OP_ADD);
    pdlgEdit->SetWindowTitle(tr(QLatin1String("IDS_ADD_RECORD_INFO")));
    m_recordCurrent.lstValues.clear();
    pdlgEdit->ConstructSaveContact(m_recordCurrent.lstValues, strNumber);
    pdlgEdit->SetEditCotactDetails(m_recordCurrent);
    pdlgEdit->setRegEx();
    pdlgEdit->SetOKButtonTrue();
    if (runForm(*pdlgEdit) == 0)
        OnOKBtnClickedNewEditContact(pdlgEdit.data());
    ADDRBOOK_LOG_EXIT();
    return 1;
}

// Runs the form: 0 if the contact was saved. A batch that ends while the form is open, or a number that a sibling has
// saved meanwhile, overwrites what the flow works on, so that a saved contact gets it back. With any other result the
// window may have gone.
int AddrBookDlg::runForm(AddrBookEditDlg& dlgEdit)
{
    const _ADDRBOOK_OPERATION_TYPE enOperation = m_enOperation;
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = m_enMemory;
    const int iGroupId = m_iGroupId;
    const AddrBookRecord record = m_recordCurrent;
    const QPointer<AddrBookDlg> pSelf(this);
    const int iResult = dlgEdit.Exec();
    if (pSelf.isNull())
        return -1;
    if (iResult == 0) {
        m_enOperation = enOperation;
        m_enMemory = enMemory;
        m_iGroupId = iGroupId;
        m_recordCurrent = record;
    }
    return iResult;
}

void AddrBookDlg::OnOKBtnClickedNewEditContact(AddrBookEditDlg* pAddrBookEditDlg)
{
    ADDRBOOK_LOG_ENTER();
    if (pAddrBookEditDlg == nullptr)
        return;
    const AddrBookRecord record = pAddrBookEditDlg->GetNewRecordInfo();
    m_saved.Add(m_enMemory, record);
    QList<AddrBookRecord> lstRecords;
    if (m_enOperation == ADDRBOOK_OP_ADD) {
        checkMaxCapacity(m_enMemory, false);
        lstRecords.append(record);
        copyContactsForPushNotify(lstRecords, m_enMemory);
        sendNotifyToSMS(record.iID, PHONEBOOK_CONTACT_ADDED);
    } else if (m_enOperation == ADDRBOOK_OP_EDIT) {
        lstRecords.append(m_recordCurrent);
        lstRecords.append(record);
        copyContactsForPushNotify(lstRecords, m_enMemory);
        sendNotifyToSMS(m_recordCurrent.iID, PHONEBOOK_CONTACT_CHANGED);
    }
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    rePaintTree();
    if (enMemory == m_enMemory && m_ptableContacts != nullptr) {
        if (m_enOperation == ADDRBOOK_OP_ADD)
            showNewContact(record);
        else if (m_enOperation == ADDRBOOK_OP_EDIT)
            showChangedContact(enMemory, record);
    }
    ADDRBOOK_LOG_EXIT();
}

// The table shows the memory that the new contact went to: gives it a row, unless a search hides it.
void AddrBookDlg::showNewContact(const AddrBookRecord& record)
{
    if (m_bSearchBoxShown && m_plineeditSearch == nullptr)
        return;
    const QString strSearch = m_bSearchBoxShown ? m_plineeditSearch->text() : QString();
    if (!strSearch.isEmpty()) {
        int iColumns = 0;
        getColumnCount(m_enMemory, iColumns);
        if (!TableSearch::Holds(record, iColumns, strSearch))
            return;
    }
    int iRow = 0;
    // Off while a read runs, up to the read's end: a row must not move while its cells arrive.
    const bool bSort = m_ptableContacts->isSortingEnabled();
    m_ptableContacts->setSortingEnabled(false);
    addContactToTable(m_enMemory, record, m_iGroupId, iRow);
    // Not selectRow, which finds no column in a table that runs from right to left.
    m_ptableContacts->setCurrentCell(iRow, 0);
    m_ptableContacts->setSortingEnabled(bSort);
    m_ptableContacts->repaint();
    const QList<QTableWidgetItem*> lstSelected = m_ptableContacts->selectedItems();
    if (!lstSelected.isEmpty())
        m_ptableContacts->scrollToItem(lstSelected.first(), QAbstractItemView::EnsureVisible);
}

// The table may have been read anew under the form, and the current row be anybody's.
void AddrBookDlg::showChangedContact(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const AddrBookRecord& record)
{
    QTableWidgetItem* pitem = TableRows::ofRecord(m_ptableContacts, enMemory, record.iID);
    if (pitem == nullptr)
        return;
    TableRows::makeCurrent(m_ptableContacts, pitem);
    const bool bSort = m_ptableContacts->isSortingEnabled();
    m_ptableContacts->setSortingEnabled(false);
    setTableContent(enMemory, record);
    m_ptableContacts->setSortingEnabled(bSort);
}

void AddrBookDlg::getContactInfoFromSDK(QTableWidgetItem* pitem, AddrBookRecord& record)
{
    record.lstValues.clear();
    if (pitem == nullptr || m_ptableContacts == nullptr)
        return;
    const TableRowData* pData = tableRowData(pitem);
    if (pData == nullptr)
        return;
    record.iID = pData->iRecordID;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetRecord(pData->enType, pData->iRecordID, record.lstValues);
}

void AddrBookDlg::OnButtonClickedDeleteContact()
{
    ADDRBOOK_LOG_ENTER();
    getGroupId(m_enMemory, m_iGroupId);
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = m_enMemory;
    const int iGroupId = m_iGroupId;
    const QPointer<AddrBookDlg> pSelf(this);
    const int iAnswer = CommonUtils::ShowMessage(
        QMessageBox::Question, this, tr(QLatin1String("IDS_PROMPT_CAPTION")),
        tr(QLatin1String("IDS_FLEXIT_UI_DELETE_ITEM")), QLatin1String("IDS_OK"), QLatin1String("IDS_CANCEL"),
        QLatin1String(""), false, Qt::WindowCloseButtonHint, nullptr, QLatin1String(""), true);
    if (iAnswer == QMessageBox::Ok && !pSelf.isNull()) {
        // Whatever has used them while the question was open.
        m_enMemory = enMemory;
        m_iGroupId = iGroupId;
        handleMultipleContact(ADDRBOOK_OP_DELETE);
    }
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnRemoveFromGroupClicked()
{
    ADDRBOOK_LOG_CALLED();
    getGroupId(m_enMemory, m_iGroupId);
    handleMultipleContact(ADDRBOOK_OP_REMOVE_FROM_GROUP);
}

void AddrBookDlg::enableDisableNewContact(int iTotal, int iUsed)
{
    const bool bRoom = Capacity::hasRoom(iTotal, iUsed);
    m_tableEntries.enable("IDS_PMMENU_ADD", bRoom);
    m_tableEntries.enable("IDS_IMPORT_PHONEBOOK", bRoom);
    if (bRoom)
        enableItem(TOOL_NEW);
    else
        disableItem(TOOL_NEW);
    m_bNewContactEnabled = bRoom;
}

void AddrBookDlg::checkMaxCapacity(_ORVA_EN_PHONEBOOK_MEMORY enType, bool bRefresh)
{
    int iTotal = 0;
    int iUsed = 0;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetAddrCapacity(enType, iTotal, iUsed);
    if (bRefresh)
        m_capacity.set(enType, iTotal, iUsed);
    enableDisableNewContact(iTotal, iUsed);
}

void AddrBookDlg::checkMaxCapWithLocals(_ORVA_EN_PHONEBOOK_MEMORY enType, _ADDRBOOK_OPERATION_TYPE enOperation)
{
    int iTotal = 0;
    int iUsed = 0;
    m_capacity.follow(enType, enOperation, iTotal, iUsed);
    enableDisableNewContact(iTotal, iUsed);
}

void AddrBookDlg::OnAddSelectDialogContact(int iType, int iRecordId, int iGroupId)
{
    if (m_pAddrBookLogic == nullptr)
        return;
    const _ORVA_EN_PHONEBOOK_MEMORY enMemory = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType);
    QList<QString> lstValues;
    m_pAddrBookLogic->GetRecord(enMemory, iRecordId, lstValues);
    if (m_pdlgSelectContacts != nullptr)
        m_pdlgSelectContacts->OnAddContact(enMemory, iGroupId, iRecordId, lstValues);
}

void AddrBookDlg::OnDeleteSelectDialogContact(int iType, int iRecordId)
{
    if (m_pdlgSelectContacts != nullptr)
        m_pdlgSelectContacts->OnDeleteContact(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType), iRecordId);
}

void AddrBookDlg::OnRemoveContactFromGroup(int iType, int iRecordId, int iGroupId)
{
    if (m_pdlgSelectContacts != nullptr)
        m_pdlgSelectContacts->OnRemoveContactFromGroup(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(iType), iRecordId,
                                                       iGroupId);
}
