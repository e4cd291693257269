#include <QAction>
#include <QtTest>

#include "logic/AddrBookTypes.h"
#include "window/MenuEntries.h"

class Slots : public QObject
{
    Q_OBJECT

public:
    QStringList called;

public slots:
    void OnButtonClickedNewContact() { called << "new contact"; }
    void OnDeleteGroupClicked() { called << "delete group"; }
    void OnButtonClickedCall() { called << "call"; }
};

class MenusTest : public QObject
{
    Q_OBJECT

private:
    QList<MENU::QActionInfo> m_lstTable;
    QList<MENU::QActionInfo> m_lstTree;

    static void add(QList<MENU::QActionInfo>& actions, QObject* owner, const char* id)
    {
        MENU::QActionInfo info;
        info.pAction = new QAction(owner);
        info.strId = QLatin1String(id);
        actions << info;
    }
    // What is on, of both menus.
    QStringList on() const
    {
        QStringList ids;
        foreach (const MENU::QActionInfo& info, m_lstTable + m_lstTree) {
            if (info.pAction->isEnabled())
                ids << info.strId;
        }
        return ids;
    }
    QStringList open(bool online, bool sms, bool mms, bool rows, int selection) const
    {
        const MenuSituation situation = {online, sms, mms, rows, selection};
        applyMenuRules(situation, MenuEntries(MenuEntries::TABLE, m_lstTable),
                       MenuEntries(MenuEntries::TREE, m_lstTree));
        return on();
    }

private slots:
    void init()
    {
        m_lstTable.clear();
        m_lstTree.clear();
        for (const char* id : {"IDS_PMMENU_SEND", "IDS_PMMENU_CALL", "IDS_PMMENU_VIDEO_CALL", "IDS_PMMENU_REMFRGRP",
                               "IDS_EXPORT_PHONEBOOK"})
            add(m_lstTable, this, id);
        for (const char* id : {"IDS_SEND_MSG", "IDS_SEND_MMS"})
            add(m_lstTree, this, id);
    }

    void firstActionWithTheIdIsFound()
    {
        add(m_lstTable, this, "IDS_PMMENU_SEND");
        QCOMPARE(MenuEntries::find("IDS_PMMENU_SEND", m_lstTable), m_lstTable.first().pAction);
        QVERIFY(MenuEntries::find("", m_lstTable) == nullptr);
        QVERIFY(MenuEntries::find("IDS_NONE", m_lstTable) == nullptr);
    }

    void entriesLeadToTheirSlots()
    {
        QList<MENU::QActionInfo> actions;
        for (const char* id : {"IDS_PMMENU_ADD", "IDS_PMMENU_VIDEO_CALL", "IDS_DEL_GROUP", "IDS_PMMENU_CALL"})
            add(actions, this, id);
        Slots window;
        const MenuEntries table(MenuEntries::TABLE, actions);
        const MenuEntries tree(MenuEntries::TREE, actions);
        table.connectTo(&window, actions.at(0));
        table.connectTo(&window, actions.at(1)); // nothing to be connected to
        table.connectTo(&window, actions.at(2)); // no entry of this menu
        tree.connectTo(&window, actions.at(2));
        tree.connectTo(&window, actions.at(3));
        foreach (const MENU::QActionInfo& info, actions)
            info.pAction->trigger();
        QCOMPARE(window.called, QStringList({"new contact", "delete group", "call"}));
    }

    void oneRowOnlineAllowsEverythingButVideo()
    {
        QCOMPARE(open(true, true, true, true, ADDRBOOK_ENABLE_TABLE_SINGLE),
                 QStringList(
                     {"IDS_PMMENU_SEND", "IDS_PMMENU_CALL", "IDS_EXPORT_PHONEBOOK", "IDS_SEND_MSG", "IDS_SEND_MMS"}));
    }

    void severalRowsAreNotCalled()
    {
        QCOMPARE(open(true, true, false, true, ADDRBOOK_ENABLE_TABLE_MULTIPLE),
                 QStringList({"IDS_PMMENU_SEND", "IDS_EXPORT_PHONEBOOK", "IDS_SEND_MSG", "IDS_SEND_MMS"}));
    }

    void offlineNothingIsSent()
    {
        QCOMPARE(open(false, true, true, true, ADDRBOOK_ENABLE_TABLE_SINGLE), QStringList("IDS_EXPORT_PHONEBOOK"));
    }

    void withoutTheSmsPlugInNoMmsEither()
    {
        QCOMPARE(open(true, false, true, false, ADDRBOOK_ENABLE_TABLE_SINGLE), QStringList("IDS_PMMENU_CALL"));
    }

    void entryForMmsStaysWhereItIsNotListed()
    {
        QVERIFY(open(false, false, false, false, ADDRBOOK_ENABLE_TABLE_NONE) == QStringList("IDS_SEND_MMS"));
    }
};

QTEST_MAIN(MenusTest)
#include "tst_menus.moc"
