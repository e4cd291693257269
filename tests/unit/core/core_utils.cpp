#include <QDialog>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/Startup.h"

class CoreUtils : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pHost.reset(new FakeHost); }
    void cleanup() { m_pHost.reset(); }

    void settingsOfTheUserComeBeforeDefaults();
    void settingsWithoutHostComeFromXdgFolder();
    void settingsComeAsTheyWereWritten_data();
    void settingsComeAsTheyWereWritten();
    void damagedSettingsFileGivesDefaults();
    void withoutHostDefaultsHold();
    void hostIsAskedAnew();
    void libraryPathHasNoSlashAtItsEnd();
    void callGoesToTheHost();
    void waitEndsWithTheThread();
    void waitEndsAtItsLimit();
    void dialogIsCentredOnTheMainWindow();
    void dialogStaysOnTheScreen();
    void containerComesFromTheHost();

private:
    static QString setting(const char* szSection, const char* szKey)
    {
        return CommonUtils::GetSettings(QLatin1String(szSection), QLatin1String(szKey));
    }
    void write(const QString& strFile, const QByteArray& content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(strFile).path()));
        QFile file(strFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir m_folder;
    QScopedPointer<FakeHost> m_pHost;
};

void CoreUtils::settingsOfTheUserComeBeforeDefaults()
{
    m_pHost->strSettingsFile = m_folder.filePath(QLatin1String("absent.ini"));
    QCOMPARE(setting("callui", "callvoice"), QString("1"));
    QCOMPARE(setting("customize", "simtype"), QString("SIM"));
    QCOMPARE(setting("customize", "uimtype"), QString("UIM"));
    QCOMPARE(setting("addrbook", "sortpreserve"), QString("1"));
    QCOMPARE(setting("customize", "pbnamecode"), QString());
    QVERIFY(!QFile::exists(m_pHost->strSettingsFile));

    m_pHost->strSettingsFile = m_folder.filePath(QLatin1String("user.ini"));
    write(m_pHost->strSettingsFile, "[callui]\ncallvoice=\n[customize]\nsimtype=Chip\npbnamecode=all\n");
    QCOMPARE(setting("callui", "callvoice"), QString());
    QCOMPARE(setting("customize", "simtype"), QString("Chip"));
    QCOMPARE(setting("customize", "uimtype"), QString("UIM"));
    QCOMPARE(setting("customize", "pbnamecode"), QString("all"));
}

void CoreUtils::settingsWithoutHostComeFromXdgFolder()
{
    write(qEnvironmentVariable("XDG_CONFIG_HOME") + QLatin1String("/linkhand/linkhand.ini"),
          "[customize]\nsimtype=Xdg\n");
    QCOMPARE(setting("customize", "simtype"), QString("Xdg")); // a host that names no file
    m_pHost.reset();
    QCOMPARE(setting("customize", "simtype"), QString("Xdg"));
    QVERIFY(QFile::remove(qEnvironmentVariable("XDG_CONFIG_HOME") + QLatin1String("/linkhand/linkhand.ini")));
}

void CoreUtils::settingsComeAsTheyWereWritten_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value");
    QTest::newRow("umlaut") << QByteArray("simtype=Gerät") << QString::fromUtf8("Gerät");
    QTest::newRow("comma and blank") << QByteArray("simtype=SIM, Gerät") << QString::fromUtf8("SIM, Gerät");
    QTest::newRow("comma") << QByteArray("simtype=a,b") << "a,b";
    QTest::newRow("commas") << QByteArray("simtype=a,,b ,c") << "a,,b ,c";
    QTest::newRow("blanks at the sign") << QByteArray("simtype = a,b ") << "a,b";
    QTest::newRow("quoted") << QByteArray("simtype=\"a, b\"") << "a, b";
    QTest::newRow("quoted parts") << QByteArray("simtype=\"a\",\"b\"") << "a,b";
    QTest::newRow("written twice") << QByteArray("simtype=a, b\nsimtype=c,d") << "c,d";
    QTest::newRow("in another section too") << QByteArray("simtype=a,b\n[other]\nsimtype=c, d") << "a,b";
}

void CoreUtils::settingsComeAsTheyWereWritten()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, value);
    m_pHost->strSettingsFile = m_folder.filePath(QString::fromLatin1(QTest::currentDataTag()) + ".ini");
    write(m_pHost->strSettingsFile, "[customize]\n" + line + "\n");
    QCOMPARE(setting("customize", "simtype"), value);
}

void CoreUtils::damagedSettingsFileGivesDefaults()
{
    m_pHost->strSettingsFile = m_folder.filePath(QLatin1String("damaged.ini"));
    write(m_pHost->strSettingsFile, QByteArray("\0\xff[[[\n=\n\\x\n[customize", 20));
    QCOMPARE(setting("customize", "simtype"), QString("SIM"));
    m_pHost->strSettingsFile = m_folder.path();
    QCOMPARE(setting("customize", "simtype"), QString("SIM"));
}

void CoreUtils::withoutHostDefaultsHold()
{
    m_pHost.reset();
    QVERIFY(CommonUtils::GetMainWindow() == nullptr);
    QVERIFY(!CommonUtils::IsShuttingDown());
    QVERIFY(!CommonUtils::IsPluginAvailable("any"));
    QVERIFY(!CommonUtils::MakeCall("1", UI_CALL_VOICE));
    QVERIFY(Startup::GetPluginContainer() == nullptr);
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), QCoreApplication::applicationDirPath());
    CommonUtils::ThreadCountInc("file", "function");
    CommonUtils::ThreadCountDec("file", "function");
}

void CoreUtils::hostIsAskedAnew()
{
    m_pHost->iShuttingDown.storeRelaxed(1);
    QVERIFY(CommonUtils::IsShuttingDown());
    m_pHost.reset();
    QVERIFY(!CommonUtils::IsShuttingDown());
    m_pHost.reset(new FakeHost);
    QVERIFY(!CommonUtils::IsShuttingDown());
    m_pHost->installed.insert("one");
    QVERIFY(CommonUtils::IsPluginAvailable("one"));
    QVERIFY(!CommonUtils::IsPluginAvailable("two"));
}

void CoreUtils::libraryPathHasNoSlashAtItsEnd()
{
    m_pHost->strLibraryPath = QLatin1String("/some/folder//");
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), QString("/some/folder"));
}

void CoreUtils::callGoesToTheHost()
{
    QVERIFY(CommonUtils::MakeCall("+49301234", UI_CALL_VOICE));
    QCOMPARE(m_pHost->lstCalls, QStringList() << "+49301234/0");
    m_pHost->bCallSucceeds = false;
    QVERIFY(!CommonUtils::MakeCall("1", UI_CALL_VOICE));
}

void CoreUtils::waitEndsWithTheThread()
{
    CommonUtils::WaitForThreadToStop(nullptr, 5);
    QThread idle;
    CommonUtils::WaitForThreadToStop(&idle, 5);
    CommonUtils::WaitForThreadToStop(QThread::currentThread(), 5);
    QThread brief;
    brief.start();
    QElapsedTimer timer;
    timer.start();
    brief.quit();
    CommonUtils::WaitForThreadToStop(&brief, 60);
    QVERIFY(brief.isFinished());
    QVERIFY(timer.elapsed() < 30000); // long before the limit
}

void CoreUtils::waitEndsAtItsLimit()
{
    QThread endless; // its event loop ends when it is told
    endless.start();
    QElapsedTimer timer;
    timer.start();
    CommonUtils::WaitForThreadToStop(&endless, 1);
    QVERIFY(endless.isRunning());
    QVERIFY(timer.elapsed() >= 950);
    QVERIFY(timer.elapsed() < 15000); // a busy machine is slow, but not that slow
    endless.quit();
    CommonUtils::WaitForThreadToStop(&endless, UINT_MAX);
    QVERIFY(endless.isFinished());
}

void CoreUtils::dialogIsCentredOnTheMainWindow()
{
    QWidget main;
    main.setGeometry(200, 150, 400, 300);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    m_pHost->pMainWindow = &main;
    QDialog dialog(&main);
    dialog.resize(200, 100);
    CommonUtils::MoveCentre(&dialog);
    const QPoint off = dialog.frameGeometry().center() - main.frameGeometry().center();
    QVERIFY2(off.manhattanLength() <= 2, qPrintable(QString("%1 %2").arg(off.x()).arg(off.y())));
    CommonUtils::MoveCentre(nullptr);
}

void CoreUtils::dialogStaysOnTheScreen()
{
    QWidget main;
    main.setGeometry(-300, -200, 400, 300);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    m_pHost->pMainWindow = &main;
    QDialog dialog;
    dialog.resize(200, 100);
    CommonUtils::MoveCentre(&dialog);
    QVERIFY(dialog.frameGeometry().left() >= 0);
    QVERIFY(dialog.frameGeometry().top() >= 0);

    // Without a window to be seen it is the screen's middle.
    main.hide();
    CommonUtils::MoveCentre(&dialog);
    const QPoint off = dialog.frameGeometry().center() - QGuiApplication::primaryScreen()->availableGeometry().center();
    QVERIFY(off.manhattanLength() <= 2);
}

void CoreUtils::containerComesFromTheHost()
{
    QCOMPARE(Startup::GetPluginContainer(), static_cast<IPluginContainer*>(m_pHost.data()));
    m_pHost->bHasContainer = false;
    QVERIFY(Startup::GetPluginContainer() == nullptr);
}

QTEST_MAIN(CoreUtils)
#include "core_utils.moc"
