#ifndef SDK_VCARD_CARDTEXT_H
#define SDK_VCARD_CARDTEXT_H

#include <string>
#include <string_view>
#include <vector>

#include "vcard/Card.h"

namespace orva
{

// The value of a property as UTF-8, with its encoding taken off (quoted-printable: RFC 2045, 6.7) and in its charset
// read; escapes are still there, a zero is U+FFFD. The charset is that of CHARSET (2.1); without one, or with one that
// does not fit, UTF-8 if the value is well-formed, else Windows-1252. A value in BASE64 comes as it is written.
std::string cardOctets(const CardProperty& property);

// The value as one text: escapes taken out, line breaks as "\n". In 3.0 and 4.0 (RFC 6350, 3.4) those are \\ \, \; \:
// \n \N; in 2.1 a backslash before n is no escape, and a line break is written in quoted-printable. A backslash before
// anything else stays.
std::string cardText(const CardProperty& property, CardVersion version);

// The value in its components (N, ADR, ORG: separated by semicolons that are not escaped), each a list of the texts
// between its commas (but in 2.1, whose commas are text). Never empty; neither is a component.
std::vector<std::vector<std::string>> cardComponents(const CardProperty& property, CardVersion version);

// The texts of a list such as CATEGORIES or NICKNAME, separated by commas, in all versions.
std::vector<std::string> cardList(const CardProperty& property, CardVersion version);

// Sets a text as value, escaped and coded as the version wants it: in 2.1 what is not plain ASCII, has line breaks or
// would not fit a line goes quoted-printable in UTF-8. Other parameters stay.
void setCardText(CardProperty& property, std::string_view text, CardVersion version);

// The same for a value in components, one text each.
void setCardComponents(CardProperty& property, const std::vector<std::string>& components, CardVersion version);

// The same for a list such as CATEGORIES.
void setCardList(CardProperty& property, const std::vector<std::string>& values, CardVersion version);

} // namespace orva

#endif // SDK_VCARD_CARDTEXT_H
