// Files of many cards, sound and damaged.

#include <sstream>

#include "support/Check.h"
#include "vcard/CardReader.h"
#include "vcard/CardWriter.h"

using namespace orva;

namespace
{

// The FN of each card, and the line of each report as "!line".
std::string readAll(const std::string& text, const CardLimits& limits = CardLimits(), std::string* why = nullptr)
{
    std::istringstream in(text);
    std::string out;
    CardReader reader(
        in,
        [&out, why](const Finding& finding) {
            out += "!" + std::to_string(finding.line) + " ";
            if (why != nullptr)
                *why = findingText(finding.reason);
        },
        limits);
    Card card;
    while (reader.next(card)) {
        const CardProperty* name = card.find("FN");
        out += (name != nullptr ? name->value() : "-") + std::to_string(card.line) + " ";
    }
    return out;
}

std::string cardNamed(const std::string& name, const std::string& more = std::string())
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\n" + more + "END:VCARD\r\n";
}

} // namespace

TEST(manyCardsOfOneFileAreRead)
{
    CHECK_EQ(readAll(cardNamed("a") + cardNamed("b") + "\r\n \n" + cardNamed("c")), "a1 b5 c11 ");
    CHECK_EQ(readAll("\xEF\xBB\xBF"
                     "begin:vcard\nfn:a\nend:vcard"),
             "a1 ");
    std::string many;
    for (int i = 0; i < 3000; ++i) // far more than is read at once
        many += cardNamed("x", "NOTE:" + std::string(50, 'n') + "\n");
    const std::string read = readAll(many);
    CHECK_EQ(read.substr(read.size() - 7), "x14996 ");
}

TEST(damagedCardsAreToldAndCostNoOther)
{
    const std::string open = "BEGIN:VCARD\nFN:open\n";
    CHECK_EQ(readAll(open + cardNamed("b")), "!1 b3 ");
    CHECK_EQ(readAll(open + cardNamed("b") + "END:VCARD\n"), "!1 b3 !7 ");
    CHECK_EQ(readAll(cardNamed("a") + open), "a1 !5 ");
    CHECK_EQ(readAll("junk\nmore\n" + cardNamed("a") + "END:VCARD\n" + cardNamed("b")), "!1 a3 !7 b8 ");
    CHECK_EQ(readAll(cardNamed("a", "broken\r\n") + cardNamed("b")), "!4 a1 b6 ");
    CHECK_EQ(readAll("BEGIN:VCARD\nVERSION:9\nFN:a\nEND:VCARD\n"), "!2 a1 ");
}

TEST(filesWithoutACardSaySo)
{
    std::string why;
    CHECK_EQ(readAll("", CardLimits(), &why), "!1 ");
    CHECK_EQ(why, "file holds no vCard");
    CHECK_EQ(readAll("\xFF\xFE"
                     "B\0E\0",
                     CardLimits(), &why),
             "!1 ");
    CHECK_EQ(why, "file is in UTF-16, in which no vCard is written");
}

TEST(cardsInsideCardsBelongToTheirProperty)
{
    const std::string text =
        "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:outer\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:inner\r\nEND:VCARD\r\n"
        "TEL:1\r\nEND:VCARD\r\n";
    CHECK_EQ(readAll(text + cardNamed("b")), "outer1 b10 ");
    std::istringstream in(text);
    CardReader reader(in, CardReport());
    Card card;
    REQUIRE(reader.next(card));
    CHECK_EQ(card.properties.size(), 4U);
    CHECK_EQ(card.find("AGENT")->value(), "BEGIN:VCARD\nFN:inner\nEND:VCARD\n");
    std::string written;
    appendCard(card, written);
    CHECK_EQ(written, text);
    // Only that property has one; any other card before the end was left open.
    const std::string other = "BEGIN:VCARD\nFN:a\nAGENTS:\nBEGIN:VCARD\nFN:b\nEND:VCARD\nEND:VCARD\n";
    CHECK_EQ(readAll(other), "!1 b4 !7 ");
    // An agent that was cut off swallows nothing.
    const std::string cut = "BEGIN:VCARD\nFN:cut\nAGENT:\n";
    CHECK_EQ(readAll(cut + cardNamed("b")), "!1 b4 ");
    CHECK_EQ(readAll(cut + cardNamed("b") + cardNamed("c")), "!1 b4 c8 ");
}

TEST(cardsBeyondTheLimitsAreLeftOutWithAReason)
{
    CardLimits limits;
    limits.octets = 1000;
    limits.properties = 20;
    std::string why;
    const std::string line(2000, 'x');
    CHECK_EQ(readAll(cardNamed("a") + cardNamed("b", "NOTE:" + line + "\n") + cardNamed("c"), limits, &why),
             "a1 !5 c10 ");
    CHECK_EQ(why, "card is larger than 5 MB and was left out");
    std::string lines;
    for (int i = 0; i < 40; ++i)
        lines += "N:" + std::string(50, 'x') + "\n";
    CHECK_EQ(readAll(cardNamed("a", lines) + cardNamed("c"), limits, &why), "!1 c45 ");
    CHECK_EQ(why, "card is larger than 5 MB and was left out");
    lines.clear();
    for (int i = 0; i < 40; ++i)
        lines += "N:x\n";
    CHECK_EQ(readAll(cardNamed("a", lines) + cardNamed("c"), limits, &why), "!1 c45 ");
    CHECK_EQ(why, "card has too many lines and was left out");
}

TEST(aCardOfMoreThanFiveMegabytesIsRefused)
{
    const std::string below(5000000, 'A');
    const std::string beyond(5U << 20, 'A');
    CHECK_EQ(readAll(cardNamed("a", "PHOTO;ENCODING=b:" + below + "\r\n") + cardNamed("b")), "a1 b6 ");
    CHECK_EQ(readAll(cardNamed("a", "PHOTO;ENCODING=b:" + beyond + "\r\n") + cardNamed("b")), "!1 b6 ");
    CHECK_EQ(readAll(std::string(20U << 20, 'j') + "\n" + cardNamed("b")), "!1 b2 ");
}
