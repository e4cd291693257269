// Import and export.

#include "orva/orva_sdk.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/ImportFindings.h"
#include "api/Library.h"
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
#include "orva/orva_care.h"
#include "orva/orva_store.h"
#include "store/Store.h"
#include "vcard/GroupNames.h"

using namespace orva;

namespace
{

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

// What stands in the column of groups, by the identifiers of those that are in one.
std::map<int, std::vector<std::string>> groupsByRecord(Store& store)
{
    std::map<int, std::string> paths;
    std::map<int, std::vector<std::string>> byRecord;
    const std::shared_ptr<const std::vector<StoredGroup>> groups = store.groups();
    // In the order of their identifiers, of which a parent's is the smaller one.
    for (const StoredGroup& group : *groups) {
        const auto parent = paths.find(group.parent);
        const std::string& path = paths[group.id] =
            (parent == paths.end() ? "" : parent->second + "/") + toUtf8(group.name);
        for (const int member : store.members(group.id))
            byRecord[member].push_back(path);
    }
    return byRecord;
}

void exportRecords(const std::string& file, const int* ids, std::size_t count, Memory& memory)
{
    const std::shared_ptr<const Profile> profile = memory.profile();
    Writer writer(file);
    std::map<int, std::vector<std::string>> groups;
    if (&memory == &localMemory())
        groups = groupsByRecord(localMemory().store());
    const bool grouped = std::any_of(ids, ids + count, [&groups](int id) { return groups.count(id) != 0; });
    for (const Field& field : profile->fields())
        writer.column(std::string_view(field.key));
    if (grouped)
        writer.column(std::string_view("Groups"));
    writer.endRow();
    RowBlock rows;
    for (std::size_t done = 0; done < count; done += recordsRead) {
        memory.readSome(ids + done, std::min(recordsRead, count - done), rows);
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            for (int field = 0; field < rows.fields(); ++field)
                writer.column(rows.value(row, field));
            if (grouped)
                writer.column(std::string_view(joinGroups(groups[rows.id(row)])));
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
        exportRecords(pathFrom(path), ids, static_cast<std::size_t>(count), memoryFor(memory));
        return ORVA_OK;
    });
}

long ORVA_Care_GetFindings(ORVA_FINDING** findings, int* count, int* total, unsigned short** source)
{
    return guarded(__func__, [&] {
        require(findings);
        require(count);
        *findings = nullptr;
        *count = 0;
        const std::shared_ptr<const ImportFindings> last = lastImport().get();
        std::unique_ptr<ORVA_FINDING[]> copies;
        if (last && !last->kept().empty()) {
            copies.reset(new ORVA_FINDING[last->kept().size()]);
            std::copy(last->kept().begin(), last->kept().end(), copies.get());
        }
        if (source != nullptr)
            *source = toApi(fromUtf8(last ? last->source() : std::string()));
        if (total != nullptr)
            *total = last ? last->total() : 0;
        *count = last ? static_cast<int>(last->kept().size()) : 0;
        *findings = copies.release();
        return ORVA_OK;
    });
}

long ORVA_Care_FindingsRelease(ORVA_FINDING** findings)
{
    return guarded(__func__, [&] {
        require(findings);
        delete[] * findings;
        *findings = nullptr;
        return ORVA_OK;
    });
}
