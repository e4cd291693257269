#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include "WindowSetup.h"
#include "app/Link.h"
#include "device/SimulatedModem.h"
#include "linkhand/plugin/Codes.h"

// The page of messages with the messaging plug-ins as they are built: what is there is opened, edited, forwarded, sent
// again and searched.
class TestSiblingMessages : public WindowSetup
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aDraftIsOpenedAndKeepsItsPlace();
    void aDraftIsSentFromThePage();
    void whatWasSentIsSentAgainByAFormOfItsOwn();
    void aMessageIsForwardedWithoutItsRecipients();
    void aReceivedMessageIsAnswered();
    void anMmsIsOpenedWithItsSubject();
    void theEndOfTheProgramKeepsWhatIsOpen();
    void aDraftThatWasSentMeanwhileIsKeptAsANewOne();
    void theSearchLooksIntoTextAndNumber();
    void theTimeFitsBeforeNoonAndAfter();

private:
    int add(const QString& strText, MessageState enState, int iKind = HOST_MESSAGE_SMS);
    void press(const char* pszButton)
    {
        QVERIFY2(find<QPushButton>(pszButton)->isEnabled(), pszButton);
        find<QPushButton>(pszButton)->click();
    }
    QString to(const char* pszPlugin = "SMSUIPlugin")
    {
        QLineEdit* pTo = m_pWindow->findChild<QLineEdit*>(QLatin1String(pszPlugin) + "_lineeditTo");
        return pTo == nullptr ? QString("no form") : pTo->text();
    }
    QPlainTextEdit* text() { return find<QPlainTextEdit>("SMSUIPlugin_texteditText"); }

    QScopedPointer<SimulatedModem> m_pModem;
    QScopedPointer<PluginLifecycle> m_pLifecycle;
    QScopedPointer<Link> m_pLink;
};

void TestSiblingMessages::init()
{
    begin();
    m_pModem.reset(new SimulatedModem(*m_pOutbox));
    m_pWindow.reset(new MainWindow(*m_pContainer, *m_pOutbox, *m_pWatcher, m_pModem.data()));
    m_pServices->SetMainWindow(m_pWindow.data());
    m_pLink.reset(new Link(*m_pModem, *m_pOutbox, m_pWindow.data(), m_pFolder->Path() + '/'));
    m_pLink->Publish();
    const QString strPlugins = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/plugins";
    for (const char* pszName : {LINKHAND_SMS_NAME, LINKHAND_MMS_NAME}) {
        const QString strFile = QStringLiteral("/lib%1.so").arg(pszName);
        QVERIFY(QFile::copy(strPlugins + strFile, m_pFolder->Path() + strFile));
    }
    PluginLoader(m_pFolder->Path()).LoadAll(*m_pContainer, m_problems);
    m_pLifecycle.reset(new PluginLifecycle(*m_pContainer, m_pServices->State()));
    m_pLifecycle->InitAll(m_problems);
    m_pWindow->BuildPages();
    m_pWindow->Retranslate();
    m_pWindow->show();
    m_pWindow->ShowPage("Messages");
}

void TestSiblingMessages::cleanup()
{
    QLocale::setDefault(QLocale::c());
    m_pLifecycle->ShutDown(1000);
    m_pLink->Withdraw();
    m_pLink.reset();
    end();
    m_pModem.reset();
}

int TestSiblingMessages::add(const QString& strText, MessageState enState, int iKind)
{
    OutgoingMessage message;
    message.iKind = iKind;
    message.lstNumbers << "123"
                       << "456";
    message.strText = strText;
    message.strSubject = iKind == HOST_MESSAGE_MMS ? "Holiday" : "";
    return m_pOutbox->Add(message, enState);
}

void TestSiblingMessages::aDraftIsOpenedAndKeepsItsPlace()
{
    const int iDraft = add("ello", MESSAGE_DRAFT);
    press("linkhand_Messages_open");
    QCOMPARE(to(), QString("123; 456"));
    QTest::keyClicks(text(), "H");
    m_pServices->SetAnswers({QMessageBox::Ok});
    find<QPushButton>("SMSUIPlugin_buttonClose")->click();
    QTRY_VERIFY(text() == nullptr);
    QCOMPARE(m_pOutbox->Messages().size(), 1);
    QCOMPARE(m_pOutbox->Message(iDraft).message.strText, QString("Hello"));
    QCOMPARE(m_pOutbox->Message(iDraft).iState, int(MESSAGE_DRAFT));
    // Opened and sent it is a draft no more.
    press("linkhand_Messages_open");
    find<QPushButton>("SMSUIPlugin_buttonSend")->click();
    QCOMPARE(m_pOutbox->Messages().size(), 1);
    QCOMPARE(m_pOutbox->Messages().first().iState, int(MESSAGE_SIMULATED));
}

void TestSiblingMessages::aDraftIsSentFromThePage()
{
    const int iDraft = add("Hello", MESSAGE_DRAFT);
    press("linkhand_Messages_send");
    QCOMPARE(m_pOutbox->Message(iDraft).iState, int(MESSAGE_SIMULATED));
    QVERIFY(text() == nullptr);
}

void TestSiblingMessages::whatWasSentIsSentAgainByAFormOfItsOwn()
{
    const int iSent = add("Hello", MESSAGE_SENT);
    press("linkhand_Messages_send");
    QCOMPARE(to(), QString("123; 456"));
    QCOMPARE(m_pOutbox->Messages().size(), 1);
    find<QPushButton>("SMSUIPlugin_buttonSend")->click();
    QCOMPARE(m_pOutbox->Messages().size(), 2);
    QCOMPARE(m_pOutbox->Message(iSent).iState, int(MESSAGE_SENT));
}

void TestSiblingMessages::aMessageIsForwardedWithoutItsRecipients()
{
    add("Hello", MESSAGE_SENT);
    press("linkhand_Messages_forward");
    QCOMPARE(to(), QString());
    QCOMPARE(text()->toPlainText(), QString("Hello"));
}

void TestSiblingMessages::aReceivedMessageIsAnswered()
{
    add("Hello", MESSAGE_RECEIVED);
    QVERIFY(!find<QPushButton>("linkhand_Messages_open")->isEnabled());
    press("linkhand_Messages_send");
    QCOMPARE(to(), QString("123; 456"));
    QCOMPARE(text()->toPlainText(), QString());
}

void TestSiblingMessages::anMmsIsOpenedWithItsSubject()
{
    add("Look", MESSAGE_DRAFT, HOST_MESSAGE_MMS);
    press("linkhand_Messages_open");
    QCOMPARE(to("MMSUIPlugin"), QString("123; 456"));
    QCOMPARE(find<QLineEdit>("MMSUIPlugin_lineeditSubject")->text(), QString("Holiday"));
    QCOMPARE(find<QPlainTextEdit>("MMSUIPlugin_texteditText")->toPlainText(), QString("Look"));
}

void TestSiblingMessages::theEndOfTheProgramKeepsWhatIsOpen()
{
    add("Hello", MESSAGE_SENT);
    press("linkhand_Messages_forward");
    QTest::keyClicks(text(), "Well: ");
    m_pServices->State().SetClosing();
    m_pWindow->hide();
    m_pLifecycle->ShutDown(1000);
    QCOMPARE(m_pOutbox->Messages().size(), 2);
    QCOMPARE(m_pOutbox->Messages().last().message.strText, QString("Well: Hello"));
    QCOMPARE(m_pOutbox->Messages().last().iState, int(MESSAGE_DRAFT));
}

void TestSiblingMessages::aDraftThatWasSentMeanwhileIsKeptAsANewOne()
{
    const int iDraft = add("Hello", MESSAGE_DRAFT);
    QVERIFY(m_pOutbox->SetState(iDraft, MESSAGE_SENT));
    const int iKept = m_pLink->KeepDraft(iDraft, HOST_MESSAGE_SMS, {"1"}, QString(), "more");
    QVERIFY(iKept != 0 && iKept != iDraft);
    QCOMPARE(m_pOutbox->Message(iDraft).message.strText, QString("Hello"));
    m_pLink->ForgetDraft(iDraft);
    QCOMPARE(m_pOutbox->Messages().size(), 2);
    m_pLink->ForgetDraft(iKept);
    QCOMPARE(m_pOutbox->Messages().size(), 1);
}

void TestSiblingMessages::theSearchLooksIntoTextAndNumber()
{
    add("Hello", MESSAGE_SENT);
    OutgoingMessage other;
    other.lstNumbers << "+49170999";
    other.strText = "Goodbye";
    QVERIFY(m_pOutbox->Add(other));
    QTreeWidget* pList = find<QTreeWidget>("linkhand_Messages_list");
    QLineEdit* pSearch = find<QLineEdit>("linkhand_Messages_search");
    pSearch->setText("goodb");
    QCOMPARE(pList->topLevelItemCount(), 1);
    pSearch->setText("170999");
    QCOMPARE(pList->topLevelItemCount(), 1);
    pSearch->setText("nobody");
    QCOMPARE(pList->topLevelItemCount(), 0);
    QVERIFY(!find<QPushButton>("linkhand_Messages_delete")->isEnabled());
    pSearch->clear();
    QCOMPARE(pList->topLevelItemCount(), 2);
}

void TestSiblingMessages::theTimeFitsBeforeNoonAndAfter()
{
    // "e paradites" is longer than "e pasdites".
    const QLocale wide("sq_AL");
    QVERIFY(wide.amText().size() > wide.pmText().size());
    QLocale::setDefault(wide);
    m_pWindow->Retranslate();
    const QTreeWidget* pList = find<QTreeWidget>("linkhand_Messages_list");
    const QDateTime morning(QDate(2028, 12, 28), QTime(10, 58));
    const int iText = pList->fontMetrics().boundingRect(wide.toString(morning, QLocale::ShortFormat)).width();
    QVERIFY2(pList->columnWidth(3) >= iText, qPrintable(QString("%1 < %2").arg(pList->columnWidth(3)).arg(iText)));
}

QTEST_MAIN(TestSiblingMessages)
#include "test_sibling_messages.moc"
