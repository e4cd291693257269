#include "widgets/FormFont.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QStyle>

#include "linkhand/QtCompat.h"

namespace
{
const int SMALLEST_LETTERS = 8; // pixels
const int SECTION_PADDING = 14;
const int BUTTON_PADDING = 8;

bool fitsButton(const QPushButton* pbutton)
{
    const QFontMetrics metrics(pbutton->font());
    return QtCompat::textWidth(metrics, pbutton->text()) + BUTTON_PADDING <= pbutton->maximumWidth() &&
           metrics.height() <= pbutton->maximumHeight();
}

bool fitsHeader(const QHeaderView* pheader)
{
    if (pheader->orientation() != Qt::Horizontal || pheader->model() == nullptr)
        return true;
    for (int i = 0; i < pheader->count(); ++i) {
        const QString strTitle = pheader->model()->headerData(i, Qt::Horizontal).toString();
        int iNeeds = QtCompat::textWidth(QFontMetrics(pheader->font()), strTitle) + SECTION_PADDING;
        if (pheader->isSortIndicatorShown())
            iNeeds += pheader->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, pheader);
        if (iNeeds > pheader->sectionSize(i))
            return false;
    }
    return true;
}

// Sizes that were set, whatever is in them.
bool fitsParts(const QWidget* pform)
{
    foreach (const QWidget* ppart, pform->findChildren<QWidget*>()) {
        const QPushButton* pbutton = qobject_cast<const QPushButton*>(ppart);
        const QHeaderView* pheader = qobject_cast<const QHeaderView*>(ppart);
        const QLabel* plabel = qobject_cast<const QLabel*>(ppart);
        if ((pbutton != nullptr && !fitsButton(pbutton)) || (pheader != nullptr && !fitsHeader(pheader)) ||
            (plabel != nullptr && QFontMetrics(plabel->font()).height() > plabel->maximumHeight()))
            return false;
    }
    return true;
}

bool fitsLayout(const QLayout* playout, const QSize& size)
{
    if (playout == nullptr)
        return true;
    const QSize sizeLeast = playout->totalMinimumSize();
    const int iHeight =
        playout->hasHeightForWidth() ? playout->minimumHeightForWidth(size.width()) : sizeLeast.height();
    return sizeLeast.width() <= size.width() && iHeight <= size.height();
}

// Smaller ones stay.
void setPixels(QWidget* pwidget, int iPixels)
{
    QFont font = pwidget->font();
    if (QFontInfo(font).pixelSize() > iPixels) {
        font.setPixelSize(iPixels);
        pwidget->setFont(font);
        pwidget->updateGeometry();
    }
}

// A form that nobody has seen yet does not hear by itself that its parts need less.
void measureAnew(QLayout* playout)
{
    for (int i = 0; playout != nullptr && i < playout->count(); ++i)
        measureAnew(playout->itemAt(i)->layout());
    if (playout != nullptr)
        playout->invalidate();
}

template <class Condition>
void shrinkUntil(QWidget* pwidget, const Condition& fits)
{
    for (int iPixels = QFontInfo(pwidget->font()).pixelSize(); iPixels > SMALLEST_LETTERS && !fits();) {
        setPixels(pwidget, --iPixels);
        // With a style sheet above it a part does not take over what its parent has.
        foreach (QWidget* ppart, pwidget->findChildren<QWidget*>())
            setPixels(ppart, iPixels);
        measureAnew(pwidget->layout());
    }
}
} // namespace

void fitFontToForm(QWidget* pform)
{
    pform->ensurePolished();
    const QWidget* pwindow = pform->window();
    QSize size = pwindow->size();
    if (pwindow != pform && pwindow->layout() != nullptr) {
        const QMargins margins = pwindow->layout()->contentsMargins();
        size -= QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
    }
    shrinkUntil(pform, [pform, size] { return fitsParts(pform) && fitsLayout(pform->layout(), size); });
}

void fitFontToColumns(QHeaderView* pheader)
{
    pheader->ensurePolished();
    shrinkUntil(pheader, [pheader] { return fitsHeader(pheader); });
}
