// Contacts in from files and contact applications, and out to files.

#include "window/AddrBookDlg.h"

#include <QPointer>
#include <QScopedPointer>
#include <QThread>

#include <memory>
#include <new>

#include "dialogs/AddrBookFieldMapDlg.h"
#include "dialogs/AddrBookWaitingDlg.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "window/FileDialogs.h"
#include "window/ToolItemIds.h"

namespace
{

const char* const FILE_FILTER = "Excel Files (*.csv)";
const char* const OUTLOOK = "Outlook";
const char* const OUTLOOK_EXPRESS = "Outlook Express";

QString startPath()
{
    return QtCompat::desktopFolder() + QLatin1String("/*.csv");
}

// Any extension of three letters is respected.
QString withExtension(const QString& strFile)
{
    const int iLength = strFile.length();
    const bool bOtherExtension = iLength > 3 && strFile.at(iLength - 4) != QLatin1Char('.');
    if (!strFile.contains(QLatin1Char('.')) || bOtherExtension)
        return strFile + QLatin1String(".csv");
    return strFile;
}

// The last position of a title: a title that stands twice means the later column.
int lastPosition(const QList<QString>& lstTitles, const QString& strTitle)
{
    return lstTitles.lastIndexOf(strTitle);
}

} // namespace

void AddrBookDlg::OnClickImport()
{
    ADDRBOOK_LOG_ENTER();
    if (!m_bNewContactEnabled)
        return;
    const QPointer<AddrBookDlg> pSelf(this);
    const QString strPath = FileDialogs::open(this, tr(QLatin1String("Open")), startPath(), QLatin1String(FILE_FILTER));
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
    if (!askFieldMap(strName, enMemory, lstTitles, lstFieldMap) || pSelf.isNull())
        return;
    showReading("IDS_IMPORT_STATUS", 1);
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
    ADDRBOOK_LOG_ENTER();
    lstTitles.clear();
    int iLength = 0;
    const unsigned short* pPath = strPath.utf16();
    long iResult = 0;
    const long iLengthGiven = 2;
    SDK_CALL_OR(iLengthGiven, iResult, ORVA_PBSrv_GetFileFieldDescription, (pPath, nullptr, &iLength));
    if (iResult != iLengthGiven) {
        ADDRBOOK_LOG("%s", iLength == 0 ? "no records or isn't compatible file" : "FAILED");
        return;
    }
    if (iLength <= 0)
        return;
    // One byte more than asked for: the text ends even if the file grew in between.
    const std::unique_ptr<char[]> pBuffer(new (std::nothrow) char[static_cast<size_t>(iLength) + 1]());
    if (pBuffer == nullptr)
        return;
    SDK_CALL(iResult, ORVA_PBSrv_GetFileFieldDescription, (pPath, pBuffer.get(), &iLength));
    if (iResult == 0) {
        const QString strTitles = QString::fromLocal8Bit(pBuffer.get());
        lstTitles += strTitles.split(QLatin1Char(','), QtCompat::KeepEmptyParts);
    }
    ADDRBOOK_LOG_EXIT();
}

// Lets the user map the titles to the memory's fields. True with the map if the user confirmed.
bool AddrBookDlg::askFieldMap(const QString& strSource, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                              const QList<QString>& lstTitles, QList<int>& lstFieldMap)
{
    const QScopedPointer<AddrBookFieldMapDlg> pdlgMap(new (std::nothrow) AddrBookFieldMapDlg);
    if (pdlgMap.isNull())
        return false;
    pdlgMap->InitDialog(this, enMemory, strSource);
    pdlgMap->SetRowCount(1, 11);
    pdlgMap->SetRowCount(2, 11);
    pdlgMap->SetRowHeight(1, 15);
    pdlgMap->SetRowHeight(2, 15);
    pdlgMap->SetFirstTableInfo(lstTitles);
    pdlgMap->SetSecondTableInfo(lstTitles, enMemory);
    if (pdlgMap->Exec() == 0)
        return false;
    // One blank is a field without a column; a row beyond the last field has no text and adds nothing.
    foreach (const QString& strText, pdlgMap->GetFieldMapData()) {
        if (strText == QLatin1String(" ")) {
            lstFieldMap.append(-1);
            continue;
        }
        const int iPosition = lastPosition(lstTitles, strText);
        if (iPosition >= 0)
            lstFieldMap.append(iPosition);
    }
    return true;
}

// The waiting dialog with its counter blank, for records that are still being read.
AddrBookWaitingDlg* AddrBookDlg::showReading(const char* pTextId, int iSteps)
{
    AddrBookWaitingDlg* pdlgWaiting = openWaitingDialog(pTextId, iSteps);
    if (pdlgWaiting != nullptr)
        pdlgWaiting->UpDateLabel(0, 0);
    return pdlgWaiting;
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
    if (!askFieldMap(strSource, enMemory, lstTitles, lstFieldMap) || lstFieldMap.isEmpty() || pSelf.isNull())
        return;
    showReading("IDS_IMPORT_STATUS", 1);
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
    const ExportChoice choice = exportChoice(m_enOperation);
    const QString strFile =
        FileDialogs::save(this, tr(QLatin1String("Save As")), startPath(), QLatin1String(FILE_FILTER));
    if (pSelf.isNull() || strFile.isNull())
        return;
    // The end of a batch has taken it back while the dialog was open.
    m_enOperation = choice.enOperation;
    exportTo(withExtension(strFile), stillExported(choice));
}

void AddrBookDlg::OnFileSelected(QString strFile)
{
    saveToFile(withExtension(strFile));
}

bool AddrBookDlg::saveToFile(QString strFile)
{
    return exportTo(strFile, exportChoice(m_enOperation));
}

// The rows selected, or all, as the table shows them now.
AddrBookDlg::ExportChoice AddrBookDlg::exportChoice(_ADDRBOOK_OPERATION_TYPE enOperation) const
{
    ExportChoice choice;
    choice.enOperation = enOperation;
    choice.pTable = m_ptableContacts;
    getGroupId(choice.enMemory, choice.iGroupId);
    if (m_ptableContacts == nullptr)
        return choice;
    QList<int> lstRows;
    if (enOperation == ADDRBOOK_OP_EXPORT_SELECTED)
        lstRows = selectedRows();
    for (int iRow = 0; enOperation == ADDRBOOK_OP_EXPORT_ALL && iRow < m_ptableContacts->rowCount(); ++iRow)
        lstRows.append(iRow);
    foreach (int iRow, lstRows) {
        const TableRowData* pData = tableRowData(m_ptableContacts->item(iRow, 0));
        // Rows left over from a memory whose node has gone stay that memory's.
        if (pData != nullptr)
            choice.enMemory = pData->enType;
        choice.lstIds.append(pData != nullptr ? pData->iRecordID : 0);
    }
    return choice;
}

// What the user asked for, when the file has been chosen: by then a batch's end may have reloaded the table, which
// takes the selection along.
AddrBookDlg::ExportChoice AddrBookDlg::stillExported(const ExportChoice& choice) const
{
    const ExportChoice now = exportChoice(choice.enOperation);
    if (now.pTable.data() == choice.pTable.data())
        return now;
    const bool bSameNode = now.enMemory == choice.enMemory && now.iGroupId == choice.iGroupId;
    const bool bComplete = m_ptableContacts != nullptr && m_ptableContacts->isSortingEnabled();
    return choice.enOperation == ADDRBOOK_OP_EXPORT_ALL && bSameNode && bComplete ? now : choice;
}

bool AddrBookDlg::exportTo(const QString& strFile, const ExportChoice& choice)
{
    ADDRBOOK_LOG_ENTER();
    // With any other operation nobody has asked for an export, and an older file stays as it is.
    const bool bExport =
        choice.enOperation == ADDRBOOK_OP_EXPORT_SELECTED || choice.enOperation == ADDRBOOK_OP_EXPORT_ALL;
    if (m_ptableContacts == nullptr || !bExport)
        return true;
    // The memory is asked for each contact once more, as for every operation on rows; what it answers is not looked at.
    foreach (int iId, choice.lstIds) {
        QList<QString> lstValues;
        if (iId != 0 && m_pAddrBookLogic != nullptr)
            m_pAddrBookLogic->GetRecord(choice.enMemory, iId, lstValues);
    }
    const int iResult = m_pAddrBookLogic != nullptr
                            ? m_pAddrBookLogic->ExportToFile(strFile, choice.lstIds, choice.enMemory)
                            : static_cast<int>(ADDRBOOK_FAILED);
    if (iResult != ADDRBOOK_OK)
        showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_ERROR_CAPTION"),
                      tr(QLatin1String("IDS_SMS_EXPORTFAILURE_COUNT")));
    else
        showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_PROMPT_CAPTION"),
                      tr(QLatin1String("IDS_SMS_EXPORTSUCCESS_COUNT")));
    ADDRBOOK_LOG_EXIT();
    return true;
}
