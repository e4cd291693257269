#ifndef ADDRBOOKUIPLUGIN_ROWFONT_H
#define ADDRBOOKUIPLUGIN_ROWFONT_H

#include <QAbstractItemView>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>

// Makes the font of a view small enough for rows of a fixed height, in pixels, so that a desktop with large fonts does
// not show the half of each line. A font that fits stays. User-interface thread only.
inline void fitFontToRows(QAbstractItemView* pview, int iRowHeight)
{
    const int iSmallest = 8;
    QFont font = pview->font();
    int iPixels = QFontInfo(font).pixelSize();
    while (QFontMetrics(font).height() > iRowHeight && iPixels > iSmallest)
        font.setPixelSize(--iPixels);
    if (font != pview->font())
        pview->setFont(font);
}

#endif // ADDRBOOKUIPLUGIN_ROWFONT_H
