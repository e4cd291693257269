#ifndef LINKHAND_HOST_PLUGINCONTAINER_H
#define LINKHAND_HOST_PLUGINCONTAINER_H

#include <QList>

#include "linkhand/plugin/IPluginContainer.h"

class PluginHandle;

// The loaded plug-ins, by their class identifier, or by name for one that has none. Owns their handles.
class PluginContainer : public IPluginContainer
{
public:
    PluginContainer() {}

    // Lets go of the plug-ins, the last added first.
    ~PluginContainer() override;

    // Takes the handle over. False, and the handle is the caller's, if one with the same identifier is there.
    bool Add(PluginHandle* pHandle);

    // In the order in which they were added.
    const QList<PluginHandle*>& Handles() const { return m_listHandles; }

    PluginHandle* FindByName(const QString& strName) const;

    QObject* GetPlugin(QString strId, int iKind) override;

private:
    Q_DISABLE_COPY(PluginContainer)
    PluginHandle* find(const QString& strId) const;

    QList<PluginHandle*> m_listHandles;
};

#endif // LINKHAND_HOST_PLUGINCONTAINER_H
