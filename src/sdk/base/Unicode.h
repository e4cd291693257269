#ifndef SDK_BASE_UNICODE_H
#define SDK_BASE_UNICODE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace orva
{

// Appends a code point as UTF-8. A surrogate or a value beyond U+10FFFF becomes U+FFFD.
void appendUtf8(char32_t point, std::string& out);

// Appends UTF-16 as UTF-8; a lone surrogate becomes U+FFFD.
void appendUtf8(std::u16string_view text, std::string& out);

// Writes UTF-8 as UTF-16 to `out`, which has room for as many units as the text has octets, and gives their number;
// npos for text that is not well-formed or holds a zero.
std::size_t toUtf16(std::string_view text, char16_t* out);

// Appends UTF-8 as UTF-16. False, and `out` as it was, for text that is not well-formed or holds a zero.
bool appendUtf16(std::string_view text, std::u16string& out);

// The length of UTF-16 that is cut to a number of units: one less where that would split a pair of surrogates, all of
// it where it is not longer.
std::size_t cutLength(std::u16string_view text, std::size_t units);

// Length of the well-formed UTF-8 that `text` begins with, one sequence or a run of ASCII; 0 if it begins with none.
// For a sequence that the end of the text cuts off, 0 and *cut set.
std::size_t utf8Piece(std::string_view text, bool* cut = nullptr);

// Whether the whole text is well-formed UTF-8.
bool isUtf8(std::string_view text);

} // namespace orva

#endif // SDK_BASE_UNICODE_H
