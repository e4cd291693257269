#include "base/Sha256.h"

#include <algorithm>
#include <cstring>

namespace orva
{

namespace
{

constexpr std::uint32_t constants[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::uint32_t turned(std::uint32_t word, unsigned bits)
{
    return (word >> bits) | (word << (32 - bits));
}

} // namespace

void Sha256::takeBlock(const unsigned char* block)
{
    std::uint32_t words[64];
    for (std::size_t i = 0; i < 16; ++i)
        words[i] = static_cast<std::uint32_t>(block[4 * i]) << 24 | static_cast<std::uint32_t>(block[4 * i + 1]) << 16 |
                   static_cast<std::uint32_t>(block[4 * i + 2]) << 8 | block[4 * i + 3];
    for (std::size_t i = 16; i < 64; ++i) {
        const std::uint32_t low = turned(words[i - 15], 7) ^ turned(words[i - 15], 18) ^ (words[i - 15] >> 3);
        const std::uint32_t high = turned(words[i - 2], 17) ^ turned(words[i - 2], 19) ^ (words[i - 2] >> 10);
        words[i] = words[i - 16] + low + words[i - 7] + high;
    }
    auto [a, b, c, d, e, f, g, h] = m_state;
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t one =
            h + (turned(e, 6) ^ turned(e, 11) ^ turned(e, 25)) + ((e & f) ^ (~e & g)) + constants[i] + words[i];
        const std::uint32_t two = (turned(a, 2) ^ turned(a, 13) ^ turned(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + one;
        d = c;
        c = b;
        b = a;
        a = one + two;
    }
    const std::uint32_t sums[8] = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i)
        m_state[i] += sums[i];
}

void Sha256::add(std::string_view octets)
{
    m_octets += octets.size();
    while (!octets.empty()) {
        const std::size_t count = std::min(octets.size(), m_block.size() - m_filled);
        std::memcpy(m_block.data() + m_filled, octets.data(), count);
        octets.remove_prefix(count);
        m_filled += count;
        if (m_filled < m_block.size())
            return;
        takeBlock(m_block.data());
        m_filled = 0;
    }
}

std::string Sha256::hex()
{
    const std::uint64_t bits = m_octets * 8;
    std::string end(1, '\x80');
    while ((m_filled + end.size()) % 64 != 56)
        end.push_back('\0');
    for (int shift = 56; shift >= 0; shift -= 8)
        end.push_back(static_cast<char>(bits >> shift));
    add(end);
    static const char digits[] = "0123456789abcdef";
    std::string out;
    for (const std::uint32_t word : m_state)
        for (int shift = 28; shift >= 0; shift -= 4)
            out.push_back(digits[(word >> shift) & 15]);
    return out;
}

std::string sha256Of(std::string_view octets)
{
    Sha256 digest;
    digest.add(octets);
    return digest.hex();
}

} // namespace orva
