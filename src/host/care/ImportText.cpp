#include "care/ImportText.h"

#include <QLocale>

#include "text/HostText.h"

namespace
{

// By ORVA_IMPORT_..., from 1 on.
const char* const OUTCOMES[] = {"IDS_HOST_CARE_IMPORT_NEW", "IDS_HOST_CARE_IMPORT_CHANGED", "IDS_HOST_CARE_IMPORT_SAME",
                                "IDS_HOST_CARE_IMPORT_THERE", "IDS_HOST_CARE_IMPORT_NOT"};

QString outcomeText(int iOutcome)
{
    return iOutcome >= ORVA_IMPORT_ADDED && iOutcome <= ORVA_IMPORT_LEFT ? HostText::Get(OUTCOMES[iOutcome - 1])
                                                                         : QString();
}

} // namespace

QStringList ImportText::Titles()
{
    return QStringList() << HostText::Get("IDS_HOST_FIELD_NAME") << HostText::Get("IDS_HOST_CARE_COLUMN_NUMBER")
                         << HostText::Get("IDS_HOST_CARE_IMPORT_OUTCOME");
}

QList<CareRow> ImportText::Rows(const QList<ImportRow>& listRows)
{
    QList<CareRow> listShown;
    for (int i = 0; i < listRows.size(); ++i) {
        const ImportRow& row = listRows.at(i);
        listShown.append(CareRow(i + 1, QStringList() << row.strName << row.strNumber << outcomeText(row.iOutcome)));
    }
    return listShown;
}

QString ImportText::Summary(bool bTry, const QString& strShown, const ORVA_IMPORT_COUNTS& counts)
{
    const char* const pszId = bTry ? "IDS_HOST_CARE_IMPORT_WOULD" : "IDS_HOST_CARE_IMPORT_DID";
    const QLocale locale;
    return HostText::Get(pszId).arg(strShown, locale.toString(counts.added), locale.toString(counts.changed),
                                    locale.toString(counts.same + counts.skipped), locale.toString(counts.left));
}

QStringList ImportText::ExistingChoices()
{
    return QStringList() << HostText::Get("IDS_HOST_CARE_IMPORT_ADD") << HostText::Get("IDS_HOST_CARE_IMPORT_SKIP")
                         << HostText::Get("IDS_HOST_CARE_IMPORT_UPDATE");
}

QString ImportText::Left(const FindingList& findings)
{
    return HostText::Get("IDS_HOST_CARE_IMPORT_LEFT").arg(QLocale().toString(findings.Total()));
}

bool ImportText::IsOfSource(long nCode)
{
    return nCode == ORVA_E_FORMAT || nCode == ORVA_E_NOT_FOUND || nCode == ORVA_E_TOO_LONG;
}
