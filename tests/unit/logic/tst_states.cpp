#include <QSignalSpy>

#include <thread>

#include "LogicTest.h"

// States of device, radio and card beside the few that have a meaning, and what else the logic takes as it comes.
class TestStates : public LogicTest
{
    Q_OBJECT

private slots:
    void onlyStatusThreeIsAnAvailableDevice_data()
    {
        QTest::addColumn<int>("status");
        for (const int status : {-1, 0, 1, 2, 4, 5, 6, 7, 100})
            QTest::addRow("%d", status) << status;
    }
    void onlyStatusThreeIsAnAvailableDevice()
    {
        QFETCH(int, status);
        FakeSdk::setDevStatus(status);
        QSignalSpy device(logic(), SIGNAL(signalDeviceConnected(bool)));
        QSignalSpy net(logic(), SIGNAL(signalNetStatus(bool)));
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(6601, nullptr), 1);
        QCOMPARE(device.count(), 1);
        QCOMPARE(device.at(0).at(0).toBool(), false);
        QCOMPARE(net.count(), 1);
        QCOMPARE(net.at(0).at(0).toBool(), false);
    }

    void onlyTwoOnesAreARadioThatIsOn_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        const QList<QPair<int, int>> words = {{0, 0}, {1, 2}, {2, 1}, {2, 2}, {-1, -1}, {1, -1}, {3, 1}, {1, 257}};
        for (const auto& word : words)
            QTest::addRow("%d %d", word.first, word.second) << word.first << word.second;
    }
    void onlyTwoOnesAreARadioThatIsOn()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        FakeSdk::setRadio(first, second);
        QSignalSpy net(logic(), SIGNAL(signalNetStatus(bool)));
        QCOMPARE(AddrBookLogic::OnDeviceMgrInitEvent(6615, nullptr), 1);
        QCOMPARE(net.count(), 1);
        QCOMPARE(net.at(0).at(0).toBool(), false);
    }

    void pinStatusOneAndEightAloneOpenTheCard_data()
    {
        QTest::addColumn<int>("status");
        for (const int status : {-1, 0, 2, 3, 7, 9, 10, 16, 255, 257, 264})
            QTest::addRow("%d", status) << status;
    }
    void pinStatusOneAndEightAloneOpenTheCard()
    {
        QFETCH(int, status);
        FakeSdk::setPinStatus(status);
        QVERIFY(!logic()->IsSimValidForPB());
    }

    void cardTypesAndProducts_data()
    {
        QTest::addColumn<int>("card");
        QTest::addColumn<int>("product");
        QTest::addColumn<bool>("valid");
        QTest::newRow("card 0, product 1") << 0 << 1 << false;
        QTest::newRow("card 0, product 2") << 0 << 2 << true;
        QTest::newRow("card 0, product 0") << 0 << 0 << true;
        QTest::newRow("card 5, product 1") << 5 << 1 << false;
        QTest::newRow("card 5, product 3") << 5 << 3 << true;
        QTest::newRow("card 4, product 0") << 4 << 0 << false;
        QTest::newRow("card -1, product 1") << -1 << 1 << false;
    }
    void cardTypesAndProducts()
    {
        QFETCH(int, card);
        QFETCH(int, product);
        QFETCH(bool, valid);
        FakeSdk::setCardType(card);
        FakeSdk::setProductType(product);
        QCOMPARE(logic()->IsSimValidForPB(), valid);
    }

    void theLastOfTwoFieldsOfKindMobileIsTheMobile()
    {
        QList<FakeSdk::Field> fields = FakeSdk::localFields();
        fields[3].kind = "Mobile";
        FakeSdk::setFields(PB_MEM_LOCAL, fields);
        QList<AddrBookField> list;
        QCOMPARE(logic()->GetAllFields(list, PB_MEM_LOCAL), 0);
        QCOMPARE(logic()->GetMobileIndex(), 3);
        // The card's fields do not count.
        fields = FakeSdk::cardFields();
        fields[0].kind = "Mobile";
        FakeSdk::setFields(PB_MEM_SIM, fields);
        list.clear();
        QCOMPARE(logic()->GetAllFields(list, PB_MEM_SIM), 0);
        QCOMPARE(logic()->GetMobileIndex(), 3);
    }

    void anotherThreadGetsTheObjectAndMakesNone()
    {
        AddrBookLogic* seen = nullptr;
        AddrBookLogic* const own = logic();
        std::thread([&seen] { seen = AddrBookLogic::Instance(); }).join();
        QCOMPARE(seen, own);
        AddrBookLogic::Destroy();
        std::thread([&seen] { seen = AddrBookLogic::Instance(); }).join();
        QVERIFY(seen == nullptr);
        QVERIFY(logic() != nullptr);
    }
};

QTEST_GUILESS_MAIN(TestStates)
#include "tst_states.moc"
