#ifndef BENCHMARKS_GUI_BASELINES_H
#define BENCHMARKS_GUI_BASELINES_H

#include <QString>
#include <QStringList>
#include <QVector>

// What the window is measured against, and the data that both work on.

// Time on the clock and time of all threads of this process on a processor, both in milliseconds. On a busy machine
// only the second says something.
struct Time {
    double dWall;
    double dProcessor;
};

// Started when made.
class Stopwatch
{
public:
    Stopwatch();
    Time elapsed() const;

private:
    Time m_start;
};

// Contacts of six fields, in an order that is not that of their names.
QVector<QStringList> makeContacts(int iCount);

// Stores them in the PC's phonebook through the SDK.
bool storeContacts(const QVector<QStringList>& lstContacts);

// A plain loop over the rows of a store's file.
Time readPlainly(const QString& strDataFolder, QVector<QStringList>& lstRows);

// A bare table on the screen, filled in bulk, and sorted once by its first column if told so.
Time fillBareTable(const QVector<QStringList>& lstRows, bool bSort);

#endif // BENCHMARKS_GUI_BASELINES_H
