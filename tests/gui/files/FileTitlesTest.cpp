#include <QLoggingCategory>

#include "FilesFixture.h"
#include "MessageLog.h"

// The two questions about a file's titles: for their length, and for their text.
class FileTitlesTest : public WindowTest
{
    Q_OBJECT

private slots:
    void onlyTheCodeForALengthCounts_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<int>("warnings");
        QTest::newRow("2: there is a length") << 2 << QStringList({"A", "B"}) << 0;
        QTest::newRow("0 with a length") << 0 << QStringList() << 0;
        QTest::newRow("1 with a length") << 1 << QStringList() << 1;
        QTest::newRow("3 with a length") << 3 << QStringList() << 1;
        QTest::newRow("-2 with a length") << -2 << QStringList() << 1;
    }
    void onlyTheCodeForALengthCounts()
    {
        QFETCH(int, code);
        QFETCH(QStringList, titles);
        QFETCH(int, warnings);
        FilesFixture f;
        f.build();
        FilesFixture::makeFile("file", "A,B", {});
        FakeSdk::setTitleLengthCode(code);
        FakeSdk::clearCalls();
        QList<QString> found{"before"};
        QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=true");
        const MessageLog log;
        f.window()->getFileFieldDescription("file", found);
        QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
        QCOMPARE(MessageLog::warnings().filter("GetFileFieldDescription returned").size(), warnings);
        QCOMPARE(QStringList(found), titles);
        QCOMPARE(FakeSdk::count("GetFileFieldDescription"), code == 2 ? 2 : 1);
    }
};

QTEST_MAIN(FileTitlesTest)
#include "FileTitlesTest.moc"
