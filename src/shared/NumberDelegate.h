#ifndef LINKHAND_SHARED_NUMBERDELEGATE_H
#define LINKHAND_SHARED_NUMBERDELEGATE_H

#include <QStyle>
#include <QStyledItemDelegate>

// Draws phone numbers from left to right also where the rest runs the other way: there a plus sign would stand behind
// its number. The number keeps its side of the column.
class NumberDelegate : public QStyledItemDelegate
{
public:
    explicit NumberDelegate(QObject* pParent) : QStyledItemDelegate(pParent) {}

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(pOption, index);
        pOption->displayAlignment = QStyle::visualAlignment(pOption->direction, pOption->displayAlignment);
        pOption->direction = Qt::LeftToRight;
    }
};

#endif // LINKHAND_SHARED_NUMBERDELEGATE_H
