#ifndef LINKHAND_HOST_CLEANNUMBER_H
#define LINKHAND_HOST_CLEANNUMBER_H

#include <QString>

namespace CleanNumber
{

// A number as the PC's phonebook stores it: without what is there for the eye, and without an extension. A text that is
// no number comes back as it is. Any thread.
QString Of(const QString& strText);

} // namespace CleanNumber

#endif // LINKHAND_HOST_CLEANNUMBER_H
