#ifndef BENCHMARKS_WINDOW_BASELINES_H
#define BENCHMARKS_WINDOW_BASELINES_H

#include <QString>
#include <QStringList>
#include <QVector>

#include "benchmarks/support/Bench.h"

// What the window is measured against, and the data that both work on.

// Contacts of six fields, in an order that is not that of their names.
QVector<QStringList> makeContacts(int iCount);

// Stores them in the PC's phonebook through the SDK.
bool storeContacts(const QVector<QStringList>& lstContacts);

// A plain loop over the rows of a store's file.
bench::Time readPlainly(const QString& strDataFolder, QVector<QStringList>& lstRows);

// A bare table on the screen, filled in bulk, and sorted once by its first column if told so.
bench::Time fillBareTable(const QVector<QStringList>& lstRows, bool bSort);

#endif // BENCHMARKS_WINDOW_BASELINES_H
