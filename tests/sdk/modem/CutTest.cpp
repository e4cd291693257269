// Each command of what changes a card is once the one that fails, gets lost, or is the last before the modem or the
// card has gone. What was asked for has happened whole or not at all, the memory shows what the card has, and a second
// attempt gets there. LINKHAND_FULL tries every fault.

#include <fstream>
#include <future>

#include "sdk/modem/ModemFixture.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Fault;
using modemsim::Modem;

namespace
{

constexpr int mostCommands = 120;
constexpr int cardFailure = 13; // other errors may mean that a location is empty

struct Flow {
    const char* name;
    std::function<void(Library&, const std::string& backup)> run;
    bool whole; // one change: there is nothing between before and after
};

const Flow flows[] = {
    {"update",
     [](Library& library, const std::string&) {
         library.card.update(idOf(library, "Anna"), values("Berta", "+4930555"));
     },
     true},
    {"erase", [](Library& library, const std::string&) { library.card.erase(idOf(library, "Anna")); }, true},
    {"batch",
     [](Library& library, const std::string&) {
         library.card.begin();
         library.card.add(values("one", "1"));
         library.card.add(values("two", "2"));
         library.card.end();
     },
     false},
    {"restore", [](Library& library, const std::string& backup) { library.card.restore(backup); }, false},
};

std::vector<Fault> faults()
{
    if (std::getenv("LINKHAND_FULL") == nullptr)
        return {Fault::SilentAfter, Fault::UnplugAfter, Fault::Error, Fault::ErrorAfter};
    return {Fault::SilentBefore, Fault::SilentAfter, Fault::UnplugBefore, Fault::UnplugAfter, Fault::UnplugInside,
            Fault::StallInside,  Fault::PullCard,    Fault::Error,        Fault::ErrorAfter};
}

// A card, a copy of it, and some changes since.
struct Setting : Plugged {
    Setting() : Plugged(timings()), backup(place.folder + "/copy")
    {
        library.card.backup(backup);
        library.card.erase(idOf(library, "Zo\u00EB M\u00FCller"));
        library.card.update(idOf(library, "\u0418\u0432\u0430\u043D"), values("changed", "+1"));
    }

    static ModemTimings timings()
    {
        ModemTimings all = quickTimings();
        all.patience.plain = all.patience.pin = all.patience.read = all.patience.write = Milliseconds(900);
        all.patience.life = Milliseconds(600);
        all.question = Milliseconds(60000);
        all.fresh = Milliseconds(0);
        return all;
    }

    // The modem and the card are there and do as they are told. Pulled and plugged, they are looked at anew.
    bool recover(Fault fault)
    {
        modem.failAt("AT", 1000000, fault);
        modem.insertCard();
        modem.unplug();
        if (!eventually([this] { return library.hardware.status().attached == 0; }))
            return false;
        modem.plug();
        return library.ready() && eventually([this] { return shown(library) == told(modem); });
    }

    const std::string backup;
};

// What went wrong with this command as the one that fails; empty if nothing did. Tells whether it was ever given.
std::string tryCut(const Flow& flow, Fault fault, int nth, const std::string& goal, bool& reached)
{
    const std::string where = std::string(flow.name) + ", fault " + std::to_string(static_cast<int>(fault)) +
                              ", command " + std::to_string(nth) + ": ";
    Setting setting;
    const std::string before = told(setting.modem);
    const int commands = setting.modem.commands();
    setting.modem.failAt("AT", nth, fault, cardFailure);
    const long code = codeOf([&] { flow.run(setting.library, setting.backup); });
    reached = setting.modem.commands() - commands >= nth;
    const std::string after = told(setting.modem);
    if (code == ORVA_OK && after != goal)
        return where + "reported as done, and is not";
    // Nobody could look any more.
    const bool gone = fault == Fault::UnplugBefore || fault == Fault::UnplugAfter || fault == Fault::UnplugInside ||
                      fault == Fault::PullCard;
    if (flow.whole && code != ORVA_OK && after != before && !(gone && after == goal))
        return where + "reported as failed, and has changed something:\n" + after;
    if (!setting.recover(fault))
        return where + "the memory is not what the card is:\n" + shown(setting.library) + "but\n" + told(setting.modem);
    // Adding twice would be two entries; what is whole and done is not done again.
    if (std::string(flow.name) == "batch" || told(setting.modem) == goal)
        return {};
    const long again = codeOf([&] { flow.run(setting.library, setting.backup); });
    if (again != ORVA_OK || told(setting.modem) != goal)
        return where + "the second attempt ends with " + std::to_string(again) + ":\n" + told(setting.modem);
    return {};
}

std::string tryAll(const Flow& flow, Fault fault, const std::string& goal)
{
    std::string problems;
    bool reached = true;
    int nth = 1;
    for (; reached && nth < mostCommands; ++nth)
        problems += tryCut(flow, fault, nth, goal, reached);
    return nth > 4 && nth < mostCommands ? problems : problems + flow.name + ": " + std::to_string(nth) + " commands";
}

} // namespace

TEST(eachCommandOfAChangeMayFailOrBeTheLast)
{
    for (const Flow& flow : flows) {
        Setting setting;
        flow.run(setting.library, setting.backup);
        const std::string goal = told(setting.modem);
        CHECK_EQ(shown(setting.library), goal);
        std::vector<std::future<std::string>> running;
        for (const Fault fault : faults())
            running.push_back(
                std::async(std::launch::async, [&flow, fault, goal] { return tryAll(flow, fault, goal); }));
        for (std::future<std::string>& one : running)
            CHECK_EQ(one.get(), "");
    }
}

TEST(aPinIsGivenOnceWhateverBecomesOfIt)
{
    for (const Fault fault : faults()) {
        bool reached = true;
        for (int nth = 1; reached && nth < mostCommands; ++nth) {
            const Place place;
            modemsim::Plan plan = place.plan();
            plan.card.pin = "1234";
            Modem modem(plan);
            Library library(place, Setting::timings());
            library.hardware.status();
            REQUIRE(eventually([&] { return library.hardware.status().attached != 0; }));
            const int commands = modem.commands();
            modem.failAt("AT", nth, fault, cardFailure);
            const long code = codeOf([&] { library.hardware.perform([](ModemSession& s) { s.unlock("1234"); }); });
            reached = modem.commands() - commands >= nth;
            CHECK(modem.commands("AT+CPIN=\"") <= 1);
            CHECK(code != ORVA_OK || modem.unlocks() == 1);
            CHECK_EQ(modem.pinTries(), 3);
        }
        CHECK(!reached);
    }
}

CHECK_MAIN
