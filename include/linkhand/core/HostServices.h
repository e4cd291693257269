#ifndef LINKHAND_CORE_HOSTSERVICES_H
#define LINKHAND_CORE_HOSTSERVICES_H

#include <QMessageBox>
#include <QString>
#include <QWidget>

#include "linkhand/plugin/IPluginContainer.h"

// What the host gives to its user-interface library, the other way round from everything else in this folder. The
// host publishes one object of this class before it loads a plug-in, as a dynamic property of the application:
//
//     qApp->setProperty(LINKHAND_HOST_SERVICES, QVariant(qlonglong(quintptr(pServices))));
//
// and keeps it until the process ends. The library exports nothing for it, so that its list of entries stays what
// plug-ins need. Without the property the library answers as a host with no window, no plug-ins and defaults.
#define LINKHAND_HOST_SERVICES "linkhand.hostServices"

class HostServices
{
public:
    virtual ~HostServices() {}

    // User-interface thread.
    virtual QWidget* MainWindow() = 0;
    virtual IPluginContainer* PluginContainer() = 0;
    virtual bool IsPluginAvailable(const QString& strId) = 0; // installed, loaded or not
    virtual bool MakeCall(const QString& strNumber, int iType) = 0;
    virtual QString LibraryPath() = 0;   // the folder that holds "plugins"
    virtual QString LanguagesPath() = 0; // the folder of the compiled language files
    virtual QString Language() = 0;      // code of the current language, such as "en" or "zh_CN"
    virtual QString SettingsFile() = 0;  // the user's INI file; need not exist

    // Asked before a message box opens: the button to answer with, as ShowMessage returns it; -1 to show the box;
    // QMessageBox::NoButton to answer, without showing it, with the button that agrees to nothing: "IDS_CANCEL" where
    // there is one, else the only button unless the box is a question.
    virtual int MessageAnswer(QMessageBox::Icon enIcon, const QString& strCaption, const QString& strText) = 0;

    // Any thread.
    virtual bool IsShuttingDown() = 0;
    virtual void ThreadCountInc(const QString& strFile, const QString& strFunction) = 0;
    virtual void ThreadCountDec(const QString& strFile, const QString& strFunction) = 0;
};

#endif // LINKHAND_CORE_HOSTSERVICES_H
