#ifndef LINKHAND_SHARED_SMSLENGTH_H
#define LINKHAND_SHARED_SMSLENGTH_H

#include <QList>
#include <QString>

// The size of a text as short messages (3GPP TS 23.038, TS 23.040).
struct SmsLength {
    int iUnits;    // septets of the default alphabet, or UTF-16 units
    int iMessages; // 1 for an empty text; a longer one carries a header in each part
    bool bUnicode; // the default alphabet lacks a character

    static SmsLength Of(const QString& strText);
};

namespace SmsUnits
{

// The GSM 7-bit default alphabet without its escape, and the extension characters, which take two septets.
inline const QString& defaultAlphabet()
{
    static const QString strAlphabet = QString::fromUtf8(
        "@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿"
        "abcdefghijklmnopqrstuvwxyzäöñüà");
    return strAlphabet;
}

inline const QString& extensions()
{
    static const QString strExtensions = QString::fromUtf8("^{}\\[~]|€");
    return strExtensions;
}

const int SINGLE_SEPTETS = 160;
const int PART_SEPTETS = 153;
const int SINGLE_UNITS = 70;
const int PART_UNITS = 67;

// The units of each character: septets, or UTF-16 units where the default alphabet lacks one of them.
inline QList<int> widths(const QString& strText, bool& bUnicode)
{
    QList<int> listWidths;
    bUnicode = false;
    foreach (const QChar c, strText) {
        const bool bExtension = extensions().contains(c);
        bUnicode = bUnicode || !(bExtension || defaultAlphabet().contains(c));
        listWidths.append(bExtension ? 2 : 1);
    }
    if (bUnicode) {
        listWidths.clear();
        for (int i = 0; i < strText.length(); ++i) {
            const bool bPair =
                strText.at(i).isHighSurrogate() && i + 1 < strText.length() && strText.at(i + 1).isLowSurrogate();
            listWidths.append(bPair ? 2 : 1);
            i += bPair ? 1 : 0;
        }
    }
    return listWidths;
}

} // namespace SmsUnits

inline SmsLength SmsLength::Of(const QString& strText)
{
    SmsLength length = {0, 1, false};
    const QList<int> listWidths = SmsUnits::widths(strText, length.bUnicode);
    const int iSingle = length.bUnicode ? SmsUnits::SINGLE_UNITS : SmsUnits::SINGLE_SEPTETS;
    const int iPart = length.bUnicode ? SmsUnits::PART_UNITS : SmsUnits::PART_SEPTETS;
    int iParts = 1;
    int iUsed = 0; // of the last part
    foreach (const int iWidth, listWidths) {
        length.iUnits += iWidth;
        // An escape and its character, and the two halves of a pair, go into the same part.
        if (iUsed + iWidth > iPart) {
            ++iParts;
            iUsed = 0;
        }
        iUsed += iWidth;
    }
    if (length.iUnits > iSingle) {
        length.iMessages = iParts;
    }
    return length;
}

#endif // LINKHAND_SHARED_SMSLENGTH_H
