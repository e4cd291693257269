#include "contactapps/DatabaseCopy.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <sqlite3.h>

#include "base/Failure.h"

namespace orva
{

namespace
{

constexpr std::uint64_t octetsAtMost = 512U << 20;
constexpr const char* copyName = "/copy.sqlite";
constexpr std::array<const char*, 3> suffixes = {"", "-wal", "-journal"};

class File
{
public:
    File(const std::string& path, int flags) : m_file(open(path.c_str(), flags | O_CLOEXEC, 0600)) {}
    ~File()
    {
        if (m_file >= 0)
            close(m_file);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    int get() const { return m_file; }

private:
    int m_file;
};

// What changes when a program writes to its file.
struct Stamp {
    off_t size = -1;
    timespec changed = {0, 0};
};

std::array<Stamp, suffixes.size()> stampsOf(const std::string& path)
{
    std::array<Stamp, suffixes.size()> stamps;
    for (std::size_t i = 0; i < suffixes.size(); ++i) {
        struct stat state = {};
        if (stat((path + suffixes[i]).c_str(), &state) == 0)
            stamps[i] = {state.st_size, state.st_mtim};
    }
    return stamps;
}

bool same(const std::array<Stamp, suffixes.size()>& a, const std::array<Stamp, suffixes.size()>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), [](const Stamp& x, const Stamp& y) {
        return x.size == y.size && x.changed.tv_sec == y.changed.tv_sec && x.changed.tv_nsec == y.changed.tv_nsec;
    });
}

void copyFile(const std::string& from, const std::string& to)
{
    const File source(from, O_RDONLY | O_NONBLOCK);
    const File target(to, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
    if (source.get() < 0 || target.get() < 0)
        throw Failure(ORVA_E_STORE, "cannot copy a contacts file");
    std::vector<char> piece(256U << 10);
    std::uint64_t total = 0;
    ssize_t got = 0;
    while ((got = read(source.get(), piece.data(), piece.size())) > 0) {
        total += static_cast<std::uint64_t>(got);
        if (total > octetsAtMost)
            throw Failure(ORVA_E_TOO_LONG, "contacts file too long");
        if (write(target.get(), piece.data(), static_cast<std::size_t>(got)) != got)
            throw Failure(ORVA_E_STORE, "cannot copy a contacts file");
    }
    if (got < 0)
        throw Failure(ORVA_E_STORE, "cannot copy a contacts file");
}

std::string temporaryFolder()
{
    const char* base = std::getenv("TMPDIR");
    std::string name = std::string(base != nullptr && base[0] == '/' ? base : "/tmp") + "/contacts-XXXXXX";
    if (mkdtemp(name.data()) == nullptr)
        throw Failure(ORVA_E_STORE, "no folder for a copy");
    return name;
}

} // namespace

bool isReadableFile(const std::string& path)
{
    struct stat state = {};
    return stat(path.c_str(), &state) == 0 && S_ISREG(state.st_mode) && access(path.c_str(), R_OK) == 0;
}

DatabaseCopy::DatabaseCopy(const std::string& path) : m_folder(temporaryFolder())
{
    try {
        if (!isReadableFile(path))
            throw Failure(ORVA_E_STORE, "no contacts file");
        copyFiles(path);
        // Not read-only: a copied journal has to be played into the copy.
        if (sqlite3_open_v2((m_folder + copyName).c_str(), &m_database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            throw Failure(ORVA_E_STORE, "cannot open the copy of a contacts file");
        sqlite3_db_config(m_database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        sqlite3_db_config(m_database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    } catch (...) {
        sqlite3_close(m_database);
        removeFiles();
        throw;
    }
}

DatabaseCopy::~DatabaseCopy()
{
    sqlite3_close(m_database);
    removeFiles();
}

// File and journal belong together, so they are copied again if the program has written meanwhile.
void DatabaseCopy::copyFiles(const std::string& path) const
{
    for (int attempt = 0; attempt < 5; ++attempt) {
        const auto before = stampsOf(path);
        for (std::size_t i = 0; i < suffixes.size(); ++i) {
            const std::string to = m_folder + copyName + suffixes[i];
            unlink(to.c_str());
            if (before[i].size >= 0)
                copyFile(path + suffixes[i], to);
        }
        if (same(before, stampsOf(path)))
            return;
    }
}

void DatabaseCopy::removeFiles() const
{
    for (const char* suffix : {"", "-wal", "-journal", "-shm"})
        unlink((m_folder + copyName + suffix).c_str());
    rmdir(m_folder.c_str());
}

void DatabaseCopy::forEach(const std::string& sql, const std::function<void(const Columns&)>& row) const
{
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(m_database, sql.c_str(), -1, &raw, nullptr) != SQLITE_OK)
        throw Failure(ORVA_E_FORMAT, "a contacts file of another layout");
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> statement(raw, sqlite3_finalize);
    const Columns columns = [raw](int column) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw, column));
        return text == nullptr ? std::string_view()
                               : std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(raw, column)));
    };
    int code = SQLITE_OK;
    while ((code = sqlite3_step(raw)) == SQLITE_ROW)
        row(columns);
    if (code != SQLITE_DONE)
        throw Failure(ORVA_E_STORE, "a contacts file that cannot be read");
}

} // namespace orva
