#include "sync/SyncReport.h"

#include "orva/orva_sync.h"

namespace orva
{

namespace
{

const char* textOf(int reason)
{
    switch (reason) {
    case ORVA_SYNC_REASON_LINK:
        return "a symbolic link is not followed";
    case ORVA_SYNC_REASON_NO_FILE:
        return "it is no plain file";
    case ORVA_SYNC_REASON_LARGE:
        return "it is larger than 5 MB";
    case ORVA_SYNC_REASON_UNREADABLE:
        return "it cannot be read";
    case ORVA_SYNC_REASON_NO_CARD:
        return "it does not hold one vCard";
    case ORVA_SYNC_REASON_EMPTY:
        return "it has nothing that a field is meant for";
    case ORVA_SYNC_REASON_COPY:
        return "another file has the same UID";
    case ORVA_SYNC_REASON_LARGE_CARD:
        return "its card would be larger than 5 MB";
    case ORVA_SYNC_REASON_FULL:
        return "the phonebook is full";
    default:
        return "";
    }
}

} // namespace

SyncEvent leftFor(int reason)
{
    SyncEvent event;
    event.kind = SyncEvent::Kind::Left;
    event.reason = reason;
    event.what = textOf(reason);
    return event;
}

} // namespace orva
