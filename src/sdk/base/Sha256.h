#ifndef SDK_BASE_SHA256_H
#define SDK_BASE_SHA256_H

#include <sha2.h>

#include <string>
#include <string_view>

namespace orva
{

// The digest SHA-256 (FIPS 180-4) of octets that come piece by piece.
class Sha256
{
public:
    Sha256();

    void add(std::string_view octets);

    // The digest as 64 hexadecimal digits; nothing may be added behind it.
    std::string hex();

private:
    SHA2_CTX m_context = {};
};

// That of one text.
std::string sha256Of(std::string_view octets);

} // namespace orva

#endif // SDK_BASE_SHA256_H
