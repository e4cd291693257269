// Writing to a card through the library's memory: what returned is on the card, what failed has changed nothing, and
// what others do meanwhile is noticed.

#include <sys/stat.h>

#include <fstream>
#include <iterator>

#include "modem/PhonebookBackup.h"
#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Fault;
using modemsim::Modem;

namespace
{

std::vector<std::string> backupsIn(const Place& place)
{
    std::vector<std::string> found;
    if (!std::filesystem::exists(place.folder + "/backups"))
        return found;
    for (const auto& entry : std::filesystem::directory_iterator(place.folder + "/backups"))
        found.push_back(entry.path());
    return found;
}

std::string contentOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace

TEST(addedChangedAndDeletedIsOnTheCard)
{
    Plugged f;
    const int id = f.library.card.add(values("J\u00F6rg \u0418", "+4917"));
    CHECK(id > 5);
    CHECK_EQ(f.library.card.size(), 6);
    CHECK_EQ(f.modem.entries("SM")[2].name, "J\u00F6rg \u0418");
    CHECK_EQ(f.modem.entries("SM")[2].location, 3);
    f.library.card.update(id, values("Georg", "18p9"));
    CHECK_EQ(f.modem.entries("SM")[2].name, "Georg");
    CHECK(f.library.card.readOne(id) == values("Georg", "18p9"));
    f.library.card.erase(id);
    CHECK_EQ(f.modem.entries("SM").size(), 5u);
    CHECK_EQ(codeOf([&] { f.library.card.readOne(id); }), ORVA_E_NOT_FOUND);
    CHECK_EQ(codeOf([&] { f.library.card.erase(id); }), ORVA_E_NOT_FOUND);
    CHECK(f.library.card.add(values("again", "1")) > id);
    const int onDevice = f.library.device.add(values("on the device", "1"));
    CHECK_EQ(onDevice, f.library.device.extent().last);
    CHECK_EQ(f.modem.entries("ME").size(), 3u);
}

TEST(whatDoesNotFitIsRefusedBeforeTheModemHearsOfIt)
{
    Plugged f;
    const std::string before = told(f.modem);
    CHECK_EQ(codeOf([&] { f.library.card.add(values("A name of more than eighteen", "1")); }), ORVA_E_TOO_LONG);
    CHECK_EQ(codeOf([&] { f.library.card.add(values("x", std::string(41, '1').c_str())); }), ORVA_E_TOO_LONG);
    CHECK_EQ(codeOf([&] { f.library.card.add(values("x", "12a")); }), ORVA_E_ARGUMENT);
    CHECK_EQ(codeOf([&] { f.library.card.add(values("", "")); }), ORVA_E_ARGUMENT);
    CHECK_EQ(f.modem.commands("AT+CPBW"), 0);
    CHECK_EQ(told(f.modem), before);
}

TEST(aFullCardTakesNoMore)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.card.storages[0].total = 20;
    Modem modem(plan);
    Library library(place);
    REQUIRE(library.ready());
    for (int i = 0; i < 15; ++i)
        library.card.add(values("n", std::to_string(i + 1).c_str()));
    CHECK_EQ(library.card.size(), library.card.capacity());
    CHECK_EQ(codeOf([&] { library.card.add(values("one more", "1")); }), ORVA_E_FULL);
    CHECK_EQ(modem.entries("SM").size(), 20u);
}

TEST(identifiersOutliveTheProgram)
{
    const Place place;
    Modem modem(place.plan());
    std::string rows;
    int id = 0;
    {
        Library library(place);
        REQUIRE(library.ready());
        id = library.card.add(values("new", "1"));
        library.card.erase(id);
        rows = library.rows(library.card);
    }
    Library library(place);
    REQUIRE(library.ready());
    CHECK_EQ(library.rows(library.card), rows);
    CHECK(library.card.add(values("newer", "1")) > id);
}

TEST(aChangeByOthersIsNoticedBeforeAWriteToItsLocation)
{
    Plugged f;
    // The first write reads all of the card again; what others do behind it is left to each write.
    f.library.card.add(values("first", "1"));
    const int anna = idOf(f.library, "Anna");
    f.modem.putEntry("SM", {1, "+999", "Somebody else", ""});
    const std::uint64_t changes = f.library.card.changes();
    CHECK_EQ(codeOf([&] { f.library.card.update(anna, values("Anna B", "+1")); }), ORVA_E_NOT_FOUND);
    CHECK_EQ(f.modem.entries("SM")[0].name, "Somebody else");
    CHECK(f.library.card.changes() != changes);
    CHECK(idOf(f.library, "Somebody else") > anna);
    CHECK_EQ(codeOf([&] { f.library.card.readOne(anna); }), ORVA_E_NOT_FOUND);
    CHECK_EQ(codeOf([&] { f.library.card.erase(anna); }), ORVA_E_NOT_FOUND);
}

TEST(anEntryOfOthersInAFreeLocationIsNotOverwritten)
{
    Plugged f;
    f.library.card.add(values("first", "1"));
    // One came and one went, so that the count tells nothing.
    f.modem.removeEntry("SM", 20);
    f.modem.putEntry("SM", {4, "+999", "Somebody else", ""});
    f.library.card.add(values("second", "2"));
    std::string names;
    for (const modemsim::Entry& entry : f.modem.entries("SM"))
        names += std::to_string(entry.location) + entry.name + " ";
    CHECK(names.find("3first ") != std::string::npos);
    CHECK(names.find("4Somebody else ") != std::string::npos);
    CHECK(names.find("6second ") != std::string::npos);
}

TEST(aChangedCountIsNoticedBeforeABatch)
{
    Plugged f;
    f.library.card.add(values("first", "1"));
    f.modem.putEntry("SM", {11, "+999", "Somebody else", ""});
    f.library.card.begin();
    f.library.card.add(values("second", "2"));
    f.library.card.end();
    CHECK(idOf(f.library, "Somebody else") > 0);
    CHECK_EQ(f.library.card.size(), 8);
}

TEST(aListThatIsOpenedAfterAWhileIsReadAgain)
{
    const Place place;
    Modem modem(place.plan());
    ModemTimings timings = quickTimings();
    timings.stale = Milliseconds(100);
    Library library(place, timings);
    REQUIRE(library.ready());
    modem.putEntry("SM", {1, "+999", "Somebody else", ""});
    CHECK(eventually([&] { return library.rows(library.card).find("Somebody else") != std::string::npos; }));
    const int commands = modem.commands("AT+CPBR");
    timings.stale = Milliseconds(60000);
    library.hardware.stop();
    Library second(place, timings);
    REQUIRE(second.ready());
    const int read = modem.commands("AT+CPBR");
    CHECK(read > commands);
    for (int i = 0; i < 20; ++i)
        second.rows(second.card);
    CHECK_EQ(modem.commands("AT+CPBR"), read);
}

TEST(theWholeCardIsPutAsideBeforeTheFirstWriteAndCanBePutBack)
{
    Plugged f;
    const std::string before = told(f.modem);
    CHECK(backupsIn(f.place).empty());
    CHECK_EQ(codeOf([&] { f.library.card.add(values("much too long a name for a card", "1")); }), ORVA_E_TOO_LONG);
    CHECK(backupsIn(f.place).empty());
    f.library.card.add(values("new", "1"));
    const std::vector<std::string> saved = backupsIn(f.place);
    REQUIRE(saved.size() == 1);
    CHECK(saved[0].find("/backups/8949020000123456789-") != std::string::npos);
    struct stat state = {};
    CHECK_EQ(::stat(saved[0].c_str(), &state), 0);
    CHECK_EQ(static_cast<int>(state.st_mode & 0777), 0600);
    CHECK_EQ(readBackup(contentOf(saved[0])).entries.size(), 5u);
    f.library.card.erase(idOf(f.library, "Anna"));
    f.library.card.update(idOf(f.library, "Last \"one\", ok"), values("other", "113"));
    CHECK_EQ(backupsIn(f.place).size(), 1u);
    const int ivan = idOf(f.library, "\u0418\u0432\u0430\u043D");
    f.library.card.restore(saved[0]);
    CHECK_EQ(told(f.modem), before);
    CHECK_EQ(f.library.card.size(), 5);
    CHECK_EQ(idOf(f.library, "\u0418\u0432\u0430\u043D"), ivan);
}

TEST(aCardThatCannotBePutAsideIsNotWrittenTo)
{
    const Place place;
    std::ofstream(place.folder + "/backups") << "in the way";
    Modem modem(place.plan());
    Library library(place);
    REQUIRE(library.ready());
    const std::string before = told(modem);
    // Nor at the second attempt.
    CHECK_EQ(codeOf([&] { library.card.add(values("new", "1")); }), ORVA_E_STORE);
    CHECK_EQ(codeOf([&] { library.card.add(values("new", "1")); }), ORVA_E_STORE);
    CHECK_EQ(told(modem), before);
    CHECK_EQ(modem.commands("AT+CPBW"), 0);
}

TEST(furtherFieldsOfAnEntrySurviveAChangeOfItsName)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.quirks.set("cpbr_test=full");
    plan.card.storages[0].entries[0].hiddenFields = ",0,\"Team\"";
    Modem modem(plan);
    Library library(place);
    REQUIRE(library.ready());
    const int first = library.card.extent().last - library.card.extent().count + 1;
    library.card.update(first, values("Berta", "1"));
    CHECK_EQ(modem.entries("SM")[0].name, "Berta");
    bool kept = false;
    for (const std::string& one : modem.transcript())
        kept = kept || (one.find("+CPBW=") != std::string::npos && one.find("\"Team\"") != std::string::npos);
    CHECK(kept);
}

TEST(onlyAWholeCopyOfTheSameCardIsPutBack)
{
    Plugged f;
    const std::string before = told(f.modem);
    const std::string file = f.place.folder + "/copy";
    f.library.card.backup(file);
    CHECK_EQ(codeOf([&] { f.library.card.backup(file); }), ORVA_E_STORE);
    const std::string good = contentOf(file);
    const auto restored = [&](const std::string& text) {
        std::ofstream(file, std::ios::trunc) << text;
        return codeOf([&] { f.library.card.restore(file); });
    };
    CHECK_EQ(restored(""), ORVA_E_FORMAT);
    CHECK_EQ(restored(good.substr(0, good.size() - 5)), ORVA_E_FORMAT);
    CHECK_EQ(restored("linkhand phonebook 2\n"), ORVA_E_VERSION);
    std::string other = good;
    other.replace(other.find("8949"), 4, "8948");
    CHECK_EQ(restored(other), ORVA_E_FORMAT);
    CHECK_EQ(restored(good + "1\t1\tx\t\n"), ORVA_OK);
    CHECK_EQ(told(f.modem), before);
}

TEST(whatFailsHasChangedNothing)
{
    for (const char* const quirk : {"write_lost", "truncate", "text_units", "write_other"}) {
        const Place place;
        Modem modem(place.plan());
        Library library(place);
        REQUIRE(library.ready());
        modem.setQuirk(quirk);
        const int anna = idOf(library, "Anna");
        const std::vector<std::function<void()>> actions = {
            [&] { library.card.add(values("new", "1")); },
            [&] { library.card.update(anna, values("Berta", "2")); },
            [&] { library.card.erase(anna); },
        };
        int failed = 0;
        for (const auto& action : actions) {
            const std::string before = told(modem);
            const std::string rows = library.rows(library.card);
            if (codeOf(action) == ORVA_OK)
                continue;
            ++failed;
            check::equal(told(modem), before, quirk, __FILE__, __LINE__);
            check::equal(library.rows(library.card), rows, quirk, __FILE__, __LINE__);
        }
        CHECK(std::string(quirk).find("write") != 0 || failed > 0);
    }
}

TEST(eachCommandOfAWriteMayFailOrBeTheLast)
{
    for (const Fault fault :
         {Fault::SilentBefore, Fault::SilentAfter, Fault::UnplugBefore, Fault::UnplugAfter, Fault::UnplugInside,
          Fault::StallInside, Fault::PullCard, Fault::Error, Fault::ErrorAfter}) {
        for (int nth = 1; nth < 40; ++nth) {
            const Place place;
            Modem modem(place.plan());
            ModemTimings timings = quickTimings();
            timings.question = Milliseconds(60000);
            timings.fresh = Milliseconds(0);
            Library library(place, timings);
            REQUIRE(library.ready());
            const std::string before = told(modem);
            const int commands = modem.commands();
            modem.failAt("AT", nth, fault);
            const long code = codeOf([&] { library.card.add(values("new", "1")); });
            const bool reached = modem.commands() - commands >= nth;
            modem.failAt("AT", 1000000, fault);
            const std::string after = told(modem);
            const bool there = after.find("3 new 1\n") != std::string::npos;
            if (code == ORVA_OK)
                CHECK(there);
            else if (fault == Fault::UnplugBefore || fault == Fault::UnplugAfter || fault == Fault::UnplugInside ||
                     fault == Fault::PullCard)
                // Nobody could look any more: the write itself or nothing of it.
                CHECK(there || after == before);
            else
                CHECK(after == before);
            if (!reached)
                break;
            REQUIRE(nth < 39);
        }
    }
}

TEST(callersOfManyThreadsWriteOneAfterTheOther)
{
    Plugged f;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&f, i] {
            for (int n = 0; n < 3; ++n)
                f.library.card.add(values(("t" + std::to_string(i)).c_str(), std::to_string(n).c_str()));
            f.library.rows(f.library.card);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    CHECK_EQ(f.library.card.size(), 17);
    CHECK_EQ(f.modem.entries("SM").size(), 17u);
}

CHECK_MAIN
