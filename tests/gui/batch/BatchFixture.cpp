#include "BatchFixture.h"

Held::Held(const QByteArray& operation, int nth) : m_state(std::make_shared<State>())
{
    const std::shared_ptr<State> state = m_state;
    FakeSdk::onCall(operation, nth, [state] {
        state->there = true;
        while (!state->open)
            QThread::usleep(200);
    });
}

bool Held::wait() const
{
    return QTest::qWaitFor([this] { return m_state->there.load(); }, 20000);
}

void BatchFixture::fillLocal()
{
    for (int i = 1; i <= 4; ++i)
        FakeSdk::addRecord(4, {QString("One %1").arg(i), QString("90%1").arg(i)});
}

void BatchFixture::cancelledCopy()
{
    held = std::make_unique<Held>("AddAddrRec", 1);
    QVERIFY(drop(in().local(), ones(), in().sim()));
    QVERIFY(held->wait());
    cancelButton()->click();
    QVERIFY(in().threadBusy());
}

void BatchFixture::cancelledImport(int n)
{
    held = std::make_unique<Held>("AddAddrRec", 1);
    window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", n), 0);
    QVERIFY(held->wait());
    cancelButton()->click();
    QVERIFY(in().threadBusy());
}

bool BatchFixture::waitForTheWindow() const
{
    if (!QTest::qWaitFor([] { return waiting() == nullptr; }, 20000))
        return false;
    // What the display has already told of the dialog comes first: its activation would take the focus once more.
    QCoreApplication::processEvents();
    window()->window()->activateWindow();
    if (!QTest::qWaitForWindowActive(window()->window(), 20000))
        return false;
    QCoreApplication::processEvents();
    return window()->window()->isActiveWindow();
}

void BatchFixture::letEnd() const
{
    held->letGo();
    QVERIFY(waitDone());
}

QString BatchFixture::copied(int total, int success)
{
    return QString("IDS_COPY_COMPLETE IDS_TOTAL_COUNT%1IDS_SUCCESS_COUNT%2").arg(total).arg(success);
}

QString BatchFixture::imported(int total, int success)
{
    return QString("IDS_IMPORT_TOTAL_NUMBER%1IDS_IMPORT_IMPORTED_NUMBER%2").arg(total).arg(success);
}
