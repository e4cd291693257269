#ifndef SDK_CONTACTAPPS_DATABASECOPY_H
#define SDK_CONTACTAPPS_DATABASECOPY_H

#include <functional>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

namespace orva
{

// Whether a path names a regular file that may be read.
bool isReadableFile(const std::string& path);

// A private copy of another program's SQLite file with its journal, taken so that the program is neither locked nor
// disturbed, and deleted with this object. Failures are Failure(ORVA_E_STORE), ORVA_E_TOO_LONG for a file beyond
// 512 MB.
class DatabaseCopy
{
public:
    explicit DatabaseCopy(const std::string& path);
    ~DatabaseCopy();
    DatabaseCopy(const DatabaseCopy&) = delete;
    DatabaseCopy& operator=(const DatabaseCopy&) = delete;

    // Gives the columns of one result row; null is empty. Valid during the call.
    using Columns = std::function<std::string_view(int column)>;

    // Runs a query and calls back for each row.
    void forEach(const std::string& sql, const std::function<void(const Columns&)>& row) const;

private:
    void copyFiles(const std::string& path) const;
    void removeFiles() const;

    std::string m_folder;
    sqlite3* m_database = nullptr;
};

} // namespace orva

#endif // SDK_CONTACTAPPS_DATABASECOPY_H
