#include "LogicTest.h"

class TestFields : public LogicTest
{
    Q_OBJECT

private slots:
    void aFieldListFollowsTheProfile()
    {
        QList<FakeSdk::Field> profile = FakeSdk::localFields();
        profile[0].flag = true;
        profile[2].refused = "xyz";
        FakeSdk::setFields(PB_MEM_LOCAL, profile);
        QList<AddrBookField> fields;
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_LOCAL), 0);
        QCOMPARE(fields.size(), 6);
        QCOMPARE(fields[0].strName, QString("Name"));
        QCOMPARE(fields[0].strType, QString("Name"));
        QCOMPARE(fields[0].strLangID, QString("ID_STR_NAME"));
        QCOMPARE(fields[0].strIncludeChars, QString("null"));
        QCOMPARE(fields[0].bFlag, true);
        QCOMPARE(fields[0].iMaxLength, 80);
        QCOMPARE(fields[0].iReserved1 + fields[0].iReserved2 + fields[0].iReserved3, 0);
        QCOMPARE(fields[2].strName, QString("officePhone"));
        QCOMPARE(fields[2].strType, QString("Number"));
        QCOMPARE(fields[2].strIncludeChars, QString("0123456789+*#"));
        QCOMPARE(fields[2].strExcludeChars, QString("xyz"));
        QCOMPARE(fields[2].bFlag, false);
        QCOMPARE(fields[5].strType, QString("Remaik"));
        QCOMPARE(FakeSdk::log(), QStringList({"GetProfile(4)", "ProfileRelease(4)"}));
    }

    void aSecondQuestionIsAnsweredFromTheCache()
    {
        cacheFields(PB_MEM_SIM);
        QList<AddrBookField> fields;
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_SIM), 0);
        QCOMPARE(fields.size(), 2);
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void aFilledListIsLeftAloneWhereNothingIsCached()
    {
        AddrBookField own;
        own.strName = "own";
        QList<AddrBookField> fields = {own};
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_ME), 0);
        QCOMPARE(fields.size(), 1);
        QCOMPARE(fields.first().strName, QString("own"));
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void aFilledListIsReplacedByTheCache()
    {
        cacheFields(PB_MEM_SIM);
        QList<AddrBookField> fields = {AddrBookField()};
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_SIM), 0);
        QCOMPARE(fields.size(), 2);
    }

    void anEmptyFieldListIsNeverRemembered()
    {
        FakeSdk::setFields(PB_MEM_SIM, {});
        QList<AddrBookField> fields;
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_SIM), 0);
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_SIM), 0);
        QCOMPARE(FakeSdk::count("GetProfile"), 2);
    }

    void aFailingOrNullProfileIsAFailure()
    {
        QList<AddrBookField> fields;
        FakeSdk::fail("GetProfile");
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_LOCAL), 1);
        FakeSdk::giveNull("GetProfile");
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_LOCAL), 1);
        QVERIFY(fields.isEmpty());
        QCOMPARE(FakeSdk::count("ProfileRelease"), 0);
    }

    void aFailingReleaseFillsTheListButDoesNotKeepIt()
    {
        QList<AddrBookField> fields;
        FakeSdk::fail("ProfileRelease");
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_LOCAL), 1);
        QCOMPARE(fields.size(), 6);
        QList<AddrBookField> again;
        QCOMPARE(logic()->GetAllFields(again, PB_MEM_LOCAL), 0);
        QCOMPARE(FakeSdk::count("GetProfile"), 2);
    }

    void aFieldWithoutRoomIsSkipped()
    {
        logic();
        FailingNew::failNth(1);
        QList<AddrBookField> fields;
        QCOMPARE(logic()->GetAllFields(fields, PB_MEM_LOCAL), 0);
        QVERIFY(FailingNew::hasFailed());
        QCOMPARE(fields.size(), 5);
        QCOMPARE(fields.first().strName, QString("Mobile"));
    }

    void theMobileIndexIsThatOfTheLocalMemoryAlone()
    {
        QList<FakeSdk::Field> profile = FakeSdk::localFields();
        profile.move(1, 4);
        FakeSdk::setFields(PB_MEM_LOCAL, profile);
        FakeSdk::setFields(PB_MEM_SIM, {FakeSdk::localFields()[1]});
        cacheFields(PB_MEM_SIM);
        QCOMPARE(logic()->GetMobileIndex(), 1);
        cacheFields(PB_MEM_LOCAL);
        QCOMPARE(logic()->GetMobileIndex(), 4);
    }

    void theKeysForAContactsApplicationAreFetchedEachTime()
    {
        QList<QString> names = {"before"};
        QCOMPARE(logic()->GetAllFieldsForOutlook(names, PB_MEM_SIM), 0);
        QCOMPARE(names, QList<QString>({"before", "Name", "Number"}));
        QCOMPARE(logic()->GetAllFieldsForOutlook(names, PB_MEM_SIM), 0);
        QCOMPARE(names.size(), 5);
        QCOMPARE(FakeSdk::count("GetProfile"), 2);
        FakeSdk::fail("GetProfile");
        QCOMPARE(logic()->GetAllFieldsForOutlook(names, PB_MEM_SIM), 1);
        FakeSdk::giveNull("GetProfile");
        QCOMPARE(logic()->GetAllFieldsForOutlook(names, PB_MEM_SIM), 1);
        FakeSdk::fail("ProfileRelease");
        QCOMPARE(logic()->GetAllFieldsForOutlook(names, PB_MEM_SIM), 1);
        QCOMPARE(names.size(), 7);
        QList<AddrBookField> fields;
        FakeSdk::clearCalls();
        logic()->GetAllFields(fields, PB_MEM_SIM);
        QCOMPARE(FakeSdk::count("GetProfile"), 1);
    }

    void theNamesOfFieldsAreTheirLabels()
    {
        QList<QString> names = {"before"};
        logic()->GetFieldNames(PB_MEM_SIM, names);
        QCOMPARE(names, QList<QString>({"ID_STR_NAME", "ID_STR_MOBILE_PHONE"}));
        logic()->ClearDeviceInfo();
        FakeSdk::fail("GetProfile");
        logic()->GetFieldNames(PB_MEM_SIM, names);
        QVERIFY(names.isEmpty());
    }

    void theLabelsOfPhoneFieldsAreThoseOfMobileAndNumber()
    {
        QList<QString> names = {"before"};
        logic()->GetPhoneFieldLangID(PB_MEM_LOCAL, names);
        QCOMPARE(names, QList<QString>({"ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE", "ID_STR_HOME_PHONE"}));
    }
};

QTEST_GUILESS_MAIN(TestFields)
#include "tst_fields.moc"
