#ifndef SDK_BASE_TEXT_H
#define SDK_BASE_TEXT_H

#include <string>
#include <string_view>

namespace orva
{

// A client's zero-terminated text. Failure(ORVA_E_TOO_LONG) for one without an end within 65,536 units.
std::u16string fromApi(const unsigned short* text);

// The same in place of what `into` holds, whose room is used again; that stays as it was where this fails.
void fromApi(const unsigned short* text, std::u16string& into);

// The text in a new buffer, which the client frees.
unsigned short* toApi(std::u16string_view text);

// A lone surrogate becomes U+FFFD, and so does each octet that is not well-formed UTF-8. Neither text holds a zero.
std::string toUtf8(std::u16string_view text);
std::u16string fromUtf8(std::string_view text);

} // namespace orva

#endif // SDK_BASE_TEXT_H
