#include <QThread>
#include <QtTest>

#include <thread>

#include "orva/orva_sdk.h"
#include "sdk/SdkListener.h"

namespace
{

const int MINE = 7;
const int ANOTHERS = 8;

// An event as the SDK's thread tells it; what the callback answers.
int tell(ORVA_CALLBACK callback, int iEvent)
{
    int iTaken = -1;
    std::thread([&] { iTaken = callback(iEvent, nullptr); }).join();
    return iTaken;
}

} // namespace

// Two classes that listen, each with a receiver of its own.
class Listening : public QObject
{
    Q_OBJECT

public:
    static bool Takes(int iEvent) { return iEvent == MINE; }

    QList<int> m_listEvents;
    QThread* m_pThread = nullptr;

public slots:
    void OnSdkEvent(int iEvent)
    {
        m_listEvents.append(iEvent);
        m_pThread = QThread::currentThread();
    }
};

class OtherListening : public Listening
{
    Q_OBJECT

public:
    static bool Takes(int iEvent) { return iEvent == ANOTHERS; }
};

class TestHostListener : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void anEventComesOnTheReceiversThread();
    void whatIsNotForTheClassIsNotTaken();
    void eachClassHasAReceiverOfItsOwn();
    void withoutAReceiverNothingIsTold();
};

void TestHostListener::cleanup()
{
    SdkListener<Listening>::SetReceiver(nullptr);
    SdkListener<OtherListening>::SetReceiver(nullptr);
}

void TestHostListener::anEventComesOnTheReceiversThread()
{
    Listening listening;
    SdkListener<Listening>::SetReceiver(&listening);
    QCOMPARE(tell(&SdkListener<Listening>::OnEvent, MINE), 1);
    QVERIFY(listening.m_listEvents.isEmpty());
    QTRY_COMPARE(listening.m_listEvents, QList<int>() << MINE);
    QCOMPARE(listening.m_pThread, thread());
}

void TestHostListener::whatIsNotForTheClassIsNotTaken()
{
    Listening listening;
    SdkListener<Listening>::SetReceiver(&listening);
    QCOMPARE(tell(&SdkListener<Listening>::OnEvent, ANOTHERS), 0);
    QCOMPARE(tell(&SdkListener<Listening>::OnEvent, MINE), 1);
    QTRY_VERIFY(!listening.m_listEvents.isEmpty());
    QCOMPARE(listening.m_listEvents, QList<int>() << MINE);
}

void TestHostListener::eachClassHasAReceiverOfItsOwn()
{
    Listening listening;
    OtherListening other;
    SdkListener<Listening>::SetReceiver(&listening);
    SdkListener<OtherListening>::SetReceiver(&other);
    tell(&SdkListener<OtherListening>::OnEvent, ANOTHERS);
    tell(&SdkListener<Listening>::OnEvent, MINE);
    QTRY_COMPARE(listening.m_listEvents, QList<int>() << MINE);
    QTRY_COMPARE(other.m_listEvents, QList<int>() << ANOTHERS);
}

void TestHostListener::withoutAReceiverNothingIsTold()
{
    Listening listening;
    SdkListener<Listening>::SetReceiver(&listening);
    SdkListener<Listening>::SetReceiver(nullptr);
    QCOMPARE(tell(&SdkListener<Listening>::OnEvent, MINE), 1);
    QCoreApplication::sendPostedEvents();
    QVERIFY(listening.m_listEvents.isEmpty());
}

QTEST_MAIN(TestHostListener)
#include "test_host_listener.moc"
