#include <QThread>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include "LogicTest.h"

// An SDK may call back on the thread that is just calling it, and the callback may ask it again.
class TestReentry : public LogicTest
{
    Q_OBJECT

    // False if the function does not come back; its thread then stays behind.
    static bool comesBack(const std::function<void()>& function)
    {
        const std::shared_ptr<std::promise<void>> done(new std::promise<void>);
        std::future<void> end = done->get_future();
        std::thread([function, done] {
            function();
            done->set_value();
        }).detach();
        return end.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
    }

private slots:
    void aCallbackWithinACallMayAskForFields_data()
    {
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<bool>("outlook");
        QTest::newRow("profile") << QByteArray("GetProfile") << false;
        QTest::newRow("release") << QByteArray("ProfileRelease") << false;
        QTest::newRow("profile, names alone") << QByteArray("GetProfile") << true;
        QTest::newRow("release, names alone") << QByteArray("ProfileRelease") << true;
    }

    void aCallbackWithinACallMayAskForFields()
    {
        QFETCH(QByteArray, call);
        QFETCH(bool, outlook);
        AddrBookLogic* const pLogic = logic();
        AddrBookLogic::RegisterCallbacks();
        int inner = -1;
        FakeSdk::onCall(call, 1, [&inner, pLogic] {
            FakeSdk::fireHere(6014);
            pLogic->ClearDeviceInfo();
            QList<AddrBookField> fields;
            inner = pLogic->GetAllFields(fields, PB_MEM_ME);
            QList<QString> names;
            inner += pLogic->GetAllFieldsForOutlook(names, PB_MEM_SIM);
        });
        QList<AddrBookField> fields;
        QList<QString> names;
        int outer = -1;
        QVERIFY(comesBack([&] {
            outer = outlook ? pLogic->GetAllFieldsForOutlook(names, PB_MEM_LOCAL)
                            : pLogic->GetAllFields(fields, PB_MEM_LOCAL);
        }));
        QCOMPARE(outer, 0);
        QCOMPARE(inner, 0);
        QCOMPARE(outlook ? names.size() : fields.size(), 6);
        AddrBookLogic::unSDKRegisterEvent();
    }
};

QTEST_GUILESS_MAIN(TestReentry)
#include "tst_reentry.moc"
