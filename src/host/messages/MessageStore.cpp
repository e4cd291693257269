#include "messages/MessageStore.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QtDebug>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "messages/OutboxFile.h"

namespace
{

const int SCHEMA_VERSION = 3;
const char* const SCHEMA = "CREATE TABLE messages("
                           "  id INTEGER PRIMARY KEY AUTOINCREMENT,"
                           "  kind INTEGER NOT NULL,"
                           "  time INTEGER NOT NULL," // milliseconds since 1970, UTC
                           "  numbers TEXT NOT NULL," // one a line
                           "  subject TEXT NOT NULL,"
                           "  text TEXT NOT NULL);"
                           "CREATE TABLE calls("
                           "  id INTEGER PRIMARY KEY AUTOINCREMENT,"
                           "  number TEXT NOT NULL,"
                           "  type INTEGER NOT NULL,"
                           "  time INTEGER NOT NULL,"
                           "  seconds INTEGER NOT NULL);"
                           // The files of earlier releases that have been taken over, by their content.
                           "CREATE TABLE taken(hash TEXT PRIMARY KEY);"
                           "PRAGMA user_version=1;";
const char* const MENDED = ".mended"; // behind the file's name
// The first release knew messages that wait for a modem alone.
const char* const SCHEMA_STATES = "ALTER TABLE messages ADD COLUMN state INTEGER NOT NULL DEFAULT 0;" // MessageState
                                  "ALTER TABLE messages ADD COLUMN detail TEXT NOT NULL DEFAULT '';"
                                  "PRAGMA user_version=2;";
// Of a call it was not kept from whom it came, how it ended and whether a modem was behind it.
const char* const SCHEMA_CALLS = "ALTER TABLE calls ADD COLUMN direction INTEGER NOT NULL DEFAULT 2;"
                                 "ALTER TABLE calls ADD COLUMN ending INTEGER NOT NULL DEFAULT -1;"
                                 "ALTER TABLE calls ADD COLUMN simulated INTEGER NOT NULL DEFAULT -1;"
                                 "CREATE INDEX calls_by_time ON calls(time);"
                                 "PRAGMA user_version=3;";
// The first release had no real modem, and no modem makes video calls.
const char* const MARK_CALLS = "UPDATE calls SET direction = 0, simulated = 1 WHERE ? < 2 OR type = 1";
const char* const INSERT_MESSAGE =
    "INSERT INTO messages(kind, time, numbers, subject, text, state, detail) VALUES(?, ?, ?, ?, ?, ?, ?)";

// Holds other programs off: all of them while a file is made, mended or taken over (LOCK_EX), and those that would put
// the file aside while something is written into it (LOCK_SH).
class FolderLock
{
public:
    FolderLock(const QString& strFolder, int iKind)
        : m_iFile(::open(QFile::encodeName(strFolder + QLatin1String("/messages.lock")).constData(),
                         O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
    {
        while (m_iFile >= 0 && flock(m_iFile, iKind) != 0 && errno == EINTR) {
        }
    }
    ~FolderLock()
    {
        if (m_iFile >= 0) {
            ::close(m_iFile);
        }
    }

private:
    Q_DISABLE_COPY(FolderLock)
    int m_iFile;
};

QVariantList valuesOf(const OutgoingMessage& message, const QDateTime& time, int iState = MESSAGE_SIMULATED,
                      const QString& strDetail = QString())
{
    return QVariantList() << message.iKind << time.toMSecsSinceEpoch() << message.lstNumbers.join(QLatin1String("\n"))
                          << message.strSubject << message.strText << iState << strDetail;
}

QDateTime timeOf(qint64 iMilliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(iMilliseconds);
}

} // namespace

MessageStore::MessageStore(const QString& strFolder, QObject* pParent)
    : QObject(pParent),
      m_strFolder(strFolder),
      m_strFile(strFolder + QLatin1String("/messages.db")),
      m_bUsable(true),
      m_iVersion(-1)
{
    if (exists()) {
        open();
    }
}

int MessageStore::Add(const OutgoingMessage& message, MessageState enState, const QString& strDetail,
                      const QDateTime& time)
{
    const QDateTime written = time.isValid() ? time : QDateTime::currentDateTime();
    if (change(INSERT_MESSAGE, valuesOf(message, written, enState, strDetail)) < 0) {
        return 0;
    }
    const int iId = int(m_database.LastId());
    read();
    emit changed();
    return iId;
}

bool MessageStore::SetState(int iId, MessageState enState, const QString& strDetail)
{
    if (change("UPDATE messages SET state = ?, detail = ? WHERE id = ?", QVariantList()
                                                                             << int(enState) << strDetail << iId) < 0) {
        return false;
    }
    read();
    emit changed();
    return true;
}

bool MessageStore::Replace(int iId, const OutgoingMessage& message)
{
    const int iReplaced = m_database.IsOpen()
                              ? change("UPDATE messages SET kind = ?, time = ?, numbers = ?, subject = ?, text = ?, "
                                       "state = ?, detail = ? WHERE id = ? AND state IN (1, 4)",
                                       valuesOf(message, QDateTime::currentDateTime(), MESSAGE_DRAFT) << iId)
                              : -1;
    if (iReplaced < 0) {
        return false;
    }
    read();
    emit changed();
    return iReplaced == 1;
}

StoredMessage MessageStore::Message(int iId) const
{
    foreach (const StoredMessage& stored, m_listMessages) {
        if (stored.iId == iId) {
            return stored;
        }
    }
    return StoredMessage();
}

int MessageStore::Received(const QString& strNumber, const QString& strText, const QString& strStamp) const
{
    foreach (const StoredMessage& stored, m_listMessages) {
        if (stored.iState == MESSAGE_RECEIVED && stored.strDetail == strStamp && stored.message.strText == strText &&
            stored.message.lstNumbers == QStringList(strNumber)) {
            return stored.iId;
        }
    }
    return 0;
}

bool MessageStore::Remove(int iId)
{
    const int iRemoved = m_database.IsOpen() ? change("DELETE FROM messages WHERE id = ?", QVariantList() << iId) : -1;
    if (iRemoved < 0) {
        return false;
    }
    read();
    emit changed();
    return iRemoved == 1;
}

// The number of rows that a statement has written, -1 if it failed. Into the file that has the name when it is done:
// another program cannot put it aside meanwhile.
int MessageStore::change(const char* pszSql, const QVariantList& listValues)
{
    while (open()) {
        const FolderLock lock(m_strFolder, LOCK_SH);
        if (m_database.HasMoved()) {
            continue;
        }
        Transaction transaction(m_database);
        if (!transaction.IsOpen() || !m_database.Run(pszSql, listValues)) {
            return -1;
        }
        const int iRows = int(m_database.Number("SELECT changes()"));
        return transaction.Commit() ? iRows : -1;
    }
    return -1;
}

void MessageStore::Refresh()
{
    const bool bMoved = m_database.HasMoved();
    const bool bNew = (bMoved || (!m_database.IsOpen() && m_bUsable && exists())) && open();
    if (bNew || (m_database.IsOpen() && m_database.Number("PRAGMA data_version") != m_iVersion)) {
        read();
        emit changed();
    }
}

// A folder in which nobody wrote a message gets no file.
bool MessageStore::exists() const
{
    return QFile::exists(m_strFile) || QFile::exists(m_strFile + QLatin1String(MENDED)) ||
           QFile::exists(m_strFolder + QLatin1String("/outbox.xml"));
}

// Also goes on in the file that has taken this one's place: another program has found it damaged and put it aside.
bool MessageStore::open()
{
    if (m_database.IsOpen() && !m_database.HasMoved()) {
        return true;
    }
    m_database.Close();
    const FolderLock lock(m_strFolder, LOCK_EX);
    m_bUsable = openFile() && takeOverOutbox() && read();
    if (!m_bUsable) {
        qWarning("%s cannot be used: %d", qPrintable(m_strFile), m_database.Error());
        m_database.Close();
    }
    return m_bUsable;
}

bool MessageStore::openFile()
{
    if (!QFile::exists(m_strFile) && QFile::exists(m_strFile + QLatin1String(MENDED))) {
        placeMended(); // for a program that ended between the two names
    }
    const bool bOpen = m_database.Open(m_strFile);
    if (bOpen && isSound()) {
        return migrate(m_database);
    }
    if (!bOpen && !m_database.IsDamage()) {
        return false;
    }
    m_database.Close();
    return mend() && m_database.Open(m_strFile) && migrate(m_database);
}

// What can be read goes into a file of its own, which takes the damaged one's name when it is whole and on disk: a
// program that ends in between has lost nothing.
bool MessageStore::mend()
{
    const QString strMended = m_strFile + QLatin1String(MENDED);
    foreach (const char* pszEnd, QList<const char*>() << ""
                                                      << "-wal"
                                                      << "-shm") {
        QFile::remove(strMended + QLatin1String(pszEnd)); // of a program that did not come to its end
    }
    {
        Database mended;
        if (!mended.Open(strMended) || !migrate(mended)) {
            return false;
        }
        Database source;
        Transaction transaction(mended);
        if (source.OpenToRead(m_strFile)) {
            takeOver(source, mended, "ASC");
            takeOver(source, mended, "DESC"); // what lies behind the damage
        }
        if (!transaction.Commit()) {
            return false;
        }
    }
    return !QFile::exists(strMended + QLatin1String("-wal")) && !putAside(m_strFile).isEmpty() && placeMended();
}

bool MessageStore::placeMended()
{
    // What the damaged file had beside it would be taken for this one's.
    QFile::remove(m_strFile + QLatin1String("-wal"));
    QFile::remove(m_strFile + QLatin1String("-shm"));
    return QFile::rename(m_strFile + QLatin1String(MENDED), m_strFile);
}

bool MessageStore::isSound()
{
    Database::Query query(m_database, "PRAGMA quick_check(1)");
    return query.Next() ? query.Text(0) == QLatin1String("ok") : !m_database.IsDamage();
}

bool MessageStore::migrate(Database& database)
{
    Transaction transaction(database);
    const qint64 iVersion = database.Number("PRAGMA user_version");
    if (!transaction.IsOpen() || iVersion < 0 || iVersion > SCHEMA_VERSION) {
        return false;
    }
    return (iVersion >= 1 || database.Run(SCHEMA)) && (iVersion >= 2 || database.Run(SCHEMA_STATES)) &&
           (iVersion >= 3 || (database.Run(SCHEMA_CALLS) && database.Run(MARK_CALLS, QVariantList() << iVersion))) &&
           transaction.Commit();
}

// Copies rows in one direction for as long as they can be read; one that is there already stays.
void MessageStore::takeOver(Database& source, Database& target, const char* pszDirection)
{
    const bool bStates = source.Number("PRAGMA user_version") >= 2;
    const QByteArray messages = QByteArray("SELECT id, kind, time, numbers, subject, text, ") +
                                (bStates ? "state, detail" : "0, ''") + " FROM messages ORDER BY id " + pszDirection;
    Database::Query message(source, messages.constData());
    while (message.Next()) {
        target.Run("INSERT OR IGNORE INTO messages(id, kind, time, numbers, subject, text, state, detail) "
                   "VALUES(?, ?, ?, ?, ?, ?, ?, ?)",
                   QVariantList() << message.Number(0) << message.Number(1) << message.Number(2) << message.Text(3)
                                  << message.Text(4) << message.Text(5) << message.Number(6) << message.Text(7));
    }
    takeOverCalls(source, target, pszDirection);
    Database::Query taken(source, "SELECT hash FROM taken");
    while (taken.Next()) {
        target.Run("INSERT OR IGNORE INTO taken VALUES(?)", QVariantList() << taken.Text(0));
    }
}

// The file goes once its messages are on disk. A program that ends in between finds by the hash that they are.
bool MessageStore::takeOverOutbox()
{
    const QString strOld = m_strFolder + QLatin1String("/outbox.xml");
    QFile file(strOld);
    if (!file.open(QIODevice::ReadOnly)) {
        return true;
    }
    const QByteArray content = file.readAll();
    file.close();
    const OutboxFile outbox = OutboxFile::Read(content);
    {
        const QString strHash =
            QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex());
        Transaction transaction(m_database);
        bool bDone = transaction.IsOpen();
        if (Database::Query(m_database, "SELECT 1 FROM taken WHERE hash = ?", QVariantList() << strHash).Next()) {
            bDone = true;
        } else {
            foreach (const OutboxFile::Entry& entry, outbox.listEntries) {
                const QDateTime time = entry.time.isValid() ? entry.time : QFileInfo(strOld).lastModified();
                bDone = bDone && m_database.Run(INSERT_MESSAGE, valuesOf(entry.message, time));
            }
            bDone = bDone && m_database.Run("INSERT INTO taken VALUES(?)", QVariantList() << strHash);
        }
        if (!bDone || !transaction.Commit()) {
            return false;
        }
    }
    if (outbox.bDamaged) {
        putAside(strOld);
    } else {
        QFile::remove(strOld);
    }
    return true;
}

// Gives a damaged file a name that no other has. Empty if that failed.
QString MessageStore::putAside(const QString& strFile)
{
    const QString strBase = strFile + QLatin1String(".damaged-") +
                            QDateTime::currentDateTimeUtc().toString(QLatin1String("yyyyMMdd'T'HHmmss'Z'"));
    for (int i = 1; i < 1000; ++i) {
        QString strAside = i == 1 ? strBase : strBase + QLatin1Char('.') + QString::number(i);
        if (QFile::exists(strAside)) {
            continue;
        }
        if (!QFile::rename(strFile, strAside)) {
            return QString();
        }
        // What SQLite keeps beside a file belongs to it.
        QFile::rename(strFile + QLatin1String("-wal"), strAside + QLatin1String("-wal"));
        QFile::remove(strFile + QLatin1String("-shm"));
        m_lstDamaged.append(strAside);
        return strAside;
    }
    return QString();
}

bool MessageStore::read()
{
    const qint64 iVersion = m_database.Number("PRAGMA data_version");
    QList<StoredMessage> listMessages;
    Database::Query query(m_database,
                          "SELECT id, kind, time, numbers, subject, text, state, detail FROM messages ORDER BY id");
    while (query.Next()) {
        StoredMessage stored;
        stored.iId = int(query.Number(0));
        stored.message.iKind = int(query.Number(1));
        stored.time = timeOf(query.Number(2));
        const QString strNumbers = query.Text(3);
        if (!strNumbers.isEmpty()) {
            stored.message.lstNumbers = strNumbers.split(QLatin1Char('\n'));
        }
        stored.message.strSubject = query.Text(4);
        stored.message.strText = query.Text(5);
        stored.iState = int(query.Number(6));
        stored.strDetail = query.Text(7);
        listMessages.append(stored);
    }
    if (!query.Done()) {
        return false;
    }
    m_iVersion = iVersion;
    m_listMessages = listMessages;
    return true;
}
