#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

#include "messages/MessageStore.h"

// One data folder whose store of messages turns out damaged while several programs have to do with it.
class TestHostMessagesShared : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void programsThatFindOneDamagedStoreMendItOnce();
    void aProgramThatHasTheDamagedStoreOpenGoesOnInTheMendedOne_data();
    void aProgramThatHasTheDamagedStoreOpenGoesOnInTheMendedOne();
    void aProgramThatHasTheDamagedStoreOpenRemovesFromTheMendedOne();
    void aProgramThatHasTheDamagedStoreOpenEndsWithoutHarm();
    void whatIsWrittenDuringTheMendingIsKept();
    void nothingIsLostWhereTheMendingEndedBetweenTheNames();
    void whatAMendingLeftUnfinishedIsNotMixedIn();

private:
    static const int COUNT = 400;
    void fill(const QString& strFolder) const;
    static void damage(const QString& strFolder);
    static QStringList texts(const QString& strFolder);
    static QStringList aside(const QString& strFolder);
    static QProcess* program(QObject* pParent, const QString& strFolder, const QString& strName, int iMessages);
    static bool ended(QProcess* pProgram);

    const QTemporaryDir m_folder; // with a store of that many messages
};

static OutgoingMessage message(const QString& strText)
{
    OutgoingMessage result;
    result.lstNumbers << "123";
    result.strText = strText;
    return result;
}

// Each message reaches the disk by itself: once is enough.
void TestHostMessagesShared::initTestCase()
{
    MessageStore store(m_folder.path());
    for (int i = 0; i < COUNT; ++i) {
        QVERIFY(store.Add(message(QString("%1 %2").arg(i).arg(QString(100, 'x')))));
    }
}

void TestHostMessagesShared::fill(const QString& strFolder) const
{
    QVERIFY(QFile::copy(m_folder.filePath("messages.db"), strFolder + "/messages.db"));
}

// One page in the middle, in place: other programs may have the file open.
void TestHostMessagesShared::damage(const QString& strFolder)
{
    const QByteArray path = QFile::encodeName(strFolder + "/messages.db");
    const int iFile = open(path.constData(), O_WRONLY | O_CLOEXEC);
    QVERIFY(iFile >= 0);
    const QByteArray page(4096, '\xff');
    const off_t iPages = lseek(iFile, 0, SEEK_END) / page.size();
    QVERIFY(iPages > 8);
    QCOMPARE(pwrite(iFile, page.constData(), size_t(page.size()), iPages / 2 * page.size()), ssize_t(page.size()));
    close(iFile);
}

QStringList TestHostMessagesShared::texts(const QString& strFolder)
{
    const MessageStore store(strFolder);
    QStringList lstTexts;
    foreach (const StoredMessage& stored, store.Messages()) {
        lstTexts.append(stored.message.strText);
    }
    return lstTexts;
}

QStringList TestHostMessagesShared::aside(const QString& strFolder)
{
    return QDir(strFolder).entryList(QStringList("messages.db.damaged-*Z"), QDir::Files);
}

QProcess* TestHostMessagesShared::program(QObject* pParent, const QString& strFolder, const QString& strName,
                                          int iMessages)
{
    QProcess* pProgram = new QProcess(pParent);
    pProgram->setProcessChannelMode(QProcess::ForwardedChannels);
    pProgram->start(QCoreApplication::applicationFilePath(),
                    {"--write", strFolder, strName, QString::number(iMessages)});
    return pProgram;
}

bool TestHostMessagesShared::ended(QProcess* pProgram)
{
    return pProgram->waitForFinished(60000) && pProgram->exitStatus() == QProcess::NormalExit &&
           pProgram->exitCode() == 0;
}

void TestHostMessagesShared::programsThatFindOneDamagedStoreMendItOnce()
{
    for (int iRound = 0; iRound < 3; ++iRound) {
        const QTemporaryDir folder;
        fill(folder.path());
        damage(folder.path());
        const int iPrograms = 4;
        const int iEach = 5;
        QList<QProcess*> listPrograms;
        for (int i = 0; i < iPrograms; ++i) {
            listPrograms << program(this, folder.path(), QString("program %1").arg(i), iEach);
        }
        foreach (QProcess* pProgram, listPrograms) {
            QVERIFY(ended(pProgram));
        }
        QCOMPARE(aside(folder.path()).size(), 1);
        const QStringList lstTexts = texts(folder.path());
        QCOMPARE(lstTexts.filter("program").size(), iPrograms * iEach);
        QVERIFY(lstTexts.filter("xxx").size() > COUNT / 2);
        QVERIFY(lstTexts.first().startsWith("0 x"));
        QVERIFY(lstTexts.at(lstTexts.size() - iPrograms * iEach - 1).startsWith(QString("%1 x").arg(COUNT - 1)));
        QCOMPARE(QSet<QString>(lstTexts.begin(), lstTexts.end()).size(), lstTexts.size());
    }
}

void TestHostMessagesShared::aProgramThatHasTheDamagedStoreOpenGoesOnInTheMendedOne_data()
{
    QTest::addColumn<bool>("writes");
    QTest::newRow("adds") << true;
    QTest::newRow("only looks") << false;
}

void TestHostMessagesShared::aProgramThatHasTheDamagedStoreOpenGoesOnInTheMendedOne()
{
    QFETCH(bool, writes);
    const QTemporaryDir folder;
    fill(folder.path());
    MessageStore store(folder.path());
    QCOMPARE(store.Messages().size(), int(COUNT));
    damage(folder.path());
    QVERIFY(ended(program(this, folder.path(), "other", 1)));
    QCOMPARE(aside(folder.path()).size(), 1);
    const QSignalSpy spy(&store, SIGNAL(changed()));
    if (writes) {
        QVERIFY(store.Add(message("mine")));
        StoredCall call;
        call.strNumber = "+49170";
        call.time = QDateTime::fromMSecsSinceEpoch(1700000000123);
        QVERIFY(store.AddCall(call));
    } else {
        store.Refresh();
    }
    QCOMPARE(spy.count(), 1);
    QVERIFY(store.IsUsable());
    QStringList lstShown;
    foreach (const StoredMessage& stored, store.Messages()) {
        lstShown << stored.message.strText;
    }
    QVERIFY(lstShown.contains("other 0"));
    QCOMPARE(lstShown.contains("mine"), writes);
    QCOMPARE(store.Calls().size(), writes ? 1 : 0);
    QCOMPARE(texts(folder.path()), lstShown);
    QCOMPARE(MessageStore(folder.path()).Calls().size(), writes ? 1 : 0);
}

void TestHostMessagesShared::aProgramThatHasTheDamagedStoreOpenRemovesFromTheMendedOne()
{
    const QTemporaryDir folder;
    fill(folder.path());
    MessageStore store(folder.path());
    damage(folder.path());
    QVERIFY(ended(program(this, folder.path(), "other", 1)));
    const QString strFirst = store.Messages().first().message.strText;
    QVERIFY(store.Remove(store.Messages().first().iId));
    QVERIFY(!texts(folder.path()).contains(strFirst));
    QVERIFY(texts(folder.path()).contains("other 0"));
    // Shown by the calls, too, whichever is asked for first.
    damage(folder.path());
    QVERIFY(ended(program(this, folder.path(), "again", 1)));
    store.Calls();
    QCOMPARE(store.Messages().last().message.strText, QString("again 0"));
}

void TestHostMessagesShared::aProgramThatHasTheDamagedStoreOpenEndsWithoutHarm()
{
    const QTemporaryDir folder;
    fill(folder.path());
    QScopedPointer<MessageStore> pStore(new MessageStore(folder.path()));
    QVERIFY(pStore->Add(message("before")));
    damage(folder.path());
    QVERIFY(ended(program(this, folder.path(), "other", 1)));
    MessageStore mended(folder.path());
    QVERIFY(mended.Add(message("behind")));
    pStore.reset();
    QVERIFY(ended(program(this, folder.path(), "last", 1)));
    const QStringList lstTexts = texts(folder.path());
    QCOMPARE(lstTexts.mid(lstTexts.size() - 4), QStringList() << "before"
                                                              << "other 0"
                                                              << "behind"
                                                              << "last 0");
    QCOMPARE(aside(folder.path()).size(), 1);
}

void TestHostMessagesShared::whatIsWrittenDuringTheMendingIsKept()
{
    const QTemporaryDir folder;
    fill(folder.path());
    MessageStore store(folder.path());
    QProcess* pWriter = program(this, folder.path(), "writer", 100000);
    const auto written = [&store] {
        store.Refresh();
        return store.Messages().size() - COUNT;
    };
    QTRY_VERIFY_WITH_TIMEOUT(written() > 20, 30000);
    damage(folder.path());
    QVERIFY(ended(program(this, folder.path(), "mender", 1)));
    QCOMPARE(aside(folder.path()).size(), 1);
    const int iBehind = written();
    QTRY_VERIFY_WITH_TIMEOUT(written() > iBehind + 20, 30000);
    QFile stop(folder.filePath("stop"));
    QVERIFY(stop.open(QIODevice::WriteOnly));
    QVERIFY(ended(pWriter));
    const QStringList lstTexts = texts(folder.path());
    const QStringList lstWriters = lstTexts.filter("writer");
    QCOMPARE(lstTexts.filter("mender").size(), 1);
    // All that it was told are kept, in their order and each once.
    for (int i = 0; i < lstWriters.size(); ++i) {
        QCOMPARE(lstWriters.at(i), QString("writer %1").arg(i));
    }
    QVERIFY(lstWriters.size() > 40);
}

void TestHostMessagesShared::nothingIsLostWhereTheMendingEndedBetweenTheNames()
{
    const QTemporaryDir folder;
    fill(folder.path());
    const QStringList lstWhole = texts(folder.path());
    const QString strFile = folder.filePath("messages.db");
    {
        MessageStore store(folder.path());
        QVERIFY(store.Add(message("not in it")));
        QVERIFY(QFile::copy(strFile + "-wal", strFile + "-kept"));
    }
    QVERIFY(QFile::remove(strFile) && QFile::copy(m_folder.filePath("messages.db"), strFile + ".mended"));
    // What was beside the damaged one has not been put aside yet, and fits by its looks.
    QVERIFY(QFile::rename(strFile + "-kept", strFile + "-wal"));
    QCOMPARE(texts(folder.path()), lstWhole);
    QVERIFY(!QFile::exists(strFile + ".mended"));
    QVERIFY(aside(folder.path()).isEmpty());
}

void TestHostMessagesShared::whatAMendingLeftUnfinishedIsNotMixedIn()
{
    const QTemporaryDir folder;
    fill(folder.path());
    const QTemporaryDir other;
    {
        MessageStore store(other.path());
        QVERIFY(store.Add(message("half")));
    }
    const QString strFile = folder.filePath("messages.db");
    QVERIFY(QFile::copy(other.filePath("messages.db"), strFile + ".mended"));
    QVERIFY2(!texts(folder.path()).contains("half"), "a sound store is the one that counts");
    damage(folder.path());
    QVERIFY(!texts(folder.path()).contains("half"));
    QVERIFY(texts(folder.path()).size() > COUNT / 2);
    QVERIFY(!QFile::exists(strFile + ".mended"));
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 5 && qstrcmp(argv[1], "--write") == 0) {
        MessageStore store(QFile::decodeName(argv[2]));
        bool bDone = true;
        const QString strStop = QFile::decodeName(argv[2]) + "/stop";
        for (int i = 0; i < atoi(argv[4]) && !QFile::exists(strStop); ++i) {
            bDone = store.Add(message(QString("%1 %2").arg(argv[3]).arg(i))) && bDone;
        }
        return bDone ? 0 : 1;
    }
    TestHostMessagesShared test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_host_messages_shared.moc"
