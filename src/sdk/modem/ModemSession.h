#ifndef SDK_MODEM_MODEMSESSION_H
#define SDK_MODEM_MODEMSESSION_H

#include <array>
#include <chrono>
#include <functional>
#include <string>

#include "modem/AtPhonebook.h"
#include "modem/ModemState.h"

namespace orva
{

// How often a modem is looked at while nothing else happens.
struct ModemTimings {
    Patience patience;
    Milliseconds question{5000}; // one short question, which finds a card pulled
    Milliseconds retry{500};     // after a port that cannot be opened
    Milliseconds reread{3000};   // after a storage that cannot be read, or a port where nobody answers
    Milliseconds longest{60000}; // that grow to so much, each time to the double
    Milliseconds fresh{1000};    // what was asked so short ago need not be asked before a write
    Milliseconds stale{60000};   // after which a list that is opened is read again
    Milliseconds job{15000};     // that a call waits for its turn
    Milliseconds decide{5000};   // that a write which could not be read back is looked for
};

/*
 * All dealings with one modem, from the opening of its port to its end, on the modem's thread. PortGone ends it.
 */
class ModemSession
{
public:
    ModemSession(Channel& channel, DialogRecord* record, ModemState& state, const ModemTimings& timings,
                 std::string backupFolder);

    // Wakes the modem and tells what it has; false if nobody answers.
    bool start();

    // Somebody else has seen something change: card and network are looked at next.
    void lookNow();

    // Does what is due. How long nothing will be due then.
    Milliseconds work();

    // ---- Changes; those of Memory

    int add(int memory, PhonebookEntry entry);
    void update(int memory, int id, PhonebookEntry entry);
    void erase(int memory, int id);

    // A batch begins: what others have done is looked at anew.
    void beginBatch(int memory);

    // The whole of a memory into a new file, and back again from one of the same card or modem.
    void backup(int memory, const std::string& path);
    void restore(int memory, const std::string& path);

    // Unlocks the card. ORVA_E_ARGUMENT for a wrong PIN. It is tried once and kept nowhere. It is done if the modem
    // says so, or if the card is open afterwards.
    void unlock(const std::string& pin);

    // For people, "key=value" a line.
    std::string report();

private:
    using Time = std::chrono::steady_clock::time_point;

    struct Book {
        bool due = false; // to be read
        bool unreadable = false;
        bool proved = false; // a write has gone where it was told, and nowhere else
        bool counted = false;
        Time countedAt;
        Time retryAt;
        Milliseconds pause{0}; // before that
    };

    Book& own(int memory) { return m_books[memory == ORVA_MEMORY_CARD ? 0 : 1]; }
    void heard(const std::string& line);
    void retryNow();
    bool lookAtCard();
    CardState cardBehindPin(bool taken);
    void lookAtNetwork();
    bool asksForMessages() const;
    void lookAtMessages();
    void readWhatIsDue(int memory);
    void read(int memory);
    void prepare(int memory);
    void save(int memory);
    std::string keyOf(int memory);
    void confirm(int memory, const PhonebookEntry& thought);
    void write(int memory, const PhonebookEntry& entry, const std::optional<PhonebookEntry>& before);
    void eraseAt(int memory, int location);
    void decide(int memory, const Failure& undecided, const std::function<void()>& prove);
    bool isSameCard(int memory, const Failure& undecided);
    void requireSameCard();
    [[noreturn]] void loseCard();
    void proveLocations(int memory, const PhonebookEntry& written);
    bool lookForStrays(int memory, int asked, const PhonebookEntry* entry);
    PhonebookStorage storageOf(int memory);
    PhonebookEntry entryOf(int memory, int id);

    ModemState& m_state;
    const ModemTimings m_timings;
    const std::string m_backupFolder;
    AtDialog m_dialog;
    AtPhonebook m_book;
    std::array<Book, 2> m_books;
    std::string m_card;  // its number, if it tells
    std::string m_modem; // likewise
    Time m_lookAt;       // at the card again
    Time m_looked;       // last
    Time m_used;         // a command of ours, last
    int m_looks = 0;
    Time m_messagesAt;         // the room for messages is asked for again
    int m_messagesFailed = 0;  // how often that failed in succession
    bool m_strays = false;     // the modem stores elsewhere than told: nothing is written to it any more
    bool m_foreignSet = false; // our character set is to be given up when nothing happens
};

} // namespace orva

#endif // SDK_MODEM_MODEMSESSION_H
