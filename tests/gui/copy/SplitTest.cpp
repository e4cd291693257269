#include "CopyFixture.h"

// One contact turned into records of a memory with fewer fields.
class SplitTest : public WindowTest
{
    Q_OBJECT

private:
    typedef QList<QString> Texts;

    static const QList<QString>& localLabels()
    {
        static const Texts labels = {"ID_STR_NAME",       "ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE",
                                     "ID_STR_HOME_PHONE", "ID_STR_EMAIL",        "ID_STR_NOTES"};
        return labels;
    }
    static const QSet<QString>& phones()
    {
        static const QSet<QString> labels = {"ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE", "ID_STR_HOME_PHONE"};
        return labels;
    }

    static QList<Texts> split(const CopyFixture& f, const Texts& source, const Texts& target, const Texts& values)
    {
        QList<AddrBookRecord> records;
        f.window()->constructRecordsForCopy(records, source, target, values, 7);
        QList<Texts> result;
        for (const AddrBookRecord& record : records) {
            if (record.iID != 7)
                result << Texts{"wrong identifier"};
            result << record.lstValues;
        }
        return result;
    }

    // What is told about the outcome, without the walk: what goes along are the fields that the target has, and all
    // phone fields. All but one of the target's places belong to the first of them; the last place is given to each of
    // the others in turn. An attempt fails at an empty phone field unless as many as the source has phone fields have
    // been met, and one that is empty throughout gives nothing.
    static QList<Texts> reference(const Texts& source, const Texts& target, const Texts& values)
    {
        Texts labels;
        Texts going;
        int phoneFields = 0;
        for (int i = 0; i < source.size(); ++i) {
            const bool phone = phones().contains(source[i]);
            phoneFields += phone ? 1 : 0;
            if (phone || target.contains(source[i])) {
                labels << source[i];
                going << values[i];
            }
        }
        const int fixed = target.size() - 1;
        int met = 0;
        QList<Texts> records;
        for (int last = fixed; last < going.size(); ++last) {
            const Texts attempt = going.mid(0, fixed) << going[last];
            const Texts names = labels.mid(0, fixed) << labels[last];
            bool failed = false;
            for (int place = 0; place < attempt.size() && !failed; ++place) {
                if (attempt[place].isEmpty() && phones().contains(names[place]))
                    failed = ++met < phoneFields;
            }
            if (!failed && attempt.join("") != "")
                records << attempt;
        }
        return records;
    }

    // Every choice of two to five labels, in the source's order, backwards, and with one that the source lacks.
    static QList<Texts> targets(Texts labels)
    {
        labels << "ID_STR_FAX";
        QList<Texts> choices;
        for (int bits = 0; bits < (1 << labels.size()); ++bits) {
            Texts choice;
            for (int i = 0; i < labels.size(); ++i) {
                if (bits & (1 << i))
                    choice << labels[i];
            }
            if (choice.size() < 2 || choice.size() > 5)
                continue;
            choices << choice;
            std::reverse(choice.begin(), choice.end());
            choices << choice;
        }
        return choices;
    }

private slots:
    void allCombinationsAsTheReferenceTells()
    {
        CopyFixture f;
        f.build();
        f.in().dragSource() = PB_MEM_LOCAL;
        int withRecords = 0;
        int cases = 0;
        for (const Texts& target : targets(localLabels())) {
            for (int filled = 0; filled < 64; ++filled) {
                Texts values;
                for (int i = 0; i < 6; ++i)
                    values << ((filled & (1 << i)) != 0 ? QString("v%1").arg(i) : QString(""));
                const QList<Texts> expected = reference(localLabels(), target, values);
                const QList<Texts> made = split(f, localLabels(), target, values);
                ++cases;
                withRecords += expected.isEmpty() ? 0 : 1;
                if (made != expected) {
                    qDebug() << target << values << made << expected;
                    QFAIL("another outcome than the reference's");
                }
            }
        }
        QCOMPARE(cases, 2 * 112 * 64);
        QVERIFY(withRecords > cases / 4 && withRecords < cases);
    }

    // The same by hand, so that reference and walk cannot share an error.
    void knownOutcomes_data()
    {
        QTest::addColumn<QStringList>("target");
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QStringList>("records");
        const QStringList two = {"ID_STR_NAME", "ID_STR_MOBILE_PHONE"};
        QTest::newRow("name, three numbers")
            << two << QStringList({"N", "1", "2", "3", "e", "n"}) << QStringList({"N|1", "N|2", "N|3"});
        QTest::newRow("name, second and third number")
            << two << QStringList({"N", "", "2", "3", "", ""}) << QStringList({"N|2", "N|3"});
        QTest::newRow("name, one number") << two << QStringList({"N", "1", "", "", "", ""}) << QStringList("N|1");
        QTest::newRow("name alone") << two << QStringList({"N", "", "", "", "", ""}) << QStringList("N|");
        QTest::newRow("number alone") << two << QStringList({"", "", "2", "", "", ""}) << QStringList("|2");
        QTest::newRow("nothing") << two << QStringList({"", "", "", "", "", ""}) << QStringList();
        QTest::newRow("only what is lost") << two << QStringList({"", "", "", "", "e", "n"}) << QStringList();
        const QStringList four = {"ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_HOME_PHONE", "ID_STR_EMAIL"};
        QTest::newRow("all filled, four places")
            << four << QStringList({"N", "1", "2", "3", "e", "n"}) << QStringList({"N|1|2|3", "N|1|2|e"});
        // Two empty numbers are each met in both attempts.
        QTest::newRow("one number, four places: lost")
            << four << QStringList({"N", "1", "", "", "e", ""}) << QStringList();
        QTest::newRow("no number, four places") << four << QStringList({"N", "", "", "", "e", ""}) << QStringList();
        const QStringList three = {"ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_EMAIL"};
        QTest::newRow("three numbers, three places")
            << three << QStringList({"N", "1", "2", "3", "e", ""}) << QStringList({"N|1|2", "N|1|3", "N|1|e"});
    }
    void knownOutcomes()
    {
        QFETCH(QStringList, target);
        QFETCH(QStringList, values);
        QFETCH(QStringList, records);
        CopyFixture f;
        f.build();
        f.in().dragSource() = PB_MEM_LOCAL;
        QStringList made;
        for (const Texts& record : split(f, localLabels(), target, values))
            made << QStringList(record).join("|");
        QCOMPARE(made, records);
        made.clear();
        for (const Texts& record : reference(localLabels(), target, values))
            made << QStringList(record).join("|");
        QCOMPARE(made, records);
    }

    // Also for a label of the target's list.
    void phoneFieldsAreThoseOfTheDragsSource()
    {
        CopyFixture f;
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        f.build();
        f.in().dragSource() = PB_MEM_ME;
        QVERIFY(f.window()->isPhoneField("ID_STR_HOME_PHONE"));
        QVERIFY(!f.window()->isPhoneField("ID_STR_BUSINESS_PHONE"));
        QCOMPARE(f.window()->getPhoneFieldCount(localLabels()), 2);
        f.in().dragSource() = PB_MEM_SIM;
        QCOMPARE(f.window()->getPhoneFieldCount(localLabels()), 1);
        f.in().dragSource() = PB_MEM_LOCAL;
        QCOMPARE(f.window()->getPhoneFieldCount(localLabels()), 3);
        QCOMPARE(f.window()->getPhoneFieldCount({"ID_STR_NAME", "ID_STR_EMAIL"}), 0);
    }

    void targetWithoutFieldsGivesNoRecord()
    {
        CopyFixture f;
        f.build();
        QVERIFY(split(f, localLabels(), {}, {"N", "1", "2", "3", "e", "n"}).isEmpty());
        QVERIFY(split(f, {}, {}, {}).isEmpty());
    }

    void nameIsCutAtTheTargetsLimit_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("cut");
        QTest::newRow("short") << 0 << "Anna"
                               << "Anna";
        QTest::newRow("as long as the limit") << 0 << "12345678901234"
                                              << "12345678901234";
        QTest::newRow("longer") << 0 << "123456789012345678"
                                << "12345678901234";
        QTest::newRow("coded longer than it is") << 0 << QString(10, QChar(0x4e00)) << QString(6, QChar(0x4e00));
        QTest::newRow("device") << 1 << "123456789012345678"
                                << "12345678901234";
        QTest::newRow("PC: nothing is left") << 4 << "Anna"
                                             << "";
    }
    void nameIsCutAtTheTargetsLimit()
    {
        QFETCH(int, target);
        QFETCH(QString, name);
        QFETCH(QString, cut);
        CopyFixture f;
        f.build();
        f.in().dragTarget() = static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(target);
        Texts values = {"x", name, "12345678901234567890123", name};
        f.window()->limitNameField({"ID_STR_EMAIL", "ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_NAME"}, values);
        QCOMPARE(values, Texts({"x", cut, "12345678901234567890123", cut}));
    }

    // The key decides, whatever its case, and the last one counts.
    void limitIsThatOfTheNameField()
    {
        CopyFixture f;
        QList<FakeSdk::Field> fields = FakeSdk::cardFields();
        fields[0].key = "NAME";
        fields[0].maxLength = 5;
        fields << fields[0];
        fields[2].key = "name";
        fields[2].maxLength = 3;
        FakeSdk::setFields(0, fields);
        f.build();
        f.in().dragTarget() = PB_MEM_SIM;
        Texts values = {"Alexander"};
        f.window()->limitNameField({"ID_STR_NAME"}, values);
        QCOMPARE(values, Texts({"Ale"}));
        fields = FakeSdk::cardFields();
        fields[0].key = "Title";
        FakeSdk::setFields(1, fields);
        f.in().dragTarget() = PB_MEM_ME;
        values = Texts{"Alexander"};
        f.window()->limitNameField({"ID_STR_NAME"}, values);
        QCOMPARE(values, Texts({""}));
    }

    void asManyFieldsGiveOneRecordMatchedByLabel()
    {
        CopyFixture f;
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        const QString longName(30, 'x');
        const int id = FakeSdk::addRecord(1, {longName, "1", "2", "a@b"});
        f.build();
        f.in().dragSource() = PB_MEM_ME;
        f.in().dragTarget() = PB_MEM_LOCAL;
        QList<AddrBookRecord> records;
        const Texts wide = {"ID_STR_NAME", "ID_STR_MOBILE_PHONE", "ID_STR_HOME_PHONE", "ID_STR_EMAIL"};
        f.window()->moveOrCopyContactBetweenType(records, id, wide, localLabels());
        QCOMPARE(records.size(), 1);
        QCOMPARE(records[0].iID, id);
        QCOMPARE(records[0].lstValues, Texts({longName, "1", "", "2", "a@b", ""})); // the name in full
        QVERIFY(f.usageReported());
    }

    void labelThatStandsTwiceTakesTheFirst()
    {
        CopyFixture f;
        const int id = FakeSdk::addRecord(0, {"Anna", "1"});
        f.build();
        f.in().dragSource() = PB_MEM_SIM;
        QList<AddrBookRecord> records;
        f.window()->moveOrCopyContactBetweenType(records, id, {"ID_STR_NAME", "ID_STR_NAME"},
                                                 {"ID_STR_NAME", "ID_STR_NAME", "ID_STR_EMAIL"});
        QCOMPARE(records.value(0).lstValues, Texts({"Anna", "Anna", ""}));
    }

    void contactThatCannotBeReadIsSkippedInSilence()
    {
        CopyFixture f;
        f.build();
        f.in().dragSource() = PB_MEM_SIM;
        QList<AddrBookRecord> records;
        f.window()->moveOrCopyContactBetweenType(records, 99, {"ID_STR_NAME"}, {"ID_STR_NAME"});
        QVERIFY(records.isEmpty());
        QVERIFY(!f.usageReported());
        QVERIFY(FakeCore::messages().isEmpty());
    }
};

QTEST_MAIN(SplitTest)
#include "SplitTest.moc"
