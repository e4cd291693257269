#ifndef ADDRBOOKUIPLUGIN_GRIDDELEGATE_H
#define ADDRBOOKUIPLUGIN_GRIDDELEGATE_H

#include <QItemDelegate>

// The delegates of this plug-in's views: none shows a dotted focus frame, and a text that is higher than its row is
// drawn as small as it must be. User-interface thread only.

// For the contact table and the table of phone numbers.
class GridDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit GridDelegate(QObject* pParent);

protected:
    // A number runs from left to right in either layout, at the side of the cell where texts begin.
    void drawDisplay(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& strText) const override;
    void drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect) const override;
};

// For the phonebook tree: its editor takes the name of a group.
class TreeDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit TreeDelegate(QObject* pParent);

    // The editor belongs to pParent. At most 32 characters; in a left-to-right layout also 32 pixels wide at most.
    QWidget* createEditor(QWidget* pParent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

protected:
    void drawDisplay(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& strText) const override;
    void drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect) const override;
};

// For the table of the dialog in which contacts are selected.
class SCDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit SCDelegate(QObject* pParent);

protected:
    void drawDisplay(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& strText) const override;
    void drawFocus(QPainter* pPainter, const QStyleOptionViewItem& option, const QRect& rect) const override;
};

#endif // ADDRBOOKUIPLUGIN_GRIDDELEGATE_H
