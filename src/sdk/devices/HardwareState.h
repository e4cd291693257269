#ifndef SDK_DEVICES_HARDWARESTATE_H
#define SDK_DEVICES_HARDWARESTATE_H

#include <string>
#include <string_view>

#include "devices/Hardware.h"

namespace orva
{

// What the simulated hardware is at a moment, with the sizes of its memories and of the PC's.
struct HardwareState : DeviceStatus {
    int cardCapacity = 250;
    int deviceCapacity = 500;
    int localCapacity = 100000;
    int cardNameLength = 14;
    int cardNumberLength = 20;
    int cardNameUnits = 0;
    int deviceNameLength = 30;
    int deviceNumberLength = 40;
    int deviceFields = 2;
};

// As lines of "key=value". Reading keeps the default for what is missing, unknown or out of range.
std::string writeHardwareState(const HardwareState& state);
HardwareState readHardwareState(std::string_view text);

// `disk` with what differs between `before` and `after`: another process may have written the rest meanwhile.
HardwareState withChanges(HardwareState disk, const HardwareState& before, const HardwareState& after);

// Ranges of what can be set.
constexpr int mostRecords = 1000000;
constexpr int mostFieldLength = 255;
constexpr int mostDelay = 10000;

} // namespace orva

#endif // SDK_DEVICES_HARDWARESTATE_H
