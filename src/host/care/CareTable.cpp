#include "care/CareTable.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QPainter>
#include <QSet>

#include <algorithm>

#include "linkhand/QtCompat.h"

CareRows::CareRows(int iColumns, QObject* pParent) : QAbstractTableModel(pParent), m_iColumns(iColumns) {}

void CareRows::SetTitles(const QStringList& lstTitles)
{
    m_lstTitles = lstTitles;
    emit headerDataChanged(Qt::Horizontal, 0, m_iColumns - 1);
}

void CareRows::SetRows(const QList<CareRow>& listRows)
{
    beginResetModel();
    m_listRows = listRows;
    filter();
    endResetModel();
}

void CareRows::SetSearch(const QString& strSearch)
{
    beginResetModel();
    m_lstWords = strSearch.simplified().split(QLatin1Char(' '));
    filter();
    endResetModel();
}

int CareRows::RowOf(int iId) const
{
    for (int i = 0; i < m_listShown.size(); ++i) {
        if (IdAt(i) == iId) {
            return i;
        }
    }
    return -1;
}

int CareRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_listShown.size());
}

int CareRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_iColumns;
}

QVariant CareRows::data(const QModelIndex& index, int iRole) const
{
    if (!index.isValid() || (iRole != Qt::DisplayRole && iRole != Qt::ToolTipRole)) {
        return QVariant();
    }
    return m_listRows.at(m_listShown.at(index.row())).lstCells.value(index.column());
}

QVariant CareRows::headerData(int iSection, Qt::Orientation enOrientation, int iRole) const
{
    if (enOrientation != Qt::Horizontal || iRole != Qt::DisplayRole) {
        return QVariant();
    }
    return m_lstTitles.value(iSection);
}

// Each word, in any of the cells.
bool CareRows::matches(const CareRow& row) const
{
    foreach (const QString& strWord, m_lstWords) {
        bool bFound = strWord.isEmpty();
        for (int i = 0; i < row.lstCells.size() && !bFound; ++i) {
            bFound = row.lstCells.at(i).contains(strWord, Qt::CaseInsensitive);
        }
        if (!bFound) {
            return false;
        }
    }
    return true;
}

void CareRows::filter()
{
    m_listShown.clear();
    for (int i = 0; i < m_listRows.size(); ++i) {
        if (matches(m_listRows.at(i))) {
            m_listShown.append(i);
        }
    }
}

CareTable::CareTable(const char* pszName, int iColumns, QWidget* pParent)
    : QTreeView(pParent), m_pRows(new CareRows(iColumns, this)), m_bFilled(false)
{
    setObjectName(QLatin1String(pszName));
    setModel(m_pRows);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Tab leaves the list.
    setTabKeyNavigation(false);
}

void CareTable::SetRows(const QList<CareRow>& listRows)
{
    const QList<int> listIds = SelectedIds();
    const int iCurrent = currentId();
    m_pRows->SetRows(listRows);
    restore(listIds, iCurrent);
}

QList<int> CareTable::SelectedIds() const
{
    QList<int> listRows;
    foreach (const QModelIndex& index, selectionModel()->selectedRows()) {
        listRows.append(index.row());
    }
    std::sort(listRows.begin(), listRows.end());
    QList<int> listIds;
    foreach (const int iRow, listRows) {
        listIds.append(m_pRows->IdAt(iRow));
    }
    return listIds;
}

void CareTable::Select(int iId)
{
    const int iRow = m_pRows->RowOf(iId);
    if (iRow >= 0) {
        setCurrentIndex(m_pRows->index(iRow, 0));
    }
}

void CareTable::SizeColumns(const QStringList& lstWidest)
{
    ensurePolished();
    header()->ensurePolished();
    for (int i = 0; i < m_pRows->columnCount(); ++i) {
        int iLeast = columnWidth(i);
        if (!lstWidest.value(i).isEmpty()) {
            iLeast = QtCompat::textWidth(fontMetrics(), lstWidest.at(i)) + fontMetrics().height();
        }
        setColumnWidth(i, qMax(iLeast, header()->sectionSizeHint(i)));
    }
}

void CareTable::SetSearch(const QString& strSearch)
{
    const QList<int> listIds = SelectedIds();
    const int iCurrent = currentId();
    m_pRows->SetSearch(strSearch);
    restore(listIds, iCurrent);
}

void CareTable::paintEvent(QPaintEvent* pEvent)
{
    QTreeView::paintEvent(pEvent);
    if (m_bFilled && m_pRows->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, m_strEmpty);
    }
}

void CareTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    emit chosen();
}

// A list with one choice always has one.
void CareTable::restore(const QList<int>& listIds, int iCurrent)
{
    const bool bOne = selectionMode() == QAbstractItemView::SingleSelection;
    const int iRow = qMax(m_pRows->RowOf(iCurrent), 0);
    if (iRow < m_pRows->rowCount()) {
        selectionModel()->setCurrentIndex(m_pRows->index(iRow, 0),
                                          bOne ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                               : QItemSelectionModel::NoUpdate);
    }
    QSet<int> setIds;
    foreach (const int iId, listIds) {
        setIds.insert(iId);
    }
    QItemSelection selection;
    for (int i = 0; !bOne && !setIds.isEmpty() && i < m_pRows->rowCount(); ++i) {
        if (setIds.contains(m_pRows->IdAt(i))) {
            selection.select(m_pRows->index(i, 0), m_pRows->index(i, m_pRows->columnCount() - 1));
        }
    }
    if (!selection.isEmpty()) {
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    emit chosen();
}

int CareTable::currentId() const
{
    const int iRow = currentIndex().row();
    return iRow >= 0 && iRow < m_pRows->rowCount() ? m_pRows->IdAt(iRow) : 0;
}
