#include "linkhand/core/ExtendDialog.h"

#include <QEvent>
#include <QPointer>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"

namespace
{
// The content brings margins of its own; the frame adds a little air around it.
const int s_iFrameMargin = 6;

// Nobody knows the window manager's frame before it has made one.
const int s_iBorder = 6;

// Where something of this size has its corner to lie inside; the left upper part of what is larger than its place.
QPoint cornerInside(const QPoint& point, const QSize& size, const QRect& rectPlace)
{
    const QPoint last =
        rectPlace.topLeft() + QPoint(rectPlace.width() - size.width(), rectPlace.height() - size.height());
    return QPoint(qMax(rectPlace.left(), qMin(point.x(), last.x())), qMax(rectPlace.top(), qMin(point.y(), last.y())));
}
} // namespace

// Watches for the dialog that comes up, as a form of a fixed size may be larger than a small screen, and for what its
// content needs from then on.
class ExtendDialogPrivate : public QObject
{
public:
    explicit ExtendDialogPrivate(QDialog& dialog) : pLayout(nullptr), m_dialog(dialog)
    {
        m_dialog.installEventFilter(this);
    }

    bool eventFilter(QObject* pObject, QEvent* pEvent) override
    {
        if (pObject == &m_dialog && pEvent->type() == QEvent::Show && !pEvent->spontaneous() && !pContent.isNull())
            fitScreen();
        else if (pObject == &m_dialog && pEvent->type() == QEvent::LayoutRequest && m_dialog.isVisible())
            growShown();
        return QObject::eventFilter(pObject, pEvent);
    }

    void takeContent()
    {
        if (!pScroll.isNull()) {
            pScroll->takeWidget();
            delete pScroll.data();
        } else if (!pContent.isNull()) {
            pLayout->removeWidget(pContent);
        }
    }

    QVBoxLayout* pLayout;
    QPointer<QWidget> pContent;

private:
    QRect room() const
    {
        const QWidget* pNear = m_dialog.parentWidget() != nullptr ? m_dialog.parentWidget()->window() : &m_dialog;
        const int iTitle = m_dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &m_dialog);
        // A window manager may take a place for that of the frame, or for that of what is in it.
        return QtCompat::availableGeometry(pNear).adjusted(s_iBorder, iTitle + s_iBorder, -s_iBorder,
                                                           -iTitle - s_iBorder);
    }

    // Nothing happens where there is room enough. A smallest size is a wish; what the content itself needs is not.
    void fitScreen()
    {
        const QRect rectRoom = room();
        const bool bFixed = m_dialog.minimumSize() == m_dialog.maximumSize();
        const QSize sizeBefore = m_dialog.size();
        if (!bFixed && pScroll.isNull())
            growToContent(rectRoom.width());
        if (!fits(m_dialog.size(), rectRoom.size()))
            shrink(rectRoom, bFixed);
        if (m_dialog.testAttribute(Qt::WA_Moved))
            moveInside(rectRoom, m_dialog.size() != sizeBefore);
    }

    // What is shown later, such as a line more, may be higher than what the content has left. Where lines do not break,
    // the layout makes the dialog larger by itself.
    void growShown()
    {
        if (pContent.isNull() || !pScroll.isNull() || m_dialog.minimumSize() == m_dialog.maximumSize())
            return;
        needContent();
        const QSize sizeLeast = leastSize(m_dialog.width());
        const QRect rectRoom = room();
        const QRect rectScreen = QtCompat::availableGeometry(&m_dialog);
        if (!fits(sizeLeast, rectRoom.size())) {
            // One that fills the screen has no frame's room to leave.
            if (fits(sizeLeast, m_dialog.size()) && fits(m_dialog.frameGeometry().size(), rectScreen.size()))
                return;
            scroll(rectRoom.size(), false);
        } else if (!fits(sizeLeast, m_dialog.size())) {
            m_dialog.resize(m_dialog.size().expandedTo(sizeLeast));
        } else {
            return;
        }
        // The frame has been there for a while: its own place counts.
        const QRect rectFrame = m_dialog.frameGeometry();
        const QPoint inside = cornerInside(rectFrame.topLeft(), rectFrame.size(), rectScreen);
        if (inside != rectFrame.topLeft())
            m_dialog.move(inside);
    }

    void shrink(const QRect& rectRoom, bool bFixed)
    {
        if (!bFixed) {
            pContent->setMinimumSize(0, 0);
            m_dialog.setMinimumSize(0, 0);
            pLayout->invalidate();
            pLayout->activate();
        }
        const QSize size = m_dialog.size().boundedTo(rectRoom.size());
        if (bFixed || !fits(leastSize(size.width()), rectRoom.size()))
            scroll(rectRoom.size(), bFixed);
        else
            m_dialog.resize(size);
    }

    // With large letters the content needs more than somebody thought of, and lines that break are higher where they
    // are shorter.
    void growToContent(int iWidest)
    {
        needContent();
        const int iWidth = qMax(m_dialog.width(), pLayout->totalMinimumSize().width());
        m_dialog.resize(m_dialog.size().expandedTo(leastSize(qMin(iWidth, iWidest))));
    }

    void needContent()
    {
        pContent->setMinimumSize(pContent->minimumSize().expandedTo(pContent->minimumSizeHint()));
        pLayout->invalidate();
        pLayout->activate();
    }

    QSize leastSize(int iWidth) const
    {
        QSize size = pLayout->totalMinimumSize();
        if (pLayout->hasHeightForWidth())
            size.setHeight(qMax(size.height(), pLayout->minimumHeightForWidth(qMax(iWidth, size.width()))));
        return size;
    }

    static bool fits(const QSize& size, const QSize& sizeRoom) { return size.boundedTo(sizeRoom) == size; }

    // The dialog has its place with a frame that is not there yet. One that is fine is left alone: at this moment Qt
    // takes a new place as that of what is in the frame.
    void moveInside(const QRect& rectRoom, bool bResized)
    {
        const int iTitle = m_dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &m_dialog);
        const QPoint point = m_dialog.pos() + QPoint(s_iBorder, s_iBorder + iTitle);
        const QPoint inside = cornerInside(point, m_dialog.size(), rectRoom);
        if (bResized || inside != point)
            m_dialog.move(inside);
    }

    void scroll(const QSize& sizeRoom, bool bFixed)
    {
        QSize size = bFixed ? m_dialog.maximumSize() : leastSize(sizeRoom.width()).expandedTo(m_dialog.size());
        if (pScroll.isNull()) {
            if (bFixed) {
                const QMargins margins = pLayout->contentsMargins();
                pContent->setMinimumSize(size -
                                         QSize(margins.left() + margins.right(), margins.top() + margins.bottom()));
            }
            pLayout->removeWidget(pContent);
            pScroll = new QScrollArea(&m_dialog);
            pScroll->setFrameShape(QFrame::NoFrame);
            pScroll->setFocusPolicy(Qt::NoFocus);
            pScroll->setWidgetResizable(true);
            pScroll->setWidget(pContent);
            pLayout->addWidget(pScroll);
            pScroll->show();
            // The layout still holds the dialog at what the content needed in it.
            pLayout->activate();
        }
        // A scroll bar takes its room from the other direction.
        const int iBar = m_dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &m_dialog);
        const bool bHigh = size.height() > sizeRoom.height();
        const bool bWide = size.width() > sizeRoom.width();
        size += QSize(bHigh ? iBar : 0, bWide ? iBar : 0);
        size = size.boundedTo(sizeRoom);
        if (bFixed)
            m_dialog.setFixedSize(size);
        else
            m_dialog.resize(size);
    }

    QDialog& m_dialog;
    QPointer<QScrollArea> pScroll;
};

ExtendDialog::ExtendDialog(QWidget* pParent, QFlags<Qt::WindowType> flags, enWidgetType enType)
    : QDialog(pParent, flags), d(new ExtendDialogPrivate(*this))
{
    const int iMargin = enType == WIDGET_TYPE_PLAIN ? 0 : s_iFrameMargin;
    d->pLayout = new QVBoxLayout(this);
    d->pLayout->setContentsMargins(iMargin, iMargin, iMargin, iMargin);
    d->pLayout->setSpacing(0);
}

ExtendDialog::~ExtendDialog()
{
    delete d;
}

void ExtendDialog::AddMainWidget(QWidget* pWidget)
{
    if (pWidget == d->pContent)
        return;
    d->takeContent();
    if (!d->pContent.isNull())
        d->pContent->setParent(nullptr);
    d->pContent = pWidget;
    if (pWidget == nullptr)
        return;
    d->pLayout->addWidget(pWidget);
    // A widget that came with another parent was hidden by the change of it.
    pWidget->show();
}

void ExtendDialog::setWindowTitle(const QString& strTitle)
{
    QDialog::setWindowTitle(strTitle);
}

void ExtendDialog::setWindowFlags(QFlags<Qt::WindowType> flags)
{
    QDialog::setWindowFlags(flags);
}
