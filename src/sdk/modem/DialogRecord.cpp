#include "modem/DialogRecord.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <random>
#include <vector>

#include "base/Hex.h"
#include "modem/LineReader.h"
#include "modem/PhonebookLines.h"

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
    return hexDigit(c) >= 0;
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
    // Letters in the default alphabet of GSM.
    for (const std::string_view letters : {"[]^", "{|}~"}) {
        if (unit < 0x80 && letters.find(static_cast<char>(unit)) != std::string_view::npos)
            return static_cast<unsigned>(letters[random % letters.size()]);
    }
    if (unit < 0x80 || unit == 0xFFFF)
        return unit;
    if (unit >= 0x2E80 && unit < 0xA000)
        return 0x4E00 + random % 0x5000; // a script of so many characters that a near one says much
    if (unit >= 0xAC00 && unit < 0xD7A0)
        return 0xAC00 + random % 0x2B00;
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
        value = value << 4 | static_cast<unsigned>(hexDigit(digit));
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

// Octets of unknown meaning: those of letters and digits stay such, and fill stays.
std::string maskedOctets(std::string_view hex, Stream& stream, bool lower)
{
    std::string out;
    for (std::size_t i = 0; i + 2 <= hex.size(); i += 2) {
        const unsigned octet = hexNumber(hex.substr(i, 2));
        const unsigned random = stream.next(octet);
        if (octet == 0xFF)
            appendHex(out, octet, 2, lower);
        else if (octet < 0x80)
            appendHex(out, octet < 0x20 ? octet : maskedUnit(octet, random), 2, lower);
        else
            appendHex(out, 0x80U | (random & 0x7FU), 2, lower);
    }
    return out;
}

// A card's own coding of names outside the default alphabet has a head, which is kept.
std::string maskedHex(std::string_view hex, Stream& stream, bool lower)
{
    const unsigned form = hexNumber(hex.substr(0, 2));
    const std::size_t octets = hex.size() / 2;
    if (form == 0x80 && octets % 2 == 1)
        return std::string(hex.substr(0, 2)) + maskedUnits(hex.substr(2), stream, lower);
    const std::size_t head = form == 0x81 ? 3 : form == 0x82 ? 4 : 0;
    if (head != 0 && octets > head && octets == head + hexNumber(hex.substr(2, 2)))
        return std::string(hex.substr(0, 2 * head)) + maskedOctets(hex.substr(2 * head), stream, lower);
    return octets % 2 == 0 ? maskedUnits(hex, stream, lower) : maskedOctets(hex, stream, lower);
}

// Whether octets above 0x7F are those of UTF-8.
bool wellFormed(std::string_view text)
{
    std::size_t trailing = 0;
    for (const char c : text) {
        const auto octet = static_cast<unsigned char>(c);
        const bool trail = octet >= 0x80 && octet < 0xC0;
        if (trail != (trailing > 0) || octet >= 0xF8)
            return false;
        trailing = trail ? trailing - 1 : octet < 0xC0 ? 0 : octet < 0xE0 ? 1 : octet < 0xF0 ? 2 : 3;
    }
    return trailing == 0;
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
        return maskedHex(text, stream, lower);
    }
    const bool utf8 = wellFormed(text);
    std::string out;
    for (const char c : text) {
        const auto octet = static_cast<unsigned char>(c);
        const unsigned random = stream.next(octet);
        if (octet < 0x80)
            out.push_back(static_cast<char>(maskedUnit(octet, random)));
        else if (!utf8)
            out.push_back(static_cast<char>(0xE0 + random % 0x17));
        else
            // A trailing octet of UTF-8 for another, so that what was well-formed stays so.
            out.push_back(octet < 0xC0 ? static_cast<char>(0x80U | (random & 0x3FU)) : c);
    }
    return out;
}

// Hexadecimal digits that may be of anything, such as digits in another order: each for another.
std::string maskedOpaque(std::string_view text, std::uint64_t key)
{
    if (!looksHex(text))
        return maskedText(text, key);
    Stream stream(key);
    std::string out;
    for (const char c : text) {
        const unsigned random = stream.next(static_cast<unsigned char>(c));
        out.push_back(static_cast<char>(isDigit(c) ? '0' + random % 10 : (isLower(c) ? 'a' : 'A') + random % 6));
    }
    return out;
}

using Mask = std::string (*)(std::string_view text, std::uint64_t key);

// Everything between separators is a value of its own, quoted or not.
std::string maskedValues(std::string_view text, std::uint64_t key, std::size_t keepFields = 0, Mask mask = maskedOpaque)
{
    std::string out;
    std::string value;
    std::size_t field = 0;
    const auto flush = [&] {
        out += field < keepFields ? value : mask(value, key);
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
    if (!isLocation(text.substr(0, first)))
        return maskedValues(text, key);
    if (first == std::string_view::npos)
        return std::string(text);
    const std::size_t second = text.find(',', first + 1);
    if (second == std::string_view::npos)
        return std::string(text.substr(0, first + 1)) + maskedValues(text.substr(first + 1), key, 0, maskedText);
    std::size_t third = second + 1;
    while (third < text.size() && (isDigit(text[third]) || text[third] == ' '))
        ++third;
    const bool typed = third < text.size() && text[third] == ',';
    if (!typed)
        return std::string(text.substr(0, first + 1)) + maskedValues(text.substr(first + 1), key, 0, maskedText);
    return std::string(text.substr(0, first + 1)) +
           maskedValues(text.substr(first + 1, second - first - 1), key, 0, maskedText) +
           std::string(text.substr(second, third + 1 - second)) +
           maskedValues(text.substr(third + 1), key, 0, maskedText);
}

// Answers that tell about the modem and nobody else: whole lines, and names in front of a colon.
bool harmless(std::string_view line)
{
    for (const std::string_view word :
         {"OK", "ERROR", "RING", "NO CARRIER", "BUSY", "NO ANSWER", "NO DIALTONE", "PB DONE", "SMS DONE", "Call Ready",
          "SMS Ready", "RDY", "COMMAND NOT SUPPORT", "TOO MANY PARAMETERS", "^SSIM READY", "+PBREADY", "0", "4", ""}) {
        if (line == word)
            return true;
    }
    for (const std::string_view name : {"+CPBS", "+CSCS", "+CPIN", "+CPINR", "+CME ERROR", "+CMS ERROR", "+CMEE",
                                        "+CFUN", "+CSQ", "^RSSI", "^SIMST", "#QSS", "+SIM"}) {
        if (line.size() > name.size() && beginsWith(line, name) && line[name.size()] == ':')
            return true;
    }
    return false;
}

// The answer to a question for ranges and lengths.
bool testAnswer(std::string_view line, std::string_view command)
{
    const std::size_t colon = line.find(':');
    return !command.empty() && command.back() == '?' && colon != std::string_view::npos &&
           line.find_first_not_of("0123456789(),- ", colon + 1) == std::string_view::npos;
}

// A name that an answer or a command begins with, such as "+CPBR": letters, and no number.
bool isName(std::string_view text)
{
    if (text.size() < 2 || text.size() > 16 || std::string_view("+^#$*%&").find(text[0]) == std::string_view::npos ||
        isDigit(text[1]))
        return false;
    std::size_t digits = 0;
    for (const char c : text.substr(1)) {
        digits = isDigit(c) ? digits + 1 : 0;
        if (digits > 3 || !(isDigit(c) || (c >= 'A' && c <= 'Z') || c == ' ' || c == '_'))
            return false;
    }
    return true;
}

// Maker, model and firmware; never a line that somebody else's number or name may stand in.
bool tellsOfProduct(std::string_view line, std::string_view command)
{
    if (command != "AT+CGMI" && command != "AT+CGMM" && command != "AT+CGMR")
        return false;
    const bool named = line.find_first_of("+^") == 0;
    return !named || beginsWith(line, command.substr(2));
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> all)
{
    return std::find(all.begin(), all.end(), text) != all.end();
}

// One of the commands of a line, without "AT". What is not known to be harmless is somebody's.
std::string maskedPart(std::string_view part, std::uint64_t key)
{
    if (isOneOf(part, {"", "E0", "E1", "V0", "V1", "Q0", "Z", "I", "H", "A", "+CSIM=10,\"0020000100\""}))
        return std::string(part);
    const std::size_t end = part.find_first_of("=?");
    const std::string_view name = part.substr(0, end);
    if (!isName(name))
        return beginsWith(part, "D") ? "D" + maskedValues(part.substr(1), key) : maskedValues(part, key);
    if (end == std::string_view::npos || part.substr(end) == "?" || part.substr(end) == "=?")
        return std::string(part);
    if (isOneOf(name, {"+CPBS", "+CPBR", "+CSCS", "+CMEE", "+CFUN", "+CREG", "+CGREG", "+CEREG"}))
        return std::string(part);
    // The five figures of a card's command tell what is read.
    const std::size_t keep = name == "+CRSM" ? 5 : name == "+CSIM" ? 1 : 0;
    return std::string(part.substr(0, end + 1)) + maskedValues(part.substr(end + 1), key, keep);
}

// Whether a line in the middle of an answer shows that other things are being told.
bool foreign(std::string_view line, std::string_view command)
{
    return line.find_first_of("+^") == 0 && !beginsWith(line, command.substr(std::min<std::size_t>(2, command.size())));
}

} // namespace

std::string maskedCommand(std::string_view command, std::uint64_t key)
{
    if (!beginsWith(command, "AT"))
        return maskedValues(command, key);
    std::string out = "AT";
    std::size_t begin = 2;
    bool quoted = false;
    for (std::size_t at = 2; at <= command.size(); ++at) {
        // An entry is the last of its line, whatever its name holds.
        if (at == begin && beginsWith(command.substr(at), "+CPBW=") && command.substr(at) != "+CPBW=?")
            return out + "+CPBW=" + maskedEntry(command.substr(at + 6), key);
        const bool end = at == command.size();
        if (!end && command[at] == '"')
            quoted = !quoted;
        if (!end && (quoted || command[at] != ';'))
            continue;
        out += maskedPart(command.substr(begin, at - begin), key);
        if (!end)
            out.push_back(';');
        begin = at + 1;
    }
    return out;
}

std::string maskedLine(std::string_view line, std::string_view command, std::uint64_t key)
{
    const std::size_t colon = line.find(':');
    if ((beginsWith(line, "+CPBR:") || beginsWith(line, "+CPBF:") || beginsWith(line, "+CPBW:"))) {
        if (testAnswer(line, command))
            return std::string(line);
        const std::size_t index = std::min(line.find_first_not_of(' ', colon + 1), line.size());
        return std::string(line.substr(0, index)) + maskedEntry(line.substr(index), key);
    }
    if (beginsWith(line, "AT"))
        return maskedCommand(line, key); // an echo
    for (const std::string_view kept : {"+CRSM", "+CREG", "+CGREG", "+CEREG"}) {
        // Two status words stand before the data; whether there is a network, but not where.
        if (colon == kept.size() && beginsWith(line, kept))
            return std::string(line.substr(0, colon + 1)) + maskedValues(line.substr(colon + 1), key, 2);
    }
    if (harmless(line) || tellsOfProduct(line, command))
        return std::string(line);
    const bool named = colon != std::string_view::npos && isName(line.substr(0, colon));
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
    // Behind its end, or among other things, nothing is taken for the answer any more.
    if (isOneOf(line, {"OK", "ERROR"}) || foreign(line, m_command))
        m_command.clear();
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
