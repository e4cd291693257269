#ifndef SDK_SYNC_UID_H
#define SDK_SYNC_UID_H

#include <string>

namespace orva
{

// A new UID: a random UUID (RFC 4122, version 4).
std::string newUid();

// 64 random hexadecimal digits.
std::string newIdentifier();

} // namespace orva

#endif // SDK_SYNC_UID_H
