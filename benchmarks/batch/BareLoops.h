#ifndef BENCHMARKS_BATCH_BARELOOPS_H
#define BENCHMARKS_BATCH_BARELOOPS_H

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>

// What a batch of the window cannot be faster than: the same calls of the library in a plain loop, the same pause after
// each record, and one repaint of a dialog with the same widgets.

// A dialog with the widgets of the one that shows the progress of a batch.
class BareDialog : public QDialog
{
public:
    BareDialog();
};

// Stops the program at a call that fails.
void expect(long code);

// Contact number n, with a name and as many numbers as asked for.
QStringList contact(int n, int numbers);

// Adds a contact; its identifier.
int addContact(int memory, const QStringList& values);

// Adds many in transactions of 200, without a pause.
QList<int> addContacts(int memory, int count, int numbers);

// Identifiers of all contacts of a memory.
QList<int> allContacts(int memory);
void eraseAll(int memory);

// The loops. With a dialog, each record has its pause and its repaint.
void addBarely(int memory, const QList<QStringList>& contacts, bool join, BareDialog& dialog);
void deleteBarely(int memory, const QList<int>& ids, BareDialog& dialog);

// Reads each contact through a handle of its own, and writes a file of these bytes anew for each.
void readBarely(int memory, const QList<int>& ids, const QString& file, const QByteArray& bytes);

#endif // BENCHMARKS_BATCH_BARELOOPS_H
