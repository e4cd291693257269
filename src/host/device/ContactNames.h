#ifndef LINKHAND_HOST_CONTACTNAMES_H
#define LINKHAND_HOST_CONTACTNAMES_H

#include <QString>

// Who has a number on the card or in the device, which hold some hundreds at most. Whoever asks for the PC's contacts
// goes by the index.
namespace ContactNames
{

// The name of the first contact of the memory with this number; empty if there is none. A number with its country's
// code is the same as one without. Any thread.
QString In(int iMemory, const QString& strNumber);

} // namespace ContactNames

#endif // LINKHAND_HOST_CONTACTNAMES_H
