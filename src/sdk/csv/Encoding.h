#ifndef SDK_CSV_ENCODING_H
#define SDK_CSV_ENCODING_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "base/Conversion.h"
#include "csv/LocalText.h"

namespace orva
{

enum class Encoding { Utf8, Utf16Le, Utf16Be, Local, Windows1252 };

struct EncodingGuess {
    Encoding encoding = Encoding::Utf8;
    std::size_t markLength = 0; // octets of the byte order mark at the beginning
};

// Finds a file's encoding from all of its octets, given in pieces of any size: what a mark says; else UTF-16 if nearly
// every second octet at the beginning is zero; else UTF-8 if it is well-formed but for a few broken places; else the
// locale's own encoding if it can be read so; else Windows-1252, in which everything can be read.
class EncodingDetector
{
public:
    explicit EncodingDetector(std::string localCodeset);

    void add(std::string_view piece);

    // Whether more octets could still change the guess.
    bool decided() const { return m_decided; }
    EncodingGuess guess() const;

private:
    void readBeginning(bool all);
    void countUtf8(std::string_view piece);
    void tryLocal(std::string_view piece);

    std::string m_beginning; // of the file, until there is enough of it
    bool m_begun = false;
    bool m_decided = false;
    EncodingGuess m_guess;
    std::string m_rest; // of a UTF-8 sequence that the last piece cut off
    std::size_t m_good = 0;
    std::size_t m_bad = 0;
    std::unique_ptr<Conversion> m_local;
    std::string m_localRest;
    std::string m_scratch;
};

// Turns a file's octets into UTF-8, piece by piece. What cannot be read comes out as octets that are no UTF-8, so that
// the row they stand in can be told; a lone surrogate becomes U+FFFD.
class Decoder
{
public:
    Decoder(Encoding encoding, const std::string& localCodeset);

    // Appends a piece; `last` says that none follows.
    void decode(std::string_view piece, bool last, std::string& out);

private:
    Encoding m_encoding;
    Conversion m_conversion;
    std::string m_rest; // of a sequence that the last piece cut off
};

} // namespace orva

#endif // SDK_CSV_ENCODING_H
