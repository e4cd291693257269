// Contacts in from files and contact applications, and out to files.

#include "window/AddrBookDlg.h"

#include <QPointer>
#include <QThread>

#include "dialogs/AddrBookWaitingDlg.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "window/ContactFile.h"
#include "window/ExportChoice.h"
#include "window/FileDialogs.h"
#include "window/ToolItemIds.h"

namespace
{

const char* const OUTLOOK = "Outlook";
const char* const OUTLOOK_EXPRESS = "Outlook Express";

ExportChoice exportChoice(const AddrBookDlg& dlg, AddrBookTableWidget* ptable, _ADDRBOOK_OPERATION_TYPE enOperation)
{
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    dlg.getGroupId(enMemory, iGroupId);
    return ExportChoice::of(ptable, enOperation, enMemory, iGroupId);
}

} // namespace

void AddrBookDlg::OnClickImport()
{
    ADDRBOOK_LOG_ENTER();
    if (!m_bNewContactEnabled)
        return;
    const QPointer<AddrBookDlg> pSelf(this);
    const QString strPath =
        FileDialogs::open(this, tr(QLatin1String("Open")), ContactFile::startPath(), ContactFile::filter());
    if (pSelf.isNull())
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    QList<QString> lstTitles;
    getFileFieldDescription(strPath, lstTitles);
    if (lstTitles.isEmpty())
        return;
    const QString strName = strPath.section(QLatin1Char('/'), -1);
    QList<int> lstFieldMap;
    if (!ContactFile::askPositions(this, strName, enMemory, lstTitles, lstFieldMap) || pSelf.isNull())
        return;
    openWaitingDialog("IDS_IMPORT_STATUS", 1, true);
    QThread::yieldCurrentThread();
    QList<AddrBookRecord> lstRecords;
    const int iResult = m_pAddrBookLogic != nullptr
                            ? m_pAddrBookLogic->ImportFromFile(strPath, lstFieldMap, lstRecords, enMemory)
                            : static_cast<int>(ADDRBOOK_FAILED);
    finishReading(iResult, enMemory, lstRecords, iGroupId);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::getFileFieldDescription(QString strPath, QList<QString>& lstTitles)
{
    lstTitles = ContactFile::titles(strPath);
}

void AddrBookDlg::finishReading(int iResult, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                const QList<AddrBookRecord>& lstRecords, int iGroupId)
{
    if (iResult == ADDRBOOK_OK) {
        m_enOperation = ADDRBOOK_OP_IMPORT;
        addImportedRecords(enMemory, lstRecords, iGroupId);
        return;
    }
    dropWaitingDialog();
    showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_ERROR_CAPTION"),
                  tr(QLatin1String("IDS_SMS_IMPORTFAILURE_COUNT")));
}

void AddrBookDlg::addImportedRecords(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<AddrBookRecord> lstRecords, int iGroupId)
{
    ADDRBOOK_LOG_ENTER();
    if (lstRecords.isEmpty())
        return;
    AddrBookBatch::Order order;
    order.enOperation = ADDRBOOK_OP_IMPORT;
    order.enMemory = enMemory;
    order.iGroupId = iGroupId;
    order.lstRecords = lstRecords;
    // Unlike a copy, an import starts into a full memory too.
    if (makeRoomForBatch(enMemory))
        startBatch(order);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::OnBnClickedBtnMOO()
{
    importFromApplication("IDS_PMMENU_IMPORT_FROM_MOO", OUTLOOK, m_bOutlookUsable);
}

void AddrBookDlg::OnBnClickedBtnMOE()
{
    importFromApplication("IDS_PMMENU_IMPORT_FROM_MOE", OUTLOOK_EXPRESS, m_bOutlookExpressUsable);
}

// The tool items and the table's keys obey the state of the menu entry.
void AddrBookDlg::importFromApplication(const char* pActionId, const char* pSource, bool& bUsable)
{
    ADDRBOOK_LOG_CALLED();
    const QAction* paction = getAction(QLatin1String(pActionId), m_listTableActions);
    if (paction == nullptr || !paction->isEnabled())
        return;
    bUsable = m_pAddrBookLogic != nullptr && m_pAddrBookLogic->IsOutlookInstalled(QLatin1String(pSource));
    if (bUsable)
        ImportOutlookRecords(QLatin1String(pSource));
    else
        SetImportBtnState(PB_MEM_LOCAL);
}

void AddrBookDlg::ImportOutlookRecords(QString strSource)
{
    ADDRBOOK_LOG_ENTER();
    if (!m_bNewContactEnabled || m_pAddrBookLogic == nullptr)
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = -1;
    getGroupId(enMemory, iGroupId);
    QList<QString> lstTitles;
    m_pAddrBookLogic->GetAllFieldsForOutlook(lstTitles, PB_MEM_LOCAL);
    if (lstTitles.isEmpty())
        return;
    // The dialog shows the phonebook's own labels, so that it opens with every field mapped.
    m_pAddrBookLogic->GetFieldNames(enMemory, lstTitles);
    for (int i = 0; i < lstTitles.size(); ++i)
        lstTitles[i] = tr(lstTitles.at(i));
    QList<int> lstFieldMap;
    const QPointer<AddrBookDlg> pSelf(this);
    if (!ContactFile::askPositions(this, strSource, enMemory, lstTitles, lstFieldMap) || lstFieldMap.isEmpty() ||
        pSelf.isNull())
        return;
    openWaitingDialog("IDS_IMPORT_STATUS", 1, true);
    QThread::yieldCurrentThread();
    QList<AddrBookRecord> lstRecords;
    const int iResult = m_pAddrBookLogic->ImportFromOutlook(strSource, lstFieldMap, lstRecords, enMemory);
    finishReading(iResult, enMemory, lstRecords, iGroupId);
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::SetImportBtnState(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    int iTotal = 0;
    int iUsed = 0;
    if (m_pAddrBookLogic != nullptr)
        m_pAddrBookLogic->GetAddrCapacity(enMemory, iTotal, iUsed);
    const bool bRoom = iUsed < iTotal && enMemory == PB_MEM_LOCAL;
    if (m_bOutlookUsable && bRoom)
        enableItem(TOOL_IMPORT_MOO);
    else
        disableItem(TOOL_IMPORT_MOO);
    if (m_bOutlookExpressUsable && bRoom)
        enableItem(TOOL_IMPORT_MOE);
    else
        disableItem(TOOL_IMPORT_MOE);
}

void AddrBookDlg::OnClickExportSelectedContacts()
{
    ADDRBOOK_LOG_CALLED();
    m_enOperation = ADDRBOOK_OP_EXPORT_SELECTED;
    showFileDialog();
}

void AddrBookDlg::OnClickExportAllContacts()
{
    ADDRBOOK_LOG_CALLED();
    m_enOperation = ADDRBOOK_OP_EXPORT_ALL;
    showFileDialog();
}

void AddrBookDlg::showFileDialog()
{
    const QPointer<AddrBookDlg> pSelf(this);
    const ExportChoice choice = exportChoice(*this, m_ptableContacts, m_enOperation);
    const QString strFile =
        FileDialogs::save(this, tr(QLatin1String("Save As")), ContactFile::startPath(), ContactFile::filter());
    if (pSelf.isNull() || strFile.isNull())
        return;
    // The end of a batch has taken it back while the dialog was open.
    m_enOperation = choice.enOperation;
    choice.followedBy(exportChoice(*this, m_ptableContacts, choice.enOperation))
        .writeTo(ContactFile::withExtension(strFile), m_pAddrBookLogic, this);
}

void AddrBookDlg::OnFileSelected(QString strFile)
{
    saveToFile(ContactFile::withExtension(strFile));
}

bool AddrBookDlg::saveToFile(QString strFile)
{
    exportChoice(*this, m_ptableContacts, m_enOperation).writeTo(strFile, m_pAddrBookLogic, this);
    return true;
}
