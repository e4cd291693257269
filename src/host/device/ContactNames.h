#ifndef LINKHAND_HOST_CONTACTNAMES_H
#define LINKHAND_HOST_CONTACTNAMES_H

#include <QString>

// Who it is that calls or writes.
namespace ContactNames
{

// The name of the first contact with this number, of the PC, the card or the device; empty if there is none. A number
// with its country's code is the same as one without. Reads the whole phonebook: for single events. Any thread.
QString Of(const QString& strNumber);

// The name with the number behind it, or the number alone.
QString WithNumber(const QString& strNumber);

} // namespace ContactNames

#endif // LINKHAND_HOST_CONTACTNAMES_H
