#ifndef SDK_STORE_DATABASE_H
#define SDK_STORE_DATABASE_H

#include <sqlite3.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Failure.h"
#include "base/RowBlock.h"

namespace orva
{

// A failed SQLite call; the code that clients see follows from SQLite's.
class SqlFailure : public Failure
{
public:
    // `systemError` is the errno behind it; 0 for none.
    SqlFailure(int sqlCode, const std::string& text, int systemError = 0);

    int sqlCode() const { return m_sqlCode; }

    // The file itself is damaged or is no database.
    bool isDamage() const;

private:
    int m_sqlCode;
};

// One connection. Not locked: whoever owns it does that. Statements are kept prepared.
class Database
{
public:
    // Salvage reads what is left of a damaged file, also of one that has lost its end. ReadAlone reads a file and its
    // write-ahead log with no file beside them, and ReadUnchanging a file without a log; while nobody writes either.
    // Passing is an empty database without a name, which ends with the connection; its path is empty.
    enum class Mode { ReadWrite, ReadOnly, Salvage, ReadAlone, ReadUnchanging, Passing };

    // The path must hold no symbolic link; the file must exist.
    Database(const std::string& path, Mode mode);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    sqlite3* handle() const { return m_db; }
    bool inTransaction() const { return sqlite3_get_autocommit(m_db) == 0; }

    void execute(const char* sql);
    int queryInt(const char* sql);

    // Whether texts lie in the file as clients take them; known after learnEncoding().
    bool hasNativeText() const { return m_nativeText; }
    void learnEncoding();

    // The prepared statement of a text, made on first use. Found fastest by the address of a lasting string.
    sqlite3_stmt* prepared(const char* sql);

    [[noreturn]] void fail(int sqlCode, const char* doing) const;

private:
    struct Cached {
        const char* address;
        std::string sql;
        sqlite3_stmt* statement;
    };

    sqlite3* m_db = nullptr;
    bool m_nativeText = false;
    std::vector<Cached> m_statements;
};

// One use of a prepared statement: bind, step, read; it is set back at the end.
class Query
{
public:
    Query(Database& db, const char* sql) : m_db(db), m_statement(db.prepared(sql)) {}
    ~Query()
    {
        sqlite3_reset(m_statement);
        sqlite3_clear_bindings(m_statement);
    }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    Query& bind(int index, int value);
    Query& bind(int index, long long value);

    // The text must live until the query is gone.
    Query& bind(int index, std::u16string_view text);

    // Octets, likewise; an empty view binds no octets, not NULL.
    Query& bindOctets(int index, std::string_view octets);

    // True while there is a row.
    bool step();

    int integer(int column) { return sqlite3_column_int(m_statement, column); }
    long long wideInteger(int column) { return sqlite3_column_int64(m_statement, column); }
    std::u16string_view text(int column);

    // Empty for NULL.
    std::string octets(int column);

    // The same without a copy, until the next step.
    std::string_view octetsView(int column);

    // Text that SQLite itself made, such as a finding of a check.
    std::string bytes(int column);

    // Adds the text to a block's row, without the copy that text() makes inside SQLite.
    void addText(int column, RowBlock& rows);

private:
    Database& m_db;
    sqlite3_stmt* m_statement;
    // Copies of texts that had to be changed for binding; see bind().
    std::vector<std::unique_ptr<std::u16string>> m_copies;
};

} // namespace orva

#endif // SDK_STORE_DATABASE_H
