#include "ContactSheet.h"

#include <QPainter>

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
    return sheet;
}
