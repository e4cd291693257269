#ifndef SDK_MODEM_ATDIALOG_H
#define SDK_MODEM_ATDIALOG_H

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "modem/Channel.h"
#include "modem/LineReader.h"

namespace orva
{

class DialogRecord;

// Result codes of a mobile termination (3GPP TS 27.007, 9.2.1) that something depends on.
namespace cme
{
constexpr int none = -1; // plain ERROR
constexpr int notAllowed = 3;
constexpr int notSupported = 4;
constexpr int noCard = 10;
constexpr int pinNeeded = 11;
constexpr int pukNeeded = 12;
constexpr int cardFailure = 13;
constexpr int cardBusy = 14;
constexpr int cardWrong = 15;
constexpr int wrongPassword = 16;
constexpr int pin2Needed = 17;
constexpr int puk2Needed = 18;
constexpr int memoryFull = 20;
constexpr int badIndex = 21;
constexpr int notFound = 22;
constexpr int memoryFailure = 23;
constexpr int textTooLong = 24;
constexpr int badText = 25;
constexpr int numberTooLong = 26;
constexpr int badNumber = 27;
constexpr int badParameters = 50;
constexpr int unknown = 100;
} // namespace cme

// How long a modem may keep silent, from the last line of its answer on.
struct Patience {
    Milliseconds plain{3000};
    Milliseconds pin{5000};
    Milliseconds read{10000};
    Milliseconds write{15000};
    Milliseconds life{1500};  // for one AT, to see whether anybody is there
    Milliseconds busy{30000}; // altogether, while the card is busy
    Milliseconds quiet{300};  // after which nothing late is expected any more
};

struct Reply {
    enum class End { Ok, Error, Silence };

    End end = End::Silence;
    int error = cme::none;          // with End::Error: the code, if the modem gave one
    std::vector<std::string> lines; // of the answer, in order

    bool ok() const { return end == End::Ok; }
    bool silent() const { return end == End::Silence; }
};

/*
 * One command at a time over a channel: sends it, collects the lines of its answer, passes by what comes unasked, and
 * tells how it ended. One thread. Every operation throws Failure(ORVA_E_ABSENT) when the channel ends.
 */
class AtDialog
{
public:
    // Called with each line that belongs to no answer. It must not use the dialog.
    using Unsolicited = std::function<void(const std::string& line)>;

    // What is recorded, if anything, must outlive the dialog.
    explicit AtDialog(Channel& channel, Patience patience = Patience(), DialogRecord* record = nullptr);

    void setUnsolicited(Unsolicited receiver) { m_unsolicited = std::move(receiver); }
    const Patience& patience() const { return m_patience; }

    // Sends `command` and waits for its end. Lines that begin with `prefix` are its answer; with an empty prefix, those
    // that begin with the command's own name or do not look unsolicited. After a silence the next command is preceded
    // by recover().
    Reply ask(const std::string& command, std::string_view prefix, Milliseconds patience);
    Reply ask(const std::string& command, std::string_view prefix = {});

    // Whether a modem answers at all, anything at all, to up to `attempts` AT. What it was saying before is passed by.
    bool recover(int attempts = 3);

    // Takes what has come while no command ran, and what comes within that time.
    void pause(Milliseconds time = Milliseconds(0));

private:
    enum class Kind { Final, Answer, Continued, Other };

    void send(const std::string& command);
    bool takeLine(std::string& line);
    bool nextLine(std::string& line, Milliseconds atMost);
    Reply collect(const std::string& command, std::string_view prefix, Milliseconds patience);
    Kind kindOf(const std::string& line, const std::string& command, std::string_view prefix, const Reply& reply) const;
    Reply collectNamed(int endsBefore);
    void drain();

    Channel& m_channel;
    const Patience m_patience;
    DialogRecord* const m_record;
    LineReader m_reader;
    Unsolicited m_unsolicited;
    bool m_unsure = false; // an answer may still come for a command that was given up
};

// The code of a final result line, which may be one word or a sentence: true if it is one, and *reply says which.
bool readFinalResult(std::string_view line, Reply* reply);

// What stands behind "PREFIX:", with blanks taken off both ends; the line itself if it does not begin so.
std::string_view answerText(std::string_view line, std::string_view prefix);

std::string_view trimmed(std::string_view text);

} // namespace orva

#endif // SDK_MODEM_ATDIALOG_H
