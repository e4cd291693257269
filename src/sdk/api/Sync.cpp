// The phonebook and a folder of vCards.

#include "orva/orva_sync.h"

#include <unistd.h>

#include <chrono>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <thread>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "api/SyncRuns.h"
#include "base/DataFolder.h"
#include "base/Files.h"
#include "base/Log.h"
#include "base/SharedLock.h"
#include "base/Text.h"
#include "care/NumberKey.h"
#include "memories/LocalMemory.h"
#include "orva/orva_store.h"
#include "sync/CardFiles.h"
#include "sync/Synchroniser.h"

using namespace orva;

namespace
{

constexpr std::chrono::milliseconds betweenTries(20);

// Shared by all who hold the phonebook, and a sync's alone.
struct HoldHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::SyncHold;
    std::unique_ptr<SharedLock> lock;
};

template <typename Try>
void waitFor(int wait, const GoOn& goOn, const Try& tryLock)
{
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::milliseconds(wait);
    while (!tryLock()) {
        if (goOn && !goOn())
            throw Failure(ORVA_E_CANCELLED, "broken off while waiting");
        if (std::chrono::steady_clock::now() >= giveUp)
            throw Failure(ORVA_E_BUSY, "a sync is under way, or the phonebook is held");
        std::this_thread::sleep_for(betweenTries);
    }
}

std::unique_ptr<SharedLock> syncLock()
{
    return std::make_unique<SharedLock>(resolvedFolder(dataFolder()) + "/local.sync");
}

// The place of an event; nothing behind the last.
std::optional<std::size_t> placeOf(const SyncResultHandle& held, int index)
{
    if (index < 0)
        throw Failure(ORVA_E_ARGUMENT, "an event below 0");
    const auto place = static_cast<std::size_t>(index);
    return place < held.texts.size() ? std::make_optional(place) : std::nullopt;
}

// Without symbolic links where it is there, and from the root on in any case.
std::string folderPath(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    if (path.empty())
        throw Failure(ORVA_E_ARGUMENT, "no folder is named");
    if (fileExists(path))
        return resolvedFolder(path);
    if (path.front() == '/')
        return path;
    const std::unique_ptr<char, decltype(&std::free)> here(::getcwd(nullptr, 0), &std::free);
    return std::string(here ? here.get() : ".") + "/" + path;
}

SyncSettings settingsFor(Store& store, int options)
{
    SyncSettings settings;
    settings.force = (options & ORVA_SYNC_FORCE) != 0;
    settings.dryRun = (options & ORVA_SYNC_DRY_RUN) != 0;
    settings.capacity = localMemory().capacity();
    settings.region = chosenRegion(dataFolder());
    settings.backUp = [&store] {
        try {
            if (store.size() > 0)
                store.keepBackup(ORVA_BACKUP_IMPORT);
        } catch (const Failure& failure) {
            logFormat("no backup before a sync: %s", failure.what());
        }
    };
    return settings;
}

} // namespace

SyncReport orva::synchronise(Store& store, const std::string& folder, int options, int wait, const GoOn& goOn)
{
    const std::string path = folderPath(folder);
    const std::unique_ptr<SharedLock> lock = syncLock();
    SyncReport report;
    waitFor(wait, goOn, [&lock] { return lock->tryAlone(); });
    // The folder may be another phonebook's as well.
    waitFor(wait, goOn, [&] {
        try {
            report = Synchroniser(store, path, settingsFor(store, options)).run();
            return true;
        } catch (const Failure& failure) {
            if (failure.code() != ORVA_E_BUSY)
                throw;
            return false;
        }
    });
    return report;
}

void* orva::newSyncResult(SyncRun run)
{
    auto made = std::make_unique<SyncResultHandle>();
    made->run = std::move(run);
    made->said = fromUtf8(made->run.said);
    for (const SyncEvent& event : made->run.report.events)
        made->texts.push_back({fromUtf8(event.file), fromUtf8(event.name), fromUtf8(event.what)});
    return newHandle(std::move(made));
}

long ORVA_Sync_Run(int memory, const unsigned short* folder, int options, int wait, void** result)
{
    return guarded(__func__, [&] {
        require(folder);
        require(result);
        *result = nullptr;
        if ((options & ~(ORVA_SYNC_FORCE | ORVA_SYNC_DRY_RUN)) != 0 || wait < 0)
            throw Failure(ORVA_E_ARGUMENT, "no such option");
        SyncRun run;
        run.report = synchronise(groupStore(memory), toUtf8(fromApi(folder)), options, wait, GoOn());
        run.time = static_cast<long long>(std::time(nullptr));
        *result = newSyncResult(std::move(run));
        return ORVA_OK;
    });
}

long ORVA_Sync_Result_GetCounts(void* result, ORVA_SYNC_COUNTS* counts)
{
    return guarded(__func__, [&] {
        require(counts);
        const SyncReport& report = fromHandle<SyncResultHandle>(result).run.report;
        counts->added_here = report.addedHere;
        counts->changed_here = report.changedHere;
        counts->deleted_here = report.deletedHere;
        counts->held_here = report.heldHere;
        counts->added_there = report.addedThere;
        counts->changed_there = report.changedThere;
        counts->deleted_there = report.deletedThere;
        counts->held_there = report.heldThere;
        counts->events = static_cast<int>(report.events.size());
        return ORVA_OK;
    });
}

long ORVA_Sync_Result_GetEvent(void* result, int index, ORVA_SYNC_EVENT* event)
{
    return guarded(__func__, [&]() -> long {
        require(event);
        const auto& held = fromHandle<SyncResultHandle>(result);
        const std::optional<std::size_t> place = placeOf(held, index);
        if (!place)
            return ORVA_E_END;
        const SyncEvent& found = held.run.report.events[*place];
        const SyncResultHandle::Texts& texts = held.texts[*place];
        event->kind = found.kind == SyncEvent::Kind::Conflict ? ORVA_SYNC_CONFLICT : ORVA_SYNC_LEFT;
        event->record = found.record;
        event->here_won = found.hereWon ? 1 : 0;
        event->file = reinterpret_cast<const unsigned short*>(texts.file.c_str());
        event->name = reinterpret_cast<const unsigned short*>(texts.name.c_str());
        event->what = reinterpret_cast<const unsigned short*>(texts.what.c_str());
        return ORVA_OK;
    });
}

long ORVA_Sync_Result_GetReason(void* result, int index, int* reason)
{
    return guarded(__func__, [&]() -> long {
        require(reason);
        const auto& held = fromHandle<SyncResultHandle>(result);
        const std::optional<std::size_t> place = placeOf(held, index);
        if (!place)
            return ORVA_E_END;
        *reason = held.run.report.events[*place].reason;
        return ORVA_OK;
    });
}

long ORVA_Sync_Result_Release(void* result)
{
    return guarded(__func__, [&] {
        releaseHandle<SyncResultHandle>(result);
        return ORVA_OK;
    });
}

long ORVA_Sync_MergeCards(const unsigned short* file, const unsigned short* other, const unsigned short* before)
{
    return guarded(__func__, [&] {
        require(file);
        require(other);
        const std::string folder = before == nullptr ? std::string() : toUtf8(fromApi(before));
        mergeCardFiles(toUtf8(fromApi(file)), toUtf8(fromApi(other)), folder, chosenRegion(dataFolder()));
        return ORVA_OK;
    });
}

long ORVA_Sync_Hold(int memory, int wait, void** hold)
{
    return guarded(__func__, [&] {
        require(hold);
        *hold = nullptr;
        if (wait < 0)
            throw Failure(ORVA_E_ARGUMENT, "a time below 0");
        groupStore(memory);
        auto made = std::make_unique<HoldHandle>();
        made->lock = syncLock();
        waitFor(wait, GoOn(), [&made] { return made->lock->tryTogether(); });
        *hold = newHandle(std::move(made));
        return ORVA_OK;
    });
}

long ORVA_Sync_Hold_Release(void* hold)
{
    return guarded(__func__, [&] {
        releaseHandle<HoldHandle>(hold);
        return ORVA_OK;
    });
}
