#include "EditSupport.h"

// The warning about a number that another contact has.
class EditRepeatTest : public DialogTest
{
    Q_OBJECT

    // Presses OK on a new contact and gives the captions of the repeat boxes.
    static QStringList captionsFor(int memory, const QStringList& values, int answer = QMessageBox::Cancel)
    {
        FakeCore::clearMessages();
        FakeCore::answer(answer);
        EditForm form(memory);
        for (int i = 0; i < values.size(); ++i)
            form.setText(i, values.at(i));
        form.save();
        QStringList captions;
        for (const FakeCore::Message& message : FakeCore::messages()) {
            if (message.text == "IDS_STR_REPEARTEDNUMBER")
                captions << message.caption;
        }
        return captions;
    }

private slots:
    void aFurtherNumberThatIsAnothersMobileShowsItsOwnLabel()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222", "333"});
        QCOMPARE(captionsFor(4, {"Bob", "", "", "111"}), QStringList("ID_STR_HOME_PHONE"));
        QCOMPARE(captionsFor(4, {"Bob", "", "111", ""}), QStringList("ID_STR_BUSINESS_PHONE"));
    }

    void withBothRepeatedTheMobileIsShown()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222", "333"});
        QCOMPARE(captionsFor(4, {"Bob", "333", "222", "111"}), QStringList("ID_STR_MOBILE_PHONE"));
    }

    void anyFieldAgainstAnyField()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222", "333"});
        QCOMPARE(captionsFor(4, {"Bob", "222"}), QStringList("ID_STR_MOBILE_PHONE"));
        QCOMPARE(captionsFor(4, {"Bob", "", "333"}), QStringList("ID_STR_BUSINESS_PHONE"));
        QCOMPARE(captionsFor(4, {"Bob", "", "", "222"}), QStringList("ID_STR_HOME_PHONE"));
    }

    void theFirstContactDecides()
    {
        FakeSdk::addRecord(4, {"Ada", "", "222"});
        FakeSdk::addRecord(4, {"Eve", "111"});
        QCOMPARE(captionsFor(4, {"Bob", "111", "222"}), QStringList("ID_STR_BUSINESS_PHONE"));
    }

    void theBox()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeCore::answer(QMessageBox::Cancel);
        EditForm form(4);
        form.setText(1, "111");
        form.access.ok()->click();
        QCOMPARE(FakeCore::messages().size(), 1);
        const FakeCore::Message message = FakeCore::messages().at(0);
        QCOMPARE(message.icon, QMessageBox::Question);
        QCOMPARE(message.text, QString("IDS_STR_REPEARTEDNUMBER"));
        QCOMPARE(message.buttons, (QStringList{"IDS_OK", "IDS_CANCEL"}));
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QVERIFY(message.flag);
        QVERIFY(message.parent == form.access.window());
    }

    void okSavesTheRepeatedNumber()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        EditForm form(4);
        form.setText(1, "111");
        QCOMPARE(form.save(), 0);
        QCOMPARE(FakeSdk::recordIds(4).size(), 2);
        QCOMPARE(FakeCore::messages().size(), 1);
    }

    void cancelKeepsTheFormAndSavesNothing()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeCore::answer(QMessageBox::Cancel);
        EditForm form(4);
        form.setText(1, "111");
        form.access.ok()->click();
        QVERIFY(form.access.record().lstValues.isEmpty());
        QCOMPARE(form.text(1), QString("111"));
        QCOMPARE(form.access.window()->m_iResult, -1);
        QCOMPARE(FakeSdk::recordIds(4).size(), 1);
        QCOMPARE(FakeCore::messages().size(), 1);
    }

    void anyOtherAnswerSavesNothingEither()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeCore::answer(0);
        EditForm form(4);
        form.setText(1, "111");
        form.access.ok()->click();
        QCOMPARE(form.access.record().lstValues.size(), 6);
        QCOMPARE(FakeSdk::recordIds(4).size(), 1);
    }

    void anUnchangedOwnNumberIsNoRepeat()
    {
        const int id = FakeSdk::addRecord(4, {"Ada", "111"});
        EditForm form(4, ADDRBOOK_OP_EDIT);
        form.load(4, id);
        form.setText(0, "Ada L");
        QCOMPARE(form.save(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void theSameNumberTwiceInOneContactIsNoRepeat()
    {
        EditForm form(4);
        form.setText(1, "111");
        form.setText(3, "111");
        QCOMPARE(form.save(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void numbersAreComparedAsTheyStand()
    {
        FakeSdk::addRecord(4, {"Ada", "+44111", "222 "});
        QVERIFY(captionsFor(4, {"Bob", "44111"}).isEmpty());
        QVERIFY(captionsFor(4, {"Bob", "0111"}).isEmpty());
        QCOMPARE(captionsFor(4, {"Bob", "+44111"}).size(), 1);
        QVERIFY(captionsFor(4, {"Bob", "222"}).isEmpty());
    }

    void emptyNumbersNeverMatch()
    {
        FakeSdk::addRecord(4, {"Ada"});
        QVERIFY(captionsFor(4, {"Bob"}).isEmpty());
    }

    void onADeviceOnlyTheMobilePlaceCounts()
    {
        FakeSdk::setFields(1, FakeSdk::wideDeviceFields());
        FakeSdk::addRecord(1, {"Ada", "111", "222"});
        QVERIFY(captionsFor(1, {"Bob", "222"}).isEmpty());
        QVERIFY(captionsFor(1, {"Bob", "", "111"}).isEmpty());
        QCOMPARE(captionsFor(1, {"Bob", "111"}), QStringList("ID_STR_MOBILE_PHONE"));
    }

    void otherMemoriesDoNotCount()
    {
        FakeSdk::addRecord(0, {"Ada", "111"});
        QVERIFY(captionsFor(4, {"Bob", "111"}).isEmpty());
    }

    void aMemoryThatCannotBeReadCountsAsFreeOfRepeats()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        FakeSdk::fail("GetAddrRecList");
        EditForm form(4);
        form.setText(1, "111");
        QCOMPARE(form.save(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
        QCOMPARE(FakeSdk::recordIds(4).size(), 2);
    }
};

QTEST_MAIN(EditRepeatTest)
#include "EditRepeatTest.moc"
