#ifndef LINKHAND_CORE_HOST_H
#define LINKHAND_CORE_HOST_H

#include <QString>

#include "linkhand/core/HostServices.h"

// The way to what the host published for this library.
namespace Host
{

// The host's services, null if it published none. User-interface thread only; each call looks anew and leaves what it
// found for the other threads.
HostServices* services();

// The same from any thread. Another thread sees what the user-interface thread last found.
HostServices* servicesFromAnyThread();

// The folder that holds "plugins": the host's answer, else the program's folder. User-interface thread only.
QString libraryPath();

} // namespace Host

#endif // LINKHAND_CORE_HOST_H
