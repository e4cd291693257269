#include <QLocale>
#include <QRegExp>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include "app/CommandLine.h"
#include "loader/WorkerCount.h"
#include "settings/DataFolder.h"
#include "settings/HostSettings.h"
#include "text/LanguageCatalog.h"

Q_DECLARE_METATYPE(CommandLine)

class TestHostSettings : public QObject
{
    Q_OBJECT

private slots:
    void settingsAreKeptBetweenRuns();
    void otherSectionsStay();
    void settingsOfAFirstStartAreEmpty();
    void codesOfLanguageFiles_data();
    void codesOfLanguageFiles();
    void languagesAreListedByTheirOwnNames();
    void theBestLanguageForAWish_data();
    void theBestLanguageForAWish();
    void arguments_data();
    void arguments();
    void helpNamesEveryOption();
    void theDataFolderFollowsTheEnvironment();
    void preparingMakesTheFolderAndOnlineUpdateBesideTheLog();
    void aFolderThatCannotBeMadeIsAProblem();
    void workersAreCountedFromManyThreads();
    void aWorkerThatWasNotCountedIsNotSubtracted();
};

void TestHostSettings::settingsAreKeptBetweenRuns()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("deep/linkhand.ini");
    HostSettings first(strFile);
    first.SetLanguage("zh_CN");
    first.SetGeometry("\x01\x00\xff");
    first.SetDevicePanelShown(true);
    first.SetWelcomeDismissed(true);
    const HostSettings second(strFile);
    QCOMPARE(second.Language(), QStringLiteral("zh_CN"));
    QCOMPARE(second.Geometry(), QByteArray("\x01\x00\xff"));
    QVERIFY(second.DevicePanelShown());
    QVERIFY(second.WelcomeDismissed());
}

void TestHostSettings::otherSectionsStay()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("linkhand.ini");
    {
        QSettings settings(strFile, QSettings::IniFormat);
        settings.setValue("callui/callvoice", "0");
    }
    HostSettings(strFile).SetLanguage("en");
    QCOMPARE(QSettings(strFile, QSettings::IniFormat).value("callui/callvoice").toString(), QStringLiteral("0"));
}

void TestHostSettings::settingsOfAFirstStartAreEmpty()
{
    const QTemporaryDir folder;
    const HostSettings settings(folder.filePath("none.ini"));
    QVERIFY(settings.Language().isEmpty());
    QVERIFY(settings.Geometry().isEmpty());
    QVERIFY(!settings.DevicePanelShown());
    QVERIFY(!settings.WelcomeDismissed());
}

void TestHostSettings::codesOfLanguageFiles_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("linkhand_en.qm") << "en";
    QTest::newRow("linkhand_zh_CN.qm") << "zh_CN";
    QTest::newRow("de.qm") << "de";
    QTest::newRow("pt_BR.qm") << "pt_BR";
    QTest::newRow("linkhand.qm") << "";
    QTest::newRow("linkhand_qqz.qm") << "";
    QTest::newRow("linkhand_en.ts") << "";
}

void TestHostSettings::codesOfLanguageFiles()
{
    QFETCH(QString, code);
    QCOMPARE(LanguageCatalog::CodeOfFile(QTest::currentDataTag()), code);
}

void TestHostSettings::languagesAreListedByTheirOwnNames()
{
    const QTemporaryDir folder;
    foreach (const QString& strName, QStringList() << "linkhand_de.qm"
                                                   << "linkhand_en.qm"
                                                   << "linkhand_ar.qm"
                                                   << "linkhand_zh_CN.qm"
                                                   << "notes.txt") {
        QFile file(folder.filePath(strName));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const LanguageCatalog catalog(folder.path());
    QStringList lstNames;
    foreach (const LanguageEntry& entry, catalog.Entries()) {
        lstNames.append(entry.strName);
    }
    lstNames.sort();
    QCOMPARE(lstNames, QStringList() << "Deutsch"
                                     << "English" << QString::fromUtf8("العربية") << QString::fromUtf8("简体中文"));
    QVERIFY(catalog.Contains("ar"));
    QVERIFY(!catalog.Contains("fr"));
}

void TestHostSettings::theBestLanguageForAWish_data()
{
    QTest::addColumn<QString>("best");
    QTest::newRow("de") << "de";
    QTest::newRow("de_AT") << "de";
    QTest::newRow("zh_TW") << "zh_CN";
    QTest::newRow("fr_FR") << "en";
    QTest::newRow("C") << "en";
    QTest::newRow("") << "en";
}

void TestHostSettings::theBestLanguageForAWish()
{
    QFETCH(QString, best);
    const QTemporaryDir folder;
    foreach (const QString& strName, QStringList() << "x_de.qm"
                                                   << "x_en.qm"
                                                   << "x_zh_CN.qm") {
        QFile file(folder.filePath(strName));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(LanguageCatalog(folder.path()).BestFor(QTest::currentDataTag()), best);
}

void TestHostSettings::arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("dataDir");
    QTest::addColumn<QString>("screenshot");
    QTest::addColumn<QString>("error");
    const auto list = [](const char* pszWords) { return QString(pszWords).split(' ', Qt::SkipEmptyParts); };
    QTest::newRow("none") << list("") << ""
                          << ""
                          << "";
    QTest::newRow("two words") << list("--data-dir /x --screenshot y.png") << "/x"
                               << "y.png"
                               << "";
    QTest::newRow("one word") << list("--data-dir=/x --screenshot=y.png") << "/x"
                              << "y.png"
                              << "";
    QTest::newRow("no value") << list("--data-dir") << ""
                              << ""
                              << "option --data-dir needs a value";
    QTest::newRow("empty value") << list("--screenshot=") << ""
                                 << ""
                                 << "option --screenshot needs a value";
    QTest::newRow("unknown") << list("--frobnicate") << ""
                             << ""
                             << "unknown argument --frobnicate";
    QTest::newRow("stray") << list("file.txt") << ""
                           << ""
                           << "unknown argument file.txt";
    QTest::newRow("stray behind an option") << list("--data-dir /x file.txt --frobnicate") << "/x"
                                            << ""
                                            << "unknown argument file.txt";
    QTest::newRow("stray behind the options' end") << list("--data-dir /x -- --screenshot") << "/x"
                                                   << ""
                                                   << "unknown argument --screenshot";
    QTest::newRow("the beginning of an option's name") << list("--screen=y.png") << ""
                                                       << "y.png"
                                                       << "";
    QTest::newRow("a value where none belongs") << list("--data-dir=/x --version=2") << "/x"
                                                << ""
                                                << "unknown argument --version=2";
    QTest::newRow("letters") << list("-xh") << ""
                             << ""
                             << "unknown argument -xh";
    QTest::newRow("another letter") << list("--screenshot=y.png -x") << ""
                                    << "y.png"
                                    << "unknown argument -x";
    QTest::newRow("a value beyond ASCII")
        << list("--data-dir /\xC3\xA4\xE7\x8E\x8B") << QString::fromUtf8("/\xC3\xA4\xE7\x8E\x8B") << ""
        << "";
}

void TestHostSettings::arguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, dataDir);
    QFETCH(QString, screenshot);
    QFETCH(QString, error);
    const CommandLine line = CommandLine::Parse(arguments);
    QCOMPARE(line.strDataDir, dataDir);
    QCOMPARE(line.strScreenshot, screenshot);
    QCOMPARE(line.strError, error);
    QVERIFY(!CommandLine::WantsText(arguments));
}

void TestHostSettings::helpNamesEveryOption()
{
    foreach (const QString& strOption, QStringList() << "--data-dir"
                                                     << "--screenshot"
                                                     << "--version"
                                                     << "--help") {
        QVERIFY2(CommandLine::HelpText().contains(strOption), qPrintable(strOption));
    }
    QVERIFY(CommandLine::WantsText(QStringList("-h")));
    QVERIFY(CommandLine::Parse(QStringList("-h")).bHelp);
    QVERIFY(CommandLine::Parse(QStringList("--version")).bVersion);
    QVERIFY(CommandLine::Parse(QStringList("--vers")).bVersion);
    QVERIFY(QRegExp("linkhand [0-9]+\\.[0-9]+\\.[0-9]+\n").exactMatch(CommandLine::VersionText()));
}

void TestHostSettings::theDataFolderFollowsTheEnvironment()
{
    const QByteArray before = qgetenv("LINKHAND_DATA_DIR");
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("LINKHAND_DATA_DIR", "/some/where/");
    QCOMPARE(DataFolder::Path(), QStringLiteral("/some/where"));
    QCOMPARE(DataFolder::SettingsFile(), QStringLiteral("/some/where/linkhand.ini"));
    qunsetenv("LINKHAND_DATA_DIR");
    qputenv("XDG_DATA_HOME", "/data");
    qputenv("XDG_CONFIG_HOME", "/config");
    QCOMPARE(DataFolder::Path(), QStringLiteral("/data/linkhand"));
    QCOMPARE(DataFolder::SettingsFile(), QStringLiteral("/config/linkhand/linkhand.ini"));
    // A relative folder is to be ignored there.
    qputenv("XDG_DATA_HOME", "data");
    QCOMPARE(DataFolder::Path(), QDir::homePath() + "/.local/share/linkhand");
    qputenv("XDG_DATA_HOME", data);
    qputenv("XDG_CONFIG_HOME", config);
    qputenv("LINKHAND_DATA_DIR", before);
}

void TestHostSettings::preparingMakesTheFolderAndOnlineUpdateBesideTheLog()
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("LINKHAND_DATA_DIR");
    qputenv("LINKHAND_DATA_DIR", QFile::encodeName(folder.filePath("new/data")));
    ProblemList problems;
    DataFolder::Prepare(folder.filePath("new/data/log/"), problems);
    qputenv("LINKHAND_DATA_DIR", before);
    QVERIFY(problems.isEmpty());
    QVERIFY(QFileInfo(folder.filePath("new/data/log")).isDir());
    QVERIFY(QFileInfo(folder.filePath("new/data/OnlineUpdate")).isDir());
}

void TestHostSettings::aFolderThatCannotBeMadeIsAProblem()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray before = qgetenv("LINKHAND_DATA_DIR");
    qputenv("LINKHAND_DATA_DIR", QFile::encodeName(folder.filePath("file/below")));
    ProblemList problems;
    DataFolder::Prepare(QString(), problems);
    qputenv("LINKHAND_DATA_DIR", before);
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().strReasonId, QStringLiteral("IDS_HOST_PROBLEM_FOLDER_CREATE"));
    QVERIFY(problems.first().IsGrave());
}

namespace
{

class Counter : public QThread
{
public:
    explicit Counter(WorkerCount& count) : m_count(count) {}
    void run() override
    {
        for (int i = 0; i < 2000; ++i) {
            m_count.Increment("a.cpp", "run");
            m_count.Decrement("a.cpp", "run");
        }
        m_count.Increment("a.cpp", "run");
    }

private:
    WorkerCount& m_count;
};

} // namespace

void TestHostSettings::workersAreCountedFromManyThreads()
{
    WorkerCount count;
    Counter first(count);
    Counter second(count);
    first.start();
    second.start();
    QVERIFY(first.wait() && second.wait());
    QCOMPARE(count.Running(), 2);
    QCOMPARE(count.Names(), QStringList("a.cpp: run"));
    count.Decrement("a.cpp", "run");
    count.Decrement("a.cpp", "run");
    QCOMPARE(count.Running(), 0);
    QVERIFY(count.Names().isEmpty());
}

void TestHostSettings::aWorkerThatWasNotCountedIsNotSubtracted()
{
    WorkerCount count;
    count.Increment("a.cpp", "run");
    count.Decrement("b.cpp", "run");
    QCOMPARE(count.Running(), 1);
}

QTEST_MAIN(TestHostSettings)
#include "test_host_settings.moc"
