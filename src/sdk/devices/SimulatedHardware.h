#ifndef SDK_DEVICES_SIMULATEDHARDWARE_H
#define SDK_DEVICES_SIMULATEDHARDWARE_H

#include <array>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "devices/Hardware.h"
#include "devices/HardwareState.h"
#include "events/EventHub.h"

namespace orva
{

/*
 * The simulated device with its card, radio and network. What it is made of (attached, card in, PIN status, sizes, ...)
 * is kept in sim.ini in the data folder, so that the next process finds it; how it behaves for a test (delays, ready
 * events left out) is not.
 *
 * Any thread. A change sends its events while the lock is held, so that events come in the order of the changes.
 */
class SimulatedHardware final : public Hardware
{
public:
    SimulatedHardware(std::string folder, EventHub& events);

    DeviceStatus status() const override;
    std::vector<int> memories() const override;
    void requireOpen(int memory) const override;
    std::shared_ptr<const Profile> profile(int memory) const override;
    int capacity(int memory) const override;
    std::uint64_t epoch() const override { return m_epoch.load(std::memory_order_acquire); }

    // Changes; false for an argument out of range.
    bool setAttached(bool attached);
    bool setCard(bool inserted);
    bool setPinStatus(int status);
    bool setProductType(int type);
    bool setCardType(int type);
    bool setRadio(int first, int second);
    bool setNetwork(int status);
    bool setMultiMode(unsigned char first, unsigned char second);
    bool setAutoReady(bool automatic);
    bool setDelay(int memory, int readMs, int writeMs);
    bool setCapacity(int memory, int capacity);
    bool setFieldLengths(int memory, int nameLength, int numberLength);
    bool setDeviceFields(int count);
    bool setNameUnits(bool units);

    // How many records the PC's memory takes, which is configured with the others.
    int localCapacity() const;

    int readDelay(int memory) const;

    // Let the time of some reads or of one write pass; ORVA_E_ABSENT as soon as the memory goes away.
    void spendReading(int memory, int records);
    void spendWriting(int memory);

    // Whether the card promises room for a number of characters, whatever they are.
    bool countsUnits() const;

private:
    using Lock = std::unique_lock<std::mutex>;

    struct Delay {
        int read = 0;
        int write = 0;
    };

    // Each with the lock held.
    template <typename Change>
    bool change(Change&& change);
    HardwareState readKept() const;
    void keep(const HardwareState& before);
    void shapeProfiles();
    bool present(int memory) const;
    bool open(int memory) const;
    void requirePresent(int memory) const;
    void spend(int memory, long long milliseconds);

    const std::string m_folder;
    EventHub& m_events;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    HardwareState m_state;
    std::atomic<int> m_localCapacity{0}; // as the state has it; asked for with each record that is stored
    bool m_autoReady = true;
    std::array<Delay, 2> m_delays;
    std::array<std::shared_ptr<const Profile>, 2> m_profiles;
    std::atomic<std::uint64_t> m_epoch{0};
};

} // namespace orva

#endif // SDK_DEVICES_SIMULATEDHARDWARE_H
