#include "dialogs/FieldMapTables.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <new>

#include "linkhand/QtCompat.h"
#include "logic/Log.h"

namespace
{
const int MAPPED_COLUMN = 1;

// The columns take the whole width, so that the frame lies on the rows like their grid.
void drawGridFrame(QTableWidget* pTable)
{
    QStyleOptionViewItem option;
    option.initFrom(pTable);
    const int iColour = pTable->style()->styleHint(QStyle::SH_Table_GridLineColor, &option, pTable);
    QPainter painter(pTable->viewport());
    painter.setPen(QColor::fromRgb(static_cast<QRgb>(iColour)));
    painter.drawRect(pTable->viewport()->rect().adjusted(0, -1, -1, -1));
}
} // namespace

FieldMapTable1Widget::FieldMapTable1Widget(int iRows, int iColumns, QWidget* pParent)
    : QTableWidget(iRows, iColumns, pParent), m_pDrag(nullptr), m_pMimeData(nullptr)
{
}

FieldMapTable1Widget::FieldMapTable1Widget(QWidget* pParent)
    : QTableWidget(pParent), m_pDrag(nullptr), m_pMimeData(nullptr)
{
}

// Every press prepares the other table for a drop, also one on the row that is selected already.
void FieldMapTable1Widget::mousePressEvent(QMouseEvent* pEvent)
{
    QTableWidget::mousePressEvent(pEvent);
    emit itemSelectionChanged();
}

void FieldMapTable1Widget::mouseMoveEvent(QMouseEvent* pEvent)
{
    if ((pEvent->buttons() & Qt::LeftButton) == 0) {
        ADDRBOOK_LOG("not a left button");
        return;
    }
    // Nobody may hold the button any more, and a drag that nobody can end would begin.
    if (!QtCompat::isMouseMoved(*pEvent))
        return;
    if (dragSelection())
        QAbstractItemView::mouseMoveEvent(pEvent);
}

// False if there was no drag, or if the table went while it ran.
bool FieldMapTable1Widget::dragSelection()
{
    m_pDrag = new (std::nothrow) QDrag(this);
    m_pMimeData = new (std::nothrow) QMimeData;
    if (m_pDrag == nullptr || m_pMimeData == nullptr) {
        delete m_pDrag;
        delete m_pMimeData;
        m_pDrag = nullptr;
        m_pMimeData = nullptr;
        return false;
    }
    QString strText;
    const QList<QTableWidgetItem*> listSelected = selectedItems();
    for (const QTableWidgetItem* pitem : listSelected)
        strText += pitem->text();
    m_pMimeData->setText(strText);
    m_pDrag->setMimeData(m_pMimeData);
    if (!m_drag.Exec(m_pDrag, Qt::CopyAction | Qt::MoveAction))
        return false;
    m_pDrag = nullptr; // Qt's to delete
    m_pMimeData = nullptr;
    return true;
}

FieldMapTable2Widget::FieldMapTable2Widget(int iRows, int iColumns, QWidget* pParent)
    : QTableWidget(iRows, iColumns, pParent), m_strDropText(QLatin1String(""))
{
}

FieldMapTable2Widget::FieldMapTable2Widget(QWidget* pParent) : QTableWidget(pParent), m_strDropText(QLatin1String(""))
{
}

void FieldMapTable2Widget::dragEnterEvent(QDragEnterEvent* pEvent)
{
    if (!pEvent->mimeData()->hasFormat(QLatin1String("text/plain")))
        return;
    pEvent->acceptProposedAction();
    pEvent->accept();
}

void FieldMapTable2Widget::dragMoveEvent(QDragMoveEvent* pEvent)
{
    pEvent->accept();
}

// The cell under the drop is told by the mouse's next movement, not by the drop.
void FieldMapTable2Widget::dropEvent(QDropEvent* pEvent)
{
    m_strDropText = pEvent->mimeData()->text();
    pEvent->accept();
    QTableWidget::dropEvent(pEvent);
}

void FieldMapTable2Widget::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent == nullptr)
        return;
    if (pEvent->key() == Qt::Key_Delete) {
        const int iRow = currentRow();
        if (QTableWidgetItem* pitem = iRow < 0 ? nullptr : takeItem(iRow, MAPPED_COLUMN)) {
            pitem->setText(QLatin1String(" "));
            setItem(iRow, MAPPED_COLUMN, pitem);
        }
        pEvent->accept();
    }
    QAbstractItemView::keyPressEvent(pEvent);
}

void FieldMapTable1Widget::paintEvent(QPaintEvent* pEvent)
{
    QTableWidget::paintEvent(pEvent);
    drawGridFrame(this);
}

void FieldMapTable2Widget::paintEvent(QPaintEvent* pEvent)
{
    QTableWidget::paintEvent(pEvent);
    drawGridFrame(this);
}
