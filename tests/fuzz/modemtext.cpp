// Any field in any character set: it decodes, and what can be sent comes back as it went. The first octet is the set.

#include "Scratch.h"
#include "coding/AlphaCoding.h"
#include "coding/AlphaIdentifier.h"
#include "modem/TextCoding.h"

using namespace orva;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    const auto set = static_cast<CharacterSet>(data[0] % 6);
    const std::string_view field(reinterpret_cast<const char*>(data) + 1, size - 1);
    characterSetsIn(field);
    alphaText(field);
    const std::u16string text = textFrom(field, set).substr(0, 300);
    const std::string coded = toAlpha(text);
    MUST(static_cast<int>(coded.size()) == alphaLength(text, AlphaRule::Sim));
    if (text.find(u'\xFFFF') == std::u16string::npos)
        MUST(alphaText(coded) == text);
    const std::optional<std::string> sent = fieldFor(text, set);
    if (sent && set != CharacterSet::Ucs2 && set != CharacterSet::Hex) {
        MUST(sent->find_first_of("\"\r\n") == std::string::npos);
        MUST(textFrom(*sent, set) == text);
    }
    return 0;
}
