#include "csv/Encoding.h"

#include <algorithm>
#include <array>

#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr char unreadable = '\xFF'; // never part of UTF-8
constexpr char32_t loneSurrogate = 0xFFFD;
constexpr std::size_t beginningLength = 4096;

// A file in UTF-8 with broken places has many whole sequences for each; a file in another encoding has hardly any.
constexpr std::size_t goodForEachBad = 10;

// The name by which iconv knows an encoding.
std::string nameOf(Encoding encoding, const std::string& localCodeset)
{
    switch (encoding) {
    case Encoding::Utf8:
        break;
    case Encoding::Utf16Le:
        return "UTF-16LE";
    case Encoding::Utf16Be:
        return "UTF-16BE";
    case Encoding::Local:
        return localCodeset;
    case Encoding::Windows1252:
        return "CP1252";
    }
    return "UTF-8";
}

// Appends what stands for the beginning of a text that cannot be converted, and gives that beginning's length.
std::size_t appendSubstitute(Encoding encoding, std::string_view text, std::string& out)
{
    const bool wide = encoding == Encoding::Utf16Le || encoding == Encoding::Utf16Be;
    if (wide && text.size() > 1) {
        appendUtf8(loneSurrogate, out);
        return 2;
    }
    // Five octets have no character: they stand for the control characters of the same number.
    if (encoding == Encoding::Windows1252)
        appendUtf8(static_cast<char32_t>(static_cast<unsigned char>(text[0])), out);
    else
        out.push_back(unreadable);
    return 1;
}

} // namespace

EncodingDetector::EncodingDetector(std::string localCodeset)
{
    if (isEightBitCodeset(localCodeset)) {
        m_local = std::make_unique<Conversion>("UTF-8", localCodeset.c_str());
        if (!m_local->usable())
            m_local.reset();
    }
}

void EncodingDetector::add(std::string_view piece)
{
    if (!m_begun) {
        m_beginning.append(piece.substr(0, beginningLength));
        if (m_beginning.size() >= beginningLength)
            readBeginning(false);
    }
    if (m_decided)
        return;
    countUtf8(piece);
    tryLocal(piece);
}

// Marks, and UTF-16 without one, which text of any language gives away by its blanks, digits and line ends.
void EncodingDetector::readBeginning(bool all)
{
    m_begun = all || m_beginning.size() >= beginningLength;
    const std::string_view text = m_beginning;
    const auto begins = [text](std::string_view mark) { return text.substr(0, mark.size()) == mark; };
    if (begins("\xEF\xBB\xBF")) {
        m_guess = {Encoding::Utf8, 3};
        m_decided = true;
    } else if (begins("\xFF\xFE")) {
        m_guess = {Encoding::Utf16Le, 2};
        m_decided = true;
    } else if (begins("\xFE\xFF")) {
        m_guess = {Encoding::Utf16Be, 2};
        m_decided = true;
    } else {
        std::array<std::size_t, 2> zeros = {0, 0};
        for (std::size_t i = 0; i < text.size(); ++i)
            zeros[i % 2] += text[i] == 0 ? 1 : 0;
        const std::size_t few = text.size() / 20;
        if (zeros[1] > 4 * few && zeros[0] <= few) {
            m_guess = {Encoding::Utf16Le, 0};
            m_decided = true;
        } else if (zeros[0] > 4 * few && zeros[1] <= few) {
            m_guess = {Encoding::Utf16Be, 0};
            m_decided = true;
        }
    }
}

void EncodingDetector::countUtf8(std::string_view piece)
{
    std::string joined;
    if (!m_rest.empty()) {
        joined = m_rest;
        joined.append(piece);
        piece = joined;
        m_rest.clear();
    }
    while (!piece.empty()) {
        bool cut = false;
        const std::size_t length = utf8Piece(piece, &cut);
        if (cut) {
            m_rest = piece;
            return;
        }
        if (length == 0)
            ++m_bad;
        else if (static_cast<unsigned char>(piece[0]) >= 0x80)
            ++m_good;
        piece.remove_prefix(std::max<std::size_t>(length, 1));
    }
}

void EncodingDetector::tryLocal(std::string_view piece)
{
    if (m_local == nullptr)
        return;
    m_localRest.append(piece);
    std::string_view left = m_localRest;
    m_scratch.clear();
    bool cut = false;
    if (!m_local->convert(left, m_scratch, &cut) && !cut)
        m_local.reset();
    m_localRest.erase(0, m_localRest.size() - left.size());
}

EncodingGuess EncodingDetector::guess() const
{
    EncodingDetector whole(std::string{});
    EncodingGuess beginning = m_guess;
    bool decided = m_decided;
    if (!m_begun) { // a file shorter than a beginning
        whole.m_beginning = m_beginning;
        whole.readBeginning(true);
        beginning = whole.m_guess;
        decided = whole.m_decided;
    }
    if (decided)
        return beginning;
    const std::size_t bad = m_bad + (m_rest.empty() ? 0 : 1);
    if (bad == 0 || m_good >= goodForEachBad * bad)
        return {Encoding::Utf8, 0};
    if (m_local != nullptr && m_localRest.empty())
        return {Encoding::Local, 0};
    return {Encoding::Windows1252, 0};
}

Decoder::Decoder(Encoding encoding, const std::string& localCodeset)
    : m_encoding(encoding), m_conversion("UTF-8", nameOf(encoding, localCodeset).c_str())
{
}

void Decoder::decode(std::string_view piece, bool last, std::string& out)
{
    if (m_encoding == Encoding::Utf8) {
        out.append(piece);
        return;
    }
    m_rest.append(piece);
    std::string_view left = m_rest;
    while (!left.empty()) {
        bool cut = false;
        if (m_conversion.usable() && m_conversion.convert(left, out, &cut))
            break;
        if (cut && !last)
            break;
        left.remove_prefix(appendSubstitute(m_encoding, left, out));
    }
    m_rest.erase(0, m_rest.size() - left.size());
}

} // namespace orva
