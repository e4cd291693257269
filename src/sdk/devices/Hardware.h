#ifndef SDK_DEVICES_HARDWARE_H
#define SDK_DEVICES_HARDWARE_H

#include <cstdint>
#include <memory>
#include <vector>

#include "base/Profile.h"
#include "orva/orva_sdk.h"

namespace orva
{

// What a device with its card, radio and network is at a moment, in the numbers that the C functions give.
struct DeviceStatus {
    int attached = 1;
    int card = 1;
    int pinStatus = ORVA_PIN_NOT_NEEDED;
    int productType = 0;
    int cardType = 1;
    int radioFirst = 1;
    int radioSecond = 1;
    int network = ORVA_NETWORK_IN_SERVICE;
    int multiModeFirst = 0;
    int multiModeSecond = 0;
};

/*
 * The device behind the card's and the device's memory: there or away, open or closed, and of what shape. What it keeps
 * is read and written by its memories.
 *
 * Any thread. An answer is the one of this moment and may be stale when it is used: a memory asks again after what took
 * its time. Events of a change go out in the order of the changes, without a lock that a callback could need.
 */
class Hardware
{
public:
    virtual ~Hardware() = default;

    virtual DeviceStatus status() const = 0;

    // The memories that are there, the card first; whether each is open is another question.
    virtual std::vector<int> memories() const = 0;

    // Failure(ORVA_E_ABSENT) unless the memory is there and open: a card's PIN status says so.
    virtual void requireOpen(int memory) const = 0;

    // Its fields. ORVA_E_ABSENT unless the memory is there.
    virtual std::shared_ptr<const Profile> profile(int memory) const = 0;

    // How many records fit; 0 while the memory is closed or not ready. ORVA_E_ABSENT unless it is there.
    virtual int capacity(int memory) const = 0;

    // Grows whenever a memory appears, disappears or changes its shape.
    virtual std::uint64_t epoch() const = 0;
};

} // namespace orva

#endif // SDK_DEVICES_HARDWARE_H
