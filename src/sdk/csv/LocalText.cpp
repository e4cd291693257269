#include "csv/LocalText.h"

#include <langinfo.h>
#include <locale.h>

#include "base/Conversion.h"
#include "base/Unicode.h"

namespace orva
{

namespace
{

// Converts all of a text; what cannot be converted becomes `substitute`, one for each character of UTF-8 or octet of
// anything else.
std::string converted(std::string_view text, const char* to, const char* from, bool fromUtf8, const char* substitute)
{
    Conversion conversion(to, from);
    std::string out;
    while (!text.empty()) {
        bool cut = false;
        if (conversion.usable() && conversion.convert(text, out, &cut))
            break;
        const std::size_t bad = fromUtf8 ? utf8Piece(text.substr(0, 4)) : 1; // four octets hold no run of ASCII
        out += substitute;
        text.remove_prefix(bad == 0 ? 1 : bad);
        if (conversion.usable())
            conversion.restart();
    }
    return out;
}

} // namespace

std::string localCodeset()
{
    const locale_t user = newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(nullptr));
    if (user == static_cast<locale_t>(nullptr))
        return "ANSI_X3.4-1968";
    std::string codeset = nl_langinfo_l(CODESET, user);
    freelocale(user);
    return codeset;
}

bool isEightBitCodeset(const std::string& codeset)
{
    return codeset != "UTF-8" && codeset != "ANSI_X3.4-1968";
}

std::string toLocal(std::string_view utf8)
{
    const std::string codeset = localCodeset();
    if (codeset == "UTF-8")
        return std::string(utf8);
    return converted(utf8, codeset.c_str(), "UTF-8", true, "?");
}

std::string fromLocal(std::string_view local)
{
    const std::string codeset = localCodeset();
    if (codeset == "UTF-8")
        return std::string(local);
    return converted(local, "UTF-8", codeset.c_str(), false, "\xEF\xBF\xBD");
}

} // namespace orva
