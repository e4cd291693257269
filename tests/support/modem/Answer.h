#ifndef TESTS_SUPPORT_MODEM_ANSWER_H
#define TESTS_SUPPORT_MODEM_ANSWER_H

#include <string>
#include <utility>
#include <vector>

namespace modemsim
{

// What a modem says to one command: information lines and one final result.
struct Answer {
    enum Final { Ok, Error, CmeError, CmsError, NoCarrier, Busy, NoAnswer, Prompt };

    struct Line {
        std::string text;
        int milliseconds; // that pass before it
    };

    std::vector<Line> lines;
    Final final = Ok;
    int code = 0;
    int milliseconds = 0; // that pass before the final result
    bool stalls = false;  // the final result never comes

    Answer() = default;
    explicit Answer(std::string line) { add(std::move(line)); }
    void add(std::string line, int time = 0) { lines.push_back({std::move(line), time}); }
};

inline Answer finalOnly(Answer::Final final, int code = 0)
{
    Answer answer;
    answer.final = final;
    answer.code = code;
    return answer;
}

// The codes of 3GPP TS 27.007, 9.2, that the simulated modem uses.
enum Cme {
    NotAllowed = 3,
    NotSupported = 4,
    NoCard = 10,
    PinNeeded = 11,
    PukNeeded = 12,
    CardFailure = 13,
    CardBusy = 14,
    WrongPassword = 16,
    Pin2Needed = 17,
    MemoryFull = 20,
    InvalidIndex = 21,
    NotFound = 22,
    TextTooLong = 24,
    TextInvalid = 25,
    NumberTooLong = 26,
    NumberInvalid = 27,
    NoNetwork = 30,
    BadParameters = 50
};

inline Answer cme(int code)
{
    return finalOnly(Answer::CmeError, code);
}

inline Answer cms(int code)
{
    return finalOnly(Answer::CmsError, code);
}

// The words of an error code.
const char* cmeText(int code);

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_ANSWER_H
