#ifndef LINKHAND_HOST_HELPDIALOG_H
#define LINKHAND_HOST_HELPDIALOG_H

#include <QStringList>

#include "linkhand/core/ExtendDialog.h"

// All keys of the program, as they are in the language in use.
class HelpDialog : public ExtendDialog
{
    Q_OBJECT

public:
    // What the pages are called, in the order of their keys.
    HelpDialog(const QStringList& lstPages, QWidget* pParent);
};

#endif // LINKHAND_HOST_HELPDIALOG_H
