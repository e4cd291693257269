#include "CopyFixture.h"

// What a drop between memories does once, however many contacts it holds.
class DropReadingTest : public WindowTest
{
    Q_OBJECT

private:
    static QStringList fillCard()
    {
        QStringList names;
        for (int i = 1; i <= 5; ++i) {
            names << QString("Card %1").arg(i);
            FakeSdk::addRecord(0, {names.last(), QString::number(i)});
        }
        return names;
    }

    // Field lists asked for by a drop of n contacts with nothing in the cache, and none that could be kept there.
    static int listsFetchedFor(int n)
    {
        CopyFixture f;
        const QStringList names = fillCard();
        f.build();
        const auto rows = f.take(f.in().sim(), names.mid(0, n));
        if (!f.hover(*rows, f.in().device()))
            return -1;
        AddrBookLogic::Instance()->ClearDeviceInfo();
        FakeSdk::failAlways("GetProfile");
        int fetched = 0;
        FakeSdk::onCall("GetProfile", 0, [&fetched] { fetched += QThread::currentThread() == qApp->thread() ? 1 : 0; });
        f.release(*rows, f.in().device());
        const int before = fetched;
        FakeSdk::clearFailures();
        return f.waitDone() ? before : -1;
    }

private slots:
    void fieldsAreFetchedOnceADrop()
    {
        const int forOne = listsFetchedFor(1);
        QVERIFY2(forOne > 0, qPrintable(QString::number(forOne)));
        // And once by the reading of each further contact.
        QCOMPARE(listsFetchedFor(5), forOne + 4);
    }

    // One that the user has closed does not come back for the next contact.
    void waitingDialogIsOpenedOnceADrop()
    {
        CopyFixture f;
        const QStringList names = fillCard();
        f.build();
        const auto rows = f.take(f.in().sim(), names);
        QVERIFY(f.hover(*rows, f.in().device()));
        QList<bool> open;
        FakeSdk::onCall("GetAddrRecord", 0, [&open] {
            if (QThread::currentThread() != qApp->thread())
                return;
            open << (WindowFixture::waiting() != nullptr);
            if (open.size() == 1 && WindowFixture::cancelButton() != nullptr)
                WindowFixture::cancelButton()->click();
        });
        f.release(*rows, f.in().device());
        QCOMPARE(open.mid(0, 5), QList<bool>({true, false, false, false, false}));
        QVERIFY(f.waitDone());
    }
};

QTEST_MAIN(DropReadingTest)
#include "DropReadingTest.moc"
