#ifndef LINKHAND_HOST_PAGEVIEW_H
#define LINKHAND_HOST_PAGEVIEW_H

#include <QScrollArea>

// Shows a page as large as the place that there is, and where that is too small for its controls, with scroll bars.
// What gets the keyboard comes into sight. The page belongs to the view.
class PageView : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageView(QWidget* pPage);

    // The view that shows a page; null for a widget that lies in none.
    static PageView* Of(const QWidget* pPage);

    // The least width at which nothing is cut off, without a scroll bar.
    int LeastWidth() const;

    // The least height at this width.
    int LeastHeight(int iWidth) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    bool viewportEvent(QEvent* pEvent) override;
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private slots:
    void OnFocusChanged(QWidget* pOld, QWidget* pNew);

private:
    void fit();
};

#endif // LINKHAND_HOST_PAGEVIEW_H
