#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include "app/Link.h"
#include "device/ContactNames.h"
#include "device/DeviceWatcher.h"
#include "device/SimulatedHardware.h"
#include "device/SimulatedModem.h"
#include "messages/MessageStore.h"
#include "orva/orva_sim.h"
#include "shared/HostLink.h"

// The calls that are kept: over a restart, in order, each with what it was.
class TestHostCalls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_pFolder.reset(); }
    void theLatestComesFirstWhateverTheOrderOfTheirEnds();
    void aPartOfTheListIsTheSamePartOfAllOfIt();
    void oneIsForgottenAndNoOther();
    void aFileOfAnotherProgramIsRead();
    void aCallOfTheFirstReleaseWasSimulated();
    void ofACallOfTheReleaseBetweenNobodyKnows();
    void aDamagedFileOfTheReleaseBetweenKeepsItsMarks();
    void aSimulatedCallIsKeptAsSuch();
    void aSimulatedCallEndsWithTheNetwork_data();
    void aSimulatedCallEndsWithTheNetwork();
    void aChangeThatLeavesTheNetworkEndsNoCall();
    void theLinkTellsWhoItWas();
    void aNumberIsFoundInItsMemory();
    void aLongListIsReadInNoTime();

private:
    QString file() const { return m_pFolder->filePath("messages.db"); }
    static StoredCall call(const QString& strNumber, qint64 iTime);
    static QStringList numbers(const QList<StoredCall>& listCalls);
    void write(const QByteArray& sql);
    static void addContact(const QString& strName, const QString& strNumber, int iMemory = 4);

    QScopedPointer<QTemporaryDir> m_pFolder;
};

namespace
{

const char* const TABLES = "CREATE TABLE messages(id INTEGER PRIMARY KEY AUTOINCREMENT, kind INTEGER NOT NULL, "
                           "time INTEGER NOT NULL, numbers TEXT NOT NULL, subject TEXT NOT NULL, text TEXT NOT NULL);"
                           "CREATE TABLE calls(id INTEGER PRIMARY KEY AUTOINCREMENT, number TEXT NOT NULL, "
                           "type INTEGER NOT NULL, time INTEGER NOT NULL, seconds INTEGER NOT NULL);"
                           "CREATE TABLE taken(hash TEXT PRIMARY KEY);";
const char* const STATES = "ALTER TABLE messages ADD COLUMN state INTEGER NOT NULL DEFAULT 0;"
                           "ALTER TABLE messages ADD COLUMN detail TEXT NOT NULL DEFAULT '';";
const char* const CALLS = "INSERT INTO calls VALUES(2, '+49171', 0, 1704103380000, 65);"
                          "INSERT INTO calls VALUES(3, '+49172', 1, 1704103390000, 7);";
const qint64 NOON = 1700000000000LL;

} // namespace

void TestHostCalls::init()
{
    SimulatedHardware::SetDevice(true);
    ORVA_Sim_SetRadio(1, 1);
    SimulatedHardware::SetNetwork(true);
    m_pFolder.reset(new QTemporaryDir);
}

StoredCall TestHostCalls::call(const QString& strNumber, qint64 iTime)
{
    StoredCall call;
    call.strNumber = strNumber;
    call.time = QDateTime::fromMSecsSinceEpoch(iTime);
    return call;
}

QStringList TestHostCalls::numbers(const QList<StoredCall>& listCalls)
{
    QStringList lstNumbers;
    foreach (const StoredCall& one, listCalls) {
        lstNumbers << one.strNumber;
    }
    return lstNumbers;
}

void TestHostCalls::write(const QByteArray& sql)
{
    Database database;
    QVERIFY(database.Open(file()) && database.Run(sql.constData()));
}

void TestHostCalls::addContact(const QString& strName, const QString& strNumber, int iMemory)
{
    void* pRecord = nullptr;
    int iId = 0;
    QCOMPARE(ORVA_PBSrv_CreateAddrRecord(iMemory, &pRecord), 0L);
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", strName.utf16());
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, iMemory == 4 ? "Mobile" : "Number", strNumber.utf16());
    QCOMPARE(ORVA_PBSrv_AddAddrRec(pRecord, &iId), 0L);
    ORVA_PBSrv_AddrRecord_Release(pRecord);
}

void TestHostCalls::theLatestComesFirstWhateverTheOrderOfTheirEnds()
{
    MessageStore store(m_pFolder->path());
    QVERIFY(store.AddCall(call("second", NOON + 2)));
    QVERIFY(store.AddCall(call("first", NOON + 1)));
    QVERIFY(store.AddCall(call("third", NOON + 3)));
    QVERIFY(store.AddCall(call("third, later told", NOON + 3)));
    QCOMPARE(numbers(MessageStore(m_pFolder->path()).Calls()),
             QStringList({"third, later told", "third", "second", "first"}));
}

void TestHostCalls::aPartOfTheListIsTheSamePartOfAllOfIt()
{
    MessageStore store(m_pFolder->path());
    for (int i = 0; i < 10; ++i) {
        QVERIFY(store.AddCall(call(QString::number(i), NOON + i / 2)));
    }
    const QStringList lstAll = numbers(store.Calls());
    QCOMPARE(lstAll.size(), 10);
    QCOMPARE(numbers(store.Calls(0, 4)), lstAll.mid(0, 4));
    QCOMPARE(numbers(store.Calls(4, 4)), lstAll.mid(4, 4));
    QCOMPARE(numbers(store.Calls(8, 4)), lstAll.mid(8));
    QVERIFY(store.Calls(10, 4).isEmpty());
}

void TestHostCalls::oneIsForgottenAndNoOther()
{
    MessageStore store(m_pFolder->path());
    QVERIFY(!store.RemoveCall(1)); // no file yet
    for (int i = 0; i < 3; ++i) {
        QVERIFY(store.AddCall(call(QString::number(i), NOON + i)));
    }
    const int iMiddle = store.Calls().at(1).iId;
    QVERIFY(store.RemoveCall(iMiddle));
    QVERIFY(!store.RemoveCall(iMiddle));
    QCOMPARE(numbers(MessageStore(m_pFolder->path()).Calls()), QStringList({"2", "0"}));
}

void TestHostCalls::aFileOfAnotherProgramIsRead()
{
    MessageStore store(m_pFolder->path());
    QVERIFY(store.Calls().isEmpty());
    MessageStore other(m_pFolder->path());
    QVERIFY(other.AddCall(call("1", NOON)));
    QCOMPARE(store.Calls().size(), 1);
}

void TestHostCalls::aCallOfTheFirstReleaseWasSimulated()
{
    write(QByteArray(TABLES) + CALLS + "PRAGMA user_version=1;");
    const QList<StoredCall> listCalls = MessageStore(m_pFolder->path()).Calls();
    QCOMPARE(numbers(listCalls), QStringList({"+49172", "+49171"}));
    foreach (const StoredCall& one, listCalls) {
        QCOMPARE(one.iSimulated, 1);
        QCOMPARE(one.iDirection, int(HOST_CALL_OUTGOING));
        QCOMPARE(one.iEnd, -1);
    }
    QCOMPARE(listCalls.last().iSeconds, 65);
}

void TestHostCalls::ofACallOfTheReleaseBetweenNobodyKnows()
{
    write(QByteArray(TABLES) + STATES + CALLS + "PRAGMA user_version=2;");
    const QList<StoredCall> listCalls = MessageStore(m_pFolder->path()).Calls();
    QCOMPARE(listCalls.size(), 2);
    QCOMPARE(listCalls.last().iSimulated, -1);
    QCOMPARE(listCalls.last().iDirection, int(HOST_CALL_DIRECTION_UNKNOWN));
    // No modem makes a video call.
    QCOMPARE(listCalls.first().iType, int(HOST_CALL_VIDEO));
    QCOMPARE(listCalls.first().iSimulated, 1);
    QCOMPARE(listCalls.first().iDirection, int(HOST_CALL_OUTGOING));
}

void TestHostCalls::aDamagedFileOfTheReleaseBetweenKeepsItsMarks()
{
    write(QByteArray(TABLES) + STATES + CALLS + "PRAGMA user_version=2;");
    write("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200) "
          "INSERT INTO messages(kind, time, numbers, subject, text) SELECT 0, 1, '1', '', hex(zeroblob(200)) FROM n");
    QFile damaged(file());
    QVERIFY(damaged.open(QIODevice::ReadWrite) && damaged.size() > qint64(8) * 4096);
    QVERIFY(damaged.seek(damaged.size() / 4096 / 2 * 4096));
    QCOMPARE(damaged.write(QByteArray(4096, '\xff')), qint64(4096));
    damaged.close();
    MessageStore store(m_pFolder->path());
    QCOMPARE(store.Damaged().size(), 1);
    const QList<StoredCall> listCalls = store.Calls();
    QCOMPARE(numbers(listCalls), QStringList({"+49172", "+49171"}));
    QCOMPARE(listCalls.first().iSimulated, 1);
    QCOMPARE(listCalls.first().iDirection, int(HOST_CALL_OUTGOING));
    QCOMPARE(listCalls.last().iSimulated, -1);
    QCOMPARE(listCalls.last().iDirection, int(HOST_CALL_DIRECTION_UNKNOWN));
}

void TestHostCalls::aSimulatedCallIsKeptAsSuch()
{
    MessageStore store(m_pFolder->path());
    SimulatedModem modem(store);
    QVERIFY(modem.Dial("123", HOST_CALL_VIDEO));
    QVERIFY(store.Calls().isEmpty());
    modem.HangUp();
    QCOMPARE(store.Calls().size(), 1);
    const StoredCall kept = store.Calls().first();
    QCOMPARE(kept.iSimulated, 1);
    QCOMPARE(kept.iDirection, int(HOST_CALL_OUTGOING));
    QCOMPARE(kept.iEnd, int(HOST_CALL_ENDED));
    QCOMPARE(kept.iType, int(HOST_CALL_VIDEO));
}

void TestHostCalls::aSimulatedCallEndsWithTheNetwork_data()
{
    QTest::addColumn<QString>("gone");
    QTest::newRow("radio") << "radio";
    QTest::newRow("network") << "network";
    QTest::newRow("device") << "device";
}

void TestHostCalls::aSimulatedCallEndsWithTheNetwork()
{
    QFETCH(QString, gone);
    MessageStore store(m_pFolder->path());
    SimulatedModem modem(store);
    DeviceWatcher watcher;
    connect(&watcher, SIGNAL(changed()), &modem, SLOT(OnDeviceChanged()));
    watcher.Start();
    const QSignalSpy progress(&modem, SIGNAL(callProgress(int)));
    const QSignalSpy ended(&modem, SIGNAL(callEnded(QString, int)));
    QVERIFY(modem.Dial("123", HOST_CALL_VOICE));
    if (gone == "radio") {
        SimulatedHardware::SetRadio(false);
    } else if (gone == "network") {
        SimulatedHardware::SetNetwork(false);
    } else {
        SimulatedHardware::SetDevice(false);
    }
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(progress.last().first().toInt(), int(HOST_CALL_LOST));
    QCOMPARE(store.Calls().size(), 1);
    QCOMPARE(store.Calls().first().iEnd, int(HOST_CALL_LOST));
    modem.HangUp();
    QCOMPARE(ended.count(), 1);
}

void TestHostCalls::aChangeThatLeavesTheNetworkEndsNoCall()
{
    MessageStore store(m_pFolder->path());
    SimulatedModem modem(store);
    QVERIFY(modem.Dial("123", HOST_CALL_VOICE));
    modem.OnDeviceChanged();
    QVERIFY(store.Calls().isEmpty());
}

void TestHostCalls::theLinkTellsWhoItWas()
{
    addContact("Berta", "+4989111222");
    MessageStore store(m_pFolder->path());
    SimulatedModem modem(store);
    Link link(modem, store, nullptr, QString());
    StoredCall one = call("+4989111222", NOON);
    one.iSeconds = 5;
    one.iDirection = HOST_CALL_FROM_OUTSIDE;
    one.iEnd = HOST_CALL_ENDED_BY_OTHER;
    one.iSimulated = 0;
    QVERIFY(store.AddCall(one));
    QVERIFY(store.AddCall(call("999", NOON + 1)));
    QCOMPARE(link.Calls(0, 10).size(), 2);
    HostContacts::Instance()->Read(false);
    QTRY_COMPARE(link.Calls(0, 10).last().strName, QString("Berta"));
    const QList<HostCall> listCalls = link.Calls(0, 10);
    QCOMPARE(listCalls.size(), 2);
    QCOMPARE(listCalls.first().strName, QString());
    const HostCall& told = listCalls.last();
    QCOMPARE(told.strName, QString("Berta"));
    QCOMPARE(told.strNumber, QString("+4989111222"));
    QCOMPARE(told.time, one.time);
    QCOMPARE(told.iSeconds, 5);
    QCOMPARE(told.iDirection, int(HOST_CALL_FROM_OUTSIDE));
    QCOMPARE(told.iEnd, int(HOST_CALL_ENDED_BY_OTHER));
    QCOMPARE(told.iSimulated, 0);
    QCOMPARE(link.Calls(1, 1).first().iId, told.iId);
    QVERIFY(link.RemoveCall(told.iId));
    QCOMPARE(store.Calls().size(), 1);
}

void TestHostCalls::aNumberIsFoundInItsMemory()
{
    addContact("Elsewhere", "0508888888");
    addContact("", "0508888888", 0);
    addContact("On the card", "0508888888", 0);
    addContact("Short", "110", 0);
    QCOMPARE(ContactNames::In(0, "+49508888888"), QString("On the card"));
    QCOMPARE(ContactNames::In(0, "110"), QString("Short"));
    QCOMPARE(ContactNames::In(1, "110"), QString());
    foreach (const QString& strNumber, (QStringList{"10", "", "Anna", "110000110"})) {
        QCOMPARE(ContactNames::In(0, strNumber), QString());
    }
}

// In the order of its index: what is behind the first page costs nothing.
void TestHostCalls::aLongListIsReadInNoTime()
{
    QVERIFY(MessageStore(m_pFolder->path()).AddCall(call("1", NOON)));
    write("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) "
          "INSERT INTO calls(number, type, time, seconds) SELECT i, 0, 1700000000000 + i, 1 FROM n");
    MessageStore store(m_pFolder->path());
    QCOMPARE(store.Calls(0, 200).size(), 200);
    Database database;
    QVERIFY(database.Open(file()));
    Database::Query plan(database, "EXPLAIN QUERY PLAN SELECT id FROM calls ORDER BY time DESC, id DESC LIMIT 200");
    QString strPlan;
    while (plan.Next()) {
        strPlan += plan.Text(3) + '\n';
    }
    QVERIFY2(strPlan.contains("calls_by_time") && !strPlan.contains("TEMP B-TREE"), qPrintable(strPlan));
}

QTEST_GUILESS_MAIN(TestHostCalls)
#include "test_host_calls.moc"
