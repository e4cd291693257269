#include "api/Library.h"

#include <atomic>
#include <chrono>
#include <mutex>

#include "api/Handles.h"
#include "api/ImportFindings.h"
#include "api/OwnDeletes.h"
#include "base/DataFolder.h"
#include "base/Files.h"
#include "devices/SimulatedHardware.h"
#include "events/EventHub.h"
#include "memories/LocalMemory.h"
#include "memories/ModemMemory.h"
#include "memories/SimMemory.h"
#include "modem/HardwareChoice.h"
#include "orva/orva_store.h"

namespace orva
{

namespace
{

// Torn down from the end of the list, so that the hardware can still send while the memories close.
struct Library {
    explicit Library(const std::string& folder) : simulated(folder, events), local(folder, simulated)
    {
        tellTroubleOf(local.store());
        const std::string choice = hardwareChoice(folder);
        if (choice != simulatedChoice) {
            modem = std::make_unique<ModemHardware>(folder, choice, events);
            modemCard = std::make_unique<ModemMemory>(*modem, ORVA_MEMORY_CARD);
            modemDevice = std::make_unique<ModemMemory>(*modem, ORVA_MEMORY_DEVICE);
            return;
        }
        card = std::make_unique<SimMemory>(folder, simulated, ORVA_MEMORY_CARD);
        device = std::make_unique<SimMemory>(folder, simulated, ORVA_MEMORY_DEVICE);
        tellTroubleOf(card->store());
        tellTroubleOf(device->store());
    }

    void tellTroubleOf(Store& store)
    {
        store.onLoss([this] { events.post(ORVA_EVENT_STORE_LOSS); });
        store.onAccess([this] { events.post(ORVA_EVENT_STORE_ACCESS); });
    }

    Hardware& hardware()
    {
        if (modem)
            return *modem;
        return simulated;
    }

    EventHub events;
    LastImport lastImport;
    OwnDeletes ownDeletes;
    SimulatedHardware simulated; // also knows the PC's capacity
    std::unique_ptr<ModemHardware>
        modem; // null while the hardware is simulated; else the card and device below are its
    LocalMemory local;
    std::unique_ptr<SimMemory> card;
    std::unique_ptr<SimMemory> device;
    std::unique_ptr<ModemMemory> modemCard;
    std::unique_ptr<ModemMemory> modemDevice;
};

struct Global {
    std::mutex mutex;
    std::atomic<Library*> library{nullptr};
};

// Never destroyed: threads may outlast the library's own end.
Global& global()
{
    static auto* const all = new Global;
    return *all;
}

Library& library()
{
    Global& all = global();
    Library* made = all.library.load(std::memory_order_acquire);
    if (made != nullptr)
        return *made;
    const std::lock_guard<std::mutex> lock(all.mutex);
    made = all.library.load(std::memory_order_relaxed);
    if (made == nullptr) {
        std::string folder = dataFolder();
        try {
            folder = preparePrivateFolder(folder);
        } catch (const Failure&) {
            // Each use of a store tells; the hardware works without.
            folder = resolvedFolder(folder);
        }
        made = new Library(folder);
        all.library.store(made, std::memory_order_release);
    }
    return *made;
}

// How long the process's end waits for a callback that runs.
constexpr std::chrono::milliseconds patienceAtEnd(1000);

// Commits and closes when the process ends in good order. What the library is made of stays: a callback or another
// thread may still be at it.
struct AtEnd {
    ~AtEnd()
    {
        Library* const all = global().library.load();
        if (all == nullptr)
            return;
        if (all->modem)
            all->modem->stop();
        all->events.stop(patienceAtEnd);
        all->local.store().shutDown();
        for (const auto& memory : {all->card.get(), all->device.get()}) {
            if (memory != nullptr)
                memory->store().shutDown();
        }
    }
};

const AtEnd atEnd;

} // namespace

Memory& memoryFor(int memory)
{
    if (ModemMemory* const behindModem = modemMemory(memory))
        return *behindModem;
    switch (memory) {
    case ORVA_MEMORY_CARD:
        return *library().card;
    case ORVA_MEMORY_DEVICE:
        return *library().device;
    case ORVA_MEMORY_LOCAL:
        return library().local;
    default:
        throw Failure(ORVA_E_ARGUMENT, "no such memory");
    }
}

Store& groupStore(int memory)
{
    if (memory == ORVA_MEMORY_CARD || memory == ORVA_MEMORY_DEVICE)
        throw Failure(ORVA_E_UNSUPPORTED, "this memory has neither groups nor a bin");
    memoryFor(memory);
    return library().local.store();
}

LocalMemory& localMemory()
{
    return library().local;
}

Store& storeFor(int memory)
{
    Store& store = anyStore(memory);
    if (memory != ORVA_MEMORY_LOCAL)
        library().hardware().requireOpen(memory);
    return store;
}

Store& anyStore(int memory)
{
    memoryFor(memory);
    if (memory == ORVA_MEMORY_LOCAL)
        return library().local.store();
    if (library().modem)
        throw Failure(ORVA_E_UNSUPPORTED, "a modem has no store");
    return memory == ORVA_MEMORY_CARD ? library().card->store() : library().device->store();
}

Hardware& hardware()
{
    return library().hardware();
}

SimulatedHardware& simulatedHardware()
{
    if (library().modem)
        throw Failure(ORVA_E_UNSUPPORTED, "the hardware is real");
    return library().simulated;
}

ModemHardware* modemHardware()
{
    return library().modem.get();
}

ModemMemory* modemMemory(int memory)
{
    if (memory == ORVA_MEMORY_CARD)
        return library().modemCard.get();
    return memory == ORVA_MEMORY_DEVICE ? library().modemDevice.get() : nullptr;
}

EventHub& events()
{
    return library().events;
}

LastImport& lastImport()
{
    return library().lastImport;
}

OwnDeletes& ownDeletes()
{
    return library().ownDeletes;
}

void resetLibrary(const char* folder)
{
    Global& all = global();
    const std::lock_guard<std::mutex> lock(all.mutex);
    dropAllHandles();
    delete all.library.exchange(nullptr);
    chooseDataFolder(folder != nullptr ? folder : "");
}

} // namespace orva
