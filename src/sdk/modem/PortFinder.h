#ifndef SDK_MODEM_PORTFINDER_H
#define SDK_MODEM_PORTFINDER_H

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "modem/ModemWatch.h"

namespace orva
{

// What can be opened at a moment.
struct PortOffer {
    std::vector<std::string> ports;   // the best first
    std::optional<ListedModem> modem; // that is there, with a port or without
    std::string problem;              // why there is no port, for people
    std::string spare;                // the port that a rule may set aside
};

/*
 * Where the modem's thread finds its port: the one that the user has named, or with "auto" one that ModemManager lists
 * and does not need. It hears of plugs and of what ModemManager sees. One thread.
 */
class PortFinder
{
public:
    using OpenWatch = std::function<std::unique_ptr<ModemWatch>(WatchKind, std::string& problem)>;

    // `choice` is a port's path or "auto".
    PortFinder(std::string choice, const OpenWatch& openWatch);

    // Whether anything is known yet.
    bool settled() const;
    PortOffer offer() const;

    void fill(std::vector<pollfd>& waited) const;
    Milliseconds patience() const; // until heed() is due without anything to read

    // Takes in what has come; true if modems or ports have changed.
    bool heed();

    enum class News { None, Look /* at card and network */, Leave /* the port */ };

    // A port of the offer is in use; what has come since then that concerns it.
    void take(const std::string& port);
    News news();

private:
    const ListedModem* modemWith(const std::string& port, bool* ignored) const;

    const std::string m_choice;
    const bool m_auto;
    std::string m_problem; // there is no watch
    std::unique_ptr<ModemWatch> m_watch;
    std::uint64_t m_changes = 0;
    std::string m_port;  // in use
    std::string m_owner; // the run of ModemManager that listed it
    bool m_ignored = false;
    bool m_listed = false;
};

} // namespace orva

#endif // SDK_MODEM_PORTFINDER_H
