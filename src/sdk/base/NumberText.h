#ifndef SDK_BASE_NUMBERTEXT_H
#define SDK_BASE_NUMBERTEXT_H

#include <optional>
#include <string>
#include <string_view>

#include "base/Profile.h"

namespace orva
{

// Whether "p" and "w", a pause and a wait, may stand in a number.
enum class Pauses { No, Yes };

struct NumberText {
    std::u16string number;    // digits 0 to 9, "+", "*", "#", and "p" and "w" where they may be
    std::u16string extension; // digits; empty for none
};

// Reads a telephone number as people and programs write it; ORVA_Care_CleanNumber says what goes and what is refused.
// Nothing for a text that is no number. A text of nothing but separators is the empty number.
std::optional<NumberText> readNumber(std::u16string_view text, Pauses pauses);

// Whether a text is a number as it stands, without a character to take away.
bool isPlainNumber(std::u16string_view text, Pauses pauses);

// Whether a field holds a telephone number, and what that may hold.
bool isNumberField(const Field& field);
Pauses pausesOf(const Field& field);

// The line by which a note keeps what a number's field has no room for: the number and its extension.
std::u16string extensionNote(const NumberText& text);

} // namespace orva

#endif // SDK_BASE_NUMBERTEXT_H
