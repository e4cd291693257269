#ifndef LINKHAND_CORE_COREEXPORT_H
#define LINKHAND_CORE_COREEXPORT_H

#include <QtGlobal>

// Marks what libcore.so.1 exports; everything else in it is hidden.
#define LINKHAND_CORE_API Q_DECL_EXPORT

#endif // LINKHAND_CORE_COREEXPORT_H
