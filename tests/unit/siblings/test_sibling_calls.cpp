#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include "FakeContacts.h"
#include "FakeLink.h"
#include "voicecall/CallPage.h"

namespace
{

enum Column { NUMBER, NAME, KIND, TIME, DURATION, RESULT };

} // namespace

// The list of calls with what the host keeps. Nobody has texts here, so that each shows as its id.
class TestSiblingCalls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
        const CallPage first("VoiceCallPlugin");
    }
    void init()
    {
        m_pLink.reset(new FakeLink);
        m_pPage.reset(new CallPage("VoiceCallPlugin"));
        m_pPage->resize(900, 500);
        m_pPage->show();
    }
    void cleanup()
    {
        m_pPage.reset();
        m_pLink.reset();
    }
    void nothingIsReadBeforeThePageIsEntered();
    void whatWasKeptIsListed();
    void eachCallSaysWhetherItWasSimulated_data();
    void eachCallSaysWhetherItWasSimulated();
    void aCallThatNeverWasActiveSaysWhyInPlaceOfItsTime();
    void aCallFromAnUnknownNumberOffersNothing();
    void aLongListIsReadAsItIsLookedAt();
    void theSelectionStaysWithItsCall();
    void theCallInProgressComesFirstUntilItIsKept();
    void aCallThatCouldNotBeKeptStaysAndSaysSo();
    void whoIsCalledIsNamedOnceTheContactsAreRead();
    void aRowDialsNothing();
    void theKeysReachEveryAction();
    void aCallIsForgottenWhenTheUserSaysSo();
    void aCallThatCannotBeForgottenIsSaid();

private:
    template <class Widget>
    Widget* find(const char* pszName)
    {
        return m_pPage->findChild<Widget*>(QLatin1String("VoiceCallPlugin_") + QLatin1String(pszName));
    }
    QTreeWidget* list() { return find<QTreeWidget>("treeCalls"); }
    QString cell(int iRow, int iColumn) { return list()->topLevelItem(iRow)->text(iColumn); }
    void press(Qt::Key enKey) { QTest::keyClick(list(), enKey); }

    QScopedPointer<FakeLink> m_pLink;
    QScopedPointer<CallPage> m_pPage;
};

namespace
{

// Presses the button with this text in each box that opens; the texts of those boxes.
class BoxAnswer : public QObject
{
    Q_OBJECT

public:
    explicit BoxAnswer(const char* pszButton) : m_strButton(QLatin1String(pszButton))
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnTick()));
        m_timer.start(1);
    }
    QStringList lstTexts;

private slots:
    void OnTick()
    {
        QMessageBox* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (pBox == nullptr || pBox == m_pLast) {
            return;
        }
        m_pLast = pBox;
        lstTexts << pBox->text();
        foreach (QAbstractButton* pButton, pBox->buttons()) {
            if (pButton->text() == m_strButton) {
                pButton->click();
                return;
            }
        }
        pBox->close();
    }

private:
    const QString m_strButton;
    QTimer m_timer;
    QPointer<QWidget> m_pLast;
};

} // namespace

void TestSiblingCalls::nothingIsReadBeforeThePageIsEntered()
{
    m_pLink->Keep("1", 1);
    m_pPage->Retranslate();
    QCOMPARE(m_pLink->iReadings, 0);
    m_pPage->Enter();
    QCOMPARE(m_pLink->iReadings, 1);
    QCOMPARE(list()->topLevelItemCount(), 1);
}

void TestSiblingCalls::whatWasKeptIsListed()
{
    HostCall& call = m_pLink->Keep("+49301", 0);
    call.strName = "Anna";
    call.iSeconds = 125;
    const QString strTime = QLocale().toString(call.time, QLocale::ShortFormat);
    m_pLink->Keep("2", 60 * 24 * 40).iType = HOST_CALL_VIDEO;
    HostCall& came = m_pLink->Keep("3", 60 * 24 * 41);
    came.iDirection = HOST_CALL_FROM_OUTSIDE;
    came.iSimulated = 0;
    m_pPage->Enter();
    QCOMPARE(list()->topLevelItemCount(), 3);
    QCOMPARE(cell(0, NUMBER), QString("+49301"));
    QCOMPARE(cell(0, NAME), QString("Anna"));
    QCOMPARE(cell(0, KIND), QString("IDS_CALL_OUTGOING"));
    QCOMPARE(cell(0, TIME), strTime);
    QVERIFY(cell(0, TIME).contains("22")); // its day, not only its hour
    QCOMPARE(cell(0, DURATION), QString("2:05"));
    QCOMPARE(cell(1, KIND), QString("IDS_VIDEO_CALL"));
    QCOMPARE(cell(2, KIND), QString("IDS_CALL_FROM_OUTSIDE"));
}

void TestSiblingCalls::eachCallSaysWhetherItWasSimulated_data()
{
    QTest::addColumn<int>("simulated");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("result");
    QTest::newRow("simulated") << 1 << int(HOST_CALL_ENDED) << "IDS_CALL_SIMULATED";
    QTest::newRow("simulated, network gone") << 1 << int(HOST_CALL_LOST) << "IDS_CALL_SIMULATED · IDS_CALL_LOST";
    QTest::newRow("of the first release") << 1 << -1 << "IDS_CALL_SIMULATED";
    QTest::newRow("real") << 0 << int(HOST_CALL_ENDED_BY_OTHER) << "IDS_CALL_ENDED_BY_OTHER";
    QTest::newRow("real, modem gone") << 0 << int(HOST_CALL_LOST) << "IDS_CALL_LOST";
    QTest::newRow("nobody knows") << -1 << -1 << "IDS_CALL_UNMARKED";
}

// Whatever the modem of this run is.
void TestSiblingCalls::eachCallSaysWhetherItWasSimulated()
{
    QFETCH(int, simulated);
    QFETCH(int, end);
    for (const bool bSimulated : {true, false}) {
        m_pLink->bSimulated = bSimulated;
        m_pLink->listCalls.clear();
        HostCall& call = m_pLink->Keep("1", 0);
        call.iSimulated = simulated;
        call.iEnd = end;
        m_pPage->Enter();
        QTEST(cell(0, RESULT), "result");
    }
}

void TestSiblingCalls::aCallThatNeverWasActiveSaysWhyInPlaceOfItsTime()
{
    HostCall& call = m_pLink->Keep("1", 0);
    call.iSimulated = 0;
    call.iEnd = HOST_CALL_NOT_ANSWERED;
    m_pPage->Enter();
    QCOMPARE(cell(0, DURATION), QString());
    QCOMPARE(cell(0, RESULT), QString("IDS_CALL_NOT_ANSWERED"));
}

void TestSiblingCalls::aCallFromAnUnknownNumberOffersNothing()
{
    m_pLink->Keep("", 0);
    m_pPage->Enter();
    QCOMPARE(cell(0, NUMBER), QString("IDS_UNKNOWN_NUMBER"));
    QVERIFY(!find<QPushButton>("buttonCallNumber")->isEnabled());
    QVERIFY(!find<QPushButton>("buttonMessage")->isEnabled());
    QVERIFY(!find<QPushButton>("buttonSaveNumber")->isEnabled());
    QVERIFY(find<QPushButton>("buttonDelete")->isEnabled());
    press(Qt::Key_Return);
    QCOMPARE(find<QLineEdit>("lineeditNumber")->text(), QString());
}

void TestSiblingCalls::aLongListIsReadAsItIsLookedAt()
{
    for (int i = 0; i < 450; ++i) {
        m_pLink->Keep(QString::number(i), i);
    }
    m_pPage->Enter();
    QCOMPARE(list()->topLevelItemCount(), 200);
    QCOMPARE(m_pLink->iMost, 200);
    list()->setFocus();
    foreach (const int iCount, QList<int>() << 400 << 450 << 450) {
        press(Qt::Key_End);
        QCOMPARE(list()->topLevelItemCount(), iCount);
    }
    for (int i = 0; i < 450; ++i) {
        QCOMPARE(cell(i, NUMBER), QString::number(i));
    }
    // What has been reached stays there when all is read anew.
    m_pPage->Enter();
    QCOMPARE(list()->topLevelItemCount(), 450);
}

void TestSiblingCalls::theSelectionStaysWithItsCall()
{
    for (int i = 0; i < 5; ++i) {
        m_pLink->Keep(QString::number(i), i);
    }
    m_pPage->Enter();
    list()->setCurrentItem(list()->topLevelItem(2));
    const HostCall late = m_pLink->Keep("new", -1);
    m_pLink->listCalls.removeLast();
    m_pLink->listCalls.prepend(late);
    m_pPage->Enter();
    QCOMPARE(list()->topLevelItemCount(), 6);
    QCOMPARE(list()->currentItem()->text(NUMBER), QString("2"));
    m_pPage->Retranslate();
    QCOMPARE(list()->currentItem()->text(NUMBER), QString("2"));
}

void TestSiblingCalls::theCallInProgressComesFirstUntilItIsKept()
{
    m_pLink->Keep("old", 5);
    m_pPage->Enter();
    m_pLink->bSimulated = false;
    const QDateTime begun = QDateTime::currentDateTime(); // as the host notes it
    m_pPage->Start("123", HOST_CALL_VOICE);
    QCOMPARE(cell(0, NUMBER), QString("123"));
    QCOMPARE(cell(0, RESULT), QString("IDS_CALL_DIALLING"));
    QVERIFY(!find<QPushButton>("buttonCallNumber")->isEnabled());
    m_pPage->SetProgress(HOST_CALL_INCOMING);
    QCOMPARE(cell(0, KIND), QString("IDS_CALL_FROM_OUTSIDE"));
    QCOMPARE(cell(0, RESULT), QString("IDS_CALL_INCOMING"));
    m_pPage->SetProgress(HOST_CALL_MISSED);
    HostCall& kept = m_pLink->Keep("123", 0);
    kept.time = begun;
    kept.iEnd = HOST_CALL_MISSED;
    m_pLink->listCalls.move(1, 0);
    m_pPage->Stop();
    QCOMPARE(list()->topLevelItemCount(), 2);
    QCOMPARE(cell(0, RESULT), QString("IDS_CALL_MISSED"));
    QCOMPARE(list()->currentItem()->text(NUMBER), QString("123"));
    QVERIFY(find<QPushButton>("buttonCallNumber")->isEnabled());
}

void TestSiblingCalls::aCallThatCouldNotBeKeptStaysAndSaysSo()
{
    m_pLink->Keep("123", 5); // an earlier one of the same number
    m_pPage->Enter();
    m_pPage->Start("123", HOST_CALL_VOICE);
    m_pPage->SetProgress(HOST_CALL_ENDED);
    m_pPage->Stop();
    m_pPage->Enter();
    QCOMPARE(list()->topLevelItemCount(), 2);
    QCOMPARE(cell(0, RESULT), QString("IDS_CALL_SIMULATED · IDS_CALL_NOT_KEPT"));
    QCOMPARE(cell(1, RESULT), QString("IDS_CALL_SIMULATED"));
}

void TestSiblingCalls::whoIsCalledIsNamedOnceTheContactsAreRead()
{
    FakeContacts contacts;
    m_pPage.reset(new CallPage("VoiceCallPlugin"));
    m_pPage->show();
    const int iBefore = contacts.iReadings;
    m_pPage->Start("0170111", HOST_CALL_VOICE);
    QVERIFY(contacts.iReadings > iBefore);
    QCOMPARE(find<QLabel>("labelNumber")->text(), QString("0170111"));
    QCOMPARE(cell(0, NAME), QString());
    contacts.names["0170111"] = "Ada";
    emit contacts.contactsRead();
    QCOMPARE(find<QLabel>("labelNumber")->text(), QString("Ada  0170111"));
    QCOMPARE(cell(0, NAME), QString("Ada"));
    m_pPage.reset();
}

void TestSiblingCalls::aRowDialsNothing()
{
    m_pLink->Keep("+49301", 0);
    m_pPage->Enter();
    list()->setFocus();
    press(Qt::Key_Return);
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       list()->visualItemRect(list()->topLevelItem(0)).center());
    QVERIFY(m_pLink->lstDialled.isEmpty());
    QCOMPARE(find<QLineEdit>("lineeditNumber")->text(), QString("+49301"));
    QVERIFY(find<QPushButton>("buttonCall")->isEnabled());
    find<QPushButton>("buttonCallNumber")->click();
    QCOMPARE(m_pLink->lstDialled, QStringList("+49301"));
}

void TestSiblingCalls::theKeysReachEveryAction()
{
    m_pLink->Keep("+49301", 0);
    m_pPage->Enter();
    QApplication::setActiveWindow(m_pPage.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pPage.data()));
    list()->setFocus();
    // Without a phonebook and without the plug-in for messages only those of the list's own are on.
    QStringList lstReached;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        lstReached << QApplication::focusWidget()->objectName();
    }
    QVERIFY(lstReached.contains("VoiceCallPlugin_buttonCallNumber"));
    QVERIFY(lstReached.contains("VoiceCallPlugin_buttonDelete"));
    // The menu of the list offers the same.
    QCOMPARE(int(list()->contextMenuPolicy()), int(Qt::ActionsContextMenu));
    QStringList lstActions;
    foreach (const QAction* pAction, list()->actions()) {
        lstActions << pAction->text();
        QCOMPARE(pAction->isEnabled(), pAction->text() == "IDS_CALL_NUMBER" || pAction->text() == "IDS_DELETE");
    }
    QCOMPARE(lstActions, QStringList({"IDS_CALL_NUMBER", "IDS_MESSAGE", "IDS_SAVE_NUMBER", "IDS_DELETE"}));
    list()->actions().first()->trigger();
    QCOMPARE(m_pLink->lstDialled, QStringList("+49301"));
}

void TestSiblingCalls::aCallIsForgottenWhenTheUserSaysSo()
{
    m_pLink->Keep("1", 0);
    m_pLink->Keep("2", 1);
    m_pPage->Enter();
    QApplication::setActiveWindow(m_pPage.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pPage.data()));
    list()->setFocus();
    list()->setCurrentItem(list()->topLevelItem(1));
    {
        const BoxAnswer no("IDS_CANCEL");
        press(Qt::Key_Delete);
        QTRY_COMPARE(no.lstTexts, QStringList("IDS_DELETE_QUESTION"));
        QCOMPARE(m_pLink->listCalls.size(), 2);
    }
    QApplication::setActiveWindow(m_pPage.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pPage.data()));
    const BoxAnswer yes("IDS_OK");
    press(Qt::Key_Delete);
    QTRY_COMPARE(m_pLink->listCalls.size(), 1);
    QCOMPARE(m_pLink->listCalls.first().strNumber, QString("1"));
    QTRY_COMPARE(list()->topLevelItemCount(), 1);
    QCOMPARE(yes.lstTexts, QStringList("IDS_DELETE_QUESTION"));
}

void TestSiblingCalls::aCallThatCannotBeForgottenIsSaid()
{
    m_pLink->Keep("1", 0);
    m_pLink->bRemoves = false;
    m_pPage->Enter();
    const BoxAnswer yes("IDS_OK");
    find<QPushButton>("buttonDelete")->click();
    QTRY_COMPARE(yes.lstTexts, QStringList({"IDS_DELETE_QUESTION", "IDS_DELETE_FAILED"}));
    QCOMPARE(list()->topLevelItemCount(), 1);
}

QTEST_MAIN(TestSiblingCalls)
#include "test_sibling_calls.moc"
