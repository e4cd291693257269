// Import and export.

#include "orva/orva_sdk.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/ImportFindings.h"
#include "api/Library.h"
#include "api/Paths.h"
#include "base/Text.h"
#include "contactapps/CardFile.h"
#include "contactapps/ContactApps.h"
#include "csv/ContactRows.h"
#include "csv/LocalText.h"
#include "csv/MadeUpColumns.h"
#include "csv/RowReader.h"
#include "csv/Titles.h"
#include "memories/LocalMemory.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"
#include "store/Store.h"
#include "transfer/ContactExport.h"

using namespace orva;

namespace
{

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

// Reads the rows of a source, and remembers what of it is left.
template <typename ReadRows>
std::unique_ptr<RowsRecordSet> readRowsOf(ImportFindings& findings, Memory& memory, ReadRows&& readRows)
{
    const std::shared_ptr<const Profile> profile = memory.profile();
    RowBlock rows = readRows(*profile, [&findings](const Finding& finding) { findings.add(finding); });
    findings.judge(rows, *profile, memory);
    return std::make_unique<RowsRecordSet>(profile, std::move(rows));
}

void publish(std::shared_ptr<ImportFindings> findings)
{
    findings->close();
    if (lastImport().set(std::move(findings)))
        events().post(ORVA_EVENT_IMPORT_FINDINGS);
}

template <typename ReadRows>
long importRows(const char* function, const unsigned short* source, int* map, int memory, void** set,
                ReadRows&& readRows)
{
    return guarded(function, [&] {
        require(set);
        *set = nullptr;
        require(map);
        require(source);
        const auto findings = std::make_shared<ImportFindings>(function, toUtf8(fromApi(source)));
        std::unique_ptr<RowsRecordSet> rows;
        try {
            rows = readRowsOf(*findings, memoryFor(memory), readRows);
        } catch (...) {
            publish(findings);
            throw;
        }
        publish(findings);
        // The client stores them one by one, if it does.
        if (memory == ORVA_MEMORY_LOCAL && rows->count() > ORVA_BACKUP_IMPORT_ABOVE)
            localMemory().store().backUpBeforeChange(ORVA_BACKUP_IMPORT);
        *set = newHandle(std::make_unique<RecordSetHandle>(std::move(rows)));
        return ORVA_OK;
    });
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
    return importRows(__func__, path, map, memory, set, [&](const Profile& profile, const RowReader::Report& report) {
        const std::string file = pathFrom(path);
        return isCardFile(file) ? readCardFile(file, profile, map, report) : readContacts(file, profile, map, report);
    });
}

long ORVA_PBSrv_ImportFromOutlook(const unsigned short* name, int* map, int memory, void** set)
{
    return importRows(__func__, name, map, memory, set, [&](const Profile& profile, const RowReader::Report& report) {
        return readContactApp(toUtf8(fromApi(name)), profile, map, report);
    });
}

long ORVA_PBSrv_ExportToFile(const unsigned short* path, int* ids, int count, int memory)
{
    return guarded(__func__, [&] {
        if (count < 0 || (ids == nullptr && count > 0))
            throw Failure(ORVA_E_ARGUMENT, "no identifiers");
        Store* const groups = memory == ORVA_MEMORY_LOCAL ? &localMemory().store() : nullptr;
        exportRows(pathFrom(path), memoryFor(memory), groups, std::vector<int>(ids, ids + count), GroupsColumn::IfAny);
        return ORVA_OK;
    });
}
