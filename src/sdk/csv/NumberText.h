#ifndef SDK_CSV_NUMBERTEXT_H
#define SDK_CSV_NUMBERTEXT_H

#include <string>

namespace orva
{

// Takes out of a telephone number, in place from `begin` on, what people and programs put into it for the eye: blanks,
// dots, dashes, slashes, parentheses and invisible direction marks; of several numbers in one column, as some programs
// write them ("1 ::: 2"), the first stays. A text that then holds anything but digits, "+", "*" and "#" is left as it
// was. Digits of other scripts are digits here and become 0 to 9.
void cleanNumber(std::u16string& text, std::size_t begin);

} // namespace orva

#endif // SDK_CSV_NUMBERTEXT_H
