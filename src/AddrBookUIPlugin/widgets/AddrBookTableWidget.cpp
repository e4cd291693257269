#include "widgets/AddrBookTableWidget.h"

#include <QApplication>
#include <QColor>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QVariant>

#include <new>

#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "logic/ItemData.h"
#include "widgets/DragFormat.h"

namespace
{
const int EMPTY_MARGIN = 24;
} // namespace

AddrBookTableWidget::AddrBookTableWidget(int iRows, int iColumns, QWidget* pParent)
    : QTableWidget(iRows, iColumns, pParent), m_strDragData(QLatin1String(""))
{
    listenToRows();
}

AddrBookTableWidget::AddrBookTableWidget(QWidget* pParent) : QTableWidget(pParent), m_strDragData(QLatin1String(""))
{
    listenToRows();
}

void AddrBookTableWidget::listenToRows()
{
    connect(model(), SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(OnRowsChanged()));
    connect(model(), SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(OnRowsChanged()));
}

void AddrBookTableWidget::OnRowsChanged()
{
    const QString strDescription = rowCount() > 0 ? QString() : m_strEmptyText;
    if (strDescription != accessibleDescription())
        setAccessibleDescription(strDescription);
}

QModelIndexList AddrBookTableWidget::GetSelectedIndexes() const
{
    return selectedIndexes();
}

QString AddrBookTableWidget::dragData() const
{
    return dragDataOf(tableRowData(item(currentRow(), 0)));
}

QVariant AddrBookTableWidget::inputMethodQuery(Qt::InputMethodQuery enQuery) const
{
    QVariant answer = QTableWidget::inputMethodQuery(enQuery);
    // Qt gives the cell's place in the viewport and takes it for one in the table, which has a header above.
    if (answer.userType() == QMetaType::QRect)
        return answer.toRect().translated(viewport()->pos());
    return answer;
}

void AddrBookTableWidget::SetEmptyText(const QString& strText)
{
    if (strText == m_strEmptyText)
        return;
    m_strEmptyText = strText;
    OnRowsChanged();
    viewport()->update();
}

void AddrBookTableWidget::OnShortKeyDelContact()
{
    if (!selectedItems().isEmpty())
        emit deleteContact();
}

void AddrBookTableWidget::OnShortKeyEditContact()
{
    const QList<QTableWidgetSelectionRange> listRanges = selectedRanges();
    if (listRanges.size() == 1 && listRanges.first().rowCount() == 1)
        emit editContact();
}

void AddrBookTableWidget::OnDragTargetChanged(QWidget* pwidgetTarget)
{
    if (!CommonUtils::IsShuttingDown())
        emit dragTargetChanged(pwidgetTarget);
}

void AddrBookTableWidget::OnDragTargetObjectChanged(QObject* pTarget)
{
    OnDragTargetChanged(qobject_cast<QWidget*>(pTarget));
}

// True if the press was on the left half of a cell. Columns are counted by index and unscrolled, in either direction.
bool AddrBookTableWidget::pressStartsDrag() const
{
    const QTableWidgetItem* pitem = itemAt(m_ptPress);
    if (pitem == nullptr)
        return false;
    int iX = m_ptPress.x();
    if (QApplication::isRightToLeft())
        iX = width() - iX;
    for (int iColumn = 0; iColumn < pitem->column(); ++iColumn)
        iX -= columnWidth(iColumn);
    return iX <= columnWidth(pitem->column()) / 2;
}

// A row whose block cannot be read ends the text where it stands. The text names no memory: it can only hold rows of
// the one that the pressed row is of, though rows left over from another may be selected too.
QString AddrBookTableWidget::dragDataOf(const TableRowData* pPressed) const
{
    QString strData = QLatin1String("");
    const QList<QTableWidgetSelectionRange> listRanges = selectedRanges();
    for (const QTableWidgetSelectionRange& range : listRanges) {
        for (int iRow = range.topRow(); iRow <= range.bottomRow(); ++iRow) {
            const QTableWidgetItem* pitem = item(iRow, 0);
            if (pitem == nullptr)
                continue;
            const TableRowData* pData = tableRowData(pitem);
            if (pData == nullptr)
                return strData;
            if (pPressed != nullptr && pData->enType != pPressed->enType)
                continue;
            strData += QString::number(pData->iRecordID) + dragSeparator();
            strData += QString::number(pData->iGroupID) + dragSeparator();
        }
    }
    return strData;
}

void AddrBookTableWidget::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent == nullptr || CommonUtils::IsShuttingDown())
        return;
    m_ptPress = pEvent->pos();
    QAbstractItemView::mousePressEvent(pEvent);
    QTableWidgetItem* pitem = itemAt(m_ptPress);
    if (pitem == nullptr)
        return;
    // Whoever listens notes where a drag would come from, which must happen before one starts.
    emit itemClicked(pitem);
    if ((pEvent->buttons() & Qt::LeftButton) && pressStartsDrag())
        m_strDragData = dragDataOf(tableRowData(pitem));
}

void AddrBookTableWidget::mouseMoveEvent(QMouseEvent* pEvent)
{
    if (pEvent == nullptr)
        return;
    if ((pEvent->buttons() & Qt::LeftButton) && pressStartsDrag()) {
        if ((pEvent->pos() - m_ptPress).manhattanLength() >= QApplication::startDragDistance())
            startDragOfRows();
        return;
    }
    QAbstractItemView::mouseMoveEvent(pEvent);
}

// The table may be gone at its end.
void AddrBookTableWidget::startDragOfRows()
{
    QDrag* pDrag = new (std::nothrow) QDrag(this);
    QMimeData* pMimeData = new (std::nothrow) QMimeData;
    if (pDrag == nullptr || pMimeData == nullptr) {
        delete pDrag;
        delete pMimeData;
        return;
    }
    QtCompat::connectTargetChanged(pDrag, this, SLOT(OnDragTargetChanged(QWidget*)),
                                   SLOT(OnDragTargetObjectChanged(QObject*)));
    pMimeData->setData(dragIdsFormat(), QtCompat::toAscii(m_strDragData));
    pMimeData->setData(dragColourFormat(), QVariant(QColor(Qt::transparent)).toByteArray());
    pDrag->setMimeData(pMimeData);
    m_drag.Exec(pDrag, Qt::CopyAction | Qt::MoveAction);
}

void AddrBookTableWidget::mouseReleaseEvent(QMouseEvent* pEvent)
{
    if (pEvent == nullptr || CommonUtils::IsShuttingDown())
        return;
    QAbstractItemView::mouseReleaseEvent(pEvent);
    if (!indexAt(pEvent->pos()).isValid())
        emit emptyAreaRightClicked(pEvent->button() == Qt::RightButton);
}

// The second press ends like a release, so that Qt raises no double-click signals and opens no editor.
void AddrBookTableWidget::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    if (pEvent == nullptr || CommonUtils::IsShuttingDown())
        return;
    QAbstractItemView::mouseReleaseEvent(pEvent);
    if (indexAt(pEvent->pos()).isValid())
        emit mouseDoubleClicked();
}

void AddrBookTableWidget::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent == nullptr || CommonUtils::IsShuttingDown())
        return;
    const bool bCtrl = (QApplication::keyboardModifiers() & Qt::ControlModifier) != 0;
    switch (pEvent->key()) {
    case Qt::Key_Return:
        pEvent->accept();
        if (!selectedItems().isEmpty())
            emit editContact();
        break;
    case Qt::Key_S: // swallowed without Ctrl too, as is O
        pEvent->accept();
        if (bCtrl)
            emit importMOE();
        break;
    case Qt::Key_O:
        pEvent->accept();
        if (bCtrl)
            emit importMOO();
        break;
    default:
        QAbstractItemView::keyPressEvent(pEvent);
        break;
    }
}

void AddrBookTableWidget::paintEvent(QPaintEvent* pEvent)
{
    QTableWidget::paintEvent(pEvent);
    if (rowCount() > 0 || m_strEmptyText.isEmpty())
        return;
    QPainter painter(viewport());
    QColor colour = palette().color(QPalette::Text);
    colour.setAlphaF(0.7);
    painter.setPen(colour);
    painter.drawText(viewport()->rect().adjusted(EMPTY_MARGIN, EMPTY_MARGIN, -EMPTY_MARGIN, -EMPTY_MARGIN),
                     static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap), m_strEmptyText);
}
