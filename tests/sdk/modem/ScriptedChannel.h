#ifndef TESTS_SDK_MODEM_SCRIPTEDCHANNEL_H
#define TESTS_SDK_MODEM_SCRIPTEDCHANNEL_H

// A modem of a few lines: each command that is sent takes its answer from a table. What has no answer gets ERROR.

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "base/Failure.h"
#include "modem/Channel.h"

namespace scripted
{

class Channel final : public orva::Channel
{
public:
    // The answers to a command, one after the other; the last one stays. "<silence>" stands for none, "<gone>" for a
    // port that goes away.
    std::map<std::string, std::deque<std::string>> answers;
    std::vector<std::string> commands; // as they came
    std::size_t piece = 4096;          // octets that come at once

    // What comes without being asked for.
    void push(const std::string& bytes) { m_coming += bytes; }

    void write(std::string_view bytes) override
    {
        for (const char c : bytes) {
            if (c != '\r') {
                m_command.push_back(c);
                continue;
            }
            commands.push_back(m_command);
            answer(m_command);
            m_command.clear();
        }
    }

    // Nothing to come is a time that has passed.
    std::string read(orva::Milliseconds) override
    {
        if (m_gone && m_coming.empty())
            throw orva::Failure(ORVA_E_ABSENT, "gone");
        const std::string some = m_coming.substr(0, piece);
        m_coming.erase(0, some.size());
        return some;
    }

    std::size_t count(const std::string& command) const
    {
        std::size_t n = 0;
        for (const std::string& one : commands)
            n += one == command ? 1 : 0;
        return n;
    }

private:
    void answer(const std::string& command)
    {
        const auto found = answers.find(command);
        if (found == answers.end()) {
            m_coming += command == "AT" ? "\r\nOK\r\n" : "\r\nERROR\r\n";
            return;
        }
        const std::string text = found->second.front();
        if (found->second.size() > 1)
            found->second.pop_front();
        if (text == "<gone>")
            m_gone = true;
        else if (text != "<silence>")
            m_coming += text;
    }

    std::string m_command;
    std::string m_coming;
    bool m_gone = false;
};

inline std::string ok()
{
    return "\r\nOK\r\n";
}

// Lines of an answer and its OK.
inline std::string lines(const std::vector<std::string>& all, const std::string& end = "OK")
{
    std::string text;
    for (const std::string& line : all)
        text += "\r\n" + line + "\r\n";
    return text + "\r\n" + end + "\r\n";
}

} // namespace scripted

#endif // TESTS_SDK_MODEM_SCRIPTEDCHANNEL_H
