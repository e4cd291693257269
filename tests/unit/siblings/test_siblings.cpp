#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include "StandInFolder.h"
#include "app/Link.h"
#include "app/Services.h"
#include "common/PluginIds.h"
#include "device/DeviceWatcher.h"
#include "device/Outbox.h"
#include "device/SimulatedHardware.h"
#include "device/SimulatedModem.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/IDeviceMgr.h"
#include "linkhand/plugin/IMMSUIPlugin.h"
#include "linkhand/plugin/INotifyService.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/PluginLifecycle.h"
#include "loader/PluginLoader.h"
#include "orva/orva_sim.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

// The built siblings in the host's frame, with a stand-in phonebook that can be left out.
class TestSiblings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void eachIsFoundByItsIdentifierAndKind_data();
    void eachIsFoundByItsIdentifierAndKind();
    void anSmsGoesFromTheEditorToTheOutbox();
    void anMmsTakesASubject();
    void theEditorShowsRecipientsAndText();
    void sendIsOffWithoutRecipientTextOrValidNumber_data();
    void sendIsOffWithoutRecipientTextOrValidNumber();
    void recipientsComeFromThePhonebook();
    void cancellingThePhonebookChangesNothing();
    void aNumberIsSavedToThePhonebook();
    void theUserChoosesWhichNumberToSave();
    void withoutAPhonebookItsButtonsAreOff();
    void anOutboxThatCannotBeWrittenKeepsTheEditorOpen();
    void openEditorsFollowTheLanguage();
    void openEditorsGoWithThePlugin();
    void aVoiceCallIsShownUntilHungUp();
    void aVideoCallHasAWindow();
    void closingTheVideoWindowHangsUp();
    void theCallPageDials();
    void aCallThatCannotStartIsSaid();
    void notificationsReachTheStatusAreaAndTheLog_data();
    void notificationsReachTheStatusAreaAndTheLog();

private:
    void load(bool bPhonebook);
    QWidget* editor(const char* pszPlugin);
    template <class Widget>
    static Widget* in(QWidget* pParent, const char* pszName)
    {
        return pParent->findChild<Widget*>(QLatin1String(pszName));
    }
    template <class Service>
    Service* service(const char* pszId, int iKind)
    {
        return qobject_cast<Service*>(m_pContainer->GetPlugin(QLatin1String(pszId), iKind));
    }

    QScopedPointer<StandInFolder> m_pFolder;
    QScopedPointer<Services> m_pServices;
    QScopedPointer<Outbox> m_pOutbox;
    QScopedPointer<SimulatedModem> m_pModem;
    QScopedPointer<DeviceWatcher> m_pWatcher;
    QScopedPointer<PluginContainer> m_pContainer;
    QScopedPointer<PluginLifecycle> m_pLifecycle;
    QScopedPointer<MainWindow> m_pWindow;
    QScopedPointer<Link> m_pLink;
};

void TestSiblings::init()
{
    SimulatedHardware::SetDevice(true);
    ORVA_Sim_SetRadio(1, 1);
    SimulatedHardware::SetNetwork(true);
    m_pFolder.reset(new StandInFolder);
    QVERIFY(QFile::link(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/languages",
                        m_pFolder->Path() + "/languages"));
    m_pServices.reset(new Services(m_pFolder->Path(), m_pFolder->Path() + "/s.ini"));
    m_pServices->Publish();
    m_pOutbox.reset(new Outbox(m_pFolder->Path() + "/outbox.xml"));
    m_pModem.reset(new SimulatedModem(*m_pOutbox));
    m_pWatcher.reset(new DeviceWatcher);
    m_pContainer.reset(new PluginContainer);
    m_pServices->SetContainer(m_pContainer.data());
    m_pServices->SetModem(m_pModem.data());
    m_pLifecycle.reset(new PluginLifecycle(*m_pContainer, *m_pServices));
    m_pWindow.reset(new MainWindow(*m_pContainer, *m_pOutbox, *m_pWatcher));
    m_pServices->SetMainWindow(m_pWindow.data());
    m_pLink.reset(new Link(*m_pModem, m_pWindow.data(), m_pFolder->Path() + '/'));
    m_pLink->Publish();
}

void TestSiblings::cleanup()
{
    m_pLifecycle->ShutDown(1000);
    m_pLink->Withdraw();
    m_pWindow.reset();
    m_pContainer.reset();
    m_pServices->Withdraw();
}

void TestSiblings::load(bool bPhonebook)
{
    ProblemList problems;
    PluginLoader(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/plugins")
        .LoadAll(*m_pContainer, problems);
    if (bPhonebook && m_pContainer->FindByName(LINKHAND_ADDRBOOK_NAME) == nullptr) {
        m_pFolder->Add("AddrBookStandIn");
        PluginLoader(m_pFolder->Path()).LoadAll(*m_pContainer, problems);
    }
    QVERIFY2(problems.isEmpty(), problems.isEmpty() ? "" : qPrintable(problems.first().strDetail));
    m_pLifecycle->InitAll(problems);
    m_pWindow->BuildPages();
    m_pWindow->Retranslate();
    m_pWindow->show();
}
