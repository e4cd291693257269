#ifndef ADDRBOOKUIPLUGIN_TABLESEARCH_H
#define ADDRBOOKUIPLUGIN_TABLESEARCH_H

#include <QString>

#include "logic/AddrBookTypes.h"

// What the search does to the rows of one reader of the table, from the reader's start to the next one's. A reader that
// a node was clicked for starts with an idle one, so that nothing of the search before it is left.
class TableSearch
{
public:
    enum State {
        IDLE,      // every row shows
        NARROWING, // rows without the text have been taken out of the table
        RELOADING  // the reader was started for the text and lets only rows in that hold it
    };

    TableSearch() = default;
    static TableSearch Reloading(const QString& strText);

    State GetState() const { return m_enState; }
    const QString& Text() const { return m_strText; }

    // The user's text holds the one before it: rows go from the table, and none has to be read.
    void Narrow(const QString& strText);

    // Whether a record that the reader hands over gets a row.
    bool LetsIn(const AddrBookRecord& record, int iColumnCount) const;

    // Whether one of the first values holds a text, whatever the case of its letters; the empty text is in everything.
    static bool Holds(const AddrBookRecord& record, int iColumnCount, const QString& strText);

    // The reader has ended. True if rows came in that nobody has looked at, and the table must be narrowed once more.
    bool EndRead();

private:
    State m_enState = IDLE;
    QString m_strText;
    bool m_bReading = true;
};

#endif // ADDRBOOKUIPLUGIN_TABLESEARCH_H
