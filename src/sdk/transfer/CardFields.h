#ifndef SDK_TRANSFER_CARDFIELDS_H
#define SDK_TRANSFER_CARDFIELDS_H

#include <string>
#include <utility>

#include "base/ContactFields.h"

namespace orva
{

// The place of a field's value, by the field's key; null for one that a card has no property for.
inline std::string* cardField(const std::string& key, ContactFields& contact)
{
    const std::pair<const char*, std::string*> places[] = {
        {"Name", &contact.name},      {"Mobile", &contact.mobile}, {"officePhone", &contact.office},
        {"homePhone", &contact.home}, {"email", &contact.email},   {"remark", &contact.note},
    };
    for (const auto& place : places)
        if (key == place.first)
            return place.second;
    return nullptr;
}

} // namespace orva

#endif // SDK_TRANSFER_CARDFIELDS_H
