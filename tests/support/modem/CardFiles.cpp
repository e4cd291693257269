#include "support/modem/CardFiles.h"

#include "support/modem/Text.h"

namespace modemsim
{

namespace
{

enum Command { ReadBinary = 176, ReadRecord = 178, GetResponse = 192, UpdateRecord = 220 };
enum File {
    Iccid = 0x2FE2,
    AbbreviatedNumbers = 0x6F3A,
    FixedNumbers = 0x6F3B,
    Gid1 = 0x6F3E,
    OwnNumbers = 0x6F40,
    ProviderName = 0x6F46,
    AdministrativeData = 0x6FAD,
    EmergencyCodes = 0x6FB7
};

constexpr size_t fixedOctets = 14; // of a dialling number's record, behind the alpha identifier
const char digitNibbles[] = "0123456789*#p?";

CardAnswer success(const std::string& data)
{
    CardAnswer answer;
    answer.sw1 = 0x90;
    answer.sw2 = 0;
    answer.data = data;
    return answer;
}

CardAnswer refusal(int sw1, int sw2)
{
    CardAnswer answer;
    answer.sw1 = sw1;
    answer.sw2 = sw2;
    return answer;
}

std::string filled(std::string octets, size_t size)
{
    octets.resize(size, '\xFF');
    return octets;
}

// A record of dialling numbers (3GPP TS 51.011, 10.5.1).
std::string record(const Storage& storage, int location)
{
    const auto alphaLength = static_cast<size_t>(storage.textLength());
    const Entry* entry = storage.find(location);
    if (entry == nullptr)
        return toHex(filled(std::string(), alphaLength + fixedOctets));
    const bool plus = !entry->number.empty() && entry->number[0] == '+';
    const std::string digits = entry->number.substr(plus ? 1 : 0, 20);
    std::string number;
    fromHex(swappedDigits(digits), number);
    std::string octets = filled(toAlpha(fromUtf8(entry->name)), alphaLength);
    octets += static_cast<char>(1 + number.size());
    octets += static_cast<char>(plus ? 0x91 : 0x81);
    octets += filled(number, 10) + "\xFF\xFF";
    return toHex(octets);
}

Entry fromRecord(const std::string& octets, size_t alphaLength)
{
    Entry entry;
    entry.name = toUtf8(fromAlpha(octets.substr(0, alphaLength)));
    const auto length = static_cast<unsigned char>(octets[alphaLength]);
    if (length < 1 || length > 11)
        return entry;
    if (octets[alphaLength + 1] == '\x91')
        entry.number = "+";
    for (size_t i = 0; i + 1 < length; ++i) {
        const auto octet = static_cast<unsigned char>(octets[alphaLength + 2 + i]);
        for (const int nibble : {octet & 0xF, octet >> 4}) {
            if (nibble < 14)
                entry.number += digitNibbles[nibble];
        }
    }
    return entry;
}

// The answer to GET RESPONSE of a linear fixed file (3GPP TS 51.011, 9.2.1).
std::string description(const Storage& storage, int file)
{
    const size_t size = static_cast<size_t>(storage.textLength()) + fixedOctets;
    const size_t whole = size * static_cast<size_t>(storage.total());
    const auto byte = [](size_t value) { return static_cast<char>(value & 0xFF); };
    const std::string octets = {0,
                                0,
                                byte(whole >> 8),
                                byte(whole),
                                byte(static_cast<size_t>(file) >> 8),
                                byte(static_cast<size_t>(file)),
                                4,
                                0,
                                0x11,
                                '\xFF',
                                0x22,
                                1,
                                2,
                                1,
                                byte(size)};
    return toHex(octets);
}

std::string binaryFile(const State& state, int file)
{
    switch (file) {
    case Iccid:
        return swappedDigits(state.card->plan.iccid);
    case AdministrativeData:
        return "00000002";
    case ProviderName:
        return "00" + toHex(filled("Test SPN", 16));
    case EmergencyCodes:
        return swappedDigits("112233");
    default:
        return std::string();
    }
}

CardAnswer accessNumbers(Storage& storage, int command, int file, int p1, const std::string& data)
{
    const auto alphaLength = static_cast<size_t>(storage.textLength());
    std::string octets;
    if (command == GetResponse)
        return success(description(storage, file));
    if (p1 < 1 || p1 > storage.total())
        return refusal(0x6A, 0x83);
    if (command == ReadRecord)
        return success(record(storage, p1));
    if (command != UpdateRecord || !fromHex(data, octets) || octets.size() != alphaLength + fixedOctets)
        return refusal(0x67, 0x00);
    Entry entry = fromRecord(octets, alphaLength);
    entry.location = p1;
    if (entry.name.empty() && entry.number.empty())
        storage.remove(p1);
    else
        storage.put(entry);
    return success(std::string());
}

} // namespace

std::string swappedDigits(const std::string& digits)
{
    std::string nibbles;
    for (const char digit : digits) {
        const size_t value = std::string(digitNibbles).find(digit);
        nibbles += "0123456789ABCDEF"[value == std::string::npos ? 0xF : value];
    }
    if (nibbles.size() % 2 != 0)
        nibbles += 'F';
    for (size_t i = 0; i < nibbles.size(); i += 2)
        std::swap(nibbles[i], nibbles[i + 1]);
    return nibbles;
}

CardAnswer accessCard(State& state, int command, int file, int p1, int p3, const std::string& data)
{
    const char* storageName = file == AbbreviatedNumbers ? "SM"
                              : file == FixedNumbers     ? "FD"
                              : file == OwnNumbers       ? "ON"
                                                         : nullptr;
    Storage* storage = storageName != nullptr ? state.storage(storageName) : nullptr;
    if (storage != nullptr)
        return accessNumbers(*storage, command, file, p1, data);
    const std::string content = binaryFile(state, file);
    if (content.empty() || command != ReadBinary)
        return CardAnswer();
    return success(p3 > 0 ? content.substr(0, static_cast<size_t>(p3) * 2) : content);
}

} // namespace modemsim
