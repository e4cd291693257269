#include "care/NumberKey.h"

#include <cstdlib>

#include "base/Failure.h"
#include "base/Files.h"
#include "base/Log.h"
#include "base/Module.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr char noRegion[] = "none";
constexpr std::size_t longestNote = 16;

std::string regionFile(const std::string& folder)
{
    return folder + "/region";
}

// The two letters in capitals; empty if these are not two letters.
std::string lettersOf(const std::string& text)
{
    std::string letters;
    for (const char c : text) {
        const char capital = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        if (capital < 'A' || capital > 'Z')
            return {};
        letters.push_back(capital);
    }
    return letters.size() == 2 ? letters : std::string();
}

// "DE" of "de_DE.UTF-8@euro".
std::string regionOfLocale()
{
    for (const char* const name : {"LC_ALL", "LC_TELEPHONE", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value == nullptr || *value == '\0')
            continue;
        const std::string locale = value;
        const std::size_t at = locale.find('_');
        return at == std::string::npos ? std::string() : lettersOf(locale.substr(at + 1, 2));
    }
    return {};
}

PhoneModuleEntry phoneModule()
{
    static const PhoneModuleEntry entry = [] {
        std::string problem;
        void* const found = moduleEntry("libsdk-phone.so", phoneModuleEntry, problem);
        if (found == nullptr)
            logFormat("telephone numbers are compared as they are written: %s", problem.c_str());
        return reinterpret_cast<PhoneModuleEntry>(found);
    }();
    return entry;
}

} // namespace

std::string numberKey(std::u16string_view number, const std::string& region)
{
    std::string written;
    appendUtf8(number, written);
    // What is short or has other keys in it belongs to no country's plan.
    const bool planned =
        written.size() > 4 && written.find_first_not_of("0123456789", written[0] == '+') == std::string::npos;
    std::string dialled;
    const PhoneModuleEntry module = planned ? phoneModule() : nullptr;
    if (module != nullptr && !region.empty() && module(written, region, dialled))
        return dialled;
    if (written.size() > 2 && written.compare(0, 2, "00") == 0)
        written.replace(0, 2, "+");
    if (module != nullptr && written[0] == '+' && module(written, region, dialled))
        return dialled;
    return written;
}

std::string chosenRegion(const std::string& folder)
{
    const char* const chosen = std::getenv("LINKHAND_REGION");
    std::string said = chosen != nullptr ? chosen : "";
    if (said.empty()) {
        said = readSmallFile(regionFile(folder), longestNote);
        said = said.substr(0, said.find('\n'));
    }
    if (said == noRegion)
        return {};
    const std::string letters = lettersOf(said);
    return letters.empty() ? regionOfLocale() : letters;
}

void keepRegion(const std::string& folder, const std::string& region)
{
    const std::string letters = lettersOf(region);
    if (letters.empty() && !region.empty() && region != noRegion)
        throw Failure(ORVA_E_ARGUMENT, "a region is two letters, \"none\" or empty");
    preparePrivateFolder(folder);
    replacePrivateFile(regionFile(folder), (letters.empty() ? region : letters) + "\n");
}

} // namespace orva
