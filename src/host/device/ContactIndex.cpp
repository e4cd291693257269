#include "device/ContactIndex.h"

#include <QSet>
#include <QStringList>

#include <algorithm>

#include "device/NumberMatch.h"

namespace
{

// Compatible forms, so that "Muller" finds "Müller", and letters of any width are the same.
QString folded(const QString& strText)
{
    bool bPlain = true;
    foreach (const QChar c, strText) {
        bPlain = bPlain && c.unicode() < 0x80;
    }
    if (bPlain) {
        return strText.toLower();
    }
    QString strFolded;
    foreach (const QChar c, strText.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (c.category() != QChar::Mark_NonSpacing) {
            strFolded += c;
        }
    }
    return strFolded;
}

bool isWordStart(const QString& strText, int iAt)
{
    return strText.at(iAt).isLetterOrNumber() && (iAt == 0 || !strText.at(iAt - 1).isLetterOrNumber());
}

bool hasWord(const QString& strFolded, const QString& strBeginning)
{
    for (int iAt = strFolded.indexOf(strBeginning); iAt >= 0; iAt = strFolded.indexOf(strBeginning, iAt + 1)) {
        if (isWordStart(strFolded, iAt)) {
            return true;
        }
    }
    return false;
}

// Of the countries' codes (ITU-T E.164) these have two digits, 1 and 7 have one, and all others three.
int codeLength(const QString& strDigits)
{
    static const char* const s_pszTwo =
        "20 27 30 31 32 33 34 36 39 40 41 43 44 45 46 47 48 49 51 52 53 54 55 56 57 58 60 "
        "61 62 63 64 65 66 81 82 84 86 90 91 92 93 94 95 98";
    if (strDigits.startsWith(QLatin1Char('1')) || strDigits.startsWith(QLatin1Char('7'))) {
        return 1;
    }
    return QString(QLatin1String(s_pszTwo)).contains(strDigits.left(2)) ? 2 : 3;
}

// The digits at the end as a number, in which those of another length are another number.
quint32 endOf(const QString& strDigits)
{
    return (QLatin1Char('1') + NumberMatch::End(strDigits)).toUInt();
}

// What may stand in a number for the eye, and its plus.
bool isOfNumber(const QChar& c)
{
    switch (c.unicode()) {
    case '+':
    case '-':
    case '/':
    case '.':
    case '(':
    case ')':
    case ' ':
        return true;
    default:
        return c.isDigit();
    }
}

// -1, 0 or 1 for a tail against a beginning of the same length.
int compared(const QString& strText, int iFrom, const QString& strBeginning)
{
    const QChar* pText = strText.constData() + iFrom;
    const int iLength = qMin(strText.length() - iFrom, strBeginning.length());
    for (int i = 0; i < iLength; ++i) {
        if (pText[i] != strBeginning.at(i)) {
            return pText[i] < strBeginning.at(i) ? -1 : 1;
        }
    }
    return iLength < strBeginning.length() ? -1 : 0;
}

} // namespace

// Each number once, up to so many.
class ContactIndex::Collector
{
public:
    Collector(const QVector<Entry>& vecEntries, int iAtMost) : m_vecEntries(vecEntries), m_iAtMost(iAtMost)
    {
        m_vecTaken.reserve(qMin(iAtMost, int(LOOKED_THROUGH)));
    }

    const Entry& At(int iEntry) const { return m_vecEntries.at(iEntry); }
    bool IsFull() const { return m_listFound.size() >= m_iAtMost; }
    void Take(int iEntry)
    {
        if (isTaken(iEntry)) {
            return;
        }
        HostContact contact;
        contact.strName = At(iEntry).strName;
        contact.strNumber = At(iEntry).strNumber;
        m_listFound.append(contact);
    }
    const QList<HostContact>& Found() const { return m_listFound; }

private:
    // The few that somebody is offered are sooner looked through than hashed.
    static const int LOOKED_THROUGH = 64;

    bool isTaken(int iEntry)
    {
        if (m_vecTaken.contains(iEntry) || m_setTaken.contains(iEntry)) {
            return true;
        }
        if (m_vecTaken.size() < LOOKED_THROUGH) {
            m_vecTaken.append(iEntry);
        } else {
            m_setTaken.insert(iEntry);
        }
        return false;
    }

    const QVector<Entry>& m_vecEntries;
    const int m_iAtMost;
    QVector<int> m_vecTaken; // the first ones
    QSet<int> m_setTaken;    // those behind
    QList<HostContact> m_listFound;
};

void ContactIndex::Add(const QString& strName, const QString& strNumber, const QString& strKey)
{
    Entry entry;
    entry.strName = strName;
    entry.strNumber = strNumber;
    entry.strKey = strKey;
    // A contact's numbers come one behind the other and share what its name takes.
    const bool bSameName = !m_vecEntries.isEmpty() && m_vecEntries.last().strName == strName;
    entry.strFolded = bSameName ? m_vecEntries.last().strFolded : folded(strName);
    entry.strDigits = NumberMatch::Digits(strKey.isEmpty() ? strNumber : strKey);
    m_vecEntries.append(entry);
}

void ContactIndex::Sort()
{
    for (int i = 0; i < m_vecEntries.size(); ++i) {
        const Entry& entry = m_vecEntries.at(i);
        for (int iAt = 0; iAt < entry.strFolded.length(); ++iAt) {
            if (isWordStart(entry.strFolded, iAt)) {
                m_vecNames.append(Tail{i, iAt});
            }
        }
        if (entry.strDigits.isEmpty()) {
            continue;
        }
        m_vecNumbers.append(Tail{i, 0});
        const int iCode = codeLength(entry.strDigits);
        if (entry.strKey.startsWith(QLatin1Char('+')) && entry.strDigits.length() > iCode) {
            m_vecNumbers.append(Tail{i, iCode});
        }
        m_vecEnds.append(qMakePair(endOf(NumberMatch::Digits(entry.strNumber)), i));
    }
    sortTails(m_vecNames, &Entry::strFolded);
    sortTails(m_vecNumbers, &Entry::strDigits);
    std::sort(m_vecEnds.begin(), m_vecEnds.end());
}

void ContactIndex::sortTails(QVector<Tail>& vecTails, Text pText) const
{
    const Entry* pEntries = m_vecEntries.constData();
    std::sort(vecTails.begin(), vecTails.end(), [pEntries, pText](const Tail& one, const Tail& other) {
        const QString& strOne = pEntries[one.iEntry].*pText;
        const QString& strOther = pEntries[other.iEntry].*pText;
        const QChar* const pOne = strOne.constData();
        const QChar* const pOther = strOther.constData();
        if (std::lexicographical_compare(pOne + one.iFrom, pOne + strOne.length(), pOther + other.iFrom,
                                         pOther + strOther.length())) {
            return true;
        }
        const bool bGreater = std::lexicographical_compare(pOther + other.iFrom, pOther + strOther.length(),
                                                           pOne + one.iFrom, pOne + strOne.length());
        return !bGreater && one.iEntry < other.iEntry;
    });
}

int ContactIndex::firstOf(const QVector<Tail>& vecTails, Text pText, const QString& strBeginning) const
{
    const Entry* pEntries = m_vecEntries.constData();
    const auto it = std::lower_bound(vecTails.begin(), vecTails.end(), strBeginning,
                                     [pEntries, pText](const Tail& tail, const QString& strSought) {
                                         return compared(pEntries[tail.iEntry].*pText, tail.iFrom, strSought) < 0;
                                     });
    return int(it - vecTails.begin());
}

void ContactIndex::collect(const QVector<Tail>& vecTails, Text pText, const QString& strBeginning,
                           Collector& collector) const
{
    for (int i = firstOf(vecTails, pText, strBeginning); i < vecTails.size() && !collector.IsFull(); ++i) {
        const Tail& tail = vecTails.at(i);
        if (compared(m_vecEntries.at(tail.iEntry).*pText, tail.iFrom, strBeginning) != 0) {
            return;
        }
        // Of nobody in particular all are wanted by their whole names.
        if (!strBeginning.isEmpty() || tail.iFrom == 0) {
            collector.Take(tail.iEntry);
        }
    }
}

// Words in another order than the name has them: by the longest, which fewest have.
void ContactIndex::collectByWords(const QString& strFolded, Collector& collector) const
{
    QStringList lstWords = strFolded.split(QLatin1Char(' '));
    QString strLongest;
    foreach (const QString& strWord, lstWords) {
        strLongest = strWord.length() > strLongest.length() ? strWord : strLongest;
    }
    lstWords.removeOne(strLongest);
    for (int i = firstOf(m_vecNames, &Entry::strFolded, strLongest); i < m_vecNames.size() && !collector.IsFull();
         ++i) {
        const Tail& tail = m_vecNames.at(i);
        const QString& strName = m_vecEntries.at(tail.iEntry).strFolded;
        if (compared(strName, tail.iFrom, strLongest) != 0) {
            return;
        }
        bool bAll = true;
        foreach (const QString& strWord, lstWords) {
            bAll = bAll && hasWord(strName, strWord);
        }
        if (bAll) {
            collector.Take(tail.iEntry);
        }
    }
}

QList<HostContact> ContactIndex::Complete(const QString& strBeginning, int iAtMost) const
{
    const QString strText = folded(strBeginning.simplified());
    Collector collector(m_vecEntries, iAtMost);
    bool bNumber = !strText.isEmpty();
    foreach (const QChar c, strText) {
        bNumber = bNumber && isOfNumber(c);
    }
    const QString strDigits = bNumber ? NumberMatch::Digits(strText) : QString();
    if (!strDigits.isEmpty()) {
        collect(m_vecNumbers, &Entry::strDigits, strDigits, collector);
    }
    collect(m_vecNames, &Entry::strFolded, strText, collector);
    if (strText.contains(QLatin1Char(' '))) {
        collectByWords(strText, collector);
    }
    return collector.Found();
}

QString ContactIndex::NameOf(const QString& strNumber) const
{
    const QString strKey = NumberMatch::Key(strNumber);
    const QString strDigits = NumberMatch::Digits(strNumber);
    if (strDigits.isEmpty()) {
        return QString();
    }
    QVector<QPair<quint32, int>>::const_iterator it =
        std::lower_bound(m_vecEnds.begin(), m_vecEnds.end(), qMakePair(endOf(strDigits), 0));
    for (; it != m_vecEnds.end() && it->first == endOf(strDigits); ++it) {
        const Entry& entry = m_vecEntries.at(it->second);
        if (!entry.strName.isEmpty() &&
            NumberMatch::IsSame(strDigits, strKey, NumberMatch::Digits(entry.strNumber), entry.strKey)) {
            return entry.strName;
        }
    }
    return QString();
}
