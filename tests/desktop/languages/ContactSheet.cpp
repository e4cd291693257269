#include "ContactSheet.h"

#include <QHash>
#include <QPainter>
#include <QVector>

#include <algorithm>
#include <climits>

namespace
{

const int SHEET_WIDTH = 2000;
const int MARGIN = 16;
const int CAPTION = 22;
const int LARGE = 700; // wider ones are halved

QImage scaled(QImage image)
{
    image = image.scaled(image.size() / image.devicePixelRatio(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(1);
    return image.width() > LARGE ? image.scaled(image.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 : image;
}

// With 256 colours, those that are seen most and else the nearest of them: a third of the file, and no eye sees it.
QImage withPalette(const QImage& image)
{
    const QRgb SEEN = 0xfff8f8f8;
    const int MOST = 256;
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* pLine = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            ++counts[pLine[x] & SEEN];
        }
    }
    QList<QRgb> listColors = counts.keys();
    std::sort(listColors.begin(), listColors.end(),
              [&counts](QRgb one, QRgb other) { return counts.value(one) > counts.value(other); });
    const QVector<QRgb> table = listColors.mid(0, MOST).toVector();
    QHash<QRgb, uchar> indices;
    foreach (const QRgb color, listColors) {
        int iBest = 0;
        int iLeast = INT_MAX;
        for (int i = 0; i < table.size() && iLeast > 0; ++i) {
            const int iApart = qAbs(qRed(color) - qRed(table.at(i))) + qAbs(qGreen(color) - qGreen(table.at(i))) +
                               qAbs(qBlue(color) - qBlue(table.at(i)));
            iBest = iApart < iLeast ? i : iBest;
            iLeast = qMin(iApart, iLeast);
        }
        indices.insert(color, uchar(iBest));
    }
    QImage result(image.size(), QImage::Format_Indexed8);
    // White stays white.
    QVector<QRgb> shown = table;
    for (QRgb& color : shown) {
        color = qRgb(qRed(color) * 255 / 0xf8, qGreen(color) * 255 / 0xf8, qBlue(color) * 255 / 0xf8);
    }
    result.setColorTable(shown);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* pLine = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        uchar* pIndices = result.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            pIndices[x] = indices.value(pLine[x] & SEEN);
        }
    }
    return result;
}

} // namespace

QImage ContactSheet::Join(const QList<Shot>& listShots)
{
    // In rows, each as high as its highest picture.
    QList<QImage> listImages;
    QList<QPoint> listPlaces;
    QPoint place(MARGIN, MARGIN);
    int iRowHeight = 0;
    foreach (const Shot& shot, listShots) {
        const QImage image = scaled(shot.image);
        if (place.x() > MARGIN && place.x() + image.width() + MARGIN > SHEET_WIDTH) {
            place = QPoint(MARGIN, place.y() + iRowHeight + MARGIN);
            iRowHeight = 0;
        }
        listImages << image;
        listPlaces << place;
        iRowHeight = qMax(iRowHeight, image.height() + CAPTION);
        place.rx() += image.width() + MARGIN;
    }
    QImage sheet(SHEET_WIDTH, place.y() + iRowHeight + MARGIN, QImage::Format_RGB32);
    sheet.fill(QColor(0x80, 0x86, 0x8c));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < listImages.size(); ++i) {
        const QRect caption(listPlaces.at(i), QSize(listImages.at(i).width(), CAPTION));
        painter.drawText(caption, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextDontClip, listShots.at(i).strScene);
        painter.drawImage(listPlaces.at(i) + QPoint(0, CAPTION), listImages.at(i));
    }
    painter.end();
    return withPalette(sheet);
}
