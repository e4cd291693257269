// A modem that stores at another location than it was told: the neighbour gets back what it had, and no further write
// reaches the modem.

#include <fstream>
#include <iterator>

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Modem;

namespace
{

int idAt(Library& library, std::size_t row)
{
    RowBlock block;
    library.card.read(1, library.card.extent().last, 10000, block);
    return block.id(row);
}

using Change = std::function<void(Library&)>;

// The change fails, nothing differs from before, and the next one does not reach the modem.
void refused(const char* quirk, const char* what, const Change& change)
{
    const Place place;
    Modem modem(place.plan());
    modem.putEntry("SM", {4, "4444", "Four", ""});
    Library library(place);
    REQUIRE(library.ready());
    const std::string before = told(modem);
    const std::string rows = library.rows(library.card);
    modem.setQuirk(quirk);
    check::equal(codeOf([&] { change(library); }), static_cast<long>(ORVA_E_UNSUPPORTED), what, __FILE__, __LINE__);
    check::equal(told(modem), before, what, __FILE__, __LINE__);
    check::equal(library.rows(library.card), rows, what, __FILE__, __LINE__);
    CHECK(library.hardware.state().problem().find("other locations") != std::string::npos);
    const int written = modem.commands("AT+CPBW");
    CHECK_EQ(codeOf([&] { change(library); }), ORVA_E_UNSUPPORTED);
    CHECK_EQ(modem.commands("AT+CPBW"), written);
}

} // namespace

TEST(theNeighbourOfAnUpdateGetsBackWhatItHad)
{
    for (const char* const quirk : {"write_other", "write_other=all"}) {
        // Rows: locations 1, 2, 4, 5, 7, 20. The neighbours of 2 and 7 are empty, that of 20 is the first.
        for (std::size_t row = 0; row < 6; ++row) {
            const std::string what = std::string(quirk) + ", update of row " + std::to_string(row);
            refused(quirk, what.c_str(),
                    [&](Library& library) { library.card.update(idAt(library, row), values("Berta", "22")); });
        }
    }
}

TEST(anUpdateThatChangesNothingIsNoticedAsWell)
{
    for (const char* const quirk : {"write_other", "write_other=all"})
        refused(quirk, quirk,
                [&](Library& library) { library.card.update(idAt(library, 0), values("Anna", "+491711234567")); });
}

TEST(theNeighbourOfADeletedEntryComesBack)
{
    for (const std::size_t row : {std::size_t(0), std::size_t(2), std::size_t(5)})
        refused("write_other=all", "delete", [&](Library& library) { library.card.erase(idAt(library, row)); });
}

TEST(anAddedEntryIsTakenBack)
{
    for (const char* const quirk : {"write_other", "write_other=all"})
        refused(quirk, quirk, [&](Library& library) { library.card.add(values("new", "1")); });
}

TEST(aCopyIsNotPutBackThroughSuchAModem)
{
    refused("write_other", "restore", [&](Library& library) {
        const std::string file = library.hardware.choice() + "-copy";
        if (!std::filesystem::exists(file)) {
            library.card.backup(file);
            std::ifstream in(file);
            std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
            const std::size_t at = text.find("Anna");
            REQUIRE(at != std::string::npos);
            std::ofstream(file, std::ios::trunc) << text.replace(at, 4, "Else");
        }
        library.card.restore(file);
    });
}

TEST(aModemThatObeysIsLookedAtOnce)
{
    Plugged f;
    const auto listings = [&] { return f.modem.commands("AT+CPBR=1,20"); };
    f.library.card.begin();
    f.library.card.add(values("first", "1"));
    const int after = listings();
    f.library.card.add(values("second", "2"));
    f.library.card.end();
    CHECK_EQ(listings(), after);
    CHECK_EQ(f.library.hardware.state().problem(), "");
}

CHECK_MAIN
