#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>

#include "WindowFixture.h"

// The context menus as they open, and their entries.
class MenuTest : public WindowTest
{
    Q_OBJECT

private:
    // Sends a right click at a point of a widget to the window. The menu that opens, closed again by then; null if
    // none did.
    static QMenu* rightClick(WindowFixture& f, QWidget* widget, const QPoint& point)
    {
        // The offscreen platform gives the activation to a popup and does not give it back.
        QApplication::setActiveWindow(f.window());
        widget->setFocus();
        QMenu* opened = nullptr;
        QTimer poll;
        poll.setInterval(0);
        QObject::connect(&poll, &QTimer::timeout, [&opened] {
            QMenu* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu != nullptr) {
                opened = menu;
                menu->close();
            }
        });
        poll.start();
        const QPoint inWindow = widget->mapTo(f.window(), point);
        QContextMenuEvent event(QContextMenuEvent::Mouse, inWindow, f.window()->mapToGlobal(inWindow));
        QCoreApplication::sendEvent(f.window(), &event);
        return opened;
    }

    static QPoint rowPoint(const WindowFixture& f, int row)
    {
        return f.table()->viewport()->mapTo(f.table(), f.table()->visualItemRect(f.table()->item(row, 0)).center());
    }

    static QPoint nodePoint(const WindowFixture& f, QTreeWidgetItem* node)
    {
        return f.tree()->viewport()->mapTo(f.tree(), f.tree()->visualItemRect(node).center());
    }

    static void activate(WindowFixture& f)
    {
        f.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(f.window()));
    }

private slots:
    void rightClickBelowTheRowsClearsTheSelection()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.selectRows({0, 1});
        QCOMPARE(rightClick(f, f.table(), QPoint(20, f.table()->height() - 5)), f.in().tableMenu());
        QVERIFY(f.table()->selectedItems().isEmpty());
        QVERIFY(!f.tableAction("IDS_PMMENU_DETAIL")->isEnabled());
        QVERIFY(!f.tableAction("IDS_PMMENU_DELETE")->isEnabled());
        QVERIFY(!f.tableAction("IDS_EXPORT_PHONEBOOKSEL")->isEnabled());
        QVERIFY(f.tableAction("IDS_EXPORT_PHONEBOOK")->isEnabled());
        QCOMPARE(f.previewText(), QString("IDS_NORECORDSELECT"));
    }

    void rightClickOnTheHeaderOpensOnlyWithASelection()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        const QPoint header(20, f.table()->horizontalHeader()->height() / 2);
        QVERIFY(rightClick(f, f.table(), header) == nullptr);
        f.selectRows({0, 1});
        QCOMPARE(rightClick(f, f.table(), header), f.in().tableMenu());
        QVERIFY(f.table()->selectedItems().isEmpty());
        QVERIFY(!f.tableAction("IDS_PMMENU_DELETE")->isEnabled());
    }

    void rightClickOnTheHeaderCountsAsTheHeaderWhereverTheRowsAre()
    {
        WindowFixture f;
        for (int i = 0; i < 100; ++i)
            FakeSdk::addRecord(4, {QString("Name %1").arg(i)});
        f.build();
        activate(f);
        f.table()->verticalScrollBar()->setValue(30);
        f.selectRows({35});
        const QPoint header(20, f.table()->frameWidth() + 3);
        QCOMPARE(rightClick(f, f.table(), header), f.in().tableMenu());
        QVERIFY(f.table()->selectedItems().isEmpty());
        QVERIFY(!f.tableAction("IDS_PMMENU_DETAIL")->isEnabled());
        QVERIFY(!f.tableAction("IDS_PMMENU_DELETE")->isEnabled());
    }

    void rightClickAboveTheTreeHitsNoNodeScrolledAway()
    {
        WindowFixture f;
        for (int i = 0; i < 100; ++i)
            FakeSdk::addGroup(QString("Group %1").arg(i));
        f.build();
        activate(f);
        f.tree()->verticalScrollBar()->setValue(30);
        QVERIFY(f.tree()->indexAt(QPoint(20, -3)).isValid());
        QVERIFY(rightClick(f, f.tree(), QPoint(20, -3)) == nullptr);
    }

    void rightClickBelowTheTableOpensNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        QVERIFY(rightClick(f, f.table(), QPoint(20, f.table()->height() + 30)) == nullptr);
    }

    void rightClickOnRowsPreparesForTheirNumber()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.selectRows({1});
        QCOMPARE(rightClick(f, f.table(), rowPoint(f, 1)), f.in().tableMenu());
        QVERIFY(f.tableAction("IDS_PMMENU_DETAIL")->isEnabled());
        QVERIFY(f.tableAction("IDS_PMMENU_CALL")->isEnabled());
        QVERIFY(!f.tableAction("IDS_PMMENU_REMFRGRP")->isEnabled());
        f.selectRows({0, 1});
        QCOMPARE(rightClick(f, f.table(), rowPoint(f, 1)), f.in().tableMenu());
        QVERIFY(!f.tableAction("IDS_PMMENU_DETAIL")->isEnabled());
        QVERIFY(!f.tableAction("IDS_PMMENU_CALL")->isEnabled());
        QVERIFY(f.tableAction("IDS_PMMENU_SEND")->isEnabled());
    }

    void rowInAGroupCanBeTakenOutOfIt()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.click(f.node("Friends"));
        f.selectRows({0});
        QCOMPARE(rightClick(f, f.table(), rowPoint(f, 0)), f.in().tableMenu());
        QVERIFY(f.tableAction("IDS_PMMENU_REMFRGRP")->isEnabled());
        QVERIFY(f.tableAction("IDS_PMMENU_SEND")->isEnabled());
        QVERIFY(f.tableAction("IDS_PMMENU_CALL")->isEnabled());
        f.click(f.in().local());
        f.selectRows({0});
        QCOMPARE(rightClick(f, f.table(), rowPoint(f, 0)), f.in().tableMenu());
        QVERIFY(!f.tableAction("IDS_PMMENU_REMFRGRP")->isEnabled());
    }

    void openingFollowsTheCapacityOfTheNode()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        FakeSdk::setCapacity(4, 3);
        rightClick(f, f.table(), rowPoint(f, 1));
        QVERIFY(!f.tableAction("IDS_PMMENU_ADD")->isEnabled());
        QVERIFY(!f.tableAction("IDS_IMPORT_PHONEBOOK")->isEnabled());
        FakeSdk::setCapacity(4, 4);
        rightClick(f, f.table(), rowPoint(f, 1));
        QVERIFY(f.tableAction("IDS_PMMENU_ADD")->isEnabled());
        QVERIFY(f.tableAction("IDS_IMPORT_PHONEBOOK")->isEnabled());
    }

    void treeMenuFollowsTheNode_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<bool>("subGroups");
        QTest::addColumn<bool>("add");
        QTest::addColumn<bool>("change");
        QTest::newRow("local") << "IDS_LOCAL" << false << true << false;
        QTest::newRow("group") << "Friends" << false << false << true;
        QTest::newRow("group with sub-groups") << "Friends" << true << true << true;
        QTest::newRow("device") << "device" << true << false << false;
    }
    void treeMenuFollowsTheNode()
    {
        QFETCH(QString, node);
        QFETCH(bool, subGroups);
        QFETCH(bool, add);
        QFETCH(bool, change);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.in().subGroups() = subGroups;
        QTreeWidgetItem* const item = node == "device" ? f.in().device() : f.node(node);
        f.click(item);
        QCOMPARE(rightClick(f, f.tree(), nodePoint(f, item)), f.in().treeMenu());
        QCOMPARE(f.treeAction("IDS_Add_GROUP")->isEnabled(), add);
        QCOMPARE(f.treeAction("IDS_EDIT_GROUP")->isEnabled(), change);
        QCOMPARE(f.treeAction("IDS_DEL_GROUP")->isEnabled(), change);
    }

    void rightClickBesideTheNodesOpensNothing()
    {
        WindowFixture f;
        f.build();
        activate(f);
        QVERIFY(rightClick(f, f.tree(), QPoint(10, f.tree()->height() - 5)) == nullptr);
    }

    void menuOpensWithoutAContainerInItsLastState()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.selectRows({0});
        rightClick(f, f.table(), rowPoint(f, 0));
        FakeCore::setContainerPresent(false);
        f.selectRows({0, 1});
        QCOMPARE(rightClick(f, f.table(), rowPoint(f, 0)), f.in().tableMenu());
        QVERIFY(f.tableAction("IDS_PMMENU_DETAIL")->isEnabled());
    }

    void neitherFocusOpensNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        QVERIFY(rightClick(f, f.in().preview(), QPoint(5, 5)) == nullptr);
    }

    void menuOutlivesTheTables()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        const QPointer<QMenu> menu(f.in().tableMenu());
        f.click(f.in().device());
        f.click(f.in().local());
        QVERIFY(!menu.isNull());
        f.selectRows({0});
        QCOMPARE(rightClick(f, f.table(), rowPoint(f, 0)), menu.data());
    }

    void rowsArriveWhileTheMenuIsOpen()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.selectRows({0});
        QTimer reload;
        reload.setSingleShot(true);
        QObject::connect(&reload, &QTimer::timeout, [&f] {
            f.window()->OnTreeClicked(f.in().device());
            QVERIFY(f.waitRead());
            QApplication::activePopupWidget()->close();
        });
        f.table()->setFocus();
        const QPoint point = f.table()->mapTo(f.window(), rowPoint(f, 0));
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, f.window()->mapToGlobal(point));
        reload.start(0);
        QCoreApplication::sendEvent(f.window(), &event);
        QCOMPARE(f.column(0), (QStringList{"Emil", "Frida"}));
    }

    void keysOfShortcutsAndEntriesComeFromTheLanguage()
    {
        WindowFixture f;
        FakeCore::setShortcut("IDS_PMMENU_SEND_MSG", QKeySequence("Ctrl+1"));
        FakeCore::setShortcut("IDS_PMMENU_CALL", QKeySequence("Ctrl+2"));
        FakeCore::setShortcut("IDS_EDIT_GROUP", QKeySequence("F2"));
        FakeCore::setShortcut("IDS_PMMENU_SEND_MSG", QKeySequence("Ctrl+9"), "fr");
        f.build();
        const auto keys = [&f] {
            QStringList list;
            for (const QShortcut* shortcut : f.window()->findChildren<QShortcut*>())
                list << shortcut->key().toString();
            return list;
        };
        QCOMPARE(f.window()->findChildren<QShortcut*>().size(), 9);
        QCOMPARE(f.tree()->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
        QVERIFY(keys().contains("Ctrl+1"));
        QVERIFY(keys().contains("Ctrl+2"));
        QVERIFY(keys().contains("F2"));
        QCOMPARE(f.tableAction("IDS_PMMENU_SEND_MSG")->shortcut(), QKeySequence("Ctrl+1"));
        FakeCore::setLanguage("fr");
        f.window()->SetLanguage();
        QVERIFY(keys().contains("Ctrl+9"));
        QVERIFY(!keys().contains("Ctrl+1"));
        QCOMPARE(f.window()->findChildren<QShortcut*>().size(), 9);
        QCOMPARE(f.tableAction("IDS_PMMENU_SEND_MSG")->shortcut(), QKeySequence("Ctrl+9"));
    }

    void entriesTakeTheirTextsFromTheLanguage()
    {
        WindowFixture f;
        FakeCore::setText("IDS_PMMENU_ADD", "New");
        FakeCore::setText("IDS_EDIT_GROUP", "Rename");
        FakeCore::setText("IDS_PMMENU_ADD", "Nouveau", "fr");
        f.build();
        QCOMPARE(f.tableAction("IDS_PMMENU_ADD")->text(), QString("New"));
        QCOMPARE(f.treeAction("IDS_EDIT_GROUP")->text(), QString("Rename"));
        FakeCore::setLanguage("fr");
        f.window()->SetLanguage();
        QCOMPARE(f.tableAction("IDS_PMMENU_ADD")->text(), QString("Nouveau"));
        QVERIFY(f.waitRead());
    }

    void eachEntryLeadsToItsSlotAlone_data()
    {
        QTest::addColumn<bool>("tree");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QByteArray>("slot"); // empty for none
        const auto table = [](const char* id, const char* slot) {
            QTest::addRow("table %s", id) << false << QString(id) << QByteArray(slot);
        };
        const auto tree = [](const char* id, const char* slot) {
            QTest::addRow("tree %s", id) << true << QString(id) << QByteArray(slot);
        };
        table("IDS_PMMENU_SEND", "");
        table("IDS_PMMENU_SEND_MSG", SLOT(OnButtonClickedSendSMS()));
        table("IDS_PMMENU_SEND_MMS", SLOT(OnButtonClickedSendMMS()));
        table("IDS_PMMENU_ADD", SLOT(OnButtonClickedNewContact()));
        table("IDS_PMMENU_DETAIL", SLOT(OnButtonClickedEditContact()));
        table("IDS_PMMENU_DELETE", SLOT(OnButtonClickedDeleteContact()));
        table("IDS_PMMENU_REMFRGRP", SLOT(OnRemoveFromGroupClicked()));
        table("IDS_PMMENU_CALL", SLOT(OnButtonClickedCall()));
        table("IDS_PMMENU_VIDEO_CALL", "");
        table("IDS_IMPORT_PHONEBOOK", SLOT(OnClickImport()));
        table("IDS_EXPORT_PHONEBOOKSEL", SLOT(OnClickExportSelectedContacts()));
        table("IDS_EXPORT_PHONEBOOK", SLOT(OnClickExportAllContacts()));
        table("IDS_PMMENU_IMPORT_FROM_MOE", SLOT(OnBnClickedBtnMOE()));
        table("IDS_PMMENU_IMPORT_FROM_MOO", SLOT(OnBnClickedBtnMOO()));
        tree("IDS_Add_GROUP", SLOT(OnNewGroupClicked()));
        tree("IDS_EDIT_GROUP", SLOT(OnRenameGroupClicked()));
        tree("IDS_DEL_GROUP", SLOT(OnDeleteGroupClicked()));
        tree("IDS_SEND_MSG", SLOT(OnButtonClickedSendGroupSMS()));
        tree("IDS_SEND_MMS", SLOT(OnButtonClickedSendGroupMMS()));
        tree("IDS_PMMENU_CALL", SLOT(OnButtonClickedCall()));
    }
    void eachEntryLeadsToItsSlotAlone()
    {
        QFETCH(bool, tree);
        QFETCH(QString, id);
        QFETCH(QByteArray, slot);
        WindowFixture f;
        f.build();
        QAction* const action = tree ? f.treeAction(id) : f.tableAction(id);
        QVERIFY(action != nullptr);
        // A connection tells itself by being cut.
        if (!slot.isEmpty())
            QVERIFY(QObject::disconnect(action, SIGNAL(triggered()), f.window(), slot.constData()));
        QVERIFY(!QObject::disconnect(action, SIGNAL(triggered()), f.window(), nullptr));
    }

    void textWithItsKeyFollowsTheLayout()
    {
        WindowFixture f;
        f.build();
        QAction action("Save", nullptr);
        f.window()->setShortCutToQAction(&action, QKeySequence("Ctrl+S"));
        QCOMPARE(action.text(), QString("Save \t Ctrl+S"));
        qApp->setLayoutDirection(Qt::RightToLeft);
        action.setText("Save");
        f.window()->setShortCutToQAction(&action, QKeySequence("Ctrl+S"));
        qApp->setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(action.text(), QChar(0x202e) + QString("Save") + QChar(0x202d) + "Ctrl+S ");
    }

    void menuFileCutAnywhereLeavesAWorkingWindow()
    {
        const QByteArray xml = WindowFixture::shippedConfig();
        const int step = qEnvironmentVariableIsSet("LINKHAND_FULL") ? 5 : 37;
        for (int length = 0; length < xml.size(); length += step) {
            WindowFixture f;
            WindowFixture::fillStores();
            f.writeConfig(xml.left(length));
            f.build();
            QCOMPARE(f.table()->rowCount(), 3);
            f.selectRows({0});
            f.window()->updateContextMenu(ADDRBOOK_ENABLE_TABLE_SINGLE);
            f.window()->updateContextMenu(ADDRBOOK_ENABLE_TREE_LOCAL);
            f.window()->SetLanguage();
        }
    }

    void menuFileWithAnyByteSpoiltLeavesAWorkingWindow()
    {
        const QByteArray xml = WindowFixture::shippedConfig();
        WindowFixture f;
        f.build();
        for (int at = 0; at < xml.size(); ++at) {
            QByteArray spoilt = xml;
            spoilt[at] = at % 2 == 0 ? '<' : '\0';
            f.writeConfig(spoilt);
            const std::unique_ptr<QMenu> menu(f.in().makeSendMenu());
            QVERIFY(menu);
        }
    }
};

QTEST_MAIN(MenuTest)
#include "MenuTest.moc"
