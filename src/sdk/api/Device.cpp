// Device, card, radio and network as they are now.

#include "api/Boundary.h"
#include "api/Library.h"
#include "base/DataFolder.h"
#include "base/Files.h"
#include "base/Text.h"
#include "devices/Hardware.h"

using namespace orva;

namespace
{

DeviceStatus attachedState()
{
    const DeviceStatus state = hardware().status();
    if (state.attached == 0)
        throw Failure(ORVA_E_ABSENT, "no device");
    return state;
}

DeviceStatus cardState()
{
    const DeviceStatus state = attachedState();
    if (state.card == 0)
        throw Failure(ORVA_E_ABSENT, "no card");
    return state;
}

} // namespace

long ORVA_DevSrv_GetDevStatus(int* status)
{
    return guarded(__func__, [&] {
        require(status);
        *status = hardware().status().attached != 0 ? ORVA_DEVICE_AVAILABLE : ORVA_DEVICE_AWAY;
        return ORVA_OK;
    });
}

long ORVA_DevSrv_GetPinStatus(int slot, int* status, unsigned char* pin1, unsigned char* pin2, unsigned char* puk)
{
    return guarded(__func__, [&] {
        require(status);
        if (slot != 0)
            throw Failure(ORVA_E_ARGUMENT, "no such slot");
        *status = cardState().pinStatus;
        for (unsigned char* const byte : {pin1, pin2, puk}) {
            if (byte != nullptr)
                *byte = 0;
        }
        return ORVA_OK;
    });
}

long ORVA_DevSrv_GetProductType(int* type)
{
    return guarded(__func__, [&] {
        require(type);
        // Known without the device: it is what the program is sold with.
        *type = hardware().status().productType;
        return ORVA_OK;
    });
}

long ORVA_DevSrv_GetSimType(int* type)
{
    return guarded(__func__, [&] {
        require(type);
        *type = cardState().cardType;
        return ORVA_OK;
    });
}

long ORVA_DevSrv_GetRFSwitch(int* states)
{
    return guarded(__func__, [&] {
        require(states);
        const DeviceStatus state = attachedState();
        states[0] = state.radioFirst;
        states[1] = state.radioSecond;
        return ORVA_OK;
    });
}

long ORVA_DevSrv_GetMultiModeCardStatus(unsigned char* status, void* reserved1, void* reserved2, void* reserved3)
{
    return guarded(__func__, [&] {
        require(status);
        if (reserved1 != nullptr || reserved2 != nullptr || reserved3 != nullptr)
            throw Failure(ORVA_E_ARGUMENT, "reserved argument in use");
        const DeviceStatus state = attachedState();
        status[0] = static_cast<unsigned char>(state.multiModeFirst);
        status[1] = static_cast<unsigned char>(state.multiModeSecond);
        return ORVA_OK;
    });
}

long ORVA_NetSrv_GetSrvStatus(int* status)
{
    return guarded(__func__, [&] {
        require(status);
        *status = attachedState().network;
        return ORVA_OK;
    });
}

long ORVA_GetLogDirectory(unsigned short** path)
{
    return guarded(__func__, [&] {
        require(path);
        *path = toApi(fromUtf8(preparePrivateFolder(logFolder()) + "/"));
        return ORVA_OK;
    });
}
