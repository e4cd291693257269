#include "modem/AtDialog.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "modem/DialogRecord.h"

namespace orva
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr char nameQuestion[] = "AT+CSCS?";
constexpr char namePrefix[] = "+CSCS";

struct NamedError {
    std::string_view name;
    int code;
};

// The sentences of +CMEE=2, which some modems use whatever they are told.
constexpr NamedError namedErrors[] = {
    {"operation not allowed", cme::notAllowed},
    {"operation not supported", cme::notSupported},
    {"SIM not inserted", cme::noCard},
    {"SIM PIN required", cme::pinNeeded},
    {"SIM PUK required", cme::pukNeeded},
    {"SIM failure", cme::cardFailure},
    {"SIM busy", cme::cardBusy},
    {"SIM wrong", cme::cardWrong},
    {"incorrect password", cme::wrongPassword},
    {"SIM PIN2 required", cme::pin2Needed},
    {"SIM PUK2 required", cme::puk2Needed},
    {"memory full", cme::memoryFull},
    {"invalid index", cme::badIndex},
    {"not found", cme::notFound},
    {"memory failure", cme::memoryFailure},
    {"text string too long", cme::textTooLong},
    {"invalid characters in text string", cme::badText},
    {"dial string too long", cme::numberTooLong},
    {"invalid characters in dial string", cme::badNumber},
    {"incorrect parameters", cme::badParameters},
    {"unknown", cme::unknown},
};

bool sameText(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
               return lower(x) == lower(y);
           });
}

int errorCode(std::string_view text)
{
    text = trimmed(text);
    int code = cme::unknown;
    if (std::from_chars(text.data(), text.data() + text.size(), code).ec == std::errc())
        return code;
    for (const NamedError& error : namedErrors) {
        if (sameText(error.name, text))
            return error.code;
    }
    return cme::unknown;
}

// Lines that a modem sends by itself. One that begins with another command's prefix is such too.
bool looksUnsolicited(std::string_view line)
{
    if (line.empty())
        return true;
    if (std::string_view("+^*%#$").find(line.front()) != std::string_view::npos)
        return true;
    for (const std::string_view word : {"RING", "NO CARRIER", "BUSY", "NO ANSWER", "NO DIALTONE", "PB DONE", "SMS DONE",
                                        "Call Ready", "SMS Ready", "RDY"}) {
        if (trimmed(line) == word)
            return true;
    }
    return false;
}

// "+CGMM" of "AT+CGMM=?"; never empty.
std::string_view ownName(std::string_view command)
{
    const std::string_view name = command.substr(std::min<std::size_t>(2, command.size()));
    return name.empty() ? command : name.substr(0, name.find_first_of("=?;", 1));
}

// Whether a quotation is still open, so that the next line belongs to it.
bool quoteOpen(std::string_view line)
{
    return std::count(line.begin(), line.end(), '"') % 2 == 1;
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

std::string_view answerText(std::string_view line, std::string_view prefix)
{
    if (!beginsWith(line, prefix))
        return trimmed(line);
    line.remove_prefix(prefix.size());
    if (!line.empty() && line.front() == ':')
        line.remove_prefix(1);
    return trimmed(line);
}

bool readFinalResult(std::string_view line, Reply* reply)
{
    line = trimmed(line);
    if (line == "OK") {
        reply->end = Reply::End::Ok;
        return true;
    }
    if (line == "ERROR" || line == "COMMAND NOT SUPPORT" || line == "TOO MANY PARAMETERS") {
        reply->end = Reply::End::Error;
        reply->error = cme::none;
        return true;
    }
    for (const std::string_view prefix : {"+CME ERROR", "+CMS ERROR"}) {
        if (beginsWith(line, prefix)) {
            reply->end = Reply::End::Error;
            reply->error = errorCode(answerText(line, prefix));
            return true;
        }
    }
    return false;
}

AtDialog::AtDialog(Channel& channel, Patience patience, DialogRecord* record)
    : m_channel(channel), m_patience(patience), m_record(record)
{
}

void AtDialog::send(const std::string& command)
{
    if (m_record != nullptr)
        m_record->sent(command);
    m_channel.write(command + "\r");
}

bool AtDialog::takeLine(std::string& line)
{
    if (!m_reader.next(line))
        return false;
    if (m_record != nullptr)
        m_record->received(line);
    return true;
}

bool AtDialog::nextLine(std::string& line, Milliseconds atMost)
{
    const auto until = Clock::now() + atMost;
    while (!takeLine(line)) {
        const auto left = std::chrono::ceil<Milliseconds>(until - Clock::now());
        if (left.count() <= 0)
            return false;
        const std::string bytes = m_channel.read(left);
        if (bytes.empty())
            return false;
        m_reader.feed(bytes);
    }
    return true;
}

AtDialog::Kind AtDialog::kindOf(const std::string& line, const std::string& command, std::string_view prefix,
                                const Reply& reply) const
{
    // The most of all lines; no end of an answer has the name of a question.
    if (!prefix.empty() && beginsWith(line, prefix))
        return Kind::Answer;
    Reply end;
    if (readFinalResult(line, &end))
        return Kind::Final;
    // Result codes as digits, until ATV1 has been heard.
    if ((command == "AT" || command == "ATE0" || command == "ATV1") && (line == "0" || line == "4"))
        return Kind::Final;
    if (prefix.empty() && beginsWith(line, ownName(command)))
        return Kind::Answer;
    if (looksUnsolicited(line))
        return Kind::Other;
    if (prefix.empty())
        return Kind::Answer;
    return !reply.lines.empty() && quoteOpen(reply.lines.back()) ? Kind::Continued : Kind::Other;
}

Reply AtDialog::collect(const std::string& command, std::string_view prefix, Milliseconds patience)
{
    Reply reply;
    std::string line;
    auto until = Clock::now() + patience;
    bool renewed = false; // a line of the answer has come since then
    for (;;) {
        // What is there already costs no look at the clock.
        if (!takeLine(line)) {
            if (std::exchange(renewed, false))
                until = Clock::now() + patience;
            const auto left = std::chrono::ceil<Milliseconds>(until - Clock::now());
            if (left.count() <= 0 || !nextLine(line, left))
                return reply;
        }
        if (trimmed(line) == command)
            continue; // the echo
        switch (kindOf(line, command, prefix, reply)) {
        case Kind::Final:
            if (!readFinalResult(line, &reply))
                reply.end = line == "0" ? Reply::End::Ok : Reply::End::Error;
            return reply;
        case Kind::Answer:
            reply.lines.push_back(std::move(line));
            renewed = true;
            break;
        case Kind::Continued:
            reply.lines.back() += "\n" + line;
            renewed = true;
            break;
        case Kind::Other:
            if (m_unsolicited)
                m_unsolicited(line);
            break;
        }
    }
}

Reply AtDialog::ask(const std::string& command, std::string_view prefix, Milliseconds patience)
{
    if (m_unsure && !recover())
        return Reply();
    pause();
    send(command);
    Reply reply = collect(command, prefix, patience);
    m_unsure = reply.silent();
    return reply;
}

Reply AtDialog::ask(const std::string& command, std::string_view prefix)
{
    return ask(command, prefix, m_patience.plain);
}

void AtDialog::drain()
{
    std::string line;
    while (nextLine(line, m_patience.quiet))
        continue;
    m_reader.clear();
}

// Collects the answer to the named question. An end without a name belongs to something earlier, which answers first.
Reply AtDialog::collectNamed(int endsBefore)
{
    Reply named = collect(nameQuestion, namePrefix, m_patience.life);
    bool refused = false;
    while (!named.silent() && named.lines.empty() && endsBefore-- > 0) {
        refused = named.end == Reply::End::Error;
        named = collect(nameQuestion, namePrefix, m_patience.life);
    }
    // A refusal with nothing behind it was that of the question itself.
    if (named.silent() && named.lines.empty() && refused)
        named.end = Reply::End::Error;
    return named;
}

bool AtDialog::recover(int attempts)
{
    int sent = 0; // questions with a name whose answer has not come
    for (int attempt = 0; attempt < attempts; ++attempt) {
        send("AT");
        if (collect("AT", {}, m_patience.life).silent())
            continue;
        // That may have been the late end of another command. A question whose answer has a name tells.
        send(nameQuestion);
        ++sent;
        const int mostBefore = 2 * (attempt + 1) + 1;
        Reply named = collectNamed(mostBefore);
        // Neither a name nor a refusal: a slow modem may still be at what was given up.
        if (named.silent() && named.lines.empty() && attempt + 1 < attempts)
            continue;
        // The answer to an earlier attempt: that to the last one is still to come.
        while (!named.lines.empty() && --sent > 0)
            named = collectNamed(mostBefore);
        // Behind the last answer with a name nothing late is left.
        if (named.lines.empty())
            drain();
        m_unsure = false;
        return true;
    }
    m_unsure = true;
    return false;
}

void AtDialog::pause(Milliseconds time)
{
    const auto until = Clock::now() + time;
    std::string line;
    for (;;) {
        while (m_reader.next(line)) {
            if (m_record != nullptr)
                m_record->received(line);
            if (m_unsolicited)
                m_unsolicited(line);
        }
        const auto left = std::chrono::ceil<Milliseconds>(until - Clock::now());
        const std::string bytes = m_channel.read(std::max(left, Milliseconds(0)));
        if (bytes.empty())
            return;
        m_reader.feed(bytes);
    }
}

} // namespace orva
