#include <QFile>
#include <QProcess>
#include <QtTest>

#include "HostDriver.h"
#include "PbCtl.h"
#include "Profile.h"

// The program as it is shipped, which tells nothing of itself: what it does is seen on the screen's list of windows and
// in the store.
class TestDesktopShipped : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aContactIsAdded();
    void itHasNoSocketAndAnswersNothing();

private:
    bool start();

    // Whether a window with this title is on the screen and has the keyboard.
    static bool active(const QString& strTitle);

    QScopedPointer<Profile> m_pProfile;
    QScopedPointer<PbCtl> m_pStore;
    QScopedPointer<HostDriver> m_pHost;
};

void TestDesktopShipped::init()
{
    m_pProfile.reset(new Profile);
    m_pStore.reset(new PbCtl(m_pProfile->Path()));
    m_pHost.reset(new HostDriver);
    m_pHost->SetProgram(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/linkhand");
    QVERIFY(m_pProfile->Add(4, "Anna", "+49170", 3));
}

void TestDesktopShipped::cleanup()
{
    QVERIFY2(m_pHost->ErrorLines().isEmpty(), qPrintable(m_pHost->ErrorLines().join('\n')));
    m_pHost.reset();
}

bool TestDesktopShipped::start()
{
    m_pProfile->Close();
    return m_pHost->Launch(m_pProfile->Path()) && m_pHost->WaitUntil([] { return active("Linkhand"); });
}

bool TestDesktopShipped::active(const QString& strTitle)
{
    QProcess xdotool;
    xdotool.start("xdotool", {"getactivewindow", "getwindowname"});
    return xdotool.waitForFinished() && QString::fromUtf8(xdotool.readAll()).trimmed() == strTitle;
}

void TestDesktopShipped::aContactIsAdded()
{
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    // A key may come before the phonebook is there to take it.
    QVERIFY(m_pHost->WaitUntil([this] {
        m_pHost->Key("ctrl+n");
        return m_pHost->WaitUntil([] { return active("New contact"); }, 1000);
    }));
    m_pHost->Type("Zoe");
    m_pHost->Key("Tab");
    m_pHost->Type("0301");
    m_pHost->Key("Return");
    QTRY_COMPARE_WITH_TIMEOUT(m_pStore->Used("local"), 4, 15000);
    QVERIFY(m_pHost->WaitUntil([] { return active("Linkhand"); }));
    QCOMPARE(m_pStore->Contacts("local").last().mid(0, 2), QStringList() << "Zoe"
                                                                         << "0301");
    m_pHost->Key("ctrl+q");
    QCOMPARE(m_pHost->WaitForExit(), 0);
}

void TestDesktopShipped::itHasNoSocketAndAnswersNothing()
{
    const QTemporaryDir folder;
    m_pHost->SetEnvironment("LINKHAND_TEST_SOCKET", folder.filePath("socket"));
    m_pHost->SetEnvironment("LINKHAND_TEST_SHOWN", folder.filePath("shown"));
    m_pHost->SetEnvironment("LINKHAND_MESSAGE_ANSWERS", "1024,1024,1024");
    QVERIFY2(start(), qPrintable(m_pHost->Log()));
    QVERIFY(m_pHost->WaitUntil([this] {
        m_pHost->Key("Tab"); // from the tree to the table, once that is filled
        m_pHost->Key("ctrl+a");
        m_pHost->Key("Delete");
        return m_pHost->WaitUntil([] { return active("Phonebook"); }, 1000);
    }));
    QCOMPARE(m_pStore->Used("local"), 3);
    m_pHost->Key("Escape");
    QVERIFY(m_pHost->WaitUntil([] { return active("Linkhand"); }));
    m_pHost->Key("ctrl+q");
    QCOMPARE(m_pHost->WaitForExit(), 0);
    QCOMPARE(m_pStore->Used("local"), 3);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), QStringList());
}

QTEST_GUILESS_MAIN(TestDesktopShipped)
#include "test_desktop_shipped.moc"
