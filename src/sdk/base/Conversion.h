#ifndef SDK_BASE_CONVERSION_H
#define SDK_BASE_CONVERSION_H

#include <string>
#include <string_view>

namespace orva
{

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

#endif // SDK_BASE_CONVERSION_H
