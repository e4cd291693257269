#ifndef SDK_CSV_NUMBERTEXT_H
#define SDK_CSV_NUMBERTEXT_H

#include <cstddef>
#include <string_view>

namespace orva
{

// Takes out of a telephone number what people and programs put into it for the eye: blanks, dots, dashes, slashes,
// parentheses and invisible direction marks. A text that would then still hold anything but digits, "+", "*" and "#"
// stays as it is. Digits of other scripts are digits here and become 0 to 9.
// Works in place and gives the new length.
std::size_t cleanNumber(char16_t* text, std::size_t length);

// Of several values in one column, as some programs write them ("1 ::: 2"), the length of the first.
std::size_t firstLength(std::u16string_view text);

} // namespace orva

#endif // SDK_CSV_NUMBERTEXT_H
