#include "store/Database.h"

#include <cerrno>
#include <cstdint>

namespace orva
{

namespace
{

// How long an ordinary statement waits for another process, in milliseconds. Write transactions wait by themselves.
constexpr int statementWait = 2000;

bool isLackOfSpace(int systemError)
{
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

long clientCode(int sqlCode, int systemError)
{
    switch (sqlCode & 0xff) {
    case SQLITE_FULL:
        return ORVA_E_NO_SPACE;
    case SQLITE_READONLY:
        return ORVA_E_READ_ONLY;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
        return isLackOfSpace(systemError) ? ORVA_E_NO_SPACE : ORVA_E_STORE;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return ORVA_E_BUSY;
    case SQLITE_NOMEM:
        return ORVA_E_NO_MEMORY;
    default:
        return ORVA_E_STORE;
    }
}

// The path as SQLite's URI, so that it can say that the file does not change.
std::string uriOf(const std::string& path, Database::Mode mode)
{
    if (mode == Database::Mode::Passing)
        return std::string();
    std::string uri = path[0] == '/' ? "file://" : "file:";
    for (const char c : path) {
        if (c == '%' || c == '?' || c == '#')
            uri.append(c == '%' ? "%25" : c == '?' ? "%3f" : "%23");
        else
            uri.push_back(c);
    }
    return mode == Database::Mode::ReadUnchanging ? uri + "?immutable=1" : uri;
}

} // namespace

SqlFailure::SqlFailure(int sqlCode, const std::string& text, int systemError)
    : Failure(clientCode(sqlCode, systemError), text), m_sqlCode(sqlCode)
{
}

bool SqlFailure::isDamage() const
{
    const int primary = m_sqlCode & 0xff;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
}

Database::Database(const std::string& path, Mode mode)
{
    const int access = mode == Mode::ReadWrite ? SQLITE_OPEN_READWRITE
                       : mode == Mode::Passing ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE
                                               : SQLITE_OPEN_READONLY;
    const int flags = access | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_NOFOLLOW | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_URI;
    // Only a file layer without locks lets a file that may not be written be locked for one reader alone.
    const char* const layer = mode == Mode::ReadAlone ? "unix-none" : nullptr;
    const int result = sqlite3_open_v2(uriOf(path, mode).c_str(), &m_db, flags, layer);
    if (result != SQLITE_OK) {
        const std::string text = m_db != nullptr ? sqlite3_errmsg(m_db) : sqlite3_errstr(result);
        const int systemError = m_db != nullptr ? sqlite3_system_errno(m_db) : 0;
        sqlite3_close(m_db);
        throw SqlFailure(result, "opening the store: " + text, systemError);
    }
    sqlite3_busy_timeout(m_db, statementWait);
    // A hostile file must not run anything.
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    if (mode == Mode::Salvage)
        // The way to make SQLite accept a file that is shorter than it should be.
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_WRITABLE_SCHEMA, 1, nullptr);
    else
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    if (mode == Mode::ReadAlone || mode == Mode::ReadUnchanging)
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (mode == Mode::ReadAlone)
        // The index of the log then lies in memory.
        sqlite3_exec(m_db, "PRAGMA locking_mode = EXCLUSIVE", nullptr, nullptr, nullptr);
}

Database::~Database()
{
    for (const Cached& cached : m_statements)
        sqlite3_finalize(cached.statement);
    sqlite3_close(m_db);
}

void Database::fail(int sqlCode, const char* doing) const
{
    // Messages name tables and columns, never values; the statement's text has placeholders for those.
    // SQLite does not keep that of every failure.
    const int systemError = sqlite3_system_errno(m_db) != 0 ? sqlite3_system_errno(m_db) : errno;
    throw SqlFailure(sqlCode, std::string(doing) + ": " + sqlite3_errmsg(m_db) + " (" + std::to_string(sqlCode) + ")",
                     systemError);
}

void Database::execute(const char* sql)
{
    const int result = sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        fail(result, sql);
}

int Database::queryInt(const char* sql)
{
    Query query(*this, sql);
    return query.step() ? query.integer(0) : 0;
}

void Database::learnEncoding()
{
    static const std::uint16_t probe = 1;
    const bool littleEndian = *reinterpret_cast<const unsigned char*>(&probe) == 1;
    Query query(*this, "PRAGMA encoding");
    m_nativeText = query.step() && query.bytes(0) == (littleEndian ? "UTF-16le" : "UTF-16be");
}

sqlite3_stmt* Database::prepared(const char* sql)
{
    for (const Cached& cached : m_statements) {
        if (cached.address == sql && cached.sql == sql)
            return cached.statement;
    }
    for (const Cached& cached : m_statements) {
        if (cached.sql == sql)
            return cached.statement;
    }
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(m_db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result != SQLITE_OK)
        fail(result, sql);
    try {
        m_statements.push_back({sql, sql, statement});
    } catch (...) {
        sqlite3_finalize(statement);
        throw;
    }
    return statement;
}

Query& Query::bind(int index, int value)
{
    const int result = sqlite3_bind_int(m_statement, index, value);
    if (result != SQLITE_OK)
        m_db.fail(result, "binding a number");
    return *this;
}

Query& Query::bind(int index, long long value)
{
    const int result = sqlite3_bind_int64(m_statement, index, value);
    if (result != SQLITE_OK)
        m_db.fail(result, "binding a number");
    return *this;
}

Query& Query::bind(int index, std::u16string_view text)
{
    static constexpr char16_t byteOrderMark = 0xfeff;
    static constexpr char16_t swappedMark = 0xfffe;
    // SQLite takes a first byte order mark for its own. Text that begins with one gets a second for SQLite to take.
    if (!text.empty() && (text.front() == byteOrderMark || text.front() == swappedMark)) {
        m_copies.push_back(std::make_unique<std::u16string>(1, byteOrderMark));
        m_copies.back()->append(text);
        text = *m_copies.back();
    }
    // A null pointer would bind NULL, and an empty view may hold one.
    const void* const data = text.empty() ? static_cast<const void*>(u"") : text.data();
    const int result = sqlite3_bind_text64(m_statement, index, static_cast<const char*>(data),
                                           text.size() * sizeof(char16_t), SQLITE_STATIC, SQLITE_UTF16);
    if (result != SQLITE_OK)
        m_db.fail(result, "binding a text");
    return *this;
}

Query& Query::bindOctets(int index, std::string_view octets)
{
    const int result = octets.empty()
                           ? sqlite3_bind_zeroblob(m_statement, index, 0)
                           : sqlite3_bind_blob64(m_statement, index, octets.data(), octets.size(), SQLITE_STATIC);
    if (result != SQLITE_OK)
        m_db.fail(result, "binding octets");
    return *this;
}

bool Query::step()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        m_db.fail(result, sqlite3_sql(m_statement));
    return false;
}

std::u16string_view Query::text(int column)
{
    const void* const data = sqlite3_column_text16(m_statement, column);
    if (data == nullptr) {
        if (sqlite3_column_type(m_statement, column) != SQLITE_NULL)
            throw Failure(ORVA_E_NO_MEMORY, "reading a text");
        return {};
    }
    const auto units = static_cast<std::size_t>(sqlite3_column_bytes16(m_statement, column)) / sizeof(char16_t);
    return {static_cast<const char16_t*>(data), units};
}

std::string_view Query::octetsView(int column)
{
    // By the value, as in addText().
    sqlite3_value* const value = sqlite3_column_value(m_statement, column);
    const auto* const data = static_cast<const char*>(sqlite3_value_blob(value));
    return data != nullptr ? std::string_view(data, static_cast<std::size_t>(sqlite3_value_bytes(value)))
                           : std::string_view();
}

std::string Query::octets(int column)
{
    return std::string(octetsView(column));
}

std::string Query::bytes(int column)
{
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    return text != nullptr ? text : "";
}

void Query::addText(int column, RowBlock& rows)
{
    // Asked once for the value and then at the value, which saves SQLite most of its own work; that is allowed since no
    // other thread uses the connection meanwhile. The store's encoding is the machine's UTF-16, so that a text's bytes
    // are its units; they may lie unaligned.
    sqlite3_value* const value = sqlite3_column_value(m_statement, column);
    if (sqlite3_value_type(value) == SQLITE_TEXT && m_db.hasNativeText()) {
        const void* const data = sqlite3_value_blob(value);
        const auto bytes = static_cast<std::size_t>(sqlite3_value_bytes16(value));
        if (data != nullptr || bytes == 0) {
            rows.addBytes(data, bytes / sizeof(char16_t));
            return;
        }
    }
    rows.addValue(text(column));
}

} // namespace orva
