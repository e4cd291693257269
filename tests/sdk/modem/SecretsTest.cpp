// Whatever a modem or a client says of somebody, in whatever coding: the record does not show it.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/Text.h"
#include "modem/DialogRecord.h"
#include "support/Check.h"

using namespace orva;

namespace
{

constexpr std::uint64_t key = 0x1234567887654321ULL;
constexpr char command[] = "";

struct Template {
    const char* asked; // what was sent before; `command` for a line that is sent itself
    const char* before;
    const char* behind;
};

const Template templates[] = {
    {"AT+CPBR=1,50", "+CPBR: 5,\"", "\",129,\"x\""},
    {"AT+CPBR=1,50", "+CPBR: 5,\"1\",129,\"", "\""},
    {"AT+CPBR=1,50", "+CPBR: 5,\"1\",129,\"x\",0,\"", "\",,\"a@b\""},
    {"AT+CPBR=1,50", "+CPBR: 5,\"1\",", ""},
    {"AT+CPBR=1,50", "", "\""},
    {"AT+CPBS=\"SM\";+CPBR=?", "+CPBR: 5,\"1\",129,\"", "\""},
    {"AT+CPBF=\"x\"", "+CPBF: 5,\"1\",129,\"", "\""},
    {"AT+CCID", "+CCID: ", ""},
    {"AT+CCID", "", ""},
    {"AT+CGSN", "+CGSN: \"", "\""},
    {"AT+CGSN", "", ""},
    {"AT+CIMI", "", ""},
    {"ATI", "IMEI: ", ""},
    {"AT+CRSM=176,12258,0,0,10", "+CRSM: 144,0,\"", "\""},
    {"AT+CSIM=10,\"0020000100\"", "+CSIM: 24,\"", "9000\""},
    {"AT+CGMM", "+CLIP: \"", "\",145"},
    {"AT+CGMM", "+CMT: \"", "\",,\"20/01/01\""},
    {"AT", "+CMGL: 1,1,\"", "\""},
    {"AT", "+CUSD: 0,\"", "\",15"},
    {"AT", "+CNUM: \"", "\",\"1\",129"},
    {"AT", "+", ": text"},
    {"AT", "OK ", ""},
    {"AT", "RING ", ""},
    {"AT", "ERROR ", ""},
    {"AT", "AT ", ""},
    {"AT", "AT", ""},
    {"AT", "+SIMID: ", ""},
    {"AT", "^ICCID: ", ""},
    {command, "AT+CPIN=\"", "\""},
    {command, "AT+CPIN=\"12345678\",\"", "\""},
    {command, "at+cpin=\"", "\""},
    {command, "AT+CPWD=\"SC\",\"", "\",\"0000\""},
    {command, "AT+CLCK=\"SC\",0,\"", "\""},
    {command, "AT+CPBW=3,\"", "\",129,\"x\""},
    {command, "AT+CPBS=\"SM\";+CPBW=3,\"1\",129,\"", "\""},
    {command, "AT+CPBS=\"SM\";+CPBW=3,\"1\",129,\"x\";", "\""},
    {command, "AT+CPBS=\"SM\";+CPBF=\"", "\""},
    {command, "AT^CPBW=3,\"1\",129,\"", "\",0"},
    {command, "ATD", ";"},
    {command, "ATD>\"", "\";"},
    {command, "AT+CMGS=\"", "\""},
    {command, "AT+CMGW=\"", "\""},
    {command, "AT+CSCA=\"", "\""},
    {command, "AT+CCFC=0,3,\"", "\""},
    {command, "AT+CUSD=1,\"", "\",15"},
    {command, "AT+CSIM=26,\"0020000108", "\""},
    {command, "AT+CRSM=214,28474,1,4,28,\"", "\""},
    {command, "", "\x1A"},
};

const char* const secrets[] = {"Maximiliane",
                               "\u0418\u0432\u0430\u043D \u0413\u0440\u043E\u0437\u043D\u044B\u0439",
                               "\u5317\u4EAC\u5927\u5B66\u6821\u957F",
                               "\u00E4\u00F6\u00FC\u00E4 \u00C4\u00FC\u00E4",
                               "+491711234567",
                               "73915064",
                               "8949020000123456789",
                               "262011234567890",
                               "356938035643809",
                               "Meet me at noon, alone"};

std::string hex(const std::string& octets, bool lower = false)
{
    const char* const digits = lower ? "0123456789abcdef" : "0123456789ABCDEF";
    std::string out;
    for (const char c : octets) {
        out.push_back(digits[static_cast<unsigned char>(c) >> 4]);
        out.push_back(digits[static_cast<unsigned char>(c) & 15]);
    }
    return out;
}

// Digits in pairs the other way round, with a fill.
std::string swapped(std::string digits)
{
    digits.erase(std::remove(digits.begin(), digits.end(), '+'), digits.end());
    if (digits.size() % 2 == 1)
        digits.push_back('F');
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        std::swap(digits[i], digits[i + 1]);
    return digits;
}

// Octets in the default alphabet of GSM, as far as the secrets need it.
std::string gsm(const std::u16string& text)
{
    std::string out;
    for (const char16_t unit : text)
        out.push_back(unit == 0xE4 ? '{' : unit == 0xF6 ? '|' : unit == 0xFC ? '~' : unit == 0xC4 ? '[' : char(unit));
    return out;
}

struct Coded {
    std::string text;
    std::size_t unit; // characters that stand for one of the secret's
};

std::vector<Coded> codings(const std::string& secret)
{
    const std::u16string text = fromUtf8(secret);
    std::string units;
    std::string narrow;
    std::string half;
    for (const char16_t unit : text) {
        units.push_back(static_cast<char>(unit >> 8));
        units.push_back(static_cast<char>(unit & 0xFF));
        narrow.push_back(static_cast<char>(unit & 0xFF));
        half.push_back(static_cast<char>(unit < 0x80 ? unit : 0x80 | (unit & 0x7F)));
    }
    std::vector<Coded> all = {{secret, 1},
                              {hex(units), 4},
                              {hex(units, true), 4},
                              {hex(secret), 2},
                              {hex(secret, true), 2},
                              {"80" + hex(units), 4},
                              {"81" + hex(std::string(1, char(half.size())) + '\x08' + half), 2},
                              {"82" + hex(std::string(1, char(half.size())) + '\x04' + '\0' + half), 2}};
    const bool latin = std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x100; });
    if (latin) {
        all.push_back({narrow, 1});
        all.push_back({gsm(text), 1});
        all.push_back({hex(gsm(text)), 2});
    }
    if (secret.find_first_not_of("+0123456789") == std::string::npos)
        all.push_back({swapped(secret), 1});
    return all;
}

// What the record says, without its head and its escapes.
std::string recorded(const Template& form, const std::string& line)
{
    const int file = ::memfd_create("record", 0);
    {
        DialogRecord record(::dup(file), key);
        if (form.asked != command)
            record.sent(form.asked);
        if (form.asked == command)
            record.sent(line);
        else
            record.received(line);
    }
    std::string text(4096, '\0');
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(0, ::pread(file, &text[0], text.size(), 0))));
    ::close(file);
    text.pop_back();
    text.erase(0, text.rfind('\n') + 1);
    text.erase(0, text.find(' ') + 3);
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escaped = text.compare(i, 2, "\\x") == 0 && i + 3 < text.size();
        plain.push_back(escaped ? static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16)) : text[i]);
        i += escaped ? 3 : 0;
    }
    return plain;
}

// The share of a secret's units that stand in the record as they are; blanks and signs may.
double kept(const Coded& coded, const std::string& shown, std::size_t at)
{
    std::size_t same = 0;
    std::size_t all = 0;
    for (std::size_t i = 0; i + coded.unit <= coded.text.size(); i += coded.unit) {
        if (coded.unit == 1 && std::string(" ,+\\").find(coded.text[i]) != std::string::npos)
            continue;
        ++all;
        same += shown.compare(at + i, coded.unit, coded.text, i, coded.unit) == 0 ? 1 : 0;
    }
    return all == 0 ? 0 : static_cast<double>(same) / static_cast<double>(all);
}

} // namespace

TEST(noSecretIsInTheRecordInAnyCoding)
{
    int tried = 0;
    for (const Template& form : templates) {
        for (const char* const secret : secrets) {
            for (const Coded& coded : codings(secret)) {
                const std::string line = form.before + coded.text + form.behind;
                const std::string shown = recorded(form, line);
                ++tried;
                // As long as it was, so that it is known where the secret would be.
                if (!check::equal(shown.size(), line.size(), line.c_str(), __FILE__, __LINE__))
                    continue;
                const bool hidden = shown.find(coded.text) == std::string::npos &&
                                    kept(coded, shown, std::string(form.before).size()) <= 0.6;
                if (!hidden)
                    check::equal(shown, std::string("something else"), line.c_str(), __FILE__, __LINE__);
            }
        }
    }
    CHECK(tried > 4000);
}

CHECK_MAIN
