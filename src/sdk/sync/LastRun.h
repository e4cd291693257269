#ifndef SDK_SYNC_LASTRUN_H
#define SDK_SYNC_LASTRUN_H

#include <optional>
#include <string>

#include "sync/SyncReport.h"

namespace orva
{

// What became of a run.
struct SyncRun {
    long long time = 0; // its end; seconds since 1970
    long code = 0;
    bool offline = false; // the server could not be reached
    std::string said;     // by vdirsyncer, where it failed
    SyncReport report;
};

// As a text, and back; nothing for what is none. Of many events the first are kept.
std::string toLines(const SyncRun& run);
std::optional<SyncRun> runFromLines(const std::string& lines);

} // namespace orva

#endif // SDK_SYNC_LASTRUN_H
