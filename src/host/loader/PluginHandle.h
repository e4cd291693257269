#ifndef LINKHAND_HOST_PLUGINHANDLE_H
#define LINKHAND_HOST_PLUGINHANDLE_H

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>

class IBasePlugin;
class INotify;
class IUIPlugin;
class QWidget;

// A loaded plug-in and where it stands in its life. Each step is taken once, in the order of the states; a step that
// does not fit the state is left out. User-interface thread only.
class PluginHandle
{
public:
    enum State {
        LOADED,       // the root object is there
        READY,        // Init succeeded
        FAILED,       // Init did not; only UnregisterEvents and Destroy still reach it
        SHOWN,        // its window is on its page
        HIDDEN,       // its window has been there and was hidden
        UNREGISTERED, // UnSDKRegisterEvent was called
        DESTROYED     // OnDestroy was called; the root object goes with this handle
    };

    // Takes over pRoot, which must cast to IBasePlugin. pLibrary is the dynamic linker's handle of its code, which
    // stays the caller's.
    explicit PluginHandle(QObject* pRoot, void* pLibrary = nullptr);
    ~PluginHandle();

    State GetState() const { return m_enState; }
    QObject* Root() const { return m_pRoot; }
    void* Library() const { return m_pLibrary; }
    QString Name() const { return m_strName; }
    QString ClassId() const { return m_strClassId; }
    bool HasWindow() const { return m_pUI != nullptr; }

    // The object that the plug-in serves for iKind; the root object for 0, null for a kind that it does not serve.
    QObject* Query(int iKind);

    bool Init();

    // Shows the window on pPage, filling it. False if the plug-in has none or could not build it.
    bool Show(QWidget* pPage);

    // Fits the window to the page it is shown on; nothing while it is not.
    void Fit(const QRect& rect);
    void Hide();

    // Any state from a successful Init on until UnregisterEvents.
    void Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2);

    void UnregisterEvents();
    void Destroy();

private:
    Q_DISABLE_COPY(PluginHandle)

    QPointer<QObject> m_pRoot;
    void* m_pLibrary;
    IBasePlugin* m_pBase;
    IUIPlugin* m_pUI;
    INotify* m_pNotify;
    QString m_strName;
    QString m_strClassId;
    State m_enState;
};

#endif // LINKHAND_HOST_PLUGINHANDLE_H
