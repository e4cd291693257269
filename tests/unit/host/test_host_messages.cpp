#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <sqlite3.h>

#include "messages/MessageStore.h"
#include "messages/OutboxFile.h"
#include "shared/HostLink.h"

// The messages and calls of a data folder.
class TestHostMessages : public QObject
{
    Q_OBJECT

private slots:
    void readingAnEmptyFolderWritesNothing();
    void messagesSurviveARestart_data();
    void messagesSurviveARestart();
    void callsSurviveARestart();
    void removingTakesOneMessage();
    void anIdentifierIsNeverUsedAgain();
    void aMessageThatCannotBeWrittenIsNotKept();
    void theFilesAreForTheirOwnerOnly();
    void aCommitReachesTheDisk();
    void whatAnotherProgramWritesIsSeen();
    void programsThatWriteAtOnceLoseNothing();
    void aLaterReleasesStoreIsLeftAlone();
    void aDamagedStoreIsKeptAndSalvaged();
    void aSecondDamagedStoreKeepsTheFirst();
    void theOldOutboxIsTakenOver();
    void theOldOutboxIsTakenOverOnce();
    void aDamagedOldOutboxIsKeptAndSalvaged_data();
    void aDamagedOldOutboxIsKeptAndSalvaged();
    void aSecondDamagedOldOutboxKeepsTheFirst();

private:
    static OutgoingMessage message(const QString& strText);
    static QString oldMessage(const QString& strText);
    static QByteArray oldOutbox(const QStringList& lstTexts);
    static void write(const QString& strFile, const QByteArray& content);
    static QByteArray read(const QString& strFile);
    static QStringList texts(const MessageStore& store);
};

OutgoingMessage TestHostMessages::message(const QString& strText)
{
    OutgoingMessage result;
    result.iKind = HOST_MESSAGE_SMS;
    result.lstNumbers << "123"
                      << "+49 170";
    result.strText = strText;
    return result;
}

QString TestHostMessages::oldMessage(const QString& strText)
{
    return QString("<message kind=\"1\" time=\"2024-01-01T12:00:00\"><to>123</to><to>456</to><subject>s</subject>"
                   "<text>%1</text></message>")
        .arg(strText.toHtmlEscaped());
}

QByteArray TestHostMessages::oldOutbox(const QStringList& lstTexts)
{
    QString strContent;
    foreach (const QString& strText, lstTexts) {
        strContent += oldMessage(strText);
    }
    return ("<?xml version=\"1.0\" encoding=\"UTF-8\"?><outbox>" + strContent + "</outbox>").toUtf8();
}

void TestHostMessages::write(const QString& strFile, const QByteArray& content)
{
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray TestHostMessages::read(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

QStringList TestHostMessages::texts(const MessageStore& store)
{
    QStringList lstTexts;
    foreach (const StoredMessage& stored, store.Messages()) {
        lstTexts.append(stored.message.strText);
    }
    return lstTexts;
}

void TestHostMessages::readingAnEmptyFolderWritesNothing()
{
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    store.Refresh();
    QVERIFY(store.Messages().isEmpty() && store.Calls().isEmpty());
    QVERIFY(store.Damaged().isEmpty() && store.IsUsable());
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestHostMessages::messagesSurviveARestart_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Hello";
    QTest::newRow("empty") << "";
    QTest::newRow("markup") << "<a href=\"x\">&amp;</a> ]]>";
    QTest::newRow("lines") << "one\ntwo\n\n three ";
    QTest::newRow("scripts") << QString::fromUtf8("Ελλάδα 日本 שלום 🎉");
    QTest::newRow("blanks") << "  \t ";
    QTest::newRow("control characters") << QString::fromLatin1("a\x0b\0b", 4);
}

void TestHostMessages::messagesSurviveARestart()
{
    QFETCH(QString, text);
    const QTemporaryDir folder;
    {
        MessageStore store(folder.path());
        const QSignalSpy spy(&store, SIGNAL(changed()));
        OutgoingMessage written = message(text);
        written.iKind = HOST_MESSAGE_MMS;
        written.strSubject = text;
        QVERIFY(store.Add(written));
        QVERIFY(store.Add(message("second")));
        QCOMPARE(spy.count(), 2);
    }
    const MessageStore store(folder.path());
    QCOMPARE(store.Messages().size(), 2);
    const StoredMessage& stored = store.Messages().first();
    QCOMPARE(stored.message.strText, text);
    QCOMPARE(stored.message.strSubject, text);
    QCOMPARE(stored.message.iKind, int(HOST_MESSAGE_MMS));
    QCOMPARE(stored.message.lstNumbers, QStringList() << "123"
                                                      << "+49 170");
    QVERIFY(qAbs(stored.time.secsTo(QDateTime::currentDateTime())) < 60);
}

void TestHostMessages::callsSurviveARestart()
{
    const QTemporaryDir folder;
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(1700000000123);
    {
        MessageStore store(folder.path());
        StoredCall call;
        call.strNumber = "+49170";
        call.iType = HOST_CALL_VIDEO;
        call.time = time;
        call.iSeconds = 75;
        call.iDirection = HOST_CALL_FROM_OUTSIDE;
        call.iEnd = HOST_CALL_MISSED;
        call.iSimulated = 0;
        QVERIFY(store.AddCall(call));
    }
    MessageStore store(folder.path());
    QCOMPARE(store.Calls().size(), 1);
    const StoredCall call = store.Calls().first();
    QCOMPARE(call.strNumber, QString("+49170"));
    QCOMPARE(call.iType, int(HOST_CALL_VIDEO));
    QCOMPARE(call.time, time);
    QCOMPARE(call.iSeconds, 75);
    QCOMPARE(call.iDirection, int(HOST_CALL_FROM_OUTSIDE));
    QCOMPARE(call.iEnd, int(HOST_CALL_MISSED));
    QCOMPARE(call.iSimulated, 0);
}

void TestHostMessages::removingTakesOneMessage()
{
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    QVERIFY(store.Add(message("one")) && store.Add(message("two")) && store.Add(message("three")));
    const int iSecond = store.Messages().at(1).iId;
    QVERIFY(store.Remove(iSecond));
    QVERIFY(!store.Remove(iSecond));
    QVERIFY(!store.Remove(0));
    QCOMPARE(texts(store), QStringList() << "one"
                                         << "three");
    QCOMPARE(texts(MessageStore(folder.path())), texts(store));
}

void TestHostMessages::anIdentifierIsNeverUsedAgain()
{
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    QVERIFY(store.Add(message("one")));
    const int iFirst = store.Messages().first().iId;
    QVERIFY(store.Remove(iFirst) && store.Add(message("two")));
    QVERIFY(store.Messages().first().iId > iFirst);
}

void TestHostMessages::aMessageThatCannotBeWrittenIsNotKept()
{
    const QTemporaryDir folder;
    MessageStore store(folder.filePath("missing"));
    const QSignalSpy spy(&store, SIGNAL(changed()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("messages.db cannot be used"));
    QVERIFY(!store.Add(message("lost")));
    QVERIFY(store.Messages().isEmpty());
    QCOMPARE(spy.count(), 0);
    // Once the folder is there, all is well.
    QVERIFY(QDir(folder.path()).mkdir("missing"));
    QVERIFY(store.Add(message("kept")));
    QVERIFY(store.IsUsable());
}

void TestHostMessages::theFilesAreForTheirOwnerOnly()
{
    const QTemporaryDir folder;
    MessageStore store(folder.path());
    QVERIFY(store.Add(message("private")));
    const QFileInfoList listFiles = QDir(folder.path()).entryInfoList(QDir::Files | QDir::Hidden);
    QVERIFY(listFiles.size() >= 3); // the store, what SQLite keeps beside it, the lock
    foreach (const QFileInfo& file, listFiles) {
        QVERIFY2((int(file.permissions()) & 0x77) == 0, qPrintable(file.fileName()));
    }
}

void TestHostMessages::aCommitReachesTheDisk()
{
    const QTemporaryDir folder;
    Database database;
    QVERIFY(database.Open(folder.filePath("messages.db")));
    QCOMPARE(database.Number("PRAGMA synchronous"), qint64(2));
    Database::Query mode(database, "PRAGMA journal_mode");
    QVERIFY(mode.Next());
    QCOMPARE(mode.Text(0), QString("wal"));
}

void TestHostMessages::whatAnotherProgramWritesIsSeen()
{
    const QTemporaryDir folder;
    MessageStore first(folder.path());
    MessageStore second(folder.path());
    const QSignalSpy spy(&first, SIGNAL(changed()));
    QVERIFY(second.Add(message("from the second")));
    first.Refresh();
    QCOMPARE(texts(first), QStringList("from the second"));
    QCOMPARE(spy.count(), 1);
    first.Refresh();
    QVERIFY2(spy.count() == 1, "nothing has changed since");
    QVERIFY(first.Remove(first.Messages().first().iId));
    QVERIFY2(!second.Remove(second.Messages().first().iId), "it is gone already");
    QVERIFY(second.Messages().isEmpty());
}

void TestHostMessages::programsThatWriteAtOnceLoseNothing()
{
    const QTemporaryDir folder;
    const int iPrograms = 4;
    const int iEach = 15;
    QList<QProcess*> listPrograms;
    for (int i = 0; i < iPrograms; ++i) {
        listPrograms << new QProcess(this);
        listPrograms.last()->setProcessChannelMode(QProcess::ForwardedChannels);
        listPrograms.last()->start(QCoreApplication::applicationFilePath(),
                                   {"--write", folder.path(), QString::number(iEach)});
    }
    foreach (QProcess* pProgram, listPrograms) {
        QVERIFY(pProgram->waitForFinished(60000));
        QCOMPARE(pProgram->exitCode(), 0);
    }
    QCOMPARE(MessageStore(folder.path()).Messages().size(), iPrograms * iEach);
}

void TestHostMessages::aLaterReleasesStoreIsLeftAlone()
{
    const QTemporaryDir folder;
    {
        MessageStore store(folder.path());
        QVERIFY(store.Add(message("later")));
    }
    Database database;
    QVERIFY(database.Open(folder.filePath("messages.db")) && database.Run("PRAGMA user_version=99"));
    database.Close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("messages.db cannot be used"));
    MessageStore store(folder.path());
    QVERIFY(!store.IsUsable());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("messages.db cannot be used"));
    QVERIFY(!store.Add(message("refused")));
    QVERIFY(store.Damaged().isEmpty());
    QVERIFY(database.Open(folder.filePath("messages.db")));
    QCOMPARE(database.Number("SELECT COUNT(*) FROM messages"), qint64(1));
}

void TestHostMessages::aDamagedStoreIsKeptAndSalvaged()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("messages.db");
    const int iCount = 400;
    {
        MessageStore store(folder.path());
        for (int i = 0; i < iCount; ++i) {
            QVERIFY(store.Add(message(QString::number(i) + QString(100, 'x'))));
        }
        StoredCall call;
        call.strNumber = "+49170";
        call.time = QDateTime::currentDateTime();
        call.iDirection = HOST_CALL_OUTGOING;
        call.iEnd = HOST_CALL_LOST;
        call.iSimulated = 1;
        QVERIFY(store.AddCall(call));
    }
    // One page in the middle.
    QByteArray content = read(strFile);
    QVERIFY(content.size() > 8 * 4096);
    content.replace(content.size() / 4096 / 2 * 4096, 4096, QByteArray(4096, '\xff'));
    write(strFile, content);
    MessageStore store(folder.path());
    QCOMPARE(store.Damaged().size(), 1);
    QCOMPARE(read(store.Damaged().first()), content);
    QVERIFY(store.Messages().size() > iCount / 2 && store.Messages().size() < iCount);
    QVERIFY(texts(store).first().startsWith("0x"));
    QVERIFY2(texts(store).last().startsWith(QString::number(iCount - 1)), "also what lies behind the damage");
    QCOMPARE(store.Calls().size(), 1);
    QCOMPARE(store.Calls().first().iDirection, int(HOST_CALL_OUTGOING));
    QCOMPARE(store.Calls().first().iEnd, int(HOST_CALL_LOST));
    QCOMPARE(store.Calls().first().iSimulated, 1);
    QVERIFY(store.Add(message("new")));
    QVERIFY(MessageStore(folder.path()).Damaged().isEmpty());
}

void TestHostMessages::aSecondDamagedStoreKeepsTheFirst()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("messages.db");
    QStringList lstAside;
    for (int i = 0; i < 3; ++i) {
        write(strFile, QByteArray(5000, char('a' + i)));
        MessageStore store(folder.path());
        QVERIFY(store.Damaged().size() == 1 && store.IsUsable());
        lstAside << store.Damaged();
        QVERIFY(store.Add(message("after")));
    }
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(read(lstAside.at(i)), QByteArray(5000, char('a' + i)));
    }
}

void TestHostMessages::theOldOutboxIsTakenOver()
{
    const QTemporaryDir folder;
    write(folder.filePath("outbox.xml"), oldOutbox({"one", "two & <three>"}));
    const MessageStore store(folder.path());
    QCOMPARE(texts(store), QStringList() << "one"
                                         << "two & <three>");
    const StoredMessage stored = store.Messages().first();
    QCOMPARE(stored.message.lstNumbers, QStringList() << "123"
                                                      << "456");
    QCOMPARE(stored.message.iKind, 1);
    QCOMPARE(stored.message.strSubject, QString("s"));
    QCOMPARE(stored.time, QDateTime(QDate(2024, 1, 1), QTime(12, 0)));
    QVERIFY(store.Damaged().isEmpty());
    QVERIFY(!QFile::exists(folder.filePath("outbox.xml")));
}

void TestHostMessages::theOldOutboxIsTakenOverOnce()
{
    const QTemporaryDir folder;
    const QByteArray content = oldOutbox({"one"});
    for (int i = 0; i < 2; ++i) {
        // The second time as if the program had ended before it could take the file away.
        write(folder.filePath("outbox.xml"), content);
        QCOMPARE(texts(MessageStore(folder.path())), QStringList("one"));
    }
    // An earlier release that is used in between begins a new one.
    write(folder.filePath("outbox.xml"), oldOutbox({"two"}));
    QCOMPARE(texts(MessageStore(folder.path())), QStringList() << "one"
                                                               << "two");
}

void TestHostMessages::aDamagedOldOutboxIsKeptAndSalvaged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("texts");
    const QByteArray whole = oldOutbox({"one", "two", "three"});
    QByteArray torn = whole;
    torn.replace("<text>two</text>", "<text>t\0\xff<");
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("no xml") << QByteArray("hello") << QStringList();
    QTest::newRow("another root") << QByteArray("<inbox/>") << QStringList();
    QTest::newRow("cut off") << whole.left(whole.indexOf("two")) << QStringList("one");
    QTest::newRow("torn in the middle") << torn << QStringList({"one", "three"});
    QTest::newRow("head lost") << whole.mid(60) << QStringList({"two", "three"});
    QTest::newRow("stray element") << QByteArray(whole).replace("<outbox>", "<outbox><other/>")
                                   << QStringList({"one", "two", "three"});
    QTest::newRow("no kind and no time") << QByteArray("<outbox><message><to>1</to><text>a</text></message></outbox>")
                                         << QStringList("a");
}

void TestHostMessages::aDamagedOldOutboxIsKeptAndSalvaged()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    write(folder.filePath("outbox.xml"), content);
    MessageStore store(folder.path());
    QTEST(texts(store), "texts");
    QCOMPARE(store.Damaged().size(), 1);
    QCOMPARE(read(store.Damaged().first()), content);
    QVERIFY(!QFile::exists(folder.filePath("outbox.xml")));
    QVERIFY(store.Add(message("new")));
    QVERIFY(MessageStore(folder.path()).Damaged().isEmpty());
}

void TestHostMessages::aSecondDamagedOldOutboxKeepsTheFirst()
{
    const QTemporaryDir folder;
    QStringList lstAside;
    for (int i = 0; i < 3; ++i) {
        write(folder.filePath("outbox.xml"), QByteArray("damaged ") + char('a' + i));
        lstAside << MessageStore(folder.path()).Damaged();
    }
    QCOMPARE(lstAside.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(read(lstAside.at(i)), QByteArray("damaged ") + char('a' + i));
    }
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--write") == 0) {
        MessageStore store(QFile::decodeName(argv[2]));
        bool bDone = true;
        for (int i = 0; i < atoi(argv[3]); ++i) {
            OutgoingMessage message;
            message.strText = QString::number(i);
            bDone = store.Add(message) && bDone;
        }
        return bDone ? 0 : 1;
    }
    TestHostMessages test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_host_messages.moc"
