#include "support/modem/Modem.h"

#include "support/modem/Commands.h"
#include "support/modem/Loop.h"

#include <algorithm>

namespace modemsim
{

Modem::Modem(const Plan& plan) : m_loop(std::make_unique<Loop>(plan)) {}

Modem::~Modem() = default;

std::string Modem::terminal(size_t port) const
{
    return m_loop->ask<std::string>([&] { return m_loop->address(port); });
}

std::string Modem::portPath(size_t port) const
{
    const std::string address = terminal(port);
    return m_loop->ask<std::string>([&] {
        const PortPlan& plan = m_loop->state.plan.ports[port];
        return plan.kind == PortPlan::Pty && !plan.name.empty() ? plan.name : address;
    });
}

std::vector<Entry> Modem::entries(const std::string& storage) const
{
    return m_loop->ask<std::vector<Entry>>([&] {
        const Storage* found = m_loop->state.storage(storage);
        return found != nullptr ? found->entries() : std::vector<Entry>();
    });
}

void Modem::putEntry(const std::string& storage, const Entry& entry)
{
    m_loop->call([&] {
        if (Storage* found = m_loop->state.storage(storage))
            found->put(entry);
    });
}

void Modem::removeEntry(const std::string& storage, int location)
{
    m_loop->call([&] {
        if (Storage* found = m_loop->state.storage(storage))
            found->remove(location);
    });
}

void Modem::setQuirk(const std::string& setting)
{
    const Quirks checked = {setting.c_str()}; // an unknown name is the caller's fault
    m_loop->call([&] { m_loop->state.quirks.set(setting); });
}

void Modem::clearQuirk(const std::string& name)
{
    m_loop->call([&] { m_loop->state.quirks.clear(name); });
}

static void tellCard(State& state)
{
    if (state.quirks.has("card_urc"))
        state.sendUnsolicited(state.cardIn ? "+SIM: 1" : "+SIM: 0", -1);
}

void Modem::pullCard()
{
    m_loop->call([&] {
        m_loop->state.cardIn = false;
        tellCard(m_loop->state);
    });
}

// A card that is put in asks for its PIN again.
static void putIn(State& state)
{
    state.cardIn = true;
    state.card->pinVerified = state.card->plan.pin.empty();
    state.startBusy(state.quirks.number("simbusy", 0));
    tellCard(state);
}

void Modem::insertCard()
{
    m_loop->call([&] { putIn(m_loop->state); });
}

void Modem::insertCard(const CardPlan& card)
{
    m_loop->call([&] {
        m_loop->state.card = std::make_unique<Card>(card);
        m_loop->state.messages["SM"].clear();
        putIn(m_loop->state);
    });
}

bool Modem::locked() const
{
    return m_loop->ask<bool>([&] { return m_loop->state.locked(); });
}

int Modem::unlocks() const
{
    return m_loop->ask<int>([&] { return m_loop->state.card->unlocks; });
}

int Modem::pinTries() const
{
    return m_loop->ask<int>([&] { return m_loop->state.card->pinTries; });
}

void Modem::setBusy(std::chrono::milliseconds time)
{
    m_loop->call([&] { m_loop->state.startBusy(static_cast<int>(time.count())); });
}

void Modem::setDead(bool dead)
{
    m_loop->call([&] {
        m_loop->state.dead = dead;
        m_loop->hangUpAll();
    });
}

void Modem::unplug()
{
    m_loop->call([&] { m_loop->unplug(); });
}

void Modem::plug()
{
    m_loop->call([&] { m_loop->plug(); });
}

bool Modem::plugged() const
{
    return m_loop->ask<bool>([&] { return m_loop->state.plugged; });
}

void Modem::setRadio(bool on)
{
    m_loop->call([&] { m_loop->state.plan.radioOn = on; });
}

void Modem::setRegistration(int registration)
{
    m_loop->call([&] {
        State& state = m_loop->state;
        state.plan.registration = registration;
        static const char* const names[] = {"+CREG: ", "+CGREG: ", "+CEREG: "};
        for (size_t port = 0; port < state.ports.size(); ++port) {
            for (int which = 0; which < 3; ++which) {
                if (state.settings(port).registration[which] != 0)
                    state.sendUnsolicited(names[which] + std::to_string(registration), static_cast<int>(port));
            }
        }
    });
}

void Modem::setSignal(int signal)
{
    m_loop->call([&] { m_loop->state.plan.signal = signal; });
}

void Modem::failAt(const std::string& prefix, int nth, Fault fault, int code, int times)
{
    m_loop->call([&] { m_loop->state.faults[prefix] = {nth, fault, code, times}; });
}

void Modem::setObserver(std::function<void(size_t, const std::string&)> observer)
{
    m_loop->call([&] { m_loop->observer = std::move(observer); });
}

void Modem::unsolicited(const std::string& text, int port)
{
    m_loop->call([&] { m_loop->state.sendUnsolicited(text, port); });
}

void Modem::receiveMessage(const std::string& number, const std::string& text)
{
    m_loop->call([&] { modemsim::receiveMessage(m_loop->state, number, text); });
}

std::vector<SentMessage> Modem::sentMessages() const
{
    return m_loop->ask<std::vector<SentMessage>>([&] { return m_loop->state.sent; });
}

int Modem::storedMessages() const
{
    return m_loop->ask<int>([&] {
        size_t count = 0;
        for (const auto& [storage, all] : m_loop->state.messages)
            count += all.size();
        return static_cast<int>(count);
    });
}

void Modem::setMessageError(int code, int fromPart)
{
    m_loop->call([&] {
        m_loop->state.messageError = code;
        m_loop->state.messageErrorFromPart = fromPart;
    });
}

void Modem::ring(const std::string& number)
{
    m_loop->call([&] { modemsim::ring(m_loop->state, number); });
}

void Modem::hangUpByOther()
{
    m_loop->call([&] { endCallByOther(m_loop->state); });
}

void Modem::setCallOutcome(const std::string& outcome)
{
    m_loop->call([&] { m_loop->state.callOutcome = outcome; });
}

std::vector<std::string> Modem::dialled() const
{
    return m_loop->ask<std::vector<std::string>>([&] { return m_loop->state.dialled; });
}

bool Modem::inCall() const
{
    return m_loop->ask<bool>([&] { return m_loop->state.call && m_loop->state.call->status == Call::Active; });
}

std::vector<std::string> Modem::transcript() const
{
    return m_loop->ask<std::vector<std::string>>([&] { return m_loop->transcript; });
}

int Modem::commands(const std::string& prefix) const
{
    return m_loop->ask<int>([&] {
        return static_cast<int>(
            std::count_if(m_loop->commands.begin(), m_loop->commands.end(),
                          [&](const std::string& command) { return command.compare(0, prefix.size(), prefix) == 0; }));
    });
}

bool Modem::waitFor(const std::function<bool()>& condition, std::chrono::milliseconds time) const
{
    return m_loop->waitFor(condition, time);
}

} // namespace modemsim
