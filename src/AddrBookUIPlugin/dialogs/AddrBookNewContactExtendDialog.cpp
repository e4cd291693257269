#include "dialogs/AddrBookNewContactExtendDialog.h"

AddrBookNewContactExtendDialog::AddrBookNewContactExtendDialog(QWidget* pParent, QFlags<Qt::WindowType> flags)
    : ExtendDialog(pParent, flags, WIDGET_TYPE_DIALOG), m_iResult(Open)
{
}

AddrBookNewContactExtendDialog::~AddrBookNewContactExtendDialog() {}

void AddrBookNewContactExtendDialog::closeEvent(QCloseEvent*)
{
    m_iResult = Closed;
}
