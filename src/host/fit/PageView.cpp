#include "fit/PageView.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QStyle>

namespace
{

const int LEAST = 48; // in which one can still scroll

} // namespace

PageView::PageView(QWidget* pPage)
{
    setFrameShape(QFrame::NoFrame);
    // The keys are for what is on the page.
    setFocusPolicy(Qt::NoFocus);
    setWidget(pPage);
    // The ground is that of whatever the page lies on.
    pPage->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(OnFocusChanged(QWidget*, QWidget*)));
}

PageView* PageView::Of(const QWidget* pPage)
{
    const QWidget* const pViewport = pPage != nullptr ? pPage->parentWidget() : nullptr;
    return pViewport != nullptr ? qobject_cast<PageView*>(pViewport->parentWidget()) : nullptr;
}

int PageView::LeastWidth() const
{
    return widget()->minimumSizeHint().expandedTo(widget()->minimumSize()).width();
}

int PageView::LeastHeight(int iWidth) const
{
    const QWidget* pPage = widget();
    const QLayout* pLayout = pPage->layout();
    int iHeight = pPage->minimumSizeHint().height();
    if (pLayout != nullptr && pLayout->hasHeightForWidth()) {
        iHeight = pLayout->minimumHeightForWidth(iWidth);
    } else if (pLayout == nullptr) {
        iHeight = qMax(iHeight, pPage->heightForWidth(iWidth));
    }
    return qMax(iHeight, pPage->minimumHeight());
}

QSize PageView::sizeHint() const
{
    return widget()->sizeHint();
}

QSize PageView::minimumSizeHint() const
{
    return QSize(LEAST, LEAST);
}

void PageView::resizeEvent(QResizeEvent* pEvent)
{
    QScrollArea::resizeEvent(pEvent);
    fit();
}

// The page of a plug-in has no layout, and its own request comes here.
bool PageView::viewportEvent(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::LayoutRequest) {
        fit();
    }
    return QScrollArea::viewportEvent(pEvent);
}

bool PageView::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject == widget() && pEvent->type() == QEvent::LayoutRequest) {
        fit();
    }
    return QScrollArea::eventFilter(pObject, pEvent);
}

void PageView::OnFocusChanged(QWidget*, QWidget* pNew)
{
    if (pNew != nullptr && isVisible() && widget()->isAncestorOf(pNew)) {
        ensureWidgetVisible(pNew);
    }
}

// Each scroll bar takes room from the other direction.
void PageView::fit()
{
    const QSize room = maximumViewportSize();
    const int iBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int iLeastWidth = LeastWidth();
    QSize size = room;
    if (LeastHeight(qMax(room.width(), iLeastWidth)) > room.height()) {
        size.rwidth() -= iBar;
    }
    size.setWidth(qMax(size.width(), iLeastWidth));
    if (size.width() > room.width()) {
        size.rheight() -= iBar;
    }
    size.setHeight(qMax(size.height(), LeastHeight(size.width())));
    if (size != widget()->size()) {
        widget()->resize(size);
    }
}
