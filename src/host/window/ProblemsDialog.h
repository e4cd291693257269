#ifndef LINKHAND_HOST_PROBLEMSDIALOG_H
#define LINKHAND_HOST_PROBLEMSDIALOG_H

#include "linkhand/core/ExtendDialog.h"
#include "text/Problem.h"

// Lists what did not work, each with its reason.
class ProblemsDialog : public ExtendDialog
{
    Q_OBJECT

public:
    ProblemsDialog(const ProblemList& problems, QWidget* pParent);
};

#endif // LINKHAND_HOST_PROBLEMSDIALOG_H
