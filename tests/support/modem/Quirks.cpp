#include "support/modem/Quirks.h"

#include <cstdlib>
#include <iterator>
#include <stdexcept>

namespace modemsim
{

namespace
{

constexpr QuirkKind reading = QuirkKind::Reading;
constexpr QuirkKind writing = QuirkKind::Writing;
constexpr QuirkKind different = QuirkKind::Different;

constexpr QuirkInfo quirks[] = {
    // Lines
    {"echo_stays", "", reading, "the echo cannot be switched off"},
    {"crcrlf", "", reading, "lines end with two carriage returns and a line feed"},
    {"bare_at_error", "", reading, "AT alone is answered with ERROR"},
    {"lost_ok", "AT+CPIN?", reading, "commands that begin so are never finished with OK"},
    {"silent", "AT+CPBS?", reading, "commands that begin so are never answered"},
    {"no_space", "", reading, "no blank after the colon of an answer or an error"},
    {"urc_inside", "", reading, "lines that nobody asked for stand between the lines of an answer"},
    {"fragment", "1", reading, "answers come in pieces of so many bytes"},
    {"delay", "50", reading, "each answer comes so many milliseconds late"},
    {"no_cmee", "", different, "the form of errors cannot be chosen: always ERROR"},
    {"verbose_errors", "", reading, "errors come in words although numbers were asked for"},
    {"no_verbose_choice", "", reading, "ATV0 and ATV1 are refused"},
    // Lists of storages and ranges
    {"no_parens", "", reading, "lists of character sets and storages without parentheses"},
    {"double_parens", "", reading, "the same lists in double parentheses"},
    {"cpbs_short", "", reading, "+CPBS? gives the storage alone"},
    {"cpbs_error", "", reading, "+CPBS? is refused"},
    {"cpbr_test", "bare", reading,
     "the answer to +CPBR=?: bare (no parentheses), sharp (no range), nolen, short (range alone), extra, full, "
     "tight, "
     "used (range of what is used), error"},
    {"no_me", "", different, "the device's memory is not offered"},
    {"default_mt", "", reading, "the selected storage is MT at the start"},
    // Reading
    {"first_index", "101", reading, "the first location has this number"},
    {"empty_error", "22", reading, "a range without entries is answered with this error"},
    {"empty_lines", "", reading, "empty locations are listed as empty entries"},
    {"max_range", "10", reading, "longer ranges are refused with error 3"},
    {"late_range_error", "", reading, "a range beyond the end: the lines, then error 21"},
    {"max_index", "255", different, "locations above are announced but cannot be read"},
    {"first_hits", "2", reading, "only the first entries of a range are listed"},
    {"twice", "", reading, "each location is listed twice"},
    {"range_any_ok", "", reading, "a range beyond the end is answered with OK"},
    {"stall_at", "5", different, "a read falls silent for good before this location"},
    {"read_ms", "200", reading, "each read command takes so long"},
    // Texts
    {"ucs2_number", "", reading, "in UCS2 numbers are in hex as well"},
    {"ucs2_memory", "", reading, "in UCS2 names of storages and character sets must be in hex as well"},
    {"unquoted_hex", "", reading, "texts in hex without quotation marks"},
    {"lower_hex", "", reading, "hex in lower case"},
    {"ffff", "", reading, "names in hex end in FFFF"},
    {"strip_plus", "", reading, "numbers of type 145 without their plus sign"},
    {"no_type", "", reading, "the type of a number is left out"},
    {"tail", "zero", reading, "fields behind the name: zero, commas, date; before: an empty one before the number"},
    {"comma_space", "", reading, "a blank after each comma"},
    {"escape_quotes", "", reading, "quotation marks and backslashes in texts as \\22 and \\5C"},
    {"utf8_anyway", "", reading, "UTF-8 is sent whatever character set was chosen"},
    {"charsets", "GSM/IRA", different, "the character sets that are offered"},
    {"ucs2_ignored", "", reading, "UCS2 is offered and taken with OK, and changes nothing"},
    {"seven_bit", "", different, "the line carries seven bits: the eighth of each byte is lost"},
    {"raw_alpha", "", reading,
     "names outside the default alphabet as hex of the card's own coding, in any set but UCS2"},
    // State
    {"simbusy", "500", reading, "the card is busy for so many milliseconds from the start and after the PIN"},
    {"ready_urc", "+PBREADY", reading, "this line tells that the card is no longer busy"},
    {"no_phonebook", "", different, "phonebook commands are unknown, as to a modem for data alone"},
    {"me_needs_card", "", reading, "the device's memory is refused without a card or PIN"},
    {"card_out_error", "13", reading, "the error without a card"},
    {"card_urc", "", reading, "+SIM lines tell of a card pulled or put in"},
    {"fdn_on", "", different, "only fixed numbers may be used: the card's phonebook cannot be selected"},
    {"no_crsm", "", different, "+CRSM and +CSIM are refused: no card number"},
    {"ccid", "", reading, "+CCID and ^ICCID give the card number"},
    {"cpbs_shared", "", reading, "the ports share one selected storage"},
    {"charset_shared", "", reading, "the ports share one character set"},
    // Writing
    {"truncate", "", writing, "texts that are too long are cut and stored, with OK"},
    {"drop_characters", "", writing, "characters of a number that are none are removed, with OK"},
    {"ext_full", "", writing, "a number of more than 20 digits finds the card full"},
    {"no_index_write", "", writing, "a write without a location is refused"},
    {"written_index", "", writing, "the answer to a write names the location"},
    {"delete_empty_error", "22", writing, "deleting an empty location is an error"},
    {"write_lost", "", writing, "writes are answered with OK and not stored"},
    {"text_units", "", writing, "the length of a card's name is counted in characters"},
    {"no_write", "", writing, "phonebooks can be read only"},
    {"write_other", "", writing,
     "a write goes to the location behind the one that was asked for; all: erasing as well"},
};

} // namespace

const std::vector<QuirkInfo>& knownQuirks()
{
    static const std::vector<QuirkInfo> all(std::begin(quirks), std::end(quirks));
    return all;
}

Quirks::Quirks(std::initializer_list<const char*> settings)
{
    for (const char* setting : settings)
        set(setting);
}

void Quirks::set(const std::string& setting)
{
    const size_t equals = setting.find('=');
    const std::string name = setting.substr(0, equals);
    for (const QuirkInfo& info : knownQuirks()) {
        if (name == info.name) {
            m_values[name] = equals == std::string::npos ? info.sample : setting.substr(equals + 1);
            return;
        }
    }
    throw std::invalid_argument("no such quirk: " + name);
}

void Quirks::clear(const std::string& name)
{
    m_values.erase(name);
}

bool Quirks::has(const char* name) const
{
    return m_values.count(name) != 0;
}

int Quirks::number(const char* name, int without) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? without : std::atoi(found->second.c_str());
}

std::string Quirks::text(const char* name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? std::string() : found->second;
}

} // namespace modemsim
