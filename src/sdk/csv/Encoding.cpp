#include "csv/Encoding.h"

#include <algorithm>
#include <array>

#include "base/Unicode.h"

namespace orva
{

namespace
{

constexpr char unreadable = '\xFF'; // never part of UTF-8
constexpr std::size_t beginningLength = 4096;

// A file in UTF-8 with broken places has many whole sequences for each; a file in another encoding has hardly any.
constexpr std::size_t goodForEachBad = 10;

// 80 to 9F; the five octets without a character stand for the control characters of the same number.
constexpr std::array<char16_t, 32> windows1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void decodeWindows1252(std::string_view piece, std::string& out)
{
    for (const char c : piece) {
        const auto octet = static_cast<unsigned char>(c);
        if (octet < 0x80)
            out.push_back(c);
        else
            appendUtf8(static_cast<char32_t>(octet < 0xA0 ? windows1252[octet - 0x80U] : octet), out);
    }
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

Decoder::Decoder(Encoding encoding, const std::string& localCodeset) : m_encoding(encoding)
{
    if (encoding == Encoding::Local)
        m_local = std::make_unique<Conversion>("UTF-8", localCodeset.c_str());
}

void Decoder::decode(std::string_view piece, bool last, std::string& out)
{
    switch (m_encoding) {
    case Encoding::Utf8:
        out.append(piece);
        break;
    case Encoding::Utf16Le:
    case Encoding::Utf16Be:
        decodeUtf16(piece, last, out);
        break;
    case Encoding::Local:
        decodeLocal(piece, last, out);
        break;
    case Encoding::Windows1252:
        decodeWindows1252(piece, out);
        break;
    }
}

void Decoder::decodeUtf16(std::string_view piece, bool last, std::string& out)
{
    for (const char c : piece) {
        const int octet = static_cast<unsigned char>(c);
        if (m_half < 0) {
            m_half = octet;
            continue;
        }
        const int unit = m_encoding == Encoding::Utf16Le ? octet << 8 | m_half : m_half << 8 | octet;
        m_half = -1;
        addUnit(static_cast<char16_t>(unit), out);
    }
    if (!last)
        return;
    if (m_surrogate != 0)
        appendUtf8(static_cast<char32_t>(m_surrogate), out);
    if (m_half >= 0)
        out.push_back(unreadable);
    m_surrogate = 0;
    m_half = -1;
}

void Decoder::addUnit(char16_t unit, std::string& out)
{
    const bool low = unit >= 0xDC00 && unit < 0xE000;
    if (m_surrogate != 0) {
        const char32_t high = m_surrogate;
        m_surrogate = 0;
        if (low) {
            appendUtf8(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00U), out);
            return;
        }
        appendUtf8(high, out);
    }
    if (unit >= 0xD800 && unit < 0xDC00)
        m_surrogate = unit;
    else
        appendUtf8(static_cast<char32_t>(unit), out);
}

void Decoder::decodeLocal(std::string_view piece, bool last, std::string& out)
{
    m_rest.append(piece);
    std::string_view left = m_rest;
    while (!left.empty()) {
        bool cut = false;
        if (m_local->usable() && m_local->convert(left, out, &cut))
            break;
        if (cut && !last)
            break;
        out.push_back(unreadable);
        left.remove_prefix(1);
    }
    m_rest.erase(0, m_rest.size() - left.size());
}

} // namespace orva
