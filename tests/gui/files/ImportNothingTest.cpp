#include "FailingNew.h"
#include "FilesFixture.h"

// An import that succeeds with no records: the store has answered, and there is nothing to add.
class ImportNothingTest : public WindowTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        FailingNew::failNth(0);
        WindowTest::cleanup();
    }

    // No room for the field map is the one way there: it counts as success.
    void itLeavesTheDialogWithAWorkingCancel()
    {
        bool found = false;
        for (int nth = 1; nth <= 60 && !found; ++nth) {
            FilesFixture f;
            FilesFixture::makeFile("/a/file.csv", "Name", {{"Anna"}});
            FilesFixture::choose("/a/file.csv");
            f.build();
            FilesFixture::onMap([nth](const FilesFixture::Map&) {
                FailingNew::failNth(nth);
                return true;
            });
            f.import();
            const bool failed = FailingNew::hasFailed();
            FailingNew::failNth(0);
            found = failed && FakeSdk::count("ImportFromFile") == 0 && !f.in().threadBusy() &&
                    FakeCore::messages().isEmpty() && WindowFixture::waiting() != nullptr;
            if (found) {
                QCOMPARE(f.in().operation(), ADDRBOOK_OP_IMPORT);
                FilesFixture::cancelWaiting();
                QVERIFY(FakeCore::messages().isEmpty());
            }
            QVERIFY(f.waitDone());
            QVERIFY(FakeSdk::recordIds(4).size() <= 1);
        }
        QVERIFY(found);
    }
};

QTEST_MAIN(ImportNothingTest)
#include "ImportNothingTest.moc"
