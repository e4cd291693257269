#include "window/Glyphs.h"

#include <QPainterPath>
#include <QPixmap>

namespace
{

// All paths stand on a grid of 24 by 24.
const qreal GRID = 24;
const qreal LINE = 1.6;

QPainterPath phonebook()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(5, 3, 14, 18), 2, 2);
    path.addEllipse(QPointF(12, 9.5), 2.4, 2.4);
    path.moveTo(7.8, 16.5);
    path.cubicTo(8.2, 13.2, 15.8, 13.2, 16.2, 16.5);
    for (const qreal y : {7.0, 12.0, 17.0}) {
        path.moveTo(3, y);
        path.lineTo(5, y);
    }
    return path;
}

QPainterPath messages()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(3, 5, 18, 14), 2, 2);
    path.moveTo(3.5, 7);
    path.lineTo(12, 13);
    path.lineTo(20.5, 7);
    return path;
}

QPainterPath calls()
{
    QPainterPath path(QPointF(6.5, 3.5));
    path.lineTo(9.5, 3.5);
    path.lineTo(11, 8);
    path.lineTo(8.6, 9.8);
    path.cubicTo(9.8, 12.4, 11.6, 14.2, 14.2, 15.4);
    path.lineTo(16, 13);
    path.lineTo(20.5, 14.5);
    path.lineTo(20.5, 17.5);
    path.cubicTo(20.5, 19.4, 19.2, 20.5, 17.5, 20.5);
    path.cubicTo(10, 20, 4, 14, 3.5, 6.5);
    path.cubicTo(3.5, 4.8, 4.6, 3.5, 6.5, 3.5);
    path.closeSubpath();
    return path;
}

// A life belt.
QPainterPath care()
{
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 9, 9);
    path.addEllipse(QPointF(12, 12), 3.8, 3.8);
    for (const qreal x : {-1.0, 1.0}) {
        for (const qreal y : {-1.0, 1.0}) {
            path.moveTo(12 + 2.7 * x, 12 + 2.7 * y);
            path.lineTo(12 + 6.3 * x, 12 + 6.3 * y);
        }
    }
    return path;
}

// Three sliders.
QPainterPath preferences()
{
    QPainterPath path;
    const qreal afKnob[] = {8.5, 15.5, 10.5};
    for (int i = 0; i < 3; ++i) {
        const qreal fY = 6 + 6 * i;
        path.moveTo(3, fY);
        path.lineTo(afKnob[i] - 2, fY);
        path.addEllipse(QPointF(afKnob[i], fY), 2, 2);
        path.moveTo(afKnob[i] + 2, fY);
        path.lineTo(21, fY);
    }
    return path;
}

QPainterPath device()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(8, 8, 8, 13), 1.5, 1.5);
    path.addRect(QRectF(9.5, 3, 5, 5));
    path.moveTo(12, 12);
    path.lineTo(12, 17);
    return path;
}

QPainterPath language()
{
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 9, 9);
    path.addEllipse(QPointF(12, 12), 4, 9);
    path.moveTo(3, 12);
    path.lineTo(21, 12);
    return path;
}

QPainterPath warning()
{
    QPainterPath path(QPointF(12, 4));
    path.lineTo(21, 20);
    path.lineTo(3, 20);
    path.closeSubpath();
    path.moveTo(12, 10);
    path.lineTo(12, 14.5);
    path.moveTo(12, 17.1);
    path.lineTo(12, 17.3);
    return path;
}

QPainterPath other()
{
    QPainterPath path;
    for (const qreal x : {4.0, 13.5}) {
        for (const qreal y : {4.0, 13.5}) {
            path.addRoundedRect(QRectF(x, y, 6.5, 6.5), 1, 1);
        }
    }
    return path;
}

QPainterPath pathOf(Glyphs::Glyph enGlyph)
{
    switch (enGlyph) {
    case Glyphs::PHONEBOOK:
        return phonebook();
    case Glyphs::MESSAGES:
        return messages();
    case Glyphs::CALLS:
        return calls();
    case Glyphs::CARE:
        return care();
    case Glyphs::PREFERENCES:
        return preferences();
    case Glyphs::DEVICE:
        return device();
    case Glyphs::LANGUAGE:
        return language();
    case Glyphs::WARNING:
        return warning();
    case Glyphs::OTHER:
        break;
    }
    return other();
}

} // namespace

void Glyphs::Draw(QPainter& painter, const QRectF& rect, Glyph enGlyph, const QColor& color)
{
    const qreal fScale = qMin(rect.width(), rect.height()) / GRID;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center() - QPointF(GRID, GRID) * fScale / 2);
    painter.scale(fScale, fScale);
    painter.setPen(QPen(color, LINE, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(pathOf(enGlyph));
    painter.restore();
}

QIcon Glyphs::Icon(Glyph enGlyph, const QColor& color)
{
    QIcon icon;
    for (const int iSize : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap(iSize, iSize);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        Draw(painter, QRectF(0, 0, iSize, iSize), enGlyph, color);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
