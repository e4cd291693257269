// The modem that is there, without anybody having named its port: plugged, unplugged, exchanged, without a port for us,
// while ModemManager comes and goes.

#include "modem/HardwareChoice.h"
#include "sdk/modem/ModemFixture.h"
#include "sdk/modem/ScriptedWatch.h"
#include "support/Check.h"

using namespace fixture;
using modemsim::Modem;

namespace
{

constexpr char firstRun[] = ":1.1";
constexpr char secondRun[] = ":1.2";

// A modem of three ports, the third beyond what ModemManager needs.
struct Setting {
    explicit Setting(const ModemTimings& timings = quickTimings())
        : modem(planAt(place.folder + "/ttyA", "350000000000006")),
          library(place, timings, autoChoice, machine.open()),
          listed(listedAt("/Modem/0", place.folder + "/ttyA"))
    {
    }

    static modemsim::Plan planAt(const std::string& name, const std::string& imei)
    {
        modemsim::Plan plan = modemsim::standardPlan();
        plan.imei = imei;
        plan.ports.resize(3);
        for (std::size_t i = 0; i < plan.ports.size(); ++i)
            plan.ports[i].name = name + std::to_string(i);
        return plan;
    }

    static ListedModem listedAt(const std::string& path, const std::string& name)
    {
        return listedModem(path, {listedPort(name + "0"), listedPort(name + "1"), listedPort(name + "2")});
    }

    void list(const std::vector<ListedModem>& modems, const char* owner = firstRun)
    {
        machine.tell([&](ModemList& told) {
            told.owner = owner;
            told.modems = modems;
        });
    }

    bool waitForProblem(const std::string& part)
    {
        library.hardware.status();
        return eventually([&] { return library.hardware.state().problem().find(part) != std::string::npos; });
    }

    // The network is the last that is told of a modem which has come.
    static bool waitForNetwork()
    {
        return eventually([] { return Events::all().count(ORVA_EVENT_NET_STATUS) == 1; });
    }

    // What was said on the ports that are not ours.
    std::string saidElsewhere() const
    {
        std::string text;
        for (const std::string& line : modem.transcript()) {
            if (line[0] != '2')
                text += line + "\n";
        }
        return text;
    }

    Place place;
    Machine machine;
    Modem modem;
    Library library;
    ListedModem listed;
};

} // namespace

TEST(theFreePortOfAPluggedModemIsOpenedAndNoOther)
{
    Setting setting;
    setting.list({});
    CHECK(setting.waitForProblem("no modem"));
    CHECK_EQ(setting.library.hardware.status().attached, 0);
    setting.list({setting.listed});
    REQUIRE(setting.library.ready());
    CHECK_EQ(setting.library.card.size(), 5);
    CHECK_EQ(setting.saidElsewhere(), "");
    CHECK_EQ(setting.library.hardware.state().problem(), "");
    CHECK(setting.library.hardware.report().find("port=" + setting.place.folder + "/ttyA2\n") == 0);
    setting.library.events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_DEV_DEVICE_INIT_FINISH), 1);
    CHECK_EQ(Events::all().count(ORVA_EVENT_PBM_EVENT_SIM_READY), 1);
}

TEST(aModemWithoutAPortForUsIsADeviceWithoutMemories)
{
    Setting setting;
    setting.listed.ports.pop_back();
    setting.list({setting.listed});
    Library& library = setting.library;
    library.hardware.status();
    REQUIRE(library.hardware.state().waitLoaded(ORVA_MEMORY_CARD, Milliseconds(60000)));
    CHECK(library.hardware.state().problem().find("needs both ports") != std::string::npos);
    CHECK(Setting::waitForNetwork());
    CHECK_EQ(library.hardware.status().attached, 1);
    CHECK_EQ(library.hardware.status().card, 1);
    CHECK_EQ(library.hardware.status().network, ORVA_NETWORK_IN_SERVICE);
    CHECK(library.hardware.memories().empty());
    CHECK_EQ(codeOf([&] { library.card.size(); }), ORVA_E_ABSENT);
    CHECK_EQ(codeOf([&] { library.hardware.perform([](ModemSession&) {}); }), ORVA_E_ABSENT);
    const std::string report = library.hardware.report();
    CHECK_EQ(report.substr(report.find('\n')), "\nmanufacturer=Linkhand Tests\nmodel=Simulated Modem\n");
    library.events.drain();
    CHECK(Events::all().heard() == (std::vector<int>{ORVA_EVENT_DEV_DEVICE_INIT_FINISH, ORVA_EVENT_PBM_EVENT_READY,
                                                     ORVA_EVENT_PBM_EVENT_NV_READY, ORVA_EVENT_NET_STATUS}));
    CHECK_EQ(setting.modem.commands(), 0);
}

TEST(whatModemManagerSeesOfAModemWithoutAPortReachesTheListeners)
{
    Setting setting;
    setting.listed.ports.pop_back();
    setting.list({setting.listed});
    REQUIRE(setting.waitForProblem("needs both ports"));
    REQUIRE(Setting::waitForNetwork());
    const ModemHardware& hardware = setting.library.hardware;
    const auto change = [&](int event, const std::function<void(ListedModem&)>& how) {
        setting.library.events.drain();
        Events::all().clear();
        how(setting.listed);
        setting.list({setting.listed});
        return eventually([&] { return Events::all().heard() == std::vector<int>{event}; });
    };
    CHECK(change(ORVA_EVENT_DEV_PIN_CHANGED, [](ListedModem& modem) { modem.card = CardState::PinNeeded; }));
    CHECK(hardware.status().pinStatus != ORVA_PIN_NOT_NEEDED);
    CHECK(change(ORVA_EVENT_DEV_PIN_CHANGED, [](ListedModem& modem) { modem.card = CardState::Ready; }));
    CHECK(change(ORVA_EVENT_DEV_SIM_INVALID, [](ListedModem& modem) { modem.card = CardState::Absent; }));
    CHECK_EQ(hardware.status().card, 0);
    CHECK(change(ORVA_EVENT_DEV_CARD_CHANGED, [](ListedModem& modem) { modem.card = CardState::Ready; }));
    CHECK(change(ORVA_EVENT_NET_STATUS, [](ListedModem& modem) { modem.inService = false; }));
    CHECK(change(ORVA_EVENT_DEV_RF_SWITCH, [](ListedModem& modem) { modem.radio = false; }));
    setting.list({});
    CHECK(eventually([&] { return hardware.status().attached == 0; }));
}

TEST(aPortThatIsSetAsideLaterIsOpened)
{
    Setting setting;
    setting.listed.ports.pop_back();
    setting.list({setting.listed});
    REQUIRE(setting.waitForProblem("needs both ports"));
    ListedPort aside = listedPort(setting.place.folder + "/ttyA2", PortType::Ignored);
    setting.listed.ports.push_back(aside);
    setting.list({setting.listed});
    CHECK(setting.library.ready());
    CHECK_EQ(setting.saidElsewhere(), "");
    CHECK_EQ(setting.library.hardware.state().problem(), "");
}

TEST(aPortThatCannotBeOpenedIsToldAndNamedForTheRule)
{
    Setting setting;
    const auto other = std::make_unique<Tty>(setting.place.folder + "/ttyA2", -1);
    setting.list({setting.listed});
    CHECK(setting.waitForProblem("busy"));
    CHECK(eventually([&] { return setting.library.hardware.status().attached == 1; }));
    CHECK(setting.library.hardware.memories().empty());
    CHECK(setting.library.hardware.report().find("spare=" + setting.place.folder + "/ttyA2\n") != std::string::npos);
}

TEST(aPortWhereNobodyAnswersIsPassedOver)
{
    Setting setting;
    modemsim::Plan plan = Setting::planAt(setting.place.folder + "/ttyB", "350000000000014");
    plan.quirks.set("silent=AT");
    const Modem mute(plan);
    setting.listed.ports.insert(setting.listed.ports.begin() + 2,
                                listedPort(setting.place.folder + "/ttyB2", PortType::Ignored));
    setting.list({setting.listed});
    CHECK(setting.library.ready());
    CHECK(mute.commands() > 0);
    CHECK(setting.library.hardware.report().find("ttyA2") != std::string::npos);
}

TEST(anotherModemTakesThePlaceOfTheOneThatIsPulled)
{
    Setting setting;
    modemsim::Plan plan = Setting::planAt(setting.place.folder + "/ttyB", "350000000000014");
    plan.card.iccid = "8949020000000000001";
    plan.card.storages[0].entries.resize(2);
    Modem second(plan);
    const ListedModem other = Setting::listedAt("/Modem/1", setting.place.folder + "/ttyB");
    setting.list({setting.listed});
    REQUIRE(setting.library.ready());
    setting.list({setting.listed, other});
    CHECK_EQ(setting.library.card.size(), 5);
    setting.modem.unplug();
    setting.list({other});
    REQUIRE(eventually(
        [&] { return codeOf([&] { setting.library.card.size(); }) == ORVA_OK && setting.library.card.size() == 2; }));
    CHECK_EQ(codeOf([&] { setting.library.card.readOne(1); }), ORVA_E_NOT_FOUND);
    setting.library.events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_DEV_DEVICE_INIT_FINISH), 3);
}

TEST(aModemThatModemManagerLosesIsLeft)
{
    Setting setting;
    setting.list({setting.listed});
    REQUIRE(setting.library.ready());
    setting.list({});
    CHECK(eventually([&] { return setting.library.hardware.status().attached == 0; }));
    const int before = setting.modem.commands();
    setting.list({setting.listed});
    CHECK(setting.library.ready());
    CHECK(setting.modem.commands() > before);
}

TEST(aPortIsKeptWithoutModemManagerAndLeftToItsNextRun)
{
    Setting setting;
    setting.list({setting.listed});
    REQUIRE(setting.library.ready());
    const std::string rows = setting.library.rows(setting.library.card);
    setting.library.events.drain();
    Events::all().clear();
    setting.list({}, "");
    const int added = setting.library.card.add(values("Dora", "123"));
    CHECK_EQ(setting.library.hardware.status().attached, 1);
    setting.library.card.erase(added);
    // The next run tries all ports, and must not hear another's answers.
    setting.list({}, secondRun);
    REQUIRE(eventually([&] { return setting.library.hardware.status().attached == 0; }));
    setting.list({setting.listed}, secondRun);
    REQUIRE(setting.library.ready());
    CHECK_EQ(setting.library.rows(setting.library.card), rows);
    setting.library.events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_DEV_DEVICE_INIT_FINISH), 2);
}

TEST(anIgnoredPortIsKeptWhateverBecomesOfModemManager)
{
    ModemTimings timings = quickTimings();
    timings.question = Milliseconds(3600 * 1000);
    Setting setting(timings);
    setting.listed.ports[2].type = PortType::Ignored;
    setting.list({setting.listed});
    REQUIRE(setting.library.ready());
    setting.library.events.drain();
    Events::all().clear();
    setting.list({}, "");
    setting.list({}, secondRun);
    CHECK(setting.library.card.add(values("Dora", "123")) > 0);
    const int looks = setting.modem.commands("AT+CFUN?");
    setting.list({setting.listed}, secondRun);
    CHECK(setting.modem.waitFor([&] { return setting.modem.commands("AT+CFUN?") > looks; }));
    setting.library.events.drain();
    CHECK_EQ(Events::all().count(ORVA_EVENT_DEV_DEVICE_INIT_FINISH), 0);
    // Listed again, it is left when it goes.
    setting.list({}, secondRun);
    CHECK(eventually([&] { return setting.library.hardware.status().attached == 0; }));
}

TEST(whatModemManagerSeesIsLookedAtAtOnce)
{
    ModemTimings timings = quickTimings();
    timings.question = Milliseconds(3600 * 1000);
    Setting setting(timings);
    setting.list({setting.listed});
    REQUIRE(setting.library.ready());
    setting.modem.pullCard();
    setting.modem.setRegistration(2);
    setting.listed.card = CardState::Absent;
    setting.list({setting.listed});
    CHECK(eventually([&] { return setting.library.hardware.status().card == 0; }));
    CHECK(eventually([&] { return setting.library.hardware.status().network != ORVA_NETWORK_IN_SERVICE; }));
}

TEST(aSilentPortIsTriedLessAndLessOftenUntilSomethingIsPlugged)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.quirks.set("silent=AT");
    Modem modem(plan);
    ModemTimings timings = quickTimings();
    timings.patience.life = Milliseconds(10);
    timings.reread = Milliseconds(50);
    timings.longest = Milliseconds(3600 * 1000);
    Machine machine;
    const auto begin = std::chrono::steady_clock::now();
    Library library(place, timings, place.port, machine.open());
    library.hardware.status();
    // Three times AT each: the fifth time comes after 50 + 100 + 200 + 400 ms.
    REQUIRE(modem.waitFor([&] { return modem.commands() > 12; }));
    CHECK(std::chrono::steady_clock::now() - begin >= Milliseconds(750));
    timings.reread = timings.longest;
    timings.patience.life = Milliseconds(800); // it asks once more, and then has to hear the answer
    Library patient(place, timings, place.port, machine.open());
    library.hardware.stop();
    const int before = modem.commands();
    patient.hardware.status();
    REQUIRE(eventually([&] { return patient.hardware.state().problem().find("nobody answers") != std::string::npos; }));
    CHECK(modem.commands() > before);
    modem.clearQuirk("silent");
    machine.plug();
    CHECK(patient.ready());
}

TEST(aListingThatFailsIsAskedForLessAndLessOftenUntilTheCardChanges)
{
    const Place place;
    modemsim::Plan plan = place.plan();
    plan.quirks.set("no_me");
    plan.quirks.set("stall_at=7");
    Modem modem(plan);
    ModemTimings timings = quickTimings();
    timings.patience.read = Milliseconds(150);
    timings.reread = timings.longest = Milliseconds(3600 * 1000);
    Library library(place, timings);
    library.hardware.status();
    REQUIRE(eventually([&] { return library.hardware.state().problem().find("cannot be read") != std::string::npos; }));
    modem.clearQuirk("stall_at");
    const int before = modem.commands("AT+CPBR");
    const int looks = modem.commands("AT+CPIN?");
    REQUIRE(modem.waitFor([&] { return modem.commands("AT+CPIN?") > looks + 2; }));
    CHECK_EQ(modem.commands("AT+CPBR"), before);
    modem.pullCard();
    REQUIRE(eventually([&] { return library.hardware.status().card == 0; }));
    modem.insertCard();
    CHECK(eventually([&] { return library.hardware.memories().size() == 1 && library.card.capacity() > 0; }));
}

TEST(withoutTheModuleNothingIsFoundAndTheReasonIsTold)
{
    // No module lies beside this program.
    const Place place;
    Library library(place, quickTimings(), autoChoice);
    library.hardware.status();
    CHECK(eventually([&] { return library.hardware.state().problem().find("libsdk-modem.so") != std::string::npos; }));
    CHECK_EQ(library.hardware.status().attached, 0);
    CHECK_EQ(codeOf([&] { library.hardware.perform([](ModemSession&) {}); }), ORVA_E_ABSENT);
    CHECK_EQ(library.hardware.report().find("problem="), 0u);
}

CHECK_MAIN
