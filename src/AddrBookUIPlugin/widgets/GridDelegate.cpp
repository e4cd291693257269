#include "widgets/GridDelegate.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPen>
#include <QStyle>

#include "logic/Texts.h"

namespace
{
const int MAX_GROUP_NAME = 32; // characters, and pixels as well

// In place of the focus rectangle a pen is set, and nothing is drawn with it.
void setFocusPen(QPainter* pPainter, const QStyleOptionViewItem& option)
{
    if (pPainter != nullptr && (option.state & QStyle::State_HasFocus))
        pPainter->setPen(QPen(QBrush(Qt::white), 0));
}
} // namespace

GridDelegate::GridDelegate(QObject* pParent) : QItemDelegate(pParent) {}

void GridDelegate::drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect&) const
{
    setFocusPen(pPainter, option);
}

void GridDelegate::drawDisplay(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect,
                               const QString& strText) const
{
    // Otherwise the plus sign of a number would stand behind it, and the dots for a cut off end in front of the text.
    if (option.direction != Qt::RightToLeft || strText.isRightToLeft()) {
        QItemDelegate::drawDisplay(pPainter, option, rect, strText);
        return;
    }
    QStyleOptionViewItem leftToRight(option);
    leftToRight.displayAlignment = QStyle::visualAlignment(option.direction, option.displayAlignment);
    leftToRight.direction = Qt::LeftToRight;
    QItemDelegate::drawDisplay(pPainter, leftToRight, rect, strText);
}

TreeDelegate::TreeDelegate(QObject* pParent) : QItemDelegate(pParent) {}

void TreeDelegate::drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect&) const
{
    setFocusPen(pPainter, option);
}

QWidget* TreeDelegate::createEditor(QWidget* pParent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    QWidget* pwidgetEditor = QItemDelegate::createEditor(pParent, option, index);
    QLineEdit* peditName = qobject_cast<QLineEdit*>(pwidgetEditor);
    if (peditName == nullptr)
        return pwidgetEditor;
    peditName->setMaxLength(MAX_GROUP_NAME);
    peditName->setAccessibleName(addrBookTr(QLatin1String("IDS_EDIT_GROUP")));
    if (QApplication::isLeftToRight())
        peditName->setMaximumWidth(MAX_GROUP_NAME);
    return peditName;
}

SCDelegate::SCDelegate(QObject* pParent) : QItemDelegate(pParent) {}

void SCDelegate::drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect&) const
{
    setFocusPen(pPainter, option);
}
