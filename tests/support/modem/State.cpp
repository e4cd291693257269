#include "support/modem/State.h"

#include "support/modem/Answer.h"

#include <iterator>

namespace modemsim
{

Card::Card(const CardPlan& from)
    : plan(from),
      storages(from.storages.begin(), from.storages.end()),
      pinVerified(from.pin.empty()),
      pinTries(from.pinTries),
      pukTries(from.pukTries)
{
}

State::State(const Plan& from)
    : plan(from),
      quirks(plan.quirks),
      card(std::make_unique<Card>(from.card)),
      cardIn(from.cardIn),
      deviceStorages(from.deviceStorages.begin(), from.deviceStorages.end()),
      ports(from.ports.size()),
      m_both(StoragePlan())
{
    for (PortSettings& port : ports)
        port.storage = quirks.has("default_mt") ? "MT" : "SM";
    startBusy(quirks.number("simbusy", 0));
}

void State::startBusy(int milliseconds)
{
    if (milliseconds <= 0)
        return;
    busyUntil = Clock::now() + std::chrono::milliseconds(milliseconds);
    later(milliseconds, [this] {
        if (quirks.has("ready_urc") && cardIn && !locked())
            sendUnsolicited(quirks.text("ready_urc"), -1);
    });
}

bool State::locked() const
{
    return !card->pinVerified;
}

int State::cardTrouble() const
{
    if (!cardIn)
        return quirks.number("card_out_error", NoCard);
    if (locked())
        return card->pinTries > 0 ? PinNeeded : PukNeeded;
    return Clock::now() < busyUntil ? CardBusy : 0;
}

int State::storageTrouble(const Storage& storage) const
{
    return storage.onCard() || storage.name() == "MT" || quirks.has("me_needs_card") ? cardTrouble() : 0;
}

// The device's locations, then those of the card.
static Storage both(const Storage* device, const Storage* card)
{
    StoragePlan plan;
    plan.name = "MT";
    plan.readOnly = true;
    plan.total = 0;
    for (const Storage* part : {device, card}) {
        if (part == nullptr)
            continue;
        for (Entry entry : part->entries()) {
            entry.location += plan.total;
            plan.entries.push_back(entry);
        }
        plan.total += part->total();
    }
    return Storage(plan);
}

Storage* State::storage(const std::string& name)
{
    for (std::vector<Storage>* all : {&card->storages, &deviceStorages}) {
        for (Storage& storage : *all) {
            if (storage.name() == name && !(name == "ME" && quirks.has("no_me")))
                return &storage;
        }
    }
    if (name != "MT")
        return nullptr;
    m_both = both(storage("ME"), storage("SM"));
    return &m_both;
}

std::vector<std::string> State::storageNames() const
{
    std::vector<std::string> names;
    const std::vector<Storage>* const ofCard = &card->storages;
    for (const std::vector<Storage>* all : {ofCard, &deviceStorages}) {
        for (const Storage& storage : *all) {
            if (!(storage.name() == "ME" && quirks.has("no_me")))
                names.push_back(storage.name());
        }
    }
    names.emplace_back("MT");
    return names;
}

std::string& State::selectedStorage(size_t port)
{
    return ports[quirks.has("cpbs_shared") ? 0 : port].storage;
}

std::string& State::charset(size_t port)
{
    return ports[quirks.has("charset_shared") ? 0 : port].charset;
}

void State::later(int milliseconds, std::function<void()> work)
{
    timers.push_back({Clock::now() + std::chrono::milliseconds(milliseconds), std::move(work)});
}

bool State::takeFault(const std::string& command, PlannedFault& fault)
{
    bool met = false;
    for (auto it = faults.begin(); it != faults.end();) {
        if (command.compare(0, it->first.size(), it->first) != 0 || --it->second.countdown > 0) {
            ++it;
            continue;
        }
        fault = it->second;
        met = true;
        it = --it->second.times > 0 ? std::next(it) : faults.erase(it);
    }
    return met;
}

const char* cmeText(int code)
{
    switch (code) {
    case NotAllowed:
        return "operation not allowed";
    case NotSupported:
        return "operation not supported";
    case NoCard:
        return "SIM not inserted";
    case PinNeeded:
        return "SIM PIN required";
    case PukNeeded:
        return "SIM PUK required";
    case CardFailure:
        return "SIM failure";
    case CardBusy:
        return "SIM busy";
    case WrongPassword:
        return "incorrect password";
    case Pin2Needed:
        return "SIM PIN2 required";
    case MemoryFull:
        return "memory full";
    case InvalidIndex:
        return "invalid index";
    case NotFound:
        return "not found";
    case 23:
        return "memory failure";
    case TextTooLong:
        return "text string too long";
    case TextInvalid:
        return "invalid characters in text string";
    case NumberTooLong:
        return "dial string too long";
    case NumberInvalid:
        return "invalid characters in dial string";
    case NoNetwork:
        return "no network service";
    case BadParameters:
        return "incorrect parameters";
    default:
        return "unknown";
    }
}

} // namespace modemsim
