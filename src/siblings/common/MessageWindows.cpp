#include "common/MessageWindows.h"

#include "common/MessageEditor.h"
#include "common/MessageWindow.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"

MessageWindows::MessageWindows(const QString& strPlugin, HostMessageKind enKind)
    : m_strPlugin(strPlugin), m_enKind(enKind)
{
}

MessageWindows::~MessageWindows()
{
    foreach (const QPointer<MessageWindow>& pWindow, m_listWindows) {
        if (pWindow) {
            pWindow->Editor().KeepUnsaved();
        }
        delete pWindow.data();
    }
}

void MessageWindows::Open(const QStringList& lstNumbers, const QString& strText, const QString& strSubject, int iId)
{
    m_listWindows.removeAll(QPointer<MessageWindow>());
    QPointer<MessageWindow> pWindow;
    foreach (const QPointer<MessageWindow>& pOpen, m_listWindows) {
        if (iId != 0 && pOpen->Editor().Draft() == iId) {
            pWindow = pOpen;
        }
    }
    if (!pWindow) {
        MessageEditor* pEditor = new MessageEditor(m_strPlugin, m_enKind);
        pEditor->SetRecipients(lstNumbers);
        pEditor->SetText(strText);
        pEditor->SetSubject(strSubject);
        pEditor->Begin(iId);
        pWindow = new MessageWindow(pEditor, CommonUtils::GetMainWindow());
        pWindow->setObjectName(m_strPlugin + QLatin1String("_window"));
        m_listWindows.append(pWindow);
        Retranslate();
        CommonUtils::MoveCentre(pWindow);
    }
    pWindow->show();
    pWindow->raise();
    pWindow->activateWindow();
}

void MessageWindows::Retranslate()
{
    foreach (const QPointer<MessageWindow>& pWindow, m_listWindows) {
        if (pWindow) {
            pWindow->setWindowTitle(Change::tr(QLatin1String("IDS_TITLE"), m_strPlugin));
            pWindow->Editor().Retranslate();
        }
    }
}
