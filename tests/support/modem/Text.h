#ifndef TESTS_SUPPORT_MODEM_TEXT_H
#define TESTS_SUPPORT_MODEM_TEXT_H

#include <string>

namespace modemsim
{

std::u32string fromUtf8(const std::string& text);
std::string toUtf8(const std::u32string& text);
std::u16string toUtf16(const std::u32string& text);
std::u32string fromUtf16(const std::u16string& text);

std::string toHex(const std::string& bytes);
// The bytes of a text in hex; false if it is none.
bool fromHex(const std::string& hex, std::string& bytes);

// Septets of the default alphabet (3GPP TS 23.038), one a byte, an extension character as two; false if a character is
// not in it.
bool toGsm(const std::u32string& text, std::string& septets);
std::u32string fromGsm(const std::string& septets);

// A UTF-8 text in a character set of +CSCS ("GSM", "IRA", "UCS2", "UTF-8", "8859-1"); '?' for what it has not.
std::string encode(const std::string& text, const std::string& charset);
std::string decode(const std::string& text, const std::string& charset);

// The alpha identifier of a card's record (ETSI TS 102 221, Annex A) in its shortest form, without filling.
std::string toAlpha(const std::u32string& text);
std::u32string fromAlpha(const std::string& octets);

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_TEXT_H
