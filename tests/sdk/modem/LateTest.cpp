// A modem that is slow or keeps silent, on a modem of a few lines: no answer is the answer to nothing, and one that
// comes late is not that of the next command.

#include <set>

#include "base/Text.h"
#include "modem/AtPhonebook.h"
#include "sdk/modem/ScriptedChannel.h"
#include "support/Check.h"

using namespace orva;
using scripted::lines;

namespace
{

long codeOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.code();
    }
    return ORVA_OK;
}

std::string after(int milliseconds, const std::string& answer)
{
    return "<after " + std::to_string(milliseconds) + ">" + answer;
}

// Two entries on a card, in a character set that is not the modem's own.
struct Book {
    scripted::Channel channel;
    AtDialog dialog{channel};
    AtPhonebook book{dialog};

    Book()
    {
        channel.answers["AT+CMEE=1"] = channel.answers["ATE0"] = channel.answers["ATV1"] = {scripted::ok()};
        channel.answers["AT+CPIN?"] = {lines({"+CPIN: READY"})};
        channel.answers["AT+CRSM=176,12258,0,0,10"] = {lines({"+CRSM: 144,0,\"98940200002143658709\""})};
        channel.answers["AT+CRSM=192,28474"] = {lines({"+CRSM: 144,0,\"62088202442100260000\""})};
        channel.answers["AT+CGSN"] = {lines({"350000000000006"})};
        channel.answers["AT+CSCS=?"] = {lines({"+CSCS: (\"IRA\",\"GSM\",\"UTF-8\")"})};
        channel.answers["AT+CSCS=\"UTF-8\""] = {scripted::ok()};
        channel.answers["AT+CSCS?"] = {lines({"+CSCS: \"UTF-8\""})};
        channel.answers["AT+CPBS=\"SM\""] = {scripted::ok()};
        channel.answers["AT+CPBS=\"SM\";+CPBS=\"SM\""] = {scripted::ok()};
        channel.answers[in("+CPBR=?")] = {lines({"+CPBR: (1-3)"})};
        channel.answers[in("+CPBS?")] = {lines({"+CPBS: \"SM\",2,3"})};
        channel.answers[in("+CPBR=1,3")] = {
            lines({"+CPBR: 1,\"101\",129,\"Zo\xC3\xAB\"", "+CPBR: 3,\"103\",129,\"Anna\""})};
    }

    static std::string in(const std::string& command) { return "AT+CPBS=\"SM\";" + command; }

    void silence(const std::string& command, int times)
    {
        std::deque<std::string>& all = channel.answers[command];
        all.insert(all.begin(), static_cast<std::size_t>(times), "<silence>");
    }

    // All that a session learns, as a text; what it throws passes.
    std::string learn()
    {
        std::string text = "card " + std::to_string(static_cast<int>(book.cardState()));
        text += " " + book.cardIdentity() + " " + book.modemIdentity();
        const PhonebookStorage storage = book.open("SM");
        text += " " + std::to_string(storage.used) + "/" + std::to_string(storage.capacity) + " name " +
                std::to_string(storage.alphaLength);
        for (const PhonebookEntry& entry : book.readAll(storage))
            text += "\n" + std::to_string(entry.location) + " " + entry.number + " " + toUtf8(entry.alpha);
        return text;
    }
};

} // namespace

// ---- Late answers

TEST(answersThatAreEachALittleLateAreNotTakenForThoseOfTheNextCommand)
{
    scripted::Channel channel;
    AtDialog dialog(channel);
    channel.answers["AT+SLOW"] = {after(4000, "\r\nERROR\r\n")};
    channel.answers["AT"] = {after(400, scripted::ok())};
    channel.answers["AT+CSCS?"] = {after(400, lines({"+CSCS: \"IRA\""}))};
    channel.answers["AT+NEXT"] = {after(400, lines({"+NEXT: 1"}))};
    CHECK(dialog.ask("AT+SLOW", "+SLOW").silent());
    const Reply reply = dialog.ask("AT+NEXT", "+NEXT");
    CHECK(reply.ok());
    CHECK(reply.lines == std::vector<std::string>{"+NEXT: 1"});
}

TEST(aLateErrorIsNoRefusalOfTheQuestionWithAName)
{
    scripted::Channel channel;
    AtDialog dialog(channel);
    // To this modem AT alone is an error as well, so that two of them come before the answer with a name.
    channel.answers["AT+SLOW"] = {after(3500, "\r\nERROR\r\n")};
    channel.answers["AT"] = {after(300, "\r\nERROR\r\n")};
    channel.answers["AT+CSCS?"] = {after(500, lines({"+CSCS: \"IRA\""}))};
    channel.answers["AT+NEXT"] = {"\r\nERROR\r\n"};
    CHECK(dialog.ask("AT+SLOW", "+SLOW").silent());
    const Reply reply = dialog.ask("AT+NEXT", "+NEXT");
    CHECK_EQ(reply.end, Reply::End::Error);
}

TEST(theNamesOfAllAttemptsAreWaitedFor)
{
    scripted::Channel channel;
    AtDialog dialog(channel);
    // The first question with a name is answered in the second attempt, and the second one a moment later.
    channel.answers["AT+SLOW"] = {after(3100, scripted::ok())};
    channel.answers["AT"] = {after(1600, scripted::ok()), after(100, scripted::ok())};
    channel.answers["AT+CSCS?"] = {after(1000, lines({"+CSCS: \"IRA\""}))};
    channel.answers["AT+NEXT"] = {"\r\n+CME ERROR: 16\r\n"};
    CHECK(dialog.ask("AT+SLOW", "+SLOW").silent());
    CHECK_EQ(dialog.ask("AT+NEXT", "+NEXT").error, cme::wrongPassword);
}

TEST(aModemThatOwnsNoQuestionWithANameIsAskedOn)
{
    scripted::Channel channel;
    AtDialog dialog(channel);
    channel.answers["AT+SLOW"] = {"<silence>"};
    channel.answers["AT+CSCS?"] = {"\r\nERROR\r\n"};
    channel.answers["AT+NEXT"] = {lines({"+NEXT: 1"})};
    CHECK(dialog.ask("AT+SLOW", "+SLOW").silent());
    CHECK(dialog.ask("AT+NEXT", "+NEXT").ok());
    CHECK_EQ(channel.count("AT"), 1u);
}

// ---- Silence

TEST(aStorageThatIsChosenInSilenceIsBusyAndThereLater)
{
    for (const std::string& command : {std::string("AT+CPBS=\"SM\""), Book::in("+CPBS=\"SM\""), Book::in("+CPBR=?")}) {
        Book silent;
        silent.silence(command, 2);
        REQUIRE(silent.book.start());
        check::equal(codeOf([&] { silent.book.open("SM"); }), long{ORVA_E_BUSY}, command.c_str(), __FILE__, __LINE__);
        check::equal(codeOf([&] { silent.book.open("SM"); }), long{ORVA_OK}, command.c_str(), __FILE__, __LINE__);
    }
}

TEST(aStorageThatIsRefusedIsNone)
{
    Book refused;
    refused.channel.answers["AT+CPBS=\"SM\""] = {"\r\n+CME ERROR: 22\r\n"};
    REQUIRE(refused.book.start());
    CHECK_EQ(codeOf([&] { refused.book.open("SM"); }), ORVA_E_UNSUPPORTED);
}

TEST(noSingleSilenceChangesWhatIsLearnt)
{
    Book quick;
    REQUIRE(quick.book.start());
    const std::string wanted = quick.learn();
    CHECK(wanted.find("Anna") != std::string::npos);
    const std::set<std::string> questions(quick.channel.commands.begin(), quick.channel.commands.end());
    CHECK(questions.size() > 12);
    for (const std::string& question : questions) {
        for (const int times : {1, 2, 3}) {
            // What AT keeps silent about is no modem, and what can be done without is given up after the second time.
            const bool spared = question == "AT" || question == "AT+CPIN?" || question == Book::in("+CPBS?");
            if (spared && times > 1)
                continue;
            Book silent;
            silent.silence(question, times);
            if (!silent.book.start())
                continue;
            std::string learnt = "nothing";
            long code = ORVA_E_BUSY;
            for (int attempt = 0; attempt < 3 && code == ORVA_E_BUSY; ++attempt)
                code = codeOf([&] { learnt = silent.learn(); });
            const std::string where = question + ", " + std::to_string(times);
            check::equal(code, long{ORVA_OK}, where.c_str(), __FILE__, __LINE__);
            check::equal(learnt, question == "AT+CPIN?" ? learnt : wanted, where.c_str(), __FILE__, __LINE__);
        }
    }
}

TEST(aQuestionThatIsNeverAnsweredIsGoneOnWithout)
{
    for (const std::string& question :
         {std::string("AT+CRSM=176,12258,0,0,10"), std::string("AT+CGSN"), std::string("AT+CRSM=192,28474"),
          Book::in("+CPBS?"), Book::in("+CPBS=\"SM\""), std::string("AT+CSCS?")}) {
        Book mute;
        mute.channel.answers[question] = {"<silence>"};
        mute.channel.answers[std::string("AT+CPBR=?")] = mute.channel.answers[Book::in("+CPBR=?")];
        mute.channel.answers[std::string("AT+CPBS?")] = mute.channel.answers[Book::in("+CPBS?")];
        mute.channel.answers[std::string("AT+CPBR=1,3")] = mute.channel.answers[Book::in("+CPBR=1,3")];
        REQUIRE(mute.book.start());
        std::string learnt;
        for (int attempt = 0; attempt < 4 && learnt.empty(); ++attempt)
            codeOf([&] { learnt = mute.learn(); });
        if (!check::equal(learnt.find("Anna") != std::string::npos, true, question.c_str(), __FILE__, __LINE__))
            std::printf("%s\n", learnt.c_str());
    }
}

TEST(anErrorWithoutACodeTellsNothingWhileTheRequestForCodesIsLost)
{
    Book lost;
    lost.silence("AT+CMEE=1", 5);
    lost.channel.answers["AT+CPIN?"] = {"\r\nERROR\r\n", "\r\nERROR\r\n", "\r\n+CME ERROR: 10\r\n"};
    REQUIRE(lost.book.start());
    CHECK_EQ(lost.book.cardState(), CardState::Silent);
    CHECK_EQ(lost.book.cardState(), CardState::Absent);
}

TEST(aRequestForCodesIsMadeUntilTheModemHasHeardIt)
{
    Book lost;
    lost.silence("AT+CMEE=1", 2);
    REQUIRE(lost.book.start());
    CHECK_EQ(lost.channel.count("AT+CMEE=1"), 2u);
    for (int look = 0; look < 3; ++look)
        CHECK_EQ(lost.book.cardState(), CardState::Ready);
    CHECK_EQ(lost.channel.count("AT+CMEE=1"), 3u);
}

TEST(anOkWithoutTheStateOfTheCardIsNone)
{
    Book lost;
    lost.channel.answers["AT+CPIN?"] = {scripted::ok(), lines({"+CPIN: SIM PIN"})};
    REQUIRE(lost.book.start());
    CHECK_EQ(lost.book.cardState(), CardState::PinNeeded);
}

TEST(aCardIsNotReadInAnotherCharacterSetThanItsOwn)
{
    Book slow;
    REQUIRE(slow.book.start());
    slow.channel.answers["AT+CSCS?"] = {lines({"+CSCS: \"GSM\""}), lines({"+CSCS: \"UTF-8\""})};
    slow.channel.answers["AT+CSCS=\"GSM\""] = {scripted::ok()};
    const PhonebookStorage storage = slow.book.open("SM");
    slow.book.finish();
    slow.channel.answers["AT+CSCS?"] = {lines({"+CSCS: \"GSM\""})};
    slow.channel.answers["AT+CSCS=\"UTF-8\""] = {"\r\nERROR\r\n"};
    CHECK_EQ(codeOf([&] { slow.book.readAll(storage); }), ORVA_E_BUSY);
}

CHECK_MAIN
