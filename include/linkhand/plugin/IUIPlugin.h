#ifndef LINKHAND_PLUGIN_IUIPLUGIN_H
#define LINKHAND_PLUGIN_IUIPLUGIN_H

#include <QRect>
#include <QWidget>

#include "linkhand/plugin/IBasePlugin.h"

// A plug-in with a window that the host places on a page. All operations run on the user-interface thread.
class IUIPlugin : public IBasePlugin
{
public:
    ~IUIPlugin() override {}

    // Shows the window as a child of pParent, at rect in the parent's pixels. Called each time the page is brought
    // up. False if the window could not be built.
    virtual bool ShowWindow(QWidget* pParent, QRect& rect) = 0;

    virtual int DoModal() = 0;

    // Hides the window; it keeps its state.
    virtual void Hide() = 0;

    // Moves and resizes the window to rect, in the parent's pixels.
    virtual void FitSize(QRect& rect) = 0;

    virtual bool IsReady() = 0;

    // True if strLang, a language code, is one the plug-in could take. The change itself comes by notify code.
    virtual bool ChangeLang(const QString& strLang) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.teskra.linkhand.plugin.IUIPlugin")

#endif // LINKHAND_PLUGIN_IUIPLUGIN_H
