#ifndef LINKHAND_HOST_SHAREDOBJECT_H
#define LINKHAND_HOST_SHAREDOBJECT_H

#include <QFile>

namespace SharedObject
{

// True if the open file is a shared object of this machine's word size that holds all it claims to: the dynamic linker
// maps a truncated one without a look, and the first touch behind its end kills the process.
bool IsWhole(QFile& file);

} // namespace SharedObject

#endif // LINKHAND_HOST_SHAREDOBJECT_H
