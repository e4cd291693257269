#include "window/NavButton.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

#include "linkhand/QtCompat.h"

namespace
{

const int GLYPH_SIZE = 24;
const int LEAST_PICTURE = 18;
const int PICTURE_MARGIN = 2;
const int MARGIN = 10;
const int CLOSE_MARGIN = 4;
const int GAP = 5;
const int CLOSE_GAP = 1;
const int LEAST_WIDTH = 84;
const int MARK_WIDTH = 3;
const qreal WORD_SIZE = 0.9; // of the usual letters

} // namespace

NavButton::NavButton(Glyphs::Glyph enGlyph, QWidget* pParent)
    : QAbstractButton(pParent), m_enGlyph(enGlyph), m_enForm(SPACIOUS)
{
    setCheckable(true);
    setSizePolicy(sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    setFocusPolicy(Qt::TabFocus);
    QFont smaller = font();
    // A font that is told in pixels has no point size.
    if (smaller.pointSizeF() > 0) {
        smaller.setPointSizeF(smaller.pointSizeF() * WORD_SIZE);
    }
    setFont(smaller);
}

void NavButton::SetForm(Form enForm)
{
    if (enForm != m_enForm) {
        m_enForm = enForm;
        updateGeometry();
        update();
    }
}

QSize NavButton::SizeIn(Form enForm) const
{
    if (enForm == PICTURE) {
        return QSize(GLYPH_SIZE + 2 * MARGIN, GLYPH_SIZE + 2 * CLOSE_MARGIN);
    }
    const bool bClose = enForm == CLOSE;
    const int iWidth = QtCompat::textWidth(fontMetrics(), text()) + 2 * MARGIN;
    const int iHeight = GLYPH_SIZE + (bClose ? CLOSE_GAP : GAP) + fontMetrics().height();
    return QSize(qMax(LEAST_WIDTH, iWidth), iHeight + 2 * (bClose ? CLOSE_MARGIN : MARGIN));
}

int NavButton::LeastHeight()
{
    return LEAST_PICTURE;
}

QSize NavButton::minimumSizeHint() const
{
    return m_enForm == PICTURE ? QSize(SizeIn(PICTURE).width(), LEAST_PICTURE) : sizeHint();
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
    const int iMargin = m_enForm == SPACIOUS ? MARGIN : CLOSE_MARGIN;
    const QRectF rectGlyph(0, iMargin, width(), GLYPH_SIZE);
    const QRectF rectPicture = QRectF(rect()).adjusted(0, PICTURE_MARGIN, 0, -PICTURE_MARGIN);
    const bool bSmall = m_enForm == PICTURE && rectPicture.height() < GLYPH_SIZE;
    Glyphs::Draw(painter, bSmall ? rectPicture : rectGlyph, m_enGlyph, ink);
    if (m_enForm != PICTURE) {
        const int iTop = iMargin + GLYPH_SIZE + (m_enForm == SPACIOUS ? GAP : CLOSE_GAP);
        painter.setPen(ink);
        painter.drawText(QRect(0, iTop, width(), fontMetrics().height()), Qt::AlignHCenter, text());
    }
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
