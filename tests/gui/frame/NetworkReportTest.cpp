#include "../window/WindowFixture.h"
#include "frame/AddrBookUIPlugin.h"

// The window learns the state of the network whenever it is shown.
class NetworkReportTest : public WindowTest
{
    Q_OBJECT

private:
    static AddrBookDlg* window()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (AddrBookDlg* dialog = qobject_cast<AddrBookDlg*>(widget))
                return dialog;
        }
        return nullptr;
    }

private slots:
    void shownWindowKnowsTheNetworkAsItIsNow_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("now");
        QTest::addColumn<bool>("connected");
        QTest::newRow("still in service") << 2 << 2 << true;
        QTest::newRow("come into service") << 0 << 2 << true;
        QTest::newRow("lost") << 2 << 0 << false;
        QTest::newRow("restricted") << 2 << 1 << false;
        QTest::newRow("another state") << 2 << 3 << false;
    }
    void shownWindowKnowsTheNetworkAsItIsNow()
    {
        QFETCH(int, before);
        QFETCH(int, now);
        QFETCH(bool, connected);
        FakeCore::reset();
        FakeSdk::reset();
        QWidget page;
        CAddrBookUIPlugin plugin;
        FakeSdk::setNetStatus(before);
        plugin.Init();
        QVERIFY(window() != nullptr);
        const AddrBookDlgAccess in{window()};
        FakeSdk::setNetStatus(now);
        QRect rect(0, 0, 800, 600);
        QVERIFY(plugin.ShowWindow(&page, rect));
        QCOMPARE(in.netConnected(), connected);
        plugin.UnSDKRegisterEvent();
        plugin.OnDestroy();
    }

    void queryThatFailsIsNoNetwork()
    {
        FakeCore::reset();
        FakeSdk::reset();
        QWidget page;
        CAddrBookUIPlugin plugin;
        plugin.Init();
        const AddrBookDlgAccess in{window()};
        QVERIFY(in.netConnected());
        FakeSdk::failAlways("NetSrv_GetSrvStatus");
        QRect rect(0, 0, 800, 600);
        QVERIFY(plugin.ShowWindow(&page, rect));
        QVERIFY(!in.netConnected());
        plugin.UnSDKRegisterEvent();
        plugin.OnDestroy();
    }
};

QTEST_MAIN(NetworkReportTest)
#include "NetworkReportTest.moc"
