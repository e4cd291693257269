#include "support/modem/Port.h"

#include "support/modem/Commands.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace modemsim
{

namespace
{

constexpr char escape = 0x1B;
constexpr char endOfMessage = 0x1A;

bool beginsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

} // namespace

Port::Port(State& state, size_t index) : m_state(state), m_index(index) {}

void Port::tell(char direction, const std::string& text) const
{
    m_state.said(m_index, direction, text);
}

void Port::feed(const std::string& bytes)
{
    if (m_state.dead)
        return;
    for (const char c : bytes) {
        if (!m_state.plugged)
            return;
        if (m_prompt)
            takeMessageCharacter(c);
        else
            take(c);
    }
}

void Port::take(char c)
{
    const PortSettings& settings = m_state.settings(m_index);
    if (c == '\n' || c == escape || c == endOfMessage)
        return;
    if (settings.echo)
        write(std::string(1, c), 0);
    if (c == '\b' || c == 0x7F) {
        if (!m_line.empty())
            m_line.pop_back();
        return;
    }
    if (c != '\r') {
        m_line += c;
        return;
    }
    std::string line;
    line.swap(m_line);
    for (size_t i = 0; i < line.size() && i < 2; ++i)
        line[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(line[i])));
    if (line == "A/")
        line = m_lastLine;
    if (beginsWith(line, "AT"))
        execute(line);
}

void Port::takeMessageCharacter(char c)
{
    if (c == '\n' && m_line.empty())
        return; // some send a line feed behind the carriage return of the command
    if (c != escape && c != endOfMessage) {
        m_line += c;
        return;
    }
    std::string typed;
    typed.swap(m_line);
    m_prompt = false;
    if (c == escape) {
        answer(Answer(), std::string());
        return;
    }
    tell('>', typed);
    const Command message = parseLine("AT+MESSAGE")[0];
    Answer whole;
    if (!meetsFault(message, whole, typed))
        answer(ended(takeMessage(m_state, m_index, typed)), typed);
}

// A fault may leave the command undone, or take away what would be said about it.
bool Port::meetsFault(const Command& command, Answer& whole, const std::string& line)
{
    m_state.began(m_index, command.text());
    PlannedFault planned;
    if (!m_state.takeFault(command.text(), planned))
        return false;
    switch (planned.fault) {
    case Fault::SilentBefore:
        return true;
    case Fault::UnplugBefore:
        m_state.unplug();
        return true;
    case Fault::SilentAfter:
        m_silent = true;
        return false;
    case Fault::UnplugAfter:
        m_silent = m_unplugInside = true;
        return false;
    case Fault::UnplugInside:
        m_unplugInside = true;
        return false;
    case Fault::StallInside:
        m_stallInside = true;
        return false;
    case Fault::PullCard:
        m_state.pullCard();
        return false;
    case Fault::ErrorAfter:
        m_errorAfter = planned.code;
        return false;
    case Fault::Error:
        break;
    }
    whole.final = Answer::CmeError;
    whole.code = planned.code;
    answer(whole, line);
    return true;
}

// What has been carried out, with the end that a fault gives it.
Answer Port::ended(Answer answer)
{
    if (const int code = std::exchange(m_errorAfter, 0)) {
        answer.final = Answer::CmeError;
        answer.code = code;
    }
    return answer;
}

void Port::execute(const std::string& line)
{
    m_lastLine = line;
    tell('>', line);
    const std::vector<Command> commands = parseLine(line);
    Answer whole;
    if (commands.empty()) {
        m_state.began(m_index, line);
        answer(m_state.quirks.has("bare_at_error") ? finalOnly(Answer::Error) : Answer(), line);
        return;
    }
    for (const Command& command : commands) {
        if (meetsFault(command, whole, line))
            return;
        const Answer part = ended(run(m_state, m_index, command));
        whole.lines.insert(whole.lines.end(), part.lines.begin(), part.lines.end());
        whole.final = part.final;
        whole.code = part.code;
        whole.milliseconds += part.milliseconds;
        whole.stalls = part.stalls;
        if (part.final != Answer::Ok)
            break;
    }
    answer(whole, line);
}

std::string Port::information(const std::string& text, bool first) const
{
    const bool doubled = m_state.quirks.has("crcrlf");
    const std::string end = doubled ? "\r\r\n" : "\r\n";
    std::string shown = text;
    const size_t colon = shown.find(": ");
    if (m_state.quirks.has("no_space") && !shown.empty() && std::ispunct(static_cast<unsigned char>(shown[0])) &&
        colon != std::string::npos && colon < 12)
        shown.erase(colon + 1, 1);
    return (first && m_state.settings(m_index).verbose ? end : std::string()) + shown + end;
}

std::string Port::finalResult(const Answer& answer) const
{
    static const char* const words[] = {"OK", "ERROR", "", "", "NO CARRIER", "BUSY", "NO ANSWER"};
    static const char* const digits[] = {"0", "4", "", "", "3", "7", "8"};
    const PortSettings& settings = m_state.settings(m_index);
    const bool coded = answer.final == Answer::CmeError || answer.final == Answer::CmsError;
    const bool plain = settings.errors == 0 || m_state.quirks.has("no_cmee");
    const Answer::Final final = coded && plain ? Answer::Error : answer.final;
    if (coded && !plain) {
        const bool message = final == Answer::CmsError;
        const bool inWords = !message && (settings.errors == 2 || m_state.quirks.has("verbose_errors"));
        return information((message ? "+CMS ERROR: " : "+CME ERROR: ") +
                               (inWords ? std::string(cmeText(answer.code)) : std::to_string(answer.code)),
                           true);
    }
    if (!settings.verbose)
        return std::string(digits[final]) + "\r";
    return information(words[final], true);
}

void Port::answer(const Answer& answer, const std::string& line)
{
    const Quirks& quirks = m_state.quirks;
    const bool silent = m_silent || (quirks.has("silent") && beginsWith(line, quirks.text("silent")));
    const bool stallInside = m_stallInside;
    const bool unfinished =
        stallInside || answer.stalls || (quirks.has("lost_ok") && beginsWith(line, quirks.text("lost_ok")));
    m_silent = m_stallInside = false;
    if (silent) {
        if (m_unplugInside)
            m_state.unplug();
        return;
    }
    // The command's own way over the line, and the time that every command takes.
    const int baud = m_state.plan.baud;
    const int transfer = baud > 0 ? static_cast<int>((line.size() + 1) * 10000 / static_cast<size_t>(baud)) : 0;
    int wait = m_state.plan.commandMs + quirks.number("delay", 0) + transfer;
    bool first = true;
    for (const Answer::Line& piece : answer.lines) {
        if (stallInside && &piece == &answer.lines[answer.lines.size() / 2]) {
            write(information(piece.text, first).substr(0, piece.text.size() / 2), wait);
            return;
        }
        if (quirks.has("urc_inside") && !first)
            write(information("+CSQ: 17,99", true) + information("^RSSI:17", true), 0);
        tell('<', piece.text);
        write(information(piece.text, first || quirks.has("urc_inside")), wait + piece.milliseconds);
        first = false;
        wait = 0;
        if (m_unplugInside)
            break;
    }
    if (m_unplugInside && !answer.lines.empty()) {
        std::string& last = m_output.back().bytes;
        last.resize(last.size() / 2);
        m_output.back().unplugBehind = true;
        return;
    }
    if (m_unplugInside) {
        m_state.unplug();
        return;
    }
    wait += answer.milliseconds;
    if (answer.final == Answer::Prompt) {
        m_prompt = true;
        write("\r\n> ", wait);
        return;
    }
    if (unfinished || m_state.settings(m_index).quiet)
        return;
    const std::string final = finalResult(answer);
    const size_t begin = final.find_first_not_of("\r\n");
    tell('<', final.substr(begin, final.find_last_not_of("\r\n") + 1 - begin));
    write(final, wait);
}

void Port::unsolicited(const std::string& text)
{
    if (m_state.dead)
        return;
    tell('<', text);
    write(information(text, true), 0);
}

void Port::hangUp()
{
    m_line.clear();
    m_prompt = m_silent = m_unplugInside = m_stallInside = false;
    m_output.clear();
}

// Pieces keep their order: one is due no earlier than the one before it, and so much later as it takes.
void Port::write(const std::string& text, int milliseconds)
{
    std::string bytes = text;
    if (m_state.quirks.has("seven_bit"))
        std::transform(bytes.begin(), bytes.end(), bytes.begin(), [](char c) { return static_cast<char>(c & 0x7F); });
    const Clock::time_point now = Clock::now();
    Clock::time_point due = m_output.empty() ? now : std::max(now, m_output.back().due);
    due += std::chrono::milliseconds(milliseconds);
    const int fragment = m_state.quirks.number("fragment", 0);
    if (milliseconds == 0 && fragment == 0 && !m_output.empty() && m_output.back().due == due) {
        m_output.back().bytes += bytes;
        return;
    }
    const size_t step = fragment > 0 ? static_cast<size_t>(fragment) : bytes.size();
    for (size_t at = 0; at < bytes.size(); at += step)
        m_output.push_back({due, bytes.substr(at, step), false});
}

Clock::time_point Port::due() const
{
    return std::max(m_output.front().due, m_lineFree);
}

std::string Port::ready(Clock::time_point now) const
{
    if (m_output.empty() || due() > now)
        return std::string();
    // At a given speed, what goes over the line in some ten milliseconds.
    const int baud = m_state.plan.baud;
    const size_t most = baud > 0 ? std::max<size_t>(1, static_cast<size_t>(baud) / 1000) : 4096;
    return m_output.front().bytes.substr(0, most);
}

void Port::sent(size_t bytes, Clock::time_point now)
{
    const int baud = m_state.plan.baud;
    if (baud > 0)
        m_lineFree = std::max(now - std::chrono::milliseconds(20), m_lineFree) +
                     std::chrono::microseconds(bytes * 10000000 / static_cast<size_t>(baud));
    else if (m_state.quirks.has("fragment"))
        m_lineFree = now + std::chrono::microseconds(200);
    Piece& front = m_output.front();
    front.bytes.erase(0, bytes);
    if (!front.bytes.empty())
        return;
    const bool unplug = front.unplugBehind;
    m_output.pop_front();
    if (unplug)
        m_state.unplug();
}

} // namespace modemsim
