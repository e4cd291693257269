#ifndef TESTS_SUPPORT_MODEM_CONTROL_H
#define TESTS_SUPPORT_MODEM_CONTROL_H

#include "support/modem/Modem.h"

#include <functional>
#include <map>
#include <string>

namespace modemsim
{

// Orders in words for a modem that runs in a program: "card out", "sms +4930123 Hello", "entries SM". A program may add
// orders of its own or put others in their place.
class Control
{
public:
    using Order = std::function<std::string(const std::string& argument)>;

    explicit Control(Modem& modem);
    void add(const std::string& name, const std::string& help, const Order& order);
    // What an order gives: lines, each with its line feed, then "." alone. An unknown one gives "? ...".
    std::string obey(const std::string& line) const;

private:
    void addPhonebookOrders();
    void addCardOrders();
    void addLineOrders();
    void addNetworkOrders();

    struct Known {
        std::string help;
        Order order;
    };

    Modem& m_modem;
    std::map<std::string, Known> m_orders;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_CONTROL_H
