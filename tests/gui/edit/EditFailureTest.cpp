#include "EditSupport.h"

// Every call to the SDK failing in turn, from the opening of the form to its end.
class EditFailureTest : public DialogTest
{
    Q_OBJECT

    struct Outcome {
        int result;
        QList<int> ids;
    };

    // Opens the form, fills it in, presses OK once and then Cancel.
    static Outcome openAndSave(int memory, _ADDRBOOK_OPERATION_TYPE operation, int group, int id)
    {
        EditForm form(memory, operation, group);
        form.dialog.SetWindowTitle("title");
        if (operation == ADDRBOOK_OP_EDIT)
            form.load(memory, id);
        form.dialog.setRegEx();
        if (form.access.name() != nullptr)
            form.access.name()->setText("Bob");
        const int result = form.save();
        return {result, FakeSdk::recordIds(memory)};
    }

    // The set-up that every run starts from; gives the contact that is there.
    static int prepare(int memory, int& group)
    {
        AddrBookLogic::Destroy();
        FakeCore::reset();
        FakeSdk::reset();
        group = memory == 4 ? FakeSdk::addGroup("Friends") : 0;
        FakeSdk::addRecord(memory, {"Eve", "999"});
        return FakeSdk::addRecord(memory, {"Ada", "111"});
    }

private slots:
    void eachCallFailingInTurn_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<int>("operation");
        for (const int memory : {0, 1, 4}) {
            QTest::newRow(qPrintable(QString("new %1").arg(memory))) << memory << int(ADDRBOOK_OP_ADD);
            QTest::newRow(qPrintable(QString("edit %1").arg(memory))) << memory << int(ADDRBOOK_OP_EDIT);
        }
    }
    void eachCallFailingInTurn()
    {
        QFETCH(int, memory);
        QFETCH(int, operation);
        const auto type = static_cast<_ADDRBOOK_OPERATION_TYPE>(operation);
        int group = 0;
        int id = prepare(memory, group);
        FakeSdk::clearCalls();
        QCOMPARE(openAndSave(memory, type, group, id).result, 0);
        const int calls = FakeSdk::totalCalls();
        QVERIFY(calls > 5);

        for (int k = 1; k <= calls; ++k) {
            id = prepare(memory, group);
            const QStringList before = FakeSdk::record(memory, id);
            FakeSdk::failCall(k);
            const Outcome outcome = openAndSave(memory, type, group, id);
            const QByteArray failed = FakeSdk::failedCall();
            QVERIFY2(!failed.isEmpty(), qPrintable(QString::number(k)));
            const QByteArray at = QByteArray::number(k) + " " + failed;
            QVERIFY2(outcome.result == 0 || outcome.result == 1, at.constData());

            const bool isSaved = outcome.result == 0;
            if (type == ADDRBOOK_OP_EDIT) {
                QCOMPARE(outcome.ids.size(), 2);
                QCOMPARE(FakeSdk::record(memory, id).value(0), isSaved ? QString("Bob") : before.value(0));
            } else if (failed == "AddAddrToGroup") {
                QCOMPARE(outcome.result, 1); // the contact is there, the form stays
                QCOMPARE(outcome.ids.size(), 3);
            } else {
                QVERIFY2(outcome.ids.size() == (isSaved ? 3 : 2), at.constData());
            }
            QCOMPARE(FakeSdk::record(memory, outcome.ids.first()).value(0), QString("Eve"));
            AddrBookLogic::Destroy();
            QVERIFY2(FakeSdk::leaks().isEmpty(), (at + ": " + FakeSdk::leaks().toUtf8()).constData());
        }
    }

    void nullsInPlaceOfWhatIsAskedFor_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char* call : {"GetProfile", "GetAddrRecList", "AddrRecordSet_GetValue", "CreateAddrRecord"})
            QTest::newRow(call) << QByteArray(call);
    }
    void nullsInPlaceOfWhatIsAskedFor()
    {
        QFETCH(QByteArray, call);
        int group = 0;
        const int id = prepare(4, group);
        FakeSdk::giveNull(call);
        const Outcome outcome = openAndSave(4, ADDRBOOK_OP_ADD, group, id);
        QVERIFY(outcome.ids.size() == 2 || outcome.ids.size() == 3);
    }
};

QTEST_MAIN(EditFailureTest)
#include "EditFailureTest.moc"
