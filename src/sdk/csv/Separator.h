#ifndef SDK_CSV_SEPARATOR_H
#define SDK_CSV_SEPARATOR_H

#include <string_view>

namespace orva
{

// What separates the columns of a text: of comma, semicolon and tab the one that gives the same number of columns in
// most rows, and at least two in the first. Of two that do, the one with more columns in the first row; then the comma,
// then the semicolon. `whole` says that the text is not cut off in the middle of its last row.
char guessSeparator(std::string_view text, bool whole);

} // namespace orva

#endif // SDK_CSV_SEPARATOR_H
