// The four services that clients can listen to.

#include "api/Boundary.h"
#include "api/Library.h"
#include "events/EventHub.h"

using namespace orva;

namespace
{

long listen(const char* function, Service service, ORVA_CALLBACK callback)
{
    return guarded(function, [&] {
        if (callback == nullptr)
            throw Failure(ORVA_E_ARGUMENT, "null callback");
        events().add(service, callback);
        return ORVA_OK;
    });
}

long stopListening(const char* function, Service service, ORVA_CALLBACK callback)
{
    return guarded(function, [&] {
        if (callback == nullptr)
            throw Failure(ORVA_E_ARGUMENT, "null callback");
        return events().remove(service, callback) ? ORVA_OK : ORVA_E_NOT_FOUND;
    });
}

} // namespace

long ORVA_PBSrv_RegisterPBCallback(ORVA_CALLBACK callback)
{
    return listen(__func__, Service::Phonebook, callback);
}

long ORVA_PBSrv_UnRegisterPBCallback(ORVA_CALLBACK callback)
{
    return stopListening(__func__, Service::Phonebook, callback);
}

long ORVA_DevSrv_RegisterDevInitEventCallback(ORVA_CALLBACK callback)
{
    return listen(__func__, Service::DeviceStart, callback);
}

long ORVA_DevSrv_UnRegisterDevInitEventCallback(ORVA_CALLBACK callback)
{
    return stopListening(__func__, Service::DeviceStart, callback);
}

long ORVA_DevSrv_RegisterDevMgrCallback(ORVA_CALLBACK callback)
{
    return listen(__func__, Service::DeviceManager, callback);
}

long ORVA_DevSrv_UnRegisterDevMgrCallback(ORVA_CALLBACK callback)
{
    return stopListening(__func__, Service::DeviceManager, callback);
}

long ORVA_NetSrv_RegisterNetSrvEvent(ORVA_CALLBACK callback)
{
    return listen(__func__, Service::Network, callback);
}

long ORVA_NetSrv_UnRegisterNetSrvEvent(ORVA_CALLBACK callback)
{
    return stopListening(__func__, Service::Network, callback);
}
