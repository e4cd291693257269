#include <QTableWidget>
#include <QTimer>
#include <QTreeWidgetItemIterator>

#include "linkhand/core/ExtendDialog.h"

#include "WindowFixture.h"

// Waits for the number picker and its complete tree, ticks "111" or goes to a node, and answers.
class PickerUser : public QTimer
{
public:
    PickerUser(bool multi, const QString& current, bool ok) : m_multi(multi), m_current(current), m_ok(ok)
    {
        connect(this, &QTimer::timeout, this, &PickerUser::look);
        start(0);
    }
    int seen() const { return m_seen; }

private:
    static QTreeWidgetItem* nodeOf(const QTreeWidget* tree, const QString& text)
    {
        for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(tree)); *it != nullptr; ++it) {
            if ((*it)->text(0).contains(text))
                return *it;
        }
        return nullptr;
    }

    void look()
    {
        if (FakeCore::dialogs().isEmpty() || !FakeCore::dialogs().first()->isVisible())
            return;
        ExtendDialog* const dialog = FakeCore::dialogs().first();
        auto* const tree = dialog->findChild<QTreeWidget*>("AddrBookUIPlugin_selectContacts_treeContacts");
        // The window is centred once more when the caller's numbers have been found.
        if (tree == nullptr || FakeCore::log().count("MoveCentre") < 3)
            return;
        stop();
        ++m_seen;
        QTreeWidgetItem* const node = nodeOf(tree, m_multi ? "111" : m_current);
        tree->setCurrentItem(node);
        if (m_multi)
            QTest::keyClick(tree, Qt::Key_Space);
        const char* const button =
            m_ok ? "AddrBookUIPlugin_selectContacts_buttonOK" : "AddrBookUIPlugin_selectContacts_buttonCancel";
        dialog->findChild<QAbstractButton*>(button)->click();
    }

    bool m_multi;
    QString m_current;
    bool m_ok;
    int m_seen = 0;
};

// Sending, calling, and telling others of changes.
class SendTest : public WindowTest
{
    Q_OBJECT

private:
    static QStringList pushes()
    {
        QStringList list;
        for (const FakeCore::Notice& notice : FakeCore::notices()) {
            if (notice.isPush)
                list << QString("%1 %2 %3").arg(notice.message).arg(notice.param1).arg(notice.param2);
        }
        return list;
    }

private slots:
    void selectedRowsGiveTheirFirstNumber()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::addRecord(4, {"Doro", "", "999"}); // its further numbers do not count
        f.build();
        f.selectRows({0, 3});
        QCOMPARE(f.window()->sendSingleSMS(), QString("111"));
        f.window()->OnButtonClickedSendSMS();
        QCOMPARE(FakeCore::sms().size(), 1);
        QCOMPARE(FakeCore::sms().first().numbers, QString("111"));
        QCOMPARE(FakeCore::sms().first().text, QString(""));
        QVERIFY(FakeCore::sms().first().parent == nullptr);
    }

    void rangesAreWalkedFromTheLastAndRowsFromTheTop()
    {
        WindowFixture f;
        for (const char* number : {"1", "2", "3", "4", "5"})
            FakeSdk::addRecord(4, {QString("N") + number, number});
        f.build();
        f.table()->clearSelection();
        f.table()->setRangeSelected(QTableWidgetSelectionRange(0, 0, 1, 5), true);
        f.table()->setRangeSelected(QTableWidgetSelectionRange(3, 0, 4, 5), true);
        QStringList expected;
        const QList<QTableWidgetSelectionRange> ranges = f.table()->selectedRanges();
        for (int i = ranges.size() - 1; i >= 0; --i) {
            for (int row = ranges.at(i).topRow(); row <= ranges.at(i).bottomRow(); ++row)
                expected << f.table()->item(row, 1)->text();
        }
        QCOMPARE(expected.size(), 4);
        QCOMPARE(f.window()->sendSingleSMS(), expected.join(";"));
    }

    void sameNumberTwiceOccursTwice()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"A", "12"});
        FakeSdk::addRecord(4, {"B", "12"});
        f.build();
        f.selectRows({0, 1});
        f.window()->OnButtonClickedSendMMS();
        QCOMPARE(FakeCore::mms(), QStringList{"12;12"});
    }

    void groupGivesTheMobileNumbersOfItsMembers()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        const int group = FakeSdk::addGroup("Three");
        for (int id : {1, 2, 3})
            FakeSdk::join(group, id);
        f.build();
        f.click(f.node("Three"));
        f.window()->OnButtonClickedSendGroupSMS();
        QCOMPARE(FakeCore::sms().last().numbers, QString("111;444;555"));
        f.window()->OnButtonClickedSendGroupMMS();
        QCOMPARE(FakeCore::mms().last(), QString("111;444;555"));
    }

    void rowsThatASearchHidesCountInAGroup()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnTextEdited("Anna");
        QCOMPARE(f.table()->rowCount(), 1);
        QCOMPARE(f.window()->sendMultipleSMS(), QString("111;444;555"));
    }

    void cardNodeOpensTheEditorWithoutRecipients()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        f.window()->OnButtonClickedSendGroupSMS();
        QCOMPARE(FakeCore::sms().size(), 1);
        QCOMPARE(FakeCore::sms().first().numbers, QString(""));
    }

    void memberThatIsGoneIsPassedOver()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        const int group = FakeSdk::addGroup("Ghosts");
        FakeSdk::setMissingRecordGivesNull(true);
        FakeSdk::join(group, 4711);
        FakeSdk::join(group, 1);
        f.build();
        f.click(f.node("Ghosts"));
        QCOMPARE(f.window()->sendMultipleSMS(), QString("111"));
    }

    void nothingIsSentOffline_data()
    {
        QTest::addColumn<bool>("net");
        QTest::addColumn<bool>("radioOff");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<bool>("sent");
        QTest::newRow("online, one row") << true << false << true << true;
        QTest::newRow("online, none") << true << false << false << false;
        QTest::newRow("no network") << false << false << true << false;
        QTest::newRow("radio off") << true << true << true << false;
    }
    void nothingIsSentOffline()
    {
        QFETCH(bool, net);
        QFETCH(bool, radioOff);
        QFETCH(bool, selected);
        QFETCH(bool, sent);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnNetStatusChanged(net);
        f.window()->OnRFStatusChanged(radioOff);
        f.selectRows(selected ? QList<int>{2} : QList<int>{});
        f.window()->OnButtonClickedSendSMS();
        f.window()->OnButtonClickedSendMMS();
        f.window()->OnButtonClickedCall();
        QCOMPARE(FakeCore::sms().size(), sent ? 1 : 0);
        QCOMPARE(FakeCore::mms().size(), sent ? 1 : 0);
        QCOMPARE(FakeCore::madeCalls().size(), sent ? 1 : 0);
        f.window()->OnButtonClickedSendGroupSMS();
        f.window()->OnButtonClickedSendGroupMMS();
        QCOMPARE(FakeCore::sms().size(), net && !radioOff ? (sent ? 2 : 1) : 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void absentSiblingsAndFailedCastsAreSilent()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        QObject stranger; // no service
        FakeCore::setSiblingObject(FakeCore::SmsId, 4097, &stranger);
        FakeCore::setSiblingObject(FakeCore::MmsId, 32785, &stranger);
        FakeCore::setSiblingObject(FakeCore::NotifyId, 8209, &stranger);
        FakeCore::setSiblingObject(FakeCore::DeviceMgrId, 4097, &stranger);
        FakeCore::clearNotices();
        for (int round = 0; round < 3; ++round) {
            f.window()->OnButtonClickedSendSMS();
            f.window()->OnButtonClickedSendMMS();
            f.window()->OnButtonClickedSendGroupSMS();
            f.window()->OnButtonClickedSendGroupMMS();
            f.window()->broadcastMsg(291, 1, 0);
            f.window()->pushNotify(288, 4, 1);
            QVERIFY(f.window()->getDeviceMgrPlugin() == nullptr);
            if (round == 0) {
                for (const char* id : {FakeCore::SmsId, FakeCore::MmsId, FakeCore::NotifyId, FakeCore::DeviceMgrId})
                    FakeCore::setSibling(id, false);
            }
            if (round == 1)
                FakeCore::setContainerPresent(false);
        }
        QVERIFY(FakeCore::sms().isEmpty());
        QVERIFY(FakeCore::mms().isEmpty());
        QVERIFY(FakeCore::notices().isEmpty());
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void siblingsAreAskedForByKind()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        f.window()->OnButtonClickedSendSMS();
        QCOMPARE(FakeCore::lookups().last(), QString("%1 4097").arg(FakeCore::SmsId));
        f.window()->OnButtonClickedSendMMS();
        QCOMPARE(FakeCore::lookups().last(), QString("%1 32785").arg(FakeCore::MmsId));
        f.window()->broadcastMsg(291, 1, 0);
        QCOMPARE(FakeCore::lookups().last(), QString("%1 8209").arg(FakeCore::NotifyId));
        QVERIFY(f.window()->getDeviceMgrPlugin() != nullptr);
        QCOMPARE(FakeCore::lookups().last(), QString("%1 4097").arg(FakeCore::DeviceMgrId));
    }

    void severalNumbersAreOfferedInTheOrderMobileBusinessHome()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"Mobile and home", "1", "", "3"});
        f.build();
        f.selectRows({0});
        f.window()->OnButtonClickedCall();
        QVERIFY(FakeCore::madeCalls().isEmpty());
        QCOMPARE(FakeCore::dialogs().size(), 1);
        QTableWidget* const numbers = FakeCore::dialogs().first()->findChild<QTableWidget*>();
        QVERIFY(numbers != nullptr);
        QCOMPARE(numbers->rowCount(), 2);
        QCOMPARE(numbers->item(0, 0)->text(), QString("ID_STR_MOBILE_PHONE"));
        QCOMPARE(numbers->item(0, 1)->text(), QString("1"));
        QCOMPARE(numbers->item(1, 0)->text(), QString("ID_STR_HOME_PHONE"));
        QCOMPARE(numbers->item(1, 1)->text(), QString("3"));
    }

    void oneNumberIsCalledAtOnce_data()
    {
        QTest::addColumn<QStringList>("record");
        QTest::addColumn<QString>("called");
        QTest::newRow("mobile") << QStringList{"A", "1"} << "1";
        QTest::newRow("business") << QStringList{"A", "", "2"} << "2";
        QTest::newRow("home") << QStringList{"A", "", "", "3"} << "3";
        QTest::newRow("none") << QStringList{"A", "", "", "", "4@x.org"} << "";
    }
    void oneNumberIsCalledAtOnce()
    {
        QFETCH(QStringList, record);
        QFETCH(QString, called);
        WindowFixture f;
        FakeSdk::addRecord(4, record);
        f.build();
        f.selectRows({0});
        f.window()->OnButtonClickedCall();
        QCOMPARE(FakeCore::madeCalls().size(), called.isEmpty() ? 0 : 1);
        if (!called.isEmpty()) {
            QCOMPARE(FakeCore::madeCalls().first().number, called);
            QCOMPARE(FakeCore::madeCalls().first().type, 0);
        }
        QVERIFY(FakeCore::dialogs().isEmpty());
    }

    void memoryOfTwoFieldsHasOneNumberColumn()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        f.selectRows({0});
        f.window()->OnButtonClickedCall();
        QCOMPARE(FakeCore::madeCalls().size(), 1);
        QCOMPARE(FakeCore::madeCalls().first().number, QString("666"));
    }

    // A table still on the PC's contacts has more number columns than the memory of the current node.
    void memoryOfTwoFieldsOffersItsFirstNumberAlone()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"Anna", "111", "222", "333"});
        f.build();
        f.selectRows({0});
        {
            const QSignalBlocker quiet(f.tree());
            f.tree()->setCurrentItem(f.in().sim());
        }
        QCOMPARE(f.table()->columnCount(), 6);
        f.window()->OnButtonClickedCall();
        QCOMPARE(FakeCore::madeCalls().size(), 1);
        QCOMPARE(FakeCore::madeCalls().first().number, QString("111"));
        QVERIFY(FakeCore::dialogs().isEmpty());
    }

    void messageOpensAboveTheWindowsPage()
    {
        QWidget page;
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->setParent(&page);
        f.selectRows({0});
        f.window()->OnButtonClickedSendSMS();
        QCOMPARE(FakeCore::sms().size(), 1);
        QCOMPARE(FakeCore::sms().first().parent, &page);
        f.window()->setParent(nullptr);
    }

    void changesAreToldOncePerNumber()
    {
        WindowFixture f;
        f.build();
        FakeCore::clearNotices();
        f.in().memory() = PB_MEM_ME;
        f.in().notifyRecords() = {AddrBookRecord{7, {"123", "456"}}, AddrBookRecord{8, {"9"}},
                                  AddrBookRecord{7, {"789"}}, AddrBookRecord{7, {}}};
        f.window()->sendNotifyToSMS(7, 289);
        QCOMPARE(pushes(), (QStringList{"289 1 123", "289 1 456", "289 1 789"}));
        QCOMPARE(f.in().notifyRecords().size(), 1);
        QCOMPARE(f.in().notifyRecords().first().iID, 8);
    }

    void numberThatDoesNotFitIsToldAsZero()
    {
        WindowFixture f;
        f.build();
        FakeCore::clearNotices();
        f.in().memory() = PB_MEM_LOCAL;
        f.in().notifyRecords() = {AddrBookRecord{1, {"+4917", "2147483647", "2147483648", "12a"}}};
        f.window()->sendNotifyToSMS(1, 288);
        QCOMPARE(pushes(), (QStringList{"288 4 0", "288 4 2147483647", "288 4 0", "288 4 0"}));
    }

    void deletedContactWithoutNumbersIsToldToNobody()
    {
        WindowFixture f;
        f.build();
        FakeCore::clearNotices();
        f.in().notifyRecords() = {AddrBookRecord{1, {}}};
        f.window()->sendNotifyToSMS(1, 290);
        QVERIFY(pushes().isEmpty());
        QVERIFY(f.in().notifyRecords().isEmpty());
    }

    void pickedNumbersReplaceTheCallersOnOkAlone_data()
    {
        QTest::addColumn<bool>("multi");
        QTest::addColumn<QString>("current"); // the node the user goes to
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QStringList>("numbers");
        QTest::newRow("several, OK") << true << "" << true << QStringList{"999", "111"};
        QTest::newRow("several, Cancel") << true << "" << false << QStringList{"999"};
        QTest::newRow("one, OK") << false << "Carl" << true << QStringList{"999", "555"};
        QTest::newRow("one, OK on a group") << false << "Friends" << true << QStringList{"999"};
        QTest::newRow("one, Cancel") << false << "Carl" << false << QStringList{"999"};
    }
    void pickedNumbersReplaceTheCallersOnOkAlone()
    {
        QFETCH(bool, multi);
        QFETCH(QString, current);
        QFETCH(bool, ok);
        QFETCH(QStringList, numbers);
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setDevicePresent(false);
        f.build();
        FakeCore::clearLog();
        PickerUser user(multi, current, ok);
        QList<QString> chosen{"999"};
        QCOMPARE(f.window()->OpenNumSelectDlg(multi, FIELD_TYPE_DEFAULT, chosen), ok);
        QCOMPARE(user.seen(), 1);
        QCOMPARE(QStringList(chosen), numbers);
        QVERIFY(FakeCore::dialogs().isEmpty());
    }

    // The picker hangs below the host's window, and goes with it.
    void hostsWindowThatGoesUnderThePickerLeavesTheCallersNumbers_data()
    {
        QTest::addColumn<bool>("host");
        QTest::newRow("the host's window") << true;
        QTest::newRow("the phonebook's") << false;
    }
    void hostsWindowThatGoesUnderThePickerLeavesTheCallersNumbers()
    {
        QFETCH(bool, host);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        for (int i = 0; i < 500; ++i)
            FakeSdk::addRecord(0, {QString("Card %1").arg(i), "1"});
        FakeSdk::setDelay("AddrRecordSet_GetID", 20);
        FakeSdk::setRecording(false);
        const int first = FakeSdk::count("AddrRecordSet_GetID");
        int before = 0;
        int alive = 0;
        auto* mainWindow = new QWidget;
        FakeCore::setMainWindow(mainWindow);
        QTimer user;
        connect(&user, &QTimer::timeout, [&] {
            // A worker is in the middle of the card.
            before = FakeSdk::count("AddrRecordSet_GetID");
            if (FakeCore::dialogs().isEmpty() || !FakeCore::dialogs().first()->isVisible() || before < first + 10)
                return;
            user.stop();
            if (host) {
                delete mainWindow;
            } else {
                f.destroy();
                alive = FakeCore::runningWorkers(); // none works on when the window and with it the logic has gone
                FakeCore::dialogs().first()->close();
            }
        });
        user.start(0);
        QList<QString> numbers{"999"};
        QVERIFY(!f.window()->OpenNumSelectDlg(true, FIELD_TYPE_DEFAULT, numbers));
        QCOMPARE(numbers, QList<QString>{"999"});
        QVERIFY(FakeCore::dialogs().isEmpty());
        QCOMPARE(alive, 0);
        QCOMPARE(FakeCore::runningWorkers(), 0);
        QVERIFY(FakeSdk::count("AddrRecordSet_GetID") <= before + 5); // a record for each worker at most
        FakeCore::setMainWindow(nullptr);
        if (!host)
            delete mainWindow;
    }

    void phoneFieldsAreThoseOfTheDragSource()
    {
        WindowFixture f;
        f.build();
        f.in().dragSource() = PB_MEM_LOCAL;
        QVERIFY(f.window()->isPhoneField("ID_STR_HOME_PHONE"));
        QVERIFY(!f.window()->isPhoneField("ID_STR_NAME"));
        QCOMPARE(f.window()->getPhoneFieldCount({"ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_HOME_PHONE"}), 2);
        f.in().dragSource() = PB_MEM_SIM;
        QVERIFY(!f.window()->isPhoneField("ID_STR_HOME_PHONE"));
        QVERIFY(f.window()->isPhoneField("ID_STR_MOBILE_PHONE"));
    }
};

QTEST_MAIN(SendTest)
#include "SendTest.moc"
