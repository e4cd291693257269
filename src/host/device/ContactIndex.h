#ifndef LINKHAND_HOST_CONTACTINDEX_H
#define LINKHAND_HOST_CONTACTINDEX_H

#include <QList>
#include <QString>
#include <QVector>

#include "shared/HostContacts.h"

// Names and numbers of all contacts as they were at one moment, in the orders in which they are looked for. Filled by
// one thread; once sorted it changes no more, and any thread may read it.
class ContactIndex
{
public:
    // strKey is the number's, by NumberMatch. Of several contacts with a number, the one that was added first has it.
    void Add(const QString& strName, const QString& strNumber, const QString& strKey);

    // Called once, after the last.
    void Sort();

    int Count() const { return m_vecEntries.size(); }

    // At most iAtMost numbers whose contact's name has a word that begins so, whatever its case and accents, or that
    // begin so themselves, with or without what stands before a number of the same or another country. Of a text of
    // several words each has to begin one. The empty text gives the first by name.
    QList<HostContact> Complete(const QString& strBeginning, int iAtMost) const;

    // The name of the contact with this number; empty if there is none.
    QString NameOf(const QString& strNumber) const;

private:
    struct Entry {
        QString strName;
        QString strNumber;
        QString strKey;
        QString strFolded; // the name without case and accents
        QString strDigits; // of the key
    };

    // A text that may be looked for: a part of an entry's name or digits, up to its end.
    struct Tail {
        int iEntry;
        int iFrom;
    };

    class Collector;

    typedef QString Entry::*Text;
    void sortTails(QVector<Tail>& vecTails, Text pText) const;
    int firstOf(const QVector<Tail>& vecTails, Text pText, const QString& strBeginning) const;
    void collect(const QVector<Tail>& vecTails, Text pText, const QString& strBeginning, Collector& collector) const;
    void collectByWords(const QString& strFolded, Collector& collector) const;

    QVector<Entry> m_vecEntries;
    QVector<Tail> m_vecNames;               // a tail for each word
    QVector<Tail> m_vecNumbers;             // one for each way in which a number may begin
    QVector<QPair<quint32, int>> m_vecEnds; // what digits end with, and the entry
};

#endif // LINKHAND_HOST_CONTACTINDEX_H
