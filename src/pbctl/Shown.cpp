#include "Shown.h"

#include <cstdio>
#include <ctime>

#include "base/Unicode.h"

namespace pbctl
{

namespace
{

// The code point of a well-formed piece of UTF-8.
char32_t pointOf(const std::string& text, std::size_t at, std::size_t length)
{
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
    if (length == 1)
        return octet(0);
    char32_t point = octet(0) & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        point = (point << 6) | (octet(i) & 0x3FU);
    return point;
}

// What a terminal would do something with instead of showing it: C0, C1, marks and switches of direction, breaks of
// lines and paragraphs.
bool isControl(char32_t point)
{
    return point < 0x20 || (point >= 0x7F && point < 0xA0) || point == 0x61C || point == 0x200E || point == 0x200F ||
           (point >= 0x2028 && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069) || point == 0xFEFF;
}

std::size_t lengthAt(const std::string& text, std::size_t at)
{
    const auto first = static_cast<unsigned char>(text[at]);
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    const std::string_view rest = std::string_view(text).substr(at, length);
    return rest.size() == length && orva::utf8Piece(rest) == length ? length : 0;
}

std::string code(const char* format, unsigned value)
{
    char text[16];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

} // namespace

std::string shown(const std::string& value)
{
    std::string out;
    for (std::size_t at = 0; at < value.size();) {
        const std::size_t length = lengthAt(value, at);
        const char32_t point = length == 0 ? 0 : pointOf(value, at, length);
        if (length == 0)
            out += code("\\x%02x", static_cast<unsigned char>(value[at]));
        else if (point == U'\n')
            out += "\\n";
        else if (point == U'\r')
            out += "\\r";
        else if (point == U'\t')
            out += "\\t";
        else if (point == U'\\')
            out += "\\\\";
        else if (isControl(point))
            out += code(point < 0x100 ? "\\x%02x" : "\\u%04x", static_cast<unsigned>(point));
        else
            out.append(value, at, length);
        at += length == 0 ? 1 : length;
    }
    return out;
}

std::string quoted(const std::string& value)
{
    std::string out = "\"";
    for (std::size_t at = 0; at < value.size();) {
        const std::size_t length = lengthAt(value, at);
        const char32_t point = length == 0 ? 0xFFFD : pointOf(value, at, length);
        if (point == U'"' || point == U'\\')
            out.append(1, '\\').append(1, static_cast<char>(point));
        else if (point < 0x10000 && (isControl(point) || length == 0))
            out += code("\\u%04x", static_cast<unsigned>(point));
        else
            out.append(value, at, length);
        at += length == 0 ? 1 : length;
    }
    return out + '"';
}

std::string shownTime(long long seconds)
{
    const auto moment = static_cast<std::time_t>(seconds);
    std::tm parts = {};
    char text[32] = "";
    if (::localtime_r(&moment, &parts) != nullptr)
        std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &parts);
    return text;
}

} // namespace pbctl
