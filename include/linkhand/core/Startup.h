#ifndef LINKHAND_CORE_STARTUP_H
#define LINKHAND_CORE_STARTUP_H

#include "linkhand/core/CoreExport.h"
#include "linkhand/plugin/IPluginContainer.h"

// Access to the other plug-ins. User-interface thread only.
class LINKHAND_CORE_API Startup
{
public:
    // The host's container of plug-ins, null if there is none. Stays the host's; ask anew each time.
    static IPluginContainer* GetPluginContainer();
};

#endif // LINKHAND_CORE_STARTUP_H
