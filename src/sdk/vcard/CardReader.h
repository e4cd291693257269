#ifndef SDK_VCARD_CARDREADER_H
#define SDK_VCARD_CARDREADER_H

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>

#include "vcard/Card.h"
#include "vcard/CardLines.h"

namespace orva
{

/*
 * Reads a file of any number of vCards (RFC 6350, 3.3; versions 2.1, 3.0 and 4.0 may stand side by side), one at a
 * time. Lines end in CRLF or LF; a mark of UTF-8 at the beginning is passed over.
 *
 * A card without an end, one beyond the limits and text between cards are reported and passed over; reading goes on
 * with the next BEGIN:VCARD. A file that holds no card at all is reported as such. Memory stays within a few times the
 * largest card allowed, whatever the file. One thread at a time.
 */
class CardReader
{
public:
    // The stream stays the caller's and must outlive the reader.
    CardReader(std::istream& in, CardReport report, const CardLimits& limits = CardLimits());

    // Gives the next card; false at the end.
    bool next(Card& card);

private:
    enum class Found { Card, Damaged };

    bool nextLine(std::string_view& line);
    void refill();
    bool skipToBegin();
    Found findEnd();
    void resumeAt(std::size_t offset, int line);
    void say(int line, int reason) const;
    void checkMark();

    std::istream& m_in;
    CardReport m_report;
    CardLimits m_limits;
    std::string m_text;       // from the current card on, or from the current line on between cards
    std::size_t m_at = 0;     // the next line in it
    std::size_t m_lineAt = 0; // the last line taken
    std::size_t m_cardAt = 0; // the current card
    bool m_inCard = false;
    bool m_tooLong = false; // the current line or card has been cut
    bool m_ended = false;
    bool m_begun = false;
    bool m_anyCard = false;
    int m_line = 0; // lines taken so far
    int m_cardLine = 0;
};

} // namespace orva

#endif // SDK_VCARD_CARDREADER_H
