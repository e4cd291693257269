#ifndef ADDRBOOKUIPLUGIN_TEXTCUT_H
#define ADDRBOOKUIPLUGIN_TEXTCUT_H

#include <QString>

// The first iLength units of a text, or one less where the cut would go through a pair: half a character is none. All
// of it for a length below 0, as QString::left has it.
inline QString cutText(const QString& strText, int iLength)
{
    if (iLength < 0 || iLength >= strText.size())
        return strText;
    if (iLength > 0 && strText.at(iLength - 1).isHighSurrogate() && strText.at(iLength).isLowSurrogate())
        --iLength;
    return strText.left(iLength);
}

#endif // ADDRBOOKUIPLUGIN_TEXTCUT_H
