#include "support/modem/Text.h"

// The default alphabet of 3GPP TS 23.038 with its extension table.
namespace modemsim
{

static const char32_t basicTable[] = U"@£$¥èéùìòÇ\nØø\rÅå"
                                     U"Δ_ΦΓΛΩΠΨΣΘΞ\u001BÆæßÉ"
                                     U" !\"#¤%&'()*+,-./"
                                     U"0123456789:;<=>?"
                                     U"¡ABCDEFGHIJKLMNO"
                                     U"PQRSTUVWXYZÄÖÑÜ§"
                                     U"¿abcdefghijklmno"
                                     U"pqrstuvwxyzäöñüà";

struct Extension {
    char septet;
    char32_t character;
};

static const Extension extensions[] = {{0x0A, U'\f'}, {0x14, U'^'}, {0x28, U'{'}, {0x29, U'}'}, {0x2F, U'\\'},
                                       {0x3C, U'['},  {0x3D, U'~'}, {0x3E, U']'}, {0x40, U'|'}, {0x65, U'€'}};

bool toGsm(const std::u32string& text, std::string& septets)
{
    static_assert(sizeof basicTable / sizeof basicTable[0] == 129, "the table has 128 places");
    septets.clear();
    for (const char32_t c : text) {
        bool found = false;
        for (int i = 0; i < 128 && !found; ++i) {
            if (basicTable[i] == c && c != 0x1B) {
                septets += static_cast<char>(i);
                found = true;
            }
        }
        for (const Extension& extension : extensions) {
            if (extension.character == c) {
                septets += {0x1B, extension.septet};
                found = true;
            }
        }
        if (!found)
            return false;
    }
    return true;
}

std::u32string fromGsm(const std::string& septets)
{
    std::u32string out;
    for (size_t i = 0; i < septets.size(); ++i) {
        if (septets[i] != 0x1B) {
            out += basicTable[septets[i] & 0x7F];
            continue;
        }
        ++i;
        for (const Extension& extension : extensions) {
            if (i < septets.size() && extension.septet == septets[i])
                out += extension.character;
        }
    }
    return out;
}

} // namespace modemsim
