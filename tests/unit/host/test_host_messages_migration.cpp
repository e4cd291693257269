#include <QCryptographicHash>
#include <QTemporaryDir>
#include <QtTest>

#include "messages/MessageStore.h"
#include "shared/HostLink.h"

// A store of the first release, which knew no state of a message, under the present one.
class TestHostMessagesMigration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_pFolder.reset(); }
    void whatWasThereComesAlongWithAState();
    void anIdentifierOfTheFirstReleaseIsNotUsedAgain();
    void aStateIsKeptAfterwards();
    void itIsDoneOnce();
    void anOldOutboxThatWasTakenOverIsNotTakenOverAgain();
    void aDamagedStoreOfTheFirstReleaseIsSalvaged();

private:
    QString file() const { return m_pFolder->filePath("messages.db"); }
    static OutgoingMessage message(const QString& strText);

    QScopedPointer<QTemporaryDir> m_pFolder;
};

namespace
{

// As the first release wrote it.
const char* const FIRST_RELEASE =
    "CREATE TABLE messages(id INTEGER PRIMARY KEY AUTOINCREMENT, kind INTEGER NOT NULL, time INTEGER NOT NULL, "
    "numbers TEXT NOT NULL, subject TEXT NOT NULL, text TEXT NOT NULL);"
    "CREATE TABLE calls(id INTEGER PRIMARY KEY AUTOINCREMENT, number TEXT NOT NULL, type INTEGER NOT NULL, "
    "time INTEGER NOT NULL, seconds INTEGER NOT NULL);"
    "CREATE TABLE taken(hash TEXT PRIMARY KEY);"
    "PRAGMA user_version=1;"
    "INSERT INTO messages VALUES(3, 0, 1704103200000, '123' || char(10) || '+49 170', '', 'Hello');"
    "INSERT INTO messages VALUES(7, 1, 1704103260000, '456', 'Summer', 'Grüße 🎉');"
    "INSERT INTO messages VALUES(9, 0, 1704103320000, '789', '', 'gone');"
    "DELETE FROM messages WHERE id = 9;"
    "INSERT INTO calls VALUES(2, '+49171', 0, 1704103380000, 65);"
    "INSERT INTO taken VALUES('9d5ed678fe57bcca610140957afab571');";

const qint64 FIRST_TIME = 1704103200000LL;

} // namespace

void TestHostMessagesMigration::init()
{
    m_pFolder.reset(new QTemporaryDir);
    Database database;
    QVERIFY(database.Open(file()) && database.Run(FIRST_RELEASE));
}

OutgoingMessage TestHostMessagesMigration::message(const QString& strText)
{
    OutgoingMessage result;
    result.iKind = HOST_MESSAGE_SMS;
    result.lstNumbers << "1";
    result.strText = strText;
    return result;
}

void TestHostMessagesMigration::whatWasThereComesAlongWithAState()
{
    MessageStore store(m_pFolder->path());
    QVERIFY(store.IsUsable() && store.Damaged().isEmpty());
    QCOMPARE(store.Messages().size(), 2);
    const StoredMessage& first = store.Messages().first();
    QCOMPARE(first.iId, 3);
    QCOMPARE(first.time.toMSecsSinceEpoch(), FIRST_TIME);
    QCOMPARE(first.message.iKind, int(HOST_MESSAGE_SMS));
    QCOMPARE(first.message.lstNumbers, QStringList({"123", "+49 170"}));
    QCOMPARE(first.message.strText, QString("Hello"));
    const StoredMessage& second = store.Messages().last();
    QCOMPARE(second.iId, 7);
    QCOMPARE(second.message.iKind, int(HOST_MESSAGE_MMS));
    QCOMPARE(second.message.strSubject, QString("Summer"));
    QCOMPARE(second.message.strText, QString::fromUtf8("Grüße 🎉"));
    // Nothing of that release has ever left.
    foreach (const StoredMessage& stored, store.Messages()) {
        QCOMPARE(stored.iState, int(MESSAGE_SIMULATED));
        QCOMPARE(stored.strDetail, QString());
    }
    QCOMPARE(store.Calls().size(), 1);
    const StoredCall call = store.Calls().first();
    QCOMPARE(call.iId, 2);
    QCOMPARE(call.strNumber, QString("+49171"));
    QCOMPARE(call.iSeconds, 65);
}

void TestHostMessagesMigration::anIdentifierOfTheFirstReleaseIsNotUsedAgain()
{
    MessageStore store(m_pFolder->path());
    QCOMPARE(store.Add(message("new"), MESSAGE_SENT), 10);
}

void TestHostMessagesMigration::aStateIsKeptAfterwards()
{
    {
        MessageStore store(m_pFolder->path());
        QVERIFY(store.SetState(7, MESSAGE_FAILED, "no network"));
        QVERIFY(store.Add(message("new"), MESSAGE_RECEIVED, "stamp") != 0);
    }
    const MessageStore store(m_pFolder->path());
    QCOMPARE(store.Messages().size(), 3);
    QCOMPARE(store.Message(3).iState, int(MESSAGE_SIMULATED));
    QCOMPARE(store.Message(7).iState, int(MESSAGE_FAILED));
    QCOMPARE(store.Message(7).strDetail, QString("no network"));
    QCOMPARE(store.Received("1", "new", "stamp"), store.Messages().last().iId);
}

void TestHostMessagesMigration::itIsDoneOnce()
{
    QVERIFY(MessageStore(m_pFolder->path()).IsUsable());
    Database database;
    QVERIFY(database.Open(file()));
    QCOMPARE(database.Number("PRAGMA user_version"), qint64(3));
    database.Close();
    const MessageStore again(m_pFolder->path());
    QVERIFY(again.IsUsable() && again.Damaged().isEmpty());
    QCOMPARE(again.Messages().size(), 2);
}

void TestHostMessagesMigration::anOldOutboxThatWasTakenOverIsNotTakenOverAgain()
{
    const QByteArray content = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><outbox><message kind=\"1\" "
                               "time=\"2024-01-01T12:00:00\"><to>1</to><text>old</text></message></outbox>";
    const QString strHash = QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
    {
        Database database;
        QVERIFY(database.Open(file()) && database.Run("INSERT INTO taken VALUES(?)", QVariantList() << strHash));
    }
    QFile outbox(m_pFolder->filePath("outbox.xml"));
    QVERIFY(outbox.open(QIODevice::WriteOnly) && outbox.write(content) == content.size());
    outbox.close();
    const MessageStore store(m_pFolder->path());
    QCOMPARE(store.Messages().size(), 2);
    QVERIFY(!outbox.exists());
}

void TestHostMessagesMigration::aDamagedStoreOfTheFirstReleaseIsSalvaged()
{
    const int iCount = 400;
    {
        Database database;
        QVERIFY(database.Open(file()) && database.Run("BEGIN"));
        for (int i = 0; i < iCount; ++i) {
            QVERIFY(database.Run("INSERT INTO messages(kind, time, numbers, subject, text) VALUES(0, ?, '1', '', ?)",
                                 QVariantList() << FIRST_TIME << QString(200, 'x')));
        }
        QVERIFY(database.Run("COMMIT"));
    }
    QFile damaged(file());
    QVERIFY(damaged.open(QIODevice::ReadWrite));
    QVERIFY(damaged.size() > qint64(8) * 4096);
    // One page in the middle.
    QVERIFY(damaged.seek(damaged.size() / 4096 / 2 * 4096));
    QCOMPARE(damaged.write(QByteArray(4096, '\xff')), qint64(4096));
    damaged.close();
    MessageStore store(m_pFolder->path());
    QCOMPARE(store.Damaged().size(), 1);
    QVERIFY(store.IsUsable());
    QVERIFY(store.Messages().size() > iCount / 2 && store.Messages().size() < iCount + 2);
    QCOMPARE(store.Message(3).message.strText, QString("Hello"));
    QCOMPARE(store.Message(3).iState, int(MESSAGE_SIMULATED));
    QCOMPARE(store.Message(9 + iCount).message.strText, QString(200, 'x'));
    QCOMPARE(store.Calls().size(), 1);
    QVERIFY(store.Add(message("new"), MESSAGE_SENT) != 0);
    Database mended;
    QVERIFY(mended.Open(file()));
    QCOMPARE(mended.Number("SELECT COUNT(*) FROM taken"), qint64(1));
}

QTEST_GUILESS_MAIN(TestHostMessagesMigration)
#include "test_host_messages_migration.moc"
