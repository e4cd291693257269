#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTimer>
#include <QtTest>

#include <climits>
#include <sys/inotify.h>
#include <unistd.h>

#include "app/CommandLine.h"
#include "app/HostApplication.h"
#include "settings/DataFolder.h"
#include "settings/HostSettings.h"
#include "single/SingleInstance.h"
#include "window/MainWindow.h"

namespace
{

// Counts how often a file was written: each time QSettings puts a new one in its place.
class FileWrites
{
public:
    explicit FileWrites(const QString& strFile)
        : m_iEnd(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)), m_name(QFile::encodeName(QFileInfo(strFile).fileName()))
    {
        inotify_add_watch(m_iEnd, QFile::encodeName(QFileInfo(strFile).path()).constData(), IN_CREATE | IN_MOVED_TO);
    }
    ~FileWrites() { close(m_iEnd); }
    FileWrites(const FileWrites&) = delete;
    FileWrites& operator=(const FileWrites&) = delete;

    // Since the last call.
    int Take()
    {
        int iWrites = 0;
        alignas(inotify_event) char events[64 * (sizeof(inotify_event) + NAME_MAX + 1)];
        for (ssize_t iSize = 0; (iSize = read(m_iEnd, events, sizeof events)) > 0;) {
            const inotify_event* pEvent = nullptr;
            for (const char* pAt = events; pAt < events + iSize; pAt += sizeof *pEvent + pEvent->len) {
                pEvent = reinterpret_cast<const inotify_event*>(pAt);
                iWrites += pEvent->len > 0 && m_name == pEvent->name ? 1 : 0;
            }
        }
        return iWrites;
    }

private:
    const int m_iEnd;
    const QByteArray m_name;
};

// Ends the program once the page shows that it begins with, which is when the phonebook has been read.
class Leaver : public QObject
{
    Q_OBJECT

public:
    explicit Leaver(FileWrites& writes) : m_writes(writes)
    {
        connect(&m_look, SIGNAL(timeout()), this, SLOT(OnLook()));
        m_look.start(10);
    }
    bool bLeft = false;

private slots:
    void OnLook()
    {
        foreach (QWidget* pWidget, QApplication::topLevelWidgets()) {
            const MainWindow* pWindow = qobject_cast<MainWindow*>(pWidget);
            if (pWindow != nullptr && pWindow->CurrentPage() == "Preferences" && !bLeft) {
                bLeft = true;
                m_writes.Take();
                QApplication::quit();
            }
        }
    }

private:
    FileWrites& m_writes;
    QTimer m_look;
};

} // namespace

// What the program keeps of a run.
class TestHostEnd : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pData.reset(new QTemporaryDir);
        qputenv("LINKHAND_DATA_DIR", QFile::encodeName(m_pData->path()));
        QVERIFY(QDir().mkpath(QFileInfo(DataFolder::SettingsFile()).path()));
    }

    void aSettingIsInTheFileWhenItIsSet()
    {
        HostSettings settings(DataFolder::SettingsFile());
        FileWrites writes(settings.File());
        settings.SetLanguage("de");
        QCOMPARE(writes.Take(), 1);
        QCOMPARE(HostSettings(settings.File()).Language(), QString("de"));
    }

    void settingsThatAreSetTogetherAreWrittenTogether()
    {
        HostSettings settings(DataFolder::SettingsFile());
        FileWrites writes(settings.File());
        {
            const HostSettings::Together together(settings);
            settings.SetLanguage("de");
            {
                const HostSettings::Together within(settings);
                settings.SetLastPage("Care");
            }
            settings.SetSizes("a", QList<int>() << 1 << 2);
            QCOMPARE(writes.Take(), 0);
            // Whoever set it has it already.
            QCOMPARE(settings.Language(), QString("de"));
            QCOMPARE(settings.Sizes("a"), QList<int>() << 1 << 2);
        }
        QCOMPARE(writes.Take(), 1);
        const HostSettings later(settings.File());
        QCOMPARE(later.Language(), QString("de"));
        QCOMPARE(later.LastPage(), QString("Care"));
        QCOMPARE(later.Sizes("a"), QList<int>() << 1 << 2);
    }

    void theEndOfTheProgramWritesTheSettingsOnce()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        HostSettings(DataFolder::SettingsFile()).SetStartPage("Preferences");
        FileWrites writes(DataFolder::SettingsFile());
        SingleInstance instance(DataFolder::Path());
        {
            HostApplication host(CommandLine(), instance);
            Leaver leaver(writes);
            QCOMPARE(host.Run(), 0);
            QVERIFY(leaver.bLeft);
            QCOMPARE(writes.Take(), 1);
        }
        const HostSettings kept(DataFolder::SettingsFile());
        QVERIFY(!kept.Geometry().isEmpty());
        QCOMPARE(kept.LastPage(), QString("Preferences"));
        QVERIFY(!QSettings(kept.File(), QSettings::IniFormat).allKeys().filter("layout/").isEmpty());
    }

private:
    QScopedPointer<QTemporaryDir> m_pData;
};

QTEST_MAIN(TestHostEnd)
#include "test_host_end.moc"
