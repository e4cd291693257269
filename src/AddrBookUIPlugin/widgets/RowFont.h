#ifndef ADDRBOOKUIPLUGIN_ROWFONT_H
#define ADDRBOOKUIPLUGIN_ROWFONT_H

#include <QAbstractItemView>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>

// The largest size of a font, up to its own, of which a line fits into so many pixels. A font that fits stays.
inline QFont fontFitting(const QFont& font, int iHeight)
{
    const int iSmallest = 8;
    QFont fitting = font;
    int iPixels = QFontInfo(font).pixelSize();
    while (QFontMetrics(fitting).height() > iHeight && iPixels > iSmallest)
        fitting.setPixelSize(--iPixels);
    return fitting;
}

// Makes the font of a view small enough for rows of a fixed height, in pixels, so that a desktop with large fonts does
// not show the half of each line. A font that fits stays. User-interface thread only.
inline void fitFontToRows(QAbstractItemView* pview, int iRowHeight)
{
    const QFont font = fontFitting(pview->font(), iRowHeight);
    if (font != pview->font())
        pview->setFont(font);
}

#endif // ADDRBOOKUIPLUGIN_ROWFONT_H
