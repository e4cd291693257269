#include "modem/DialogRecord.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <random>
#include <vector>

namespace orva
{

namespace
{

constexpr char hexDigits[] = "0123456789ABCDEF";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLower(char c)
{
    return c >= 'a' && c <= 'z';
}

bool isHex(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

int hexValue(char c)
{
    return isDigit(c) ? c - '0' : (c | 0x20) - 'a' + 10;
}

bool beginsWith(std::string_view text, std::string_view with)
{
    return text.substr(0, with.size()) == with;
}

// A keyed sequence that depends on all that has gone into it, so that equal beginnings give equal results.
class Stream
{
public:
    explicit Stream(std::uint64_t key) : m_state(key) {}

    unsigned next(std::uint64_t input)
    {
        m_state ^= input + 0x9E3779B97F4A7C15ULL;
        m_state *= 0xBF58476D1CE4E5B9ULL;
        m_state ^= m_state >> 29;
        m_state *= 0x94D049BB133111EBULL;
        m_state ^= m_state >> 32;
        return static_cast<unsigned>(m_state >> 13 & 0xFFFF);
    }

private:
    std::uint64_t m_state;
};

// One UTF-16 unit for another of its kind.
unsigned maskedUnit(unsigned unit, unsigned random)
{
    if (unit >= '0' && unit <= '9')
        return '0' + random % 10;
    if (unit >= 'A' && unit <= 'Z')
        return 'A' + random % 26;
    if (unit >= 'a' && unit <= 'z')
        return 'a' + random % 26;
    if (unit < 0x80 || unit == 0xFFFF)
        return unit;
    if (unit < 0x100)
        return 0xE0 + random % 0x17;            // another Latin letter
    return (unit & 0xFF80U) | (random & 0x3FU); // within the half page, which decides how it is stored
}

void appendHex(std::string& out, unsigned value, int digits, bool lower)
{
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        char digit = hexDigits[value >> shift & 0xFU];
        if (lower && !isDigit(digit))
            digit = static_cast<char>(digit + 32);
        out.push_back(digit);
    }
}

unsigned hexNumber(std::string_view digits)
{
    unsigned value = 0;
    for (const char digit : digits)
        value = value << 4 | static_cast<unsigned>(hexValue(digit));
    return value;
}

std::string maskedUnits(std::string_view hex, Stream& stream, bool lower)
{
    std::string out;
    for (std::size_t i = 0; i + 4 <= hex.size(); i += 4) {
        const unsigned unit = hexNumber(hex.substr(i, 4));
        appendHex(out, maskedUnit(unit, stream.next(unit)), 4, lower);
    }
    return out;
}

// Octets of unknown meaning: those of letters and digits stay such, form headers and fill stay.
std::string maskedOctets(std::string_view hex, Stream& stream, bool lower)
{
    std::string out;
    for (std::size_t i = 0; i + 2 <= hex.size(); i += 2) {
        const unsigned octet = hexNumber(hex.substr(i, 2));
        const unsigned random = stream.next(octet);
        if (octet == 0xFF || (i == 0 && octet >= 0x80 && octet <= 0x82))
            appendHex(out, octet, 2, lower);
        else if (octet < 0x80)
            appendHex(out, octet < 0x20 ? octet : maskedUnit(octet, random), 2, lower);
        else
            appendHex(out, 0x80U | (random & 0x7FU), 2, lower);
    }
    return out;
}

// Text in hexadecimal digits. Digits alone are a number, unless all of them together spell one.
bool looksHex(std::string_view text)
{
    if (text.size() < 4 || text.size() % 2 != 0 || !std::all_of(text.begin(), text.end(), isHex))
        return false;
    if (!std::all_of(text.begin(), text.end(), isDigit))
        return true;
    if (text.size() % 4 != 0)
        return false;
    for (std::size_t i = 0; i < text.size(); i += 4) {
        const unsigned unit = hexNumber(text.substr(i, 4));
        if (unit > 0x7F || unit < 0x20 || (i == 0 && unit == 0x49))
            return false;
    }
    return true;
}

// Letters and digits for others; the rest stays, since quirks hang on it.
std::string maskedText(std::string_view text, std::uint64_t key)
{
    Stream stream(key);
    if (looksHex(text)) {
        const bool lower = std::any_of(text.begin(), text.end(), isLower);
        return text.size() % 4 == 0 ? maskedUnits(text, stream, lower) : maskedOctets(text, stream, lower);
    }
    std::string out;
    for (const char c : text) {
        const auto octet = static_cast<unsigned char>(c);
        const unsigned random = stream.next(octet);
        if (octet < 0x80)
            out.push_back(static_cast<char>(maskedUnit(octet, random)));
        else
            // A trailing octet of UTF-8 for another, so that what was well-formed stays so.
            out.push_back(octet < 0xC0 ? static_cast<char>(0x80U | (random & 0x3FU)) : c);
    }
    return out;
}

// Everything between separators is a value of its own, quoted or not.
std::string maskedValues(std::string_view text, std::uint64_t key, std::size_t keepFields = 0)
{
    std::string out;
    std::string value;
    std::size_t field = 0;
    const auto flush = [&] {
        out += field < keepFields ? value : maskedText(value, key);
        value.clear();
    };
    bool quoted = false;
    for (const char c : text) {
        if (c == '"')
            quoted = !quoted;
        if (c == '"' || (!quoted && (c == ',' || c == ' '))) {
            flush();
            out.push_back(c);
            field += c == ',' ? 1 : 0;
        } else {
            value.push_back(c);
        }
    }
    flush();
    return out;
}

// Fields of a phonebook entry: location and type of number tell nothing, all else does.
std::string maskedEntry(std::string_view text, std::uint64_t key)
{
    const std::size_t first = text.find(',');
    if (first == std::string_view::npos)
        return std::string(text);
    const std::size_t second = text.find(',', first + 1);
    if (second == std::string_view::npos)
        return std::string(text.substr(0, first + 1)) + maskedValues(text.substr(first + 1), key);
    std::size_t third = second + 1;
    while (third < text.size() && (isDigit(text[third]) || text[third] == ' '))
        ++third;
    const bool typed = third < text.size() && text[third] == ',';
    if (!typed)
        return std::string(text.substr(0, first + 1)) + maskedValues(text.substr(first + 1), key);
    return std::string(text.substr(0, first + 1)) + maskedValues(text.substr(first + 1, second - first - 1), key) +
           std::string(text.substr(second, third + 1 - second)) + maskedValues(text.substr(third + 1), key);
}

// Answers that tell about the modem and nobody else.
bool harmless(std::string_view line)
{
    for (const std::string_view prefix : {"+CPBS",
                                          "+CSCS",
                                          "+CPBW: (",
                                          "+CPBW:(",
                                          "+CPIN",
                                          "+CPINR",
                                          "+CME ERROR",
                                          "+CMS ERROR",
                                          "+CMEE",
                                          "+CFUN",
                                          "+CSQ",
                                          "+CGMI",
                                          "+CGMM",
                                          "+CGMR",
                                          "+GMM",
                                          "+PBREADY",
                                          "^SIMST",
                                          "^SSIM READY",
                                          "#QSS",
                                          "+SIM",
                                          "OK",
                                          "ERROR",
                                          "RING",
                                          "NO CARRIER",
                                          "BUSY",
                                          "NO ANSWER",
                                          "PB DONE",
                                          "SMS DONE",
                                          "COMMAND NOT SUPPORT",
                                          "AT"}) {
        if (beginsWith(line, prefix))
            return true;
    }
    return false;
}

bool testAnswer(std::string_view line, std::string_view command)
{
    return !command.empty() && command.back() == '?' && line.find('"') == std::string_view::npos;
}

} // namespace

std::string maskedCommand(std::string_view command, std::uint64_t key)
{
    const std::size_t write = command.find("+CPBW=");
    if (write != std::string_view::npos && command.find("+CPBW=?") == std::string_view::npos)
        return std::string(command.substr(0, write + 6)) + maskedEntry(command.substr(write + 6), key);
    for (const std::string_view secret : {"AT+CPIN=", "AT+CPBF=", "AT+CLCK=", "AT+CPWD=", "AT+CMGS=", "AT+CUSD="}) {
        if (beginsWith(command, secret) && command.back() != '?')
            return std::string(secret) + maskedValues(command.substr(secret.size()), key);
    }
    if (beginsWith(command, "ATD"))
        return "ATD" + maskedValues(command.substr(3), key);
    return std::string(command);
}

std::string maskedLine(std::string_view line, std::string_view command, std::uint64_t key)
{
    const std::size_t colon = line.find(':');
    if (beginsWith(line, "+CPBR") && colon != std::string_view::npos) {
        if (testAnswer(line, command) && command.find("+CPBR=?") != std::string_view::npos)
            return std::string(line);
        const std::size_t index = line.find_first_not_of(' ', colon + 1);
        if (index == std::string_view::npos)
            return std::string(line);
        return std::string(line.substr(0, index)) + maskedEntry(line.substr(index), key);
    }
    if (beginsWith(line, "AT"))
        return maskedCommand(line, key); // an echo
    if (beginsWith(line, "+CRSM") && colon != std::string_view::npos)
        // Two status words stand before the data.
        return std::string(line.substr(0, colon + 1)) + maskedValues(line.substr(colon + 1), key, 2);
    for (const std::string_view network : {"+CREG", "+CGREG", "+CEREG"}) {
        // Whether there is a network, but not where.
        if (colon == network.size() && beginsWith(line, network))
            return std::string(line.substr(0, colon + 1)) + maskedValues(line.substr(colon + 1), key, 2);
    }
    if (harmless(line) || command.find("+CGM") != std::string_view::npos || command == "ATI")
        return std::string(line);
    const bool named = colon != std::string_view::npos && (line.front() == '+' || line.front() == '^');
    const std::size_t begin = named ? colon + 1 : 0;
    return std::string(line.substr(0, begin)) + maskedValues(line.substr(begin), key);
}

std::unique_ptr<DialogRecord> DialogRecord::fromEnvironment()
{
    const char* const path = std::getenv("LINKHAND_MODEM_LOG");
    if (path == nullptr || *path == '\0')
        return nullptr;
    const int file = ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0)
        return nullptr;
    std::random_device random;
    return std::make_unique<DialogRecord>(file, static_cast<std::uint64_t>(random()) << 32 | random());
}

DialogRecord::DialogRecord(int file, std::uint64_t key)
    : m_file(file), m_key(key), m_start(std::chrono::steady_clock::now())
{
}

DialogRecord::~DialogRecord()
{
    ::close(m_file);
}

void DialogRecord::sent(std::string_view command)
{
    m_command = command;
    write('>', maskedCommand(command, m_key));
}

void DialogRecord::received(std::string_view line)
{
    write('<', maskedLine(line, m_command, m_key));
}

void DialogRecord::note(std::string_view text)
{
    write('#', std::string(text));
}

void DialogRecord::write(char mark, const std::string& text)
{
    const std::chrono::duration<double> since = std::chrono::steady_clock::now() - m_start;
    char head[32];
    std::snprintf(head, sizeof head, "%.3f %c ", since.count(), mark);
    std::string line = head;
    for (const char c : text) {
        char escaped[8];
        if (static_cast<unsigned char>(c) >= ' ' && c != '\x7F' && c != '\\') {
            line.push_back(c);
        } else {
            std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(c));
            line += escaped;
        }
    }
    line.push_back('\n');
    // A record that cannot be written must not stop the dialog.
    if (::write(m_file, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
        return;
}

} // namespace orva
