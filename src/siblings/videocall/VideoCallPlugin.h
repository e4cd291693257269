#ifndef LINKHAND_SIBLINGS_VIDEOCALLPLUGIN_H
#define LINKHAND_SIBLINGS_VIDEOCALLPLUGIN_H

#include <QPointer>

#include "common/Sibling.h"
#include "linkhand/QtCompat.h"

class CallBox;
class ExtendDialog;

// Shows a video call in a window of its own.
class VideoCallPlugin : public Sibling<IBasePlugin>
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin INotify)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IBasePlugin")

public:
    VideoCallPlugin();
    ~VideoCallPlugin() override;

    bool Init() override;
    void OnDestroy() override;

protected:
    void Retranslate() override;

private slots:
    void OnCallStarted(const QString& strNumber, int iType);
    void OnCallEnded();
    void OnWindowClosed();

private:
    QPointer<ExtendDialog> m_pWindow;
    QPointer<CallBox> m_pBox;
};

#endif // LINKHAND_SIBLINGS_VIDEOCALLPLUGIN_H
