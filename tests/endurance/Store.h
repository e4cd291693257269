#ifndef TESTS_ENDURANCE_STORE_H
#define TESTS_ENDURANCE_STORE_H

#include <QHash>
#include <QString>

// What the SDK holds, asked for beside the program.
namespace Store
{
// Contacts of varied names and numbers into the PC's phonebook, groups of them, and some on the card.
void fill();

int records(int memory);

// Whether a contact of the PC has a name that begins so.
bool holds(const QString& beginning);

// Members by identifier of the group.
QHash<int, int> groupSizes();
} // namespace Store

#endif // TESTS_ENDURANCE_STORE_H
