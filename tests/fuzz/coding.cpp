// Any text, counted for a card and compared with what an encoder makes of it.

#include <algorithm>

#include "Scratch.h"
#include "coding/AlphaIdentifier.h"
#include "sdk/files/AlphaForms.h"

using namespace orva;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::u16string text;
    for (std::size_t i = 0; i + 1 < size && text.size() < 600; i += 2)
        text.push_back(static_cast<char16_t>(data[i] << 8 | data[i + 1]));
    std::size_t best = SIZE_MAX;
    for (const forms::Octets& octets : forms::encodeAll(text)) {
        MUST(forms::decode(octets) == text);
        best = std::min(best, octets.size());
    }
    MUST(alphaLength(text, AlphaRule::Sim) == static_cast<int>(best));
    for (const AlphaRule rule : {AlphaRule::Sim, AlphaRule::Uim, AlphaRule::Units}) {
        int last = alphaLength(text, rule);
        for (std::size_t n = text.size(); n-- > 0;) {
            const int now = alphaLength(std::u16string_view(text).substr(0, n), rule);
            MUST(now <= last);
            last = now;
        }
        MUST(last == 0);
    }
    return 0;
}
