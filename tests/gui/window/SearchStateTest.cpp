#include <QHeaderView>

#include "WindowFixture.h"
#include "window/TableSearch.h"

// What a search is to the reader that runs: it ends with the node, and looks at what comes late.
class SearchStateTest : public WindowTest
{
    Q_OBJECT

private:
    static void type(const WindowFixture& f, const QString& text)
    {
        f.in().searchBox()->setText(text);
        emit f.in().searchBox()->textEdited(text);
    }

    static void fill(int memory, int count)
    {
        for (int i = 0; i < count; ++i)
            FakeSdk::addRecord(memory, {QString("Name %1").arg(i), QString::number(1000 + i)});
    }

    // Starts the read of a node, up to its first rows.
    static void clickUpToTheFirstRows(const WindowFixture& f, QTreeWidgetItem* node)
    {
        f.window()->OnTreeClicked(node);
        QTRY_VERIFY(f.table()->rowCount() >= 3);
        QVERIFY2(!f.table()->isSortingEnabled(), "the read is over");
    }

private slots:
    void nodeClickedDuringASearchReloadShowsAllItsRows()
    {
        WindowFixture f;
        fill(4, 50);
        fill(1, 20);
        f.build();
        f.window()->OnShowHideSearchBox();
        type(f, "1");
        type(f, "2"); // read again
        QCOMPARE(f.in().readMode(), ADDRBOOK_OP_SEARCH);
        f.click(f.in().device());
        QCOMPARE(f.in().searchBox()->text(), QString());
        QCOMPARE(f.table()->rowCount(), 20);
        QCOMPARE(f.in().readMode(), ADDRBOOK_OP_NONE);
    }

    void nodeClickedDuringASearchReloadEndsItsMode()
    {
        WindowFixture f;
        fill(4, 50);
        f.build();
        type(f, "1");
        type(f, "2");
        f.window()->OnTreeClicked(f.in().device());
        QCOMPARE(f.in().readMode(), ADDRBOOK_OP_NONE);
        QVERIFY(f.waitRead());
    }

    void rowsThatComeLateFollowWhatWasTypedMeanwhile()
    {
        WindowFixture f;
        fill(1, 60);
        f.build();
        FakeSdk::setDelay("GetAddrRecord", 2);
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 2);
        clickUpToTheFirstRows(f, f.in().device());
        type(f, "5");
        QVERIFY2(!f.table()->isSortingEnabled(), "the read is over");
        QVERIFY(f.waitRead());
        for (const QString& name : f.column(0))
            QVERIFY2(name.contains('5') || f.column(1).at(f.rowOf(name)).contains('5'), qPrintable(name));
        QCOMPARE(f.table()->rowCount(), 15); // 5, 15, ... 55 and 50 to 59
    }

    void reloadThatIsNarrowedLetsNoneOfTheWiderTextIn()
    {
        WindowFixture f;
        fill(4, 60);
        f.build();
        type(f, "1");
        FakeSdk::setDelay("GetAddrRecord", 2);
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 2);
        type(f, "Name 5");
        QTRY_VERIFY(f.table()->rowCount() >= 1);
        QVERIFY2(!f.table()->isSortingEnabled(), "the read is over");
        type(f, "Name 53");
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList{"Name 53"});
    }

    void clearedWhileTheRowsComeBringsThemAll()
    {
        WindowFixture f;
        fill(1, 60);
        f.build();
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 2);
        clickUpToTheFirstRows(f, f.in().device());
        type(f, "5");
        type(f, "");
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->rowCount(), 60);
    }

    void emptyTableBehindAnEmptyBoxDoesNotTalkOfASearch()
    {
        WindowFixture f;
        fill(4, 3);
        f.build();
        f.window()->OnShowHideSearchBox();
        type(f, "zzz");
        QCOMPARE(f.table()->rowCount(), 0);
        QCOMPARE(f.table()->accessibleDescription(), QString("IDS_EMPTY_SEARCH"));
        f.click(f.in().device());
        QCOMPARE(f.in().searchBox()->text(), QString());
        QCOMPARE(f.table()->accessibleDescription(), QString("IDS_EMPTY_MEMORY"));
        f.window()->SetLanguage();
        QCOMPARE(f.table()->accessibleDescription(), QString("IDS_EMPTY_MEMORY"));
    }

    void aMemoryThatCannotBeReadIsNotCalledEmpty()
    {
        WindowFixture f;
        fill(4, 3);
        FakeSdk::failAlways("GetAddrRecList");
        f.build();
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->rowCount(), 0);
        QCOMPARE(f.table()->accessibleDescription(), QString("IDS_READ_FAILED"));
        FakeSdk::clearFailures();
        // As the host has it read anew.
        f.window()->OnAddrBookSimReady();
        f.window()->SetLanguage();
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->rowCount(), 3);
        QVERIFY(f.table()->accessibleDescription() != QString("IDS_READ_FAILED"));
    }

    void reloadLooksAtEveryValue()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"Anna", "111", "", "", "anna@example.org", ""});
        FakeSdk::addRecord(4, {"Bert", "222", "", "", "", "a remark"});
        f.build();
        type(f, "zzz");
        type(f, "111");
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList{"Anna"});
        type(f, "REMARK");
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList{"Bert"});
    }

    void nodeWithoutRecordsOfItsOwnLeavesNoReloadUnderWay()
    {
        WindowFixture f;
        fill(4, 3);
        f.build();
        f.treeAction("IDS_Add_GROUP")->trigger();
        QVERIFY(f.in().editedGroup() != nullptr);
        type(f, "9");
        type(f, "1");
        QCOMPARE(f.in().readMode(), ADDRBOOK_OP_NONE);
        QVERIFY(f.waitRead());
    }

    void narrowingLeavesNoSelectionsBehind()
    {
        WindowFixture f;
        fill(4, 30);
        f.build();
        const auto selections = [&f] { return f.table()->findChildren<QItemSelectionModel*>().size(); };
        const int before = selections();
        for (const char* text : {"N", "Na", "Nam", "Name", "Name 2", "Name 21"})
            type(f, text);
        QCOMPARE(f.table()->rowCount(), 1);
        QCOMPARE(selections(), before);
        QCOMPARE(f.table()->verticalHeader()->selectionModel(), f.table()->selectionModel());
    }

    void statesFollowOneAnother()
    {
        const AddrBookRecord record{1, {"Anna", "111"}};
        TableSearch search;
        QCOMPARE(search.GetState(), TableSearch::IDLE);
        QVERIFY(search.LetsIn(record, 2));
        search.Narrow("b");
        QCOMPARE(search.GetState(), TableSearch::NARROWING);
        QVERIFY(search.LetsIn(record, 2)); // looked at when the read ends
        QVERIFY(search.EndRead());
        QVERIFY(!search.EndRead());

        search = TableSearch::Reloading("b");
        QCOMPARE(search.GetState(), TableSearch::RELOADING);
        QVERIFY(!search.LetsIn(record, 2));
        search.Narrow("11");
        QCOMPARE(search.GetState(), TableSearch::RELOADING);
        QVERIFY(search.LetsIn(record, 2));
        QVERIFY(!search.LetsIn(record, 1)); // the second value is in no column
        QVERIFY(!search.EndRead());
        QCOMPARE(search.GetState(), TableSearch::NARROWING);

        search = TableSearch::Reloading("");
        QVERIFY(search.LetsIn(AddrBookRecord(), 2));
        QVERIFY(!search.EndRead());
        QCOMPARE(search.GetState(), TableSearch::IDLE);
    }
};

QTEST_MAIN(SearchStateTest)
#include "SearchStateTest.moc"
