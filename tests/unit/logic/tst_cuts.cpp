#include "LogicTest.h"

// Where a value is longer than its field: what is cut, and at what price.
class TestCuts : public LogicTest
{
    Q_OBJECT

    static QString smiley() { return QString::fromUtf8("\xF0\x9F\x98\x80"); } // two units

    // One character less until it fits.
    static QString cutStepByStep(const QString& text, int limit, int (*coding)(const QString&, bool, bool))
    {
        QString rest = text;
        while (!rest.isEmpty() && coding(rest, true, false) > limit)
            rest.chop(1);
        if (!rest.isEmpty() && rest.at(rest.size() - 1).isHighSurrogate())
            rest.chop(1);
        return rest;
    }

    static int unitsAndPages(const QString& text, bool, bool)
    {
        int wide = 0;
        for (const QChar& ch : text)
            wide += ch.unicode() > 127 ? 1 : 0;
        return wide == 0 ? text.size() : 3 + text.size() + wide / 2;
    }

private slots:
    void aStoredValueIsCutBeforeAPair()
    {
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_LOCAL, contact(QString(79, 'x') + smiley()), id), 0);
        QCOMPARE(FakeSdk::record(PB_MEM_LOCAL, id).at(0), QString(79, 'x'));
        QCOMPARE(logic()->UpdateRecord(PB_MEM_LOCAL, id, contact(QString(78, 'x') + smiley() + "y")), 0);
        QCOMPARE(FakeSdk::record(PB_MEM_LOCAL, id).at(0), QString(78, 'x') + smiley());
    }

    void aValueThatIsOnlyAPairTooLongIsEmpty()
    {
        QList<FakeSdk::Field> fields = FakeSdk::cardFields();
        fields[0].maxLength = 1;
        FakeSdk::setFields(PB_MEM_SIM, fields);
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_SIM, {smiley(), "1"}, id), 0);
        QCOMPARE(FakeSdk::record(PB_MEM_SIM, id), (QStringList{"", "1"}));
        QCOMPARE(logic()->AddRecord(PB_MEM_SIM, {smiley(), ""}, id), 1); // nothing left to store
    }

    void aNameForTheCardIsCutBeforeAPair()
    {
        FakeSdk::setCoding([](const QString& text, bool, bool) { return text.size(); });
        QString out;
        logic()->GetFieldString(out, QString(13, 'x') + smiley(), 14, PB_MEM_SIM);
        QCOMPARE(out, QString(13, 'x'));
        logic()->GetFieldString(out, QString(12, 'x') + smiley() + "y", 14, PB_MEM_ME);
        QCOMPARE(out, QString(12, 'x') + smiley());
        logic()->GetFieldString(out, QString(13, 'x') + smiley() + QString(100000, 'y'), 14, PB_MEM_SIM);
        QCOMPARE(out, QString(13, 'x'));
    }

    void halvingGivesWhatOneCharacterLessGives()
    {
        FakeSdk::setRecording(false);
        FakeSdk::setCoding(unitsAndPages);
        unsigned int number = 4711;
        const auto next = [&number](unsigned int below) {
            number = number * 1103515245 + 12345;
            return static_cast<int>(number / 65536 % below);
        };
        for (int round = 0; round < 2000; ++round) {
            QString text;
            for (int i = next(25); i >= 0; --i)
                text += next(4) == 0 ? smiley() : next(3) == 0 ? QString(QChar(0x436)) : QString("a");
            const int limit = next(22) - 1;
            QString out;
            logic()->GetFieldString(out, text, limit, PB_MEM_SIM);
            QCOMPARE(out, cutStepByStep(text, limit, unitsAndPages));
        }
    }

    void aLongNameCostsFewQuestions()
    {
        QString out;
        logic()->GetFieldString(out, QString(30000, 'x'), 14, PB_MEM_SIM);
        QCOMPARE(out, QString(14, 'x'));
        QVERIFY2(FakeSdk::count("PBContentCodingJudge") <= 17,
                 qPrintable(QString::number(FakeSdk::count("PBContentCodingJudge"))));
    }

    // The device's names are cut like the card's, by a key in any case, and the number never.
    void anImportIsCutForCardAndDevice_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<QByteArray>("key");
        for (const int memory : {0, 1})
            for (const char* key : {"Name", "name", "NAME"})
                QTest::addRow("%d %s", memory, key) << memory << QByteArray(key);
    }
    void anImportIsCutForCardAndDevice()
    {
        QFETCH(int, memory);
        QFETCH(QByteArray, key);
        QList<FakeSdk::Field> fields = FakeSdk::cardFields();
        fields[0].key = key;
        FakeSdk::setFields(memory, fields);
        FakeSdk::setImport("file", {{QString(20, 'x'), QString(30, '1')}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("file", {0, 1}, records, static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory)), 0);
        QCOMPARE(records.size(), 1);
        QCOMPARE(records.at(0).lstValues, (QList<QString>{QString(14, 'x'), QString(30, '1')}));
    }

    void anImportForThePcIsNotCut()
    {
        FakeSdk::setImport("file", {{QString(200, 'x')}});
        QList<AddrBookRecord> records;
        QCOMPARE(logic()->ImportFromFile("file", {0}, records, PB_MEM_LOCAL), 0);
        QCOMPARE(records.at(0).lstValues.at(0), QString(200, 'x'));
    }

    void anAddressIsCheckedWhateverTheCaseOfItsKey_data()
    {
        QTest::addColumn<QByteArray>("key");
        for (const char* key : {"email", "Email", "EMAIL"})
            QTest::newRow(key) << QByteArray(key);
    }
    void anAddressIsCheckedWhateverTheCaseOfItsKey()
    {
        QFETCH(QByteArray, key);
        QList<FakeSdk::Field> fields = FakeSdk::wideDeviceFields();
        fields[3].key = key;
        FakeSdk::setFields(PB_MEM_ME, fields);
        int id = 0;
        QCOMPARE(logic()->AddRecord(PB_MEM_ME, {"Anna", "1", "", "no address"}, id), 1);
        QCOMPARE(logic()->AddRecord(PB_MEM_ME, {"Anna", "1", "", "a@b"}, id), 0);
    }
};

QTEST_GUILESS_MAIN(TestCuts)
#include "tst_cuts.moc"
