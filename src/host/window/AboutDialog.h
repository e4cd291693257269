#ifndef LINKHAND_HOST_ABOUTDIALOG_H
#define LINKHAND_HOST_ABOUTDIALOG_H

#include "linkhand/core/ExtendDialog.h"

// What the program is, in which release, and on what terms.
class AboutDialog : public ExtendDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* pParent);
};

#endif // LINKHAND_HOST_ABOUTDIALOG_H
