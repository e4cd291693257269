#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include "FakeContacts.h"
#include "FakeLink.h"
#include "common/MessageEditor.h"
#include "common/RecipientDialog.h"
#include "common/Recipients.h"
#include "shared/HostContacts.h"
#include "voicecall/CallPage.h"

// Recipients and callers by name. Nobody has texts here, so that each shows as its id.
class TestSiblingRecipients : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aNameIsCompletedToItsNumber();
    void aNumberThatIsTypedStaysAsItIs();
    void theRecipientBeforeAnotherIsCompletedInItsPlace();
    void contactsThatComeLateAreOfferedToo();
    void theNamesStandWithTheNumbers();
    void whatIsNoNumberIsRefusedWithItsReason();
    void recipientsAreChosenByName();
    void callsGetTheirNamesWhenTheContactsAreRead();
    void theSearchFindsCallsByNameAndNumber();

private:
    QLineEdit* to() { return m_pEditor->findChild<QLineEdit*>("SMSUIPlugin_lineeditTo"); }
    static QAbstractItemView* offered()
    {
        foreach (QWidget* pWidget, QApplication::topLevelWidgets()) {
            if (pWidget->objectName() == "SMSUIPlugin_listContacts" && pWidget->isVisible()) {
                return qobject_cast<QAbstractItemView*>(pWidget);
            }
        }
        return nullptr;
    }

    QScopedPointer<FakeLink> m_pLink;
    QScopedPointer<FakeContacts> m_pContacts;
    QScopedPointer<MessageEditor> m_pEditor;
};

void TestSiblingRecipients::initTestCase()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
    const MessageEditor first("SMSUIPlugin", HOST_MESSAGE_SMS);
}

void TestSiblingRecipients::init()
{
    m_pLink.reset(new FakeLink);
    m_pContacts.reset(new FakeContacts);
    m_pContacts->names["0170111"] = "Anna";
    m_pContacts->names["0170222"] = "Antonia";
    m_pContacts->names["0180333"] = "Berta";
    m_pEditor.reset(new MessageEditor("SMSUIPlugin", HOST_MESSAGE_SMS));
    m_pEditor->show();
    QApplication::setActiveWindow(m_pEditor.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pEditor.data()));
}

void TestSiblingRecipients::cleanup()
{
    m_pEditor.reset();
    m_pContacts.reset();
    m_pLink.reset();
}

void TestSiblingRecipients::aNameIsCompletedToItsNumber()
{
    QCOMPARE(m_pContacts->iReadings, 1);
    QTest::keyClicks(to(), "An");
    QTRY_VERIFY(offered() != nullptr);
    QCOMPARE(offered()->model()->rowCount(), 2);
    QVERIFY(offered()->model()->index(0, 0).data().toString().contains("0170111"));
    QTest::keyClick(offered(), Qt::Key_Down);
    QTest::keyClick(offered(), Qt::Key_Return);
    QCOMPARE(to()->text(), QString("0170222; "));
    QVERIFY(offered() == nullptr);
    QTest::keyClicks(to(), "Be");
    QTRY_VERIFY(offered() != nullptr);
    QTest::keyClick(offered(), Qt::Key_Return);
    QCOMPARE(m_pEditor->GetRecipients(), QStringList({"0170222", "0180333"}));
}

void TestSiblingRecipients::aNumberThatIsTypedStaysAsItIs()
{
    QTest::keyClicks(to(), "0170");
    QTRY_VERIFY(offered() != nullptr);
    QTest::keyClick(offered(), Qt::Key_Return);
    QCOMPARE(to()->text(), QString("0170"));
    QTest::keyClicks(to(), "111");
    QVERIFY(offered() == nullptr);
}

void TestSiblingRecipients::theRecipientBeforeAnotherIsCompletedInItsPlace()
{
    to()->setText("5; ; 7");
    to()->setCursorPosition(3);
    QTest::keyClicks(to(), "Ber");
    QTRY_VERIFY(offered() != nullptr);
    QTest::keyClick(offered(), Qt::Key_Return);
    QCOMPARE(to()->text(), QString("5; 0180333; 7"));
}

void TestSiblingRecipients::contactsThatComeLateAreOfferedToo()
{
    m_pContacts->names.clear();
    QTest::keyClicks(to(), "Ber");
    QVERIFY(offered() == nullptr);
    m_pContacts->names["0180333"] = "Berta";
    emit m_pContacts->contactsRead();
    QTRY_VERIFY(offered() != nullptr);
}

void TestSiblingRecipients::theNamesStandWithTheNumbers()
{
    const QLabel* pWho = m_pEditor->findChild<QLabel*>("SMSUIPlugin_labelRecipients");
    QVERIFY(!pWho->isVisible());
    m_pEditor->SetRecipients({"0170111", "999", "0180333"});
    QCOMPARE(pWho->text(), Recipients::WithName("0170111", "Anna") + "; " + Recipients::WithName("0180333", "Berta"));
    QVERIFY(pWho->isVisible());
}

void TestSiblingRecipients::whatIsNoNumberIsRefusedWithItsReason()
{
    m_pEditor->SetText("Hello");
    const QLabel* pReason = m_pEditor->findChild<QLabel*>("SMSUIPlugin_labelLength");
    const QPushButton* pSend = m_pEditor->findChild<QPushButton*>("SMSUIPlugin_buttonSend");
    m_pEditor->SetRecipients({"123", "Zoe"});
    QVERIFY(pReason->text().contains("IDS_BAD_NUMBER_NAME"));
    QVERIFY(!pSend->isEnabled());
    m_pEditor->SetRecipients({"123", "++"});
    QVERIFY(pReason->text().contains("IDS_BAD_NUMBER") && !pReason->text().contains("IDS_BAD_NUMBER_NAME"));
    m_pEditor->SetRecipients({"123", "+456"});
    QVERIFY(!pReason->text().contains("IDS_BAD_NUMBER"));
    QVERIFY(pSend->isEnabled());
}

void TestSiblingRecipients::recipientsAreChosenByName()
{
    m_pEditor->SetRecipients({"999"});
    QTimer chooser;
    connect(&chooser, &QTimer::timeout, this, [&] {
        RecipientDialog* pDialog = qobject_cast<RecipientDialog*>(QApplication::activeModalWidget());
        if (pDialog != nullptr) {
            chooser.stop();
            QTreeWidget* pList = pDialog->findChild<QTreeWidget*>();
            QCOMPARE(pList->topLevelItemCount(), 3);
            QLineEdit* pSearch = pDialog->findChild<QLineEdit*>();
            QTest::keyClicks(pSearch, "An");
            QCOMPARE(pList->topLevelItemCount(), 2);
            pList->selectAll();
            QTest::keyClick(pSearch, Qt::Key_Return);
        }
    });
    chooser.start(1);
    m_pEditor->findChild<QPushButton*>("SMSUIPlugin_buttonByName")->click();
    QCOMPARE(m_pEditor->GetRecipients(), QStringList({"999", "0170111", "0170222"}));
}

void TestSiblingRecipients::callsGetTheirNamesWhenTheContactsAreRead()
{
    m_pLink->Keep("0170111", 1);
    CallPage page("VoiceCallPlugin");
    page.show();
    page.Enter();
    QCOMPARE(m_pContacts->iReadings, 2);
    const QTreeWidget* pCalls = page.findChild<QTreeWidget*>();
    QCOMPARE(pCalls->topLevelItem(0)->text(1), QString());
    emit m_pContacts->contactsRead();
    QCOMPARE(pCalls->topLevelItem(0)->text(1), QString("Anna"));
}

void TestSiblingRecipients::theSearchFindsCallsByNameAndNumber()
{
    for (int i = 0; i < 300; ++i) {
        m_pLink->Keep(QString::number(5000 + i), i);
    }
    m_pLink->Keep("0170111", 301);
    CallPage page("VoiceCallPlugin");
    page.show();
    page.Enter();
    emit m_pContacts->contactsRead();
    const QTreeWidget* pCalls = page.findChild<QTreeWidget*>();
    QLineEdit* pSearch = page.findChild<QLineEdit*>("VoiceCallPlugin_lineeditSearch");
    QCOMPARE(pCalls->topLevelItemCount(), 200);
    pSearch->setText("70111");
    QCOMPARE(pCalls->topLevelItemCount(), 1);
    emit m_pContacts->contactsRead();
    pSearch->setText("anna");
    QCOMPARE(pCalls->topLevelItemCount(), 1);
    QVERIFY(page.findChild<QPushButton*>("VoiceCallPlugin_buttonCallNumber")->isEnabled());
    pSearch->setText("nobody");
    QCOMPARE(pCalls->topLevelItemCount(), 0);
    QVERIFY(!page.findChild<QPushButton*>("VoiceCallPlugin_buttonCallNumber")->isEnabled());
    pSearch->clear();
    QVERIFY(pCalls->topLevelItemCount() >= 200);
}

QTEST_MAIN(TestSiblingRecipients)
#include "test_sibling_recipients.moc"
