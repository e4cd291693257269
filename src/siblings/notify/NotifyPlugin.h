#ifndef LINKHAND_SIBLINGS_NOTIFYPLUGIN_H
#define LINKHAND_SIBLINGS_NOTIFYPLUGIN_H

#include <QScopedPointer>

#include "common/Sibling.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/INotifyService.h"

class ChangeNotices;
class NotifyLog;

// The notification service: shows what plug-ins announce in the host's status area and keeps a log of it.
class NotifyPlugin : public Sibling<IBasePlugin>, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin INotify INotifyService)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IBasePlugin")

public:
    NotifyPlugin();
    ~NotifyPlugin() override;

    bool Init() override;
    void OnDestroy() override;
    void Broadcast(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) override;
    void Push(unsigned int uiMsg, unsigned int uiParam1, unsigned int uiParam2) override;

private slots:
    void OnChange(unsigned int uiMsg, bool bSeveral, const QString& strName);

private:
    void show(const QString& strText);

    QScopedPointer<NotifyLog> m_pLog;
    QScopedPointer<ChangeNotices> m_pChanges;
};

#endif // LINKHAND_SIBLINGS_NOTIFYPLUGIN_H
