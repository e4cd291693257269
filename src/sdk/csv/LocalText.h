#ifndef SDK_CSV_LOCALTEXT_H
#define SDK_CSV_LOCALTEXT_H

#include <memory>
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

// A conversion between two encodings that keeps its state from call to call.
class Conversion
{
public:
    // One that converts nothing, if there is no such encoding.
    Conversion(const char* to, const char* from);
    ~Conversion();
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    bool usable() const;

    // Converts and appends as much as it can; `in` loses what was converted. False at a sequence that cannot be
    // converted, and at one that is cut off by the end, for which *cut is set.
    bool convert(std::string_view& in, std::string& out, bool* cut);

    // Forgets what it remembers of the text so far.
    void restart();

private:
    void* m_conversion;
};

} // namespace orva

#endif // SDK_CSV_LOCALTEXT_H
