#include "widgets/GridDelegate.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPen>
#include <QStyle>

#include "logic/Texts.h"
#include "widgets/RowFont.h"

namespace
{
const int MAX_GROUP_NAME = 32; // characters, and pixels as well

// In place of the focus rectangle a pen is set, and nothing is drawn with it.
void setFocusPen(QPainter* pPainter, const QStyleOptionViewItem& option)
{
    if (pPainter != nullptr && (option.state & QStyle::State_HasFocus))
        pPainter->setPen(QPen(QBrush(Qt::white), 0));
}

// Rows keep their height whatever the user's letters are. Most cells of a view are of one font and one height.
QStyleOptionViewItem fittedToRow(const QStyleOptionViewItem& option)
{
    static QFont s_font;
    static QFont s_fitting;
    static int s_iHeight = -1;
    if (option.rect.height() <= 0)
        return option;
    if (s_iHeight != option.rect.height() || s_font != option.font) {
        s_font = option.font;
        s_iHeight = option.rect.height();
        s_fitting = fontFitting(s_font, s_iHeight);
    }
    QStyleOptionViewItem fitted(option);
    fitted.font = s_fitting;
    fitted.fontMetrics = QFontMetrics(s_fitting);
    return fitted;
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
    QStyleOptionViewItem fitted = fittedToRow(option);
    // Otherwise the plus sign of a number would stand behind it, and the dots for a cut off end in front of the text.
    if (option.direction == Qt::RightToLeft && !strText.isRightToLeft()) {
        fitted.displayAlignment = QStyle::visualAlignment(option.direction, option.displayAlignment);
        fitted.direction = Qt::LeftToRight;
    }
    QItemDelegate::drawDisplay(pPainter, fitted, rect, strText);
}

TreeDelegate::TreeDelegate(QObject* pParent) : QItemDelegate(pParent) {}

void TreeDelegate::drawDisplay(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect,
                               const QString& strText) const
{
    QItemDelegate::drawDisplay(pPainter, fittedToRow(option), rect, strText);
}

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
    peditName->setFont(fontFitting(option.font, option.rect.height()));
    peditName->setAccessibleName(addrBookTr(QLatin1String("IDS_EDIT_GROUP")));
    if (QApplication::isLeftToRight())
        peditName->setMaximumWidth(MAX_GROUP_NAME);
    return peditName;
}

SCDelegate::SCDelegate(QObject* pParent) : QItemDelegate(pParent) {}

void SCDelegate::drawDisplay(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect,
                             const QString& strText) const
{
    QItemDelegate::drawDisplay(pPainter, fittedToRow(option), rect, strText);
}

void SCDelegate::drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect&) const
{
    setFocusPen(pPainter, option);
}
