#include "window/CopyKeys.h"

#include <QApplication>
#include <QColor>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QTableWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVariant>

#include "text/HostText.h"
#include "window/PhonebookParts.h"

namespace
{

QTreeWidgetItem* rootOf(QTreeWidgetItem* pItem)
{
    while (pItem != nullptr && pItem->parent() != nullptr) {
        pItem = pItem->parent();
    }
    return pItem;
}

// What lies in a group stands behind it.
QString indentOf(const QTreeWidgetItem* pItem)
{
    int iDepth = 0;
    for (const QTreeWidgetItem* pAbove = pItem->parent(); pAbove != nullptr; pAbove = pAbove->parent()) {
        ++iDepth;
    }
    return QString(4 * qMax(0, iDepth - 1), QLatin1Char(' '));
}

QList<QTreeWidgetItem*> nodesOf(QTreeWidget* pTree)
{
    QList<QTreeWidgetItem*> listNodes;
    for (QTreeWidgetItemIterator it(pTree); *it != nullptr; ++it) {
        listNodes.append(*it);
    }
    return listNodes;
}

// Below the row that the keys are on, at its beginning.
QPoint placeFor(const QMenu& menu, const QTableWidget& table)
{
    const QTableWidgetItem* const pItem = table.item(qMax(table.currentRow(), 0), 0);
    const QRect cell = table.visualItemRect(pItem) & table.viewport()->rect();
    const QPoint below =
        table.isRightToLeft() ? cell.bottomRight() - QPoint(menu.sizeHint().width(), 0) : cell.bottomLeft();
    return table.viewport()->mapToGlobal(below);
}

} // namespace

const char* const CopyKeys::KEY = "Ctrl+D";

CopyKeys::CopyKeys(QWidget& page) : m_page(page)
{
    QShortcut* const pKey = new QShortcut(QKeySequence(QLatin1String(KEY)), &m_page);
    pKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(pKey, SIGNAL(activated()), this, SLOT(OnCopy()));
}

void CopyKeys::OnCopy()
{
    QTreeWidget* const pTree = PhonebookParts::Tree(m_page);
    const QTableWidget* const pTable = PhonebookParts::Table(m_page);
    if (pTree == nullptr || pTable == nullptr || pTable->selectedItems().isEmpty() || !PhonebookParts::IsRead(m_page)) {
        return;
    }
    QMenu menu(&m_page);
    menu.setObjectName(QLatin1String("linkhand_CopyMenu"));
    menu.setAccessibleName(HostText::Get("IDS_HOST_HELP_COPY_TO"));
    fill(menu, pTree);
    if (menu.actions().isEmpty()) {
        return;
    }
    menu.setActiveAction(menu.actions().first());
    const QAction* const pChosen = menu.exec(placeFor(menu, *pTable));
    // Nodes may have gone while the menu was open.
    QTreeWidgetItem* const pTarget =
        pChosen != nullptr ? nodesOf(pTree).value(pChosen->data().toInt(), nullptr) : nullptr;
    if (pTarget != nullptr && pTarget->text(0) == pChosen->toolTip()) {
        drop(pTarget);
    }
}

// Copied from a group to the memory that it lies in, a contact would stay as it is.
void CopyKeys::fill(QMenu& menu, QTreeWidget* pTree)
{
    QTreeWidgetItem* const pSource = pTree->currentItem();
    const QList<QTreeWidgetItem*> listNodes = nodesOf(pTree);
    for (int i = 0; i < listNodes.size(); ++i) {
        QTreeWidgetItem* const pNode = listNodes.at(i);
        if (pNode == pSource || pNode == rootOf(pSource) || pNode->isHidden()) {
            continue;
        }
        const QString strText = pNode->text(0);
        QAction* const pAction =
            menu.addAction(indentOf(pNode) + QString(strText).replace(QLatin1Char('&'), QLatin1String("&&")));
        pAction->setIcon(pNode->icon(0));
        pAction->setToolTip(strText);
        pAction->setData(i);
    }
}

void CopyKeys::drop(QTreeWidgetItem* pTarget)
{
    QTreeWidget* const pTree = PhonebookParts::Tree(m_page);
    QTableWidget* const pTable = PhonebookParts::Table(m_page);
    // With this the window notes where contacts come from.
    QMetaObject::invokeMethod(pTable, "itemClicked", Q_ARG(QTableWidgetItem*, pTable->item(pTable->currentRow(), 0)));
    QMimeData rows;
    rows.setData(QLatin1String("Text/stringids"), pTable->property("dragData").toString().toLatin1());
    rows.setData(QLatin1String("Text/colordata"), QVariant(QColor(Qt::transparent)).toByteArray());
    pTree->scrollToItem(pTarget);
    const QPoint place = pTree->visualItemRect(pTarget).center();
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QWidget* const pViewport = pTree->viewport();
    QDragEnterEvent enter(place, actions, &rows, Qt::LeftButton, Qt::ControlModifier);
    QApplication::sendEvent(pViewport, &enter);
    QDragMoveEvent hover(place, actions, &rows, Qt::LeftButton, Qt::ControlModifier);
    QApplication::sendEvent(pViewport, &hover);
    if (hover.isAccepted()) {
        QDropEvent event(place, actions, &rows, Qt::LeftButton, Qt::ControlModifier);
        QApplication::sendEvent(pViewport, &event);
    } else {
        QDragLeaveEvent leave;
        QApplication::sendEvent(pViewport, &leave);
        QApplication::beep(); // it is full
    }
}
