#include <QHeaderView>
#include <QSplitter>

#include "WindowFixture.h"
#include "widgets/UITableItem.h"

// The table and the preview: from the click to the finished table, sorting, column state, what a selection enables.
class TableTest : public WindowTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qApp->processEvents();
        WindowTest::cleanup();
    }

    void tableShowsWholeReadOnlyRowsWithoutGrid()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        AddrBookTableWidget* t = f.table();
        QCOMPARE(t->objectName(), QString("AddrBookUIPlugin_ContactTable"));
        QCOMPARE(t->columnCount(), 6);
        QCOMPARE(t->horizontalHeaderItem(1)->text(), QString("ID_STR_MOBILE_PHONE"));
        QCOMPARE(t->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(t->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(t->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QVERIFY(!t->showGrid());
        QVERIFY(!t->tabKeyNavigation());
        QVERIFY(!t->verticalHeader()->isVisible());
        QVERIFY(!t->horizontalHeader()->stretchLastSection());
        QVERIFY(t->horizontalHeader()->isSortIndicatorShown());
        QCOMPARE(t->horizontalHeader()->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
        for (int row = 0; row < t->rowCount(); ++row)
            QCOMPARE(t->rowHeight(row), 16);
        for (int column = 0; column < 6; ++column)
            QCOMPARE(t->columnWidth(column), 100);
        const QTableWidgetItem* cell = t->item(0, 0);
        QCOMPARE(cell->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
        QVERIFY(!(cell->flags() & Qt::ItemIsEditable));
        QCOMPARE(tableRowData(cell)->iRecordID, 1);
        QCOMPARE(tableRowData(cell)->iGroupID, 0);
        QVERIFY(tableRowData(cell) != tableRowData(t->item(0, 1)));
    }

    void rowsOfAGroupNameTheGroup()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        QCOMPARE(tableRowData(f.table()->item(0, 0))->iGroupID, FakeSdk::groups().first().id);
        QCOMPARE(tableRowData(f.table()->item(0, 0))->enType, PB_MEM_LOCAL);
    }

    void lineBreakIsABlankInTheCellAndALineInThePreview()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const int row = f.rowOf("Anna");
        QCOMPARE(f.table()->item(row, 5)->text(), QString("first second"));
        f.selectRows({row});
        QVERIFY(f.previewText().contains("first\nsecond"));
    }

    void markUpTakesEffectInANameAndIsLiteralElsewhere()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"<b>Max</b>", "1", "", "", "", "<b>bold</b>"});
        f.build();
        f.selectRows({0});
        QVERIFY(f.previewText().contains("ID_STR_NAME: Max\n"));
        QVERIFY(f.previewText().contains("<b>bold</b>"));
        QTextCursor cursor = f.in().preview()->document()->find("Max");
        QVERIFY(cursor.charFormat().fontWeight() > QFont::Normal);
    }

    void namesAreNotLinkedAndOtherValuesAre()
    {
        WindowFixture f;
        FakeCore::setHyperLinks([](const QString& text) { return "[" + text + "]"; });
        FakeSdk::addRecord(4, {"Max", "1<2"});
        f.build();
        QString text;
        f.window()->constructPreview(0, 2, text, tableRowData(f.table()->item(0, 0)));
        QCOMPARE(text, QString("ID_STR_NAME:  Max<BR>ID_STR_MOBILE_PHONE:  [1&lt;2]<BR>"));
    }

    void textsEqualButForCaseSortByTheirBytes()
    {
        WindowFixture f;
        for (const char* name : {"beta", "Alpha", "Beta", "alpha"})
            FakeSdk::addRecord(4, {name});
        f.build();
        QCOMPARE(f.column(0), (QStringList{"Alpha", "alpha", "Beta", "beta"}));
        f.table()->sortItems(0, Qt::DescendingOrder);
        QCOMPARE(f.column(0), (QStringList{"beta", "Beta", "alpha", "Alpha"}));
    }

    void cellsSortByTheRuleWhateverTheirTexts()
    {
        const QString letters = QString::fromUtf8("aAbBzZ sSſßẞkKKiIİıåÅÅΣσςꭰᎠ") + QChar(0) +
                                QChar(0xd801) + QChar(0xdc00) + QChar(0xdc28) + QChar(0xffff);
        quint32 seed = 1;
        const auto next = [&seed](int limit) {
            seed = seed * 1664525u + 1013904223u;
            return int(seed >> 16) % limit;
        };
        const auto word = [&] {
            QString text;
            for (int i = next(7); i > 0; --i)
                text += letters.at(next(letters.size()));
            return text;
        };
        for (int round = 0; round < 20000; ++round) {
            const QString a = word();
            const QString b = round % 3 == 0 ? a.toUpper() : word();
            UITableItem left(a);
            UITableItem right(b);
            QCOMPARE(left < right, UITableItem::lessThan(a, b, nullptr));
            QCOMPARE(right < left, UITableItem::lessThan(b, a, nullptr));
            left.setText(b); // the key does not outlive the text
            QVERIFY(!(left < right));
            QVERIFY(!(right < left));
        }
    }

    void memberThatIsGoneIsARowOfEmptyCells()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        const int group = FakeSdk::addGroup("Ghosts");
        FakeSdk::setMissingRecordGivesNull(true);
        FakeSdk::join(group, 1);
        FakeSdk::join(group, 4711);
        f.build();
        f.click(f.node("Ghosts"));
        QCOMPARE(f.column(0), (QStringList{"", "Anna"}));
        QCOMPARE(f.column(5), (QStringList{"", "first second"}));
        QCOMPARE(tableRowData(f.table()->item(0, 0))->iRecordID, 0);
        f.selectRows({0});
        f.window()->OnTableClicked(0, 3);
    }

    void quickClicksNeverMixRows()
    {
        WindowFixture f;
        for (int i = 0; i < 400; ++i)
            FakeSdk::addRecord(4, {QString("local %1").arg(i), "1"});
        for (int i = 0; i < 200; ++i)
            FakeSdk::addRecord(1, {QString("device %1").arg(i), "1"});
        f.build();
        for (int round = 0; round < 20; ++round) {
            f.window()->OnTreeClicked(f.in().local());
            QTest::qWait(0);
            f.window()->OnTreeClicked(f.in().device());
            f.window()->OnTreeClicked(f.in().local());
            f.window()->OnTreeClicked(f.in().device());
            QVERIFY(f.waitRead());
            QCOMPARE(f.table()->rowCount(), 200);
            for (const QString& name : f.column(0))
                QVERIFY2(name.startsWith("device"), qPrintable(name));
        }
    }

    void readerThatComesBackAtAnOldAddressGetsNoOldRows()
    {
        WindowFixture f;
        for (int i = 0; i < 300; ++i)
            FakeSdk::addRecord(4, {QString("local %1").arg(i), "1"});
        FakeSdk::addRecord(1, {"device", "1"});
        f.build();
        // No event is served in between: the rows of every reader but the last wait in the queue.
        for (int i = 0; i < 30; ++i) {
            f.in().current() = nullptr;
            f.window()->OnTreeClicked(f.in().local());
            QVERIFY(f.in().reader()->wait());
        }
        f.window()->OnTreeClicked(f.in().device());
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList{"device"});
    }

    void columnStateIsCarriedUnlessTheSettingForbids_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("kept");
        QTest::newRow("0") << "0" << false;
        QTest::newRow("01") << "01" << false;
        QTest::newRow("1") << "1" << true;
        QTest::newRow("empty") << "" << true;
    }
    void columnStateIsCarriedUnlessTheSettingForbids()
    {
        QFETCH(QString, setting);
        QFETCH(bool, kept);
        WindowFixture f;
        WindowFixture::fillStores();
        if (!kept)
            FakeSdk::addRecord(1, {"Aaron", "999"}); // the last of the store, the first of the table
        FakeCore::setSetting("addrbook", "sortpreserve", setting);
        f.build();
        f.table()->setColumnWidth(0, 140);
        f.table()->setColumnWidth(1, 60);
        f.table()->setColumnWidth(4, 33);
        f.table()->horizontalHeader()->setSortIndicator(1, Qt::DescendingOrder);
        f.click(f.in().device()); // two columns of the six
        QCOMPARE(f.table()->columnCount(), 2);
        QCOMPARE(f.table()->columnWidth(0), kept ? 140 : 100);
        QCOMPARE(f.table()->columnWidth(1), kept ? 60 : 100);
        if (kept) {
            QCOMPARE(f.table()->horizontalHeader()->sortIndicatorSection(), 1);
            QCOMPARE(f.table()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
            QCOMPARE(f.column(1), (QStringList{"888", "777"}));
        } else {
            QCOMPARE(f.table()->horizontalHeader()->sortIndicatorSection(), 0);
            QCOMPARE(f.column(0), (QStringList{"Aaron", "Emil", "Frida"}));
        }
    }

    void indicatorStandsOneColumnToTheRightWhileTheTableIsEmpty()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.table()->horizontalHeader()->setSortIndicator(2, Qt::AscendingOrder);
        f.window()->OnTreeClicked(f.node("Friends"));
        QCOMPARE(f.table()->horizontalHeader()->sortIndicatorSection(), 3);
        QVERIFY(!f.table()->isSortingEnabled());
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->horizontalHeader()->sortIndicatorSection(), 2);
    }

    void secondSwitchDuringAReadSavesTheStateOfTheFreshTable()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.table()->setColumnWidth(0, 170);
        f.window()->OnTreeClicked(f.in().device());
        f.window()->OnTreeClicked(f.in().local());
        QVERIFY(f.waitRead());
        QCOMPARE(f.table()->columnWidth(0), 170);
        // The indicator of the fresh table stood one column to the right; that is not carried on.
        QCOMPARE(f.in().sortSection(), 0);
        QCOMPARE(f.table()->horizontalHeader()->sortIndicatorSection(), 0);
    }

    void retiredTableKeepsItsRowsUntilTheNextSwitch()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        AddrBookTableWidget* first = f.table();
        f.click(f.in().device());
        QCOMPARE(f.in().retiredTable(), first);
        QCOMPARE(first->rowCount(), 3);
        QVERIFY(first->parent() == nullptr);
        QVERIFY(!first->isVisible());
        QPointer<AddrBookTableWidget> gone(first);
        f.click(f.in().local());
        QVERIFY(gone.isNull());
    }

    void splitterSizesOutliveTheTable()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        QSplitter* splitter = f.window()->findChild<QSplitter*>("AddrBookUIPlugin_splitterPreview");
        f.click(f.in().device());
        splitter->setSizes({100, 400});
        const QList<int> sizes = splitter->sizes();
        f.click(f.in().local());
        QCOMPARE(splitter->sizes(), sizes);
    }

    void twoSeparateRowsAreSeveral()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0, 2});
        QCOMPARE(f.window()->tableSelectionStatus(), int(ADDRBOOK_ENABLE_TABLE_MULTIPLE));
        QVERIFY(!f.button(TOOL_EDIT)->isEnabled());
        QVERIFY(!f.button(TOOL_CALL)->isEnabled());
        QVERIFY(f.button(TOOL_DELETE)->isEnabled());
        QVERIFY(f.previewText().contains("Carl")); // the current row
        f.selectRows({1});
        QCOMPARE(f.window()->tableSelectionStatus(), int(ADDRBOOK_ENABLE_TABLE_SINGLE));
        f.selectRows({});
        QCOMPARE(f.window()->tableSelectionStatus(), int(ADDRBOOK_ENABLE_TABLE_NONE));
        QCOMPARE(f.previewText(), QString("IDS_NORECORDSELECT"));
        QVERIFY(f.in().previewEmpty());
    }

    void withoutTheNetworkMoreRowsLeaveSendAndCallOff()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setNetStatus(1);
        f.build();
        f.selectRows({0});
        f.selectRows({0, 1});
        QVERIFY(!f.button(TOOL_CALL)->isEnabled());
        QVERIFY(!f.button(TOOL_SEND)->isEnabled());
        QVERIFY(f.button(TOOL_DELETE)->isEnabled());
    }

    void previewOfARecordThatCannotBeReadIsBlank()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::failAlways("GetAddrRecord");
        f.selectRows({0});
        QCOMPARE(f.previewText(), QString());
    }

    void emptyMemoryShowsAnEmptyTableAndNoMessage()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"Anna", "1"});
        f.build();
        QCOMPARE(f.table()->rowCount(), 1);
        f.click(f.in().sim());
        QCOMPARE(f.table()->rowCount(), 0);
        QCOMPARE(f.table()->columnCount(), 2);
        QVERIFY(f.table()->isSortingEnabled()); // the read has come to its end
        QCOMPARE(f.previewText(), QString("IDS_NORECORDSELECT"));
        QVERIFY(FakeCore::messages().isEmpty());
    }

    // The tag at the end is written like one that opens.
    void noRecordTextStandsInHtmlTagsAndCountsAsShown()
    {
        WindowFixture f;
        f.build();
        FakeCore::setText("IDS_NORECORDSELECT", "Nothing chosen");
        QString text("before ");
        f.window()->constructPreview(-1, 6, text, nullptr);
        QCOMPARE(text, QString("before <HTML>Nothing chosen<HTML/>"));
        QVERIFY(!f.in().previewEmpty()); // it counts as shown
    }

    void failedReadShowsAShortTableAndNoMessage()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::fail("AddrRecordSet_GetID", 2);
        f.in().current() = nullptr;
        f.click(f.in().local());
        QCOMPARE(f.column(0), QStringList{"Anna"});
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void endOfAReadActsLikeASelectionChange()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
        f.button(TOOL_IMPORT_MOE)->setEnabled(true);
        f.button(TOOL_EDIT)->setEnabled(true);
        QVERIFY(f.waitRead());
        QVERIFY(!f.button(TOOL_IMPORT_MOE)->isEnabled());
        QVERIFY(!f.button(TOOL_EDIT)->isEnabled());
    }

    void fullMemoryTurnsNewOff()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setCapacity(0, 1);
        FakeSdk::setCapacity(1, 0);
        f.build();
        QVERIFY(f.in().newContactEnabled());
        f.click(f.in().sim());
        QVERIFY(!f.in().newContactEnabled());
        QVERIFY(!f.button(TOOL_NEW)->isEnabled());
        f.click(f.in().device()); // no capacity: not ready, counts as room
        QVERIFY(f.in().newContactEnabled());
        QVERIFY(f.button(TOOL_NEW)->isEnabled());
    }

    void capacityIsCachedOnRefresh()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->checkMaxCapacity(PB_MEM_SIM, true);
        QCOMPARE(f.in().simUsed(), 1);
        f.window()->checkMaxCapacity(PB_MEM_LOCAL, false);
        QCOMPARE(f.in().localTotal(), 0);
        f.window()->checkMaxCapacity(PB_MEM_LOCAL, true);
        QCOMPARE(f.in().localTotal(), 100000);
    }

    void headerClickIsNotedOnTheNode()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.table()->horizontalHeader()->setSortIndicator(1, Qt::DescendingOrder);
        f.window()->OnHeaderClicked(1);
        const TreeNodeData* data = treeNodeData(f.in().local());
        QVERIFY(data->bSorted);
        QCOMPARE(data->iSortColumn, 1);
        QCOMPARE(data->enSortOrder, Qt::DescendingOrder);
    }

    void rowClickNotesWhereADragWouldStart()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().device());
        f.tree()->m_enDragMemory = PB_MEM_NONE;
        f.tree()->m_iDragGroupId = -1;
        f.window()->OnTableItemClicked();
        QCOMPARE(f.tree()->m_enDragMemory, PB_MEM_ME);
        QCOMPARE(f.tree()->m_iDragGroupId, 0);
        QCOMPARE(f.in().dragSource(), PB_MEM_ME);
    }

    void changedRecordIsRewrittenInItsRow()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({1});
        const AddrBookRecord record{2, {"Berta\nBig", "1", "", "", "", ""}};
        f.table()->setSortingEnabled(false);
        f.window()->setTableContent(PB_MEM_LOCAL, record);
        QCOMPARE(f.table()->item(1, 0)->text(), QString("Berta Big"));
        QCOMPARE(tableRowData(f.table()->item(1, 0))->iRecordID, 2);
    }

    void prefixRule()
    {
        WindowFixture f;
        f.build();
        QVERIFY(f.window()->checkStrings("Name1", "naME"));
        QVERIFY(!f.window()->checkStrings("Name", "name"));
        QVERIFY(!f.window()->checkStrings("Name 1", "name"));
        QVERIFY(!f.window()->checkStrings("Nam", "name"));
    }

    void rowThatNoTableTakesIsDropped()
    {
        WindowFixture f;
        f.build();
        f.window()->OnAddContactToTable(4, 0, 0, 0, 6);
        const QString name = QString("The one and only");
        f.window()->OnAddContactToTable(4, pointerToCarrier(new AddrBookRecord{1, {name}}), 0, 0, 6); // no sender
        QCOMPARE(f.table()->rowCount(), 0);
        QVERIFY(name.isDetached()); // the record is freed
    }

    void removedNodeLeavesTheTableConnected()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnDeviceStatusChanged(false);
        f.selectRows({0});
        QVERIFY(f.button(TOOL_EDIT)->isEnabled());
        QTest::mouseClick(f.table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          f.table()->visualItemRect(f.table()->item(2, 1)).center());
        QVERIFY(f.previewText().contains("Carl"));
    }
};

QTEST_MAIN(TableTest)
#include "TableTest.moc"
