#include "support/modem/Pdu.h"

#include "support/modem/CardFiles.h"
#include "support/modem/Text.h"

namespace modemsim
{

namespace
{

constexpr size_t septetsInOne = 160;
constexpr size_t septetsInPart = 153;
constexpr size_t unitsInOne = 70;
constexpr size_t unitsInPart = 67;
constexpr size_t partHeaderBits = 49; // six octets, filled up to a whole septet

int at(const std::string& octets, size_t place)
{
    return place < octets.size() ? static_cast<unsigned char>(octets[place]) : -1;
}

std::string packed(const std::string& septets, size_t firstBit)
{
    std::string octets((firstBit + septets.size() * 7 + 7) / 8, '\0');
    size_t bit = firstBit;
    for (const char septet : septets) {
        for (int i = 0; i < 7; ++i, ++bit) {
            if ((septet >> i & 1) != 0)
                octets[bit / 8] = static_cast<char>(octets[bit / 8] | 1 << bit % 8);
        }
    }
    return octets;
}

std::string unpacked(const std::string& octets, size_t firstBit, size_t count)
{
    std::string septets;
    size_t bit = firstBit;
    for (size_t k = 0; k < count; ++k) {
        int septet = 0;
        for (int i = 0; i < 7; ++i, ++bit)
            septet |= (bit / 8 < octets.size() ? octets[bit / 8] >> bit % 8 & 1 : 0) << i;
        septets += static_cast<char>(septet);
    }
    return septets;
}

std::string address(const std::string& octets, int digits, int type)
{
    std::string number = (type & 0x70) == 0x10 ? "+" : "";
    for (int i = 0; i < digits; ++i) {
        const int octet = at(octets, static_cast<size_t>(i / 2));
        number += "0123456789*#abc?"[i % 2 == 0 ? octet & 0xF : octet >> 4 & 0xF];
    }
    return number;
}

void readConcatenation(const std::string& header, SentMessage& message)
{
    for (size_t i = 1; i + 1 < header.size(); i += 2 + static_cast<size_t>(at(header, i + 1))) {
        const int element = at(header, i);
        const size_t body = i + (element == 8 ? 4 : 3);
        if (element != 0 && element != 8)
            continue;
        message.reference = element == 8 ? at(header, i + 2) << 8 | at(header, i + 3) : at(header, i + 2);
        message.parts = at(header, body);
        message.part = at(header, body + 1);
    }
}

// Octets that stand before the user data, one part's text with or without the header of a part.
std::string userData(const std::u32string& text, const std::string& septets, bool wide, const std::string& header)
{
    std::string body;
    size_t length = 0;
    if (wide) {
        std::string bytes;
        fromHex(encode(toUtf8(text), "UCS2"), bytes);
        body = header + bytes;
        length = body.size();
    } else {
        body = packed(septets, header.empty() ? 0 : partHeaderBits);
        body.replace(0, header.size(), header);
        length = septets.size() + (header.empty() ? 0 : 7);
    }
    return std::string(1, static_cast<char>(length)) + body;
}

} // namespace

bool readSubmit(const std::string& hex, int length, SentMessage& message)
{
    std::string all;
    if (!fromHex(hex, all) || all.empty())
        return false;
    const std::string octets = all.substr(std::min(all.size(), static_cast<size_t>(at(all, 0)) + 1));
    if (octets.size() < 7 || static_cast<int>(octets.size()) != length || (at(octets, 0) & 3) != 1)
        return false;
    message.pdu = hex;
    const int flags = at(octets, 0);
    const int digits = at(octets, 2);
    size_t place = 4;
    message.number = address(octets.substr(place), digits, at(octets, 3));
    place += static_cast<size_t>((digits + 1) / 2) + 1; // and the protocol identifier
    const int coding = at(octets, place++);
    const int validity = flags >> 3 & 3;
    place += validity == 0 ? 0 : validity == 2 ? 1 : 7;
    const int count = at(octets, place++);
    if (coding < 0 || count < 0 || place > octets.size())
        return false;
    const std::string data = octets.substr(place);
    size_t header = 0;
    if ((flags & 0x40) != 0) {
        header = static_cast<size_t>(at(data, 0)) + 1;
        readConcatenation(data.substr(0, header), message);
    }
    if ((coding & 0x0C) == 8)
        message.text = decode(toHex(data.substr(std::min(header, data.size()))), "UCS2");
    else if ((coding & 0x0C) == 0) {
        const size_t skipped = (header * 8 + 6) / 7;
        message.text = toUtf8(fromGsm(unpacked(data, skipped * 7, static_cast<size_t>(count) - skipped)));
    }
    return true;
}

std::vector<std::string> makeDeliver(const std::string& number, const std::string& text)
{
    const bool plus = !number.empty() && number[0] == '+';
    const std::string digits = number.substr(plus ? 1 : 0);
    const std::u32string whole = fromUtf8(text);
    std::string septets;
    const bool wide = !toGsm(whole, septets);
    const size_t size = wide ? whole.size() : septets.size();
    const bool single = size <= (wide ? unitsInOne : septetsInOne);
    const size_t step = single ? std::max<size_t>(size, 1) : wide ? unitsInPart : septetsInPart;
    const size_t parts = std::max<size_t>(1, (size + step - 1) / step);
    static int reference = 0;
    reference = (reference + 1) % 256;
    std::vector<std::string> all;
    for (size_t part = 0; part < parts; ++part) {
        const std::string header =
            single ? std::string()
                   : std::string{
                         5, 0, 3, static_cast<char>(reference), static_cast<char>(parts), static_cast<char>(part + 1)};
        std::string octets(1, '\0');
        octets += single ? '\x04' : '\x44';
        octets += static_cast<char>(digits.size());
        octets += plus ? '\x91' : '\x81';
        std::string swapped;
        fromHex(swappedDigits(digits), swapped);
        octets += swapped + '\0' + (wide ? '\x08' : '\0');
        octets += std::string("\x62\x11\x22\x01\x00\x00\x00", 7); // 22 November 2026, ten o'clock
        octets += userData(wide ? whole.substr(part * step, step) : whole,
                           wide ? std::string() : septets.substr(part * step, step), wide, header);
        all.push_back(toHex(octets));
    }
    return all;
}

} // namespace modemsim
