#include <QTemporaryDir>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/QBuildMenu.h"

namespace
{
const QString s_strPlugin = QLatin1String("AddrBookUIPlugin");

QStringList ids(const QList<MENU::QActionInfo>& actions)
{
    QStringList lstResult;
    for (const MENU::QActionInfo& info : actions)
        lstResult.append(info.strId);
    return lstResult;
}
} // namespace

class CoreBuildMenu : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pHost.reset(new FakeHost); }
    void cleanup() { m_pHost.reset(); }

    void shippedTableMenuHasAllEntries();
    void shippedTreeMenuHasAllEntries();
    void submenuStandsAheadOfItsEntries();
    void menuBelongsToItsOwner();
    void textsAreTranslatedAndUnknownIdsShow();
    void actionsAreAppended();
    void namedMenuIsNoMenuOfItsOwn();
    void submenuIsALaterMenuOfTheSameParent();
    void menusThatOpenOneAnotherEnd();
    void entriesComeInDocumentOrder();
    void separatorStandsAboveItsEntry();
    void otherTypesAreLeftOut();
    void missingFileOrMenuGivesNull();

private:
    QMenu* build(const QByteArray& content, const char* szParent = "owner")
    {
        m_pFolder.reset(new QTemporaryDir);
        m_pHost->strLibraryPath = m_pFolder->path();
        QDir(m_pFolder->path()).mkpath("plugins/AddrBookUIPlugin");
        QFile file(m_pFolder->filePath("plugins/AddrBookUIPlugin/Config.xml"));
        file.open(QIODevice::WriteOnly);
        file.write("<config>" + content + "</config>");
        file.close();
        m_actions.clear();
        m_pOwner.reset(new QWidget);
        MENU::QBuildMenu builder(s_strPlugin, "Config.xml");
        return builder.CreateMenuBar(szParent, m_pOwner.data(), &m_actions);
    }

    QScopedPointer<FakeHost> m_pHost;
    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<QWidget> m_pOwner;
    QList<MENU::QActionInfo> m_actions;
};

void CoreBuildMenu::shippedTableMenuHasAllEntries()
{
    QWidget owner;
    QList<MENU::QActionInfo> actions;
    MENU::QBuildMenu builder(s_strPlugin, "Config.xml");
    QVERIFY(builder.CreateMenuBar("listview", &owner, &actions) != nullptr);
    QStringList lstIds = ids(actions);
    lstIds.sort();
    QStringList lstExpected{"IDS_PMMENU_SEND",
                            "IDS_PMMENU_SEND_MSG",
                            "IDS_PMMENU_SEND_MMS",
                            "IDS_PMMENU_ADD",
                            "IDS_PMMENU_DETAIL",
                            "IDS_PMMENU_DELETE",
                            "IDS_PMMENU_REMFRGRP",
                            "IDS_PMMENU_CALL",
                            "IDS_PMMENU_VIDEO_CALL",
                            "IDS_IMPORT_PHONEBOOK",
                            "IDS_EXPORT_PHONEBOOKSEL",
                            "IDS_EXPORT_PHONEBOOK",
                            "IDS_PMMENU_IMPORT_FROM_MOE",
                            "IDS_PMMENU_IMPORT_FROM_MOO"};
    lstExpected.sort();
    QCOMPARE(lstIds, lstExpected);
}

void CoreBuildMenu::shippedTreeMenuHasAllEntries()
{
    QWidget owner;
    QList<MENU::QActionInfo> actions;
    MENU::QBuildMenu builder(s_strPlugin, "Config.xml");
    QVERIFY(builder.CreateMenuBar("tree", &owner, &actions) != nullptr);
    QCOMPARE(ids(actions), (QStringList{"IDS_Add_GROUP", "IDS_EDIT_GROUP", "IDS_DEL_GROUP", "IDS_SEND_MSG",
                                        "IDS_SEND_MMS", "IDS_PMMENU_CALL"}));
}

void CoreBuildMenu::submenuStandsAheadOfItsEntries()
{
    QWidget owner;
    QList<MENU::QActionInfo> actions;
    MENU::QBuildMenu builder(s_strPlugin, "Config.xml");
    QMenu* pMenu = builder.CreateMenuBar("listview", &owner, &actions);
    const QStringList lstIds = ids(actions);
    const int iSend = lstIds.indexOf("IDS_PMMENU_SEND");
    QVERIFY(iSend >= 0 && iSend < lstIds.indexOf("IDS_PMMENU_SEND_MSG"));
    QVERIFY(iSend < lstIds.indexOf("IDS_PMMENU_SEND_MMS"));
    QMenu* pSubmenu = actions.at(iSend).pAction->menu();
    QVERIFY(pSubmenu != nullptr);
    QCOMPARE(actions.at(iSend).strName, QString("Send"));
    QVERIFY(pMenu->actions().contains(actions.at(iSend).pAction));
    QCOMPARE(pSubmenu->actions().size(), 2);
    QCOMPARE(pSubmenu->actions().at(0), actions.at(lstIds.indexOf("IDS_PMMENU_SEND_MSG")).pAction);
    QVERIFY(!pMenu->actions().contains(pSubmenu->actions().at(0)));
}

void CoreBuildMenu::menuBelongsToItsOwner()
{
    QScopedPointer<QWidget> pOwner(new QWidget);
    QPointer<QMenu> pMenu;
    {
        MENU::QBuildMenu builder(s_strPlugin, "Config.xml");
        pMenu = builder.CreateMenuBar("tree", pOwner.data(), nullptr);
    }
    QVERIFY(!pMenu.isNull()); // the reader is gone, the menu stays
    QCOMPARE(pMenu->parent(), static_cast<QObject*>(pOwner.data()));
    pOwner.reset();
    QVERIFY(pMenu.isNull());
}

void CoreBuildMenu::textsAreTranslatedAndUnknownIdsShow()
{
    QVERIFY(build("<menu name='M' type='POPUP' parent='owner'><item id='IDS_PMMENU_DELETE' type='ITEM'/>"
                  "<item id='IDS_NOBODY' type='ITEM'/></menu>") != nullptr);
    QCOMPARE(m_actions.at(0).pAction->text(), QString("Delete"));
    QCOMPARE(m_actions.at(1).pAction->text(), QString("IDS_NOBODY"));
}

void CoreBuildMenu::actionsAreAppended()
{
    QWidget owner;
    QList<MENU::QActionInfo> actions;
    MENU::QBuildMenu builder(s_strPlugin, "Config.xml");
    builder.CreateMenuBar("tree", &owner, &actions);
    builder.CreateMenuBar("tree", &owner, &actions);
    QCOMPARE(actions.size(), 12);
    QVERIFY(actions.at(0).pAction != actions.at(6).pAction);
}

void CoreBuildMenu::namedMenuIsNoMenuOfItsOwn()
{
    QMenu* pMenu = build("<menu name='Sub' type='POPUP' parent='owner'><item id='a' type='ITEM'/></menu>"
                         "<menu name='Top' type='POPUP' parent='owner'><item id='b' type='POPUP' name='Sub'/></menu>");
    QVERIFY(pMenu != nullptr);
    QCOMPARE(ids(m_actions), QStringList() << "b");
    QVERIFY(m_actions.at(0).pAction->menu() != nullptr);
    QVERIFY(m_actions.at(0).pAction->menu()->isEmpty());
}

void CoreBuildMenu::submenuIsALaterMenuOfTheSameParent()
{
    QVERIFY(build("<menu name='Top' type='POPUP' parent='owner'><item id='a' type='POPUP' name='Sub'/></menu>"
                  "<menu name='Sub' type='POPUP' parent='other'><item id='wrong' type='ITEM'/></menu>"
                  "<menu name='Sub' type='POPUP' parent='owner'><item id='right' type='ITEM'/></menu>") != nullptr);
    QCOMPARE(ids(m_actions), QStringList() << "a"
                                           << "right");
}

void CoreBuildMenu::menusThatOpenOneAnotherEnd()
{
    // Each menu opens the next one ten times: drawn out it would be larger than any memory.
    QByteArray content;
    for (int i = 0; i < 30; ++i) {
        content += "<menu name='m" + QByteArray::number(i) + "' type='POPUP' parent='owner'>";
        for (int j = 0; j < 10; ++j)
            content += "<item id='x' type='POPUP' name='m" + QByteArray::number(i + 1) + "'/>";
        content += "</menu>";
    }
    QVERIFY(build(content) != nullptr);
    QVERIFY(m_actions.size() <= 1000);
    // A chain without an end in sight ends as well.
    content.clear();
    for (int i = 0; i < 3000; ++i) {
        content += "<menu name='m" + QByteArray::number(i) + "' type='POPUP' parent='owner'><item id='x' type='POPUP'" +
                   " name='m" + QByteArray::number(i + 1) + "'/></menu>";
    }
    QVERIFY(build(content) != nullptr);
    QVERIFY(m_actions.size() <= 1000);
    // One that names itself is nobody's menu.
    QVERIFY(build("<menu name='m' type='POPUP' parent='owner'><item id='x' type='POPUP' name='m'/></menu>") == nullptr);
}

void CoreBuildMenu::entriesComeInDocumentOrder()
{
    QVERIFY(build("<menu name='Top' type='POPUP' parent='owner'><item id='1' type='POPUP' name='B'/>"
                  "<item id='2' type='POPUP' name='A'/><item id='3' type='ITEM'/></menu>"
                  "<menu name='A' type='POPUP' parent='owner'><item id='4' type='ITEM'/></menu>"
                  "<menu name='B' type='POPUP' parent='owner'><item id='5' type='ITEM'/></menu>") != nullptr);
    QCOMPARE(ids(m_actions).join(""), QString("12345"));
}

void CoreBuildMenu::separatorStandsAboveItsEntry()
{
    QMenu* pMenu = build("<menu name='Top' type='POPUP' parent='owner'><item id='1' type='ITEM'/>"
                         "<item id='2' type='ITEM' separator='true'/></menu>");
    QVERIFY(pMenu != nullptr);
    QCOMPARE(pMenu->actions().size(), 3);
    QVERIFY(pMenu->actions().at(1)->isSeparator());
    QCOMPARE(m_actions.size(), 2);
}

void CoreBuildMenu::otherTypesAreLeftOut()
{
    QVERIFY(build("<menu name='X' type='BAR' parent='owner'><item id='1' type='ITEM'/></menu>"
                  "<menu name='Top' type='POPUP' parent='owner'><item id='2' type='OTHER'/><item id='' type='ITEM'/>"
                  "<item type='ITEM'/><item id='3' type='ITEM'/><other id='4' type='ITEM'/></menu>") != nullptr);
    QCOMPARE(ids(m_actions), QStringList() << "3");
}

void CoreBuildMenu::missingFileOrMenuGivesNull()
{
    QWidget owner;
    QList<MENU::QActionInfo> actions;
    MENU::QBuildMenu builder(s_strPlugin, "Absent.xml");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Absent.xml"));
    QVERIFY(builder.CreateMenuBar("tree", &owner, &actions) == nullptr);
    MENU::QBuildMenu other(s_strPlugin, "Config.xml");
    QVERIFY(other.CreateMenuBar("nobody", &owner, &actions) == nullptr);
    QVERIFY(other.CreateMenuBar("", &owner, &actions) == nullptr);
    QVERIFY(actions.isEmpty());
    QVERIFY(owner.children().isEmpty());
}

QTEST_MAIN(CoreBuildMenu)
#include "core_buildmenu.moc"
