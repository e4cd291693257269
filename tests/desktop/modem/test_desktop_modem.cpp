#include <QtTest>

#include "HostDriver.h"
#include "Profile.h"
#include "support/modem/ModemManagerBench.h"

namespace
{

struct LockedSetup : modemsim::BenchSetup {
    LockedSetup()
    {
        usb = false;
        plan.card.pin = "1234";
    }
};

} // namespace

// The real program before the real ModemManager, with a simulated modem behind it.
class TestDesktopModem : public QObject
{
    Q_OBJECT

private slots:
    void aLockedCardIsOpenedAndTheModemSwitchedOn();
};

void TestDesktopModem::aLockedCardIsOpenedAndTheModemSwitchedOn()
{
    Profile profile;
    QVERIFY(profile.Add(4, "Anna", "+49170", 3));
    profile.Close();
    const LockedSetup setup;
    modemsim::ModemManagerBench bench(setup);
    HostDriver host;
    for (const auto& variable : bench.environment()) {
        host.SetEnvironment(QString::fromStdString(variable.first), QString::fromStdString(variable.second));
    }
    // The card itself lies behind a port that is not there: this is about ModemManager's side.
    host.SetEnvironment("LINKHAND_MODEM", "/nonexistent/" + QString::fromStdString(bench.node(0)));
    QVERIFY2(host.Start(profile.Path()), qPrintable(host.Log()));
    QVERIFY(host.WaitUntil([&] { return host.Text("linkhand_StatusArea_hardware").contains("no modem there"); }));
    bench.plug();

    QVERIFY(host.WaitFor("linkhand_PinForm_pin"));
    QVERIFY(host.WaitUntil([&] { return host.Text("linkhand_PinForm_tries") == "Tries left: 3"; }));
    QVERIFY(host.Click("linkhand_PinForm_pin"));
    QVERIFY(host.WaitForFocus("linkhand_PinForm_pin"));
    host.Type("1111");
    QVERIFY(host.WaitUntil([&] { return host.Widget("linkhand_PinForm_unlock").bEnabled; }));
    QVERIFY(host.Click("linkhand_PinForm_unlock"));
    QVERIFY(host.WaitUntil([&] { return host.Text("linkhand_PinForm_tries") == "Tries left: 2"; }));
    QVERIFY(host.WaitForFocus("linkhand_PinForm_pin"));
    host.Type("1234");
    QVERIFY(host.WaitUntil([&] { return host.Widget("linkhand_PinForm_unlock").bEnabled; }));
    host.Key("Return");
    QVERIFY(host.WaitGone("linkhand_PinForm_pin"));
    QVERIFY(bench.modem().pinTries() == 3);

    QVERIFY(host.WaitForMainWindow());
    if (!host.Exists("linkhand_HardwarePanel_state")) {
        QVERIFY(host.Click("linkhand_NavBar_device"));
    }
    QVERIFY(host.WaitFor("linkhand_HardwarePanel_enable"));
    QVERIFY(host.Click("linkhand_HardwarePanel_enable"));
    QVERIFY(host.WaitUntil([&] { return host.Text("linkhand_StatusArea_network").startsWith("Test Net"); }, 30000));
    QVERIFY(host.WaitGone("linkhand_HardwarePanel_enable"));
    QVERIFY2(host.Quit() >= 0, qPrintable(host.Log()));
}

QTEST_GUILESS_MAIN(TestDesktopModem)
#include "test_desktop_modem.moc"
