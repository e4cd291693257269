#include "devices/HardwareState.h"

#include <charconv>
#include <climits>

namespace orva
{

namespace
{

struct Entry {
    const char* key;
    int HardwareState::*member;
    int lowest;
    int highest;
};

constexpr Entry entries[] = {
    {"device", &HardwareState::attached, 0, 1},
    {"card", &HardwareState::card, 0, 1},
    {"pin", &HardwareState::pinStatus, INT_MIN, INT_MAX},
    {"product", &HardwareState::productType, INT_MIN, INT_MAX},
    {"cardType", &HardwareState::cardType, INT_MIN, INT_MAX},
    {"radio1", &HardwareState::radioFirst, INT_MIN, INT_MAX},
    {"radio2", &HardwareState::radioSecond, INT_MIN, INT_MAX},
    {"network", &HardwareState::network, INT_MIN, INT_MAX},
    {"multiMode1", &HardwareState::multiModeFirst, 0, UCHAR_MAX},
    {"multiMode2", &HardwareState::multiModeSecond, 0, UCHAR_MAX},
    {"cardCapacity", &HardwareState::cardCapacity, 0, mostRecords},
    {"deviceCapacity", &HardwareState::deviceCapacity, 0, mostRecords},
    {"localCapacity", &HardwareState::localCapacity, 0, mostRecords},
    {"cardName", &HardwareState::cardNameLength, 1, mostFieldLength},
    {"cardNameUnits", &HardwareState::cardNameUnits, 0, 1},
    {"cardNumber", &HardwareState::cardNumberLength, 1, mostFieldLength},
    {"deviceName", &HardwareState::deviceNameLength, 1, mostFieldLength},
    {"deviceNumber", &HardwareState::deviceNumberLength, 1, mostFieldLength},
    {"deviceFields", &HardwareState::deviceFields, 2, 4},
};

} // namespace

std::string writeHardwareState(const HardwareState& state)
{
    std::string text;
    for (const Entry& entry : entries)
        text += std::string(entry.key) + "=" + std::to_string(state.*entry.member) + "\n";
    return text;
}

HardwareState readHardwareState(std::string_view text)
{
    HardwareState state;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(line.size() < text.size() ? line.size() + 1 : text.size());
        const std::size_t sign = line.find('=');
        if (sign == std::string_view::npos)
            continue;
        for (const Entry& entry : entries) {
            if (line.substr(0, sign) != entry.key)
                continue;
            int value = 0;
            const char* const end = line.data() + line.size();
            const auto parsed = std::from_chars(line.data() + sign + 1, end, value);
            if (parsed.ec == std::errc() && parsed.ptr == end && value >= entry.lowest && value <= entry.highest)
                state.*entry.member = value;
        }
    }
    return state;
}

HardwareState withChanges(HardwareState disk, const HardwareState& before, const HardwareState& after)
{
    for (const Entry& entry : entries) {
        if (before.*entry.member != after.*entry.member)
            disk.*entry.member = after.*entry.member;
    }
    return disk;
}

} // namespace orva
