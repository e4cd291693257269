#ifndef TESTS_SDK_CORE_RAWSTORE_H
#define TESTS_SDK_CORE_RAWSTORE_H

// A look at a store's file past the library.

#include <sqlite3.h>

#include <string>

class RawStore
{
public:
    explicit RawStore(const std::string& folder, const std::string& name = "local")
        : m_path(folder + "/" + name + ".db")
    {
        sqlite3_open_v2(m_path.c_str(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_busy_timeout(m_db, 20000);
    }
    ~RawStore() { sqlite3_close(m_db); }
    RawStore(const RawStore&) = delete;
    RawStore& operator=(const RawStore&) = delete;

    // The first column of the first row, or the error's text.
    std::string ask(const std::string& sql)
    {
        sqlite3_stmt* statement = nullptr;
        std::string answer;
        if (sqlite3_prepare_v2(m_db, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK) {
            const int stepped = sqlite3_step(statement);
            if (stepped == SQLITE_ROW && sqlite3_column_text(statement, 0) != nullptr)
                answer = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
            else if (stepped != SQLITE_ROW && stepped != SQLITE_DONE)
                answer = sqlite3_errmsg(m_db);
        } else {
            answer = sqlite3_errmsg(m_db);
        }
        sqlite3_finalize(statement);
        return answer;
    }

    // "" for a store without a fault.
    std::string findings()
    {
        const std::string integrity = ask("PRAGMA integrity_check");
        if (integrity != "ok")
            return "integrity: " + integrity;
        const std::string keys = ask("PRAGMA foreign_key_check");
        return keys.empty() ? "" : "foreign key: " + keys;
    }

private:
    std::string m_path;
    sqlite3* m_db = nullptr;
};

#endif // TESTS_SDK_CORE_RAWSTORE_H
