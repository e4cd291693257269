#include "devices/Hardware.h"

#include <chrono>

#include "base/Failure.h"
#include "base/Files.h"
#include "base/Log.h"

namespace orva
{

namespace
{

constexpr std::size_t stateFileLimit = 16384;

constexpr int eventCardInvalid = 6002;
constexpr int eventDeviceChanged = 6014;
constexpr int eventCardChanged = 6601;
constexpr int eventPinChanged = 6604;
constexpr int eventRadioChanged = 6615;
constexpr int eventNetworkChanged = 7;
constexpr int eventServiceReady = 20301;
constexpr int eventCardReady = 20302;
constexpr int eventDeviceReady = 20303;

constexpr int pinNotNeeded = 1;
constexpr int pinVerified = 8;

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

Hardware::Hardware(std::string folder, EventHub& events) : m_folder(std::move(folder)), m_events(events)
{
    const Lock lock(m_mutex);
    m_state = readKept();
    shapeProfiles();
}

HardwareState Hardware::state() const
{
    const Lock lock(m_mutex);
    return m_state;
}

// ---- Keeping

HardwareState Hardware::readKept() const
{
    return readHardwareState(readSmallFile(m_folder + "/sim.ini", stateFileLimit));
}

void Hardware::keep(const HardwareState& before)
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

void Hardware::shapeProfiles()
{
    m_profiles[0] = std::make_shared<const Profile>(deviceProfile(2, m_state.cardNameLength, m_state.cardNumberLength));
    m_profiles[1] = std::make_shared<const Profile>(
        deviceProfile(m_state.deviceFields, m_state.deviceNameLength, m_state.deviceNumberLength));
}

template <typename Change>
bool Hardware::change(Change&& change)
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

bool Hardware::setAttached(bool attached)
{
    return change([&] {
        if (!put(m_state.attached, attached ? 1 : 0))
            return false;
        m_events.post(eventDeviceChanged);
        if (!attached)
            return true;
        m_events.post(eventServiceReady);
        if (m_autoReady && m_state.card != 0)
            m_events.post(eventCardReady);
        if (m_autoReady)
            m_events.post(eventDeviceReady);
        return true;
    });
}

bool Hardware::setCard(bool inserted)
{
    return change([&] {
        if (!put(m_state.card, inserted ? 1 : 0))
            return false;
        m_events.post(inserted ? eventCardChanged : eventCardInvalid);
        if (inserted && m_autoReady && m_state.attached != 0)
            m_events.post(eventCardReady);
        return true;
    });
}

bool Hardware::setPinStatus(int status)
{
    return change([&] {
        const bool changed = put(m_state.pinStatus, status);
        if (changed)
            m_events.post(eventPinChanged);
        return changed;
    });
}

bool Hardware::setProductType(int type)
{
    return change([&] { return put(m_state.productType, type); });
}

bool Hardware::setCardType(int type)
{
    return change([&] { return put(m_state.cardType, type); });
}

bool Hardware::setRadio(int first, int second)
{
    return change([&] {
        const bool firstChanged = put(m_state.radioFirst, first);
        const bool secondChanged = put(m_state.radioSecond, second);
        if (firstChanged || secondChanged)
            m_events.post(eventRadioChanged);
        return firstChanged || secondChanged;
    });
}

bool Hardware::setNetwork(int status)
{
    return change([&] {
        const bool changed = put(m_state.network, status);
        if (changed)
            m_events.post(eventNetworkChanged);
        return changed;
    });
}

bool Hardware::setMultiMode(unsigned char first, unsigned char second)
{
    return change([&] {
        const bool firstChanged = put(m_state.multiModeFirst, first);
        const bool secondChanged = put(m_state.multiModeSecond, second);
        return firstChanged || secondChanged;
    });
}

bool Hardware::setAutoReady(bool automatic)
{
    const Lock lock(m_mutex);
    m_autoReady = automatic;
    return true;
}

bool Hardware::setDelay(int memory, int readMs, int writeMs)
{
    if (!isHardware(memory) || readMs < 0 || readMs > mostDelay || writeMs < 0 || writeMs > mostDelay)
        return false;
    const Lock lock(m_mutex);
    m_delays[slot(memory)] = {readMs, writeMs};
    return true;
}

bool Hardware::setCapacity(int memory, int capacity)
{
    if ((!isHardware(memory) && memory != ORVA_MEMORY_LOCAL) || capacity < 0 || capacity > mostRecords)
        return false;
    return change([&] {
        if (memory == ORVA_MEMORY_LOCAL)
            return put(m_state.localCapacity, capacity);
        return put(memory == ORVA_MEMORY_CARD ? m_state.cardCapacity : m_state.deviceCapacity, capacity);
    });
}

bool Hardware::setFieldLengths(int memory, int nameLength, int numberLength)
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

bool Hardware::setDeviceFields(int count)
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

// ---- Presence and time

bool Hardware::present(int memory) const
{
    return m_state.attached != 0 && (memory == ORVA_MEMORY_DEVICE || m_state.card != 0);
}

bool Hardware::open(int memory) const
{
    return present(memory) &&
           (memory == ORVA_MEMORY_DEVICE || m_state.pinStatus == pinNotNeeded || m_state.pinStatus == pinVerified);
}

void Hardware::requireOpen(int memory) const
{
    const Lock lock(m_mutex);
    if (!open(memory))
        throw Failure(ORVA_E_ABSENT, "the memory is not there");
}

std::shared_ptr<const Profile> Hardware::profile(int memory) const
{
    const Lock lock(m_mutex);
    if (!present(memory))
        throw Failure(ORVA_E_ABSENT, "the memory is not there");
    return m_profiles[slot(memory)];
}

int Hardware::capacity(int memory) const
{
    const Lock lock(m_mutex);
    switch (memory) {
    case ORVA_MEMORY_CARD:
        return m_state.cardCapacity;
    case ORVA_MEMORY_DEVICE:
        return m_state.deviceCapacity;
    default:
        return m_state.localCapacity;
    }
}

int Hardware::readyCapacity(int memory) const
{
    {
        const Lock lock(m_mutex);
        if (!present(memory))
            throw Failure(ORVA_E_ABSENT, "the memory is not there");
        if (!open(memory))
            return 0;
    }
    return capacity(memory);
}

int Hardware::readDelay(int memory) const
{
    const Lock lock(m_mutex);
    return m_delays[slot(memory)].read;
}

void Hardware::spendReading(int memory, int records)
{
    spend(memory, static_cast<long long>(readDelay(memory)) * records);
}

void Hardware::spendWriting(int memory)
{
    int delay = 0;
    {
        const Lock lock(m_mutex);
        delay = m_delays[slot(memory)].write;
    }
    spend(memory, delay);
}

void Hardware::spend(int memory, long long milliseconds)
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
