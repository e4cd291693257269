#include "support/modem/Control.h"

#include <cstdlib>
#include <exception>
#include <sstream>

namespace modemsim
{

namespace
{

// The first word, and what stands behind it.
std::string word(std::string& rest)
{
    const size_t space = rest.find(' ');
    const std::string first = rest.substr(0, space);
    rest = space == std::string::npos ? std::string() : rest.substr(space + 1);
    return first;
}

std::string lines(const std::vector<std::string>& all)
{
    std::string text;
    for (const std::string& line : all)
        text += line + '\n';
    return text;
}

std::string listed(const std::vector<Entry>& entries)
{
    std::string text;
    for (const Entry& entry : entries)
        text += std::to_string(entry.location) + '\t' + entry.number + '\t' + entry.name + '\n';
    return text;
}

std::string listed(const std::vector<SentMessage>& messages)
{
    std::string text;
    for (const SentMessage& message : messages)
        text += message.number + '\t' + std::to_string(message.part) + '/' + std::to_string(message.parts) + '\t' +
                message.text + '\n';
    return text;
}

Control::Order done(const std::function<void(const std::string&)>& work)
{
    return [work](const std::string& argument) {
        work(argument);
        return std::string();
    };
}

} // namespace

Control::Control(Modem& modem) : m_modem(modem)
{
    addPhonebookOrders();
    addCardOrders();
    addLineOrders();
    addNetworkOrders();
    add("help", "these lines", [this](const std::string&) {
        std::string text;
        for (const auto& [name, known] : m_orders)
            text += name + (known.help.empty() ? "" : "  " + known.help) + '\n';
        return text;
    });
}

void Control::add(const std::string& name, const std::string& help, const Order& order)
{
    m_orders[name] = {help, order};
}

std::string Control::obey(const std::string& line) const
{
    std::string argument = line;
    const auto found = m_orders.find(word(argument));
    if (found == m_orders.end())
        return "? unknown order: " + line + "\n.\n";
    try {
        return found->second.order(argument) + ".\n";
    } catch (const std::exception& e) {
        return std::string("? ") + e.what() + "\n.\n";
    }
}

void Control::addPhonebookOrders()
{
    add("entries", "STORAGE: location, number and name, one a line",
        [this](const std::string& argument) { return listed(m_modem.entries(argument)); });
    add("put", "STORAGE LOCATION NUMBER NAME: as if somebody else had written",
        done([this](const std::string& argument) {
            std::string rest = argument;
            const std::string storage = word(rest);
            Entry entry;
            entry.location = std::atoi(word(rest).c_str());
            entry.number = word(rest);
            entry.name = rest;
            m_modem.putEntry(storage, entry);
        }));
    add("remove", "STORAGE LOCATION", done([this](const std::string& argument) {
            std::string rest = argument;
            const std::string storage = word(rest);
            m_modem.removeEntry(storage, std::atoi(rest.c_str()));
        }));
    add("quirk", "NAME[=VALUE]", done([this](const std::string& argument) { m_modem.setQuirk(argument); }));
    add("noquirk", "NAME", done([this](const std::string& argument) { m_modem.clearQuirk(argument); }));
}

void Control::addCardOrders()
{
    add("card", "in or out", done([this](const std::string& argument) {
            if (argument == "out")
                m_modem.pullCard();
            else
                m_modem.insertCard();
        }));
    add("busy", "MILLISECONDS that the card is busy", done([this](const std::string& argument) {
            m_modem.setBusy(std::chrono::milliseconds(std::atoi(argument.c_str())));
        }));
    add("locked", "whether a PIN is needed, and the tries left", [this](const std::string&) {
        return std::string(m_modem.locked() ? "yes " : "no ") + std::to_string(m_modem.pinTries()) + '\n';
    });
}

void Control::addLineOrders()
{
    add("port", "N: where a client finds it", [this](const std::string& argument) {
        return m_modem.portPath(static_cast<size_t>(std::atoi(argument.c_str()))) + '\n';
    });
    add("plug", "", done([this](const std::string&) { m_modem.plug(); }));
    add("unplug", "", done([this](const std::string&) { m_modem.unplug(); }));
    add("dead", "on or off: says nothing at all",
        done([this](const std::string& argument) { m_modem.setDead(argument == "on"); }));
    add("urc", "TEXT: a line that nobody asked for",
        done([this](const std::string& argument) { m_modem.unsolicited(argument); }));
    add("log", "all that was said", [this](const std::string&) { return lines(m_modem.transcript()); });
}

void Control::addNetworkOrders()
{
    add("radio", "on or off", done([this](const std::string& argument) { m_modem.setRadio(argument == "on"); }));
    add("registration", "N as +CREG has it",
        done([this](const std::string& argument) { m_modem.setRegistration(std::atoi(argument.c_str())); }));
    add("signal", "N as +CSQ has it",
        done([this](const std::string& argument) { m_modem.setSignal(std::atoi(argument.c_str())); }));
    add("sms", "NUMBER TEXT: a message comes in", done([this](const std::string& argument) {
            std::string rest = argument;
            const std::string number = word(rest);
            m_modem.receiveMessage(number, rest);
        }));
    add("sent", "number, part and text of the messages that went out",
        [this](const std::string&) { return listed(m_modem.sentMessages()); });
    add("ring", "NUMBER: a call comes in", done([this](const std::string& argument) { m_modem.ring(argument); }));
    add("hangup", "the other side ends the call", done([this](const std::string&) { m_modem.hangUpByOther(); }));
    add("outcome", "answer, busy, no_answer, no_carrier, no_credit or ringing, for calls from here",
        done([this](const std::string& argument) { m_modem.setCallOutcome(argument); }));
    add("dialled", "the numbers", [this](const std::string&) { return lines(m_modem.dialled()); });
}

} // namespace modemsim
