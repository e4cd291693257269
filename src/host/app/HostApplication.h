#ifndef LINKHAND_HOST_HOSTAPPLICATION_H
#define LINKHAND_HOST_HOSTAPPLICATION_H

#include <QObject>
#include <QScopedPointer>
#include <QString>

#include "app/CommandLine.h"
#include "app/Services.h"
#include "settings/HostSettings.h"
#include "text/LanguageCatalog.h"
#include "text/Problem.h"

class Companion;
class DeviceWatcher;
class FindingsNotice;
class Link;
class LivePhonebook;
class LossWatcher;
class MainWindow;
class MessageStore;
class Modem;
class ModemNotices;
class ModemProblem;
class PhonebookHold;
class PhonebookAids;
class PluginContainer;
class PluginLifecycle;
class QTranslator;
class RequestDesk;
class SingleInstance;
class StoreWatch;

// Puts the program together and takes it apart again.
//
// Start: the services are published, the hardware is settled, the link is published, the window is shown, the plug-ins
// are loaded, then started, then their pages built. End: the window is hidden, the plug-ins go through their shutdown,
// then everything else goes in the reverse order.
class HostApplication : public QObject
{
    Q_OBJECT

public:
    // The whole run of the program; the result is its exit code: 0, 1 for a picture that could not be written, 2 for
    // arguments that make no sense, 3 if the program runs already and cannot take what it is asked.
    static int Main(int argc, char** argv, Companion* pCompanion = nullptr);

    // The companion, if there is one, and the instance outlive the application.
    HostApplication(const CommandLine& line, SingleInstance& instance, Companion* pCompanion = nullptr);
    ~HostApplication() override;

    int Run();

private slots:
    void OnLanguageChosen(const QString& strCode);
    void OnClosing();
    void OnScreenshotTaken(bool bWritten);
    void OnReportProblems();
    void OnLost(const ProblemList& problems);
    void OnAccessChanged(const ProblemList& problems);
    void OnReadableAgain();
    void OnContactGone();
    void OnContactsChanged();
    void OnModemProblem();
    void OnWelcomeDismissed();
    void OnLayoutRestored(); // the phonebook has been read first; the user may be on another page already

private:
    bool settleHardware();
    void build();
    void makeModem();
    void loadPlugins();
    void checkInstallation();
    void showFrame();
    void fillWindow();
    void applyLanguage(const QString& strCode);
    void keepPlace();
    void shutDown();
    void showProblems();

    CommandLine m_line;
    SingleInstance& m_instance;
    Companion* m_pCompanion;
    ProblemList m_problems;
    ProblemList m_access; // those of the phonebook that will pass
    ProblemList m_modem;  // and those of its modem
    Services m_services;
    HostSettings m_settings;
    LanguageCatalog m_languages;
    QScopedPointer<QTranslator> m_pQtTexts;
    QScopedPointer<MessageStore> m_pMessages;
    QScopedPointer<Modem> m_pModem;
    QScopedPointer<DeviceWatcher> m_pWatcher;
    QScopedPointer<LossWatcher> m_pLossWatcher;
    QScopedPointer<StoreWatch> m_pStoreWatch;
    QScopedPointer<PluginContainer> m_pContainer;
    QScopedPointer<PluginLifecycle> m_pLifecycle;
    QScopedPointer<MainWindow> m_pWindow;
    QScopedPointer<Link> m_pLink;
    QScopedPointer<ModemNotices> m_pNotices;
    QScopedPointer<ModemProblem> m_pModemProblem;
    QScopedPointer<LivePhonebook> m_pLive;
    QScopedPointer<FindingsNotice> m_pFindings;
    QScopedPointer<PhonebookHold> m_pHold;
    QScopedPointer<RequestDesk> m_pDesk;
    QScopedPointer<PhonebookAids> m_pAids;
    int m_iExitCode;
    bool m_bClosing; // quit before or while the event loop runs
};

#endif // LINKHAND_HOST_HOSTAPPLICATION_H
