// Files as telephones and programs write them: each card has a row a property in the reference beside it.

#include <filesystem>
#include <set>

#include "Dump.h"
#include "support/Check.h"
#include "vcard/CardWriter.h"

using namespace orva;

namespace
{

std::set<std::filesystem::path> files()
{
    std::set<std::filesystem::path> out;
    const std::string folder = std::string(std::getenv("LINKHAND_SOURCE_DIR")) + "/tests/sdk/vcard/cards";
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".vcf")
            out.insert(entry.path());
    return out;
}

} // namespace

TEST(cardsOfTelephonesAndProgramsReadAsTheirReferences)
{
    REQUIRE(files().size() >= 8);
    for (std::filesystem::path path : files()) {
        std::ifstream in(path, std::ios::binary);
        const std::string read = dump::cards(in, [&path](const Finding& finding) {
            check::report(path.filename().c_str(), finding.line, findingText(finding.reason));
        });
        const std::string expected = dump::contentOf(path.replace_extension(".txt"));
        CHECK(!expected.empty());
        CHECK_EQ(read, expected);
    }
}

TEST(cardsThatWereNotChangedAreWrittenOctetForOctet)
{
    for (const std::filesystem::path& path : files()) {
        std::ifstream in(path, std::ios::binary);
        CardReader reader(in, CardReport());
        std::string written;
        Card card;
        while (reader.next(card))
            appendCard(card, written);
        CHECK_EQ(written, dump::contentOf(path));
    }
}

TEST(onlyTheChangedPropertyIsWrittenAnew)
{
    for (const std::filesystem::path& path : files()) {
        std::ifstream in(path, std::ios::binary);
        CardReader reader(in, CardReport());
        Card card;
        REQUIRE(reader.next(card));
        std::string expected = card.begin;
        for (CardProperty& property : card.properties) {
            if (property.is("N")) {
                setCardComponents(property, {"New", "Name"}, card.version);
                CHECK(property.octets().empty());
                const bool language = property.parameter("LANGUAGE") != nullptr;
                expected += (language ? "N;LANGUAGE=de:New;Name" : "N:New;Name") + card.lineEnd;
            } else {
                expected += property.octets();
            }
        }
        std::string written;
        appendCard(card, written);
        CHECK_EQ(written, expected + card.end);
    }
}

CHECK_MAIN
