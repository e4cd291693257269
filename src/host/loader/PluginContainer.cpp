#include "loader/PluginContainer.h"

#include "loader/PluginHandle.h"

namespace
{

QString identifierOf(const PluginHandle* pHandle)
{
    return pHandle->ClassId().isEmpty() ? pHandle->Name() : pHandle->ClassId();
}

} // namespace

PluginContainer::~PluginContainer()
{
    while (!m_listHandles.isEmpty()) {
        delete m_listHandles.takeLast();
    }
}

bool PluginContainer::Add(PluginHandle* pHandle)
{
    if (find(identifierOf(pHandle)) != nullptr) {
        return false;
    }
    m_listHandles.append(pHandle);
    return true;
}

PluginHandle* PluginContainer::FindByName(const QString& strName) const
{
    foreach (PluginHandle* pHandle, m_listHandles) {
        if (pHandle->Name() == strName) {
            return pHandle;
        }
    }
    return nullptr;
}

QObject* PluginContainer::GetPlugin(QString strId, int iKind)
{
    PluginHandle* pHandle = find(strId);
    // One that could not start is as good as absent.
    if (pHandle == nullptr || pHandle->GetState() == PluginHandle::FAILED) {
        return nullptr;
    }
    return pHandle->Query(iKind);
}

PluginHandle* PluginContainer::find(const QString& strId) const
{
    foreach (PluginHandle* pHandle, m_listHandles) {
        if (!strId.isEmpty() && identifierOf(pHandle) == strId) {
            return pHandle;
        }
    }
    return nullptr;
}
