#ifndef LINKHAND_SHARED_WRAPLAYOUT_H
#define LINKHAND_SHARED_WRAPLAYOUT_H

#include <QLayout>
#include <QList>
#include <QSpacerItem>
#include <QStyle>
#include <QWidget>

// A row that goes on in further lines where it has no room beside one another: large letters and long words must not
// cut its buttons off. What can grow shares what is left of its line. User-interface thread only.
class WrapLayout : public QLayout
{
public:
    WrapLayout() { setContentsMargins(0, 0, 0, 0); }
    explicit WrapLayout(QWidget* pParent) : QLayout(pParent) {}
    ~WrapLayout() override { qDeleteAll(m_listItems); }

    // Keeps what follows at the end of its line.
    void AddStretch() { addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum)); }

    void addItem(QLayoutItem* pItem) override
    {
        m_listItems.append(pItem);
        invalidate();
    }
    QLayoutItem* itemAt(int iIndex) const override { return m_listItems.value(iIndex); }
    QLayoutItem* takeAt(int iIndex) override
    {
        return iIndex >= 0 && iIndex < m_listItems.size() ? m_listItems.takeAt(iIndex) : nullptr;
    }
    int count() const override { return int(m_listItems.size()); }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int iWidth) const override
    {
        const QMargins margins = contentsMargins();
        return arrange(QRect(0, 0, iWidth - margins.left() - margins.right(), 0), false) + margins.top() +
               margins.bottom();
    }

    // All in one line.
    QSize sizeHint() const override
    {
        QSize size(0, 0);
        foreach (const QLayoutItem* pItem, shown()) {
            size.rwidth() += pItem->sizeHint().width() + (size.width() > 0 && !isGap(pItem) ? gap() : 0);
            size.setHeight(qMax(size.height(), pItem->sizeHint().height()));
        }
        return withMargins(size);
    }

    // The widest alone in its line.
    QSize minimumSize() const override
    {
        QSize size(0, 0);
        foreach (const QLayoutItem* pItem, shown()) {
            size = size.expandedTo(pItem->minimumSize());
        }
        return withMargins(size);
    }

    void setGeometry(const QRect& rect) override
    {
        QLayout::setGeometry(rect);
        const QMargins margins = contentsMargins();
        arrange(rect.adjusted(margins.left(), margins.top(), -margins.right(), -margins.bottom()), true);
    }

private:
    static bool isGap(const QLayoutItem* pItem) { return const_cast<QLayoutItem*>(pItem)->spacerItem() != nullptr; }

    static bool isGrowing(const QLayoutItem* pItem) { return (pItem->expandingDirections() & Qt::Horizontal) != 0; }

    int gap() const { return qMax(0, spacing()); }

    QSize withMargins(const QSize& size) const
    {
        const QMargins margins = contentsMargins();
        return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
    }

    QList<QLayoutItem*> shown() const
    {
        QList<QLayoutItem*> listShown;
        foreach (QLayoutItem* pItem, m_listItems) {
            if (isGap(pItem) || !pItem->isEmpty()) {
                listShown.append(pItem);
            }
        }
        return listShown;
    }

    // The height of all lines.
    int arrange(const QRect& rect, bool bPlace) const
    {
        const QList<QLayoutItem*> listItems = shown();
        QList<QLayoutItem*> listLine;
        int iTop = rect.top();
        int iUsed = 0;
        foreach (QLayoutItem* pItem, listItems) {
            const int iNeeds =
                isGap(pItem) ? 0 : qMin(pItem->sizeHint().width(), rect.width()) + (iUsed > 0 ? gap() : 0);
            if (iUsed > 0 && iUsed + iNeeds > rect.width()) {
                iTop += placeLine(listLine, QRect(rect.left(), iTop, rect.width(), 0), rect, bPlace) + gap();
                listLine.clear();
                iUsed = qMin(pItem->sizeHint().width(), rect.width());
            } else {
                iUsed += iNeeds;
            }
            listLine.append(pItem);
        }
        return iTop + placeLine(listLine, QRect(rect.left(), iTop, rect.width(), 0), rect, bPlace) - rect.top();
    }

    // The height of the line.
    int placeLine(const QList<QLayoutItem*>& listLine, const QRect& line, const QRect& rect, bool bPlace) const
    {
        int iHeight = 0;
        int iUsed = 0;
        int iGrowing = 0;
        foreach (const QLayoutItem* pItem, listLine) {
            iHeight = qMax(iHeight, pItem->sizeHint().height());
            iUsed += isGap(pItem) ? 0 : qMin(pItem->sizeHint().width(), line.width()) + (iUsed > 0 ? gap() : 0);
            iGrowing += isGrowing(pItem) ? 1 : 0;
        }
        int iLeft = line.left();
        int iRest = qMax(0, line.width() - iUsed);
        foreach (QLayoutItem* pItem, bPlace ? listLine : QList<QLayoutItem*>()) {
            int iWidth = qMin(pItem->sizeHint().width(), line.width());
            if (isGrowing(pItem)) {
                const int iShare = iRest / iGrowing--;
                iRest -= iShare;
                iWidth += iShare;
            }
            const QRect place(iLeft, line.top(), iWidth, iHeight);
            const QWidget* pParent = parentWidget();
            const Qt::LayoutDirection enDirection = pParent != nullptr ? pParent->layoutDirection() : Qt::LeftToRight;
            pItem->setGeometry(QStyle::visualRect(enDirection, rect, place));
            iLeft += iWidth + (isGap(pItem) ? 0 : gap());
        }
        return iHeight;
    }

    QList<QLayoutItem*> m_listItems;
};

#endif // LINKHAND_SHARED_WRAPLAYOUT_H
