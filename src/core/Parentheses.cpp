#include "Parentheses.h"

namespace
{

const QChar s_leftToRightMark(0x200e);
const QChar s_rightToLeftMark(0x200f);

bool isLeftToRight(QChar c)
{
    return c.direction() == QChar::DirL;
}

bool isStrong(QChar c)
{
    return isLeftToRight(c) || c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
}

// A text without a letter is a number and reads from the left.
bool startsLeftToRight(const QString& strText)
{
    for (int i = 0; i < strText.length(); ++i) {
        if (isStrong(strText.at(i)))
            return isLeftToRight(strText.at(i));
    }
    return true;
}

bool endsLeftToRight(const QString& strText)
{
    for (int i = strText.length() - 1; i >= 0; --i) {
        if (isStrong(strText.at(i)))
            return isLeftToRight(strText.at(i));
    }
    return true;
}

// Where the parenthesis of a count that ends the text opens, or -1.
int countStart(const QString& strText)
{
    const int iOpen = strText.lastIndexOf(QLatin1Char('('));
    if (iOpen < 0 || !strText.endsWith(QLatin1Char(')')) || iOpen + 2 >= strText.length())
        return -1;
    for (int i = iOpen + 1; i < strText.length() - 1; ++i) {
        if (!strText.at(i).isDigit() && strText.at(i) != QLatin1Char('/'))
            return -1;
    }
    return iOpen;
}

} // namespace

void Parentheses::correct(QString& strText)
{
    if (!strText.contains(QLatin1Char('(')) && !strText.contains(QLatin1Char(')')))
        return;
    if (strText.contains(s_leftToRightMark) || strText.contains(s_rightToLeftMark))
        return;
    const int iCount = countStart(strText);
    if (iCount > 0) {
        // The name may read either way, the count is part of the line. The marks stand behind the parentheses: a name
        // cut off in front of the count is the name.
        strText.insert(iCount + 1, s_rightToLeftMark);
        strText.append(s_rightToLeftMark);
        return;
    }
    if (startsLeftToRight(strText))
        strText.prepend(s_leftToRightMark);
    if (endsLeftToRight(strText))
        strText.append(s_leftToRightMark);
}
