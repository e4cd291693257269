#include "logic/Log.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/TableRows.h"

void AddrBookDlg::OnShowHideSearchBox()
{
    m_bSearchBoxShown = !m_bSearchBoxShown;
    if (m_bSearchBoxShown)
        showSearchBox();
    else
        hideSearchBox();
}

void AddrBookDlg::showSearchBox()
{
    ToolBarLogic::ShowHideSearchBox(m_pwidgetToolBar, m_phlayoutToolBar, m_plineeditSearch, true);
}

void AddrBookDlg::hideSearchBox()
{
    ToolBarLogic::ShowHideSearchBox(m_pwidgetToolBar, m_phlayoutToolBar, m_plineeditSearch, false);
    if (m_plineeditSearch != nullptr && !m_plineeditSearch->text().isEmpty())
        OnTextEdited(QLatin1String(""));
}

void AddrBookDlg::OnTextEdited(const QString& strEditedText)
{
    ADDRBOOK_LOG_ENTER();
    const bool bNarrows = !strEditedText.isEmpty() && strEditedText.contains(m_strSearchText, Qt::CaseSensitive);
    if (bNarrows) {
        m_search.Narrow(strEditedText);
        updateTable(strEditedText);
    } else if (m_ptreePhonebook != nullptr) {
        reloadForSearch(m_ptreePhonebook->currentItem(), strEditedText);
    }
    m_strSearchText = strEditedText;
    if (bNarrows)
        showEmptyText();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::reloadForSearch(QTreeWidgetItem* pitem, const QString& strText)
{
    const AddrBookThread* pBefore = m_pthreadRead;
    m_pitemCurrentTreeWidgetItem = nullptr;
    m_enReadMode = ADDRBOOK_OP_SEARCH;
    UpdateTableRecords(pitem);
    // Behind the start of the reader: its first row is taken only by the event loop. A node without records of its own,
    // such as a group that has no name yet, starts none.
    if (m_pthreadRead != pBefore)
        m_search = TableSearch::Reloading(strText);
    else
        m_enReadMode = ADDRBOOK_OP_NONE;
}

// What an empty table says depends on why it is empty.
void AddrBookDlg::showEmptyText()
{
    if (m_ptableContacts == nullptr)
        return;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    const char* szId = iGroupId > 0 ? "IDS_EMPTY_GROUP" : "IDS_EMPTY_MEMORY";
    if (m_pthreadRead != nullptr && m_pthreadRead->HasReadFailed())
        szId = "IDS_READ_FAILED";
    if (m_bSearchBoxShown && !m_search.Text().isEmpty())
        szId = "IDS_EMPTY_SEARCH";
    m_ptableContacts->SetEmptyText(tr(QLatin1String(szId)));
}

void AddrBookDlg::updateTable(const QString& strText)
{
    TableRows::narrow(m_ptableContacts, strText);
}
