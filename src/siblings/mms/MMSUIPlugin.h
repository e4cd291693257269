#ifndef LINKHAND_SIBLINGS_MMSUIPLUGIN_H
#define LINKHAND_SIBLINGS_MMSUIPLUGIN_H

#include <QScopedPointer>

#include "common/Sibling.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IMMSUIPlugin.h"
#include "shared/MessageForms.h"

class MessageWindows;

// Writes multimedia messages, of which it knows subject and text.
class MMSUIPlugin : public Sibling<IBasePlugin>, public IMMSUIPlugin, public IMessageForms
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin INotify IMMSUIPlugin IMessageForms)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IBasePlugin")

public:
    MMSUIPlugin();
    ~MMSUIPlugin() override;

    bool Init() override;
    void OnDestroy() override;
    void SendMessage(QString strNumbers) override;
    void OpenMessage(int iId, const QStringList& lstNumbers, const QString& strSubject,
                     const QString& strText) override;

protected:
    void Retranslate() override;

private:
    QScopedPointer<MessageWindows> m_pWindows;
};

#endif // LINKHAND_SIBLINGS_MMSUIPLUGIN_H
