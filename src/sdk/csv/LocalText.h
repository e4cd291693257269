#ifndef SDK_CSV_LOCALTEXT_H
#define SDK_CSV_LOCALTEXT_H

#include <string>
#include <string_view>

namespace orva
{

// The eight-bit encoding of the user's locale as the environment names it, whether or not the program has called
// setlocale(); such as "UTF-8" or "ISO-8859-15".
std::string localCodeset();

// Whether that encoding can tell more than ASCII and is not UTF-8 itself, so that files may be written in it.
bool isEightBitCodeset(const std::string& codeset);

// UTF-8 in the local encoding, with "?" for what it lacks, and back, with U+FFFD for what cannot be read.
std::string toLocal(std::string_view utf8);
std::string fromLocal(std::string_view local);

} // namespace orva

#endif // SDK_CSV_LOCALTEXT_H
