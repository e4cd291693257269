#include <QLoggingCategory>
#include <QRegExp>
#include <QRegularExpression>

#include "MessageLog.h"
#include "WindowFixture.h"

// What the window makes of a set of groups that cannot be read to its end, and how its sources log.
class HalfReadTest : public WindowTest
{
    Q_OBJECT

private slots:
    void groupsThatFailHalfWayMakeNoNodes_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char* call :
             {"AddrGroupSet_GetID", "AddrGroupSet_GetParentID", "AddrGroupSet_GetName", "AddrGroupSet_GetGroupSize"})
            QTest::newRow(call) << QByteArray(call);
    }
    void groupsThatFailHalfWayMakeNoNodes()
    {
        QFETCH(QByteArray, call);
        FakeCore::setText("IDS_LOCAL_PHONEBOOKUI", "PC");
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::addGroup("Second");
        FakeSdk::addGroup("Third");
        FakeSdk::fail(call, 2);
        f.build();
        QCOMPARE(FakeSdk::failedCall(), call);
        QCOMPARE(f.in().local()->childCount(), 0);
    }

    void groupsThatCanBeReadMakeNodes()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::addGroup("Second");
        f.build();
        QCOMPARE(f.in().local()->childCount(), 2);
    }

    // Some sources log the file and the function alone, most the time in front, and none a path.
    void linesHaveTheirPlaces()
    {
        WindowFixture f;
        FakeCore::setContainerPresent(false);
        QLoggingCategory::setFilterRules("default.debug=true\ndefault.warning=true");
        const MessageLog log;
        FakeSdk::fail("DevSrv_GetRFSwitch");
        f.build();
        f.window()->pushNotify(288, 4, 1);
        const QStringList lines = MessageLog::lines();
        QCOMPARE(lines.filter(QRegularExpression("^AddrBookDlgToolBar\\.cpp: \\w+: (Enter|Exit)$")).isEmpty(), false);
        QCOMPARE(lines.filter(QRegularExpression("AddrBookDlgToolBar\\.cpp: \\w+:? (Enter|Exit)")).size(),
                 lines.filter(QRegularExpression("^AddrBookDlgToolBar\\.cpp: \\w+: (Enter|Exit)$")).size());
        const QStringList container = lines.filter("Plugin container is null ");
        QVERIFY(!container.isEmpty());
        for (const QString& line : container)
            QVERIFY2(QRegExp("^\\w+\\.cpp: \\w+: Plugin container is null $").exactMatch(line), qPrintable(line));
        QCOMPARE(lines
                     .filter(QRegularExpression(
                         "^[0-9:]+ : AddrBookDlg\\.cpp : \\w+ : ORVA_DevSrv_GetRFSwitch returned error$"))
                     .size(),
                 1);
        // Where it is built without optimisation, Qt names places of its own.
        for (const QString& line : lines.filter(QRegularExpression("^(?!QObject::connect).*\\.cpp")))
            QVERIFY2(!line.contains("/"), qPrintable(line));
        QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    }
};

QTEST_MAIN(HalfReadTest)
#include "HalfReadTest.moc"
