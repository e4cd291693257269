#include "WindowFixture.h"
#include "dialogs/AddrBookWaitingDlg.h"
#include "worker/AddrBookThread.h"

// How device, card, network and radio change the window.
class StatusTest : public WindowTest
{
    Q_OBJECT

private:
    static QList<QPair<int, int>> broadcasts()
    {
        QList<QPair<int, int>> list;
        for (const FakeCore::Notice& notice : FakeCore::notices()) {
            if (!notice.isPush)
                list << qMakePair(int(notice.message), int(notice.param1));
        }
        return list;
    }

    // A copy to a memory that goes on for as long as the window lives.
    static void startBatch(const WindowFixture& f, int memory, AddrBookWaitingDlg* dialog)
    {
        f.in().worker().DisconnectSignals();
        AddrBookBatch::Order order;
        order.enOperation = ADDRBOOK_OP_COPY;
        order.enMemory = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory);
        f.in().batch().start(order, dialog);
    }

private slots:
    void radioSwitchFailureLeavesTheWindowWorking()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::failAlways("DevSrv_GetRFSwitch");
        f.build();
        QVERIFY(!f.in().radioOff());
        QCOMPARE(f.table()->rowCount(), 3);
        f.selectRows({0});
        QVERIFY(f.button(TOOL_SEND)->isEnabled());
    }

    void radioWordsDecide_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<bool>("off");
        QTest::newRow("both on") << 1 << 1 << false;
        QTest::newRow("second off") << 1 << 0 << true;
        QTest::newRow("first off") << 0 << 1 << true;
        QTest::newRow("both off") << 0 << 0 << true;
    }
    void radioWordsDecide()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(bool, off);
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setRadio(first, second);
        f.build();
        QCOMPARE(f.in().radioOff(), off);
        f.selectRows({0});
        f.window()->OnNetStatusChanged(true);
        f.window()->OnTableItemSelectionChanged();
        QCOMPARE(f.button(TOOL_SEND)->isEnabled(), !off);
        QCOMPARE(f.button(TOOL_CALL)->isEnabled(), !off);
        QCOMPARE(f.tableAction("IDS_PMMENU_SEND_MSG")->isEnabled(), !off);
    }

    void lostDeviceWithTheCardCurrentLandsOnTheLocalNode()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        QCOMPARE(f.column(0), QStringList{"Dora"});
        FakeCore::clearNotices();
        f.window()->OnDeviceStatusChanged(false);
        QVERIFY(f.waitRead());
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QCOMPARE(f.column(0), (QStringList{"Anna", "Bert", "Carl"}));
        QVERIFY(f.in().sim() == nullptr);
        QVERIFY(f.in().device() == nullptr);
        QCOMPARE(f.tree()->topLevelItemCount(), 1);
        QCOMPARE(broadcasts(), (QList<QPair<int, int>>{{291, 0}, {292, 0}}));
        QVERIFY(f.in().current() == nullptr);
    }

    void lostDeviceForgetsItsFieldLists()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().device());
        f.window()->OnDeviceStatusChanged(false);
        QVERIFY(f.waitRead());
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        f.window()->OnDeviceStatusChanged(true);
        f.click(f.in().device());
        QCOMPARE(f.table()->columnCount(), FakeSdk::wideDeviceFields().size());
    }

    void lostDeviceDuringACopyCancelsTheWaitingDialog_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<bool>("busy");
        QTest::addColumn<bool>("cancelled");
        QTest::newRow("copy to the card") << 0 << true << true;
        QTest::newRow("copy to the device") << 1 << true << true;
        QTest::newRow("copy to the PC") << 4 << true << false;
        QTest::newRow("no batch") << 0 << false << false;
    }
    void lostDeviceDuringACopyCancelsTheWaitingDialog()
    {
        QFETCH(int, memory);
        QFETCH(bool, busy);
        QFETCH(bool, cancelled);
        WindowFixture f;
        f.build();
        AddrBookWaitingDlg* const dialog = AddrBookWaitingDlg::GetWaitingDlgInstance(f.window());
        dialog->ShowAnimation("copying", 5);
        if (busy)
            startBatch(f, memory, dialog);
        f.window()->OnDeviceStatusChanged(false);
        QCOMPARE(dialog->GetProgressDlgCancelStatus(), cancelled);
        QVERIFY(f.waitRead());
    }

    void cardReportedTwiceAddsOneNode()
    {
        WindowFixture f;
        FakeSdk::setCardPresent(false);
        f.build();
        QVERIFY(f.in().sim() == nullptr);
        FakeCore::clearNotices();
        f.window()->OnSimStatusChanged(true);
        f.window()->OnSimStatusChanged(true);
        QVERIFY(f.in().sim() != nullptr);
        QCOMPARE(f.tree()->topLevelItemCount(), 3);
        QVERIFY(broadcasts().isEmpty());
        f.window()->OnSimStatusChanged(false);
        QVERIFY(f.in().sim() == nullptr);
        QCOMPARE(f.tree()->topLevelItemCount(), 2);
        QCOMPARE(broadcasts(), (QList<QPair<int, int>>{{291, 0}}));
    }

    // Until a device was reported the window takes the card for out already.
    void cardReportedOutBeforeAnyDeviceKeepsItsNode()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeCore::clearNotices();
        f.window()->OnSimStatusChanged(false);
        QVERIFY(f.in().sim() != nullptr);
        QCOMPARE(f.tree()->topLevelItemCount(), 3);
        QVERIFY(broadcasts().isEmpty());
    }

    void reportsThatTakeTheCardAway_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<int>("memory");
        QTest::addColumn<bool>("cancelled");
        QTest::addColumn<bool>("toLocal"); // the table goes to the PC's phonebook
        const char* const disabled = "OnSimDisabled(true)";
        const char* const invalid = "OnSimStatusChanged(false)";
        const char* const mode = "OnSysmodeChanged()";
        QTest::newRow("disabled, copy to the card") << QByteArray(disabled) << 0 << true << true;
        QTest::newRow("disabled, copy to the device") << QByteArray(disabled) << 1 << false << true;
        QTest::newRow("invalid, copy to the card") << QByteArray(invalid) << 0 << false << false;
        QTest::newRow("mode, copy to the card") << QByteArray(mode) << 0 << true << true;
        QTest::newRow("mode, copy to the device") << QByteArray(mode) << 1 << true << true;
        QTest::newRow("mode, copy to the PC") << QByteArray(mode) << 4 << false << true;
    }
    void reportsThatTakeTheCardAway()
    {
        QFETCH(QByteArray, report);
        QFETCH(int, memory);
        QFETCH(bool, cancelled);
        QFETCH(bool, toLocal);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnDeviceStatusChanged(true);
        f.click(f.in().sim());
        AddrBookWaitingDlg* const dialog = AddrBookWaitingDlg::GetWaitingDlgInstance(f.window());
        dialog->ShowAnimation("copying", 5);
        startBatch(f, memory, dialog);
        if (report == "OnSysmodeChanged()")
            f.window()->OnSysmodeChanged();
        else if (report == "OnSimDisabled(true)")
            f.window()->OnSimDisabled(true);
        else
            f.window()->OnSimStatusChanged(false);
        QVERIFY(f.in().sim() == nullptr);
        QCOMPARE(dialog->GetProgressDlgCancelStatus(), cancelled);
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), toLocal ? (QStringList{"Anna", "Bert", "Carl"}) : QStringList{"Dora"});
    }

    void changedSystemModeOnTheLocalNodeReloadsNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const AddrBookThread* reader = f.in().reader();
        FakeCore::clearNotices();
        f.window()->OnSysmodeChanged();
        QCOMPARE(static_cast<const AddrBookThread*>(f.in().reader()), reader);
        QCOMPARE(f.tree()->topLevelItemCount(), 1);
        // The card's code for both.
        QCOMPARE(broadcasts(), (QList<QPair<int, int>>{{291, 0}, {291, 0}}));
        QVERIFY(f.in().sim() == nullptr);
        QVERIFY(f.in().device() == nullptr);
    }

    void changedSystemModeElsewhereGoesToTheLocalNode()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().device());
        f.window()->OnSysmodeChanged();
        QVERIFY(f.waitRead());
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QCOMPARE(f.table()->rowCount(), 3);
    }

    void readyCardThatIsRefusedAddsNoNodeButForcesAReload()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setPinStatus(2);
        f.build();
        QVERIFY(f.in().sim() == nullptr);
        QCOMPARE(f.in().current(), f.in().local());
        f.window()->OnAddrBookSimReady();
        QVERIFY(f.in().sim() == nullptr);
        QVERIFY(f.in().current() == nullptr);
        FakeSdk::addRecord(4, {"Gero", "9"});
        f.click(f.in().local());
        QCOMPARE(f.table()->rowCount(), 4);
    }

    void readyMemoryThatIsCurrentIsReadAgain()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        FakeSdk::addRecord(0, {"Hans", "1"});
        f.window()->OnAddrBookSimReady();
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), (QStringList{"Dora", "Hans"}));
        f.click(f.in().device());
        FakeSdk::addRecord(1, {"Ida", "1"});
        f.window()->OnAddrBookDeviceReady();
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), (QStringList{"Emil", "Frida", "Ida"}));
    }

    void hostsNoticeOfTheCardTakesTheNodeAndGivesItBack()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        f.window()->OnSimDisabled(true);
        QVERIFY(f.waitRead());
        QVERIFY(f.in().sim() == nullptr);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        f.window()->OnSimDisabled(false);
        QVERIFY(f.in().sim() != nullptr);
    }

    void sdkEventsReachTheWindowFromTheirThread()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::setDevicePresent(false);
        FakeSdk::fire(6014);
        QTRY_VERIFY(f.in().device() == nullptr);
        FakeSdk::setDevicePresent(true);
        FakeSdk::fire(6014);
        QTRY_VERIFY(f.in().device() != nullptr);
        QVERIFY(f.in().sim() != nullptr);
        FakeSdk::fire(6002); // the card is out
        QTRY_VERIFY(f.in().sim() == nullptr);
        QVERIFY(!f.in().netConnected());
    }

    void memoryThatBecomesReadyIsReadAgainOnTheSdksWord()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        FakeSdk::addRecord(0, {"Hans", "1"});
        QCOMPARE(FakeSdk::fire(20302), 1);
        QTRY_COMPARE(f.column(0), (QStringList{"Dora", "Hans"}));
        QVERIFY(f.waitRead());
        f.click(f.in().device());
        FakeSdk::addRecord(1, {"Ida", "1"});
        QCOMPARE(FakeSdk::fire(20303), 1);
        QTRY_COMPARE(f.column(0), (QStringList{"Emil", "Frida", "Ida"}));
        QVERIFY(f.waitRead());
    }

    void networkComingBackEnablesByTheSelection_data()
    {
        QTest::addColumn<QList<int>>("rows");
        QTest::addColumn<bool>("send");
        QTest::addColumn<bool>("call");
        QTest::newRow("none") << QList<int>{} << false << false;
        QTest::newRow("one") << QList<int>{1} << true << true;
        QTest::newRow("two") << QList<int>{0, 2} << true << false;
    }
    void networkComingBackEnablesByTheSelection()
    {
        QFETCH(QList<int>, rows);
        QFETCH(bool, send);
        QFETCH(bool, call);
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setNetStatus(0);
        f.build();
        f.selectRows(rows);
        QVERIFY(!f.button(TOOL_SEND)->isEnabled());
        f.window()->OnNetStatusChanged(true);
        QCOMPARE(f.button(TOOL_SEND)->isEnabled(), send);
        QCOMPARE(f.button(TOOL_CALL)->isEnabled(), call);
        QCOMPARE(f.tableAction("IDS_PMMENU_CALL")->isEnabled(), call);
        f.window()->OnNetStatusChanged(false);
        QVERIFY(!f.button(TOOL_SEND)->isEnabled());
        QVERIFY(!f.button(TOOL_CALL)->isEnabled());
    }

    void radioComingBackEnablesTheCallForSeveralRowsToo()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0, 2});
        QVERIFY(!f.button(TOOL_CALL)->isEnabled());
        f.window()->OnRFStatusChanged(true);
        QVERIFY(!f.button(TOOL_SEND)->isEnabled());
        f.window()->OnRFStatusChanged(false);
        QVERIFY(f.button(TOOL_CALL)->isEnabled());
        QVERIFY(f.button(TOOL_SEND)->isEnabled());
        f.window()->OnTableItemSelectionChanged();
        QVERIFY(!f.button(TOOL_CALL)->isEnabled());
    }

    void nodeThatGoesIsForgottenEverywhere()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        f.in().editedGroup() = f.in().sim();
        f.in().groupParent() = f.in().sim();
        f.in().entered() = f.in().sim();
        QCOMPARE(f.tree()->m_pitemPrevious, f.in().sim());
        f.window()->OnDeviceStatusChanged(true);
        f.window()->OnSimStatusChanged(false);
        QVERIFY(f.in().editedGroup() == nullptr);
        QVERIFY(f.in().groupParent() == nullptr);
        QVERIFY(f.in().entered() == nullptr);
        QVERIFY(f.tree()->m_pitemPrevious == nullptr || f.node(f.tree()->m_pitemPrevious->text(0)) != nullptr);
        QVERIFY(f.in().current() == nullptr || f.node(f.in().current()->text(0)) != nullptr);
        f.window()->OnDragTargetChanged(f.window());
    }
};

QTEST_MAIN(StatusTest)
#include "StatusTest.moc"
