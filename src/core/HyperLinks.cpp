#include "HyperLinks.h"

#include <cstring>

#include <QLatin1String>

namespace
{

const int s_iMaxAddress = 2048;
const int s_iMinPhoneDigits = 7;  // of a number in running text; shorter ones are sums and dates
const int s_iMaxPhoneDigits = 15; // ITU-T E.164

bool isIn(QChar c, const char* szSet)
{
    return c.unicode() != 0 && c.unicode() < 128 && strchr(szSet, char(c.unicode())) != nullptr;
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// A part of a text, or what there is of it; shares the characters of the text, which must outlive it.
QString partOf(const QString& strText, int iAt, int iLength)
{
    return QString::fromRawData(strText.constData() + iAt, qBound(0, int(strText.length()) - iAt, iLength));
}

bool startsWithAt(const QString& strText, int iAt, const char* szWord)
{
    return partOf(strText, iAt, int(strlen(szWord))).compare(QLatin1String(szWord), Qt::CaseInsensitive) == 0;
}

// The length of the character reference at iAt, such as "&lt;", or 0 if there is none.
int entityLength(const QString& strText, int iAt)
{
    const int iEnd = qMin(strText.length(), iAt + 12);
    for (int i = iAt + 1; i < iEnd; ++i) {
        const QChar c = strText.at(i);
        if (c == QLatin1Char(';'))
            return i - iAt > 1 ? i - iAt + 1 : 0;
        if (!c.isLetterOrNumber() && c != QLatin1Char('#'))
            return 0;
    }
    return 0;
}

// One pass over a text, word by word. A word ends at a blank, a quote, mark-up and any character reference but "&amp;".
class Linker
{
public:
    explicit Linker(const QString& strText) : m_strText(strText) { m_strResult.reserve(strText.length() * 2); }

    QString run()
    {
        if (isPhoneNumberAlone()) {
            appendLink(QLatin1String("tel:") + m_strText, 0, m_strText.length());
            return m_strResult;
        }
        const int iLength = m_strText.length();
        int iAt = 0;
        while (iAt < iLength) {
            const int iGap = boundaryLength(iAt);
            if (iGap > 0) {
                copy(iAt, iAt + iGap);
                iAt += iGap;
                continue;
            }
            int iEnd = iAt;
            while (iEnd < iLength && boundaryLength(iEnd) == 0)
                iEnd += wordStep(iEnd);
            iAt = linkWord(iAt, iEnd);
        }
        return m_strResult;
    }

private:
    // A field that holds a number and nothing else. Codes with "*" or "#" are left alone: a dialler might run them.
    bool isPhoneNumberAlone() const
    {
        const int iStart = m_strText.startsWith(QLatin1Char('+')) ? 1 : 0;
        const int iDigits = m_strText.length() - iStart;
        if (iDigits < 3 || iDigits > s_iMaxPhoneDigits)
            return false;
        for (int i = iStart; i < m_strText.length(); ++i) {
            if (!isDigit(m_strText.at(i)))
                return false;
        }
        return true;
    }

    // How much at iAt parts words: 0 inside a word.
    int boundaryLength(int iAt) const
    {
        const QChar c = m_strText.at(iAt);
        if (c == QLatin1Char('&')) {
            const int iEntity = entityLength(m_strText, iAt);
            return iEntity > 0 && !isAmpersand(iAt) ? iEntity : 0;
        }
        if (c == QLatin1Char('<')) {
            const int iClose = m_strText.indexOf(QLatin1Char('>'), iAt);
            return (iClose < 0 ? m_strText.length() : iClose + 1) - iAt;
        }
        return c.isSpace() || c.category() == QChar::Other_Control || c == QLatin1Char('"') || c == QLatin1Char('>');
    }

    bool isAmpersand(int iAt) const { return partOf(m_strText, iAt, 5) == QLatin1String("&amp;"); }

    int wordStep(int iAt) const { return isAmpersand(iAt) ? 5 : 1; }

    void copy(int iFrom, int iTo) { m_strResult += m_strText.mid(iFrom, iTo - iFrom); }

    void appendLink(const QString& strAddress, int iFrom, int iTo)
    {
        m_strResult += QLatin1String("<a href=\"") + strAddress + QLatin1String("\">");
        copy(iFrom, iTo);
        m_strResult += QLatin1String("</a>");
    }

    // Writes the word with its links and returns where to go on: its end, or the end of a number that began in it.
    int linkWord(int iFrom, int iTo)
    {
        int iStart = iFrom;
        while (iStart < iTo && isIn(m_strText.at(iStart), "([{'*,.;:!?"))
            ++iStart;
        const int iPhone = startsWithAt(m_strText, iStart, "tel:") ? iStart + 4 : iStart;
        if (iPhone < iTo && (iPhone > iStart || m_strText.at(iPhone) == QLatin1Char('+'))) {
            const int iEnd = linkPhone(iFrom, iPhone);
            if (iEnd > 0)
                return iEnd;
        }
        const int iWeb = findWeb(iStart, iTo);
        if (iWeb < 0) {
            linkMails(iFrom, iTo);
            return iTo;
        }
        linkMails(iFrom, iWeb);
        linkWeb(iWeb, iTo);
        return iTo;
    }

    // Links the international number at iAt, blanks and all; 0, with nothing written, if there is none. A number
    // never takes more than a few dozen characters, whatever follows.
    int linkPhone(int iFrom, int iAt)
    {
        QString strNumber;
        int iDigits = 0;
        int iEnd = 0;
        int i = iAt;
        if (m_strText.at(i) == QLatin1Char('+')) {
            strNumber += QLatin1Char('+');
            ++i;
        }
        QString strWhole;
        for (const int iLimit = qMin(m_strText.length(), iAt + 40); i < iLimit; ++i) {
            const QChar c = m_strText.at(i);
            if (isDigit(c)) {
                if (++iDigits > s_iMaxPhoneDigits)
                    break;
                strNumber += c;
                const bool bGroupEnds = i + 1 == m_strText.length() || !m_strText.at(i + 1).isLetterOrNumber();
                if (bGroupEnds && iDigits >= s_iMinPhoneDigits) {
                    iEnd = i + 1;
                    strWhole = strNumber;
                }
            } else if (!isIn(c, " ()-./")) {
                break;
            }
        }
        if (iEnd == 0)
            return 0;
        copy(iFrom, iAt);
        appendLink(QLatin1String("tel:") + strWhole, iAt, iEnd);
        return iEnd;
    }

    // Where a web address begins in [iFrom, iTo), or -1.
    int findWeb(int iFrom, int iTo) const
    {
        if (startsWithAt(m_strText, iFrom, "www.") && iFrom + 4 < iTo && m_strText.at(iFrom + 4).isLetterOrNumber())
            return iFrom;
        static const char* const schemes[] = {"https", "http", "ftp"};
        for (int i = iFrom; i + 3 < iTo; ++i) {
            if (m_strText.at(i) != QLatin1Char(':') || partOf(m_strText, i, 3) != QLatin1String("://"))
                continue;
            const QChar first = m_strText.at(i + 3);
            if (!first.isLetterOrNumber() && first != QLatin1Char('['))
                continue;
            for (const char* szScheme : schemes) {
                const int iStart = i - int(strlen(szScheme));
                if (iStart >= iFrom && startsWithAt(m_strText, iStart, szScheme) &&
                    (iStart == iFrom || !m_strText.at(iStart - 1).isLetterOrNumber()))
                    return iStart;
            }
        }
        return -1;
    }

    void linkWeb(int iFrom, int iTo)
    {
        const int iEnd = webEnd(iFrom, iTo);
        QString strAddress = startsWithAt(m_strText, iFrom, "www.") ? QLatin1String("http://") : QLatin1String("");
        for (int i = iFrom; i < iEnd; i += wordStep(i))
            strAddress += m_strText.at(i) == QLatin1Char('&') ? QString::fromLatin1("&amp;") : m_strText.mid(i, 1);
        if (iEnd - iFrom <= s_iMaxAddress)
            appendLink(strAddress, iFrom, iEnd);
        else
            copy(iFrom, iEnd);
        copy(iEnd, iTo);
    }

    // The end of the web address that begins at iFrom: without the punctuation of the sentence around it, and without
    // a closing bracket that it did not open.
    int webEnd(int iFrom, int iTo) const
    {
        int iEnd = iFrom;
        int iOpen = 0;
        while (iEnd < iTo && !isIn(m_strText.at(iEnd), "\\^`{|}")) {
            if (m_strText.at(iEnd) == QLatin1Char('('))
                ++iOpen;
            if (m_strText.at(iEnd) == QLatin1Char(')') && --iOpen < 0)
                break;
            iEnd += wordStep(iEnd);
        }
        for (;;) {
            if (iEnd - iFrom >= 5 && isAmpersand(iEnd - 5))
                iEnd -= 5;
            else if (iEnd > iFrom && isIn(m_strText.at(iEnd - 1), ".,;:!?'*_&("))
                --iEnd;
            else
                return iEnd;
        }
    }

    static bool isMailChar(QChar c) { return c.isLetterOrNumber() || isIn(c, ".@!#$%'*+/=?^_`{|}~-"); }

    // Links the mail addresses in [iFrom, iTo), which may follow one another with commas or semicolons between.
    void linkMails(int iFrom, int iTo)
    {
        int iAt = iFrom;
        while (iAt < iTo) {
            int iEnd = iAt;
            int iSigns = 0;
            while (iEnd < iTo && isMailChar(m_strText.at(iEnd)))
                iSigns += m_strText.at(iEnd++) == QLatin1Char('@');
            const bool bCut = iAt > 0 && (m_strText.at(iAt - 1) == QLatin1Char('&') || endsAmpersand(iAt));
            if (iSigns == 1 && !bCut)
                linkMail(iAt, iEnd);
            else
                copy(iAt, iEnd);
            if (iEnd < iTo)
                copy(iEnd, iEnd + 1);
            iAt = iEnd + 1;
        }
    }

    bool endsAmpersand(int iAt) const { return iAt >= 5 && isAmpersand(iAt - 5); }

    void linkMail(int iFrom, int iTo)
    {
        int iStart = iFrom;
        int iEnd = iTo;
        while (iStart < iEnd && isIn(m_strText.at(iStart), ".!#$'*/=?^`{|}~-"))
            ++iStart;
        while (iEnd > iStart && !m_strText.at(iEnd - 1).isLetterOrNumber())
            --iEnd;
        const int iSign = m_strText.indexOf(QLatin1Char('@'), iStart);
        const bool bAddress = iSign > iStart && iSign < iEnd && iEnd - iStart <= s_iMaxAddress &&
                              m_strText.at(iSign - 1) != QLatin1Char('.') && isDomain(iSign + 1, iEnd);
        copy(iFrom, iStart);
        if (bAddress) {
            QString strAddress = m_strText.mid(iStart, iEnd - iStart);
            // A question mark or percent sign in the name must not start the options of a mailto address.
            strAddress.replace(QLatin1Char('%'), QLatin1String("%25"));
            strAddress.replace(QLatin1Char('?'), QLatin1String("%3F"));
            strAddress.replace(QLatin1Char('#'), QLatin1String("%23"));
            appendLink(QLatin1String("mailto:") + strAddress, iStart, iEnd);
        } else {
            copy(iStart, iEnd);
        }
        copy(iEnd, iTo);
    }

    // Labels of letters, digits and inner hyphens, at least two, the last not of one character.
    bool isDomain(int iFrom, int iTo) const
    {
        int iLabel = iFrom;
        int iLabels = 0;
        for (int i = iFrom; i <= iTo; ++i) {
            if (i < iTo && m_strText.at(i) != QLatin1Char('.')) {
                if (!m_strText.at(i).isLetterOrNumber() && m_strText.at(i) != QLatin1Char('-'))
                    return false;
                continue;
            }
            if (i == iLabel || m_strText.at(iLabel) == QLatin1Char('-') || m_strText.at(i - 1) == QLatin1Char('-'))
                return false;
            if (i == iTo)
                return iLabels > 0 && i - iLabel > 1;
            ++iLabels;
            iLabel = i + 1;
        }
        return false;
    }

    const QString& m_strText;
    QString m_strResult;
};

} // namespace

QString HyperLinks::create(const QString& strText)
{
    return Linker(strText).run();
}
