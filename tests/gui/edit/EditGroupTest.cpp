#include "EditSupport.h"

// A form opened on a group.
class EditGroupTest : public DialogTest
{
    Q_OBJECT

    static int repeats()
    {
        int count = 0;
        for (const FakeCore::Message& message : FakeCore::messages())
            count += message.text == "IDS_STR_REPEARTEDNUMBER" ? 1 : 0;
        return count;
    }

private slots:
    void aNumberRepeatsThatOfAContactInAnyGroupAndInNone()
    {
        const int friends = FakeSdk::addGroup("Friends");
        const int work = FakeSdk::addGroup("Work");
        FakeSdk::join(work, FakeSdk::addRecord(4, {"Ada", "111"}));
        FakeSdk::addRecord(4, {"Eve", "222"});
        for (const char* number : {"111", "222"}) {
            for (const int group : {friends, work, 0}) {
                FakeCore::clearMessages();
                FakeCore::answer(QMessageBox::Cancel);
                EditForm form(4, ADDRBOOK_OP_ADD, group);
                form.setText(1, number);
                form.save();
                QCOMPARE(repeats(), 1);
            }
        }
        QCOMPARE(FakeSdk::recordIds(4).size(), 2);
    }

    void aContactThatGotNoIdentifierJoinsNoGroup()
    {
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::giveNull("AddAddrRec");
        EditForm form(4, ADDRBOOK_OP_ADD, group);
        form.setText(0, "Ada");
        QCOMPARE(form.save(), 0);
        QCOMPARE(form.access.record().iID, 0);
        QCOMPARE(FakeSdk::count("AddAddrToGroup"), 0);
        QVERIFY(FakeSdk::members(group).isEmpty());
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void theFirstIdentifierIsOne()
    {
        const int group = FakeSdk::addGroup("Friends");
        EditForm form(4, ADDRBOOK_OP_ADD, group);
        form.setText(0, "Ada");
        QCOMPARE(form.save(), 0);
        QCOMPARE(form.access.record().iID, 1);
        QCOMPARE(FakeSdk::members(group), QList<int>{1});
    }
};

QTEST_MAIN(EditGroupTest)
#include "EditGroupTest.moc"
