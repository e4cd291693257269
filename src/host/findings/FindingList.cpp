#include "findings/FindingList.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include "linkhand/QtCompat.h"
#include "linkhand/SdkText.h"
#include "text/HostText.h"

// Null where the SDK in use does not have them.
#pragma weak ORVA_Care_GetFindings
#pragma weak ORVA_Care_FindingsRelease

namespace
{

struct Word {
    const char* pszName;
    const char* pszId;
};

// What vCards call their properties.
const Word PROPERTIES[] = {
    {"PHOTO", "IDS_HOST_FINDING_PHOTO"},      {"BDAY", "IDS_HOST_FINDING_BIRTHDAY"},
    {"ADR", "IDS_HOST_FINDING_ADDRESS"},      {"ORG", "IDS_HOST_FINDING_COMPANY"},
    {"TITLE", "IDS_HOST_FINDING_JOB"},        {"URL", "IDS_HOST_FINDING_PAGE"},
    {"CATEGORIES", "IDS_HOST_FINDING_GROUP"}, {"NICKNAME", "IDS_HOST_FINDING_NICKNAME"},
    {"TEL", "IDS_HOST_FINDING_PHONE"},        {"EMAIL", "IDS_HOST_FINDING_MAIL"},
    {"NOTE", "IDS_HOST_FINDING_NOTE"},        {"FN", "IDS_HOST_FINDING_NAME"},
};

// The keys of fields.
const Word FIELDS[] = {
    {"Name", "IDS_HOST_FIELD_NAME"},      {"Mobile", "IDS_HOST_FIELD_MOBILE"}, {"officePhone", "IDS_HOST_FIELD_OFFICE"},
    {"homePhone", "IDS_HOST_FIELD_HOME"}, {"email", "IDS_HOST_FIELD_EMAIL"},   {"remark", "IDS_HOST_FIELD_NOTES"},
    {"Number", "IDS_HOST_FIELD_MOBILE"},
};

// By their numbers, from 1 on.
const char* const REASONS[] = {
    "IDS_HOST_FINDING_QUOTE",        "IDS_HOST_FINDING_ROW_LENGTH", "IDS_HOST_FINDING_ROW_COLUMNS",
    "IDS_HOST_FINDING_ZERO",         "IDS_HOST_FINDING_NOT_TEXT",   "IDS_HOST_FINDING_VALUE_LENGTH",
    "IDS_HOST_FINDING_EMPTY",        "IDS_HOST_FINDING_COLUMN",     "IDS_HOST_FINDING_PROPERTY",
    "IDS_HOST_FINDING_FURTHER",      "IDS_HOST_FINDING_SEVERAL",    "IDS_HOST_FINDING_EMAIL",
    "IDS_HOST_FINDING_NOTE_CUT",     "IDS_HOST_FINDING_NAME_CUT",   "IDS_HOST_FINDING_NUMBER",
    "IDS_HOST_FINDING_TOO_LONG",     "IDS_HOST_FINDING_FULL",       "IDS_HOST_FINDING_CARD_END",
    "IDS_HOST_FINDING_CARD_LENGTH",  "IDS_HOST_FINDING_CARD_LINES", "IDS_HOST_FINDING_CARD_OUTSIDE",
    "IDS_HOST_FINDING_CARD_VERSION", "IDS_HOST_FINDING_CARD_LINE",  "IDS_HOST_FINDING_CARD_ENCODING",
    "IDS_HOST_FINDING_CARD_NONE",    "IDS_HOST_FINDING_GROUPS",     "IDS_HOST_FINDING_NO_GROUP",
    "IDS_HOST_FINDING_REFUSED",
};
const int REASON_COUNT = static_cast<int>(sizeof REASONS / sizeof *REASONS);

// Whether it would not be seen, or turn the text around it.
bool isHidden(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
           c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

QString visible(const QString& strText)
{
    QString strShown;
    for (int i = 0; i < strText.size(); ++i) {
        const QChar c = strText.at(i);
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t')) {
            strShown += QLatin1Char(' ');
        } else if (isHidden(c)) {
            strShown += QString::fromLatin1("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            strShown += c;
        }
    }
    return strShown;
}

FindingList::Entry entryOf(const ORVA_FINDING& finding)
{
    FindingList::Entry entry;
    entry.iLine = finding.line;
    entry.iColumn = finding.column;
    entry.iReason = finding.reason;
    entry.iCount = finding.count;
    entry.strName = QtCompat::fromUtf16(finding.name);
    entry.strValue = QtCompat::fromUtf16(finding.value);
    return entry;
}

} // namespace

QString FindingList::Entry::Row() const
{
    return iLine > 0 ? QLocale().toString(iLine) : QString();
}

QString FindingList::Entry::Column() const
{
    if (iColumn >= 0) {
        return strName.isEmpty() ? HostText::Get("IDS_HOST_FINDING_NUMBERED").arg(QLocale().toString(iColumn + 1))
                                 : visible(strName);
    }
    for (const Word& word : PROPERTIES) {
        if (strName == QLatin1String(word.pszName)) {
            return HostText::Get(word.pszId);
        }
    }
    for (const Word& word : FIELDS) {
        if (strName == QLatin1String(word.pszName)) {
            return HostText::Get(word.pszId);
        }
    }
    return visible(strName);
}

QString FindingList::Entry::Reason() const
{
    const bool bKnown = iReason >= 1 && iReason <= REASON_COUNT;
    const QString strText = HostText::Get(bKnown ? REASONS[iReason - 1] : "IDS_HOST_FINDING_PROPERTY");
    return strText.contains(QLatin1String("%1")) ? strText.arg(QLocale().toString(iCount)) : strText;
}

QString FindingList::Entry::Value() const
{
    return visible(strValue);
}

FindingList::FindingList(const ORVA_FINDING* pFindings, int iCount, int iTotal, const QString& strSource)
    : m_iTotal(iTotal), m_strSource(strSource)
{
    for (int i = 0; i < iCount; ++i) {
        m_entries.append(entryOf(pFindings[i]));
    }
}

FindingList FindingList::Read()
{
    ORVA_FINDING* pFindings = nullptr;
    int iCount = 0;
    int iTotal = 0;
    SdkText source;
    if (&ORVA_Care_GetFindings == nullptr ||
        ORVA_Care_GetFindings(&pFindings, &iCount, &iTotal, source.out()) != ORVA_OK) {
        return FindingList();
    }
    FindingList list(pFindings, iCount, iTotal, QFileInfo(source.toString()).fileName());
    ORVA_Care_FindingsRelease(&pFindings);
    return list;
}

QString FindingList::More() const
{
    const int iMore = m_iTotal - static_cast<int>(m_entries.size());
    return iMore > 0 ? HostText::Get("IDS_HOST_FINDINGS_MORE").arg(QLocale().toString(iMore)) : QString();
}

QStringList FindingList::Titles()
{
    return QStringList() << HostText::Get("IDS_HOST_FINDINGS_ROW") << HostText::Get("IDS_HOST_FINDINGS_COLUMN")
                         << HostText::Get("IDS_HOST_FINDINGS_REASON") << HostText::Get("IDS_HOST_FINDINGS_VALUE");
}

QString FindingList::Text(const Entry& entry)
{
    return (QStringList() << entry.Row() << entry.Column() << entry.Reason() << entry.Value())
        .join(QLatin1String("\t"));
}

QString FindingList::Text() const
{
    QStringList lstLines(Titles().join(QLatin1String("\t")));
    foreach (const Entry& entry, m_entries) {
        lstLines.append(Text(entry));
    }
    if (!More().isEmpty()) {
        lstLines.append(More());
    }
    return lstLines.join(QLatin1String("\n")) + QLatin1Char('\n');
}
