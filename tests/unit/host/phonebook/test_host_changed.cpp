#include <QLabel>
#include <QToolButton>
#include <QtTest>

#include "app/ContactLink.h"
#include "app/NamedNotices.h"
#include "app/Services.h"
#include "device/ChangedContact.h"
#include "device/SimulatedHardware.h"
#include "linkhand/plugin/Codes.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"
#include "window/StatusArea.h"

// Who was changed, and how long the status area speaks of something.
class TestHostChanged : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theNewestContactIsNamed();
    void aChangedContactHasItsNewName();
    void aDeletedContactIsNamedFromTheBin();
    void whoHasTheNumberIsNamedOnTheCard();
    void aNoticeIsShownAtOnceAndNamedWhenTheContactsAreRead();
    void aNoticeGoesWithWhatItIsAbout();
    void aDeviceIsNeverSaidToBeAbsentBesideItself();

private:
    static void* record(int iMemory, const char* pszName, const char* pszKey, const char* pszNumber)
    {
        void* pRecord = nullptr;
        ORVA_PBSrv_CreateAddrRecord(iMemory, &pRecord);
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", QString(pszName).utf16());
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, pszKey, QString(pszNumber).utf16());
        return pRecord;
    }
    static int add(int iMemory, const char* pszName, const char* pszKey, const char* pszNumber)
    {
        int iId = 0;
        void* pRecord = record(iMemory, pszName, pszKey, pszNumber);
        ORVA_PBSrv_AddAddrRec(pRecord, &iId);
        ORVA_PBSrv_AddrRecord_Release(pRecord);
        return iId;
    }
};

void TestHostChanged::initTestCase()
{
    SimulatedHardware::SetDevice(true);
    SimulatedHardware::SetCard(true);
    SimulatedHardware::SetPinStatus(1);
    ORVA_Sim_WaitEvents();
    add(ORVA_MEMORY_LOCAL, "Zoe", "Mobile", "+4930111");
}

void TestHostChanged::theNewestContactIsNamed()
{
    add(ORVA_MEMORY_LOCAL, "Ada Hartley", "Mobile", "+4930222");
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_ADDED, 4, 0), QString("Ada Hartley"));
}

void TestHostChanged::aChangedContactHasItsNewName()
{
    const int iId = add(ORVA_MEMORY_LOCAL, "Ben", "Mobile", "1");
    void* pRecord = record(ORVA_MEMORY_LOCAL, "Benjamin", "Mobile", "1");
    QCOMPARE(ORVA_PBSrv_UpdateAddrRec(pRecord, iId), long(ORVA_OK));
    ORVA_PBSrv_AddrRecord_Release(pRecord);
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_CHANGED, 4, 1), QString("Benjamin"));
    // What was deleted is not what was changed.
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_DELETED, 4, 1), QString());
}

void TestHostChanged::aDeletedContactIsNamedFromTheBin()
{
    QCOMPARE(ORVA_PBSrv_DelAddrRec(add(ORVA_MEMORY_LOCAL, "Cid", "Mobile", "1"), ORVA_MEMORY_LOCAL), long(ORVA_OK));
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_DELETED, 4, 0), QString("Cid"));
}

void TestHostChanged::whoHasTheNumberIsNamedOnTheCard()
{
    QVERIFY(add(ORVA_MEMORY_CARD, "Dora", "Number", "030444555") > 0);
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_ADDED, 0, 30444555), QString("Dora"));
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_ADDED, 0, 0), QString());
    QCOMPARE(ChangedContact::Name(PHONEBOOK_CONTACT_DELETED, 0, 30444555), QString());
}

void TestHostChanged::aNoticeIsShownAtOnceAndNamedWhenTheContactsAreRead()
{
    Services services(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")), QString());
    services.Publish();
    StatusArea status(nullptr);
    ContactLink contacts;
    NamedNotices named(status);
    const NamedNotice call = {"IDS_HOST_CALL_INCOMING", "+4930111", QString(), QString(), "call"};
    named.Show(call);
    QCOMPARE(status.Notices().value(0).mid(10), QString("Call from +4930111"));
    const NamedNotice sms = {"IDS_HOST_SMS_RECEIVED", "+4930111", "5 %1", QString(), QString()};
    named.Show(sms);
    // Nothing of it happened on this thread: both stand there without a name.
    QCOMPARE(status.Notices().value(0).mid(10), QString("SMS from +4930111: 5 %1"));
    QTRY_COMPARE(status.Notices().value(0).mid(10), QString("SMS from Zoe (+4930111): 5 %1"));
    QCOMPARE(status.Notices().value(1).mid(10), QString("Call from Zoe (+4930111)"));
    QCOMPARE(status.Notices().size(), 2);
    QCOMPARE(status.findChild<QToolButton*>("linkhand_StatusArea_notice")->text(),
             QString("SMS from Zoe (+4930111): 5 %1"));
    const NamedNotice nobody = {"IDS_HOST_CALL_INCOMING", QString(), QString(), "why", QString()};
    named.Show(nobody);
    QVERIFY2(status.Notices().value(0).endsWith(" (why)"), qPrintable(status.Notices().value(0)));
    services.Withdraw();
}

void TestHostChanged::aNoticeGoesWithWhatItIsAbout()
{
    Services services(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")), QString());
    services.Publish();
    {
        StatusArea status(nullptr);
        const QToolButton* pNotice = status.findChild<QToolButton*>("linkhand_StatusArea_notice");
        status.ShowNotice("Call from 123", "call");
        status.EndNotice("power");
        QCOMPARE(pNotice->text(), QString("Call from 123"));
        status.EndNotice("call");
        QCOMPARE(pNotice->text(), QString("Notices"));
        QVERIFY(pNotice->isEnabled());
        QCOMPARE(status.Notices().size(), 1);
        // One that has come since stays.
        status.ShowNotice("Call from 123", "call");
        status.ShowNotice("Ada Hartley added");
        status.EndNotice("call");
        QCOMPARE(pNotice->text(), QString("Ada Hartley added"));
        // And each goes by itself.
        status.findChild<QTimer*>("linkhand_StatusArea_noticeTime")->start(0);
        QTRY_COMPARE(pNotice->text(), QString("Notices"));
    }
    services.Withdraw();
}

void TestHostChanged::aDeviceIsNeverSaidToBeAbsentBesideItself()
{
    Services services(QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")), QString());
    services.Publish();
    {
        StatusArea status(nullptr);
        const QLabel* pHardware = status.findChild<QLabel*>("linkhand_StatusArea_hardware");
        const QLabel* pDevice = status.findChild<QLabel*>("linkhand_StatusArea_device");
        ModemStatus modem;
        modem.bBus = true;
        modem.bService = true;
        DeviceState state;
        status.SetHardware("/dev/ttyUSB2");
        status.SetModem(modem);
        status.SetState(state);
        QCOMPARE(pDevice->text(), QString("No device"));
        QVERIFY(pHardware->text().contains("no modem there"));
        state.bAttached = true;
        status.SetState(state);
        QCOMPARE(pDevice->text(), QString("Device attached"));
        QVERIFY2(!pHardware->text().contains("no modem"), qPrintable(pHardware->text()));
        QVERIFY(pHardware->text().contains("no messages or calls"));
    }
    services.Withdraw();
}

QTEST_MAIN(TestHostChanged)
#include "test_host_changed.moc"
