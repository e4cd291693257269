#ifndef LINKHAND_HOST_DIALSTRING_H
#define LINKHAND_HOST_DIALSTRING_H

#include <QRegExp>
#include <QString>

// A number as a modem takes it.
namespace DialString
{

// Digits, with the signs that a dial string may hold, without the blanks and hyphens that people write between them;
// empty for anything else.
inline QString Of(const QString& strNumber)
{
    QString strDialled;
    foreach (const QChar c, strNumber) {
        if (!c.isSpace() && !QString(QLatin1String("()./-")).contains(c)) {
            strDialled += c;
        }
    }
    return QRegExp(QLatin1String("\\+?[0-9*#]+")).exactMatch(strDialled) ? strDialled : QString();
}

} // namespace DialString

#endif // LINKHAND_HOST_DIALSTRING_H
