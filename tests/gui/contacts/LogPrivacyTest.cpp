#include "ContactsSupport.h"
#include "MessageLog.h"
#include "linkhand/QtCompat.h"

// The log tells what the program does, and of whom nothing but the number in a notification's line, which is a debug
// line: it goes to whoever helps.
class LogPrivacyTest : public WindowTest
{
    Q_OBJECT

private slots:
    void onlyADebugLineNamesANumber_data()
    {
        QTest::addColumn<bool>("debug");
        QTest::newRow("debug lines") << true;
        QTest::newRow("none") << false;
    }
    void onlyADebugLineNamesANumber()
    {
        QFETCH(bool, debug);
        WindowFixture f;
        FakeSdk::addRecord(4, {"Zebedee", "5550199", "5550188", "", "zeb@example.org", "remarked"});
        FakeSdk::addRecord(4, {"Yolanda", "5550177"});
        FakeSdk::addRecord(0, {"Xaver", "5550166"});
        QtCompat::setDebugEnabled(debug);
        const MessageLog log;
        f.build();
        f.selectRows({f.rowOf("Zebedee")});
        f.window()->OnButtonClickedCall();
        f.window()->OnButtonClickedSendSMS();
        f.window()->OnButtonClickedSendMMS();
        {
            const FormUser user("Zacharias", "5550155");
            f.window()->OnButtonClickedEditContact();
            f.window()->OnButtonClickedNewContact();
            f.window()->SaveNumberToAddrBook("5550144", nullptr);
            QCOMPARE(user.forms(), 3);
        }
        // One that the store does not take.
        FakeSdk::fail("AddAddrRec");
        {
            const FormUser user("Wendelin", "5550133");
            f.window()->OnButtonClickedNewContact();
        }
        FakeSdk::clearFailures();
        f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "Vincent", 2), 0);
        QVERIFY(Contacts::waitBatch(f));
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "Ursula", 2), 0);
        QVERIFY(Contacts::waitBatch(f));
        f.click(f.in().local());
        Contacts::selectAll(f);
        FakeCore::answer(QMessageBox::Ok);
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        f.destroy();
        QtCompat::setDebugEnabled(false);
        int announced = 0;
        for (const QString& line : MessageLog::lines()) {
            if (line.contains(" phone number=")) {
                ++announced;
                continue;
            }
            for (const char* secret : {"55501", "Zebedee", "Yolanda", "Xaver", "Zacharias", "Wendelin", "Vincent",
                                       "Ursula", "zeb@", "remarked"})
                QVERIFY2(!line.contains(secret), qPrintable(line));
        }
        QCOMPARE(announced > 0, debug);
    }
};

QTEST_MAIN(LogPrivacyTest)
#include "LogPrivacyTest.moc"
