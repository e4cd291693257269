#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "FakeLink.h"
#include "common/MessageEditor.h"
#include "common/MessageWindow.h"
#include "common/MessageWindows.h"

// What becomes of a message that somebody has written and not sent. Nobody has texts here, so that each shows as its
// id.
class TestSiblingDrafts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void closingAsksWhatBecomesOfAText_data();
    void closingAsksWhatBecomesOfAText();
    void whatNobodyHasWrittenClosesWithoutAQuestion();
    void aDraftThatIsUnchangedClosesWithoutAQuestion();
    void aDraftThatWasEditedKeepsItsPlace();
    void aDraftThatWasSentIsNoDraftAnyMore();
    void aDraftThatCouldNotBeSentStays();
    void aTextThatCannotBeKeptStaysOpen();
    void sendingIsOfferedWhereItIsPossible();
    void theEndKeepsWhatIsOpenWithoutAQuestion();
    void aDraftIsOpenOnce();
    void theCounterTellsWhatAllRecipientsTake();

private:
    MessageWindow* open(const QStringList& lstNumbers, const QString& strText, int iDraft = 0);
    // Closes the window; the buttons of the box that asked, empty if there was none.
    QStringList closeWith(MessageWindow* pWindow, const QString& strButton);
    static void type(MessageWindow* pWindow, const QString& strText)
    {
        QTest::keyClicks(pWindow->findChild<QPlainTextEdit*>("SMSUIPlugin_texteditText"), strText);
    }

    QScopedPointer<FakeLink> m_pLink;
    QScopedPointer<MessageWindows> m_pWindows;
};

void TestSiblingDrafts::initTestCase()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
    const MessageEditor first("SMSUIPlugin", HOST_MESSAGE_SMS);
}

void TestSiblingDrafts::init()
{
    m_pLink.reset(new FakeLink);
    m_pWindows.reset(new MessageWindows("SMSUIPlugin", HOST_MESSAGE_SMS));
}

void TestSiblingDrafts::cleanup()
{
    m_pWindows.reset();
    m_pLink.reset();
}

MessageWindow* TestSiblingDrafts::open(const QStringList& lstNumbers, const QString& strText, int iDraft)
{
    m_pWindows->Open(lstNumbers, strText, QString(), iDraft);
    foreach (QWidget* pWidget, QApplication::topLevelWidgets()) {
        MessageWindow* pWindow = qobject_cast<MessageWindow*>(pWidget);
        if (pWindow != nullptr && pWindow->isVisible()) {
            return pWindow;
        }
    }
    return nullptr;
}

QStringList TestSiblingDrafts::closeWith(MessageWindow* pWindow, const QString& strButton)
{
    QStringList lstButtons;
    QTimer answerer;
    connect(&answerer, &QTimer::timeout, this, [&] {
        QMessageBox* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (pBox == nullptr || !lstButtons.isEmpty()) {
            if (pBox != nullptr && pBox->buttons().size() == 1) {
                pBox->close(); // what failed is said
            }
            return;
        }
        QAbstractButton* pChosen = nullptr;
        foreach (QAbstractButton* pButton, pBox->buttons()) {
            lstButtons << pButton->text();
            pChosen = pButton->text() == strButton ? pButton : pChosen;
        }
        if (pChosen != nullptr) {
            pChosen->click();
        } else {
            QTest::keyClick(pBox, Qt::Key_Escape);
        }
    });
    answerer.start(1);
    pWindow->findChild<QPushButton*>("SMSUIPlugin_buttonClose")->click();
    return lstButtons;
}

void TestSiblingDrafts::closingAsksWhatBecomesOfAText_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("drafts");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<bool>("closes");
    QTest::newRow("keep") << "IDS_HOST_KEEP_DRAFT" << QStringList("123||Hello") << QStringList() << true;
    QTest::newRow("send") << "IDS_HOST_SEND" << QStringList() << QStringList("123||Hello") << true;
    QTest::newRow("discard") << "IDS_HOST_DISCARD" << QStringList() << QStringList() << true;
    QTest::newRow("none of them") << "" << QStringList() << QStringList() << false;
}

void TestSiblingDrafts::closingAsksWhatBecomesOfAText()
{
    QFETCH(QString, button);
    QFETCH(bool, closes);
    const QPointer<MessageWindow> pWindow = open({"123"}, QString());
    type(pWindow, "Hello");
    QCOMPARE(closeWith(pWindow, button).size(), 3);
    QCOMPARE(pWindow && pWindow->isVisible(), !closes);
    QTEST(QStringList(m_pLink->drafts.values()), "drafts");
    QTEST(m_pLink->lstSent, "sent");
    if (!closes) {
        closeWith(pWindow, "IDS_HOST_DISCARD");
    }
    // Asked once, it is settled.
    m_pWindows.reset();
    QTEST(QStringList(m_pLink->drafts.values()), "drafts");
}

void TestSiblingDrafts::whatNobodyHasWrittenClosesWithoutAQuestion()
{
    MessageWindow* pWindow = open({"123"}, QString());
    type(pWindow, "  ");
    QCOMPARE(closeWith(pWindow, QString()), QStringList());
    // As the phonebook hands it over.
    pWindow = open({}, "Anna 0170");
    QCOMPARE(closeWith(pWindow, QString()), QStringList());
    QVERIFY(m_pLink->drafts.isEmpty());
}

void TestSiblingDrafts::aDraftThatIsUnchangedClosesWithoutAQuestion()
{
    m_pLink->drafts[7] = "old";
    QCOMPARE(closeWith(open({"123"}, "Hello", 7), QString()), QStringList());
    QCOMPARE(m_pLink->drafts[7], QString("old"));
}

void TestSiblingDrafts::aDraftThatWasEditedKeepsItsPlace()
{
    m_pLink->drafts[7] = "old";
    MessageWindow* pWindow = open({"123"}, "ello", 7);
    type(pWindow, "H");
    closeWith(pWindow, "IDS_HOST_KEEP_DRAFT");
    QCOMPARE(m_pLink->drafts.size(), 1);
    QCOMPARE(m_pLink->drafts[7], QString("123||Hello"));
}

void TestSiblingDrafts::aDraftThatWasSentIsNoDraftAnyMore()
{
    m_pLink->drafts[7] = "old";
    const QPointer<MessageWindow> pWindow = open({"123"}, "Hello", 7);
    pWindow->findChild<QPushButton*>("SMSUIPlugin_buttonSend")->click();
    QCOMPARE(m_pLink->lstSent, QStringList("123||Hello"));
    QVERIFY(m_pLink->drafts.isEmpty());
    QTRY_VERIFY(!pWindow);
}

void TestSiblingDrafts::aDraftThatCouldNotBeSentStays()
{
    m_pLink->drafts[7] = "old";
    m_pLink->bKeeps = false;
    MessageWindow* pWindow = open({"123"}, "Hello", 7);
    type(pWindow, "!");
    closeWith(pWindow, "IDS_HOST_SEND");
    QVERIFY(pWindow->isVisible());
    QCOMPARE(m_pLink->drafts[7], QString("old"));
    closeWith(pWindow, "IDS_HOST_DISCARD");
}

void TestSiblingDrafts::aTextThatCannotBeKeptStaysOpen()
{
    m_pLink->bKeeps = false;
    MessageWindow* pWindow = open({}, QString());
    type(pWindow, "Hello");
    closeWith(pWindow, "IDS_HOST_KEEP_DRAFT");
    QVERIFY(pWindow->isVisible());
    closeWith(pWindow, "IDS_HOST_DISCARD");
}

void TestSiblingDrafts::sendingIsOfferedWhereItIsPossible()
{
    MessageWindow* pWindow = open({"Anna"}, QString());
    type(pWindow, "Hello");
    QCOMPARE(closeWith(pWindow, "IDS_HOST_DISCARD"), QStringList({"IDS_HOST_KEEP_DRAFT", "IDS_HOST_DISCARD"}));
}

void TestSiblingDrafts::theEndKeepsWhatIsOpenWithoutAQuestion()
{
    type(open({"Anna"}, QString()), "Hello");
    m_pWindows->Open({"456"}, "untouched");
    m_pWindows.reset();
    QCOMPARE(QStringList(m_pLink->drafts.values()), QStringList("Anna||Hello"));
}

void TestSiblingDrafts::aDraftIsOpenOnce()
{
    MessageWindow* pWindow = open({"123"}, "Hello", 7);
    QCOMPARE(open({"123"}, "Hello", 7), pWindow);
    int iWindows = 0;
    foreach (QWidget* pWidget, QApplication::topLevelWidgets()) {
        iWindows += qobject_cast<MessageWindow*>(pWidget) != nullptr ? 1 : 0;
    }
    QCOMPARE(iWindows, 1);
}

void TestSiblingDrafts::theCounterTellsWhatAllRecipientsTake()
{
    MessageWindow* pWindow = open({"123"}, "Hello");
    const QLabel* pLength = pWindow->findChild<QLabel*>("SMSUIPlugin_labelLength");
    QVERIFY(!pLength->text().contains("IDS_LENGTH_TOTAL"));
    pWindow->findChild<QLineEdit*>("SMSUIPlugin_lineeditTo")->setText("123; 456");
    QVERIFY(pLength->text().contains("IDS_LENGTH_TOTAL"));
}

QTEST_MAIN(TestSiblingDrafts)
#include "test_sibling_drafts.moc"
