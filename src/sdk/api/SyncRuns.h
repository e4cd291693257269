#ifndef SDK_API_SYNCRUNS_H
#define SDK_API_SYNCRUNS_H

#include <string>
#include <vector>

#include "api/Handles.h"
#include "base/Program.h"
#include "sync/LastRun.h"

namespace orva
{

class Store;

// The result of a sync.
struct SyncResultHandle final : HandleObject {
    static constexpr HandleKind kind = HandleKind::SyncResult;
    struct Texts {
        std::u16string file;
        std::u16string name;
        std::u16string what;
    };
    SyncRun run;
    std::vector<Texts> texts; // of its events
    std::u16string said;
};

void* newSyncResult(SyncRun run);

// One sync of a store with a folder. Failure(ORVA_E_BUSY) when it has waited for so many milliseconds, or
// ORVA_E_CANCELLED if it is not to go on with that.
SyncReport synchronise(Store& store, const std::string& folder, int options, int wait, const GoOn& goOn);

} // namespace orva

#endif // SDK_API_SYNCRUNS_H
