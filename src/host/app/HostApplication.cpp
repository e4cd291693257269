#include "app/HostApplication.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <cstdio>
#include <sys/stat.h>

#include "app/Companion.h"
#include "app/Elsewhere.h"
#include "app/FirstPaint.h"
#include "app/Heap.h"
#include "app/IdleBackup.h"
#include "app/Link.h"
#include "app/ModemNotices.h"
#include "app/RequestDesk.h"
#include "app/Screenshot.h"
#include "app/UnixSignals.h"
#include "device/DeviceWatcher.h"
#include "device/HardwareChoice.h"
#include "device/ModemManagerModem.h"
#include "device/ModemProblem.h"
#include "device/SimulatedContacts.h"
#include "device/SimulatedHardware.h"
#include "device/SimulatedModem.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "loader/PluginLifecycle.h"
#include "loader/PluginLoader.h"
#include "messages/MessageStore.h"
#include "settings/DataFolder.h"
#include "settings/LossWatcher.h"
#include "settings/SdkFolders.h"
#include "settings/StoreWatch.h"
#include "single/SingleInstance.h"
#include "text/HostText.h"
#include "window/CopyOffer.h"
#include "window/DialogPlace.h"
#include "window/FindingsNotice.h"
#include "window/KeyboardWitness.h"
#include "window/LivePhonebook.h"
#include "window/MainWindow.h"
#include "window/PhonebookAids.h"
#include "window/PhonebookHold.h"
#include "window/ScreenWatch.h"
#include "window/StatusArea.h"
#include "window/WelcomeNote.h"
#include "window/WindowPlace.h"

namespace
{

// How long the end of the program waits for workers before their owners stop them: a slow card may go on for minutes,
// and a program that is quit should be gone within two seconds.
const int SHUTDOWN_LIMIT_MS = 1000;

// How long the start waits for the window to be painted, which never happens on a workspace that is not shown.
const int PAINT_LIMIT_MS = 200;

// After so long without a key or click nobody is taken to be at the program.
const int IDLE_MS = 5 * 60 * 1000;

void print(FILE* pStream, const QString& strText)
{
    std::fputs(strText.toLocal8Bit().constData(), pStream);
}

QStringList argumentsOf(int argc, char** argv)
{
    QStringList lstArguments;
    for (int i = 1; i < argc; ++i) {
        lstArguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return lstArguments;
}

int answerInText(const CommandLine& line)
{
    if (!line.strError.isEmpty()) {
        print(stderr, QLatin1String("linkhand: ") + line.strError + QLatin1String("\nTry 'linkhand --help'.\n"));
        return 2;
    }
    print(stdout, line.bHelp ? CommandLine::HelpText() : CommandLine::VersionText());
    return 0;
}

// Not quit(): with Qt 6 a window that stays open, such as a waiting dialog, would refuse it.
void leaveLoop()
{
    QCoreApplication::exit(0);
}

int refuseHardware(const QString& strChoice)
{
    print(stderr, QString::fromLatin1("linkhand: no such hardware: %1\nTry 'linkhand --help'.\n").arg(strChoice));
    return 2;
}

// The fonts of East Asia hold the shapes of several countries; where nothing says which, Qt takes Japan's.
QFont fontFor(const QString& strCode)
{
    static const QFont s_desktop = QApplication::font();
    QFont font(s_desktop);
    if (strCode == QLatin1String("zh_CN")) {
        QtCompat::setFamilies(font, QStringList()
                                        << s_desktop.family() << QLatin1String("Noto Sans CJK SC")
                                        << QLatin1String("Source Han Sans SC") << QLatin1String("WenQuanYi Micro Hei"));
    }
    return font;
}

} // namespace

int HostApplication::Main(int argc, char** argv, Companion* pCompanion)
{
    // Help and version work without a display.
    if (CommandLine::WantsText(argumentsOf(argc, argv))) {
        return answerInText(CommandLine::Parse(argumentsOf(argc, argv)));
    }
    // Contacts, messages and logs are nobody else's business.
    umask(077);
    Heap::Share();
    QtCompat::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QLatin1String("linkhand"));
    QApplication::setApplicationVersion(QLatin1String(LINKHAND_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    QtCompat::setDebugEnabled(!qgetenv("LINKHAND_DEBUG").isEmpty());

    // Qt has taken its own options out.
    const CommandLine line = CommandLine::Parse(QApplication::arguments().mid(1));
    if (line.bHelp || line.bVersion || !line.strError.isEmpty()) {
        return answerInText(line);
    }
    if (!line.strDataDir.isEmpty()) {
        qputenv("LINKHAND_DATA_DIR", QFile::encodeName(line.strDataDir));
    }
    if (!line.strHardware.isEmpty() && !HardwareChoice::IsKnown(line.strHardware)) {
        return refuseHardware(line.strHardware);
    }
    // Known by its folder, which a first start does not find yet.
    QDir().mkpath(DataFolder::Path());
    SingleInstance instance(DataFolder::Path());
    int iExitCode = 0;
    return Elsewhere::IsTaken(line, instance, iExitCode) ? iExitCode
                                                         : HostApplication(line, instance, pCompanion).Run();
}

HostApplication::HostApplication(const CommandLine& line, SingleInstance& instance, Companion* pCompanion)
    : m_line(line),
      m_instance(instance),
      m_pCompanion(pCompanion),
      m_services(QCoreApplication::applicationDirPath(), DataFolder::SettingsFile()),
      m_settings(m_services.SettingsFile()),
      m_languages(m_services.LanguagesPath()),
      m_iExitCode(0),
      m_bClosing(false)
{
    DataFolder::Prepare(SdkFolders::LogFolder(), m_problems);
    m_pMessages.reset(new MessageStore(DataFolder::Path()));
    m_pContainer.reset(new PluginContainer);
    m_pLifecycle.reset(new PluginLifecycle(*m_pContainer, m_services.State()));
    m_services.SetContainer(m_pContainer.data());
    m_services.Publish();
    applyLanguage(
        m_languages.BestFor(m_settings.Language().isEmpty() ? QLocale::system().name() : m_settings.Language()));
    if (m_pCompanion != nullptr) {
        m_services.SetAnswers(m_pCompanion->Answers());
        m_pCompanion->Begin();
    }
    if (settleHardware()) {
        build();
    }
}

HostApplication::~HostApplication()
{
    if (m_pLink) {
        m_pLink->Withdraw();
    }
    m_pNotices.reset();
    m_pDesk.reset();
    // Windows that plug-ins left with the main window go while the plug-ins' code is there.
    m_pWindow.reset();
    m_pContainer.reset();
    m_services.Withdraw();
}

// Before anything of the SDK is in use but the user's contacts. False if what the command line asks for is refused.
bool HostApplication::settleHardware()
{
    const QString strAsked = m_line.strHardware;
    // A modem if there is one, where nobody has said anything and no folder was chosen for a demo or a test.
    const bool bOwn = strAsked.isEmpty() && DataFolder::IsOwn() && !HardwareChoice::IsChosen();
    if (strAsked.isEmpty() && !bOwn) {
        return true;
    }
    const QString strChoice = bOwn ? QString(QLatin1String("auto")) : strAsked;
    if (strChoice != QLatin1String("simulated") && !HardwareChoice::IsReal() && !HardwareChoice::IsFixed()) {
        // Nobody looks at a program that only takes a picture: it leaves alone what would have to be asked.
        const bool bPicture = !m_line.strScreenshot.isEmpty();
        if (bPicture ? bOwn && SimulatedContacts::CountMissing() > 0 : !CopyOffer::Settle(nullptr)) {
            return true;
        }
    }
    // A folder that takes nothing is told of elsewhere.
    return HardwareChoice::Begin(strChoice) || bOwn;
}

void HostApplication::build()
{
    makeModem();
    m_pWatcher.reset(new DeviceWatcher);
    m_pLossWatcher.reset(new LossWatcher);
    m_pStoreWatch.reset(new StoreWatch);
    m_services.SetModem(m_pModem.data());
    const QString strCount = CommonUtils::GetSettings(QLatin1String("customize"), QLatin1String("pbnamecode"));
    SimulatedHardware::SetNameUnits(strCount.trimmed() == QLatin1String("all"));
    m_pWindow.reset(new MainWindow(*m_pContainer, *m_pMessages, *m_pWatcher, m_pModem.data()));
    m_pWindow->SetSettings(m_settings);
    m_services.SetMainWindow(m_pWindow.data());
    m_pLink.reset(new Link(*m_pModem, *m_pMessages, m_pWindow.data(), SdkFolders::LogFolder()));
    m_pLink->Publish();
    m_pNotices.reset(new ModemNotices(*m_pModem, *m_pMessages, *m_pWindow));
    m_pDesk.reset(new RequestDesk(*m_pWindow, *m_pContainer, m_instance));
    connect(m_pDesk.data(), SIGNAL(contactsChanged()), this, SLOT(OnContactsChanged()));
    m_pFindings.reset(new FindingsNotice(m_services.Workers(), m_pWindow->Status()));
    m_pModemProblem.reset(new ModemProblem(*m_pModem, *m_pWatcher));
    connect(m_pModemProblem.data(), SIGNAL(changed()), this, SLOT(OnModemProblem()));
    connect(m_pModemProblem.data(), SIGNAL(messageStoreFull()), m_pNotices.data(), SLOT(OnStoreFull()));
}

int HostApplication::Run()
{
    if (!m_pWindow) {
        return refuseHardware(m_line.strHardware);
    }
    connect(m_pWindow.data(), SIGNAL(languageChosen(QString)), this, SLOT(OnLanguageChosen(QString)));
    connect(m_pWindow.data(), SIGNAL(closing()), this, SLOT(OnClosing()));
    connect(m_pWindow.data(), SIGNAL(contactsChanged()), this, SLOT(OnContactsChanged()));
    connect(&m_pWindow->Welcome(), SIGNAL(dismissed()), this, SLOT(OnWelcomeDismissed()));
    connect(m_pWatcher.data(), SIGNAL(notifyCode(int, int)), m_pLifecycle.data(), SLOT(NotifyAll(int, int)));
    connect(m_pWatcher.data(), SIGNAL(changed()), m_pModem.data(), SLOT(OnDeviceChanged()));
    const KeyboardWitness keyboardWitness;
    const ScreenWatch screenWatch(*m_pWindow);
    const DialogPlace dialogPlace;
    UnixSignals unixSignals;
    connect(&unixSignals, SIGNAL(received()), this, SLOT(OnClosing()));
    // The log-out of the desktop's session.
    connect(qApp, SIGNAL(commitDataRequest(QSessionManager&)), this, SLOT(OnClosing()));

    showFrame();
    connect(m_pLossWatcher.data(), SIGNAL(lost(ProblemList)), this, SLOT(OnLost(ProblemList)));
    connect(m_pLossWatcher.data(), SIGNAL(accessChanged(ProblemList)), this, SLOT(OnAccessChanged(ProblemList)));
    connect(m_pLossWatcher.data(), SIGNAL(readableAgain()), this, SLOT(OnReadableAgain()));
    connect(m_pLossWatcher.data(), SIGNAL(contactGone()), this, SLOT(OnContactGone()));
    m_pWatcher->Start();
    m_pModem->Start();
    m_pModemProblem->Start();
    m_pLossWatcher->Start();
    m_pFindings->Start();
    loadPlugins();
    checkInstallation();
    fillWindow();
    m_pDesk->Start();
    if (m_line.strScreenshot.isEmpty()) {
        m_pDesk->Add(m_line.lstOpened);
    }
    IdleBackup idleBackup(IDLE_MS);
    if (m_settings.DailyBackup()) {
        idleBackup.Start();
    }
    QScopedPointer<Screenshot> pScreenshot;
    if (!m_line.strScreenshot.isEmpty()) {
        pScreenshot.reset(new Screenshot(m_pWindow.data(), m_services.Workers(), m_line.strScreenshot, nullptr));
        connect(pScreenshot.data(), SIGNAL(taken(bool)), this, SLOT(OnScreenshotTaken(bool)));
    } else if (!m_problems.isEmpty()) {
        QTimer::singleShot(0, this, SLOT(OnReportProblems()));
    }
    if (!m_bClosing) {
        QApplication::exec();
    }
    shutDown();
    return m_iExitCode;
}

void HostApplication::OnLanguageChosen(const QString& strCode)
{
    applyLanguage(strCode);
    m_settings.SetLanguage(strCode);
    m_pWindow->SetLanguages(m_languages.Entries(), strCode);
    m_pWindow->Retranslate();
    m_pWindow->Status().ForgetNotices();
    m_pLifecycle->NotifyAll(HOST_NOTIFY_LANGUAGE, 0);
}

void HostApplication::OnClosing()
{
    m_bClosing = true;
    m_services.State().SetClosing();
    leaveLoop();
}

void HostApplication::OnScreenshotTaken(bool bWritten)
{
    if (!bWritten) {
        print(stderr, QString::fromLatin1("linkhand: cannot write %1\n").arg(m_line.strScreenshot));
        m_iExitCode = 1;
    }
    leaveLoop();
}

void HostApplication::OnContactsChanged()
{
    if (m_pLive) {
        m_pLive->ReadAnew();
    }
}

void HostApplication::OnContactGone()
{
    m_pWindow->Status().ShowNotice(HostText::Get("IDS_HOST_CONTACT_GONE"));
}

void HostApplication::OnWelcomeDismissed()
{
    m_settings.SetWelcomeDismissed(true);
}

void HostApplication::makeModem()
{
    if (HardwareChoice::IsReal()) {
        m_pModem.reset(new ModemManagerModem(HardwareChoice::Port(), *m_pMessages));
    } else {
        m_pModem.reset(new SimulatedModem(*m_pMessages));
    }
}

void HostApplication::loadPlugins()
{
    const QStringList lstDamaged = DataFolder::DamagedStores();
    PluginLoader(m_services.PluginsPath()).LoadAll(*m_pContainer, m_problems);
    m_pLifecycle->InitAll(m_problems);
    DataFolder::CheckStore(lstDamaged, m_problems);
}

// The window is on the screen before the plug-ins start: the contacts that they then read would otherwise be handled
// before the window system's word that the window is there to be painted.
void HostApplication::showFrame()
{
    m_pWindow->SetLanguages(m_languages.Entries(), m_services.Language());
    m_pWindow->Retranslate();
    m_pWindow->restoreGeometry(m_settings.Geometry());
    WindowPlace::Fit(*m_pWindow);
    m_pWindow->SetDevicePanelShown(m_settings.DevicePanelShown());
    m_pWindow->Welcome().SetDismissed(m_settings.WelcomeDismissed());
    const FirstPaint firstPaint(m_pWindow.data());
    m_pWindow->show();
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(PAINT_LIMIT_MS);
    while (!firstPaint.HasCome() && limit.isActive() && !m_bClosing) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    if (m_pCompanion != nullptr && firstPaint.HasCome()) {
        m_pCompanion->Painted();
    }
}

void HostApplication::fillWindow()
{
    m_pWindow->BuildPages();
    m_pWindow->Retranslate();
    showProblems();
    m_pWindow->Status().SetState(m_pWatcher->State());
    m_pHold.reset(new PhonebookHold(m_services.Workers()));
    // Before the window reads: what others write from here on is news to it.
    m_pStoreWatch->Start();
    m_pWindow->ShowPage(QLatin1String(LINKHAND_ADDRBOOK_NAME));
    if (QWidget* const pPage = m_pWindow->Page(QLatin1String(LINKHAND_ADDRBOOK_NAME))) {
        m_pLive.reset(
            new LivePhonebook(*m_pStoreWatch, *m_pContainer, m_services.Workers(), *pPage, m_pWindow->Status()));
        m_pAids.reset(new PhonebookAids(*pPage, m_services.Workers(), m_pWindow->Status(), m_settings));
        connect(&m_pAids->Layout(), SIGNAL(restored()), this, SLOT(OnLayoutRestored()));
        if (m_pCompanion != nullptr) {
            m_pCompanion->PhonebookShown(*pPage);
        }
    }
}

void HostApplication::OnLayoutRestored()
{
    if (m_line.strScreenshot.isEmpty() && m_pWindow->CurrentPage() == QLatin1String(LINKHAND_ADDRBOOK_NAME)) {
        m_pWindow->ShowPage(m_settings.FirstPage());
    }
    // The contacts came as copies, which are gone by now.
    Heap::GiveBack();
}

void HostApplication::applyLanguage(const QString& strCode)
{
    m_services.SetLanguage(strCode);
    const QLocale locale(strCode);
    QLocale::setDefault(locale);
    const QFont font = fontFor(strCode);
    if (font != QApplication::font()) {
        QApplication::setFont(font);
    }
    // The texts of Qt's own dialogs, where the distribution has them.
    m_pQtTexts.reset(new QTranslator);
    if (m_pQtTexts->load(QLatin1String("qt_") + strCode, QtCompat::translationsFolder())) {
        QApplication::installTranslator(m_pQtTexts.data());
    }
    // Last: a change of translators sets the direction of Qt's own texts.
    QApplication::setLayoutDirection(locale.textDirection());
}

void HostApplication::keepPlace()
{
    const HostSettings::Together together(m_settings);
    m_settings.SetGeometry(m_pWindow->saveGeometry());
    m_settings.SetDevicePanelShown(m_pWindow->DevicePanelShown());
    m_settings.SetLastPage(m_pWindow->CurrentPage());
    if (m_pAids) {
        m_pAids->Layout().Keep();
    }
}

void HostApplication::shutDown()
{
    // Whatever the plug-ins still open on their way out comes back at once, unseen: boxes are answered for the user,
    // and no loop begins any more.
    m_services.State().SetClosing();
    QCoreApplication::exit(m_iExitCode);
    m_instance.StopListening();
    if (m_line.strScreenshot.isEmpty()) {
        keepPlace();
    }
    m_pWindow->hide();
    m_pModem->Finish();
    m_pWatcher->Stop();
    m_pLossWatcher->Stop();
    m_pFindings->Stop();
    m_pStoreWatch->Stop();
    m_pHold.reset();
    m_pAids.reset();
    m_pLifecycle->ShutDown(SHUTDOWN_LIMIT_MS);
}
