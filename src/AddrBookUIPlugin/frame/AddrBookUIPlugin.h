#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKUIPLUGIN_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKUIPLUGIN_H

#include <QObject>
#include <QRect>
#include <QString>

#include "linkhand/QtCompat.h"
#include "linkhand/plugin/INotify.h"
#include "linkhand/plugin/IUIPlugin.h"

// The root object that the host gets from qt_plugin_instance: forwards to the service and knows nothing else.
// User-interface thread only. Whoever unloads the plug-in deletes it.
//
// The host's order: Init; ShowWindow, FitSize, Hide and Notify at its own pace; at the end UnSDKRegisterEvent, then
// OnDestroy, which deletes the window.
class CAddrBookUIPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_INTERFACES(IUIPlugin IBasePlugin INotify)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IUIPlugin")

public:
    CAddrBookUIPlugin();
    ~CAddrBookUIPlugin() override;

    bool ShowWindow(QWidget* pParent, QRect& rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect& rect) override;
    bool IsReady() override;
    bool ChangeLang(const QString& strLang) override;
    bool Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;
    int QueryInterface(int iId, QObject** ppObject) override;
    void UnSDKRegisterEvent() override;
    void Release() override;
    int GetLastError() override;
    void OnDestroy() override;
    int Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2) override;

private:
    Q_DISABLE_COPY(CAddrBookUIPlugin)
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKUIPLUGIN_H
