// Any octets in any encoding: what comes out does not depend on how they come in pieces. The first octet chooses.

#include <algorithm>

#include "Scratch.h"
#include "base/Unicode.h"
#include "csv/Encoding.h"

using namespace orva;

namespace
{

std::string decoded(std::string_view text, Encoding encoding, const std::string& codeset, std::size_t piece)
{
    Decoder decoder(encoding, codeset);
    std::string out;
    for (std::size_t at = 0; at < text.size(); at += piece)
        decoder.decode(text.substr(at, piece), false, out);
    decoder.decode({}, true, out);
    return out;
}

EncodingGuess guessed(std::string_view text, const std::string& codeset, std::size_t piece)
{
    EncodingDetector detector(codeset);
    for (std::size_t at = 0; at < text.size() && !detector.decided(); at += piece)
        detector.add(text.substr(at, piece));
    return detector.guess();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string codesets[] = {"UTF-8", "ISO-8859-15", "SHIFT_JIS", "GB18030", "WINDOWS-1251", "no such"};
    const std::string& codeset = codesets[data[0] % 6];
    const std::size_t piece = 1 + data[0] / 6 % 5;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t whole = std::max<std::size_t>(text.size(), 1);

    const EncodingGuess guess = guessed(text, codeset, whole);
    const EncodingGuess again = guessed(text, codeset, piece);
    MUST(guess.encoding == again.encoding && guess.markLength == again.markLength);

    for (const Encoding encoding :
         {Encoding::Utf8, Encoding::Utf16Le, Encoding::Utf16Be, Encoding::Local, Encoding::Windows1252}) {
        const std::string out = decoded(text, encoding, codeset, whole);
        MUST(out == decoded(text, encoding, codeset, piece));
        std::u16string units;
        const bool readable = appendUtf16(out, units);
        MUST(readable || encoding != Encoding::Windows1252 || text.find('\0') != std::string_view::npos);
        if (readable) {
            std::string back;
            appendUtf8(std::u16string_view(units), back);
            MUST(back == out);
        }
    }
    return 0;
}
