#ifndef LINKHAND_HOST_DATABASE_H
#define LINKHAND_HOST_DATABASE_H

#include <QString>
#include <QVariant>
#include <QVector>

struct sqlite3;
struct sqlite3_stmt;

// One connection to an SQLite file of the data folder, which other processes may have open too. A failure is false, and
// Error() tells which. One thread.
class Database
{
public:
    Database() : m_pHandle(nullptr), m_iError(0) {}
    ~Database() { Close(); }

    // Opens the file, and makes it for its owner alone where there is none. What a commit wrote survives a power cut.
    bool Open(const QString& strFile);

    // Opens a file that is there and changes nothing in it.
    bool OpenToRead(const QString& strFile);
    void Close();
    bool IsOpen() const { return m_pHandle != nullptr; }

    // True for an open file that its name does not lead to any more.
    bool HasMoved() const;

    // SQLite's code of what failed last, and whether it says that the file is no sound database.
    int Error() const { return m_iError; }
    bool IsDamage() const;

    // Runs statements without values.
    bool Run(const char* pszSql);

    // The value of a statement that gives one number, -1 on failure.
    qint64 Number(const char* pszSql);
    qint64 LastId() const;

    // A statement with values for its "?" in order.
    class Query
    {
    public:
        Query(Database& database, const char* pszSql, const QVariantList& listValues = QVariantList());
        ~Query();

        // The next row. False at the end and on failure; Done() tells the end from a failure.
        bool Next();
        bool Done() const { return m_bDone; }
        qint64 Number(int iColumn) const;
        QString Text(int iColumn) const;

    private:
        Q_DISABLE_COPY(Query)
        Database& m_database;
        sqlite3_stmt* m_pStatement;
        bool m_bDone;
    };

    // Runs a statement with values to its end.
    bool Run(const char* pszSql, const QVariantList& listValues);

private:
    Q_DISABLE_COPY(Database)
    bool check(int iCode);

    sqlite3* m_pHandle;
    int m_iError;
};

// A transaction that is undone unless it was committed.
class Transaction
{
public:
    explicit Transaction(Database& database) : m_database(database), m_bOpen(database.Run("BEGIN IMMEDIATE")) {}
    ~Transaction()
    {
        if (m_bOpen) {
            m_database.Run("ROLLBACK");
        }
    }
    bool IsOpen() const { return m_bOpen; }
    bool Commit()
    {
        const bool bDone = m_bOpen && m_database.Run("COMMIT");
        m_bOpen = m_bOpen && !bDone;
        return bDone;
    }

private:
    Q_DISABLE_COPY(Transaction)
    Database& m_database;
    bool m_bOpen;
};

#endif // LINKHAND_HOST_DATABASE_H
