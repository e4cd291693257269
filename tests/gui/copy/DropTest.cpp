#include "CopyFixture.h"

// What a drop does, by where the contacts come from, where they go, and the Ctrl key.
class DropTest : public WindowTest
{
    Q_OBJECT

private slots:
    void dropsInsideThePhonebookOfThePc_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("ctrl");
        QTest::addColumn<QString>("inFriends"); // the contact's places after the drop
        QTest::addColumn<QString>("inWork");
        QTest::newRow("group to group: moved") << "Friends"
                                               << "Work" << false << "Bert"
                                               << "Anna";
        QTest::newRow("group to group, Ctrl: copied") << "Friends"
                                                      << "Work" << true << "Anna,Bert"
                                                      << "Anna";
        QTest::newRow("group to root: taken out") << "Friends"
                                                  << "IDS_LOCAL" << false << "Bert"
                                                  << "";
        QTest::newRow("group to root, Ctrl: nothing changes") << "Friends"
                                                              << "IDS_LOCAL" << true << "Anna,Bert"
                                                              << "";
        QTest::newRow("root to group: added") << "IDS_LOCAL"
                                              << "Work" << false << "Anna,Bert"
                                              << "Anna";
        QTest::newRow("root to group, Ctrl: added") << "IDS_LOCAL"
                                                    << "Work" << true << "Anna,Bert"
                                                    << "Anna";
    }
    void dropsInsideThePhonebookOfThePc()
    {
        QFETCH(QString, source);
        QFETCH(QString, target);
        QFETCH(bool, ctrl);
        QFETCH(QString, inFriends);
        QFETCH(QString, inWork);
        CopyFixture f;
        WindowFixture::fillStores();
        const int friends = FakeSdk::groups().last().id;
        const int work = FakeSdk::addGroup("Work");
        f.build();
        f.forgetUsage();
        FakeSdk::clearCalls();
        QVERIFY(f.drop(f.node(source), {"Anna"}, f.node(target), ctrl ? Qt::ControlModifier : Qt::NoModifier));
        QVERIFY(f.waitDone());
        const auto names = [](int group) {
            QStringList list;
            for (int id : FakeSdk::members(group))
                list << FakeSdk::record(4, id).value(0);
            list.sort();
            return list.join(",");
        };
        QCOMPARE(names(friends), inFriends);
        QCOMPARE(names(work), inWork);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
        QVERIFY(f.usageReported());
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(WindowFixture::waiting() == nullptr);
        QCOMPARE(FakeSdk::openTransactions(4), 0);
        // The tree is refreshed, and the table shows the target.
        QVERIFY(f.node(QString("Friends(%1)").arg(FakeSdk::members(friends).size())) != nullptr);
        QVERIFY(f.node(QString("Work(%1)").arg(FakeSdk::members(work).size())) != nullptr);
        QCOMPARE(f.tree()->currentItem(), f.node(target));
        QCOMPARE(f.in().current(), f.node(target));
        QCOMPARE(f.table()->rowCount(), target == "Work" ? FakeSdk::members(work).size() : 3);
        // The tree waits for the next drop.
        QVERIFY(f.tree()->m_listDragData.isEmpty());
        QVERIFY(!f.tree()->m_bDropped && !f.tree()->m_bCopyInLocal && f.tree()->m_bHandleSelection);
    }

    void severalContactsMoveTogether()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        const int friends = FakeSdk::groups().last().id;
        const int work = FakeSdk::addGroup("Work");
        f.build();
        QVERIFY(f.drop(f.node("Friends"), {"Anna", "Bert"}, f.node("Work")));
        QVERIFY(f.waitDone());
        QVERIFY(FakeSdk::members(friends).isEmpty());
        QCOMPARE(FakeSdk::members(work).size(), 2);
    }

    // A hover does not let it through, but a list may hold it.
    void dropOnTheGroupItComesFromIsAbandoned()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        const int friends = FakeSdk::groups().last().id;
        f.build();
        const std::unique_ptr<QMimeData> rows = f.take(f.node("Friends"), {"Anna"});
        QVERIFY(!f.hover(*rows, f.node("Friends")));
        f.forgetUsage();
        FakeSdk::clearCalls();
        f.dropList({"1", QString::number(friends), "2", QString::number(friends)});
        QCOMPARE(FakeSdk::names(), QStringList({"BeginTransaction", "EndTransaction"}));
        QVERIFY(!f.usageReported());
        QCOMPARE(FakeSdk::members(friends).size(), 2);
        QVERIFY(f.tree()->m_listDragData.isEmpty());
        QVERIFY(f.tree()->m_bHandleSelection);
    }

    void localRootDroppedOnItselfIsAbandoned()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().local());
        f.window()->OnTableItemClicked();
        FakeSdk::clearCalls();
        f.dropList({"1", "0", "3", "0"});
        QCOMPARE(FakeSdk::names(), QStringList({"BeginTransaction", "EndTransaction"}));
        QVERIFY(!f.usageReported());
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(f.tree()->m_listDragData.isEmpty());
    }

    // What came before the pair is done; nothing is refreshed.
    void listThatHoldsThePairStopsThere()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        const int friends = FakeSdk::groups().last().id;
        const int work = FakeSdk::addGroup("Work");
        f.build();
        f.click(f.node("Friends"));
        f.window()->OnTableItemClicked();
        FakeSdk::clearCalls();
        f.dropList({"3", QString::number(work), "1", QString::number(friends), "2", QString::number(work)});
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 1);
        QCOMPARE(FakeSdk::count("DelAddrFromGroup"), 1);
        QCOMPARE(FakeSdk::count("GetGroupList"), 0);
        QCOMPARE(FakeSdk::openTransactions(4), 0);
    }

    void dropOnTheMemoryItComesFromIsAbandoned_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<bool>("ctrl");
        QTest::newRow("card") << 0 << false;
        QTest::newRow("card, Ctrl") << 0 << true;
        QTest::newRow("device") << 1 << false;
        QTest::newRow("device, Ctrl") << 1 << true;
    }
    void dropOnTheMemoryItComesFromIsAbandoned()
    {
        QFETCH(int, memory);
        QFETCH(bool, ctrl);
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        QTreeWidgetItem* node = memory == 0 ? f.in().sim() : f.in().device();
        f.click(node);
        f.window()->OnTableItemClicked();
        f.forgetUsage();
        FakeSdk::clearCalls();
        f.tree()->m_bCopyInLocal = ctrl;
        f.dropList({"1", "0"});
        QCOMPARE(FakeSdk::names(), QStringList({"BeginTransaction", "EndTransaction"}));
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(WindowFixture::waiting() == nullptr);
        QVERIFY(!f.usageReported());
        QVERIFY(!f.in().threadBusy());
    }

    void dropsBetweenMemoriesCopy_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("contact");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("ctrl");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<int>("group");
        for (const bool ctrl : {false, true}) {
            const char* key = ctrl ? ", Ctrl" : "";
            const auto row = [&](const char* name) -> QTestData& { return QTest::addRow("%s%s", name, key); };
            row("PC to card") << "IDS_LOCAL"
                              << "Anna"
                              << "SIM" << ctrl << QStringList({"Anna=111", "Anna=222", "Anna=333"}) << 0;
            row("group to card") << "Friends"
                                 << "Bert"
                                 << "SIM" << ctrl << QStringList("Bert=444") << 0;
            row("PC to device") << "IDS_LOCAL"
                                << "Carl"
                                << "ME" << ctrl << QStringList("Carl=555") << 0;
            row("card to PC") << "SIM"
                              << "Dora"
                              << "IDS_LOCAL" << ctrl << QStringList("Dora=666") << 0;
            row("card to group") << "SIM"
                                 << "Dora"
                                 << "Friends" << ctrl << QStringList("Dora=666") << 1;
            row("card to device") << "SIM"
                                  << "Dora"
                                  << "ME" << ctrl << QStringList("Dora=666") << 0;
            row("device to card") << "ME"
                                  << "Emil"
                                  << "SIM" << ctrl << QStringList("Emil=777") << 0;
            row("device to PC") << "ME"
                                << "Emil"
                                << "IDS_LOCAL" << ctrl << QStringList("Emil=777") << 0;
            row("device to group") << "ME"
                                   << "Emil"
                                   << "Friends" << ctrl << QStringList("Emil=777") << 1;
        }
    }
    void dropsBetweenMemoriesCopy()
    {
        QFETCH(QString, source);
        QFETCH(QString, contact);
        QFETCH(QString, target);
        QFETCH(bool, ctrl);
        QFETCH(QStringList, added);
        QFETCH(int, group);
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        const auto node = [&f](const QString& name) {
            return name == "SIM" ? f.in().sim() : name == "ME" ? f.in().device() : f.node(name);
        };
        const auto memory = [](const QString& name) { return name == "SIM" ? 0 : name == "ME" ? 1 : 4; };
        const QList<QStringList> before = CopyFixture::all(memory(source));
        const QStringList there = CopyFixture::stored(memory(target));
        const QList<int> members = FakeSdk::members(1);
        QVERIFY(f.drop(node(source), {contact}, node(target), ctrl ? Qt::ControlModifier : Qt::NoModifier));
        QVERIFY(f.in().threadBusy());
        QVERIFY(f.waitDone());
        QCOMPARE(CopyFixture::stored(memory(target)), there + added);
        QCOMPARE(CopyFixture::all(memory(source)), before); // it stays
        QCOMPARE(FakeSdk::count("DelAddrRec"), 0);
        QCOMPARE(FakeSdk::members(1).size(), members.size() + group);
        QCOMPARE(FakeCore::messageTexts(),
                 QStringList(QString("IDS_COPY_COMPLETE IDS_TOTAL_COUNT%1IDS_SUCCESS_COUNT%1").arg(added.size())));
        QVERIFY(f.usageReported());
        QVERIFY(WindowFixture::waiting() == nullptr);
        // The window shows the target, and drags come from there now.
        QCOMPARE(f.tree()->currentItem(), node(target));
        QCOMPARE(f.in().current(), node(target));
        QCOMPARE(int(f.in().dragSource()), memory(target));
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_NONE);
        for (int any : {0, 1, 4})
            QCOMPARE(FakeSdk::openTransactions(any), 0);
    }

    void storeThatRefusesLeavesTheOtherGroupCalls()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        const int work = FakeSdk::addGroup("Work");
        f.build();
        FakeSdk::fail("DelAddrFromGroup");
        QVERIFY(f.drop(f.node("Friends"), {"Anna"}, f.node("Work")));
        QVERIFY(f.waitDone());
        QCOMPARE(FakeSdk::members(work).size(), 1);
        QVERIFY(f.usageReported());
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void otherWidgetUnderTheDragTakesTheLightBack()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        const std::unique_ptr<QMimeData> rows = f.take(f.in().local(), {"Carl"});
        QVERIFY(f.hover(*rows, f.node("Friends")));
        QCOMPARE(f.tree()->currentItem(), f.node("Friends"));
        f.window()->OnDragTargetChanged(f.table());
        QCOMPARE(f.tree()->currentItem(), f.node("Friends"));
        f.window()->OnDragTargetChanged(f.in().preview());
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QVERIFY(f.hover(*rows, f.node("Friends")));
        f.window()->OnDragTargetChanged(nullptr);
        QCOMPARE(f.tree()->currentItem(), f.in().local());
        QCOMPARE(f.table()->rowCount(), 3); // nothing was loaded on the way
    }

    void listOfAnOddLengthEndsBeforeItsLastEntry()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        const int work = FakeSdk::addGroup("Work");
        f.build();
        f.click(f.node("Work"));
        f.in().dragSource() = PB_MEM_LOCAL;
        f.dropList({"3", "0", "1"});
        QVERIFY(f.waitDone());
        QCOMPARE(FakeSdk::members(work), QList<int>({3}));
    }
};

QTEST_MAIN(DropTest)
#include "DropTest.moc"
