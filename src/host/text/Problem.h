#ifndef LINKHAND_HOST_PROBLEM_H
#define LINKHAND_HOST_PROBLEM_H

#include <QList>
#include <QString>

// Something that did not work and that the user should know of: what it concerns, and why, as a language id with an
// optional detail for its %1. Kept as ids so that the list follows a change of language.
struct Problem {
    QString strName;
    QString strReasonId;
    QString strDetail;

    Problem() {}
    Problem(const QString& name, const char* pszReasonId, const QString& detail = QString())
        : strName(name), strReasonId(QLatin1String(pszReasonId)), strDetail(detail)
    {
    }

    // True for what touches the user's contacts or messages, which must not go unseen.
    bool IsGrave() const;

    // The reason in the current language.
    QString Reason() const;
};

typedef QList<Problem> ProblemList;

#endif // LINKHAND_HOST_PROBLEM_H
