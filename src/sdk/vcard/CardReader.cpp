#include "vcard/CardReader.h"

#include <algorithm>
#include <utility>

namespace orva
{

namespace
{

constexpr std::size_t pieceOctets = 64U << 10;
constexpr std::size_t firstOctets = 4U << 10; // enough for most files with one card
constexpr std::size_t keptOctets = 64;        // of a line between cards that is too long to be kept

bool isBlank(std::string_view line)
{
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

} // namespace

CardReader::CardReader(std::istream& in, CardReport report, const CardLimits& limits)
    : m_in(in), m_report(std::move(report)), m_limits(limits)
{
}

void CardReader::say(int line, int reason) const
{
    if (m_report)
        m_report({line, reason});
}

void CardReader::checkMark()
{
    const std::string_view text = m_text;
    if (text.substr(0, 3) == "\xEF\xBB\xBF") {
        m_text.erase(0, 3);
    } else if (text.substr(0, 2) == "\xFE\xFF" || text.substr(0, 2) == "\xFF\xFE") {
        say(1, ORVA_FINDING_CARD_ENCODING);
        m_text.clear();
        m_ended = true;
        m_anyCard = true;
    }
}

void CardReader::refill()
{
    const std::size_t gone = m_inCard ? m_cardAt : m_at;
    m_text.erase(0, gone);
    m_at -= gone;
    m_lineAt -= std::min(m_lineAt, gone);
    m_cardAt -= std::min(m_cardAt, gone);
    const std::size_t before = m_text.size();
    const std::size_t octets = m_begun ? pieceOctets : firstOctets;
    m_text.resize(before + octets);
    m_in.read(m_text.data() + before, static_cast<std::streamsize>(octets));
    m_text.resize(before + static_cast<std::size_t>(m_in.gcount()));
    m_ended = !m_in;
    if (!std::exchange(m_begun, true))
        checkMark();
}

// A line without its end. False at the end of the file, and with m_tooLong set where the card outgrows its limit.
bool CardReader::nextLine(std::string_view& line)
{
    std::size_t end = m_text.find('\n', m_at);
    while (end == std::string::npos && !m_ended) {
        if (m_text.size() - (m_inCard ? m_cardAt : m_at) > m_limits.octets) {
            m_tooLong = m_inCard;
            if (m_inCard)
                return false;
            m_text.resize(std::min(m_text.size(), m_at + keptOctets));
        }
        refill();
        end = m_text.find('\n', m_at);
    }
    if (m_at == m_text.size())
        return false;
    end = std::min(end, m_text.size());
    m_tooLong = m_inCard && end - m_cardAt > m_limits.octets;
    if (m_tooLong)
        return false;
    line = std::string_view(m_text).substr(m_at, end - m_at);
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    m_lineAt = m_at;
    m_at = std::min(end + 1, m_text.size());
    ++m_line;
    return true;
}

void CardReader::resumeAt(std::size_t offset, int line)
{
    m_at = offset;
    m_line = line - 1;
    m_inCard = false;
}

bool CardReader::skipToBegin()
{
    std::string_view line;
    bool said = false;
    while (nextLine(line)) {
        if (isCardBegin(line))
            return true;
        if (!said && !isBlank(line)) {
            say(m_line, ORVA_FINDING_CARD_OUTSIDE);
            said = true;
        }
    }
    return false;
}

CardReader::Found CardReader::findEnd()
{
    std::string_view line;
    bool agent = false;
    bool inner = false; // in a card inside this one
    int innerLine = 0;  // of the first BEGIN:VCARD of such a card: without an end behind it, it was none
    std::size_t innerAt = 0;
    while (nextLine(line)) {
        if (isCardEnd(line)) {
            if (!std::exchange(inner, false))
                return Found::Card;
        } else if (isCardBegin(line)) {
            if (inner || !agent) {
                say(m_cardLine, ORVA_FINDING_CARD_END);
                resumeAt(innerLine != 0 ? m_cardAt + innerAt : m_lineAt, innerLine != 0 ? innerLine : m_line);
                return Found::Damaged;
            }
            inner = true;
            innerAt =
                innerLine != 0 ? innerAt : m_lineAt - m_cardAt; // from the card on: the text moves when more is read
            innerLine = innerLine != 0 ? innerLine : m_line;
        }
        agent = isAgentLine(line);
    }
    say(m_cardLine, m_tooLong ? ORVA_FINDING_CARD_LENGTH : ORVA_FINDING_CARD_END);
    const bool tooLong = std::exchange(m_tooLong, false);
    if (inner || (innerLine != 0 && !tooLong)) {
        resumeAt(m_cardAt + innerAt, innerLine);
        return Found::Damaged;
    }
    m_inCard = false;
    while (tooLong && nextLine(line) && !isCardEnd(line)) {
        if (isCardBegin(line)) {
            resumeAt(m_lineAt, m_line);
            return Found::Damaged;
        }
    }
    return Found::Damaged;
}

bool CardReader::next(Card& card)
{
    while (skipToBegin()) {
        m_inCard = true;
        m_anyCard = true;
        m_cardAt = m_lineAt;
        m_cardLine = m_line;
        if (findEnd() != Found::Card)
            continue;
        m_inCard = false;
        card = parseCard(std::string_view(m_text).substr(m_cardAt, m_at - m_cardAt), m_cardLine, m_report, m_limits);
        if (!card.end.empty())
            return true;
        say(m_cardLine, ORVA_FINDING_CARD_LINES);
    }
    if (!std::exchange(m_anyCard, true))
        say(std::max(m_line, 1), ORVA_FINDING_CARD_NONE);
    return false;
}

} // namespace orva
