#include "MessageIcon.h"

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>

namespace
{

const QColor s_blue(0x3a, 0x8d, 0xdb);
const QColor s_red(0xd8, 0x52, 0x4c);
const QColor s_amber(0xd9, 0x93, 0x1a);

void drawStroke(QPainter& painter, const QPainterPath& path)
{
    painter.strokePath(path, QPen(Qt::white, 3.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void drawDisc(QPainter& painter, const QColor& colour)
{
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(2, 2, 36, 36));
}

void drawDot(QPainter& painter, qreal y)
{
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(20, y), 2.3, 2.3);
}

void drawLine(QPainter& painter, qreal x1, qreal y1, qreal x2, qreal y2)
{
    QPainterPath path(QPointF(x1, y1));
    path.lineTo(x2, y2);
    drawStroke(painter, path);
}

void drawQuestion(QPainter& painter)
{
    drawDisc(painter, s_blue);
    QPainterPath path(QPointF(14.6, 15.2));
    path.cubicTo(14.8, 7.9, 25.6, 8.2, 25.4, 14.8);
    path.cubicTo(25.3, 19.0, 20.0, 18.8, 20.0, 23.8);
    drawStroke(painter, path);
    drawDot(painter, 29.6);
}

void drawWarning(QPainter& painter)
{
    QPainterPath path(QPointF(20, 5));
    path.lineTo(36.5, 34);
    path.lineTo(3.5, 34);
    path.closeSubpath();
    painter.setBrush(s_amber);
    painter.strokePath(path, QPen(s_amber, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    drawLine(painter, 20, 15, 20, 24);
    drawDot(painter, 30.2);
}

} // namespace

bool MessageIcon::isInTheme(QMessageBox::Icon enIcon)
{
    switch (enIcon) {
    case QMessageBox::Information:
        return QIcon::hasThemeIcon(QLatin1String("dialog-information"));
    case QMessageBox::Warning:
        return QIcon::hasThemeIcon(QLatin1String("dialog-warning"));
    case QMessageBox::Critical:
        return QIcon::hasThemeIcon(QLatin1String("dialog-error"));
    case QMessageBox::Question:
        return QIcon::hasThemeIcon(QLatin1String("dialog-question"));
    default:
        return true;
    }
}

QPicture MessageIcon::draw(QMessageBox::Icon enIcon)
{
    QPicture picture;
    if (enIcon == QMessageBox::NoIcon)
        return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    switch (enIcon) {
    case QMessageBox::Information:
        drawDisc(painter, s_blue);
        drawDot(painter, 11.4);
        drawLine(painter, 20, 18, 20, 29);
        break;
    case QMessageBox::Critical:
        drawDisc(painter, s_red);
        drawLine(painter, 14, 14, 26, 26);
        drawLine(painter, 26, 14, 14, 26);
        break;
    case QMessageBox::Question:
        drawQuestion(painter);
        break;
    default:
        drawWarning(painter);
        break;
    }
    painter.end();
    picture.setBoundingRect(QRect(0, 0, 40, 40));
    return picture;
}
