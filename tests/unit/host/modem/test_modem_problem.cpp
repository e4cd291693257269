#include "ModemFixture.h"
#include "device/DeviceWatcher.h"
#include "device/HardwareChoice.h"
#include "device/ModemProblem.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_modem.h"

// What keeps a modem's contacts away is told, and nothing else.
class TestModemProblem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pBus.reset(new TestBus); }
    void aPortThatSomebodyNamedAndThatIsNotThereIsTold();
    void aModemOfWhichNoPortIsLeftIsTold();
    void noModemIsNoProblemWhereNobodyNamedOne();

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

QTEST_GUILESS_MAIN(TestModemProblem)
#include "test_modem_problem.moc"
