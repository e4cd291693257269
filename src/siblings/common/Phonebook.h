#ifndef LINKHAND_SIBLINGS_PHONEBOOK_H
#define LINKHAND_SIBLINGS_PHONEBOOK_H

#include <QStringList>

class QWidget;

// The phonebook as the siblings use it. User-interface thread only.
namespace Phonebook
{

// True if the phonebook is loaded and serves its siblings.
bool Available();

// Lets the user choose numbers, starting from lstNumbers. True, with the new choice in lstNumbers (each number once),
// if the user confirmed.
bool SelectNumbers(QStringList& lstNumbers);

// Lets the user save a number as a contact.
void SaveNumber(const QString& strNumber, QWidget* pParent);

} // namespace Phonebook

#endif // LINKHAND_SIBLINGS_PHONEBOOK_H
