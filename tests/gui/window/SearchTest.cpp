#include <QHeaderView>

#include "WindowFixture.h"

// The search box and both ways of filtering.
class SearchTest : public WindowTest
{
    Q_OBJECT

private:
    static void type(WindowFixture& f, const QString& text)
    {
        f.in().searchBox()->setText(text);
        emit f.in().searchBox()->textEdited(text);
        QVERIFY(f.waitRead());
    }

    static void fill()
    {
        for (const char* name : {"Anna", "Annabel", "Hannah", "Bert", "Zoe"})
            FakeSdk::addRecord(4, {name, "1"});
    }

private slots:
    void twoCharactersNarrowTwiceAndDeletingOneReloadsOnce()
    {
        WindowFixture f;
        fill();
        f.build();
        const AddrBookThread* reader = f.in().reader();
        FakeSdk::clearCalls();
        type(f, "a");
        QCOMPARE(f.column(0), (QStringList{"Anna", "Annabel", "Hannah"}));
        type(f, "ah");
        QCOMPARE(f.column(0), QStringList{"Hannah"});
        QCOMPARE(static_cast<const AddrBookThread*>(f.in().reader()), reader);
        QCOMPARE(FakeSdk::totalCalls(), 0);
        type(f, "a");
        QVERIFY(f.in().reader() != reader);
        QCOMPARE(FakeSdk::count("AddrRecordSet_MoveFirst"), 1);
        QCOMPARE(f.column(0), (QStringList{"Anna", "Annabel", "Hannah"}));
        QCOMPARE(f.in().readMode(), ADDRBOOK_OP_NONE);
    }

    void everyColumnIsSearchedWithoutRegardToCase()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"One", "123", "", "", "a@X.org", ""});
        FakeSdk::addRecord(4, {"Two", "456", "", "", "", "Line\nbreak"});
        f.build();
        type(f, "x.ORG");
        QCOMPARE(f.column(0), QStringList{"One"});
        type(f, "");
        QCOMPARE(f.table()->rowCount(), 2);
        type(f, "45");
        QCOMPARE(f.column(0), QStringList{"Two"});
    }

    void charactersOfPatternsAreOrdinary()
    {
        WindowFixture f;
        for (const char* name : {"a*b", "axb", "what?", "two  blanks"})
            FakeSdk::addRecord(4, {name});
        f.build();
        type(f, "a*");
        QCOMPARE(f.column(0), QStringList{"a*b"});
        type(f, "t?");
        QCOMPARE(f.column(0), QStringList{"what?"});
        type(f, "  ");
        QCOMPARE(f.column(0), QStringList{"two  blanks"});
    }

    void narrowingLooksAtTheCellsAndAReloadAtTheValues()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"One", "", "", "", "", "first\nsecond"});
        f.build();
        type(f, "t s"); // the cell shows the line feed as a blank
        QCOMPARE(f.table()->rowCount(), 1);
        type(f, "t se");
        QCOMPARE(f.table()->rowCount(), 1);
        type(f, "t s"); // and the record does not hold it
        QCOMPARE(f.table()->rowCount(), 0);
    }

    void hidingTheBoxWithATextBringsTheTableBack()
    {
        WindowFixture f;
        fill();
        f.build();
        f.window()->OnShowHideSearchBox();
        QVERIFY(f.in().searchShown());
        QVERIFY(!f.in().searchBox()->isHidden());
        type(f, "bert");
        QCOMPARE(f.table()->rowCount(), 1);
        f.window()->OnShowHideSearchBox();
        QVERIFY(f.in().searchBox()->isHidden());
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->rowCount(), 5);
        QCOMPARE(f.in().searchBox()->text(), QString("bert")); // kept until the next node
        QCOMPARE(f.in().searchText(), QString(""));
    }

    void hidingAnEmptyBoxReloadsNothing()
    {
        WindowFixture f;
        fill();
        f.build();
        f.window()->OnShowHideSearchBox();
        const AddrBookThread* reader = f.in().reader();
        f.window()->OnShowHideSearchBox();
        QCOMPARE(static_cast<const AddrBookThread*>(f.in().reader()), reader);
    }

    void otherCaseReloadsWithTheSameRows()
    {
        WindowFixture f;
        fill();
        f.build();
        type(f, "an");
        const AddrBookThread* reader = f.in().reader();
        type(f, "AN");
        QVERIFY(f.in().reader() != reader);
        QCOMPARE(f.column(0), (QStringList{"Anna", "Annabel", "Hannah"}));
    }

    void anotherNodeShowsAllItsRowsAndTheOldTextIsComparedWith()
    {
        WindowFixture f;
        fill();
        for (const char* name : {"Anton", "Berta"})
            FakeSdk::addRecord(1, {name, "1"});
        f.build();
        type(f, "an");
        f.click(f.in().device());
        QCOMPARE(f.in().searchBox()->text(), QString(""));
        QCOMPARE(f.column(0), (QStringList{"Anton", "Berta"}));
        QCOMPARE(f.in().searchText(), QString("an"));
        const AddrBookThread* reader = f.in().reader();
        type(f, "ber"); // does not hold "an": read again
        QVERIFY(f.in().reader() != reader);
        QCOMPARE(f.column(0), QStringList{"Berta"});
        f.click(f.in().local());
        reader = f.in().reader();
        type(f, "bert"); // holds "ber": narrows
        QCOMPARE(static_cast<const AddrBookThread*>(f.in().reader()), reader);
        QCOMPARE(f.column(0), QStringList{"Bert"});
    }

    void emptyTextMatchesEveryRowAlsoOneWithoutValues()
    {
        WindowFixture f;
        const int group = FakeSdk::addGroup("Ghosts");
        FakeSdk::setMissingRecordGivesNull(true);
        FakeSdk::join(group, 4711);
        f.build();
        f.click(f.node("Ghosts"));
        QCOMPARE(f.table()->rowCount(), 1);
        type(f, "x");
        QCOMPARE(f.table()->rowCount(), 0);
        type(f, "");
        QCOMPARE(f.table()->rowCount(), 1);
    }

    void quickTypingEndsWithTheRowsOfTheLastText()
    {
        WindowFixture f;
        for (int i = 0; i < 500; ++i)
            FakeSdk::addRecord(4, {QString("Name %1").arg(i), "x"});
        f.build();
        for (const char* text : {"4", "49", "4", "", "3", "33", "3", "2", "25"}) {
            f.in().searchBox()->setText(text);
            emit f.in().searchBox()->textEdited(text);
        }
        QVERIFY(f.waitRead());
        for (const QString& name : f.column(0))
            QVERIFY2(name.contains("25"), qPrintable(name));
        QCOMPARE(f.table()->rowCount(), 15); // 25, 125, 225, 325, 425, 250 to 259
    }

    void rowsLeftByNarrowingKeepOrderHeightAndSelection()
    {
        WindowFixture f;
        for (int i = 0; i < 200; ++i)
            FakeSdk::addRecord(4, {QString("Name %1").arg(i, 3, 10, QChar('0')), i % 10 == 0 ? "ten" : "one"});
        f.build();
        f.table()->sortItems(0, Qt::DescendingOrder);
        f.selectRows({f.rowOf("Name 110"), f.rowOf("Name 050")});
        type(f, "ten");
        QCOMPARE(f.table()->rowCount(), 20);
        QStringList sorted = f.column(0);
        std::sort(sorted.begin(), sorted.end(), std::greater<QString>());
        QCOMPARE(f.column(0), sorted);
        for (int row = 0; row < 20; ++row)
            QCOMPARE(f.table()->rowHeight(row), 16);
        QCOMPARE(f.table()->verticalHeader()->count(), 20);
        QVERIFY(f.table()->item(f.rowOf("Name 110"), 0)->isSelected());
        QVERIFY(f.table()->item(f.rowOf("Name 050"), 0)->isSelected());
        QCOMPARE(f.table()->currentRow(), f.rowOf("Name 050"));
        QVERIFY(f.previewText().contains("Name 050"));
        QCOMPARE(f.table()->visualItemRect(f.table()->item(19, 0)).top() -
                     f.table()->visualItemRect(f.table()->item(18, 0)).top(),
                 16);
    }

    void selectedRowThatNarrowingTakesTurnsTheItemsOff()
    {
        WindowFixture f;
        fill();
        f.build();
        f.selectRows({f.rowOf("Bert")});
        QVERIFY(f.button(TOOL_EDIT)->isEnabled());
        type(f, "ann");
        QVERIFY(!f.button(TOOL_EDIT)->isEnabled());
        QVERIFY(!f.button(TOOL_DELETE)->isEnabled());
        QCOMPARE(f.previewText(), QString("IDS_NORECORDSELECT"));
    }
};

QTEST_MAIN(SearchTest)
#include "SearchTest.moc"
