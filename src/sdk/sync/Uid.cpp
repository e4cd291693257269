#include "sync/Uid.h"

#include <sys/random.h>

#include "base/Failure.h"

namespace orva
{

namespace
{

std::string randomHex(std::size_t octets)
{
    static const char digits[] = "0123456789abcdef";
    std::string out;
    unsigned char random[32] = {};
    if (octets > sizeof random || ::getrandom(random, octets, 0) != static_cast<ssize_t>(octets))
        throw Failure(ORVA_E_INTERNAL, "no random octets");
    for (std::size_t i = 0; i < octets; ++i) {
        out.push_back(digits[random[i] >> 4]);
        out.push_back(digits[random[i] & 15]);
    }
    return out;
}

} // namespace

std::string newUid()
{
    std::string hex = randomHex(16);
    hex[12] = '4';
    hex[16] = "89ab"[hex[16] & 3];
    for (const std::size_t at : {8U, 13U, 18U, 23U})
        hex.insert(at, 1, '-');
    return hex;
}

std::string newIdentifier()
{
    return randomHex(32);
}

} // namespace orva
