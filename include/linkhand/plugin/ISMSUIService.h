#ifndef LINKHAND_PLUGIN_ISMSUISERVICE_H
#define LINKHAND_PLUGIN_ISMSUISERVICE_H

#include <QObject>
#include <QString>
#include <QWidget>

// The SMS plug-in's service, LINKHAND_SMS_KIND. User-interface thread only.
class ISMSUIService
{
public:
    virtual ~ISMSUIService() {}

    // Opens the SMS editor with recipients separated by ";" (possibly none) and the given text. pParent, which may
    // be null, is the page the request comes from.
    virtual void SendMessage(QString strNumbers, QString strText, QWidget* pParent) = 0;
};

Q_DECLARE_INTERFACE(ISMSUIService, "com.teskra.linkhand.plugin.ISMSUIService")

#endif // LINKHAND_PLUGIN_ISMSUISERVICE_H
