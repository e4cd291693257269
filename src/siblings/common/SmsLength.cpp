#include "common/SmsLength.h"

namespace
{

// The GSM 7-bit default alphabet without its escape, and the extension characters, which take two septets.
const QString& defaultAlphabet()
{
    static const QString strAlphabet = QString::fromUtf8(
        "@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿"
        "abcdefghijklmnopqrstuvwxyzäöñüà");
    return strAlphabet;
}

const QString& extensions()
{
    static const QString strExtensions = QString::fromUtf8("^{}\\[~]|€");
    return strExtensions;
}

const int SINGLE_SEPTETS = 160;
const int PART_SEPTETS = 153;
const int SINGLE_UNITS = 70;
const int PART_UNITS = 67;

} // namespace

SmsLength SmsLength::Of(const QString& strText)
{
    SmsLength length = {0, 1, false};
    foreach (const QChar c, strText) {
        if (defaultAlphabet().contains(c)) {
            ++length.iUnits;
        } else if (extensions().contains(c)) {
            length.iUnits += 2;
        } else {
            length.bUnicode = true;
            break;
        }
    }
    if (length.bUnicode) {
        length.iUnits = strText.length();
    }
    const int iSingle = length.bUnicode ? SINGLE_UNITS : SINGLE_SEPTETS;
    const int iPart = length.bUnicode ? PART_UNITS : PART_SEPTETS;
    if (length.iUnits > iSingle) {
        length.iMessages = (length.iUnits + iPart - 1) / iPart;
    }
    return length;
}
