#include <QtTest>

#include "window/ContactFile.h"
#include "window/UsageFile.h"

class FilesTest : public QObject
{
    Q_OBJECT

private slots:
    void extensionsOfThreeLettersAreRespected_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("written");
        QTest::newRow("none") << "report"
                              << "report.csv";
        QTest::newRow("three") << "report.txt"
                               << "report.txt";
        QTest::newRow("four") << "x.abcd"
                              << "x.abcd.csv";
        QTest::newRow("short") << "a.b"
                               << "a.b";
        QTest::newRow("one") << "report.c"
                             << "report.c.csv";
    }
    void extensionsOfThreeLettersAreRespected()
    {
        QFETCH(QString, chosen);
        QTEST(ContactFile::withExtension(chosen), "written");
    }

    void fieldsAreMappedToColumns()
    {
        const QList<QString> titles = {"Name", "Phone", "Phone", ""};
        QCOMPARE(ContactFile::positions({"Phone", " ", "Name"}, titles), (QList<int>{2, -1, 0}));
        QCOMPARE(ContactFile::positions({"unknown", "Name"}, titles), QList<int>{0});
        QCOMPARE(ContactFile::positions({"", ""}, {"Name"}), QList<int>()); // rows beyond the last field
    }

    void usageFileLiesBesideTheLogFolder()
    {
        QCOMPARE(UsageFile::pathsBeside("/data/log/").strFile, QString("/data/OnlineUpdate/UpdateInfo/kpi-pb.dat"));
        QCOMPARE(UsageFile::pathsBeside("/data/log/").strFolder, QString("/data/OnlineUpdate/UpdateInfo"));
        QCOMPARE(UsageFile::pathsBeside("log").strFile, QString("OnlineUpdate/UpdateInfo/kpi-pb.dat"));
        QCOMPARE(UsageFile::pathsBeside(QString()).strFile, QString());
    }

    void usageIsNotNotedWhereItsFolderIsMissing()
    {
        QTemporaryDir folder;
        UsageFile file;
        QVERIFY(!file.note(QString(), "PB01", "PBisUsing", "1"));
        QVERIFY(!file.note(folder.path() + "/log/", "PB01", "PBisUsing", "1"));
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

QTEST_MAIN(FilesTest)
#include "tst_files.moc"
