#include <QMenu>
#include <QObject>
#include <QToolButton>

#include "WindowFixture.h"

// The tool bar, its tooltips, and the send button's menu.
class ToolBarTest : public QObject
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

private slots:
    void cleanup() { QCOMPARE(FakeSdk::leaks(), QString()); }

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

    void callButtonCalls()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"Anna", "111"});
        f.build();
        f.selectRows({0});
        f.button(TOOL_CALL)->click();
        QCOMPARE(FakeCore::madeCalls().size(), 1);
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
