#ifndef SDK_VCARD_CARDLINES_H
#define SDK_VCARD_CARDLINES_H

#include <cstddef>
#include <string>
#include <string_view>

#include "base/Finding.h"
#include "vcard/Card.h"

namespace orva
{

// Told of something in a card or file that could not be read.
using CardReport = FindingReport;

// What one card may hold; tests make it smaller.
struct CardLimits {
    std::size_t octets = 5U << 20;
    std::size_t properties = 10000;
};

// Takes the lines of one card apart, with or without BEGIN:VCARD and END:VCARD around them; `line` is the number of the
// first. Folded lines are joined (RFC 6350, 3.2; 2.1 keeps the blank that such a line begins with), so are the soft
// line breaks of quoted-printable and lines of BASE64 without a blank. A card inside a card (AGENT of 2.1) is that
// property's value. A line that is no property is reported and stays as an unreadable one, so that it is written again.
Card parseCard(std::string_view text, int line = 1, const CardReport& report = CardReport(),
               const CardLimits& limits = CardLimits());

// Whether a line, without its end, is "BEGIN:VCARD" or "END:VCARD".
bool isCardBegin(std::string_view line);
bool isCardEnd(std::string_view line);

// Whether a line is an AGENT whose card follows in the lines below it.
bool isAgentLine(std::string_view line);

} // namespace orva

#endif // SDK_VCARD_CARDLINES_H
