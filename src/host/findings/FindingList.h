#ifndef LINKHAND_HOST_FINDINGLIST_H
#define LINKHAND_HOST_FINDINGLIST_H

#include <QList>
#include <QString>

#include "orva/orva_care.h"

// What the last import left of its source, as the SDK tells it. Kept without words, so that it follows a change of
// language.
class FindingList
{
public:
    struct Entry {
        int iLine;   // 0 for a whole column
        int iColumn; // counted from 0; -1 for none
        int iReason; // ORVA_FINDING_...
        int iCount;
        QString strName;
        QString strValue;

        // In the current language; empty where there is nothing to say.
        QString Row() const;
        QString Column() const;
        QString Reason() const;

        // The value on one line, with what nobody could see shown by its code.
        QString Value() const;
    };

    FindingList() : m_iTotal(0) {}

    // Those of an import: the entries that were kept, of a number in all, from a source of that name.
    FindingList(const ORVA_FINDING* pFindings, int iCount, int iTotal, const QString& strSource);

    // Those of the SDK as it is now; none with one that tells of none.
    static FindingList Read();

    const QList<Entry>& Entries() const { return m_entries; }
    int Total() const { return m_iTotal; }

    // The name of the file or program that was read.
    const QString& Source() const { return m_strSource; }

    // What the entries do not hold; empty if they hold all.
    QString More() const;

    // The titles of the four columns.
    static QStringList Titles();

    // One entry a line under the titles, with tabs between.
    QString Text() const;
    static QString Text(const Entry& entry);

private:
    QList<Entry> m_entries;
    int m_iTotal;
    QString m_strSource;
};

#endif // LINKHAND_HOST_FINDINGLIST_H
