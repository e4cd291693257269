#include "devices/SimulatedHardware.h"

#include <chrono>

#include "base/Failure.h"
#include "base/Files.h"
#include "base/Log.h"

namespace orva
{

namespace
{

constexpr std::size_t stateFileLimit = 16384;

bool isHardware(int memory)
{
    return memory == ORVA_MEMORY_CARD || memory == ORVA_MEMORY_DEVICE;
}

std::size_t slot(int memory)
{
    return memory == ORVA_MEMORY_CARD ? 0 : 1;
}

// Sets what `member` points to; false if it was that already.
bool put(int& member, int value)
{
    if (member == value)
        return false;
    member = value;
    return true;
}

} // namespace

SimulatedHardware::SimulatedHardware(std::string folder, EventHub& events)
    : m_folder(std::move(folder)), m_events(events)
{
    const Lock lock(m_mutex);
    m_state = readKept();
    m_localCapacity = m_state.localCapacity;
    shapeProfiles();
}

DeviceStatus SimulatedHardware::status() const
{
    const Lock lock(m_mutex);
    return m_state;
}

// ---- Keeping

HardwareState SimulatedHardware::readKept() const
{
    return readHardwareState(readSmallFile(m_folder + "/sim.ini", stateFileLimit));
}

void SimulatedHardware::keep(const HardwareState& before)
{
    try {
        preparePrivateFolder(m_folder);
        FileLock turn(m_folder + "/sim.lock");
        turn.lock();
        replacePrivateFile(m_folder + "/sim.ini", writeHardwareState(withChanges(readKept(), before, m_state)));
    } catch (const std::exception& failure) {
        // The switch itself works all the same.
        logFormat("keeping the hardware's state: %s", failure.what());
    }
}

void SimulatedHardware::shapeProfiles()
{
    m_profiles[0] = std::make_shared<const Profile>(deviceProfile(2, m_state.cardNameLength, m_state.cardNumberLength));
    m_profiles[1] = std::make_shared<const Profile>(
        deviceProfile(m_state.deviceFields, m_state.deviceNameLength, m_state.deviceNumberLength));
}

template <typename Change>
bool SimulatedHardware::change(Change&& change)
{
    const Lock lock(m_mutex);
    const HardwareState before = m_state;
    if (!change())
        return true;
    keep(before);
    shapeProfiles();
    m_epoch.fetch_add(1, std::memory_order_acq_rel);
    m_changed.notify_all();
    return true;
}

// ---- Switches

bool SimulatedHardware::setAttached(bool attached)
{
    return change([&] {
        if (!put(m_state.attached, attached ? 1 : 0))
            return false;
        m_events.post(ORVA_EVENT_DEV_DEVICE_INIT_FINISH);
        if (!attached)
            return true;
        m_events.post(ORVA_EVENT_PBM_EVENT_READY);
        if (m_autoReady && m_state.card != 0)
            m_events.post(ORVA_EVENT_PBM_EVENT_SIM_READY);
        if (m_autoReady)
            m_events.post(ORVA_EVENT_PBM_EVENT_NV_READY);
        return true;
    });
}

bool SimulatedHardware::setCard(bool inserted)
{
    return change([&] {
        if (!put(m_state.card, inserted ? 1 : 0))
            return false;
        m_events.post(inserted ? ORVA_EVENT_DEV_CARD_CHANGED : ORVA_EVENT_DEV_SIM_INVALID);
        if (inserted && m_autoReady && m_state.attached != 0)
            m_events.post(ORVA_EVENT_PBM_EVENT_SIM_READY);
        return true;
    });
}

bool SimulatedHardware::setPinStatus(int status)
{
    return change([&] {
        const bool changed = put(m_state.pinStatus, status);
        if (changed)
            m_events.post(ORVA_EVENT_DEV_PIN_CHANGED);
        return changed;
    });
}

bool SimulatedHardware::setProductType(int type)
{
    return change([&] { return put(m_state.productType, type); });
}

bool SimulatedHardware::setCardType(int type)
{
    return change([&] { return put(m_state.cardType, type); });
}

bool SimulatedHardware::setRadio(int first, int second)
{
    return change([&] {
        const bool firstChanged = put(m_state.radioFirst, first);
        const bool secondChanged = put(m_state.radioSecond, second);
        if (firstChanged || secondChanged)
            m_events.post(ORVA_EVENT_DEV_RF_SWITCH);
        return firstChanged || secondChanged;
    });
}

bool SimulatedHardware::setNetwork(int status)
{
    return change([&] {
        const bool changed = put(m_state.network, status);
        if (changed)
            m_events.post(ORVA_EVENT_NET_STATUS);
        return changed;
    });
}

bool SimulatedHardware::setMultiMode(unsigned char first, unsigned char second)
{
    return change([&] {
        const bool firstChanged = put(m_state.multiModeFirst, first);
        const bool secondChanged = put(m_state.multiModeSecond, second);
        return firstChanged || secondChanged;
    });
}

bool SimulatedHardware::setAutoReady(bool automatic)
{
    const Lock lock(m_mutex);
    m_autoReady = automatic;
    return true;
}

bool SimulatedHardware::setDelay(int memory, int readMs, int writeMs)
{
    if (!isHardware(memory) || readMs < 0 || readMs > mostDelay || writeMs < 0 || writeMs > mostDelay)
        return false;
    const Lock lock(m_mutex);
    m_delays[slot(memory)] = {readMs, writeMs};
    return true;
}

bool SimulatedHardware::setCapacity(int memory, int capacity)
{
    if ((!isHardware(memory) && memory != ORVA_MEMORY_LOCAL) || capacity < 0 || capacity > mostRecords)
        return false;
    return change([&] {
        if (memory == ORVA_MEMORY_LOCAL) {
            m_localCapacity = capacity;
            return put(m_state.localCapacity, capacity);
        }
        return put(memory == ORVA_MEMORY_CARD ? m_state.cardCapacity : m_state.deviceCapacity, capacity);
    });
}

bool SimulatedHardware::setFieldLengths(int memory, int nameLength, int numberLength)
{
    if (!isHardware(memory) || nameLength < 1 || nameLength > mostFieldLength || numberLength < 1 ||
        numberLength > mostFieldLength)
        return false;
    return change([&] {
        const bool card = memory == ORVA_MEMORY_CARD;
        const bool nameChanged = put(card ? m_state.cardNameLength : m_state.deviceNameLength, nameLength);
        const bool numberChanged = put(card ? m_state.cardNumberLength : m_state.deviceNumberLength, numberLength);
        return nameChanged || numberChanged;
    });
}

bool SimulatedHardware::setDeviceFields(int count)
{
    if (count < 2 || count > 4)
        return false;
    bool allowed = true;
    change([&] {
        allowed = m_state.attached == 0;
        return allowed && put(m_state.deviceFields, count);
    });
    return allowed;
}

bool SimulatedHardware::setNameUnits(bool units)
{
    return change([&] { return put(m_state.cardNameUnits, units ? 1 : 0); });
}

// ---- Presence and time

bool SimulatedHardware::present(int memory) const
{
    return m_state.attached != 0 && (memory == ORVA_MEMORY_DEVICE || m_state.card != 0);
}

bool SimulatedHardware::open(int memory) const
{
    return present(memory) && (memory == ORVA_MEMORY_DEVICE || m_state.pinStatus == ORVA_PIN_NOT_NEEDED ||
                               m_state.pinStatus == ORVA_PIN_VERIFIED);
}

void SimulatedHardware::requireOpen(int memory) const
{
    const Lock lock(m_mutex);
    if (!open(memory))
        throw Failure(ORVA_E_ABSENT, "the memory is not there");
}

void SimulatedHardware::requirePresent(int memory) const
{
    if (!present(memory))
        throw Failure(ORVA_E_ABSENT, "the memory is not there");
}

std::vector<int> SimulatedHardware::memories() const
{
    const Lock lock(m_mutex);
    std::vector<int> there;
    for (const int memory : {ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}) {
        if (present(memory))
            there.push_back(memory);
    }
    return there;
}

std::shared_ptr<const Profile> SimulatedHardware::profile(int memory) const
{
    const Lock lock(m_mutex);
    requirePresent(memory);
    return m_profiles[slot(memory)];
}

int SimulatedHardware::capacity(int memory) const
{
    const Lock lock(m_mutex);
    requirePresent(memory);
    if (!open(memory))
        return 0;
    return memory == ORVA_MEMORY_CARD ? m_state.cardCapacity : m_state.deviceCapacity;
}

int SimulatedHardware::localCapacity() const
{
    return m_localCapacity;
}

bool SimulatedHardware::countsUnits() const
{
    const Lock lock(m_mutex);
    return m_state.cardNameUnits != 0;
}

int SimulatedHardware::readDelay(int memory) const
{
    const Lock lock(m_mutex);
    return m_delays[slot(memory)].read;
}

void SimulatedHardware::spendReading(int memory, int records)
{
    spend(memory, static_cast<long long>(readDelay(memory)) * records);
}

void SimulatedHardware::spendWriting(int memory)
{
    int delay = 0;
    {
        const Lock lock(m_mutex);
        delay = m_delays[slot(memory)].write;
    }
    spend(memory, delay);
}

void SimulatedHardware::spend(int memory, long long milliseconds)
{
    Lock lock(m_mutex);
    if (milliseconds > 0) {
        const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        m_changed.wait_until(lock, until, [&] { return !open(memory); });
    }
    if (!open(memory))
        throw Failure(ORVA_E_ABSENT, "the memory went away");
}

} // namespace orva
