#include "messages/Database.h"

#include <QFile>
#include <QMetaType>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace
{

const int BUSY_MS = 5000; // another process writes for a moment

} // namespace

bool Database::Open(const QString& strFile)
{
    Close();
    const QByteArray path = QFile::encodeName(strFile);
    // SQLite gives its side files the rights of the file, but makes that one as the umask says.
    const int iFile = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (iFile < 0) {
        m_iError = SQLITE_CANTOPEN;
        return false;
    }
    close(iFile);
    const bool bOpen =
        check(sqlite3_open_v2(path.constData(), &m_pHandle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr));
    if (bOpen) {
        sqlite3_busy_timeout(m_pHandle, BUSY_MS);
    }
    // A later failure of these shows at the first statement.
    if (!bOpen || !Run("PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL;")) {
        const int iError = m_iError;
        Close();
        m_iError = iError;
        return false;
    }
    return true;
}

bool Database::OpenToRead(const QString& strFile)
{
    Close();
    if (!check(sqlite3_open_v2(QFile::encodeName(strFile).constData(), &m_pHandle,
                               SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr))) {
        Close();
    }
    return m_pHandle != nullptr;
}

void Database::Close()
{
    sqlite3_close(m_pHandle);
    m_pHandle = nullptr;
}

bool Database::HasMoved() const
{
    int iMoved = 0;
    return m_pHandle != nullptr &&
           sqlite3_file_control(m_pHandle, nullptr, SQLITE_FCNTL_HAS_MOVED, &iMoved) == SQLITE_OK && iMoved != 0;
}

bool Database::IsDamage() const
{
    const int iPrimary = m_iError & 0xff;
    return iPrimary == SQLITE_CORRUPT || iPrimary == SQLITE_NOTADB;
}

bool Database::Run(const char* pszSql)
{
    return m_pHandle != nullptr && check(sqlite3_exec(m_pHandle, pszSql, nullptr, nullptr, nullptr));
}

bool Database::Run(const char* pszSql, const QVariantList& listValues)
{
    Query query(*this, pszSql, listValues);
    while (query.Next()) {
    }
    return query.Done();
}

qint64 Database::Number(const char* pszSql)
{
    Query query(*this, pszSql);
    return query.Next() ? query.Number(0) : -1;
}

qint64 Database::LastId() const
{
    return sqlite3_last_insert_rowid(m_pHandle);
}

bool Database::check(int iCode)
{
    if (iCode == SQLITE_OK || iCode == SQLITE_ROW || iCode == SQLITE_DONE) {
        return true;
    }
    m_iError = iCode;
    return false;
}

Database::Query::Query(Database& database, const char* pszSql, const QVariantList& listValues)
    : m_database(database), m_pStatement(nullptr), m_bDone(false)
{
    if (m_database.m_pHandle == nullptr ||
        !m_database.check(sqlite3_prepare_v2(m_database.m_pHandle, pszSql, -1, &m_pStatement, nullptr))) {
        return;
    }
    for (int i = 0; i < listValues.size(); ++i) {
        const QVariant& value = listValues.at(i);
        if (value.userType() == QMetaType::QString) {
            const QByteArray text = value.toString().toUtf8();
            sqlite3_bind_text(m_pStatement, i + 1, text.constData(), text.size(), SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_int64(m_pStatement, i + 1, value.toLongLong());
        }
    }
}

Database::Query::~Query()
{
    sqlite3_finalize(m_pStatement);
}

bool Database::Query::Next()
{
    if (m_pStatement == nullptr || m_bDone) {
        return false;
    }
    const int iCode = sqlite3_step(m_pStatement);
    m_bDone = iCode == SQLITE_DONE;
    m_database.check(iCode);
    return iCode == SQLITE_ROW;
}

qint64 Database::Query::Number(int iColumn) const
{
    return sqlite3_column_int64(m_pStatement, iColumn);
}

QString Database::Query::Text(int iColumn) const
{
    const char* pszText = reinterpret_cast<const char*>(sqlite3_column_text(m_pStatement, iColumn));
    return QString::fromUtf8(pszText, sqlite3_column_bytes(m_pStatement, iColumn));
}
