// Check, backup and restore of the stores.

#include "orva/orva_store.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "api/Boundary.h"
#include "api/Library.h"
#include "base/Files.h"
#include "base/Log.h"
#include "base/Text.h"
#include "memories/ModemMemory.h"
#include "store/Store.h"

using namespace orva;

namespace
{

// SQLite takes no path with a symbolic link in it; only the last part may not be one.
std::string plainPath(const unsigned short* path)
{
    const std::string given = toUtf8(fromApi(path));
    if (given.empty() || given.back() == '/')
        throw Failure(ORVA_E_ARGUMENT, "not the name of a file");
    return resolveFolderOf(given);
}

std::vector<std::string> findingsOf(int memory)
{
    std::vector<std::string> found = storeFor(memory).check();
    for (const std::string& line : found)
        logFormat("check of memory %d: %s", memory, line.c_str());
    return found;
}

// The file of an automatic backup.
std::string backupNamed(Store& store, const unsigned short* name)
{
    require(name);
    const std::string wanted = toUtf8(fromApi(name));
    for (const BackupFile& file : store.backups())
        if (file.name == wanted)
            return file.path;
    throw Failure(ORVA_E_NOT_FOUND, "no such backup");
}

} // namespace

long ORVA_Store_Check(int memory, int* findings)
{
    return guarded(__func__, [&] {
        require(findings);
        *findings = static_cast<int>(findingsOf(memory).size());
        return ORVA_OK;
    });
}

long ORVA_Store_CheckInWords(int memory, int* findings, unsigned short** lines)
{
    return guarded(__func__, [&] {
        require(findings);
        require(lines);
        const std::vector<std::string> found = findingsOf(memory);
        std::string text;
        for (const std::string& line : found)
            text.append(text.empty() ? "" : "\n").append(line);
        *lines = toApi(fromUtf8(text));
        *findings = static_cast<int>(found.size());
        return ORVA_OK;
    });
}

long ORVA_Store_GetDamage(int memory, int once, ORVA_STORE_DAMAGE* damage)
{
    return guarded(__func__, [&]() -> long {
        require(damage);
        const std::optional<Damage> found = storeFor(memory).damage(once != 0);
        if (!found)
            return ORVA_E_NOT_FOUND;
        std::unique_ptr<unsigned short[]> file(toApi(fromUtf8(found->file)));
        damage->what = toApi(fromUtf8(found->what));
        damage->file = file.release();
        damage->time = found->time;
        damage->records = found->records;
        damage->groups = found->groups;
        return ORVA_OK;
    });
}

long ORVA_Store_GetForeignChanges(int memory, int* count)
{
    return guarded(__func__, [&] {
        require(count);
        *count = modemMemory(memory) != nullptr ? 0 : anyStore(memory).foreignChanges();
        return ORVA_OK;
    });
}

long ORVA_Store_GetAccess(int memory, long* code)
{
    return guarded(__func__, [&] {
        require(code);
        // What a modem does not take it says for each contact.
        *code = modemMemory(memory) != nullptr ? ORVA_OK : anyStore(memory).access();
        return ORVA_OK;
    });
}

long ORVA_Store_Backup(int memory, const unsigned short* path)
{
    return guarded(__func__, [&] {
        if (ModemMemory* const behindModem = modemMemory(memory))
            behindModem->backup(plainPath(path));
        else
            storeFor(memory).backup(plainPath(path));
        return ORVA_OK;
    });
}

long ORVA_Store_Restore(int memory, const unsigned short* path)
{
    return guarded(__func__, [&] {
        const std::string file = plainPath(path);
        if (!fileExists(file))
            throw Failure(ORVA_E_NOT_FOUND, "no such file");
        if (ModemMemory* const behindModem = modemMemory(memory))
            behindModem->restore(file);
        else
            storeFor(memory).restore(file);
        return ORVA_OK;
    });
}

long ORVA_Store_GetBackups(int memory, ORVA_STORE_BACKUP** backups, int* count)
{
    return guarded(__func__, [&] {
        require(backups);
        require(count);
        *backups = nullptr;
        *count = 0;
        const std::vector<BackupFile> files = anyStore(memory).backups();
        if (files.empty())
            return ORVA_OK;
        std::unique_ptr<ORVA_STORE_BACKUP[]> made(new ORVA_STORE_BACKUP[files.size()]());
        for (std::size_t i = 0; i < files.size(); ++i) {
            const std::u16string name = fromUtf8(files[i].name);
            made[i].time = files[i].time;
            made[i].reason = files[i].reason;
            made[i].records = files[i].records();
            std::copy_n(name.begin(), std::min(name.size(), std::size(made[i].name) - 1), made[i].name);
        }
        *backups = made.release();
        *count = static_cast<int>(files.size());
        return ORVA_OK;
    });
}

long ORVA_Store_BackupsRelease(int memory, ORVA_STORE_BACKUP** backups)
{
    return guarded(__func__, [&] {
        anyStore(memory);
        require(backups);
        delete[] * backups;
        *backups = nullptr;
        return ORVA_OK;
    });
}

long ORVA_Store_RestoreBackup(int memory, const unsigned short* name)
{
    return guarded(__func__, [&] {
        Store& store = storeFor(memory);
        store.restore(backupNamed(store, name));
        return ORVA_OK;
    });
}

long ORVA_Store_CheckBackup(int memory, const unsigned short* name)
{
    return guarded(__func__, [&] {
        Store& store = storeFor(memory);
        store.checkBackup(backupNamed(store, name));
        return ORVA_OK;
    });
}

long ORVA_Store_CompareBackup(int memory, const unsigned short* name, ORVA_STORE_DIFFERENCE** entries, int* count)
{
    return guarded(__func__, [&] {
        require(entries);
        require(count);
        *entries = nullptr;
        *count = 0;
        Store& store = storeFor(memory);
        const std::vector<Difference> found = store.compareBackup(backupNamed(store, name));
        if (found.empty())
            return ORVA_OK;
        std::vector<std::unique_ptr<unsigned short[]>> names;
        names.reserve(found.size());
        for (const Difference& difference : found)
            names.emplace_back(toApi(difference.name));
        *entries = new ORVA_STORE_DIFFERENCE[found.size()];
        for (std::size_t i = 0; i < found.size(); ++i)
            (*entries)[i] = {found[i].kind, names[i].release()};
        *count = static_cast<int>(found.size());
        return ORVA_OK;
    });
}

long ORVA_Store_DifferencesRelease(int memory, ORVA_STORE_DIFFERENCE** entries, int count)
{
    return guarded(__func__, [&] {
        anyStore(memory);
        require(entries);
        for (int i = 0; *entries != nullptr && i < count; ++i)
            delete[](*entries)[i].name;
        delete[] * entries;
        *entries = nullptr;
        return ORVA_OK;
    });
}

long ORVA_Store_KeepBackup(int memory, int reason)
{
    return guarded(__func__, [&] {
        if (reason < ORVA_BACKUP_DAILY || reason > ORVA_BACKUP_ASKED)
            throw Failure(ORVA_E_ARGUMENT, "no such reason");
        storeFor(memory).keepBackup(reason);
        return ORVA_OK;
    });
}

long ORVA_Store_KeepDailyBackup(int memory, int* made)
{
    return guarded(__func__, [&] {
        require(made);
        *made = storeFor(memory).keepDailyBackup() ? 1 : 0;
        return ORVA_OK;
    });
}

long ORVA_Store_TakeLoss(int memory, long* code, int* records)
{
    return guarded(__func__, [&] {
        require(code);
        require(records);
        // What a modem did not take was told by the write itself.
        const Loss loss = modemMemory(memory) != nullptr ? Loss() : anyStore(memory).takeLoss();
        *code = loss.code;
        *records = loss.records;
        return ORVA_OK;
    });
}
