// Import and export.

#include "orva/orva_sdk.h"

#include <algorithm>
#include <cstring>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/Log.h"
#include "base/Text.h"
#include "contactapps/CardFile.h"
#include "contactapps/ContactApps.h"
#include "csv/ContactRows.h"
#include "csv/LocalText.h"
#include "csv/MadeUpColumns.h"
#include "csv/RowReader.h"
#include "csv/Titles.h"
#include "csv/Writer.h"
#include "memories/LocalMemory.h"
#include "orva/orva_store.h"

using namespace orva;

namespace
{

constexpr int rowsLoggedAtMost = 1000; // a file of nothing but bad rows must not push everything else out of the log
constexpr std::size_t recordsRead = 256;

std::string pathFrom(const unsigned short* path)
{
    require(path);
    std::string file = toUtf8(fromApi(path));
    if (file.empty())
        throw Failure(ORVA_E_ARGUMENT, "empty path");
    return file;
}

// The titles of a file's columns, and of those made up of them.
std::vector<std::string> columnTitles(const std::string& file)
{
    RowReader reader(file, RowReader::Report());
    std::vector<std::string> titles = readTitles(reader);
    const MadeUpColumns madeUp(titles);
    titles.insert(titles.end(), madeUp.titles().begin(), madeUp.titles().end());
    return titles;
}

// The titles of a file, joined as they are handed out.
std::string describeFile(const std::string& file)
{
    std::string joined;
    for (const std::string& title : isCardFile(file) ? cardFileTitles(file) : columnTitles(file))
        joined.append(title).push_back(',');
    joined.pop_back();
    return toLocal(joined);
}

// Logs what became of rows that could not be taken as they are.
class RowLog
{
public:
    explicit RowLog(const char* what) : m_what(what) {}
    ~RowLog()
    {
        if (m_count > rowsLoggedAtMost)
            logFormat("%s: %d more lines with such findings", m_what, m_count - rowsLoggedAtMost);
    }
    RowLog(const RowLog&) = delete;
    RowLog& operator=(const RowLog&) = delete;

    RowReader::Report report()
    {
        return [this](int line, const char* what) {
            if (++m_count <= rowsLoggedAtMost)
                logFormat("%s: line %d: %s", m_what, line, what);
        };
    }

private:
    const char* m_what;
    int m_count = 0;
};

template <typename ReadRows>
long importRows(const char* function, int* map, int memory, void** set, ReadRows&& readRows)
{
    return guarded(function, [&] {
        require(set);
        *set = nullptr;
        require(map);
        const std::shared_ptr<const Profile> profile = memoryFor(memory).profile();
        RowLog log(function);
        auto rows = std::make_unique<RowsRecordSet>(profile, readRows(*profile, log.report()));
        // The client stores them one by one, if it does.
        if (memory == ORVA_MEMORY_LOCAL && rows->count() > ORVA_BACKUP_IMPORT_ABOVE)
            localMemory().store().backUpBeforeChange(ORVA_BACKUP_IMPORT);
        *set = newHandle(std::make_unique<RecordSetHandle>(std::move(rows)));
        return ORVA_OK;
    });
}

void exportRecords(const std::string& file, const int* ids, std::size_t count, Memory& memory)
{
    const std::shared_ptr<const Profile> profile = memory.profile();
    Writer writer(file);
    for (const Field& field : profile->fields())
        writer.column(std::string_view(field.key));
    writer.endRow();
    RowBlock rows;
    for (std::size_t done = 0; done < count; done += recordsRead) {
        memory.readSome(ids + done, std::min(recordsRead, count - done), rows);
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            for (int field = 0; field < rows.fields(); ++field)
                writer.column(rows.value(row, field));
            writer.endRow();
        }
    }
    writer.commit();
}

} // namespace

long ORVA_PBSrv_IsOutlookInstalled(const char* name)
{
    return guarded(__func__, [&] {
        require(name);
        return hasContactApp(name) ? ORVA_OK : ORVA_E_NOT_FOUND;
    });
}

long ORVA_PBSrv_GetFileFieldDescription(const unsigned short* path, char* buffer, int* length)
{
    return guarded(__func__, [&]() -> long {
        require(length);
        const int room = *length;
        *length = 0;
        const std::string titles = describeFile(pathFrom(path));
        *length = static_cast<int>(titles.size()) + 1;
        if (buffer == nullptr)
            return 2;
        if (room < *length)
            throw Failure(ORVA_E_TOO_LONG, "the titles have grown");
        std::memcpy(buffer, titles.c_str(), titles.size() + 1);
        return ORVA_OK;
    });
}

long ORVA_PBSrv_ImportFromFile(const unsigned short* path, int* map, int memory, void** set)
{
    return importRows(__func__, map, memory, set, [&](const Profile& profile, const RowReader::Report& report) {
        const std::string file = pathFrom(path);
        return isCardFile(file) ? readCardFile(file, profile, map, report) : readContacts(file, profile, map, report);
    });
}

long ORVA_PBSrv_ImportFromOutlook(const unsigned short* name, int* map, int memory, void** set)
{
    return importRows(__func__, map, memory, set, [&](const Profile& profile, const RowReader::Report& report) {
        require(name);
        return readContactApp(toUtf8(fromApi(name)), profile, map, report);
    });
}

long ORVA_PBSrv_ExportToFile(const unsigned short* path, int* ids, int count, int memory)
{
    return guarded(__func__, [&] {
        if (count < 0 || (ids == nullptr && count > 0))
            throw Failure(ORVA_E_ARGUMENT, "no identifiers");
        exportRecords(pathFrom(path), ids, static_cast<std::size_t>(count), memoryFor(memory));
        return ORVA_OK;
    });
}
