#include "loader/PluginHandle.h"

#include <QWidget>

#include "linkhand/plugin/IBasePlugin.h"
#include "linkhand/plugin/INotify.h"
#include "linkhand/plugin/IUIPlugin.h"

PluginHandle::PluginHandle(QObject* pRoot, void* pLibrary)
    : m_pRoot(pRoot),
      m_pLibrary(pLibrary),
      m_pBase(nullptr),
      m_pUI(qobject_cast<IUIPlugin*>(pRoot)),
      m_pNotify(qobject_cast<INotify*>(pRoot)),
      m_enState(LOADED)
{
    // A plug-in with a window may answer for the wider interface alone.
    m_pBase = m_pUI != nullptr ? m_pUI : qobject_cast<IBasePlugin*>(pRoot);
    m_strName = m_pBase->GetPluginName();
    m_strClassId = m_pBase->GetCLSID();
}

PluginHandle::~PluginHandle()
{
    UnregisterEvents();
    Destroy();
    delete m_pRoot;
}

QObject* PluginHandle::Query(int iKind)
{
    if (iKind == 0) {
        return m_pRoot;
    }
    QObject* pObject = nullptr;
    return m_enState != DESTROYED && m_pBase->QueryInterface(iKind, &pObject) == 1 ? pObject : nullptr;
}

bool PluginHandle::Init()
{
    if (m_enState == LOADED) {
        m_enState = m_pBase->Init() ? READY : FAILED;
    }
    return m_enState != FAILED;
}

bool PluginHandle::Show(QWidget* pPage)
{
    if (m_pUI == nullptr || (m_enState != READY && m_enState != HIDDEN && m_enState != SHOWN)) {
        return false;
    }
    QRect rect = pPage->rect();
    if (!m_pUI->ShowWindow(pPage, rect)) {
        return false;
    }
    m_enState = SHOWN;
    return true;
}

void PluginHandle::Fit(const QRect& rect)
{
    if (m_enState == SHOWN) {
        QRect fitted = rect;
        m_pUI->FitSize(fitted);
    }
}

void PluginHandle::Hide()
{
    if (m_enState == SHOWN) {
        m_pUI->Hide();
        m_enState = HIDDEN;
    }
}

void PluginHandle::Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2)
{
    if (m_pNotify != nullptr && (m_enState == READY || m_enState == SHOWN || m_enState == HIDDEN)) {
        m_pNotify->Notify(uiCode, uiParam1, uiParam2);
    }
}

void PluginHandle::UnregisterEvents()
{
    // A plug-in that was never asked to work has registered nothing, and asking it would build what must go again.
    if (m_enState != LOADED && m_enState < UNREGISTERED) {
        m_pBase->UnSDKRegisterEvent();
        m_enState = UNREGISTERED;
    }
}

void PluginHandle::Destroy()
{
    if (m_enState == UNREGISTERED) {
        m_pBase->OnDestroy();
    }
    m_enState = DESTROYED;
}
