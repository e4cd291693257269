#ifndef SDK_MODEM_ATPHONEBOOK_H
#define SDK_MODEM_ATPHONEBOOK_H

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/Failure.h"
#include "modem/AtDialog.h"
#include "modem/PhonebookLines.h"
#include "modem/TextCoding.h"

namespace orva
{

// A write has been ordered, and what it has done could not be read back: it may have been stored or not.
class WriteUndecided final : public Failure
{
public:
    explicit WriteUndecided(const Failure& why) : Failure(why) {}
};

enum class CardState { Ready, PinNeeded, PukNeeded, Absent, Busy, Failed, Silent };

// An entry of a phonebook storage (3GPP TS 27.007, 8.11 to 8.14).
struct PhonebookEntry {
    int location = 0;
    std::u16string alpha; // the alpha identifier
    std::string number;   // with "+" for an international one; pauses as "p"
    std::string tail;     // further fields as they came; kept, never shown

    bool sameContent(const PhonebookEntry& other) const { return alpha == other.alpha && number == other.number; }
};

// A phonebook storage as its modem describes it. Locations are the modem's own.
struct PhonebookStorage {
    std::string name; // "SM", "ME"
    int first = 1;
    int last = 0;
    int capacity = 0;
    int used = -1; // -1 where the modem does not count
    int alphaLength = 0;
    int numberLength = 0;
    bool furtherFields = false; // that can be written
};

/*
 * The phonebook commands of a modem. Whatever its manners, the same entries come out; docs/modem.md lists what is coped
 * with. Each command names the storage it means in the same line, since another port may have chosen another meanwhile.
 *
 * One thread. Errors are thrown as Failure with the code that the caller of the C function gets; PortGone when the
 * modem has gone, ORVA_E_ABSENT when its card has, ORVA_E_BUSY while the card is busy.
 */
class AtPhonebook
{
public:
    explicit AtPhonebook(AtDialog& dialog) : m_dialog(dialog) {}

    // Wakes the modem and brings it into our manner; false if nothing answers.
    bool start();

    // The state of the card, in one short question.
    CardState cardState();

    // Identity of the card (ICCID) and of the modem (IMEI); empty where the modem does not tell. ORVA_E_BUSY after a
    // silence, which is no answer.
    std::string cardIdentity();
    std::string modemIdentity();

    // Maker, model and firmware, a line each, as far as told.
    std::vector<std::string> product();

    // Tries left for the PIN and for the PUK; -1 where the modem does not tell.
    struct Tries {
        int pin = -1;
        int puk = -1;
    };
    Tries triesLeft();

    // The storages that the modem has; empty where it does not tell.
    std::vector<std::string> storages();

    // Chooses a character set, and asks for a storage's range and lengths. ORVA_E_UNSUPPORTED if the modem lacks it,
    // ORVA_E_BUSY if it keeps silent where it has to say something.
    PhonebookStorage open(const std::string& name);

    // Number of entries, asked for anew; -1 where the modem does not count.
    int used(const PhonebookStorage& storage);

    // All entries, ascending by location. `progress` is called after each step with the number of entries so far.
    std::vector<PhonebookEntry> readAll(const PhonebookStorage& storage, const std::function<void(int)>& progress = {});

    // One location; nothing if it is empty.
    std::optional<PhonebookEntry> read(const PhonebookStorage& storage, int location);

    // Stores an entry at its location, where `before` was (nothing for an empty one), reads it back and compares. If
    // the modem stored something else, `before` is put back and the failure says why. WriteUndecided if that could not
    // be seen; then proveWrite() on the same card does what was left.
    void write(const PhonebookStorage& storage, const PhonebookEntry& entry,
               const std::optional<PhonebookEntry>& before);
    void proveWrite(const PhonebookStorage& storage, const PhonebookEntry& entry,
                    const std::optional<PhonebookEntry>& before);

    // Empties a location, and makes sure that it is empty; likewise.
    void erase(const PhonebookStorage& storage, int location);
    void proveErased(const PhonebookStorage& storage, int location);

    // Puts the modem's own character set back. The next command that needs ours sets it again.
    void finish();

    CharacterSet characterSet() const { return m_set; }

private:
    static constexpr int oftenEnough = 2;      // silences, for what can be done without
    static constexpr int silencesBelieved = 4; // for what cannot

    // How a storage is named within the line of a command.
    enum class Naming { Plain, Hex, Apart };

    Reply askStorage(const std::string& storage, const std::string& command, std::string_view prefix,
                     Milliseconds patience);
    static bool isSilence(const Reply& reply);
    bool mute(const std::string& question, int silences) const;
    Reply insist(const std::string& question, const std::function<Reply()>& ask);
    Reply insist(const std::string& command, std::string_view prefix, Milliseconds patience);
    void requireSound(const Reply& reply, const std::string& question) const;
    void requireAnswer(const Reply& reply, const std::string& question);
    static std::string identityFromFile(const Reply& file);
    void askForCodes();
    Reply askForCard();
    Reply askWhileBusy(const std::string& command, std::string_view prefix, Milliseconds patience);
    void requireCard(const Reply& reply);
    void chooseCharacterSet();
    std::optional<CharacterSet> activeSet(std::string* name = nullptr);
    bool setCharacterSet(CharacterSet set);
    void learnNaming(const std::string& storage);
    void requireStorage(const Reply& selected, const std::string& name);
    StorageShape shapeOf(const std::string& storage);
    StorageStatus statusOf(const std::string& storage);
    void describe(PhonebookStorage& storage);
    void lengthsFromCard(PhonebookStorage& storage);

    struct Reading;
    bool readStep(Reading& reading, int from, int to);
    static void takeLines(Reading& reading, const Reply& reply, int from, int to);
    void readStepwise(Reading& reading, int from, int to);
    void readBehind(Reading& reading);
    PhonebookEntry entryFrom(const EntryLine& line) const;
    void learnNumbers(const std::vector<EntryLine>& lines);

    std::optional<std::string> writeCommand(const PhonebookStorage& storage, const PhonebookEntry& entry) const;
    Reply store(const PhonebookStorage& storage, const PhonebookEntry& entry);
    void requireWritable(const Reply& reply);
    std::optional<PhonebookEntry> readBack(const PhonebookStorage& storage, int location);
    void compare(const PhonebookStorage& storage, const PhonebookEntry& entry,
                 const std::optional<PhonebookEntry>& before, const Reply& reply);
    void compareErased(const PhonebookStorage& storage, int location, const Reply& reply);
    [[noreturn]] void undo(const PhonebookStorage& storage, const PhonebookEntry& asked,
                           const std::optional<PhonebookEntry>& stored, const std::optional<PhonebookEntry>& before);

    AtDialog& m_dialog;
    Naming m_naming = Naming::Plain;
    bool m_namingKnown = false;
    CharacterSet m_set = CharacterSet::Ira;
    bool m_setChosen = false;
    bool m_setActive = false;           // the modem is in m_set now
    std::string m_ownSet;               // as the modem named it, to be put back
    std::optional<bool> m_numbersInHex; // in UCS2; unknown until a number was seen
    bool m_endlessPin = false;          // the answer to +CPIN? never ends
    bool m_codesAsked = false;          // with errors, and the modem has heard it
    bool m_codeless = false;            // and its errors have no codes
    bool m_pinTold = false;             // it has been answered with a state
    int m_step = 50;                    // locations asked for at a time

    // What came of a question: how often nothing, and whether ever something.
    struct Heard {
        int silences = 0;
        bool answered = false;
    };
    std::map<std::string, Heard> m_heard;
};

// The code of a C function for what a modem answered.
Failure failureFor(int error, const std::string& what);

// A number as a contact's field shows it: digits, "+", "*", "#", and "p" and "w" for pauses.
std::string cleanNumber(std::string_view number);

} // namespace orva

#endif // SDK_MODEM_ATPHONEBOOK_H
