#include "text/Problem.h"

#include <QLocale>

#include "text/HostText.h"

bool Problem::IsGrave() const
{
    return strReasonId == QLatin1String("IDS_HOST_PROBLEM_FOLDER_CREATE") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_FOLDER_WRITE") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_STORE") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_STORE_NEWER") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_DAMAGED") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_LOSS") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_MESSAGES") ||
           strReasonId == QLatin1String("IDS_HOST_PROBLEM_OUTBOX");
}

QString Problem::Reason() const
{
    const QString strText = HostText::Get(strReasonId);
    if (!strText.contains(QLatin1String("%1"))) {
        return strText;
    }
    bool bNumber = false;
    const int iCount = strDetail.toInt(&bNumber);
    return strText.arg(bNumber && strReasonId == QLatin1String("IDS_HOST_PROBLEM_LOSS") ? QLocale().toString(iCount)
                                                                                        : strDetail);
}
