#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include "MenuChooser.h"
#include "StandInFolder.h"
#include "app/Link.h"
#include "app/Services.h"
#include "device/DeviceWatcher.h"
#include "device/SimulatedHardware.h"
#include "device/SimulatedModem.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IDeviceMgr.h"
#include "linkhand/plugin/IMMSUIPlugin.h"
#include "linkhand/plugin/INotifyService.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/PluginLifecycle.h"
#include "loader/PluginLoader.h"
#include "messages/MessageStore.h"
#include "orva/orva_sim.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

namespace
{

const char* const SIBLINGS[] = {LINKHAND_SMS_NAME,       LINKHAND_MMS_NAME,    LINKHAND_VOICECALL_NAME,
                                LINKHAND_VIDEOCALL_NAME, LINKHAND_NOTIFY_NAME, LINKHAND_DEVICEMGR_NAME};

} // namespace

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
    QScopedPointer<MessageStore> m_pOutbox;
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
    m_pOutbox.reset(new MessageStore(m_pFolder->Path()));
    m_pModem.reset(new SimulatedModem(*m_pOutbox));
    m_pWatcher.reset(new DeviceWatcher);
    m_pContainer.reset(new PluginContainer);
    m_pServices->SetContainer(m_pContainer.data());
    m_pServices->SetModem(m_pModem.data());
    m_pLifecycle.reset(new PluginLifecycle(*m_pContainer, m_pServices->State()));
    m_pWindow.reset(new MainWindow(*m_pContainer, *m_pOutbox, *m_pWatcher));
    m_pServices->SetMainWindow(m_pWindow.data());
    m_pLink.reset(new Link(*m_pModem, *m_pOutbox, m_pWindow.data(), m_pFolder->Path() + '/'));
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
    const QString strPlugins = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/plugins";
    for (const char* pszName : SIBLINGS) {
        const QString strFile = QStringLiteral("/lib%1.so").arg(pszName);
        QVERIFY(QFile::copy(strPlugins + strFile, m_pFolder->Path() + strFile));
    }
    if (bPhonebook) {
        m_pFolder->Add("AddrBookStandIn");
    }
    ProblemList problems;
    PluginLoader(m_pFolder->Path()).LoadAll(*m_pContainer, problems);
    QVERIFY2(problems.isEmpty(), problems.isEmpty() ? "" : qPrintable(problems.first().strDetail));
    m_pLifecycle->InitAll(problems);
    m_pWindow->BuildPages();
    m_pWindow->Retranslate();
    m_pWindow->show();
}

QWidget* TestSiblings::editor(const char* pszPlugin)
{
    return m_pWindow->findChild<QWidget*>(QLatin1String(pszPlugin) + QLatin1String("_editor"));
}

void TestSiblings::eachIsFoundByItsIdentifierAndKind_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("iid");
    QTest::newRow("SMSUIPlugin") << "ED395DF6-E3BA-478e-8AE9-D8A1BF090214" << 4097
                                 << "com.teskra.linkhand.plugin.ISMSUIService";
    QTest::newRow("MMSUIPlugin") << "8A8F7C8C-B6DE-41cb-9228-D78C95312E87" << 32785
                                 << "com.teskra.linkhand.plugin.IMMSUIPlugin";
    QTest::newRow("VoiceCallPlugin") << "58A0343A-93DB-4ea2-92B4-C51589629381" << 0
                                     << "com.teskra.linkhand.plugin.IUIPlugin";
    QTest::newRow("VideoCallPlugin") << "EAF9E049-AFD3-4DCB-B721-172970E7F3F7" << 0
                                     << "com.teskra.linkhand.plugin.IBasePlugin";
    QTest::newRow("NotifyPlugin") << "C986A689-A5F6-4215-84BD-39BA626F1F57" << 8209
                                  << "com.teskra.linkhand.plugin.INotifyService";
    QTest::newRow("DeviceMgrPlugin") << "8772F2BF-3227-4203-AFDD-DBAD1E9D1F98" << 4097
                                     << "com.teskra.linkhand.plugin.IDeviceMgr";
}

void TestSiblings::eachIsFoundByItsIdentifierAndKind()
{
    QFETCH(QString, id);
    QFETCH(int, kind);
    QFETCH(QString, iid);
    load(false);
    QObject* pObject = m_pContainer->GetPlugin(id, kind);
    QVERIFY(pObject != nullptr);
    QVERIFY(pObject->qt_metacast(iid.toLatin1().constData()) != nullptr);
    QVERIFY(m_pContainer->GetPlugin(id, 0) != nullptr);
    QVERIFY(m_pContainer->GetPlugin(id, 4711) == nullptr);
    PluginHandle* pHandle = m_pContainer->FindByName(QTest::currentDataTag());
    QVERIFY(pHandle != nullptr);
    QCOMPARE(pHandle->ClassId(), id);
    QCOMPARE(pHandle->GetState(), PluginHandle::READY);
}

void TestSiblings::anSmsGoesFromTheEditorToTheOutbox()
{
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123;456", "Hello", nullptr);
    QPointer<QWidget> pEditor = editor("SMSUIPlugin");
    QVERIFY(pEditor && pEditor->isVisible());
    QTest::mouseClick(in<QPushButton>(pEditor, "SMSUIPlugin_buttonSend"), Qt::LeftButton);
    QCOMPARE(m_pOutbox->Messages().size(), 1);
    const OutgoingMessage message = m_pOutbox->Messages().first().message;
    QCOMPARE(message.iKind, int(HOST_MESSAGE_SMS));
    QCOMPARE(message.lstNumbers, QStringList() << "123"
                                               << "456");
    QCOMPARE(message.strText, QStringLiteral("Hello"));
    QVERIFY(m_pWindow->Status().Notices().first().contains("outbox"));
    QTRY_VERIFY(!pEditor);
}

void TestSiblings::anMmsTakesASubject()
{
    load(true);
    service<IMMSUIPlugin>(LINKHAND_MMS_ID, LINKHAND_MMS_KIND)->SendMessage("123");
    QWidget* pEditor = editor("MMSUIPlugin");
    QTest::keyClicks(in<QLineEdit>(pEditor, "MMSUIPlugin_lineeditSubject"), "Holiday");
    QTest::mouseClick(in<QPushButton>(pEditor, "MMSUIPlugin_buttonSend"), Qt::LeftButton);
    QCOMPARE(m_pOutbox->Messages().size(), 1);
    QCOMPARE(m_pOutbox->Messages().first().message.iKind, int(HOST_MESSAGE_MMS));
    QCOMPARE(m_pOutbox->Messages().first().message.strSubject, QStringLiteral("Holiday"));
}

void TestSiblings::theEditorShowsRecipientsAndText()
{
    load(true);
    ISMSUIService* pSms = service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND);
    pSms->SendMessage("123;456;123", QString(161, 'a'), m_pWindow.data());
    QWidget* pEditor = editor("SMSUIPlugin");
    QCOMPARE(in<QLineEdit>(pEditor, "SMSUIPlugin_lineeditTo")->text(), QStringLiteral("123; 456; 123"));
    QCOMPARE(in<QPlainTextEdit>(pEditor, "SMSUIPlugin_texteditText")->toPlainText().length(), 161);
    QCOMPARE(in<QLabel>(pEditor, "SMSUIPlugin_labelLength")->text(),
             QStringLiteral("Characters: 161, messages: 2; to 3 recipients: 6 in all"));
    // In one line where there is room for it.
    const QLabel* pLength = in<QLabel>(pEditor, "SMSUIPlugin_labelLength");
    pEditor->window()->resize(1000, 500);
    QTRY_VERIFY(pLength->width() >= QtCompat::textWidth(pLength->fontMetrics(), pLength->text()));
    // In the digits of the language.
    QLocale::setDefault(QLocale("ar"));
    in<QPlainTextEdit>(pEditor, "SMSUIPlugin_texteditText")->setPlainText("a");
    QLocale::setDefault(QLocale::system());
    QVERIFY(in<QLabel>(pEditor, "SMSUIPlugin_labelLength")->text().startsWith(QString::fromUtf8("Characters: ١, ")));
    // A second message has an editor of its own.
    pSms->SendMessage(QString(), QString(), nullptr);
    QCOMPARE(m_pWindow->findChildren<QWidget*>("SMSUIPlugin_editor").size(), 2);
}

void TestSiblings::sendIsOffWithoutRecipientTextOrValidNumber_data()
{
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("nothing") << ""
                             << "" << false;
    QTest::newRow("no recipient") << ""
                                  << "Hello" << false;
    QTest::newRow("no text") << "123"
                             << "" << false;
    QTest::newRow("a name") << "123;Anna"
                            << "Hello" << false;
    QTest::newRow("complete") << "123;+49 170"
                              << "Hello" << true;
}

void TestSiblings::sendIsOffWithoutRecipientTextOrValidNumber()
{
    QFETCH(QString, to);
    QFETCH(QString, text);
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage(to, text, nullptr);
    QTEST(in<QPushButton>(editor("SMSUIPlugin"), "SMSUIPlugin_buttonSend")->isEnabled(), "enabled");
}

void TestSiblings::recipientsComeFromThePhonebook()
{
    load(true);
    QObject* pPhonebook = m_pContainer->GetPlugin(LINKHAND_ADDRBOOK_NAME, LINKHAND_ADDRBOOK_KIND);
    pPhonebook->setProperty("choice", QStringList() << "123"
                                                    << "789"
                                                    << "789");
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123", QString(), nullptr);
    QWidget* pEditor = editor("SMSUIPlugin");
    QTest::mouseClick(in<QPushButton>(pEditor, "SMSUIPlugin_buttonAddRecipients"), Qt::LeftButton);
    QCOMPARE(pPhonebook->property("asked").toStringList(), QStringList() << "123"
                                                                         << "many");
    QCOMPARE(in<QLineEdit>(pEditor, "SMSUIPlugin_lineeditTo")->text(), QStringLiteral("123; 789"));
}

void TestSiblings::cancellingThePhonebookChangesNothing()
{
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123", QString(), nullptr);
    QWidget* pEditor = editor("SMSUIPlugin");
    QTest::mouseClick(in<QPushButton>(pEditor, "SMSUIPlugin_buttonAddRecipients"), Qt::LeftButton);
    QCOMPARE(in<QLineEdit>(pEditor, "SMSUIPlugin_lineeditTo")->text(), QStringLiteral("123"));
}

void TestSiblings::aNumberIsSavedToThePhonebook()
{
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("+49 170", QString(), nullptr);
    QTest::mouseClick(in<QPushButton>(editor("SMSUIPlugin"), "SMSUIPlugin_buttonSaveNumber"), Qt::LeftButton);
    QCOMPARE(m_pContainer->GetPlugin(LINKHAND_ADDRBOOK_NAME, LINKHAND_ADDRBOOK_KIND)->property("saved").toStringList(),
             QStringList("+49170"));
}

void TestSiblings::theUserChoosesWhichNumberToSave()
{
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123;456", QString(), nullptr);
    MenuChooser chooser(1);
    QTest::mouseClick(in<QPushButton>(editor("SMSUIPlugin"), "SMSUIPlugin_buttonSaveNumber"), Qt::LeftButton);
    QCOMPARE(m_pContainer->GetPlugin(LINKHAND_ADDRBOOK_NAME, LINKHAND_ADDRBOOK_KIND)->property("saved").toStringList(),
             QStringList("456"));
}

void TestSiblings::withoutAPhonebookItsButtonsAreOff()
{
    load(false);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123", "Hello", nullptr);
    QWidget* pEditor = editor("SMSUIPlugin");
    QVERIFY(!in<QPushButton>(pEditor, "SMSUIPlugin_buttonAddRecipients")->isEnabled());
    QVERIFY(!in<QPushButton>(pEditor, "SMSUIPlugin_buttonSaveNumber")->isEnabled());
    QVERIFY(in<QPushButton>(pEditor, "SMSUIPlugin_buttonSend")->isEnabled());
}

void TestSiblings::anOutboxThatCannotBeWrittenKeepsTheEditorOpen()
{
    load(true);
    Services answers(m_pFolder->Path(), QString());
    answers.SetAnswers(QList<int>() << QMessageBox::Ok);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123", "Hello", nullptr);
    // A folder in the way of the file.
    QVERIFY(QDir(m_pFolder->Path()).mkdir("messages.db"));
    answers.SetContainer(m_pContainer.data());
    answers.Publish();
    QPointer<QWidget> pEditor = editor("SMSUIPlugin");
    QTest::mouseClick(in<QPushButton>(pEditor, "SMSUIPlugin_buttonSend"), Qt::LeftButton);
    m_pServices->Publish();
    QCoreApplication::processEvents();
    QVERIFY(pEditor && pEditor->isVisible());
    QVERIFY(m_pOutbox->Messages().isEmpty());
}

void TestSiblings::openEditorsFollowTheLanguage()
{
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123", QString(), nullptr);
    QPushButton* pSend = in<QPushButton>(editor("SMSUIPlugin"), "SMSUIPlugin_buttonSend");
    QCOMPARE(pSend->text(), QStringLiteral("Send"));
    pSend->setText("old");
    m_pLifecycle->NotifyAll(320, 0);
    QCOMPARE(pSend->text(), QStringLiteral("Send"));
    pSend->setText("old");
    m_pLifecycle->NotifyAll(321, 0);
    QCOMPARE(pSend->text(), QStringLiteral("old"));
}

void TestSiblings::openEditorsGoWithThePlugin()
{
    load(true);
    service<ISMSUIService>(LINKHAND_SMS_ID, LINKHAND_SMS_KIND)->SendMessage("123", QString(), nullptr);
    const QPointer<QWidget> pEditor = editor("SMSUIPlugin");
    QVERIFY(m_pLifecycle->ShutDown(1000));
    QVERIFY(!pEditor);
}

void TestSiblings::aVoiceCallIsShownUntilHungUp()
{
    load(true);
    m_pWindow->ShowPage(LINKHAND_ADDRBOOK_NAME);
    QVERIFY(CommonUtils::MakeCall("+49 170 1", UI_CALL_VOICE));
    QWidget* pPage = m_pWindow->Page(LINKHAND_VOICECALL_NAME);
    QVERIFY(pPage->isVisible());
    QWidget* pBox = in<QWidget>(pPage, "VoiceCallPlugin_callBox");
    QVERIFY(pBox->isVisible());
    QCOMPARE(in<QLabel>(pBox, "VoiceCallPlugin_labelNumber")->text(), QStringLiteral("+491701"));
    QVERIFY2(!CommonUtils::MakeCall("2", UI_CALL_VOICE), "one call at a time");
    QTest::mouseClick(in<QPushButton>(pBox, "VoiceCallPlugin_buttonHangUp"), Qt::LeftButton);
    QVERIFY(!pBox->isVisible());
    QTreeWidget* pCalls = in<QTreeWidget>(pPage, "VoiceCallPlugin_treeCalls");
    QCOMPARE(pCalls->topLevelItemCount(), 1);
    QCOMPARE(pCalls->topLevelItem(0)->text(0), QStringLiteral("+491701"));
    QVERIFY(!pCalls->topLevelItem(0)->text(4).isEmpty());
    QVERIFY(CommonUtils::MakeCall("2", UI_CALL_VOICE));
    QCOMPARE(pCalls->topLevelItem(0)->text(0), QStringLiteral("2"));
}

void TestSiblings::aVideoCallHasAWindow()
{
    load(true);
    QVERIFY(m_pLink->Dial("123", HOST_CALL_VIDEO));
    QWidget* pWindow = in<QWidget>(m_pWindow.data(), "VideoCallPlugin_window");
    QVERIFY(pWindow != nullptr && pWindow->isVisible());
    m_pWindow->ShowPage(LINKHAND_VOICECALL_NAME);
    QVERIFY(!in<QWidget>(m_pWindow.data(), "VoiceCallPlugin_callBox")->isVisible());
    // One call at a time, of whichever type.
    QWidget* pPage = m_pWindow->Page(LINKHAND_VOICECALL_NAME);
    QTest::keyClicks(in<QLineEdit>(pPage, "VoiceCallPlugin_lineeditNumber"), "456");
    QVERIFY(!in<QPushButton>(pPage, "VoiceCallPlugin_buttonCall")->isEnabled());
    QVERIFY(!in<QPushButton>(pPage, "VoiceCallPlugin_buttonVideoCall")->isEnabled());
    QTest::mouseClick(in<QPushButton>(pWindow, "VideoCallPlugin_buttonHangUp"), Qt::LeftButton);
    QVERIFY(!pWindow->isVisible());
    QVERIFY(in<QPushButton>(pPage, "VoiceCallPlugin_buttonCall")->isEnabled());
    QVERIFY(m_pLink->Dial("456", HOST_CALL_VIDEO));
    QVERIFY(pWindow->isVisible());
}

void TestSiblings::closingTheVideoWindowHangsUp()
{
    load(true);
    const QSignalSpy ended(m_pModem.data(), SIGNAL(callEnded(QString, int)));
    QVERIFY(m_pLink->Dial("123", HOST_CALL_VIDEO));
    QVERIFY(in<QWidget>(m_pWindow.data(), "VideoCallPlugin_window")->close());
    QCOMPARE(ended.count(), 1);
}

void TestSiblings::theCallPageDials()
{
    load(true);
    m_pWindow->ShowPage(LINKHAND_VOICECALL_NAME);
    QWidget* pPage = m_pWindow->Page(LINKHAND_VOICECALL_NAME);
    QLineEdit* pNumber = in<QLineEdit>(pPage, "VoiceCallPlugin_lineeditNumber");
    QPushButton* pCall = in<QPushButton>(pPage, "VoiceCallPlugin_buttonCall");
    QVERIFY(!pCall->isEnabled());
    QTest::keyClicks(pNumber, "12x");
    QVERIFY(!pCall->isEnabled());
    QTest::keyClick(pNumber, Qt::Key_Backspace);
    QVERIFY(pCall->isEnabled());
    QVERIFY(in<QPushButton>(pPage, "VoiceCallPlugin_buttonVideoCall")->isVisible());
    QTest::keyClick(pNumber, Qt::Key_Return);
    QVERIFY(in<QWidget>(pPage, "VoiceCallPlugin_callBox")->isVisible());
    QVERIFY(!pCall->isEnabled());
    m_pLink->HangUp();
    QVERIFY(pCall->isEnabled());
}

void TestSiblings::aCallThatCannotStartIsSaid()
{
    load(true);
    SimulatedHardware::SetNetwork(false);
    m_pWindow->ShowPage(LINKHAND_VOICECALL_NAME);
    QWidget* pPage = m_pWindow->Page(LINKHAND_VOICECALL_NAME);
    QTest::keyClicks(in<QLineEdit>(pPage, "VoiceCallPlugin_lineeditNumber"), "123");
    Services answers(m_pFolder->Path(), QString());
    answers.SetAnswers(QList<int>() << QMessageBox::Ok);
    answers.Publish();
    QTest::mouseClick(in<QPushButton>(pPage, "VoiceCallPlugin_buttonCall"), Qt::LeftButton);
    m_pServices->Publish();
    QCOMPARE(answers.MessageAnswer(QMessageBox::Critical, "", ""), -1);
    QVERIFY(!in<QWidget>(pPage, "VoiceCallPlugin_callBox")->isVisible());
}

void TestSiblings::notificationsReachTheStatusAreaAndTheLog_data()
{
    QTest::addColumn<bool>("broadcast");
    QTest::addColumn<int>("message");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("notice");
    QTest::newRow("card came") << true << 291 << 1 << 0 << "The card’s phonebook is there";
    QTest::newRow("card went") << true << 291 << 0 << 0 << "The card’s phonebook has gone";
    QTest::newRow("device came") << true << 292 << 1 << 0 << "The device’s phonebook is there";
    QTest::newRow("device went") << true << 292 << 0 << 0 << "The device’s phonebook has gone";
    QTest::newRow("added, by nobody known") << false << 288 << 0 << 12345 << "Contact added";
    QTest::newRow("changed, by nobody known") << false << 289 << 0 << 12345 << "Contact changed";
    QTest::newRow("deleted, number did not fit") << false << 290 << 1 << 0 << "Contact deleted";
    QTest::newRow("unknown") << false << 999 << 1 << 2 << "";
}

void TestSiblings::notificationsReachTheStatusAreaAndTheLog()
{
    QFETCH(bool, broadcast);
    QFETCH(int, message);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, notice);
    load(true);
    INotifyService* pService = service<INotifyService>(LINKHAND_NOTIFY_ID, LINKHAND_NOTIFY_KIND);
    if (broadcast) {
        pService->Broadcast(unsigned(message), unsigned(first), unsigned(second));
    } else {
        pService->Push(unsigned(message), unsigned(first), unsigned(second));
    }
    QTRY_COMPARE(m_pWindow->Status().Notices().value(0).section("  ", 1), notice);
    m_pLifecycle->ShutDown(1000);
    QFile log(m_pFolder->Path() + "/notifications.log");
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(QString(log.readAll())
                .endsWith(QStringLiteral(" %1 %2 %3 %4\n")
                              .arg(broadcast ? "broadcast" : "push")
                              .arg(message)
                              .arg(first)
                              .arg(second)));
}

QTEST_MAIN(TestSiblings)
#include "test_siblings.moc"
