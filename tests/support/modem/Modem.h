#ifndef TESTS_SUPPORT_MODEM_MODEM_H
#define TESTS_SUPPORT_MODEM_MODEM_H

// A simulated modem for tests, without Qt. It plays an AT modem (3GPP TS 27.007 and 27.005, V.250) on pseudo terminals,
// abstract sockets or TCP ports of the loopback, with a card, phonebooks, messages and calls, and with the quirks of
// real modems as switches:
//
//     modemsim::Plan plan = modemsim::standardPlan();
//     plan.quirks.set("max_range=10");
//     modemsim::Modem modem(plan);
//     open(modem.portPath(0).c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
//     ...
//     CHECK_EQ(modem.entries("SM").size(), 5U);
//
// It runs on one thread of its own until it is destroyed. Every operation may be called from any thread; it has
// happened when the call returns. The same modem in a process of its own: ModemProcess.h, and the program modemsim.
// Link the target modemsim and include "support/modem/Modem.h".

#include "support/modem/Plan.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace modemsim
{

// What a message that a client has sent looked like on the line.
struct SentMessage {
    std::string pdu;    // as it was sent, in hex
    std::string number; // "+491711234567"
    std::string text;   // the text of this part, UTF-8; empty if it is none
    int reference = 0;  // of a message of several parts, else 0
    int part = 1;
    int parts = 1;
};

// What a modem does wrong at a chosen command.
enum class Fault {
    SilentBefore, // the command is not carried out and not answered
    SilentAfter,  // it is carried out, the answer is lost
    UnplugBefore, // the modem vanishes in place of carrying it out
    UnplugAfter,  // it vanishes when the command has been carried out, without an answer
    UnplugInside, // it vanishes in the middle of the answer
    StallInside,  // it falls silent in the middle of the answer, in a line
    PullCard,     // the card is pulled before it is carried out
    Error,        // it answers +CME ERROR: with the given code, and does nothing
    ErrorAfter    // it answers so, and has carried it out all the same
};

class Modem
{
public:
    // Starts it. Throws std::runtime_error if a port cannot be made.
    explicit Modem(const Plan& plan = standardPlan());
    ~Modem();
    Modem(const Modem&) = delete;
    Modem& operator=(const Modem&) = delete;

    // Where a client finds the port: the link of its plan, else the terminal; a socket's or port's name. Empty while
    // the modem is unplugged and there is no link. The terminal is another one after each plug().
    std::string portPath(size_t port) const;
    std::string terminal(size_t port) const;

    // The entries of a storage in the order of their locations; what the modem holds, whatever its quirks show.
    std::vector<Entry> entries(const std::string& storage) const;
    void putEntry(const std::string& storage, const Entry& entry); // also over another; changed by "somebody else"
    void removeEntry(const std::string& storage, int location);
    void setQuirk(const std::string& setting);
    void clearQuirk(const std::string& name);

    void pullCard();
    void insertCard();                     // the one that was in before
    void insertCard(const CardPlan& card); // another one
    bool locked() const;                   // a PIN or PUK is needed
    int pinTries() const;
    int unlocks() const; // how often this card has taken a PIN or PUK; a card that loses power is locked again
    // The card answers "busy" for so long from now on, as it does after a PIN.
    void setBusy(std::chrono::milliseconds time);
    // No answer to anything, on every port, until it is set to false; what came meanwhile is lost.
    void setDead(bool dead);
    // All ports vanish: a reader gets EIO. The phonebooks stay.
    void unplug();
    void plug();
    bool plugged() const;
    void setRadio(bool on);
    void setRegistration(int registration);
    void setSignal(int signal);

    // The nth command (counted from 1, from now on) that begins with the prefix ("AT+CPBR", "AT" for any; each part of
    // a line joined with ';' counts, as "AT+CPBW=...") meets a fault, and so do those behind it, `times` in all. A
    // later call with the same prefix replaces it.
    void failAt(const std::string& prefix, int nth, Fault fault, int code = 100, int times = 1);
    // Called on the modem's thread before each command, with the port and the command; it may call this object.
    void setObserver(std::function<void(size_t, const std::string&)> observer);

    // A line that nobody asked for, on one port or on all.
    void unsolicited(const std::string& text, int port = -1);

    void receiveMessage(const std::string& number, const std::string& text); // a short message comes in
    std::vector<SentMessage> sentMessages() const;                           // what clients have sent
    int storedMessages() const; // how many lie on the card and in the device
    // The network takes messages (0) or refuses them with this +CMS ERROR, from the given part of a message on.
    void setMessageError(int code, int fromPart = 1);

    void ring(const std::string& number); // a call comes in; rings until answered, refused or hung up
    void hangUpByOther();                 // the other side ends what is there
    // What becomes of a call that a client dials: "answer", "busy", "no_answer", "no_carrier", "no_credit", "ringing".
    void setCallOutcome(const std::string& outcome);
    std::vector<std::string> dialled() const;
    bool inCall() const;

    // All that was said, "0> AT+CPBS?" from the client and "0< OK" from the modem, in order, blank lines left out.
    std::vector<std::string> transcript() const;
    // How many commands have come that begin with the prefix.
    int commands(const std::string& prefix = "AT") const;
    // Waits until the condition holds, looking again after each command and each change; false after the time.
    bool waitFor(const std::function<bool()>& condition,
                 std::chrono::milliseconds time = std::chrono::milliseconds(10000)) const;

private:
    class Loop;
    std::unique_ptr<Loop> m_loop;
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_MODEM_H
