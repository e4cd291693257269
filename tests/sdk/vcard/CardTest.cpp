// One card: its lines, parameters and texts, in and out.

#include <algorithm>

#include "support/Check.h"
#include "vcard/CardLines.h"
#include "vcard/CardText.h"
#include "vcard/CardWriter.h"

using namespace orva;

namespace
{

// The text of the only property of a card.
std::string textOf(const std::string& line, const std::string& version = "3.0")
{
    const Card card = parseCard("VERSION:" + version + "\n" + line);
    return card.properties.size() == 2 ? cardText(card.properties[1], card.version) : "not one property";
}

std::string written(const Card& card)
{
    std::string out;
    appendCard(card, out);
    return out;
}

} // namespace

TEST(foldedLinesAreJoined)
{
    CHECK_EQ(textOf("NOTE:one\r\n two\r\n\tthree\r\n"), "onetwothree");
    CHECK_EQ(textOf("NO\n TE;TYPE=\n x:a\n"), "a");
    CHECK_EQ(textOf("NOTE:one\n  two"), "one two");
    CHECK_EQ(textOf("NOTE:one\n two", "2.1"), "one two"); // the blank is part of the text there
    CHECK_EQ(textOf("NOTE;QUOTED-PRINTABLE:one=20=\ntwo= \n=\nthree", "2.1"), "one twothree");
    CHECK_EQ(textOf("NOTE;ENCODING=QUOTED-PRINTABLE:1=0D=0A2=3d=3x=", "2.1"), "1\n2==3x=");
}

TEST(base64StaysAsItIsWritten)
{
    const std::string photo = "PHOTO;ENCODING=BASE64;JPEG:AAAA\r\nBBBB==\r\n CC\r\n\r\nTEL:1\r\n";
    const Card card = parseCard("VERSION:2.1\r\n" + photo);
    REQUIRE(card.properties.size() == 3);
    CHECK_EQ(card.properties[1].value(), "AAAABBBB==CC");
    CHECK(card.properties[1].encoding() == CardEncoding::Base64);
    CHECK_EQ(card.properties[1].octets() + card.properties[2].octets(), photo);
    CHECK(parseCard("PHOTO;ENCODING=b:AA").properties[0].encoding() == CardEncoding::Base64);
    CHECK(parseCard("PHOTO;B:AA").properties[0].encoding() == CardEncoding::None);
}

TEST(parametersAreReadInAllTheirForms)
{
    for (const char* line : {"TEL;CELL;VOICE:1", "tel;type=cell,voice:1", "TEL;TYPE=cell;TYPE=voice:1",
                             "item1.TEL;TYPE=\"voice,cell\":1", "TEL;VALUE=\"a:b;c\";TYPE=CELL;VOICE:1"}) {
        const Card card = parseCard(line);
        REQUIRE(card.properties.size() == 1);
        CHECK(card.properties[0].is("Tel"));
        CHECK(card.properties[0].hasType("CELL"));
        CHECK(card.properties[0].hasType("voice"));
        CHECK(!card.properties[0].hasType("WORK"));
        CHECK_EQ(card.properties[0].value(), "1");
    }
    const Card card = parseCard("g.X;A=\"x^ny^^^'\";A=2;B:v");
    CHECK_EQ(card.properties[0].group(), "g");
    CHECK_EQ(card.properties[0].parameter("a")->values[0], "x\ny^\"");
    CHECK(card.properties[0].parameter("B") == nullptr);
    CHECK_EQ(card.properties[0].parameters()[2].values[0], "B");
}

TEST(escapesAreThoseOfTheVersion)
{
    CHECK_EQ(textOf("NOTE:a\\,b\\;c\\\\d\\ne\\Nf\\:g\\xh\\"), "a,b;c\\d\ne\nf:g\\xh\\");
    CHECK_EQ(textOf("NOTE:C:\\new\\;x", "2.1"), "C:\\new;x");
    const Card card = parseCard("N:a\\;b,c;d\\,e;;f");
    const auto parts = cardComponents(card.properties[0], CardVersion::V40);
    REQUIRE(parts.size() == 4);
    CHECK_EQ(parts[0].size(), 2U);
    CHECK_EQ(parts[0][0], "a;b");
    CHECK_EQ(parts[1][0], "d,e");
    CHECK_EQ(parts[2][0], "");
    CHECK_EQ(cardComponents(card.properties[0], CardVersion::V21)[0][0], "a;b,c");
    CHECK_EQ(cardList(parseCard("CATEGORIES:a,b\\,c").properties[0], CardVersion::V21)[1], "b,c");
}

TEST(charsetsFallBackToWhatFits)
{
    CHECK_EQ(textOf("NOTE;CHARSET=ISO-8859-15:\xA4\xFC", "2.1"), "€ü");
    CHECK_EQ(textOf("NOTE;CHARSET=SHIFT_JIS;QUOTED-PRINTABLE:=95=5C", "2.1"), "表"); // its second octet is a backslash
    CHECK_EQ(textOf("NOTE:M\xFCller \x80", "2.1"), "Müller €");
    CHECK_EQ(textOf("NOTE:M\xC3\xBCller", "2.1"), "Müller");
    CHECK_EQ(textOf("NOTE;CHARSET=no-such//TRANSLIT:\xC3\xBC", "2.1"), "ü");
    CHECK_EQ(textOf("NOTE;CHARSET=US-ASCII:\xC3\xBC", "2.1"), "ü");
    CHECK_EQ(textOf("NOTE;QUOTED-PRINTABLE:a=00b=81", "2.1"), "a\xEF\xBF\xBD"
                                                              "b\xC2\x81");
}

TEST(linesThatAreNoPropertyAreToldAndKept)
{
    const std::string text = "BEGIN:VCARD\nFN:a\nno colon\n:\nX Y:1\nA=B;\"x:1\nTEL:2\nEND:VCARD\n";
    std::string told;
    const Card card =
        parseCard(text, 11, [&told](const Finding& finding) { told += std::to_string(finding.line) + " "; });
    CHECK_EQ(told, "13 14 15 16 ");
    CHECK_EQ(card.properties.size(), 6U);
    CHECK(!card.properties[1].readable());
    CHECK_EQ(card.properties[1].value(), "no colon");
    CHECK_EQ(card.find("TEL")->line(), 17);
    CHECK_EQ(written(card), text);
}

TEST(newLinesAreFoldedBetweenCharacters)
{
    Card card = Card::empty(CardVersion::V40);
    card.properties.emplace_back("NOTE");
    std::string note(69, 'a');
    for (int i = 0; i < 40; ++i)
        note += "ü";
    setCardText(card.properties.back(), note, card.version);
    const std::string out = written(card);
    CHECK_EQ(out.substr(0, 37), "BEGIN:VCARD\r\nVERSION:4.0\r\nNOTE:" + note.substr(0, 6));
    CHECK(out.find("a\r\n ü") != std::string::npos);
    std::size_t longest = 0;
    for (std::size_t at = 0, end = 0; (end = out.find("\r\n", at)) != std::string::npos; at = end + 2)
        longest = std::max(longest, end - at);
    CHECK(longest == 74 || longest == 75);
    CHECK_EQ(cardText(parseCard(out).properties[1], CardVersion::V40), note);
}

TEST(textsSurviveWritingInEachVersion)
{
    for (const CardVersion version : {CardVersion::V21, CardVersion::V30, CardVersion::V40}) {
        for (const std::string text :
             {"", " ", "a;b,c\\d", "x\ny", "é=\n=", "END:VCARD", "\nEND:VCARD\n", "\\n", "tail\\"}) {
            Card card = Card::empty(version);
            card.properties.emplace_back("NOTE", "g");
            card.properties.back().setParameters({{"", {"BASE64"}}, {"X-P", {"a,b", "c\"d"}}});
            setCardText(card.properties.back(), text, version);
            card.properties.emplace_back("N");
            setCardComponents(card.properties.back(), {text, "y" + text + "z"}, version);
            const Card read = parseCard(written(card));
            REQUIRE(read.properties.size() == 3);
            CHECK(read.version == version);
            CHECK_EQ(cardText(read.properties[1], version), text);
            const auto parts = cardComponents(read.properties[2], version);
            REQUIRE(parts.size() == 2 && parts[1].size() == 1);
            CHECK_EQ(parts[0][0], text);
            CHECK_EQ(parts[1][0], "y" + text + "z");
            if (version != CardVersion::V21)
                CHECK(*read.properties[1].parameter("X-P") == *card.properties[1].parameter("X-P"));
        }
    }
}

TEST(aLineEndWithinATextEndsNoCard)
{
    for (const CardVersion version : {CardVersion::V21, CardVersion::V30, CardVersion::V40}) {
        for (std::size_t before = 0; before < 160; ++before) {
            for (const char* line : {"END:VCARD", "BEGIN:VCARD"}) {
                const std::string text = std::string(before, 'x') + line;
                Card card = Card::empty(version);
                card.properties.emplace_back("NOTE");
                setCardText(card.properties.back(), text, version);
                const Card read = parseCard(written(card));
                REQUIRE(read.properties.size() == 2);
                CHECK_EQ(cardText(read.properties[1], version), text);
            }
        }
    }
}

TEST(aChangeForgetsTheOctets)
{
    Card card = parseCard("TEL;CELL:1\nTEL;CELL:2\n");
    REQUIRE(card.properties.size() == 2);
    card.properties[0].setValue("3");
    card.properties[1].setParameters({});
    CHECK_EQ(written(card), "BEGIN:VCARD\nTEL;CELL:3\nTEL:2\nEND:VCARD\n");
}

TEST(aValueNeverBeginsALineOfItsOwn)
{
    for (const CardVersion version : {CardVersion::V21, CardVersion::V30}) {
        Card card = Card::empty(version);
        card.properties.emplace_back("X-RAW");
        card.properties.back().setParameters({{"P", {"a\nEND:VCARD"}}});
        card.properties.back().setValue("a\r\nEND:VCARD\r\nb");
        CHECK_EQ(parseCard(written(card)).properties.size(), 2U);
    }
}

TEST(noLineIsLongerThanReadersTake)
{
    Card card = Card::empty(CardVersion::V40);
    card.properties.emplace_back("NOTE");
    setCardText(card.properties.back(), std::string(400, 'x'), card.version);
    const std::string out = written(card);
    std::size_t begin = 0;
    std::size_t longest = 0;
    for (std::size_t end = out.find("\r\n"); end != std::string::npos; end = out.find("\r\n", begin)) {
        longest = std::max(longest, end - begin);
        begin = end + 2;
    }
    CHECK_EQ(longest, std::size_t(75));
}

TEST(aLineEndSetInAValueIsReadBack)
{
    Card card = Card::empty(CardVersion::V30);
    card.properties.emplace_back("NOTE");
    card.properties.back().setValue("one\ntwo");
    CHECK_EQ(textOf(written(card).substr(written(card).find("NOTE"))), "one\ntwo");
}

CHECK_MAIN
