#include <QTextBrowser>

#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "window/AddrBookDlg.h"
#include "window/ToolItemIds.h"

namespace
{
QString noRecordText(const AddrBookDlg& dlg)
{
    return QLatin1String("<HTML>") + dlg.tr(QLatin1String("IDS_NORECORDSELECT")) + QLatin1String("<HTML/>");
}
} // namespace

void AddrBookDlg::showNoRecord()
{
    m_bPreviewEmpty = true;
    if (m_plabelPreview != nullptr)
        m_plabelPreview->setText(noRecordText(*this));
}

// What needs a selection, with none.
void AddrBookDlg::disableSelectionItems()
{
    disableItem(TOOL_EDIT);
    disableItem(TOOL_DELETE);
    disableItem(TOOL_SEND);
    disableItem(TOOL_CALL);
    updateTableSend(false);
    updateTableCall(false);
}

void AddrBookDlg::OnTableClicked(int iRow, int iColumn)
{
    if (m_ptableContacts == nullptr)
        return;
    QString strText;
    const QTableWidgetItem* pitem = m_ptableContacts->item(iRow, iColumn);
    if (pitem != nullptr && !m_ptableContacts->selectedItems().isEmpty()) {
        TableRowData* pData = tableRowData(pitem);
        if (pData == nullptr)
            return;
        int iCount = 0;
        getColumnCount(pData->enType, iCount);
        constructPreview(iRow, iCount, strText, pData);
    } else {
        m_bPreviewEmpty = true;
        strText = noRecordText(*this);
        if (tableSelectionStatus() == ADDRBOOK_ENABLE_TABLE_NONE)
            disableSelectionItems();
    }
    if (m_plabelPreview != nullptr)
        m_plabelPreview->setText(strText);
    repaint();
}

// The preview shows the SDK's values, so that a line feed that a cell shows as a blank is a line here.
void AddrBookDlg::constructPreview(int iRow, int iColumnCount, QString& strText, TableRowData* pData)
{
    if (m_ptableContacts == nullptr)
        return;
    m_bPreviewEmpty = false;
    if (iRow < 0 || pData == nullptr) {
        strText += noRecordText(*this);
        return;
    }
    QList<QString> lstValues;
    if (m_pAddrBookLogic == nullptr ||
        m_pAddrBookLogic->GetRecord(pData->enType, pData->iRecordID, lstValues) != ADDRBOOK_OK)
        return;
    for (int iColumn = 0; iColumn < iColumnCount; ++iColumn) {
        const QTableWidgetItem* pHeader = m_ptableContacts->horizontalHeaderItem(iColumn);
        if (m_ptableContacts->item(iRow, iColumn) == nullptr || pHeader == nullptr)
            continue;
        QString strValue = lstValues.value(iColumn);
        // The name alone is shown as it is: mark-up in a name takes effect.
        if (iColumn != 0) {
            strValue.replace(QLatin1Char('<'), QLatin1String("&lt;"));
            strValue.replace(QLatin1Char('>'), QLatin1String("&gt;"));
            strValue = CommonUtils::ParseAndCreateHyperLinks(strValue);
        }
        strValue.replace(QLatin1Char('\n'), QLatin1String("<BR>"));
        strText += pHeader->text() + QLatin1String(":  ") + strValue + QLatin1String("<BR>");
    }
    enableForPreview();
}

void AddrBookDlg::enableForPreview()
{
    const int iColumns = m_ptableContacts->columnCount();
    const int iSelectedRows = iColumns > 0 ? m_ptableContacts->selectedItems().size() / iColumns : 0;
    if (iSelectedRows == 1)
        enableItem(TOOL_EDIT);
    else
        disableItem(TOOL_EDIT);
    if (iSelectedRows == 1 && isOnline()) {
        enableItem(TOOL_CALL);
        updateTableCall(true);
    } else {
        disableItem(TOOL_CALL);
        updateTableCall(false);
    }
    if (iSelectedRows > 0) {
        enableItem(TOOL_DELETE);
        if (isOnline()) {
            enableItem(TOOL_SEND);
            updateTableSend(true);
        }
    }
}

void AddrBookDlg::OnTableItemSelectionChanged()
{
    disableItem(TOOL_IMPORT_MOE);
    disableItem(TOOL_IMPORT_MOO);
    enableOutlookMenu(false, TOOL_IMPORT_MOE);
    enableOutlookMenu(false, TOOL_IMPORT_MOO);
    switch (tableSelectionStatus()) {
    case ADDRBOOK_ENABLE_TABLE_NONE:
        if (m_plabelPreview != nullptr)
            showNoRecord();
        disableSelectionItems();
        break;
    case ADDRBOOK_ENABLE_TABLE_SINGLE:
        enableItem(TOOL_EDIT);
        enableItem(TOOL_DELETE);
        if (isOnline()) {
            enableItem(TOOL_SEND);
            enableItem(TOOL_CALL);
            updateTableSend(true);
            updateTableCall(true);
        }
        break;
    default:
        disableItem(TOOL_EDIT);
        enableItem(TOOL_DELETE);
        if (isOnline()) {
            enableItem(TOOL_SEND);
            disableItem(TOOL_CALL);
            updateTableSend(true);
            updateTableCall(false);
        }
        break;
    }
    if (m_ptableContacts != nullptr)
        OnTableClicked(m_ptableContacts->currentRow(), m_ptableContacts->currentColumn());
}
