// Lines, commands and their ends, on a modem of a few lines.

#include "modem/AtDialog.h"
#include "modem/LineReader.h"
#include "sdk/modem/ScriptedChannel.h"
#include "support/Check.h"

using namespace orva;
using scripted::lines;

namespace
{

std::vector<std::string> cut(const std::vector<std::string>& pieces)
{
    LineReader reader;
    std::vector<std::string> out;
    std::string line;
    for (const std::string& piece : pieces) {
        reader.feed(piece);
        while (reader.next(line))
            out.push_back(line);
    }
    return out;
}

struct Talk {
    scripted::Channel channel;
    AtDialog dialog{channel};
    std::vector<std::string> unasked;

    Talk()
    {
        dialog.setUnsolicited([this](const std::string& line) { unasked.push_back(line); });
    }
};

} // namespace

TEST(aLineEndsAtAnyLineEndAndEmptyOnesAreNone)
{
    CHECK(cut({"\r\n+CPBS: \"SM\"\r\n\r\nOK\r\n"}) == (std::vector<std::string>{"+CPBS: \"SM\"", "OK"}));
    CHECK(cut({"a\rb\nc\r\r\nd"}) == (std::vector<std::string>{"a", "b", "c"}));
}

TEST(aLineIsTheSameHoweverItComesInPieces)
{
    const std::string all = "\r\n+CPBR: 1,\"112\",129,\"x\"\r\n\r\nOK\r\n";
    std::vector<std::string> single;
    for (const char c : all)
        single.emplace_back(1, c);
    CHECK(cut(single) == cut({all}));
}

TEST(aLineWithoutEndIsCutOffAndItsRestPassedOver)
{
    const std::vector<std::string> found = cut({std::string(LineReader::longest + 5000, 'x'), "yyy\r\nOK\r\n"});
    REQUIRE(found.size() == 2);
    CHECK_EQ(found[0].size(), LineReader::longest);
    CHECK_EQ(found[1], "OK");
}

TEST(noiseWithoutALineEndDoesNotPileUp)
{
    LineReader reader;
    std::string line;
    for (int i = 0; i < 100; ++i) {
        reader.feed(std::string(4096, 'x'));
        reader.next(line);
        CHECK(reader.size() <= LineReader::longest + 4096);
    }
}

TEST(anAnswerIsItsOwnLinesWithoutTheEcho)
{
    Talk talk;
    talk.channel.answers["AT+CPBS?"] = {"AT+CPBS?\r\r\n+CPBS: \"SM\",5,20\r\n\r\nOK\r\n"};
    const Reply reply = talk.dialog.ask("AT+CPBS?", "+CPBS");
    CHECK(reply.ok());
    CHECK(reply.lines == std::vector<std::string>{"+CPBS: \"SM\",5,20"});
    CHECK(talk.unasked.empty());
}

TEST(whatComesUnaskedBetweenTheLinesIsPassedOn)
{
    Talk talk;
    talk.channel.answers["AT+CPBR=1,2"] = {
        lines({"+CPBR: 1,\"1\",129,\"a\"", "+CMTI: \"SM\",3", "RING", "+CPBR: 2,\"2\",129,\"b\""})};
    const Reply reply = talk.dialog.ask("AT+CPBR=1,2", "+CPBR");
    CHECK_EQ(reply.lines.size(), 2u);
    CHECK(talk.unasked == (std::vector<std::string>{"+CMTI: \"SM\",3", "RING"}));
}

TEST(aLineBreakInANameKeepsItsLineTogether)
{
    Talk talk;
    talk.channel.answers["AT+CPBR=1"] = {"\r\n+CPBR: 1,\"1\",129,\"two\r\nlines\"\r\n\r\nOK\r\n"};
    const Reply reply = talk.dialog.ask("AT+CPBR=1", "+CPBR");
    REQUIRE(reply.lines.size() == 1);
    CHECK_EQ(reply.lines[0], "+CPBR: 1,\"1\",129,\"two\nlines\"");
}

TEST(errorsAreToldByNumberByWordsAndPlain)
{
    Talk talk;
    for (const auto& [text, code] :
         {std::pair("+CME ERROR: 14", cme::cardBusy), std::pair("+CME ERROR:49", 49),
          std::pair("+CME ERROR: SIM not inserted", cme::noCard), std::pair("+CME ERROR: sim busy", cme::cardBusy),
          std::pair("+CME ERROR: what is this", cme::unknown), std::pair("ERROR", cme::none),
          std::pair("COMMAND NOT SUPPORT", cme::none)}) {
        talk.channel.answers["AT+X"] = {lines({}, text)};
        const Reply reply = talk.dialog.ask("AT+X");
        CHECK_EQ(reply.end, Reply::End::Error);
        CHECK_EQ(reply.error, code);
    }
}

TEST(linesBeforeAnErrorAreKept)
{
    Talk talk;
    talk.channel.answers["AT+CPBR=1,9"] = {lines({"+CPBR: 1,\"1\",129,\"a\""}, "+CME ERROR: 21")};
    const Reply reply = talk.dialog.ask("AT+CPBR=1,9", "+CPBR");
    CHECK_EQ(reply.error, cme::badIndex);
    CHECK_EQ(reply.lines.size(), 1u);
}

TEST(aLostEndIsASilenceWithTheLinesThatCame)
{
    Talk talk;
    talk.channel.answers["AT+CPIN?"] = {"\r\n+CPIN: READY\r\n"};
    const Reply reply = talk.dialog.ask("AT+CPIN?", "+CPIN");
    CHECK(reply.silent());
    CHECK_EQ(reply.lines.size(), 1u);
}

TEST(afterASilenceTheNextCommandWaitsForLifeFirst)
{
    Talk talk;
    talk.channel.answers["AT+SLOW"] = {"<silence>"};
    talk.channel.answers["AT+CSCS?"] = {lines({"+CSCS: \"IRA\""})};
    talk.channel.answers["AT+NEXT"] = {lines({"+NEXT: 1"})};
    CHECK(talk.dialog.ask("AT+SLOW").silent());
    CHECK(talk.dialog.ask("AT+NEXT", "+NEXT").ok());
    CHECK_EQ(talk.channel.count("AT"), 1u);
}

TEST(aLateEndIsNotTakenForThatOfTheNextCommand)
{
    Talk talk;
    talk.channel.answers["AT+SLOW"] = {"<silence>"};
    // The end of AT+SLOW comes with that of AT, so that everything is one answer late.
    talk.channel.answers["AT"] = {"\r\n+SLOW: 1\r\n\r\nOK\r\n\r\nOK\r\n"};
    talk.channel.answers["AT+CSCS?"] = {lines({"+CSCS: \"IRA\""})};
    talk.channel.answers["AT+NEXT"] = {lines({"+NEXT: 1"})};
    CHECK(talk.dialog.ask("AT+SLOW", "+SLOW").silent());
    const Reply reply = talk.dialog.ask("AT+NEXT", "+NEXT");
    CHECK(reply.ok());
    CHECK(reply.lines == std::vector<std::string>{"+NEXT: 1"});
}

TEST(aModemThatIsStillAtWhatWasGivenUpIsAskedForLifeAgain)
{
    Talk talk;
    talk.channel.answers["AT+SLOW"] = {"<silence>"};
    // The first OK is the late one, the second one that of the first AT; only the name tells that all of it is through.
    talk.channel.answers["AT"] = {"\r\nOK\r\n", "\r\nOK\r\n\r\nOK\r\n"};
    talk.channel.answers["AT+CSCS?"] = {"<silence>", lines({"+CSCS: \"IRA\""}) + lines({"+CSCS: \"IRA\""})};
    talk.channel.answers["AT+NEXT"] = {lines({"+NEXT: 1"})};
    CHECK(talk.dialog.ask("AT+SLOW", "+SLOW").silent());
    const Reply reply = talk.dialog.ask("AT+NEXT", "+NEXT");
    CHECK(reply.ok());
    CHECK(reply.lines == std::vector<std::string>{"+NEXT: 1"});
    CHECK_EQ(talk.channel.count("AT"), 2u);
}

TEST(anyAnswerToAtIsLife)
{
    Talk talk;
    talk.channel.answers["AT"] = {"<silence>", "<silence>", "\r\nERROR\r\n"};
    CHECK(talk.dialog.recover(3));
    talk.channel.answers["AT"] = {"<silence>"};
    CHECK(!talk.dialog.recover(2));
    talk.channel.answers["AT"] = {"0\r"};
    CHECK(talk.dialog.recover(1));
}

TEST(aDeadModemGivesSilenceAndTakesNoCommand)
{
    Talk talk;
    talk.channel.answers["AT"] = {"<silence>"};
    talk.channel.answers["AT+ONE"] = {"<silence>"};
    CHECK(talk.dialog.ask("AT+ONE").silent());
    CHECK(talk.dialog.ask("AT+TWO").silent());
    CHECK_EQ(talk.channel.count("AT+TWO"), 0u);
}

TEST(aPortThatGoesInTheMiddleOfAnAnswerIsAFailure)
{
    Talk talk;
    talk.channel.answers["AT+CPBR=1,9"] = {"<gone>"};
    long code = 0;
    try {
        talk.dialog.ask("AT+CPBR=1,9", "+CPBR");
    } catch (const Failure& failure) {
        code = failure.code();
    }
    CHECK_EQ(code, ORVA_E_ABSENT);
}

TEST(whatComesWhileNothingRunsIsPassedOnBeforeTheNextCommand)
{
    Talk talk;
    talk.channel.push("\r\n+CPIN: NOT READY\r\n");
    talk.channel.answers["AT+X"] = {lines({"+X: 1"})};
    CHECK_EQ(talk.dialog.ask("AT+X", "+X").lines.size(), 1u);
    CHECK(talk.unasked == std::vector<std::string>{"+CPIN: NOT READY"});
}

CHECK_MAIN
