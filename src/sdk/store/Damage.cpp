#include "store/Damage.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include "base/Failure.h"
#include "base/Files.h"
#include "base/Log.h"

namespace orva
{

namespace
{

constexpr std::size_t largestNote = 16384;

std::string noteOf(const std::string& path)
{
    return path + ".damage";
}

// One line, whatever was found.
std::string oneLine(std::string text)
{
    for (char& c : text)
        c = c == '\n' || c == '\r' ? ' ' : c;
    return text;
}

} // namespace

void rememberDamage(const std::string& path, const Damage& damage)
{
    try {
        replacePrivateFile(noteOf(path),
                           "time=" + std::to_string(damage.time) + "\nrecords=" + std::to_string(damage.records) +
                               "\ngroups=" + std::to_string(damage.groups) + "\nfile=" + damage.file +
                               "\nwhat=" + oneLine(damage.what) + "\ntold=" + (damage.told ? "1" : "0") + "\n");
    } catch (const Failure& failure) {
        logFormat("%s: the note on the damage could not be written: %s", path.c_str(), failure.what());
    }
}

std::optional<Damage> rememberedDamage(const std::string& path)
{
    const std::string note = readSmallFile(noteOf(path), largestNote);
    std::map<std::string, std::string> values;
    for (std::size_t at = 0; at < note.size();) {
        const std::size_t end = std::min(note.find('\n', at), note.size());
        const std::size_t sign = std::min(note.find('=', at), end);
        if (sign < end)
            values[note.substr(at, sign - at)] = note.substr(sign + 1, end - sign - 1);
        at = end + 1;
    }
    Damage damage;
    damage.file = values["file"];
    if (damage.file.empty() || !fileExists(damage.file))
        return std::nullopt;
    damage.time = std::strtoll(values["time"].c_str(), nullptr, 10);
    damage.records = std::atoi(values["records"].c_str());
    damage.groups = std::atoi(values["groups"].c_str());
    damage.what = values["what"];
    damage.told = values["told"] == "1";
    return damage;
}

} // namespace orva
