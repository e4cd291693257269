#ifndef TESTS_SUPPORT_MODEM_PORT_H
#define TESTS_SUPPORT_MODEM_PORT_H

#include "support/modem/Answer.h"
#include "support/modem/CommandLine.h"
#include "support/modem/State.h"

#include <deque>

namespace modemsim
{

// The line protocol of one port: bytes become command lines, answers become bytes that are due at a time.
class Port
{
public:
    Port(State& state, size_t index);

    void feed(const std::string& bytes);
    void unsolicited(const std::string& text);
    // The client has gone: what was being typed and what was still to be sent is lost.
    void hangUp();

    bool waiting() const { return !m_output.empty(); }
    Clock::time_point due() const; // of the first piece of output
    // Takes what may be sent now, and how it went.
    std::string ready(Clock::time_point now) const;
    void sent(size_t bytes, Clock::time_point now);

private:
    struct Piece {
        Clock::time_point due;
        std::string bytes;
        bool unplugBehind;
    };

    void take(char c);
    void takeMessageCharacter(char c);
    void execute(const std::string& line);
    void answer(const Answer& answer, const std::string& line);
    Answer ended(Answer answer);
    bool meetsFault(const Command& command, Answer& whole, const std::string& line);
    void write(const std::string& bytes, int milliseconds);
    std::string information(const std::string& text, bool first) const;
    std::string finalResult(const Answer& answer) const;
    void tell(char direction, const std::string& text) const;

    State& m_state;
    const size_t m_index;
    std::string m_line;
    std::string m_lastLine;
    bool m_prompt = false;
    bool m_unplugInside = false;
    bool m_stallInside = false;
    bool m_silent = false;
    int m_errorAfter = 0; // the error that the command ends with once it is carried out, or 0
    std::deque<Piece> m_output;
    Clock::time_point m_lineFree; // when the last piece has gone
};

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_PORT_H
