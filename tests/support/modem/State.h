#ifndef TESTS_SUPPORT_MODEM_STATE_H
#define TESTS_SUPPORT_MODEM_STATE_H

#include "support/modem/Modem.h"
#include "support/modem/Storage.h"

#include <chrono>
#include <map>

namespace modemsim
{

using Clock = std::chrono::steady_clock;

// The card in its slot. Its storages are those of the plan, alive.
struct Card {
    explicit Card(const CardPlan& from);
    CardPlan plan;
    std::vector<Storage> storages;
    bool pinVerified;
    bool pin2Verified = false;
    int unlocks = 0;
    int pinTries;
    int pukTries;
};

struct StoredMessage {
    int status = 0; // as +CMGL has it: 0 unread, 1 read, 2 not sent, 3 sent
    std::string pdu;
};

struct Call {
    enum Status { Active = 0, Held = 1, Dialling = 2, Alerting = 3, Incoming = 4 };
    int status = Dialling;
    bool incoming = false;
    std::string number;
};

// What a port has been told, kept while no client has it open.
struct PortSettings {
    bool echo = true;
    bool verbose = true;
    bool quiet = false;
    int errors = 0; // +CMEE
    std::string charset = "IRA";
    std::string storage = "SM";
    std::string messageStorage = "SM";
    int newMessages = 0;             // the second value of +CNMI
    int operatorFormat = 0;          // +COPS
    int pendingLength = 0;           // of the message that is being typed
    int registration[3] = {0, 0, 0}; // +CREG, +CGREG, +CEREG
    bool callerNumber = false;       // +CLIP
    bool ringWithType = false;       // +CRC
};

struct PlannedFault {
    int countdown = 1;
    Fault fault = Fault::Error;
    int code = 100;
    int times = 1;
};

// All that the ports of one modem share. It lives on the modem's thread.
class State
{
public:
    explicit State(const Plan& from);

    Plan plan;
    Quirks& quirks;
    std::unique_ptr<Card> card; // always there
    bool cardIn;
    bool plugged = true;
    bool dead = false;
    Clock::time_point busyUntil;
    std::vector<Storage> deviceStorages;
    std::vector<PortSettings> ports;
    std::map<std::string, std::map<int, StoredMessage>> messages; // by storage and index
    std::string receivingStorage = "SM";                          // the third of +CPMS
    std::vector<SentMessage> sent;
    int messageReference = 0;
    int messageError = 0;
    int messageErrorFromPart = 1;
    std::unique_ptr<Call> call;
    std::string callOutcome = "answer";
    std::vector<std::string> dialled;
    std::string clock = "26/11/22,10:00:00+04";
    std::map<std::string, PlannedFault> faults;

    // The error that stands between a command and the card, 0 if there is none.
    int cardTrouble() const;
    // The same for a phonebook storage.
    int storageTrouble(const Storage& storage) const;
    bool locked() const;
    void startBusy(int milliseconds);

    Storage* storage(const std::string& name);
    std::vector<std::string> storageNames() const;
    PortSettings& settings(size_t port) { return ports[port]; }
    std::string& selectedStorage(size_t port);
    std::string& charset(size_t port);

    // Work for later, on the modem's thread.
    void later(int milliseconds, std::function<void()> work);
    // The fault that meets this command ("AT+CPBR=1,20"), if one does.
    bool takeFault(const std::string& command, PlannedFault& fault);

    // What the owner does for it: lines that nobody asked for, plugs, and listening.
    std::function<void(const std::string& text, int port)> sendUnsolicited;
    std::function<void()> unplug;
    std::function<void()> pullCard;
    std::function<void(size_t port, const std::string& command)> began;
    std::function<void(size_t port, char direction, const std::string& line)> said;

    struct Timer {
        Clock::time_point due;
        std::function<void()> work;
    };
    std::vector<Timer> timers;

private:
    Storage m_both; // "MT", put together when it is asked for
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_STATE_H
