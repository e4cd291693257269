#ifndef SDK_SYNC_SYNCREPORT_H
#define SDK_SYNC_SYNCREPORT_H

#include <string>
#include <vector>

namespace orva
{

// Something about one contact that the user should know. UTF-8.
struct SyncEvent {
    enum class Kind { Conflict = 1, Left = 2 };
    Kind kind = Kind::Left;
    int record = 0;   // here; 0 for none
    std::string file; // there; empty for none
    std::string name; // of the contact, where it is known
    std::string what; // the fields of a conflict, with ";" between; or why something was left
    bool hereWon = false;
    int reason = 0; // why something was left: ORVA_SYNC_REASON_*
};

// Something that was left, with its reason in English.
SyncEvent leftFor(int reason);

// What a sync has done, or would do.
struct SyncReport {
    int addedHere = 0;
    int changedHere = 0;
    int deletedHere = 0;
    int addedThere = 0;
    int changedThere = 0;
    int deletedThere = 0;
    int heldHere = 0; // deletions that were not made, since there were so many
    int heldThere = 0;
    std::vector<SyncEvent> events;
};

} // namespace orva

#endif // SDK_SYNC_SYNCREPORT_H
