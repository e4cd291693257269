#ifndef SDK_MODEM_LINEREADER_H
#define SDK_MODEM_LINEREADER_H

#include <cstddef>
#include <string>
#include <string_view>

namespace orva
{

inline bool beginsWith(std::string_view line, std::string_view with)
{
    return line.substr(0, with.size()) == with;
}

// Cuts what a modem sends into lines, however it is cut into pieces on the way. A line ends at any carriage return or
// line feed; empty lines are none. A line beyond `longest` comes cut off there, the rest of it not at all, so that
// noise never piles up.
class LineReader
{
public:
    static constexpr std::size_t longest = 8192;

    void feed(std::string_view bytes);

    // The next complete line; false when there is none yet.
    bool next(std::string& line);

    // Forgets everything, complete or not.
    void clear();

    // Octets held.
    std::size_t size() const { return m_bytes.size() - m_begin; }

private:
    std::string m_bytes;
    std::size_t m_begin = 0;   // of what has not been given out
    std::size_t m_scanned = 0; // no line end before this
    bool m_skipping = false;   // within the rest of a line that was too long
};

} // namespace orva

#endif // SDK_MODEM_LINEREADER_H
