#include "modem/PortFinder.h"

#include <unistd.h>

#include <algorithm>
#include <utility>

#include "modem/HardwareChoice.h"
#include "modem/PortChooser.h"

namespace orva
{

namespace
{

constexpr Milliseconds longest(60000);

// A port that another program has for itself is refused to everybody but root.
bool heldShows()
{
    return ::geteuid() != 0;
}

} // namespace

PortFinder::PortFinder(std::string choice, const OpenWatch& openWatch)
    : m_choice(std::move(choice)), m_auto(m_choice == autoChoice)
{
    m_watch = openWatch(m_auto ? WatchKind::Modems : WatchKind::Plugs, m_problem);
}

bool PortFinder::settled() const
{
    return !m_auto || !m_watch || m_watch->list().settled;
}

PortOffer PortFinder::offer() const
{
    PortOffer offer;
    if (!m_auto) {
        if (!m_choice.empty() && m_choice.front() == '/')
            offer.ports.push_back(m_choice);
        else
            offer.problem = "\"" + m_choice + "\" is neither \"simulated\" nor \"auto\" nor the path of a modem's port";
        return offer;
    }
    if (!m_watch) {
        offer.problem = m_problem + "; a port can be named";
        return offer;
    }
    const ModemList& list = m_watch->list();
    if (!list.settled)
        return offer;
    if (list.owner.empty()) {
        offer.problem = list.problem.empty() ? "ModemManager does not run" : list.problem;
        offer.problem += ": without it only a port that is named is opened";
        return offer;
    }
    if (list.modems.empty()) {
        offer.problem = list.problem.empty() ? "no modem: ModemManager has found none" : list.problem;
        return offer;
    }
    for (const ListedModem& modem : list.modems) {
        const std::vector<std::string> ports = freePorts(modem, heldShows());
        offer.ports.insert(offer.ports.end(), ports.begin(), ports.end());
    }
    offer.modem = list.modems.front();
    offer.spare = portToSpare(*offer.modem);
    if (offer.ports.empty())
        offer.problem = whyNoPort(*offer.modem);
    return offer;
}

void PortFinder::fill(std::vector<pollfd>& waited) const
{
    if (m_watch)
        m_watch->fill(waited);
}

Milliseconds PortFinder::patience() const
{
    return m_watch ? std::min(longest, m_watch->patience()) : longest;
}

bool PortFinder::heed()
{
    if (!m_watch)
        return false;
    m_watch->process();
    return std::exchange(m_changes, m_watch->changes()) != m_watch->changes();
}

const ListedModem* PortFinder::modemWith(const std::string& port, bool* ignored) const
{
    for (const ListedModem& modem : m_watch->list().modems) {
        for (const ListedPort& listed : modem.ports) {
            if (listed.node == port) {
                *ignored = listed.type == PortType::Ignored;
                return &modem;
            }
        }
    }
    return nullptr;
}

void PortFinder::take(const std::string& port)
{
    m_port = port;
    if (!m_auto || !m_watch)
        return;
    m_owner = m_watch->list().owner;
    m_listed = modemWith(port, &m_ignored) != nullptr;
}

PortFinder::News PortFinder::news()
{
    if (!heed() || !m_auto)
        return News::None;
    const std::string& owner = m_watch->list().owner;
    // A port that is free stays so without ModemManager.
    if (owner.empty())
        return News::None;
    if (owner != m_owner) {
        m_owner = owner;
        m_listed = false;
        // A new run tries what every port speaks, but those that it ignores, and would hear our answers.
        if (!m_ignored)
            return News::Leave;
    }
    bool ignored = m_ignored;
    if (modemWith(m_port, &ignored) == nullptr)
        return m_listed ? News::Leave : News::None;
    m_listed = true;
    return News::Look;
}

} // namespace orva
