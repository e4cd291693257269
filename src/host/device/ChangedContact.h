#ifndef LINKHAND_HOST_CHANGEDCONTACT_H
#define LINKHAND_HOST_CHANGEDCONTACT_H

#include <QString>

// Who it is that the phonebook has just added, changed or deleted: its messages name a memory and a number at best.
namespace ChangedContact
{

// To one of the messages PHONEBOOK_CONTACT_ADDED, _CHANGED and _DELETED. On the PC it is the newest contact, or the
// newest of the bin; elsewhere whoever has the number, which is 0 where it did not fit. Empty if nobody is found. Reads
// the whole phonebook: for single changes, and on any thread but that of the windows (ContactNamer).
QString Name(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber);

} // namespace ChangedContact

#endif // LINKHAND_HOST_CHANGEDCONTACT_H
