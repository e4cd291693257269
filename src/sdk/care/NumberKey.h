#ifndef SDK_CARE_NUMBERKEY_H
#define SDK_CARE_NUMBERKEY_H

#include <string>
#include <string_view>

namespace orva
{

// A text that numbers of the same telephone have in common: "0171 5551234" and "+49 171 5551234" in Germany, "DE". The
// region is a country's two capital letters (ISO 3166-1), or empty for none. Without one, for numbers that no country
// has, and where the module for telephone numbers is missing, a number is as it is written, "00" being "+". The number
// is a clean one. Any thread.
std::string numberKey(std::u16string_view number, const std::string& region);

// The user's country, empty for none: what LINKHAND_REGION says, else what is kept in the data folder, else the
// locale's (LC_ALL, LC_TELEPHONE, LANG). The first two may say "none".
std::string chosenRegion(const std::string& folder);

// Keeps a country for the programs that start from now on; "none" for none, empty for the locale's.
// Failure(ORVA_E_ARGUMENT) for anything else than two letters.
void keepRegion(const std::string& folder, const std::string& region);

// The module's one entry. True, with the number as it is dialled from everywhere ("+491715551234"), if a country has
// it.
constexpr char phoneModuleEntry[] = "linkhand_phone_1";
using PhoneModuleEntry = bool (*)(const std::string& number, const std::string& region, std::string& dialled);

} // namespace orva

#endif // SDK_CARE_NUMBERKEY_H
