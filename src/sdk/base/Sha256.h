#ifndef SDK_BASE_SHA256_H
#define SDK_BASE_SHA256_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orva
{

// The digest SHA-256 (FIPS 180-4) of octets that come piece by piece.
class Sha256
{
public:
    void add(std::string_view octets);

    // The digest as 64 hexadecimal digits; nothing may be added behind it.
    std::string hex();

private:
    void takeBlock(const unsigned char* block);

    std::array<std::uint32_t, 8> m_state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                            0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<unsigned char, 64> m_block = {};
    std::size_t m_filled = 0;
    std::uint64_t m_octets = 0;
};

// That of one text.
std::string sha256Of(std::string_view octets);

} // namespace orva

#endif // SDK_BASE_SHA256_H
