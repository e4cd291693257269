#ifndef BENCHMARKS_SDK_BARESTORE_H
#define BENCHMARKS_SDK_BARESTORE_H

// What one would write with SQLite alone: the yardstick for the library.

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace bare
{

constexpr int fields = 6;
using Row = std::vector<std::u16string>;

class Store
{
public:
    explicit Store(const std::string& path, bool fresh = false)
    {
        check(sqlite3_open(path.c_str(), &m_db));
        if (!fresh)
            return;
        run("PRAGMA encoding = 'UTF-16'");
        run("PRAGMA journal_mode = WAL");
        run("PRAGMA synchronous = FULL");
        run("CREATE TABLE records (id INTEGER PRIMARY KEY, name TEXT, mobile TEXT, office_phone TEXT, home_phone TEXT, "
            "email TEXT, remark TEXT)");
    }
    ~Store()
    {
        sqlite3_finalize(m_insert);
        sqlite3_close(m_db);
    }
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    void run(const char* sql) { check(sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr)); }

    void insert(const Row& row)
    {
        if (m_insert == nullptr)
            check(sqlite3_prepare_v2(m_db,
                                     "INSERT INTO records (name, mobile, office_phone, home_phone, email, remark) "
                                     "VALUES (?, ?, ?, ?, ?, ?)",
                                     -1, &m_insert, nullptr));
        for (int i = 0; i < fields; ++i) {
            const std::u16string& value = row[static_cast<std::size_t>(i)];
            sqlite3_bind_text16(m_insert, i + 1, value.data(), static_cast<int>(value.size() * 2), SQLITE_STATIC);
        }
        sqlite3_step(m_insert);
        check(sqlite3_reset(m_insert));
    }

    // Every value of every row in a fresh buffer, as clients get them.
    long walk()
    {
        sqlite3_stmt* select = nullptr;
        check(sqlite3_prepare_v2(
            m_db, "SELECT id, name, mobile, office_phone, home_phone, email, remark FROM records ORDER BY id", -1,
            &select, nullptr));
        long units = 0;
        while (sqlite3_step(select) == SQLITE_ROW) {
            units += sqlite3_column_int(select, 0) != 0 ? 1 : 0;
            for (int i = 1; i <= fields; ++i) {
                const void* const text = sqlite3_column_text16(select, i);
                const auto length = static_cast<std::size_t>(sqlite3_column_bytes16(select, i)) / 2;
                auto* const buffer = new unsigned short[length + 1];
                std::memcpy(buffer, text, length * 2);
                buffer[length] = 0;
                units += static_cast<long>(length);
                delete[] buffer;
            }
        }
        check(sqlite3_finalize(select));
        return units;
    }

private:
    void check(int result)
    {
        if (result == SQLITE_OK)
            return;
        std::fprintf(stderr, "sqlite: %s\n", sqlite3_errmsg(m_db));
        std::exit(1);
    }

    sqlite3* m_db = nullptr;
    sqlite3_stmt* m_insert = nullptr;
};

} // namespace bare

#endif // BENCHMARKS_SDK_BARESTORE_H
