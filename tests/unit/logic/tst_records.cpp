#include "LogicTest.h"

class TestRecords : public LogicTest
{
    Q_OBJECT

private slots:
    void aContactIsStoredWithEachOfItsValues()
    {
        cacheFields(PB_MEM_SIM);
        int id = -7;
        QCOMPARE(logic()->AddRecord(PB_MEM_SIM, {"Anna", ""}, id), 0);
        QCOMPARE(FakeSdk::record(PB_MEM_SIM, id), QStringList({"Anna", ""}));
        QCOMPARE(FakeSdk::log(),
                 QStringList({"CreateAddrRecord(0)", "AddrRecord_SetValue(Name, Anna)", "AddrRecord_SetValue(Number, )",
                              "AddAddrRec()", "AddrRecord_Release()"}));
    }

    void aContactWithoutContentIsNeverStored()
    {
        int id = -7;
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact(""), id), 1);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
        QCOMPARE(id, -7);
    }

    void anUpdateWithoutContentGoesThrough()
    {
        const int id = FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna", "1"));
        QCOMPARE(logic()->UpdateRecord(PB_MEM_LOCAL, id, contact("")), 0);
        QCOMPARE(FakeSdk::count("UpdateAddrRec"), 1);
        QCOMPARE(FakeSdk::record(PB_MEM_LOCAL, id), contact(""));
    }

    void oneValueTooFewIsAMismatchAndCreatesNothing()
    {
        int id = -7;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("number of fields are not matching in AddRecord"));
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact("Anna").mid(1), id), -1);
        QCOMPARE(id, -7);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("number of fields are not matching in UpdateRecord"));
        QCOMPARE(logic()->UpdateRecord(PB_MEM_LOCAL, 1, contact("Anna").mid(1)), -1);
        QCOMPARE(FakeSdk::count("CreateAddrRecord"), 0);
    }

    void withoutAFieldListEveryContactIsAMismatch()
    {
        int id = -7;
        FakeSdk::fail("GetProfile");
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact("Anna"), id), -1);
    }

    void aValueThatIsTooLongIsStoredCut()
    {
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_SIM, {"Anna Maria Josefina", "1"}, id), 0);
        QCOMPARE(FakeSdk::record(PB_MEM_SIM, id).first(), QString("Anna Maria Jos"));
    }

    void aLetterInANumberRefusesTheContact_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("value");
        QTest::newRow("mobile") << 1 << "12a";
        QTest::newRow("mobile, beyond the longest value") << 1 << QString(40, '1') + "a";
        QTest::newRow("office") << 2 << "12 34";
        QTest::newRow("home") << 3 << "12-34";
        QTest::newRow("e-mail without @") << 4 << "nobody";
        QTest::newRow("e-mail with a foreign letter") << 4 << QString::fromUtf8("jürg@here");
    }

    void aLetterInANumberRefusesTheContact()
    {
        QFETCH(int, field);
        QFETCH(QString, value);
        QStringList values = contact("Anna");
        values[field] = value;
        int id = -7;
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, values, id), 1);
        QCOMPARE(FakeSdk::count("AddAddrRec"), 0);
        QCOMPARE(FakeSdk::count("AddrRecord_Release"), 1);
        QCOMPARE(logic()->UpdateRecord(PB_MEM_LOCAL, 1, values), 1);
        QCOMPARE(FakeSdk::count("UpdateAddrRec"), 0);
    }

    void anEmptyMailAddressIsAccepted()
    {
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact("Anna"), id), 0);
        QStringList values = contact("Bruno");
        values[4] = "b@c";
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, values, id), 0);
    }

    void theNumberOfACardIsNotCheckedByItsKey()
    {
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_SIM, {"Anna", "12p34"}, id), 0);
    }

    void fieldKeysAreComparedWithoutRegardToCase()
    {
        QList<FakeSdk::Field> fields = FakeSdk::cardFields();
        fields[1].key = "MOBILE";
        FakeSdk::setFields(PB_MEM_ME, fields);
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_ME, {"Anna", "12p"}, id), 1);
        QCOMPARE(logic()->AddRecord(PB_MEM_ME, {"Anna", "12"}, id), 0);
    }

    void theNonEmptyValuesAreCountedAfterTheCut()
    {
        QList<FakeSdk::Field> profile = FakeSdk::localFields();
        profile[5].maxLength = 0;
        FakeSdk::setFields(PB_MEM_LOCAL, profile);
        QList<AddrBookField> fields;
        logic()->GetAllFields(fields, PB_MEM_LOCAL);
        void* handle = nullptr;
        int nonEmpty = 3;
        QStringList values = contact("Anna", "1");
        values[5] = "cut to nothing";
        QVERIFY(logic()->createAddrRecSetValues(PB_MEM_LOCAL, handle, values, fields, nonEmpty));
        QCOMPARE(nonEmpty, 5);
        QVERIFY(handle != nullptr);
        ORVA_PBSrv_AddrRecord_Release(handle);
    }

    void aRefusedContactLeavesItsHandleToTheCaller()
    {
        QList<AddrBookField> fields;
        logic()->GetAllFields(fields, PB_MEM_LOCAL);
        void* handle = nullptr;
        int nonEmpty = 0;
        QVERIFY(!logic()->createAddrRecSetValues(PB_MEM_LOCAL, handle, contact("Anna", "x"), fields, nonEmpty));
        QCOMPARE(nonEmpty, 1);
        QVERIFY(handle != nullptr);
        ORVA_PBSrv_AddrRecord_Release(handle);
    }

    void valuesAndFieldsAreWalkedInStep()
    {
        QList<AddrBookField> fields;
        logic()->GetAllFields(fields, PB_MEM_LOCAL);
        void* handle = nullptr;
        int nonEmpty = 0;
        QVERIFY(logic()->createAddrRecSetValues(PB_MEM_LOCAL, handle, {"Anna"}, fields, nonEmpty));
        QCOMPARE(FakeSdk::count("AddrRecord_SetValue"), 1);
        ORVA_PBSrv_AddrRecord_Release(handle);
    }

    void aNewIdentifierOfAFullMemoryStaysAsItWas()
    {
        FakeSdk::setCapacity(PB_MEM_LOCAL, 0);
        int id = -1;
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact("Anna"), id), 1);
        QCOMPARE(id, -1);
    }

    void aDeleteIsOneOrNothing()
    {
        const int id = FakeSdk::addRecord(PB_MEM_ME, {"Anna", "1"});
        QCOMPARE(logic()->DelRecord(PB_MEM_ME, id), 0);
        QCOMPARE(logic()->DelRecord(PB_MEM_ME, id), 1);
        QCOMPARE(FakeSdk::log(), QStringList({"DelAddrRec(1, 1)", "DelAddrRec(1, 1)"}));
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
