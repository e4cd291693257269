#include "WorkerTest.h"

// Several workers, the SDK's callbacks and the user interface at once; what the thread sanitizer is to look at.
class TestThreads : public WorkerTest
{
    Q_OBJECT

private slots:
    void readersOfEveryMemoryWhileDevicesComeAndGo()
    {
        for (int i = 0; i < 300; ++i) {
            FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
            FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "1"});
            FakeSdk::addRecord(PB_MEM_ME, {"Anna", "1"});
        }
        AddrBookLogic* const logic = AddrBookLogic::Instance();
        AddrBookLogic::RegisterCallbacks();
        const _ORVA_EN_PHONEBOOK_MEMORY memories[] = {PB_MEM_LOCAL, PB_MEM_SIM, PB_MEM_ME};
        for (int round = 0; round < 10; ++round) {
            AddrBookThread workers[3];
            std::vector<std::unique_ptr<Receiver>> receivers;
            for (int i = 0; i < 3; ++i) {
                receivers.emplace_back(new Receiver(&workers[i]));
                setRead(workers[i], memories[i], 0);
                workers[i].start(QThread::InheritPriority);
            }
            for (int event : {6014, 20301, 20302, 20303, 6615})
                QCOMPARE(FakeSdk::fire(event), 1);
            logic->ClearDeviceInfo();
            QList<AddrBookField> fields;
            logic->GetAllFields(fields, PB_MEM_SIM);
            logic->GetMobileIndex();
            for (int i = 0; i < 3; ++i) {
                QTRY_VERIFY(workers[i].isFinished());
                QTRY_COMPARE(receivers[static_cast<size_t>(i)]->contacts.size(), 300);
                logic->recordCount(memories[i]);
            }
        }
        AddrBookLogic::unSDKRegisterEvent();
    }

    void aReaderReplacedFiftyTimes()
    {
        for (int i = 0; i < 500; ++i)
            FakeSdk::addRecord(PB_MEM_LOCAL, contact("Anna"));
        std::vector<std::unique_ptr<Receiver>> receivers;
        std::unique_ptr<AddrBookThread> reader;
        for (int click = 0; click < 50; ++click) {
            if (reader != nullptr) {
                reader->DisconnectSignals();
                reader->StopOperation();
                while (reader->isRunning())
                    QThread::yieldCurrentThread();
            }
            reader.reset(new AddrBookThread);
            receivers.emplace_back(new Receiver(reader.get()));
            setRead(*reader, PB_MEM_LOCAL, 0);
            reader->start(QThread::InheritPriority);
            if (click % 5 == 4)
                QTRY_VERIFY(!receivers.back()->contacts.isEmpty());
        }
        QTRY_COMPARE(receivers.back()->contacts.size(), 500);
        QTRY_VERIFY(reader->isFinished());
        QCOMPARE(FakeSdk::handlesAlive(), 0);
    }

    void aBatchCancelledAtAnyMoment()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        for (int stopAt = 1; stopAt <= 20; ++stopAt) {
            receiver.results.clear();
            receiver.onResult = [&](int count) {
                if (count == stopAt)
                    worker.StopOperation();
            };
            worker.SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(21), 0);
            QVERIFY(runToEnd(worker));
            QCOMPARE(receiver.results.size(), stopAt);
        }
    }

    // Answers around the moments at which a waiting worker looks for a shutdown, which must not swallow one.
    void anAnswerAtAnyMomentEndsTheWait()
    {
        AddrBookThread worker;
        Receiver receiver(&worker);
        receiver.onResult = [](int count) { QThread::usleep(49500 + 50UL * static_cast<unsigned long>(count % 20)); };
        worker.SetOperation(ADDRBOOK_OP_DELETE, PB_MEM_LOCAL, records(60), 0);
        QVERIFY(runToEnd(worker));
        QCOMPARE(receiver.results.size(), 60);
    }

    void aBatchEndedByItsOwnerAtAnyMoment()
    {
        for (int round = 0; round < 30; ++round) {
            std::unique_ptr<AddrBookThread> worker(new AddrBookThread);
            Receiver receiver(worker.get());
            worker->SetOperation(ADDRBOOK_OP_ADD, PB_MEM_LOCAL, records(50), 0);
            worker->start(QThread::InheritPriority);
            const int results = round % 10;
            QTRY_VERIFY_WITH_TIMEOUT(receiver.results.size() >= results, 20000);
            worker.reset();
            QCOMPARE(FakeCore::runningWorkers(), 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestThreads)
#include "tst_threads.moc"
