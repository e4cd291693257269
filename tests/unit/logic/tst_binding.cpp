#include <QThread>

#include "LogicTest.h"

namespace
{

// Writes down the logic's signals in the order of their arrival, on this thread.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    SignalLog()
    {
        AddrBookLogic* const logic = AddrBookLogic::Instance();
        connect(logic, SIGNAL(signalSimStatus(bool)), SLOT(sim(bool)));
        connect(logic, SIGNAL(signalNetStatus(bool)), SLOT(net(bool)));
        connect(logic, SIGNAL(signalDeviceConnected(bool)), SLOT(device(bool)));
        connect(logic, SIGNAL(signalAddrBookReady()), SLOT(ready()));
        connect(logic, SIGNAL(signalAddrBookSimReady()), SLOT(simReady()));
        connect(logic, SIGNAL(signalAddrBookDeviceReady()), SLOT(deviceReady()));
    }

    QStringList m_lines;
    QThread* m_thread = nullptr;

    QStringList take()
    {
        QCoreApplication::sendPostedEvents();
        const QStringList lines = m_lines;
        m_lines.clear();
        return lines;
    }

private slots:
    void sim(bool on) { note("sim", on); }
    void net(bool on) { note("net", on); }
    void device(bool on) { note("device", on); }
    void ready() { m_lines << "ready"; }
    void simReady() { m_lines << "simReady"; }
    void deviceReady() { m_lines << "deviceReady"; }

private:
    void note(const char* what, bool on)
    {
        m_thread = QThread::currentThread();
        m_lines << QString("%1 %2").arg(what, on ? "true" : "false");
    }
};

} // namespace

class TestBinding : public LogicTest
{
    Q_OBJECT

private slots:
    void theInstanceCanBeMadeAnew()
    {
        AddrBookLogic* const first = logic();
        QVERIFY(first != nullptr);
        QCOMPARE(AddrBookLogic::Instance(), first);
        AddrBookLogic::Destroy();
        AddrBookLogic::Destroy();
        QVERIFY(logic() != nullptr);
    }

    void theFourServicesAreBoundInTheirOrder()
    {
        AddrBookLogic::RegisterCallbacks();
        QCOMPARE(FakeSdk::log(),
                 QStringList({"DevSrv_RegisterDevInitEventCallback()", "DevSrv_RegisterDevMgrCallback()",
                              "NetSrv_RegisterNetSrvEvent()", "RegisterPBCallback()"}));
        QCOMPARE(FakeSdk::callbackCount(), 4);
        FakeSdk::clearCalls();
        AddrBookLogic::unSDKRegisterEvent();
        QCOMPARE(FakeSdk::log(),
                 QStringList({"DevSrv_UnRegisterDevInitEventCallback()", "DevSrv_UnRegisterDevMgrCallback()",
                              "NetSrv_UnRegisterNetSrvEvent()", "UnRegisterPBCallback()"}));
        QCOMPARE(FakeSdk::callbackCount(), 0);
    }

    void aFailedRegistrationDoesNotKeepTheOthersFromBeingTried()
    {
        for (int k = 1; k <= 4; ++k) {
            FakeSdk::reset();
            FakeSdk::failCall(k);
            AddrBookLogic::RegisterCallbacks();
            QCOMPARE(FakeSdk::totalCalls(), 4);
            QCOMPARE(FakeSdk::callbackCount(), 3);
            FakeSdk::failCall(k);
            AddrBookLogic::unSDKRegisterEvent();
            QCOMPARE(FakeSdk::totalCalls(), 8);
        }
    }

    void whileShuttingDownAnyEventIsRefusedInSilence_data()
    {
        QTest::addColumn<int>("event");
        for (int event : {7, 6002, 6014, 6601, 6604, 6615, 20301, 20302, 20303, 4711})
            QTest::newRow(qPrintable(QString::number(event))) << event;
    }

    void whileShuttingDownAnyEventIsRefusedInSilence()
    {
        QFETCH(int, event);
        SignalLog log;
        FakeCore::setShuttingDown(true);
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(event, nullptr), 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void withoutAnInstanceAnEventIsRefused()
    {
        AddrBookLogic::Destroy();
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(20301, nullptr), 0);
        QVERIFY(!AddrBookLogic::PbServiceReady());
    }

    void eventsBecomeSignals_data()
    {
        QTest::addColumn<int>("event");
        QTest::addColumn<int>("result");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("7 is taken without effect") << 7 << 1 << QStringList();
        QTest::newRow("an invalid card: network down before the card")
            << 6002 << 1 << QStringList({"net false", "sim false"});
        QTest::newRow("6014: device up before the network") << 6014 << 1 << QStringList({"device true", "net true"});
        QTest::newRow("6601 as 6014") << 6601 << 1 << QStringList({"device true", "net true"});
        QTest::newRow("6604 as 6014") << 6604 << 1 << QStringList({"device true", "net true"});
        QTest::newRow("6615: radio on") << 6615 << 1 << QStringList({"net true"});
        QTest::newRow("20301") << 20301 << 1 << QStringList({"device true"});
        QTest::newRow("20302") << 20302 << 1 << QStringList({"simReady"});
        QTest::newRow("20303") << 20303 << 1 << QStringList({"deviceReady"});
        QTest::newRow("an unknown event changes nothing") << 20304 << 0 << QStringList();
    }

    void eventsBecomeSignals()
    {
        QFETCH(int, event);
        QFETCH(int, result);
        QFETCH(QStringList, lines);
        SignalLog log;
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(event, nullptr), result);
        QCOMPARE(log.take(), lines);
        QCOMPARE(AddrBookLogic::PbServiceReady(), event >= 20301 && event <= 20303);
    }

    void aDeviceThatIsNotAvailableGoesAfterItsNetwork_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("fails");
        QTest::newRow("another status") << 4 << false;
        QTest::newRow("a failing query") << 3 << true;
    }

    void aDeviceThatIsNotAvailableGoesAfterItsNetwork()
    {
        QFETCH(int, status);
        QFETCH(bool, fails);
        FakeSdk::setDevStatus(status);
        if (fails)
            FakeSdk::fail("DevSrv_GetDevStatus");
        SignalLog log;
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(6014, nullptr), 1);
        QCOMPARE(log.take(), QStringList({"net false", "device false"}));
        QCOMPARE(FakeSdk::count("NetSrv_GetSrvStatus"), 0);
    }

    void aDeviceWithAFailingNetworkQueryIsConnectedWithoutNetwork()
    {
        FakeSdk::fail("NetSrv_GetSrvStatus");
        SignalLog log;
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(6604, nullptr), 1);
        QCOMPARE(log.take(), QStringList({"device true", "net false"}));
    }

    void theRadioSwitchDecidesWhateverTheService_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("1 0") << 1 << 0 << QStringList({"net false"});
        QTest::newRow("0 1") << 0 << 1 << QStringList({"net false"});
        QTest::newRow("1 1") << 1 << 1 << QStringList({"net true"});
    }

    void theRadioSwitchDecidesWhateverTheService()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(QStringList, lines);
        FakeSdk::setNetStatus(0);
        FakeSdk::setRadio(first, second);
        SignalLog log;
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(6615, nullptr), 1);
        QCOMPARE(log.take(), lines);
        QCOMPARE(FakeSdk::count("NetSrv_GetSrvStatus"), 0);
    }

    void aFailingRadioQueryLeavesTheStateAsItWas()
    {
        FakeSdk::fail("DevSrv_GetRFSwitch");
        SignalLog log;
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(6615, nullptr), 1);
        QCOMPARE(log.take(), QStringList());
    }

    void eventsOfTheSdksThreadArriveOnThisOne()
    {
        SignalLog log;
        AddrBookLogic::RegisterCallbacks();
        QCOMPARE(FakeSdk::fire(6014), 1);
        QCOMPARE(log.m_lines, QStringList());
        QCOMPARE(log.take(), QStringList({"device true", "net true"}));
        QCOMPARE(log.m_thread, QThread::currentThread());
        QCOMPARE(FakeSdk::fire(20302), 1);
        QCOMPARE(FakeSdk::fire(6615), 1);
        QCOMPARE(log.take(), QStringList({"simReady", "net true"}));
        AddrBookLogic::unSDKRegisterEvent();
        QCOMPARE(FakeSdk::fire(6014), -1);
    }

    void theServiceIsForgottenWithTheInstance()
    {
        logic();
        AddrBookLogic::OnDeviceMgrInitEvent(20301, nullptr);
        QVERIFY(AddrBookLogic::PbServiceReady());
        AddrBookLogic::Destroy();
        QVERIFY(!AddrBookLogic::PbServiceReady());
    }

    void theSystemModeIsInServiceAtStatusTwo()
    {
        QVERIFY(AddrBookLogic::GetSystemModeStatus());
        FakeSdk::setNetStatus(1);
        QVERIFY(!AddrBookLogic::GetSystemModeStatus());
        FakeSdk::setNetStatus(2);
        FakeSdk::fail("NetSrv_GetSrvStatus");
        QVERIFY(!AddrBookLogic::GetSystemModeStatus());
    }

    void theCardsPhonebookIsOpenByPinCardAndProduct_data()
    {
        QTest::addColumn<int>("pin");
        QTest::addColumn<int>("card");
        QTest::addColumn<int>("product");
        QTest::addColumn<bool>("valid");
        QTest::newRow("card 3, product 1") << 1 << 3 << 1 << true;
        QTest::newRow("card 4, product 1") << 1 << 4 << 1 << true;
        QTest::newRow("card 1, product 1") << 1 << 1 << 1 << false;
        QTest::newRow("card 4, product 2") << 1 << 4 << 2 << false;
        QTest::newRow("card 3, product 2") << 1 << 3 << 2 << true;
        QTest::newRow("card 1, product 2") << 1 << 1 << 2 << true;
        QTest::newRow("PIN 8") << 8 << 1 << 2 << true;
        QTest::newRow("PIN 0") << 0 << 1 << 2 << false;
        QTest::newRow("PIN 2") << 2 << 1 << 2 << false;
    }

    void theCardsPhonebookIsOpenByPinCardAndProduct()
    {
        QFETCH(int, pin);
        QFETCH(int, card);
        QFETCH(int, product);
        QFETCH(bool, valid);
        FakeSdk::setPinStatus(pin);
        FakeSdk::setCardType(card);
        FakeSdk::setProductType(product);
        QCOMPARE(logic()->IsSimValidForPB(), valid);
    }

    void failingQueriesOfTheCard()
    {
        FakeSdk::setCardType(4);
        FakeSdk::fail("DevSrv_GetSimType");
        QVERIFY(logic()->IsSimValidForPB());
        FakeSdk::fail("DevSrv_GetPinStatus");
        QVERIFY(!logic()->IsSimValidForPB());
        // The product counts as 3, no UIM product.
        FakeSdk::setCardType(1);
        FakeSdk::setProductType(1);
        FakeSdk::fail("DevSrv_GetProductType");
        QVERIFY(logic()->IsSimValidForPB());
    }

    void aDeviceThatWentHasItsFieldsFetchedAnew()
    {
        cacheFields(PB_MEM_LOCAL);
        cacheFields(PB_MEM_SIM);
        cacheFields(PB_MEM_ME);
        logic()->ClearDeviceInfo();
        QList<AddrBookField> card;
        QList<AddrBookField> device;
        QList<AddrBookField> local;
        QCOMPARE(logic()->GetAllFields(card, PB_MEM_SIM), 0);
        QCOMPARE(logic()->GetAllFields(device, PB_MEM_ME), 0);
        QCOMPARE(logic()->GetAllFields(local, PB_MEM_LOCAL), 0);
        QCOMPARE(FakeSdk::log(),
                 QStringList({"GetProfile(0)", "ProfileRelease(0)", "GetProfile(1)", "ProfileRelease(1)"}));
        QCOMPARE(local.size(), 6);
    }

    void fieldsOfADeviceThatGoesDuringTheFetchAreNotKept()
    {
        FakeSdk::onCall("ProfileRelease", 1, [] { AddrBookLogic::Instance()->ClearDeviceInfo(); });
        QList<AddrBookField> stale;
        QCOMPARE(logic()->GetAllFields(stale, PB_MEM_ME), 0);
        FakeSdk::setFields(PB_MEM_ME, FakeSdk::wideDeviceFields());
        QList<AddrBookField> fresh;
        QCOMPARE(logic()->GetAllFields(fresh, PB_MEM_ME), 0);
        QCOMPARE(fresh.size(), 4);
    }

    void countsStartAtZeroAndAreKept()
    {
        for (_ORVA_EN_PHONEBOOK_MEMORY memory : {PB_MEM_SIM, PB_MEM_ME, PB_MEM_LOCAL})
            QCOMPARE(logic()->recordCount(memory), 0);
        logic()->setRecordCount(PB_MEM_SIM, 17);
        QCOMPARE(logic()->recordCount(PB_MEM_SIM), 17);
        QCOMPARE(logic()->recordCount(PB_MEM_ME), 0);
        QCOMPARE(logic()->GetMobileIndex(), 1);
    }
};

QTEST_GUILESS_MAIN(TestBinding)
#include "tst_binding.moc"
