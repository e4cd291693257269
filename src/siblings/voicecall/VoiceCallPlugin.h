#ifndef LINKHAND_SIBLINGS_VOICECALLPLUGIN_H
#define LINKHAND_SIBLINGS_VOICECALLPLUGIN_H

#include <QPointer>

#include "common/Sibling.h"
#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IUIPlugin.h"

class CallPage;

// The page of calls; comes to the front when one starts.
class VoiceCallPlugin : public Sibling<IUIPlugin>
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IUIPlugin")

public:
    VoiceCallPlugin();
    ~VoiceCallPlugin() override;

    bool Init() override;
    void OnDestroy() override;
    bool ShowWindow(QWidget* pParent, QRect& rect) override;
    int DoModal() override { return 1; }
    void Hide() override;
    void FitSize(QRect& rect) override;
    bool IsReady() override { return !m_pPage.isNull(); }
    bool ChangeLang(const QString& strLang) override { return !strLang.isEmpty(); }

public slots:
    // For the host, which calls it by name: a number to be called if the user says so.
    void FillNumber(const QString& strNumber);

protected:
    void Retranslate() override;

private slots:
    void OnCallStarted(const QString& strNumber, int iType);
    void OnCallProgress(int iProgress);
    void OnCallEnded();

private:
    QPointer<CallPage> m_pPage; // the host's page may take it along
};

#endif // LINKHAND_SIBLINGS_VOICECALLPLUGIN_H
