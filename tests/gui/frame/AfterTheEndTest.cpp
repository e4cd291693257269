#include <QApplication>
#include <QPointer>
#include <QtTest>

#include <memory>

#include "MessageLog.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "frame/AddrBookUIPlugin.h"
#include "frame/AddrBookUIService.h"
#include "window/AddrBookDlg.h"

// What still comes once the host has let go of the plug-in.
class AfterTheEndTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<CAddrBookUIPlugin> m_plugin;

    static int windows()
    {
        int count = 0;
        for (QWidget* widget : QApplication::allWidgets())
            count += qobject_cast<AddrBookDlg*>(widget) != nullptr ? 1 : 0;
        return count;
    }

    // Log lines of one call that come from the service itself.
    static int linesOfService(const QString& operation)
    {
        int count = 0;
        for (const QString& line : MessageLog::lines())
            count += line.contains("AddrBookUIService.cpp: " + operation + " called") ? 1 : 0;
        return count;
    }

    QPointer<QObject> service()
    {
        QObject* object = nullptr;
        m_plugin->QueryInterface(4097, &object);
        return object;
    }

private slots:
    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
        FakeSdk::addRecord(4, {"Anna", "1"});
        m_plugin = std::make_unique<CAddrBookUIPlugin>();
        m_plugin->Init();
        m_plugin->UnSDKRegisterEvent();
    }

    void cleanup()
    {
        m_plugin->OnDestroy();
        m_plugin.reset();
        QCOMPARE(windows(), 0);
        QCOMPARE(FakeSdk::leaks(), QString());
    }

    void theServiceGoesWithItsWindow()
    {
        const QPointer<QObject> first = service();
        QVERIFY(first != nullptr);
        QCOMPARE(windows(), 1);
        m_plugin->OnDestroy();
        QVERIFY(first == nullptr);
        QCOMPARE(windows(), 0);
    }

    void aNoticeIsTakenByAFreshServiceWithoutAWindow()
    {
        m_plugin->OnDestroy();
        FakeSdk::clearCalls();
        for (const unsigned code : {320U, 515U, 576U, 577U, 578U, 579U, 4101U, 1U}) {
            const MessageLog log;
            const int answer = m_plugin->Notify(code, 1, 0);
            QCOMPARE(answer, 0);
            QCOMPARE(linesOfService("Notify"), 1);
            QCOMPARE(windows(), 0);
        }
        // It does nothing: no question goes to the phonebook, and no event is listened to.
        QCOMPARE(FakeSdk::log(), QStringList());
        QCOMPARE(FakeSdk::callbackCount(), 0);
    }

    void theFreshServiceGoesWithTheNextEndAndServesANewBeginning()
    {
        m_plugin->OnDestroy();
        m_plugin->Notify(4101, 0, 0);
        const QPointer<QObject> fresh = service();
        QVERIFY(fresh != nullptr);
        QVERIFY(m_plugin->Init());
        QCOMPARE(service().data(), fresh.data());
        QCOMPARE(windows(), 1);
        m_plugin->UnSDKRegisterEvent();
        m_plugin->OnDestroy();
        QVERIFY(fresh == nullptr);
        QCOMPARE(windows(), 0);
    }

    void endingTwiceIsHarmless()
    {
        m_plugin->OnDestroy();
        m_plugin->OnDestroy();
        QCOMPARE(windows(), 0);
    }
};

QTEST_MAIN(AfterTheEndTest)
#include "AfterTheEndTest.moc"
