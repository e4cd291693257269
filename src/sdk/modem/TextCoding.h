#ifndef SDK_MODEM_TEXTCODING_H
#define SDK_MODEM_TEXTCODING_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// What a modem codes its strings in (3GPP TS 27.007, 5.5), best first: hexadecimal forms are immune to quotation marks,
// to line breaks and to lines that strip a bit.
enum class CharacterSet { Ucs2, Utf8, Hex, Latin1, Gsm, Ira };

// The name that +CSCS knows it by.
const char* nameOf(CharacterSet set);

// By its name, which may come in quotation marks and in hexadecimal UCS-2; nothing for one that we do not speak.
std::optional<CharacterSet> characterSetNamed(std::string_view name);

// Those of an answer to +CSCS=? that we speak, best first, each once, however the list is punctuated.
std::vector<CharacterSet> characterSetsIn(std::string_view answer);

// The text of a field as it came, without its quotation marks. What the set cannot be true of is taken for what it most
// likely is: UTF-8, or the card's own coding in hexadecimal digits. U+FFFF and FF, which fill records up, end a text.
std::u16string textFrom(std::string_view field, CharacterSet set);

// The same backwards, ready to stand between quotation marks; nothing for a text that the set cannot carry unharmed.
std::optional<std::string> fieldFor(std::u16string_view text, CharacterSet set);

// Hexadecimal UCS-2 of a name or number, four digits a unit.
std::string hexUcs2(std::u16string_view text);
std::string hexUcs2(std::string_view ascii);

// What hexadecimal UCS-2 spells in ASCII; nothing if it spells anything else or is no such thing.
std::optional<std::string> asciiOfHexUcs2(std::string_view digits);

} // namespace orva

#endif // SDK_MODEM_TEXTCODING_H
