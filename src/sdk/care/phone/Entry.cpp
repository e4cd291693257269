// What telephone numbers are in each country.

#include <phonenumbers/phonenumberutil.h>

#include "care/phone/Entry.h"

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

bool linkhand_phone_1(const std::string& number, const std::string& region, std::string& dialled)
{
    const PhoneNumberUtil& util = *PhoneNumberUtil::GetInstance();
    PhoneNumber parsed;
    // Its name for no country is "ZZ".
    if (util.Parse(number, region.empty() ? "ZZ" : region, &parsed) != PhoneNumberUtil::NO_PARSING_ERROR ||
        !util.IsPossibleNumber(parsed))
        return false;
    util.Format(parsed, PhoneNumberUtil::E164, &dialled);
    return true;
}
