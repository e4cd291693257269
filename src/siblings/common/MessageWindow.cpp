#include "common/MessageWindow.h"

#include "common/MessageEditor.h"

MessageWindow::MessageWindow(MessageEditor* pEditor, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG), m_pEditor(pEditor)
{
    setAttribute(Qt::WA_DeleteOnClose);
    AddMainWidget(m_pEditor);
    connect(m_pEditor, SIGNAL(sent()), this, SLOT(close()));
    connect(m_pEditor, SIGNAL(closed()), this, SLOT(close()));
}

// Every way of closing ends here.
void MessageWindow::reject()
{
    if (m_pEditor->MayClose()) {
        ExtendDialog::reject();
    }
}
