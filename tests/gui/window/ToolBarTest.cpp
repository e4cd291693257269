#include <QMenu>
#include <QToolButton>

#include "MessageLog.h"
#include "WindowFixture.h"
#include "worker/AddrBookThread.h"

// The tool bar, its tooltips, and the send button's menu.
class ToolBarTest : public WindowTest
{
    Q_OBJECT

private:
    static QStringList entries(const QMenu* menu)
    {
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts << action->text();
        return texts;
    }

    // How many listen to a signal of another object.
    static int receivers(const QObject* sender, const char* signal)
    {
        struct Open : QObject {
            using QObject::receivers;
        };
        return (sender->*(&Open::receivers))(signal);
    }

private slots:
    void sendMenuHoldsWhatIsPresent_data()
    {
        QTest::addColumn<bool>("sms");
        QTest::addColumn<bool>("mms");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("both") << true << true << QStringList{"Write SMS  Ctrl+T", "IDS_PMMENU_SEND_MMS  "};
        QTest::newRow("sms alone") << true << false << QStringList{"Write SMS  Ctrl+T"};
        QTest::newRow("mms alone") << false << true << QStringList{"IDS_PMMENU_SEND_MMS  "};
        QTest::newRow("neither") << false << false << QStringList{};
    }
    void sendMenuHoldsWhatIsPresent()
    {
        QFETCH(bool, sms);
        QFETCH(bool, mms);
        QFETCH(QStringList, texts);
        WindowFixture f;
        FakeCore::setText("IDS_PMMENU_SEND_MSG", "Write SMS");
        FakeCore::setShortcut("IDS_PMMENU_SEND_MSG", QKeySequence("Ctrl+T"));
        FakeCore::setSibling(FakeCore::SmsId, sms);
        FakeCore::setSibling(FakeCore::MmsId, mms);
        f.build();
        QVERIFY(f.in().sendMenu() != nullptr);
        QCOMPARE(entries(f.in().sendMenu()), texts);
        QToolButton* button = qobject_cast<QToolButton*>(f.button(TOOL_SEND));
        QCOMPARE(button->menu(), f.in().sendMenu());
        QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
        QCOMPARE(button->arrowType(), Qt::NoArrow);
    }

    void sendMenuIsFoundByItsThreeAttributes_data()
    {
        QTest::addColumn<QByteArray>("menu");
        QTest::addColumn<int>("count");
        QTest::newRow("right") << QByteArray(R"(name="Send" type="POPUP" parent="listview")") << 1;
        QTest::newRow("other name") << QByteArray(R"(name="send" type="POPUP" parent="listview")") << 0;
        QTest::newRow("other type") << QByteArray(R"(name="Send" type="ITEM" parent="listview")") << 0;
        QTest::newRow("other parent") << QByteArray(R"(name="Send" type="POPUP" parent="tree")") << 0;
    }
    void sendMenuIsFoundByItsThreeAttributes()
    {
        QFETCH(QByteArray, menu);
        QFETCH(int, count);
        WindowFixture f;
        f.build();
        f.writeConfig("<config><menu " + menu + R"(><item id="IDS_PMMENU_SEND_MSG" type="ITEM"/></menu></config>)");
        const std::unique_ptr<QMenu> made(f.in().makeSendMenu());
        QCOMPARE(made->actions().size(), count);
    }

    void itemsBehindTheSendMenuCountToTheEndOfTheFile()
    {
        WindowFixture f;
        f.build();
        f.writeConfig(R"(<config><item id="IDS_PMMENU_SEND_MSG" type="ITEM"/>
            <menu name="Send" type="POPUP" parent="listview"/>
            <menu name="Tree" type="POPUP" parent="tree"><item id="IDS_PMMENU_SEND_MMS" type="ITEM"/>
            <item id="IDS_PMMENU_SEND_MSG" type="POPUP"/></menu></config>)");
        const std::unique_ptr<QMenu> made(f.in().makeSendMenu());
        QCOMPARE(entries(made.get()), QStringList{"IDS_PMMENU_SEND_MMS  "});
    }

    void malformedFileKeepsTheEntriesReadSoFar()
    {
        WindowFixture f;
        f.build();
        f.writeConfig(R"(<config><menu name="Send" type="POPUP" parent="listview">
            <item id="IDS_PMMENU_SEND_MSG" type="ITEM"/><<<)");
        const std::unique_ptr<QMenu> made(f.in().makeSendMenu());
        QCOMPARE(made->actions().size(), 1);
    }

    void missingFileLeavesAWorkingWindowWithoutMenus()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        QVERIFY(QFile::remove(f.configFile()));
        f.build();
        QVERIFY(f.in().sendMenu() == nullptr);
        QVERIFY(f.in().makeSendMenu() == nullptr);
        QVERIFY(f.in().tableMenu() == nullptr);
        QVERIFY(f.in().treeMenu() == nullptr);
        QVERIFY(f.in().searchBox() == nullptr);
        QCOMPARE(f.table()->rowCount(), 3);
        f.selectRows({0});
        f.window()->OnShowHideSearchBox();
        f.window()->OnShowHideSearchBox();
        f.window()->SetLanguage();
        f.window()->updateContextMenu(ADDRBOOK_ENABLE_TABLE_SINGLE);
        f.window()->OnTBBtnClicked(TOOL_SEARCH);
    }

    void toolBarThatFailsIsConnectedToNothing()
    {
        WindowFixture f;
        FakeCore::setCreateToolBarResult(false);
        f.build();
        QVERIFY(f.in().sendMenu() == nullptr);
        QVERIFY(f.button(TOOL_NEW) == nullptr);
    }

    void tooltipsShowTheKeysThatThereAre()
    {
        WindowFixture f;
        FakeCore::setText("IDS_PMBTN_DELETE", "Delete it");
        FakeCore::setShortcut("IDS_PMBTN_DELETE", QKeySequence("Del"));
        FakeCore::setText("IDS_EDIT_LINKMAN", "Edit");
        f.build();
        QCOMPARE(f.button(TOOL_DELETE)->toolTip(), QString("Delete it  (Del)"));
        QCOMPARE(f.button(TOOL_EDIT)->toolTip(), QString("Edit"));
    }

    // Also behind a change of the language, which sets the plain texts first.
    void everyButtonHasItsOwnTip()
    {
        const QList<QPair<int, QString>> tips{{TOOL_NEW, "IDS_PMBTN_ADD"},
                                              {TOOL_EDIT, "IDS_EDIT_LINKMAN"},
                                              {TOOL_DELETE, "IDS_PMBTN_DELETE"},
                                              {TOOL_CALL, "IDS_PMBTN_CALL"},
                                              {TOOL_SEND, "IDS_PMMENU_SEND"},
                                              {TOOL_SEARCH, "IDS_PMTOOLBAR_SEARCH"},
                                              {TOOL_IMPORT_MOE, "IDS_PMBTN_IMPORT_FROM_MOE"},
                                              {TOOL_IMPORT_MOO, "IDS_PMBTN_IMPORT_FROM_MOO"}};
        WindowFixture f;
        int number = 0;
        for (const auto& tip : tips) {
            for (const char* language : {"en", "de"}) {
                FakeCore::setText(tip.second, tip.second + language, language);
                FakeCore::setShortcut(tip.second, QKeySequence(QString("Ctrl+%1").arg(number)), language);
            }
            ++number;
        }
        f.build();
        for (const char* language : {"en", "de"}) {
            FakeCore::setLanguage(language);
            f.window()->SetLanguage();
            for (int i = 0; i < tips.size(); ++i) {
                QCOMPARE(f.button(tips[i].first)->toolTip(),
                         QString("%1%2  (Ctrl+%3)").arg(tips[i].second, language).arg(i));
            }
        }
        QVERIFY(f.waitRead());
    }

    void callButtonsTooltipNeedsTheCallPlugin_data()
    {
        QTest::addColumn<bool>("present");
        QTest::newRow("present") << true;
        QTest::newRow("absent") << false;
    }
    void callButtonsTooltipNeedsTheCallPlugin()
    {
        QFETCH(bool, present);
        WindowFixture f;
        FakeCore::setSibling(FakeCore::VoiceCallId, present);
        FakeCore::setShortcut("IDS_PMBTN_CALL", QKeySequence("F9"));
        f.build();
        QCOMPARE(f.button(TOOL_CALL)->toolTip(), QString(present ? "IDS_PMBTN_CALL  (F9)" : "IDS_PMBTN_CALL"));
    }

    void searchButtonTogglesTheBoxByItsFlag()
    {
        WindowFixture f;
        f.build();
        f.button(TOOL_SEARCH)->click();
        QVERIFY(f.in().searchShown());
        f.button(TOOL_SEARCH)->click();
        QVERIFY(!f.in().searchShown());
        emit f.table()->showHideSearchControl();
        QVERIFY(f.in().searchShown());
    }

    void clickedBarTakesTheFocus()
    {
        WindowFixture f;
        f.build();
        QApplication::setActiveWindow(f.window());
        f.table()->setFocus();
        QTRY_VERIFY(f.table()->hasFocus());
        f.window()->OnTBBtnClicked(TOOL_SEND); // does nothing else
        QWidget* bar = f.window()->findChild<QWidget*>(ToolBarLogic::GetObjectName("AddrBookUIPlugin"));
        QVERIFY(bar != nullptr);
        QVERIFY(bar->hasFocus());
    }

    void callButtonCalls()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"Anna", "111"});
        f.build();
        f.selectRows({0});
        f.button(TOOL_CALL)->click();
        QCOMPARE(FakeCore::madeCalls().size(), 1);
    }

    void clickedButtonGivesTheFocusToTheBar()
    {
        WindowFixture f;
        f.build();
        f.table()->setFocus();
        f.window()->OnTBBtnClicked(TOOL_SEND);
        QVERIFY(f.window()->focusWidget() != nullptr);
        QCOMPARE(f.window()->focusWidget()->objectName(), ToolBarLogic::GetObjectName("AddrBookUIPlugin"));
    }

    // "New" on a memory that cannot be read says so, and asks nothing else.
    void newContactIsReachedFromTheBarAndFromTheSearchBox_data()
    {
        QTest::addColumn<bool>("box");
        QTest::newRow("button") << false;
        QTest::newRow("Ctrl+N in the search box") << true;
    }
    void newContactIsReachedFromTheBarAndFromTheSearchBox()
    {
        QFETCH(bool, box);
        WindowFixture f;
        f.build();
        FakeSdk::failAlways("GetProfile");
        AddrBookLogic::Instance()->ClearDeviceInfo();
        f.click(f.in().sim());
        if (box) {
            f.window()->OnShowHideSearchBox();
            QTest::keyClick(f.in().searchBox(), Qt::Key_N, Qt::ControlModifier);
        } else {
            f.button(TOOL_NEW)->click();
        }
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_INIT_DEV_UNDERWAY"));
    }

    void deleteButtonAsks()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FakeCore::answer(QMessageBox::Cancel);
        f.button(TOOL_DELETE)->click();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_FLEXIT_UI_DELETE_ITEM"));
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    void everyConnectionOfTheWindowHolds()
    {
        QStringList failed;
        {
            MessageLog log;
            WindowFixture f;
            f.build();
            failed = MessageLog::lines().filter("No such");
        }
        // Two are meant to fail; the table's does so for each table.
        failed.erase(std::remove_if(failed.begin(), failed.end(),
                                    [](const QString& line) { return line.contains("::sendMmsMessage()"); }),
                     failed.end());
        QCOMPARE(failed.size(), 1);
        QVERIFY(failed.first().contains("OnMoveResult"));
    }

    // Neither missed nor heard twice, also after a node's removal, which takes the table's connections away for a
    // while.
    void everySignalIsHeardOnce()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const QList<const char*> ofTheTree = {SIGNAL(itemClicked(QTreeWidgetItem*, int)),
                                              SIGNAL(itemEntered(QTreeWidgetItem*, int)),
                                              SIGNAL(itemSelectionChanged()),
                                              SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)),
                                              SIGNAL(newContact()),
                                              SIGNAL(deleteGroup()),
                                              SIGNAL(newGroup()),
                                              SIGNAL(renameGroup()),
                                              SIGNAL(sendMessage()),
                                              SIGNAL(sendMmsMessage())};
        const QList<const char*> ofTheTable = {SIGNAL(itemSelectionChanged()),
                                               SIGNAL(cellClicked(int, int)),
                                               SIGNAL(emptyAreaRightClicked(bool)),
                                               SIGNAL(mouseDoubleClicked()),
                                               SIGNAL(editContact()),
                                               SIGNAL(itemClicked(QTableWidgetItem*)),
                                               SIGNAL(newContact()),
                                               SIGNAL(deleteContact()),
                                               SIGNAL(showHideSearchControl()),
                                               SIGNAL(sendMessage()),
                                               SIGNAL(makeCall()),
                                               SIGNAL(dragTargetChanged(QWidget*)),
                                               SIGNAL(importMOE()),
                                               SIGNAL(importMOO())};
        const QList<const char*> ofTheLogic = {
            SIGNAL(signalSimStatus(bool)), SIGNAL(signalNetStatus(bool)),    SIGNAL(signalDeviceConnected(bool)),
            SIGNAL(signalAddrBookReady()), SIGNAL(signalAddrBookSimReady()), SIGNAL(signalAddrBookDeviceReady())};
        for (const char* signal : ofTheTree)
            QVERIFY2(receivers(f.tree(), signal) == 1, signal);
        QCOMPARE(receivers(f.tree(), SIGNAL(showHideSearchControl())), 0);
        for (const char* signal : ofTheLogic)
            QVERIFY2(receivers(AddrBookLogic::Instance(), signal) == 1, signal);
        QCOMPARE(receivers(f.window(), SIGNAL(signalSimStatus(bool))), 1);
        for (const char* signal : {SIGNAL(controlN()), SIGNAL(textEdited(QString))})
            QVERIFY2(receivers(f.in().searchBox(), signal) == 1, signal);
        const auto checkTable = [&](const char* when) {
            for (const char* signal : ofTheTable)
                QVERIFY2(receivers(f.table(), signal) == 1, qPrintable(QString(when) + signal));
        };
        checkTable("at first");
        f.click(f.in().sim());
        checkTable("another node");
        f.window()->OnSysmodeChanged();
        QVERIFY(f.waitRead());
        checkTable("nodes gone");
    }

    void batchWorkersAnnouncementsAreHeardByNobody()
    {
        WindowFixture f;
        f.build();
        AddrBookThread* worker = &f.in().worker();
        for (const char* signal :
             {SIGNAL(addResult(bool, qlonglong)), SIGNAL(delResult(bool, int)), SIGNAL(finished())})
            QVERIFY2(receivers(worker, signal) == 1, signal);
        for (const char* signal :
             {SIGNAL(moveResult(bool, qlonglong)), SIGNAL(addSelectDialogContact(int, int, int)),
              SIGNAL(deleteSelectDialogContact(int, int)), SIGNAL(removeContactFromGroup(int, int, int))})
            QVERIFY2(receivers(worker, signal) == 0, signal);
    }

    void languageChangeRebuildsTheSendMenu()
    {
        WindowFixture f;
        FakeCore::setText("IDS_PMMENU_SEND_MSG", "Ecrire", "fr");
        f.build();
        QPointer<QMenu> before(f.in().sendMenu());
        FakeCore::setLanguage("fr");
        f.window()->SetLanguage();
        QVERIFY(before.isNull());
        QCOMPARE(f.in().sendMenu()->actions().first()->text(), QString("Ecrire  "));
    }
};

QTEST_MAIN(ToolBarTest)
#include "ToolBarTest.moc"
