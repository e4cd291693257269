#ifndef LINKHAND_SIBLINGS_SMSUIPLUGIN_H
#define LINKHAND_SIBLINGS_SMSUIPLUGIN_H

#include <QScopedPointer>

#include "common/Sibling.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "shared/MessageForms.h"

class MessageWindows;

// Writes short messages.
class SMSUIPlugin : public Sibling<IBasePlugin>, public ISMSUIService, public IMessageForms
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin INotify ISMSUIService IMessageForms)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IBasePlugin")

public:
    SMSUIPlugin();
    ~SMSUIPlugin() override;

    bool Init() override;
    void OnDestroy() override;
    void SendMessage(QString strNumbers, QString strText, QWidget* pParent) override;
    void OpenMessage(int iId, const QStringList& lstNumbers, const QString& strSubject,
                     const QString& strText) override;

protected:
    void Retranslate() override;

private:
    QScopedPointer<MessageWindows> m_pWindows;
};

#endif // LINKHAND_SIBLINGS_SMSUIPLUGIN_H
