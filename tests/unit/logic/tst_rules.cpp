#include "LogicTest.h"
#include "logic/AddrBookUICommon.h"

class TestRules : public LogicTest
{
    Q_OBJECT

private slots:
    void aPhoneNumberHoldsDigitsPlusStarAndHash_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("valid");
        QTest::newRow("empty") << "" << true;
        QTest::newRow("digits") << "0123456789" << true;
        QTest::newRow("signs alone") << "+*#" << true;
        QTest::newRow("a plus in the middle") << "12+34" << true;
        QTest::newRow("Arabic digits") << QString::fromUtf8("٠١٢") << true;
        QTest::newRow("a dash") << "12-34" << false;
        QTest::newRow("a blank") << "12 34" << false;
        QTest::newRow("a letter at the end") << "1234p" << false;
        QTest::newRow("superscript") << QString::fromUtf8("½") << false;
    }

    void aPhoneNumberHoldsDigitsPlusStarAndHash()
    {
        QFETCH(QString, value);
        QFETCH(bool, valid);
        QCOMPARE(logic()->isValidPhoneNum(value), valid);
    }

    void aMailAddressIsAsciiWithAnAt_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("result");
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("an address") << "a@b.c" << 0;
        QTest::newRow("an at alone") << "@" << 0;
        QTest::newRow("two") << "a@@b" << 0;
        QTest::newRow("none") << "a.b.c" << -1;
        QTest::newRow("a foreign letter") << QString::fromUtf8("ä") << -2;
        QTest::newRow("a foreign letter with an at") << QString::fromUtf8("ä@b") << -2;
        QTest::newRow("code 127") << QString("a@") + QChar(127) << 0;
        QTest::newRow("code 128") << QString("a@") + QChar(128) << -2;
    }

    void aMailAddressIsAsciiWithAnAt()
    {
        QFETCH(QString, value);
        QFETCH(int, result);
        QCOMPARE(logic()->IsValidEmail(value), result);
    }

    void aNameOfThePcIsNotCut()
    {
        QString out;
        logic()->GetFieldString(out, "Anna", 2, PB_MEM_LOCAL);
        QCOMPARE(out, QString());
        out = "before";
        logic()->GetFieldString(out, "Anna", 2, PB_MEM_LOCAL);
        QCOMPARE(out, QString("before"));
        logic()->GetFieldString(out, "", 2, PB_MEM_LOCAL);
        QCOMPARE(out, QString());
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void aNameIsCutUntilItsCodeFits()
    {
        FakeSdk::setCoding([](const QString& text, bool, bool) { return text.size() + 10; });
        QString out;
        const QString name = "abcdefghijklmnopqrstuvwxyz0123";
        logic()->GetFieldString(out, name, 30, PB_MEM_ME);
        QCOMPARE(out, name.left(20));
        QVERIFY(FakeSdk::count("PBContentCodingJudge") <= 6);
        QCOMPARE(FakeSdk::log().at(1), QString("PBContentCodingJudge(%1, 30, true, false)").arg(name));
    }

    void aNameThatFitsIsAskedForOnce()
    {
        QString out = "before";
        logic()->GetFieldString(out, "Anna", 14, PB_MEM_SIM);
        QCOMPARE(out, QString("Anna"));
        QCOMPARE(FakeSdk::log(),
                 QStringList({"DevSrv_GetProductType()", "PBContentCodingJudge(Anna, 4, true, false)"}));
    }

    void theCodingDependsOnProductAndCustomisation_data()
    {
        QTest::addColumn<int>("product");
        QTest::addColumn<bool>("fails");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("arguments");
        QTest::newRow("SIM product") << 2 << false << ""
                                     << "true, false";
        QTest::newRow("UIM product") << 1 << false << ""
                                     << "false, false";
        QTest::newRow("a failing query") << 1 << true << ""
                                         << "true, false";
        QTest::newRow("customised") << 2 << false << " all\t"
                                    << "true, true";
        QTest::newRow("another case") << 2 << false << "All"
                                      << "true, false";
    }

    void theCodingDependsOnProductAndCustomisation()
    {
        QFETCH(int, product);
        QFETCH(bool, fails);
        QFETCH(QString, setting);
        QFETCH(QString, arguments);
        FakeSdk::setProductType(product);
        if (fails)
            FakeSdk::fail("DevSrv_GetProductType");
        FakeCore::setSetting("customize", "pbnamecode", setting);
        QString out;
        logic()->GetFieldString(out, "Anna", 14, PB_MEM_SIM);
        QCOMPARE(FakeSdk::log().last(), QString("PBContentCodingJudge(Anna, 4, %1)").arg(arguments));
    }

    void cuttingEndsWhenTheCodingCallFails()
    {
        FakeSdk::setCoding([](const QString& text, bool, bool) { return text.size() + 10; });
        FakeSdk::fail("PBContentCodingJudge", 3);
        QString out;
        logic()->GetFieldString(out, "abcdef", 2, PB_MEM_SIM);
        QCOMPARE(out, QString("ab")); // "abcdef" and "abc" were known to be too long
        FakeSdk::failAlways("PBContentCodingJudge");
        logic()->GetFieldString(out, "abcdef", 2, PB_MEM_SIM);
        QCOMPARE(out, QString("abcdef"));
    }

    void cuttingEndsAtALimitBelowZero()
    {
        QString out;
        logic()->GetFieldString(out, "abcdef", -1, PB_MEM_SIM);
        QCOMPARE(out, QString());
    }

    void aTextBeyondTheCodingCallsRangeIsCutToTheLimit()
    {
        QString out;
        logic()->GetFieldString(out, QString(100000, 'x'), 14, PB_MEM_SIM);
        QCOMPARE(out, QString(14, 'x'));
        logic()->GetFieldString(out, QString(100000, 'x'), -1, PB_MEM_SIM);
        QCOMPARE(out, QString());
    }

    void theCharactersOfAFieldAreFoundInTheCacheAlone()
    {
        QString out = "before";
        logic()->GetRegExpForNewContactDlg(PB_MEM_LOCAL, out, "mobile");
        QCOMPARE(out, QString("before"));
        QCOMPARE(FakeSdk::totalCalls(), 0);
        cacheFields(PB_MEM_LOCAL);
        logic()->GetRegExpForNewContactDlg(PB_MEM_LOCAL, out, "none of these");
        QCOMPARE(out, QString("before"));
        logic()->GetRegExpForNewContactDlg(PB_MEM_LOCAL, out, "mobile");
        QCOMPARE(out, QString("0123456789+*#"));
        QCOMPARE(FakeSdk::totalCalls(), 0);
    }

    void sortingIsPreservedUnlessTheSettingBeginsWithZero_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("preserve");
        QTest::newRow("0") << "0" << false;
        QTest::newRow("01") << "01" << false;
        QTest::newRow("1") << "1" << true;
        QTest::newRow("empty") << "" << true;
        QTest::newRow("no key") << QString() << true;
        QTest::newRow("a blank before") << " 0" << true;
    }

    void sortingIsPreservedUnlessTheSettingBeginsWithZero()
    {
        QFETCH(QString, value);
        QFETCH(bool, preserve);
        if (value.isNull())
            FakeCore::removeSetting("addrbook", "sortpreserve");
        else
            FakeCore::setSetting("addrbook", "sortpreserve", value);
        QCOMPARE(AddrBookLogic::GetSortPreserve(), preserve);
    }

    void theWordForTheCardFollowsTheProduct()
    {
        FakeSdk::setProductType(1);
        QCOMPARE(AddrBookUICommon::GetUserIdentityByString(), QString("UIM"));
        FakeSdk::setProductType(7);
        QCOMPARE(AddrBookUICommon::GetUserIdentityByString(), QString("SIM"));
        FakeSdk::fail("DevSrv_GetProductType");
        QCOMPARE(AddrBookUICommon::GetUserIdentityByString(), QString());
    }

    void theLabelsOfTheNodes()
    {
        FakeCore::setText("IDS_SIM", "My %s (%s, not %S)");
        FakeCore::setText("IDS_NV", "Device");
        FakeSdk::setProductType(1);
        FakeCore::setSetting("customize", "uimtype", "R-UIM");
        QCOMPARE(AddrBookUICommon::GetNodeText(PB_MEM_SIM), QString("My R-UIM (R-UIM, not %S)"));
        QCOMPARE(AddrBookUICommon::GetSIMText(), AddrBookUICommon::GetNodeText(PB_MEM_SIM));
        QCOMPARE(AddrBookUICommon::GetNodeText(PB_MEM_ME), QString("Device"));
        QCOMPARE(AddrBookUICommon::GetNodeText(PB_MEM_LOCAL), QString());
    }
};

QTEST_GUILESS_MAIN(TestRules)
#include "tst_rules.moc"
