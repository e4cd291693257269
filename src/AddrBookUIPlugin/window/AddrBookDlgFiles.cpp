// Contacts in from files and contact applications, and out to files.

#include "window/AddrBookDlg.h"

#include <QPointer>
#include <QScopedPointer>

#include <memory>
#include <new>

#include "dialogs/AddrBookFieldMapDlg.h"
#include "dialogs/AddrBookWaitingDlg.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
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
    showImportStart();
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

void AddrBookDlg::showImportStart()
{
    AddrBookWaitingDlg* pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (pdlgWaiting != nullptr) {
        pdlgWaiting->ShowAnimation(tr(QLatin1String("IDS_IMPORT_STATUS")), 1);
        pdlgWaiting->UpDateLabel(0, 0);
    }
    QThread::yieldCurrentThread();
}

void AddrBookDlg::finishReading(int iResult, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                                const QList<AddrBookRecord>& lstRecords, int iGroupId)
{
    if (iResult == ADDRBOOK_OK) {
        // A cancelled batch that still ends is told as what it was.
        if (!m_bThreadBusy)
            m_enOperation = ADDRBOOK_OP_IMPORT;
        addImportedRecords(enMemory, lstRecords, iGroupId);
        return;
    }
    AddrBookWaitingDlg* pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (pdlgWaiting != nullptr)
        pdlgWaiting->CloseWaitingDialog();
    AddrBookWaitingDlg::Destroy();
    showMessageOk(QMessageBox::Information, this, QLatin1String("IDS_ERROR_CAPTION"),
                  tr(QLatin1String("IDS_SMS_IMPORTFAILURE_COUNT")));
}

void AddrBookDlg::addImportedRecords(_ORVA_EN_PHONEBOOK_MEMORY enMemory, QList<AddrBookRecord> lstRecords, int iGroupId)
{
    ADDRBOOK_LOG_ENTER();
    if (lstRecords.isEmpty())
        return;
    const QPointer<AddrBookDlg> pSelf(this);
    if (retireBatch() && pSelf.isNull())
        return;
    m_threadWorker.StopOperation();
    m_enMemory = enMemory;
    if (!isSimorDeviceNodeExist())
        return;
    m_threadWorker.SetOperation(ADDRBOOK_OP_ADD, enMemory, lstRecords, iGroupId);
    m_enOperation = ADDRBOOK_OP_IMPORT;
    m_iProcessedRowCount = 0;
    m_iSuccessRowCount = 0;
    m_iTotalRowCount = lstRecords.size();
    m_iGroupId = iGroupId;
    m_pdlgWaiting = AddrBookWaitingDlg::GetWaitingDlgInstance(this);
    if (m_pdlgWaiting != nullptr)
        m_pdlgWaiting->ShowAnimation(tr(QLatin1String("IDS_IMPORT_STATUS")), m_iTotalRowCount);
    checkMaxCapacity(m_enMemory, true);
    m_bThreadBusy = true;
    m_threadWorker.start(QThread::InheritPriority);
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
    showImportStart();
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
    const QString strFile =
        FileDialogs::save(this, tr(QLatin1String("Save As")), startPath(), QLatin1String(FILE_FILTER));
    if (!pSelf.isNull() && !strFile.isNull())
        OnFileSelected(strFile);
}

void AddrBookDlg::OnFileSelected(QString strFile)
{
    // Any extension of three letters is respected.
    const int iLength = strFile.length();
    const bool bOtherExtension = iLength > 3 && strFile.at(iLength - 4) != QLatin1Char('.');
    if (!strFile.contains(QLatin1Char('.')) || bOtherExtension)
        strFile += QLatin1String(".csv");
    saveToFile(strFile);
}

bool AddrBookDlg::saveToFile(QString strFile)
{
    ADDRBOOK_LOG_ENTER();
    if (m_ptableContacts == nullptr)
        return true;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    QList<int> lstRows;
    if (m_enOperation == ADDRBOOK_OP_EXPORT_SELECTED) {
        const QList<QTableWidgetSelectionRange> lstRanges = m_ptableContacts->selectedRanges();
        for (int i = lstRanges.size() - 1; i >= 0; --i) {
            for (int iRow = lstRanges.at(i).topRow(); iRow <= lstRanges.at(i).bottomRow(); ++iRow)
                lstRows.append(iRow);
        }
    } else if (m_enOperation == ADDRBOOK_OP_EXPORT_ALL) {
        for (int iRow = 0; iRow < m_ptableContacts->rowCount(); ++iRow)
            lstRows.append(iRow);
    }
    QList<int> lstIds;
    foreach (int iRow, lstRows) {
        AddrBookRecord record;
        record.iID = 0;
        getContactInfoFromSDK(m_ptableContacts->item(iRow, 0), record);
        lstIds.append(record.iID);
    }
    const int iResult = m_pAddrBookLogic != nullptr ? m_pAddrBookLogic->ExportToFile(strFile, lstIds, enMemory)
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
