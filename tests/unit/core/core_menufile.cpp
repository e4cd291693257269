#include <QTemporaryDir>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/QBuildMenu.h"
#include "linkhand/core/ToolBarLogic.h"

// The shipped menu file, damaged in every place: whatever is left of it, bar and menus come up or fail cleanly.
class CoreMenuFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cutAtEveryByte();
    void corruptedAtEveryByte();
    void hostileFiles_data();
    void hostileFiles();
    void whatStandsBeforeTheFaultCounts();

private:
    void use(const QByteArray& content);

    QTemporaryDir m_folder;
    QByteArray m_content;
    QScopedPointer<FakeHost> m_pHost;
    int m_iItems = 0;
    int m_iActions = 0;
    bool m_bTable = false;
};

void CoreMenuFile::initTestCase()
{
    m_pHost.reset(new FakeHost);
    QFile shipped(m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/Config.xml");
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    m_content = shipped.readAll();
    QVERIFY(!m_content.isEmpty());
    m_pHost->strLibraryPath = m_folder.path();
    QVERIFY(QDir(m_folder.path()).mkpath("plugins/AddrBookUIPlugin"));
    // Each damage is reported; thousands of them are not to be read.
    qInstallMessageHandler([](QtMsgType enType, const QMessageLogContext&, const QString& strText) {
        if (!strText.startsWith("menu file"))
            fprintf(enType == QtDebugMsg ? stdout : stderr, "%s\n", qPrintable(strText));
    });
}

void CoreMenuFile::use(const QByteArray& content)
{
    const QString strPath = m_folder.filePath("plugins/AddrBookUIPlugin/Config.xml");
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    QWidget bar;
    QList<ToolItem> items;
    bool bFlag = false;
    QButtonGroup* pGroup = nullptr;
    QHBoxLayout* pLayout = nullptr;
    SearchLineEdit* pSearch = nullptr;
    QLabel* pLabel = nullptr;
    ToolBarLogic::GetXmlData(strPath, items, bFlag, "AddrBookUIPlugin");
    m_iItems = items.size();
    const bool bBar =
        ToolBarLogic::CreateToolBar("AddrBookUIPlugin", &bar, items, &pGroup, &pLayout, &pSearch, &pLabel);
    QCOMPARE(bBar, m_iItems > 0);
    QCOMPARE(pGroup != nullptr, bBar);
    for (const ToolItem& item : qAsConst(items))
        QCOMPARE(item.pButton != nullptr, bBar);
    ToolBarLogic::ChangeToolBarIconDirection("AddrBookUIPlugin", items, true, &pLabel);
    ToolBarLogic::DestroyToolButtonGroup(items, &pGroup);

    QWidget owner;
    QList<MENU::QActionInfo> actions;
    MENU::QBuildMenu builder("AddrBookUIPlugin", "Config.xml");
    m_bTable = builder.CreateMenuBar("listview", &owner, &actions) != nullptr;
    builder.CreateMenuBar("tree", &owner, &actions);
    m_iActions = actions.size();
    for (const MENU::QActionInfo& info : qAsConst(actions)) {
        QVERIFY(info.pAction != nullptr);
        QVERIFY(!info.strId.isEmpty());
    }
}

void CoreMenuFile::cutAtEveryByte()
{
    int iItems = 0;
    int iActions = 0;
    for (int i = 0; i <= m_content.size(); ++i) {
        use(m_content.left(i));
        // The more of the file is there, the more comes out of it.
        QVERIFY(m_iItems >= iItems);
        QVERIFY(m_iActions >= iActions);
        iItems = m_iItems;
        iActions = m_iActions;
    }
    QCOMPARE(iItems, 6);
    QCOMPARE(iActions, 20);
}

void CoreMenuFile::corruptedAtEveryByte()
{
    const QByteArray values =
        qEnvironmentVariableIsSet("LINKHAND_FULL") ? QByteArray("\0<\"&\xff", 5) : QByteArray("<\xff");
    for (int i = 0; i < m_content.size(); ++i) {
        for (const char c : values) {
            QByteArray damaged = m_content;
            damaged[i] = c;
            use(damaged);
        }
    }
}

void CoreMenuFile::hostileFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("no end") << QByteArray(100000, '<');
    QByteArray deep;
    for (int i = 0; i < 200000; ++i)
        deep += "<m>";
    QTest::newRow("deep") << deep;
    QByteArray bomb = "<!DOCTYPE c [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + before + before + "\">";
    }
    QTest::newRow("entities") << bomb + "]><config><toolbar><toolitem id=\"1\" tip=\"&a29;\"/></toolbar></config>";
    QByteArray many = "<config><menu name='T' type='POPUP' parent='tree'>";
    for (int i = 0; i < 50000; ++i)
        many += "<item id='x' type='ITEM'/>";
    QTest::newRow("many entries") << many + "</menu></config>";
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0c\0/\0>\0", 10);
}

void CoreMenuFile::hostileFiles()
{
    QFETCH(QByteArray, content);
    use(content);
    QVERIFY(m_iActions <= 1000);
    QVERIFY(m_iItems == 0);
}

void CoreMenuFile::whatStandsBeforeTheFaultCounts()
{
    QByteArray damaged = m_content;
    damaged.truncate(damaged.indexOf("<menu name=\"Tree\""));
    use(damaged + "<<<");
    QCOMPARE(m_iItems, 6);
    QVERIFY(m_bTable);
    QCOMPARE(m_iActions, 14);
}

QTEST_MAIN(CoreMenuFile)
#include "core_menufile.moc"
