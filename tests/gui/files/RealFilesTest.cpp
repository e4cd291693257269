#include <QFile>
#include <QTemporaryDir>

#include <memory>

#include "../window/WindowFixture.h"
#include "FileUser.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_sim.h"

// Files as the SDK itself writes them, and files that go wrong, through the window's dialogs into the real SDK's store.
class RealFilesTest : public QObject
{
    Q_OBJECT

private:
    typedef QList<QString> Values;

    std::unique_ptr<QTemporaryDir> m_store;
    std::unique_ptr<QTemporaryDir> m_files;
    std::unique_ptr<FileUser> m_user;
    std::unique_ptr<AddrBookDlg> m_window;

    AddrBookDlgAccess in() const { return AddrBookDlgAccess{m_window.get()}; }

    bool waitDone() const
    {
        return QTest::qWaitFor([this] { return !in().threadBusy() && !in().worker().isRunning(); }, 20000) &&
               QTest::qWaitFor([this] { return in().reader() == nullptr || in().table()->isSortingEnabled(); }, 20000);
    }

    // The window on an empty phonebook.
    void openWindow()
    {
        closeWindow();
        m_store = std::make_unique<QTemporaryDir>();
        QCOMPARE(ORVA_Sim_Reset(m_store->path().toUtf8().constData()), 0L);
        m_window = std::make_unique<AddrBookDlg>();
        m_window->InitWindow(nullptr);
        m_window->InitTree();
        m_window->resize(900, 600);
        m_window->show();
        QVERIFY(waitDone());
    }

    void closeWindow()
    {
        if (!m_window)
            return;
        AddrBookLogic::unSDKRegisterEvent();
        m_window.reset();
        AddrBookLogic::Destroy();
    }

    void trigger(const char* id)
    {
        const FileUser::MapWatcher watcher;
        QAction* const action = m_window->getAction(id, in().tableActions());
        QVERIFY(action != nullptr && action->isEnabled());
        action->trigger();
        QVERIFY(waitDone());
    }

    static QList<Values> stored()
    {
        QList<AddrBookRecord> records;
        AddrBookLogic::Instance()->GetRecordInGroup(records, PB_MEM_LOCAL, 0);
        QList<Values> list;
        for (const AddrBookRecord& record : records)
            list << record.lstValues;
        return list;
    }

    static void write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    }

private slots:
    void init()
    {
        QtCompat::setDebugEnabled(false);
        FakeCore::reset();
        m_files = std::make_unique<QTemporaryDir>();
        m_user = std::make_unique<FileUser>();
        openWindow();
    }

    void cleanup()
    {
        closeWindow();
        m_user.reset();
        ORVA_Sim_Reset(nullptr);
        QCOMPARE(FakeCore::runningWorkers(), 0);
    }

    void contactExportedAndImportedIsTheSameContact()
    {
        const QList<Values> contacts = {
            {"Anna", "+4917", "222", "333", "anna@example.org", "first\nsecond, \"third\""},
            {QString::fromUtf8("\xd0\x9c\xd0\xb0\xd1\x80\xd0\xb8\xd1\x8f; \xf0\x9f\x98\x80"), "1", "", "", "", ""},
            {"", "0", "", "", "", "=1+1"},
            {" blanks ", "", "", "*100#", "", "\ttab"}};
        for (const Values& values : contacts) {
            int id = -1;
            QCOMPARE(AddrBookLogic::Instance()->AddRecord(PB_MEM_LOCAL, values, id), 0);
        }
        in().current() = nullptr;
        m_window->OnTreeClicked(in().local());
        QVERIFY(waitDone());
        const QString path = m_files->path() + "/all.csv";
        FileUser::choose(path);
        trigger("IDS_EXPORT_PHONEBOOK");
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_EXPORTSUCCESS_COUNT"));
        QVERIFY(QFile::exists(path));

        openWindow();
        QVERIFY(stored().isEmpty());
        FakeCore::clearMessages();
        trigger("IDS_IMPORT_PHONEBOOK");
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_IMPORT_TOTAL_NUMBER4IDS_IMPORT_IMPORTED_NUMBER4"));
        QList<Values> found = stored();
        QList<Values> expected = contacts;
        const auto byName = [](const Values& a, const Values& b) { return a.first() < b.first(); };
        std::sort(found.begin(), found.end(), byName);
        std::sort(expected.begin(), expected.end(), byName);
        QCOMPARE(found, expected);
    }

    void fileThatVanishesUnderTheFieldMapIsTold()
    {
        const QString path = m_files->path() + "/people.csv";
        write(path, "Name,Mobile\nAnna,1\n");
        FileUser::choose(path);
        FileUser::onMap([path](const FileUser::Map&) { return QFile::remove(path); });
        trigger("IDS_IMPORT_PHONEBOOK");
        QCOMPARE(FileUser::mapsSeen(), 1);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_IMPORTFAILURE_COUNT"));
        QVERIFY(stored().isEmpty());
    }

    void fileThatShrinksUnderTheFieldMapLeavesWhatIsLeft()
    {
        const QString path = m_files->path() + "/people.csv";
        write(path, "Name,Mobile\nAnna,1\nBert,2\n");
        FileUser::choose(path);
        FileUser::onMap([path](const FileUser::Map&) {
            write(path, "Name\nCarl\n");
            return true;
        });
        trigger("IDS_IMPORT_PHONEBOOK");
        QCOMPARE(stored(), QList<Values>({{"Carl", "", "", "", "", ""}}));
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_IMPORT_TOTAL_NUMBER1IDS_IMPORT_IMPORTED_NUMBER1"));
    }

    void fileThatIsNoTableEndsInSilence_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zeros") << QByteArray(100, '\0');
    }
    void fileThatIsNoTableEndsInSilence()
    {
        QFETCH(QByteArray, text);
        const QString path = m_files->path() + "/people.csv";
        write(path, text);
        FileUser::choose(path);
        trigger("IDS_IMPORT_PHONEBOOK");
        QCOMPARE(FileUser::mapsSeen(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void placeThatCannotBeWrittenIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("no such folder") << "/nowhere/all.csv";
        QTest::newRow("a file in place of the folder") << "/file/all.csv";
        QTest::newRow("a folder in place of the file") << "/folder.csv";
    }
    void placeThatCannotBeWrittenIsTold()
    {
        QFETCH(QString, name);
        write(m_files->path() + "/file", "left alone");
        QVERIFY(QDir(m_files->path()).mkdir("folder.csv"));
        int id = -1;
        QCOMPARE(AddrBookLogic::Instance()->AddRecord(PB_MEM_LOCAL, {"Anna", "1", "", "", "", ""}, id), 0);
        in().current() = nullptr;
        m_window->OnTreeClicked(in().local());
        QVERIFY(waitDone());
        FileUser::choose(m_files->path() + name);
        trigger("IDS_EXPORT_PHONEBOOK");
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_SMS_EXPORTFAILURE_COUNT"));
        QCOMPARE(QDir(m_files->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList({"file", "folder.csv"}));
        QCOMPARE(QFileInfo(m_files->path() + "/file").size(), qint64(10));
        QCOMPARE(stored().size(), 1);
    }
};

QTEST_MAIN(RealFilesTest)
#include "RealFilesTest.moc"
