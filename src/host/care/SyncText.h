#ifndef LINKHAND_HOST_CARE_SYNCTEXT_H
#define LINKHAND_HOST_CARE_SYNCTEXT_H

#include <QString>

#include "care/SyncTasks.h"

// Words for syncs.
namespace SyncText
{

// What a code of a sync, or of setting one up, means to the user.
QString Explain(long nCode);

// Why a file or a contact was left, by ORVA_SYNC_REASON_*; empty for none that is known here.
QString Reason(int iReason);

// In one line what became of a sync.
QString Told(const SyncOutcome& outcome);

// All of the last one, as HTML.
QString Html(const SyncOutcome& outcome, bool bSetUp);

} // namespace SyncText

#endif // LINKHAND_HOST_CARE_SYNCTEXT_H
