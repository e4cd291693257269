#include <QAction>

#include <atomic>

#include "ContactsSupport.h"

// "New" and "import" are off while the memory is full.
class CapacityTest : public WindowTest
{
    Q_OBJECT

private:
    static bool newIsOn(const WindowFixture& f)
    {
        const bool on = f.in().newContactEnabled();
        if (f.button(TOOL_NEW)->isEnabled() != on || f.tableAction("IDS_PMMENU_ADD")->isEnabled() != on ||
            f.tableAction("IDS_IMPORT_PHONEBOOK")->isEnabled() != on)
            qFatal("tool item, menu entries and gate disagree");
        return on;
    }

private slots:
    void figuresDecide_data()
    {
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("used");
        QTest::addColumn<bool>("room");
        QTest::newRow("0 of 0, a memory that is not ready") << 0 << 0 << true;
        QTest::newRow("some of 0") << 0 << 5 << true;
        QTest::newRow("total unknown") << -1 << 5 << true;
        QTest::newRow("one place left") << 50 << 49 << true;
        QTest::newRow("full") << 50 << 50 << false;
        QTest::newRow("over full") << 50 << 51 << false;
        QTest::newRow("below zero used") << 50 << -1 << true;
    }
    void figuresDecide()
    {
        QFETCH(int, total);
        QFETCH(int, used);
        QFETCH(bool, room);
        WindowFixture f;
        f.build();
        for (bool before : {true, false}) {
            f.window()->enableDisableNewContact(before ? 0 : 1, 1);
            QCOMPARE(newIsOn(f), before);
            f.window()->enableDisableNewContact(total, used);
            QCOMPARE(newIsOn(f), room);
        }
    }

    void missingMenuEntriesAreNoHindrance()
    {
        WindowFixture f;
        QByteArray config = WindowFixture::shippedConfig();
        config.replace("<item id=\"IDS_PMMENU_ADD\" type=\"ITEM\"/>", "");
        config.replace("<item id=\"IDS_IMPORT_PHONEBOOK\" type=\"ITEM\"/>", "");
        FakeCore::setMenuXml(config);
        f.build();
        QVERIFY(f.tableAction("IDS_PMMENU_ADD") == nullptr);
        f.window()->enableDisableNewContact(5, 5);
        QVERIFY(!f.in().newContactEnabled());
        QVERIFY(!f.button(TOOL_NEW)->isEnabled());
    }

    void fullMemoryStopsNewFromEveryWayIn()
    {
        WindowFixture f;
        Contacts::fill(0, "Name", 50);
        FakeSdk::setCapacity(0, 50);
        f.build();
        QVERIFY(newIsOn(f));
        f.click(f.in().sim());
        QVERIFY(!newIsOn(f));
        FormUser user("Abel", "1");
        f.window()->OnButtonClickedNewContact();
        QMetaObject::invokeMethod(f.table(), "newContact");
        QMetaObject::invokeMethod(f.tree(), "newContact");
        QCOMPARE(user.forms(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        f.click(f.in().local());
        QVERIFY(newIsOn(f));
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(user.forms(), 1);
    }

    // The key stays live when button and entry are off.
    void keyOfANewContactObeysTheCapacity()
    {
        WindowFixture f;
        FakeCore::setShortcut("IDS_PMMENU_ADD", QKeySequence("Ctrl+F11"));
        Contacts::fill(0, "Name", 50);
        FakeSdk::setCapacity(0, 50);
        f.build();
        QVERIFY(QTest::qWaitForWindowActive(f.window()));
        FormUser user([](AddrBookEditDlgAccess) {});
        f.click(f.in().sim());
        f.tree()->setFocus();
        QTest::keyClick(f.tree(), Qt::Key_F11, Qt::ControlModifier);
        QCOMPARE(user.forms(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        f.click(f.in().local());
        QTest::keyClick(f.tree(), Qt::Key_F11, Qt::ControlModifier);
        QCOMPARE(user.forms(), 1);
    }

    void lastPlaceTakenTurnsNewOff()
    {
        WindowFixture f;
        Contacts::fill(0, "Name", 2);
        FakeSdk::setCapacity(0, 3);
        f.build();
        f.click(f.in().sim());
        QVERIFY(newIsOn(f));
        FormUser user("Abel", "1");
        f.window()->OnButtonClickedNewContact();
        QVERIFY(!newIsOn(f));
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(user.forms(), 1);
        QCOMPARE(FakeSdk::recordIds(0).size(), 3);
    }

    void oneRecordDeletedOfAFullMemoryTurnsNewOnWhileTheBatchRuns()
    {
        WindowFixture f;
        Contacts::fill(0, "Name", 50);
        FakeSdk::setCapacity(0, 50);
        f.build();
        f.click(f.in().sim());
        f.selectRows({0, 1, 2});
        QVERIFY(!newIsOn(f));
        QList<bool> on;
        QList<bool> busy;
        QList<int> asked;
        // In front of each result: what the results before have made of it.
        for (int nth = 1; nth <= 3; ++nth) {
            Contacts::atRecord("DelAddrRec", nth, [&] {
                on << newIsOn(f);
                busy << f.in().threadBusy();
                asked << FakeSdk::count("GetCapacity");
            });
        }
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(on, QList<bool>({false, true, true}));
        QCOMPARE(busy, QList<bool>({true, true, true}));
        // From the figures read at the start, without asking again.
        QCOMPARE(asked.last(), asked.first());
        QVERIFY(newIsOn(f));
    }

    void cacheTakesTheSdksFiguresOnlyWhenTold()
    {
        WindowFixture f;
        Contacts::fill(0, "Name", 5);
        FakeSdk::setCapacity(0, 6);
        f.build();
        f.window()->checkMaxCapacity(PB_MEM_SIM, false);
        QCOMPARE(f.in().simUsed(), 0);
        f.window()->checkMaxCapacity(PB_MEM_SIM, true);
        QCOMPARE(f.in().simUsed(), 5);
        QVERIFY(newIsOn(f));
        f.window()->checkMaxCapWithLocals(PB_MEM_SIM, ADDRBOOK_OP_ADD);
        QCOMPARE(f.in().simUsed(), 6);
        QVERIFY(!newIsOn(f));
        f.window()->checkMaxCapWithLocals(PB_MEM_SIM, ADDRBOOK_OP_COPY);
        QCOMPARE(f.in().simUsed(), 6);
        QVERIFY(!newIsOn(f));
        f.window()->checkMaxCapWithLocals(PB_MEM_SIM, ADDRBOOK_OP_DELETE);
        QCOMPARE(f.in().simUsed(), 5);
        QVERIFY(newIsOn(f));
    }

    void eachMemoryHasItsOwnFigures()
    {
        WindowFixture f;
        f.build();
        const QList<QPair<_ORVA_EN_PHONEBOOK_MEMORY, int>> memories = {
            {PB_MEM_SIM, 1}, {PB_MEM_ME, 2}, {PB_MEM_LOCAL, 3}};
        for (const auto& memory : memories) {
            FakeSdk::setCapacity(memory.first, memory.second);
            f.window()->checkMaxCapacity(memory.first, true);
        }
        for (const auto& memory : memories) {
            for (int i = 1; i <= memory.second; ++i) {
                f.window()->checkMaxCapWithLocals(memory.first, ADDRBOOK_OP_ADD);
                QCOMPARE(newIsOn(f), i < memory.second);
            }
        }
    }

    void memoryWithoutFiguresCountsAsRoom()
    {
        WindowFixture f;
        f.build();
        f.window()->enableDisableNewContact(1, 1);
        f.window()->checkMaxCapWithLocals(PB_MEM_NONE, ADDRBOOK_OP_ADD);
        QVERIFY(newIsOn(f));
        FakeSdk::failAlways("GetCapacity");
        FakeSdk::failAlways("GetSize");
        f.window()->enableDisableNewContact(1, 1);
        f.window()->checkMaxCapacity(PB_MEM_LOCAL, true);
        QVERIFY(newIsOn(f));
    }

    void removalFromAGroupLowersTheCountAsWell()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setCapacity(4, 3);
        f.build();
        f.click(f.node("Friends"));
        QVERIFY(!newIsOn(f));
        f.selectRows({0, 1});
        bool on = false;
        Contacts::atRecord("DelAddrFromGroup", 2, [&] { on = newIsOn(f); });
        f.window()->OnRemoveFromGroupClicked();
        QVERIFY(Contacts::waitBatch(f));
        QVERIFY(on);
        // The read at the end asks the SDK, and the memory is as full as before.
        QVERIFY(!newIsOn(f));
    }
};

QTEST_MAIN(CapacityTest)
#include "CapacityTest.moc"
