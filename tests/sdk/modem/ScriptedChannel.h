#ifndef TESTS_SDK_MODEM_SCRIPTEDCHANNEL_H
#define TESTS_SDK_MODEM_SCRIPTEDCHANNEL_H

// A modem of a few lines: each command that is sent takes its answer from a table. What has no answer gets ERROR.

#include <algorithm>
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
    // port that goes away. One that begins with "<after 400>" takes the modem so many milliseconds, and what it is
    // asked meanwhile has to wait; they pass only while somebody reads.
    std::map<std::string, std::deque<std::string>> answers;
    std::vector<std::string> commands; // as they came
    std::size_t piece = 4096;          // octets that come at once

    // What comes without being asked for.
    void push(const std::string& bytes) { come(bytes, orva::Milliseconds(0)); }

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
    std::string read(orva::Milliseconds atMost) override
    {
        if (m_gone && m_coming.empty())
            throw orva::Failure(ORVA_E_ABSENT, "gone");
        if (m_coming.empty() || m_coming.front().due > m_now + atMost) {
            m_now += atMost;
            return {};
        }
        std::string& front = m_coming.front().bytes;
        m_now = std::max(m_now, m_coming.front().due);
        const std::string some = front.substr(0, piece);
        front.erase(0, some.size());
        if (front.empty())
            m_coming.pop_front();
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
    struct Piece {
        std::string bytes;
        orva::Milliseconds due;
    };

    void answer(const std::string& command)
    {
        const auto found = answers.find(command);
        if (found == answers.end()) {
            come(command == "AT" ? "\r\nOK\r\n" : "\r\nERROR\r\n", orva::Milliseconds(0));
            return;
        }
        const std::string text = found->second.front();
        if (found->second.size() > 1)
            found->second.pop_front();
        if (text == "<gone>")
            m_gone = true;
        else if (text.compare(0, 7, "<after ") == 0)
            come(text.substr(text.find('>') + 1), orva::Milliseconds(std::stoi(text.substr(7))));
        else if (text != "<silence>")
            come(text, orva::Milliseconds(0));
    }

    // Behind what is to come already.
    void come(const std::string& bytes, orva::Milliseconds after)
    {
        const orva::Milliseconds from = m_coming.empty() ? m_now : std::max(m_now, m_coming.back().due);
        if (after.count() == 0 && !m_coming.empty())
            m_coming.back().bytes += bytes;
        else if (!bytes.empty())
            m_coming.push_back({bytes, from + after});
    }

    std::string m_command;
    std::deque<Piece> m_coming;
    orva::Milliseconds m_now{0};
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
