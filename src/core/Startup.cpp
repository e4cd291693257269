#include "linkhand/core/Startup.h"

#include "Host.h"

IPluginContainer* Startup::GetPluginContainer()
{
    HostServices* pServices = Host::services();
    return pServices != nullptr ? pServices->PluginContainer() : nullptr;
}
