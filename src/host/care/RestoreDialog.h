#ifndef LINKHAND_HOST_CARE_RESTOREDIALOG_H
#define LINKHAND_HOST_CARE_RESTOREDIALOG_H

#include <QList>

#include "care/BackupTasks.h"
#include "linkhand/core/ExtendDialog.h"

// Says what a restore brings back and what it takes away, by number and name, and asks. Accepted: it is to be done.
class RestoreDialog : public ExtendDialog
{
    Q_OBJECT

public:
    RestoreDialog(const Backup& backup, const QList<RestoreChange>& listChanges, QWidget* pParent);
};

#endif // LINKHAND_HOST_CARE_RESTOREDIALOG_H
