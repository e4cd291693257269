#include "care/SyncText.h"

#include <QLocale>
#include <QStringList>

#include "care/CareText.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_sync.h"
#include "text/HostText.h"

namespace
{

QString paragraph(const QString& strText)
{
    return QLatin1String("<p>") + QtCompat::htmlEscaped(strText).replace(QLatin1Char('\n'), QLatin1String("<br/>")) +
           QLatin1String("</p>");
}

// What other programs say reads from left to right in every language.
QString foreign(const QString& strText)
{
    return QLatin1String("<p dir=\"ltr\"><code>") +
           QtCompat::htmlEscaped(strText.trimmed()).replace(QLatin1Char('\n'), QLatin1String("<br/>")) +
           QLatin1String("</code></p>");
}

QString counts(const char* pszId, const int* piCounts)
{
    const QLocale locale;
    return HostText::Get(pszId).arg(locale.toString(piCounts[0]), locale.toString(piCounts[1]),
                                    locale.toString(piCounts[2]));
}

QString fieldsOf(const QString& strKeys)
{
    QStringList lstTitles;
    foreach (const QString& strKey, strKeys.split(QLatin1Char(';'))) {
        lstTitles.append(CareText::FieldTitle(strKey));
    }
    return lstTitles.join(QLatin1String(", "));
}

// Names that run the other way must not turn what stands behind them.
QString isolated(const QString& strText)
{
    return QChar(0x2068) + strText + QChar(0x2069);
}

QString noteText(const SyncNote& note)
{
    if (!note.bConflict) {
        const QString strReason = SyncText::Reason(note.iReason);
        return HostText::Get("IDS_HOST_CARE_SYNC_LEFT")
            .arg(isolated(note.strName), isolated(strReason.isEmpty() ? note.strWhat : strReason));
    }
    return HostText::Get(note.bHereWon ? "IDS_HOST_CARE_SYNC_CONFLICT_HERE" : "IDS_HOST_CARE_SYNC_CONFLICT_THERE")
        .arg(isolated(note.strName), fieldsOf(note.strWhat));
}

} // namespace

QString SyncText::Explain(long nCode)
{
    switch (nCode) {
    case ORVA_E_MARKER:
        return HostText::Get("IDS_HOST_CARE_SYNC_MARKER");
    case ORVA_E_BUSY:
        return HostText::Get("IDS_HOST_CARE_SYNC_BUSY");
    case ORVA_E_CANCELLED:
        return HostText::Get("IDS_HOST_CARE_SYNC_CANCELLED");
    case ORVA_E_CLIENT:
        return HostText::Get("IDS_HOST_CARE_SYNC_CLIENT");
    case ORVA_E_ARGUMENT:
        return HostText::Get("IDS_HOST_CARE_SYNC_URL_BAD");
    case ORVA_E_UNSUPPORTED:
        return HostText::Get("IDS_HOST_CARE_SYNC_URL_OPEN");
    default:
        return CareText::Explain(nCode);
    }
}

QString SyncText::Reason(int iReason)
{
    static const struct {
        int iReason;
        const char* pszId;
    } texts[] = {
        {ORVA_SYNC_REASON_LINK, "IDS_HOST_CARE_SYNC_LEFT_LINK"},
        {ORVA_SYNC_REASON_NO_FILE, "IDS_HOST_CARE_SYNC_LEFT_NO_FILE"},
        {ORVA_SYNC_REASON_LARGE, "IDS_HOST_CARE_SYNC_LEFT_LARGE"},
        {ORVA_SYNC_REASON_UNREADABLE, "IDS_HOST_CARE_SYNC_LEFT_UNREADABLE"},
        {ORVA_SYNC_REASON_NO_CARD, "IDS_HOST_CARE_SYNC_LEFT_NO_CARD"},
        {ORVA_SYNC_REASON_EMPTY, "IDS_HOST_CARE_SYNC_LEFT_EMPTY"},
        {ORVA_SYNC_REASON_COPY, "IDS_HOST_CARE_SYNC_LEFT_COPY"},
        {ORVA_SYNC_REASON_LARGE_CARD, "IDS_HOST_CARE_SYNC_LEFT_LARGE_CARD"},
        {ORVA_SYNC_REASON_FULL, "IDS_HOST_CARE_SYNC_LEFT_FULL"},
    };
    for (const auto& text : texts) {
        if (text.iReason == iReason) {
            return HostText::Get(text.pszId);
        }
    }
    return QString();
}

QString SyncText::Told(const SyncOutcome& outcome)
{
    if (outcome.bOffline) {
        return HostText::Get("IDS_HOST_CARE_SYNC_OFFLINE");
    }
    return outcome.nCode == ORVA_OK ? HostText::Get("IDS_HOST_CARE_SYNC_DONE") : Explain(outcome.nCode);
}

QString SyncText::Html(const SyncOutcome& outcome, bool bSetUp)
{
    if (!outcome.bThere) {
        return paragraph(HostText::Get(bSetUp ? "IDS_HOST_CARE_SYNC_NEVER" : "IDS_HOST_CARE_SYNC_NONE"));
    }
    QString strHtml = paragraph(HostText::Get("IDS_HOST_CARE_SYNC_LAST").arg(CareText::Time(outcome.iTime)) +
                                QLatin1Char('\n') + Told(outcome));
    if (!outcome.strSaid.isEmpty()) {
        strHtml += foreign(outcome.strSaid);
    }
    strHtml += paragraph(counts("IDS_HOST_CARE_SYNC_HERE", outcome.aiHere) + QLatin1Char('\n') +
                         counts("IDS_HOST_CARE_SYNC_THERE", outcome.aiThere));
    if (outcome.iHeld > 0) {
        strHtml += paragraph(HostText::Get("IDS_HOST_CARE_SYNC_HELD").arg(QLocale().toString(outcome.iHeld)));
    }
    foreach (const SyncNote& note, outcome.listNotes) {
        strHtml += paragraph(noteText(note));
    }
    return strHtml;
}
