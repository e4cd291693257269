#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

#include "WindowFixture.h"
#include "device/HardwareChoice.h"
#include "orva/orva_sdk.h"

namespace
{

void addContact(const QString& strName, const QString& strNumber)
{
    void* pRecord = nullptr;
    int iId = 0;
    QCOMPARE(ORVA_PBSrv_CreateAddrRecord(4, &pRecord), 0L);
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", strName.utf16());
    ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Mobile", strNumber.utf16());
    QCOMPARE(ORVA_PBSrv_AddAddrRec(pRecord, &iId), 0L);
    ORVA_PBSrv_AddrRecord_Release(pRecord);
}

} // namespace

// What a user sees of a real modem.
class TestModemWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_pBus.reset(new TestBus);
        QVERIFY(HardwareChoice::Begin("/nonexistent/ttyUSB0"));
        addContact("Anna Weber", "+491711234567");
    }
    void nothingRealIsCalledSimulated();
    void theStatusAreaShowsTheNetwork();
    void theFormComesForALockedCard();
    void theFormForgetsWhatWasTyped();
    void theLastTryWantsASecondWord_data();
    void theLastTryWantsASecondWord();
    void theFormGoesWithTheLock();
    void whatIsSentIsToldWithTheContactsName();
    void whatComesInIsToldWithTheContactsName();
    void messagesSayWhatHasBecomeOfThem();
    void aDraftHasItsButton();
    void theChoiceIsKeptForTheNextStart();

private:
    QScopedPointer<TestBus> m_pBus;
};

void TestModemWindow::nothingRealIsCalledSimulated()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.window.SetDevicePanelShown(true);
    f.window.ShowPage("Messages");
    QVERIFY(f.Find<QLabel>("linkhand_HardwarePanel_state")->isVisible());
    QVERIFY(!f.Find<QCheckBox>("linkhand_DevicePanel_device")->isVisible());
    foreach (const QString& strText, f.Texts()) {
        QVERIFY2(!strText.contains("simulat", Qt::CaseInsensitive), qPrintable(strText));
    }
}

void TestModemWindow::theStatusAreaShowsTheNetwork()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    QTRY_COMPARE(f.Find<QLabel>("linkhand_StatusArea_network")->text(), QString("Test Net, 67 %"));
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"State", 7}});
    QTRY_COMPARE(f.Find<QLabel>("linkhand_StatusArea_network")->text(), QString("Offline"));
    f.manager.Unplug();
    QTRY_COMPARE(f.Find<QLabel>("linkhand_StatusArea_device")->text(), QString("No device"));
}

void TestModemWindow::theFormComesForALockedCard()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    QVERIFY(f.Form() == nullptr);
    f.manager.Lock(2, 3);
    QTRY_VERIFY(f.Form() != nullptr && f.Form()->isVisible());
    QCOMPARE(f.Find<QLabel>("linkhand_PinForm_tries")->text(), QString("Tries left: 3"));
    QVERIFY(!f.Find<QLabel>("linkhand_PinForm_warning")->isVisible());
    // Once closed it comes at a press alone.
    f.Form()->close();
    QTRY_VERIFY(f.Form() == nullptr);
    f.manager.Set(f.manager.ModemPath(), "Modem", {{"SignalQuality", 1u}, {"UnlockRetries", 2}});
    QTRY_COMPARE(f.modem.Status().iTries, 2);
    QVERIFY(f.Form() == nullptr);
    QVERIFY(f.Find<QToolButton>("linkhand_StatusArea_unlock")->isVisible());
    f.Find<QToolButton>("linkhand_StatusArea_unlock")->click();
    QVERIFY(f.Form() != nullptr);
}

void TestModemWindow::theFormForgetsWhatWasTyped()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 3);
    QTRY_VERIFY(f.Form() != nullptr);
    QLineEdit* pPin = f.Find<QLineEdit>("linkhand_PinForm_pin");
    QPushButton* pUnlock = f.Find<QPushButton>("linkhand_PinForm_unlock");
    QCOMPARE(int(pPin->echoMode()), int(QLineEdit::Password));
    QTest::keyClicks(pPin, "123");
    QVERIFY(!pUnlock->isEnabled());
    QTest::keyClicks(pPin, "4");
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.MobileEquipment.IncorrectPassword");
    QVERIFY(pUnlock->isEnabled());
    pUnlock->click();
    QVERIFY(pPin->text().isEmpty() && !pPin->isEnabled());
    QTRY_COMPARE(f.Find<QLabel>("linkhand_PinForm_result")->text(), QString("That PIN was wrong."));
    QCOMPARE(f.Find<QLabel>("linkhand_PinForm_tries")->text(), QString("Tries left: 2"));
    QVERIFY(pPin->isEnabled() && !pUnlock->isEnabled());
    QCOMPARE(f.manager.Calls().filter("SendPin"), QStringList("SendPin 1234"));
}

void TestModemWindow::theLastTryWantsASecondWord_data()
{
    QTest::addColumn<int>("tries");
    QTest::newRow("one left") << 1;
    QTest::newRow("nobody knows") << -1;
}

void TestModemWindow::theLastTryWantsASecondWord()
{
    QFETCH(int, tries);
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, tries);
    QTRY_VERIFY(f.Form() != nullptr);
    QVERIFY(f.Find<QLabel>("linkhand_PinForm_warning")->isVisible());
    QPushButton* pUnlock = f.Find<QPushButton>("linkhand_PinForm_unlock");
    QTest::keyClicks(f.Find<QLineEdit>("linkhand_PinForm_pin"), "1234");
    QVERIFY(!pUnlock->isEnabled());
    QTest::keyClick(f.Find<QLineEdit>("linkhand_PinForm_pin"), Qt::Key_Return);
    QCOMPARE(f.manager.Count("SendPin"), 0);
    f.Find<QCheckBox>("linkhand_PinForm_sure")->click();
    QVERIFY(pUnlock->isEnabled());
    f.manager.Hold("SendPin");
    pUnlock->click();
    QTRY_COMPARE(f.manager.Count("SendPin"), 1);
    QVERIFY(!f.Find<QCheckBox>("linkhand_PinForm_sure")->isChecked());
}

void TestModemWindow::theFormGoesWithTheLock()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 3);
    QTRY_VERIFY(f.Form() != nullptr);
    f.manager.Lock(4, -1);
    QTRY_VERIFY(f.Form() == nullptr);
    QCOMPARE(f.Find<QLabel>("linkhand_StatusArea_card")->text(), QString("Card blocked, PUK needed"));
    f.manager.Lock(2, 3);
    QTRY_VERIFY(f.Form() != nullptr);
    f.manager.Unplug();
    QTRY_VERIFY(f.Form() == nullptr);
}

void TestModemWindow::whatIsSentIsToldWithTheContactsName()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    QVERIFY(f.modem.Send(f.Sms("Hello", {"01711234567"})));
    QTRY_COMPARE(f.Notice(), QString("SMS to Anna Weber (01711234567) was sent"));
    f.manager.Fail("Send", "org.freedesktop.ModemManager1.Error.Message.Network", "what it says");
    QVERIFY(f.modem.Send(f.Sms("Hello", {"999"})));
    QTRY_COMPARE(f.Notice(), QString("SMS to 999 was not sent (what it says)"));
    OutgoingMessage message = f.Sms("Hello", {"999"});
    message.iKind = HOST_MESSAGE_MMS;
    QVERIFY(f.modem.Send(message));
    QVERIFY(f.Notice().contains("kept as a draft"));
}

void TestModemWindow::whatComesInIsToldWithTheContactsName()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.manager.Receive("+491711234567", "100 %1 sure\nsecond line", "2026-11-22T06:30:00+01");
    QTRY_COMPARE(f.Notice(), QString("SMS from Anna Weber (+491711234567): 100 %1 sure"));
    f.manager.Ring("+491711234567");
    QTRY_COMPARE(f.Notice(), QString("Call from Anna Weber (+491711234567)"));
}

void TestModemWindow::messagesSayWhatHasBecomeOfThem()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.window.ShowPage("Messages");
    QTreeWidget* pList = f.Find<QTreeWidget>("linkhand_Messages_list");
    const struct {
        MessageState enState;
        const char* pszText;
    } states[] = {{MESSAGE_SIMULATED, "Simulated, not sent"},
                  {MESSAGE_DRAFT, "Draft, not sent"},
                  {MESSAGE_UNCERTAIN, "Sent perhaps"},
                  {MESSAGE_SENT, "Sent"},
                  {MESSAGE_FAILED, "Not sent"},
                  {MESSAGE_PARTLY, "Failed, partly sent perhaps"},
                  {MESSAGE_RECEIVED, "Received"}};
    for (const auto& state : states) {
        QVERIFY(f.store.Add(f.Sms("Hello"), state.enState) != 0);
        QCOMPARE(pList->topLevelItem(0)->text(4), QString(state.pszText));
    }
    QVERIFY(!pList->isColumnHidden(4));
}

void TestModemWindow::aDraftHasItsButton()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.window.ShowPage("Messages");
    QPushButton* pSend = f.Find<QPushButton>("linkhand_Messages_send");
    QVERIFY(f.store.Add(f.Sms("Hello"), MESSAGE_SIMULATED) != 0);
    QVERIFY(!pSend->isEnabled());
    QVERIFY(f.store.Remove(f.store.Messages().first().iId));
    QVERIFY(f.store.Add(f.Sms("Hello"), MESSAGE_DRAFT) != 0);
    QVERIFY(pSend->isVisible() && pSend->isEnabled());
    pSend->click();
    QTRY_COMPARE(f.State(), int(MESSAGE_SENT));
    QTRY_VERIFY(!pSend->isEnabled());
}

void TestModemWindow::theChoiceIsKeptForTheNextStart()
{
    WindowFixture f;
    f.window.SetDevicePanelShown(true);
    QComboBox* pChoice = f.Find<QComboBox>("linkhand_HardwarePanel_choice");
    QLabel* pNote = f.Find<QLabel>("linkhand_HardwarePanel_note");
    pChoice->setEditText("/dev/ttyUSB2");
    QTest::keyClick(pChoice->lineEdit(), Qt::Key_Return);
    QVERIFY(pNote->text().contains("next start"));
    QFile kept(qEnvironmentVariable("LINKHAND_DATA_DIR", QDir::homePath() + "/.local/share/linkhand") + "/hardware");
    QVERIFY2(kept.open(QIODevice::ReadOnly), qPrintable(kept.fileName()));
    QCOMPARE(kept.readAll().trimmed(), QByteArray("/dev/ttyUSB2"));
    pChoice->setEditText("nonsense");
    QTest::keyClick(pChoice->lineEdit(), Qt::Key_Return);
    QVERIFY(pNote->text().contains("could not be kept"));
    QCOMPARE(pChoice->currentText(), QString("/dev/ttyUSB2"));
}

QTEST_MAIN(TestModemWindow)
#include "test_modem_window.moc"
