// What a user can give away: the dialog with a modem with everything of his masked.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

#include "modem/DialogRecord.h"
#include "modem/PhonebookLines.h"
#include "modem/TextCoding.h"
#include "support/Check.h"

using namespace orva;

namespace
{

constexpr std::uint64_t key = 0x1234567887654321ULL;

bool shows(const std::string& text, std::string_view secret)
{
    return text.find(secret) != std::string::npos;
}

} // namespace

TEST(namesAndNumbersOfAnEntryAreReplaced)
{
    const std::string masked = maskedLine("+CPBR: 5,\"+491711234567\",145,\"Anna\"", "AT+CPBR=1,50", key);
    CHECK(!shows(masked, "1711"));
    CHECK(!shows(masked, "Anna"));
    const std::optional<EntryLine> entry = readEntryLine(masked);
    REQUIRE(entry.has_value());
    CHECK_EQ(entry->location, 5);
    CHECK_EQ(entry->type, 145);
    CHECK_EQ(entry->number.size(), 13u);
    CHECK_EQ(entry->number.front(), '+');
    CHECK_EQ(entry->text.size(), 4u);
}

TEST(hexFormsAreReplacedAndStillDecode)
{
    const std::string masked = maskedLine("+CPBR: 5,\"002B00340039\",145,\"0041006E006E0061\"", "AT+CPBR=1,50", key);
    CHECK(!shows(masked, "0041006E"));
    CHECK(!shows(masked, "00340039"));
    const std::optional<EntryLine> entry = readEntryLine(masked);
    REQUIRE(entry.has_value());
    CHECK_EQ(textFrom(entry->text, CharacterSet::Ucs2).size(), 4u);
    CHECK(asciiOfHexUcs2(entry->number).has_value());
    CHECK_EQ(asciiOfHexUcs2(entry->number)->front(), '+');
    const std::string alpha = maskedLine("+CPBR: 1,\"1\",129,\"81040898B2B0BD\"", "AT+CPBR=1", key);
    CHECK(!shows(alpha, "98B2"));
}

TEST(whatIsWrittenIsReplacedAsItIsRead)
{
    const std::string sent = maskedCommand("AT+CPBS=\"SM\";+CPBW=3,\"+491711\",145,\"Anna\"", key);
    const std::string read = maskedLine("+CPBR: 3,\"+491711\",145,\"Anna\"", "AT+CPBR=3", key);
    const auto values = [](const std::string& text) { return text.substr(text.find(",\"")); };
    CHECK_EQ(values(sent), values(read));
    CHECK(shows(sent, "AT+CPBS=\"SM\";+CPBW=3,"));
}

TEST(aCutOffNameStaysTheBeginningOfTheWholeOne)
{
    const auto name = [](const std::string& text) { return readEntryLine(text)->text; };
    const std::string whole = name(maskedLine("+CPBR: 1,\"1\",129,\"Maximilian\"", "AT+CPBR=1", key));
    const std::string part = name(maskedLine("+CPBR: 1,\"1\",129,\"Maxim\"", "AT+CPBR=1", key));
    CHECK_EQ(whole.substr(0, 5), part);
}

TEST(identitiesPinsMessagesAndAnythingUnknownAreReplaced)
{
    const struct {
        const char* line;
        const char* command;
        const char* secret;
    } cases[] = {
        {"350000000000006", "AT+CGSN", "35000000"},
        {"+CGSN: 350000000000006", "AT+CGSN", "35000000"},
        {"001010123456789", "AT+CIMI", "10123456"},
        {"+CRSM: 144,0,\"98940200002143658709\"", "AT+CRSM=176,12258,0,0,10", "9894020000"},
        {"+CCID: \"8949020000123456789\"", "AT+CCID", "89490200"},
        {"+CLIP: \"+491711234567\",145", "", "1711234"},
        {"+CMT: \"+491711234567\",,\"24/01/31\"", "", "1711234"},
        {"07911326040000F0040B911346610089F60000208062917314080CC8F71D14969741F977FD07", "AT+CMGR=1", "13466100"},
        {"Meet me at noon", "AT+CMGR=1", "noon"},
        {"+CNUM: ,\"+491700000001\",145", "AT+CNUM", "17000000"},
        {"+CREG: 2,1,\"00C3\",\"01AB2F\"", "", "01AB2F"},
        {"+NEWSOFT: \"Anna\"", "", "Anna"},
        {"AT+CPIN=\"1234\"", "AT+CPIN=\"1234\"", "1234"},
    };
    for (const auto& one : cases)
        CHECK(!shows(maskedLine(one.line, one.command, key), one.secret));
    CHECK(!shows(maskedCommand("AT+CPIN=\"1234\"", key), "1234"));
    CHECK(!shows(maskedCommand("ATD+491711234567;", key), "1711"));
    CHECK(!shows(maskedCommand("AT+CPBF=\"Anna\"", key), "Anna"));
}

TEST(whatTellsOfTheModemAloneStays)
{
    for (const char* const line :
         {"+CPBS: \"SM\",5,20", "+CSCS: (\"GSM\",\"UCS2\")", "+CPIN: READY", "+CME ERROR: 22", "OK", "+CSQ: 20,99"})
        CHECK_EQ(maskedLine(line, "AT", key), line);
    CHECK_EQ(maskedLine("+CPBR: (1-250),40,18", "AT+CPBS=\"SM\";+CPBR=?", key), "+CPBR: (1-250),40,18");
    CHECK_EQ(maskedLine("+CREG: 2,1", "AT+CREG?", key), "+CREG: 2,1");
    CHECK_EQ(maskedLine("Simulated Modem", "AT+CGMM", key), "Simulated Modem");
    CHECK_EQ(maskedCommand("AT+CPBS=\"SM\";+CPBR=1,50", key), "AT+CPBS=\"SM\";+CPBR=1,50");
}

TEST(aLocationInQuotesIsKeptAndANumberIsNot)
{
    const std::string masked = maskedLine("+CPBR: \"7\",\"+491711234567\",145,\"Anna\"", "AT+CPBR=1,50", key);
    const std::optional<EntryLine> entry = readEntryLine(masked);
    REQUIRE(entry.has_value());
    CHECK_EQ(entry->location, 7);
    CHECK(!shows(masked, "1711234567") && !shows(masked, "Anna"));
    CHECK(!shows(maskedLine("+CPBR: \"01711234567\",145,\"Anna\"", "AT+CPBR=1,50", key), "1711234567"));
}

TEST(anotherKeyGivesAnotherMask)
{
    const char* const line = "+CPBR: 1,\"+491711234567\",145,\"Maximilian\"";
    CHECK(maskedLine(line, "AT+CPBR=1", key) != maskedLine(line, "AT+CPBR=1", key + 1));
}

TEST(theFileHasALineForEachAndNoneOfTheUsers)
{
    const int file = ::memfd_create("record", 0);
    const int second = ::dup(file);
    {
        DialogRecord record(second, key);
        record.note("port");
        record.sent("AT+CPBW=1,\"112\",129,\"Anna\"");
        record.received("odd \x01 \\ line");
    }
    char bytes[512];
    const ssize_t length = ::pread(file, bytes, sizeof bytes, 0);
    ::close(file);
    const std::string text(bytes, static_cast<std::size_t>(std::max<ssize_t>(0, length)));
    CHECK_EQ(std::count(text.begin(), text.end(), '\n'), 3);
    CHECK(shows(text, " > AT+CPBW=1,\""));
    CHECK(shows(text, "\\x01 \\x5C "));
    CHECK(!shows(text, "Anna"));
}

TEST(behindSomethingElseThatIsToldNothingIsTakenForTheProductsName)
{
    const int file = ::memfd_create("record", 0);
    {
        DialogRecord record(::dup(file), key);
        record.sent("AT+CGMM");
        record.received("Stick 500");
        record.received("+CMT: \"+491711234567\",,\"24/01/01,12:00:00+04\"");
        record.received("Anna");
    }
    char bytes[512];
    const ssize_t length = ::pread(file, bytes, sizeof bytes, 0);
    ::close(file);
    const std::string text(bytes, static_cast<std::size_t>(std::max<ssize_t>(0, length)));
    CHECK(shows(text, "Stick 500"));
    CHECK(!shows(text, "1711"));
    CHECK(!shows(text, "Anna"));
}

CHECK_MAIN
