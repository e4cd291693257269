// Any file, read as vCards and written again. The last octet chooses how narrow the limits are.

#include <sstream>

#include "Scratch.h"
#include "base/Unicode.h"
#include "vcard/CardReader.h"
#include "vcard/CardText.h"
#include "vcard/CardWriter.h"

using namespace orva;

namespace
{

void mustBeText(const std::string& text)
{
    std::u16string out;
    MUST(appendUtf16(text, out));
}

// What is read of a text that has been set.
void setAndReadAgain(const Card& card, const std::string& text)
{
    Card made = Card::empty(card.version);
    made.properties.emplace_back("NOTE");
    setCardText(made.properties.back(), text, made.version);
    std::string written;
    appendCard(made, written);
    const Card read = parseCard(written);
    MUST(read.properties.size() == 2 && !read.end.empty());
    std::string expected;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != '\r')
            expected.push_back(text[i]);
    std::string got;
    for (const char c : cardText(read.properties[1], read.version))
        if (c != '\r')
            got.push_back(c);
    MUST(got == expected);
}

void check(const Card& card)
{
    std::string written;
    appendCard(card, written);
    std::istringstream in(written);
    CardReader reader(in, CardReport());
    Card again;
    MUST(reader.next(again));
    MUST(again.properties.size() == card.properties.size());
    std::string rewritten;
    appendCard(again, rewritten);
    MUST(rewritten == written);
    for (const CardProperty& property : card.properties) {
        const std::string text = cardText(property, card.version);
        mustBeText(text);
        for (const auto& component : cardComponents(property, card.version))
            for (const std::string& value : component)
                mustBeText(value);
        MUST(!cardList(property, card.version).empty());
        if (text.size() < 4096)
            setAndReadAgain(card, text);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    CardLimits limits;
    if (data[size - 1] % 2 == 1) {
        limits.octets = 16U + data[size - 1];
        limits.properties = 5;
    }
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size - 1));
    CardReader reader(
        in, [](const Finding& finding) { MUST(finding.line > 0 && finding.reason > 0); }, limits);
    Card card;
    int line = 0;
    bool any = false;
    while (reader.next(card)) {
        MUST(card.line > line);
        line = card.line;
        any = true;
        MUST(card.properties.size() <= limits.properties);
        check(card);
    }
    MUST(any || !reader.next(card));
    return 0;
}
