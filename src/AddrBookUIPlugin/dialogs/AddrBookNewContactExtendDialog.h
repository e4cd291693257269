#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKNEWCONTACTEXTENDDIALOG_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKNEWCONTACTEXTENDDIALOG_H

#include <QFlags>
#include <QWidget>

#include "linkhand/core/ExtendDialog.h"

// The window of the contact form, which remembers how the form ended. User-interface thread only.
class AddrBookNewContactExtendDialog : public ExtendDialog
{
    Q_OBJECT

public:
    enum Result { Open = -1, Saved = 0, Cancelled = 1, Closed = 2 };

    AddrBookNewContactExtendDialog(QWidget* pParent, QFlags<Qt::WindowType> flags);
    ~AddrBookNewContactExtendDialog() override;

    int m_iResult; // a Result; Open also for a dialog left with Escape

protected:
    // Leaves the event accepted, so that the window goes, and does not reject as a dialog would.
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(AddrBookNewContactExtendDialog)
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKNEWCONTACTEXTENDDIALOG_H
