#ifndef LINKHAND_CORE_COMMONUTILS_H
#define LINKHAND_CORE_COMMONUTILS_H

#include <QDialog>
#include <QFlags>
#include <QMessageBox>
#include <QString>
#include <QThread>
#include <QWidget>

#include "linkhand/core/CoreExport.h"

// The kind of a call. Only the plain voice call is made today.
enum _UI_EN_CALL_TYPE { UI_CALL_VOICE = 0 };

// Services of the host to its plug-ins. User-interface thread only, but for the three that say otherwise.
class LINKHAND_CORE_API CommonUtils
{
public:
    // The host's main window, parent of dialogs; null before there is one. Stays the host's.
    static QWidget* GetMainWindow();

    // The folder that holds "plugins", without a trailing slash.
    static QString GetPluginLibraryPath();

    // The value of a key of the host's configuration: the user's, else the shipped default, else empty.
    static QString GetSettings(QString strSection, QString strKey);

    // True if a plug-in with this identifier is installed.
    static bool IsPluginAvailable(QString strId);

    // True from the moment the host begins to shut down. Any thread; costs an atomic read.
    static bool IsShuttingDown();

    // Starts a call to strNumber. False if that failed.
    static bool MakeCall(QString strNumber, _UI_EN_CALL_TYPE enType);

    // Puts pDialog in the middle of the host's window, or of the screen where there is none.
    static void MoveCentre(QDialog* pDialog);

    // Rewrites strText in place so that its parentheses stand right in a right-to-left layout.
    static void ParanthesisCorrectionForHeAndAr(QString& strText);

    // Returns strText, whose "<" and ">" are escaped already, with web, mail and phone addresses made hyperlinks of
    // rich text.
    static QString ParseAndCreateHyperLinks(QString strText);

    // Shows a modal box and returns the button that closed it: QMessageBox::Ok for the first button,
    // QMessageBox::Cancel for "IDS_CANCEL" and for a box closed otherwise. Caption and text come translated; the
    // buttons are language ids, "" for one that is not there. bFlag true: the first button is the default, false:
    // the last. flags are added to the box's window flags. ppDialog, if not null, holds the box while there is one
    // and null afterwards, and has to last as long; the box of a call that came back at once lasts until it is closed.
    // strExtra, if not empty, is shown as the box's informative text. bModal false returns at once, 0.
    static int ShowMessage(QMessageBox::Icon enIcon, QWidget* pParent, QString strCaption, QString strText,
                           QString strButton1, QString strButton2, QString strButton3, bool bFlag,
                           QFlags<Qt::WindowType> flags, QDialog** ppDialog, QString strExtra, bool bModal);

    // Counts the running workers, whose end the host awaits before it takes the plug-ins down. A worker calls the
    // first as it starts and the second, with the same two strings, as it ends. Any thread.
    static void ThreadCountInc(QString strFile, QString strFunction);
    static void ThreadCountDec(QString strFile, QString strFunction);

    // Waits until pThread has ended, uiTime seconds at most.
    static void WaitForThreadToStop(QThread* pThread, unsigned int uiTime);
};

#endif // LINKHAND_CORE_COMMONUTILS_H
