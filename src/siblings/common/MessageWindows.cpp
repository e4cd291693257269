#include "common/MessageWindows.h"

#include "common/MessageEditor.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/ExtendDialog.h"

MessageWindows::MessageWindows(const QString& strPlugin, HostMessageKind enKind)
    : m_strPlugin(strPlugin), m_enKind(enKind)
{
}

MessageWindows::~MessageWindows()
{
    foreach (const QPointer<ExtendDialog>& pWindow, m_listWindows) {
        delete pWindow.data();
    }
}

void MessageWindows::Open(const QStringList& lstNumbers, const QString& strText)
{
    ExtendDialog* pWindow =
        new ExtendDialog(CommonUtils::GetMainWindow(), Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    pWindow->setObjectName(m_strPlugin + QLatin1String("_window"));
    pWindow->setAttribute(Qt::WA_DeleteOnClose);
    MessageEditor* pEditor = new MessageEditor(m_strPlugin, m_enKind);
    pEditor->SetRecipients(lstNumbers);
    pEditor->SetText(strText);
    pWindow->AddMainWidget(pEditor);
    connect(pEditor, SIGNAL(sent()), pWindow, SLOT(close()));
    connect(pEditor, SIGNAL(closed()), pWindow, SLOT(close()));
    m_listWindows.removeAll(QPointer<ExtendDialog>());
    m_listWindows.append(pWindow);
    Retranslate();
    CommonUtils::MoveCentre(pWindow);
    pWindow->show();
    pWindow->raise();
    pWindow->activateWindow();
}

void MessageWindows::Retranslate()
{
    foreach (const QPointer<ExtendDialog>& pWindow, m_listWindows) {
        if (pWindow) {
            pWindow->setWindowTitle(Change::tr(QLatin1String("IDS_TITLE"), m_strPlugin));
            foreach (MessageEditor* pEditor, pWindow->findChildren<MessageEditor*>()) {
                pEditor->Retranslate();
            }
        }
    }
}
