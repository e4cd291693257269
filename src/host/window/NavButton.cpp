#include "window/NavButton.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

#include "linkhand/QtCompat.h"

namespace
{

const int GLYPH_SIZE = 24;
const int MARGIN = 10;
const int GAP = 5;
const int LEAST_WIDTH = 84;
const int MARK_WIDTH = 3;
const qreal WORD_SIZE = 0.9; // of the usual letters

} // namespace

NavButton::NavButton(Glyphs::Glyph enGlyph, QWidget* pParent) : QAbstractButton(pParent), m_enGlyph(enGlyph)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    QFont smaller = font();
    // A font that is told in pixels has no point size.
    if (smaller.pointSizeF() > 0) {
        smaller.setPointSizeF(smaller.pointSizeF() * WORD_SIZE);
    }
    setFont(smaller);
}

QSize NavButton::sizeHint() const
{
    const int iWidth = QtCompat::textWidth(fontMetrics(), text()) + 2 * MARGIN;
    return QSize(qMax(LEAST_WIDTH, iWidth), MARGIN + GLYPH_SIZE + GAP + fontMetrics().height() + MARGIN);
}

void NavButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPalette& colors = palette();
    const QColor& accent = colors.color(QPalette::Highlight);
    QColor ink = colors.color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::WindowText);
    QColor ground = isChecked() ? accent : colors.color(QPalette::WindowText);
    ground.setAlpha(isChecked() ? 36 : (underMouse() && isEnabled() ? 18 : 0));
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(6, 2, -6, -2), 6, 6);
    if (isChecked()) {
        const int iLeft = isRightToLeft() ? width() - MARK_WIDTH : 0;
        painter.fillRect(QRect(iLeft, 8, MARK_WIDTH, height() - 16), accent);
    } else {
        ink.setAlpha(isEnabled() ? 200 : 120);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(accent);
        painter.drawRoundedRect(QRectF(rect()).adjusted(6.5, 2.5, -6.5, -2.5), 6, 6);
    }
    Glyphs::Draw(painter, QRectF(0, MARGIN, width(), GLYPH_SIZE), m_enGlyph, ink);
    painter.setPen(ink);
    painter.drawText(QRect(0, MARGIN + GLYPH_SIZE + GAP, width(), fontMetrics().height()), Qt::AlignHCenter, text());
}

void NavButton::enterEvent(QtCompat::EnterEvent* pEvent)
{
    update();
    QAbstractButton::enterEvent(pEvent);
}

void NavButton::leaveEvent(QEvent* pEvent)
{
    update();
    QAbstractButton::leaveEvent(pEvent);
}
