#include <QMap>
#include <QMenu>

#include "ToolItems.h"

using namespace ToolItems;

// What is enabled, over all combinations of siblings, settings, network, radio, node and selection.
class MenuRulesTest : public WindowTest
{
    Q_OBJECT

private:
    static QMap<QString, bool> states(const WindowFixture& f)
    {
        QMap<QString, bool> map;
        for (const MENU::QActionInfo& info : f.in().tableActions())
            map.insert("table " + info.strId, info.pAction->isEnabled());
        for (const MENU::QActionInfo& info : f.in().treeActions())
            map.insert("tree " + info.strId, info.pAction->isEnabled());
        return map;
    }

    // The entries that depend on the status the menu is prepared for; what is not named stays.
    static void applyStatus(QMap<QString, bool>& map, ADDRBOOK_ENABLE_STATUS status, bool subGroups,
                            Selection selection)
    {
        const auto table = [&map](bool detail, bool remove, bool exported) {
            map["table IDS_PMMENU_DETAIL"] = detail;
            map["table IDS_PMMENU_DELETE"] = remove;
            map["table IDS_EXPORT_PHONEBOOKSEL"] = exported;
        };
        const auto tree = [&map](bool add, bool rename, bool remove) {
            map["tree IDS_Add_GROUP"] = add;
            map["tree IDS_EDIT_GROUP"] = rename;
            map["tree IDS_DEL_GROUP"] = remove;
        };
        switch (status) {
        case ADDRBOOK_ENABLE_TABLE_SINGLE:
            return table(true, true, true);
        case ADDRBOOK_ENABLE_TABLE_MULTIPLE:
            return table(false, true, true);
        case ADDRBOOK_ENABLE_TABLE_NONE:
            return table(false, false, false);
        case ADDRBOOK_ENABLE_TREE_LOCAL:
            return tree(true, false, false);
        case ADDRBOOK_ENABLE_TREE_GROUP:
            return tree(subGroups, true, true);
        case ADDRBOOK_ENABLE_TREE_DEVICE:
            return tree(false, false, false);
        case ADDRBOOK_ENABLE_TABLE_IN_GROUP:
            map["table IDS_PMMENU_REMFRGRP"] = selection != None;
            return;
        }
    }

    // The tool items and the two entries that follow them, as the rules tell it event by event.
    struct Model {
        enum Event { SelectNone, SelectOne, SelectSeveral, NetUp, NetDown, RadioOn, RadioOff, EmptyArea, Switch };

        bool states[6] = {}; // 9001, 9002, 9003, 9005, send, call
        Selection selection = None;
        bool net = true;
        bool radio = true;

        void set(const QList<int>& wanted)
        {
            for (int i = 0; i < 6; ++i)
                states[i] = wanted.at(i) == Same ? states[i] : wanted.at(i) == On;
        }

        void apply(Event event)
        {
            const QList<int> sendOff{Same, Same, Off, Off, Off, Off};
            const QList<int> sendOn{Same, Same, On, On, On, On};
            switch (event) {
            case SelectNone:
                selection = None;
                return set({Off, Off, Off, Off, Off, Off});
            case SelectOne: // the preview that follows turns the call off, and leaves the rest of what sends
                selection = One;
                return set(net && radio ? QList<int>{On, On, On, On, On, On}
                                        : QList<int>{On, On, Off, Same, Same, Off});
            case SelectSeveral:
                selection = Several;
                return set(net && radio ? QList<int>{Off, On, Off, On, On, Off}
                                        : QList<int>{Off, On, Off, Same, Same, Off});
            case NetUp:
                net = true;
                if (!radio)
                    return set(sendOff);
                if (selection == Several)
                    return set({Same, Same, Same, On, On, Same});
                return selection == One ? set(sendOn) : void();
            case NetDown:
                net = false;
                return set(sendOff);
            case RadioOn:
                radio = true;
                if (!net)
                    return set(sendOff);
                return selection != None ? set(sendOn) : void();
            case RadioOff:
                radio = false;
                return set(sendOff);
            case EmptyArea:
                return selection == None ? set({Off, Off, Off, Off, Off, Off}) : void();
            case Switch:
                selection = None;
                return set({Off, Off, Off, Off, Off, Off});
            }
        }

        static QString name(Event event)
        {
            return QStringList{"none",     "one",       "several",    "network up",  "network down",
                               "radio on", "radio off", "empty area", "another node"}
                .at(event);
        }
    };

private slots:
    void everyOpening_data()
    {
        QTest::addColumn<bool>("sms");
        QTest::addColumn<bool>("mms");
        QTest::addColumn<bool>("container");
        QTest::addColumn<bool>("subGroups");
        for (int bits = 0; bits < 16; ++bits) {
            QTest::newRow(qPrintable(QString::number(bits, 2)))
                << ((bits & 1) != 0) << ((bits & 2) != 0) << ((bits & 4) != 0) << ((bits & 8) != 0);
        }
    }
    void everyOpening()
    {
        QFETCH(bool, sms);
        QFETCH(bool, mms);
        QFETCH(bool, container);
        QFETCH(bool, subGroups);
        WindowFixture f;
        WindowFixture::fillStores();
        FakeCore::setSibling(FakeCore::SmsId, sms);
        FakeCore::setSibling(FakeCore::MmsId, mms);
        f.build();
        f.in().subGroups() = subGroups;
        QCOMPARE(f.treeAction("IDS_SEND_MMS") != nullptr, mms);
        FakeCore::setContainerPresent(container);
        for (int node = 0; node < 2; ++node) {
            f.click(node == 0 ? f.in().local() : f.node("Friends"));
            for (int combination = 0; combination < 12; ++combination) {
                const Selection selection = Selection(combination % 3);
                const bool net = combination / 3 % 2 == 0;
                const bool radioOff = combination / 6 == 1;
                f.window()->OnNetStatusChanged(net);
                f.window()->OnRFStatusChanged(radioOff);
                select(f, selection);
                for (int status = 0; status <= ADDRBOOK_ENABLE_TABLE_IN_GROUP; ++status) {
                    QMap<QString, bool> wanted = states(f);
                    const bool online = net && !radioOff;
                    if (container) {
                        wanted["tree IDS_SEND_MSG"] = online && sms;
                        if (mms)
                            wanted["tree IDS_SEND_MMS"] = online && sms;
                        wanted["table IDS_EXPORT_PHONEBOOK"] = true;
                        wanted["table IDS_PMMENU_SEND"] = selection != None && online && sms;
                        wanted["table IDS_PMMENU_CALL"] = selection == One && online;
                        wanted["table IDS_PMMENU_VIDEO_CALL"] = false;
                        wanted["table IDS_PMMENU_REMFRGRP"] = false;
                        applyStatus(wanted, ADDRBOOK_ENABLE_STATUS(status), subGroups, selection);
                    }
                    f.window()->updateContextMenu(ADDRBOOK_ENABLE_STATUS(status));
                    const QMap<QString, bool> now = states(f);
                    for (auto it = wanted.constBegin(); it != wanted.constEnd(); ++it) {
                        QVERIFY2(now.value(it.key()) == it.value(),
                                 qPrintable(QString("%1 at status %2, selection %3, online %4")
                                                .arg(it.key())
                                                .arg(status)
                                                .arg(selection)
                                                .arg(online)));
                    }
                }
            }
        }
    }

    void exportOfAnEmptyTableIsOff()
    {
        WindowFixture f;
        f.build();
        f.window()->updateContextMenu(ADDRBOOK_ENABLE_TABLE_NONE);
        QVERIFY(!f.tableAction("IDS_EXPORT_PHONEBOOK")->isEnabled());
    }

    void callEntriesNeedTheirPluginAndTheSetting_data()
    {
        QTest::addColumn<bool>("voice");
        QTest::addColumn<bool>("video");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("voiceShown");
        QTest::addColumn<bool>("videoShown");
        QTest::newRow("both") << true << true << "1" << true << true;
        QTest::newRow("begins with 1") << true << true << "10" << true << true;
        QTest::newRow("empty setting") << true << true << "" << false << false;
        QTest::newRow("0") << true << true << "0" << false << false;
        QTest::newRow("01") << true << true << "01" << false << false;
        QTest::newRow("voice alone") << true << false << "1" << true << false;
        QTest::newRow("video alone") << false << true << "1" << false << true;
        QTest::newRow("neither") << false << false << "1" << false << false;
    }
    void callEntriesNeedTheirPluginAndTheSetting()
    {
        QFETCH(bool, voice);
        QFETCH(bool, video);
        QFETCH(QString, setting);
        QFETCH(bool, voiceShown);
        QFETCH(bool, videoShown);
        WindowFixture f;
        FakeCore::setSibling(FakeCore::VoiceCallId, voice);
        FakeCore::setSibling(FakeCore::VideoCallId, video);
        FakeCore::setSetting("callui", "callvoice", setting);
        f.build();
        // Out of the menu, and still in the list.
        QAction* const voiceEntry = f.tableAction("IDS_PMMENU_CALL");
        QAction* const videoEntry = f.tableAction("IDS_PMMENU_VIDEO_CALL");
        QVERIFY(voiceEntry != nullptr);
        QVERIFY(videoEntry != nullptr);
        QCOMPARE(f.in().tableMenu()->actions().contains(voiceEntry), voiceShown);
        QCOMPARE(f.in().tableMenu()->actions().contains(videoEntry), videoShown);
        QVERIFY(f.in().treeMenu()->actions().contains(f.treeAction("IDS_PMMENU_CALL")));
    }

    void mmsEntriesGoWithTheirPlugin_data()
    {
        QTest::addColumn<bool>("mms");
        QTest::newRow("present") << true;
        QTest::newRow("absent") << false;
    }
    void mmsEntriesGoWithTheirPlugin()
    {
        QFETCH(bool, mms);
        WindowFixture f;
        FakeCore::setSibling(FakeCore::MmsId, mms);
        f.build();
        QMenu* const send = f.tableAction("IDS_PMMENU_SEND")->menu();
        QVERIFY(send != nullptr);
        QCOMPARE(send->actions().contains(f.tableAction("IDS_PMMENU_SEND_MMS")), mms);
        QVERIFY(send->actions().contains(f.tableAction("IDS_PMMENU_SEND_MSG")));
        QCOMPARE(f.treeAction("IDS_SEND_MMS") != nullptr, mms);
        // They stay away for the session.
        FakeCore::setSibling(FakeCore::MmsId, true);
        f.window()->updateContextMenu(ADDRBOOK_ENABLE_TREE_LOCAL);
        QCOMPARE(f.treeAction("IDS_SEND_MMS") != nullptr, mms);
    }

    void sendSubmenuBehindTheMmsEntryIsNotFound()
    {
        WindowFixture f;
        QByteArray xml = WindowFixture::shippedConfig();
        xml.replace(
            R"(<item id="IDS_PMMENU_SEND" type="POPUP" name="Send"/>)",
            R"(<item id="IDS_PMMENU_SEND_MMS" type="ITEM"/><item id="IDS_PMMENU_SEND" type="POPUP" name="Send"/>)");
        f.writeConfig(xml);
        FakeCore::setSibling(FakeCore::MmsId, false);
        f.build();
        QAction* const first = f.tableAction("IDS_PMMENU_SEND_MMS");
        QVERIFY(f.in().tableMenu()->actions().contains(first));
    }

    // The same rules behind each other, in an order that no hand would write down.
    void anyOrderOfEvents_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 5; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void anyOrderOfEvents()
    {
        QFETCH(unsigned int, seed);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        AddrBookDlg* const w = f.window();
        Model model;
        model.apply(Model::Switch);
        w->OnNetStatusChanged(true);
        w->OnRFStatusChanged(false);
        preset(f, false);
        f.selectRows({});
        QStringList events;
        for (int step = 0; step < 300; ++step) {
            seed = seed * 1103515245 + 12345;
            const unsigned int number = seed / 65536 % 57;
            const auto event = number >= 56 ? Model::Switch : Model::Event(number % 8);
            events << Model::name(event);
            model.apply(event);
            if (event <= Model::SelectSeveral) {
                select(f, Selection(event));
                w->OnTableItemSelectionChanged(); // a selection that stays tells nobody
            } else if (event == Model::NetUp || event == Model::NetDown) {
                w->OnNetStatusChanged(event == Model::NetUp);
            } else if (event == Model::RadioOn || event == Model::RadioOff) {
                w->OnRFStatusChanged(event == Model::RadioOff);
            } else if (event == Model::EmptyArea) {
                w->OnTableEmptyAreaRightClicked();
            } else {
                f.click(f.tree()->currentItem() == f.in().local() ? f.node("Friends") : f.in().local());
            }
            QList<int> expected;
            for (bool on : model.states)
                expected << (on ? On : Off);
            compare(f, expected, false, qPrintable(QStringList(events.mid(qMax(0, step - 5))).join(", ")));
            if (QTest::currentTestFailed())
                return;
        }
    }

    void selectionChangeTurnsTheMailClientsOff()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        for (int id : {TOOL_IMPORT_MOE, TOOL_IMPORT_MOO})
            f.window()->enableItem(id);
        f.window()->OnTableItemSelectionChanged();
        QVERIFY(!f.button(TOOL_IMPORT_MOE)->isEnabled());
        QVERIFY(!f.button(TOOL_IMPORT_MOO)->isEnabled());
        QVERIFY(!f.tableAction("IDS_PMMENU_IMPORT_FROM_MOE")->isEnabled());
        QVERIFY(!f.tableAction("IDS_PMMENU_IMPORT_FROM_MOO")->isEnabled());
    }
};

QTEST_MAIN(MenuRulesTest)
#include "MenuRulesTest.moc"
