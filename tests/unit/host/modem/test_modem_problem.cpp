#include "ModemFixture.h"
#include "device/DeviceWatcher.h"
#include "device/HardwareChoice.h"
#include "device/ModemProblem.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_modem.h"
#include "support/modem/Modem.h"

// What keeps a modem's contacts away is told, and nothing else.
class TestModemProblem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pBus.reset(new TestBus); }
    void aPortThatSomebodyNamedAndThatIsNotThereIsTold();
    void aModemOfWhichNoPortIsLeftIsTold();
    void noModemIsNoProblemWhereNobodyNamedOne();
    void aFullMessageStoreIsToldUntilThereIsRoom();

private:
    QScopedPointer<TestBus> m_pBus;
};

namespace
{

QString said()
{
    unsigned short* pusText = nullptr;
    if (ORVA_Modem_GetProblem(&pusText) != ORVA_OK) {
        return QString();
    }
    const QString strText = QtCompat::fromUtf16(pusText);
    delete[] pusText;
    return strText;
}

// Looks until the text is one that holds this; an empty one means none.
bool tells(const ModemProblem& problem, const QString& strPart)
{
    return QTest::qWaitFor(
        [&] { return strPart.isEmpty() ? problem.Text().isEmpty() : problem.Text().contains(strPart); }, 30000);
}

} // namespace

void TestModemProblem::aPortThatSomebodyNamedAndThatIsNotThereIsTold()
{
    QVERIFY(HardwareChoice::Begin("/nonexistent/ttyUSB0"));
    ModemFixture f(false, "/nonexistent/ttyUSB0");
    DeviceWatcher watcher;
    watcher.Start();
    ModemProblem problem(f.modem, watcher);
    const QSignalSpy changed(&problem, SIGNAL(changed()));
    problem.Start();
    QVERIFY2(tells(problem, "/nonexistent/ttyUSB0"), qPrintable(problem.Text()));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(problem.Name(), QString("/nonexistent/ttyUSB0"));
}

void TestModemProblem::aModemOfWhichNoPortIsLeftIsTold()
{
    // On this bus the SDK hears of no modem that it could open; the host's own ModemManager lists one.
    QVERIFY(HardwareChoice::Begin("auto"));
    ModemFixture f;
    QVERIFY(f.IsReady());
    DeviceWatcher watcher;
    watcher.Start();
    ModemProblem problem(f.modem, watcher);
    problem.Start();
    QVERIFY(QTest::qWaitFor([&] { return !problem.Text().isEmpty(); }, 30000));
    QCOMPARE(problem.Name(), f.modem.Status().strName);
    f.manager.Unplug();
    QVERIFY2(tells(problem, QString()), qPrintable(problem.Text()));
}

void TestModemProblem::noModemIsNoProblemWhereNobodyNamedOne()
{
    QVERIFY(HardwareChoice::Begin("auto"));
    ModemFixture f(false);
    DeviceWatcher watcher;
    watcher.Start();
    ModemProblem problem(f.modem, watcher);
    const QSignalSpy changed(&problem, SIGNAL(changed()));
    // The SDK has found none, and says so.
    QVERIFY(QTest::qWaitFor([] { return !said().isEmpty(); }, 30000));
    // As often as it takes to tell of one.
    for (int i = 0; i < 4; ++i) {
        QVERIFY(QMetaObject::invokeMethod(&problem, "OnLook"));
    }
    QCOMPARE(problem.Text(), QString());
    QCOMPARE(changed.count(), 0);
}

void TestModemProblem::aFullMessageStoreIsToldUntilThereIsRoom()
{
    const QTemporaryDir folder;
    modemsim::Plan plan = modemsim::standardPlan();
    plan.ports[0].name = folder.filePath("port").toStdString();
    plan.card.messageTotal = 2;
    modemsim::Modem card(plan);
    QVERIFY(HardwareChoice::Begin(folder.filePath("port")));
    ModemFixture f(false, folder.filePath("port"));
    DeviceWatcher watcher;
    watcher.Start();
    ModemProblem problem(f.modem, watcher);
    const QSignalSpy full(&problem, SIGNAL(messageStoreFull()));
    problem.Start();
    card.receiveMessage("+491711234567", "one");
    QVERIFY(QTest::qWaitFor([&] { return card.commands("AT+CPMS?") > 0; }, 30000));
    QVERIFY(!problem.IsMessageStoreFull());
    card.receiveMessage("+491711234567", "two");
    // As ModemManager tells of it.
    emit f.modem.messageReceived("+491711234567", "two");
    QVERIFY(QTest::qWaitFor([&] { return problem.IsMessageStoreFull(); }, 30000));
    QCOMPARE(full.count(), 1);
    QCOMPARE(problem.Text(), QString());
    // Somebody else makes room: the card is another one.
    card.insertCard(modemsim::standardPlan().card);
    QVERIFY(QTest::qWaitFor([&] { return !problem.IsMessageStoreFull(); }, 30000));
    QCOMPARE(full.count(), 1);
}

QTEST_GUILESS_MAIN(TestModemProblem)
#include "test_modem_problem.moc"
