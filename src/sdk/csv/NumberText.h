#ifndef SDK_CSV_NUMBERTEXT_H
#define SDK_CSV_NUMBERTEXT_H

#include <string>

namespace orva
{

// Takes out of a telephone number what people and programs put into it for the eye: blanks, dots, dashes, slashes,
// parentheses and invisible direction marks. A text that would then still hold anything but digits, "+", "*" and "#"
// stays as it is. Digits of other scripts are digits here and become 0 to 9.
void cleanNumber(std::u16string& text);

// Of several values in one column, as some programs write them ("1 ::: 2"), keeps the first.
void keepFirst(std::u16string& text);

} // namespace orva

#endif // SDK_CSV_NUMBERTEXT_H
