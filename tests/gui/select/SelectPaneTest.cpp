#include "SelectSupport.h"

#include <QHeaderView>

// The table beside the tree, which only a test builds.
class SelectPaneTest : public SelectTest
{
    Q_OBJECT

    static QStringList row(QTableWidget* table, int index)
    {
        QStringList texts;
        for (int i = 0; i < 3; ++i)
            texts << table->item(index, i)->text();
        return texts;
    }

private slots:
    void init()
    {
        SelectTest::init();
        FakeCore::setText("IDS_STR_STATINFORMATION", "Total %d, chosen %d");
    }
    void withoutItsWidgetsEachOperationDoesNothing()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        const QStringList before = picker.lines(true);
        AddrBookSelectContactsDlg& dialog = *picker.dialog;
        QTreeWidgetItem* root = picker.access.tree()->invisibleRootItem();
        dialog.createTable();
        dialog.fillInitalRows();
        dialog.createRow(0, 0, "x");
        dialog.setCellText("a", "b", "c", true);
        QVERIFY(!dialog.setPreRecordInTree(root, "111", true, 0));
        dialog.setContactsTable(picker.access.leaf(picker.item({"PC", "Ada"})), 0);
        dialog.addCheckedToTable(root);
        QVERIFY(!dialog.isNumberAlreadyInTable("111"));
        dialog.setLabelText();
        dialog.fillComboBox();
        dialog.clearTreeandTable();
        dialog.clearTable();
        dialog.OnAddButtonClicked();
        dialog.OnRemoveButtonClicked();
        dialog.OnComboBoxIndexChanged("x");
        dialog.OnTableItemSelectionChanged();
        dialog.OnHeaderClicked(0);
        QCOMPARE(picker.lines(true), before);
        QCOMPARE(picker.access.numberType(), QString(""));
    }

    void theTable()
    {
        FakeCore::setText("IDS_NAME", "Name");
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->createTable();
        QTableWidget* table = picker.access.table();
        QCOMPARE(table->objectName(), QString("AddrBookUIPlugin_selectContacts_tableContacts"));
        QCOMPARE(picker.access.combo()->objectName(), QString("AddrBookUIPlugin_selectContacts_comboNumberType"));
        QCOMPARE(table->columnCount(), 3);
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(table->horizontalHeaderItem(0)->text(), QString("Name"));
        QCOMPARE(table->horizontalHeaderItem(1)->text(), QString("IDS_PHONE_TYPE"));
        QCOMPARE(table->horizontalHeaderItem(2)->text(), QString("IDS_PHONE_VALUE"));
        QCOMPARE(table->columnWidth(0), 70);
        QVERIFY(table->columnWidth(1) != 70);
        QVERIFY(table->isSortingEnabled());
        QCOMPARE(table->maximumWidth(), 212);
        QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(table->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QVERIFY(table->verticalHeader()->isHidden());
        QCOMPARE(table->horizontalHeader()->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(table->textElideMode(), Qt::ElideRight);
        QVERIFY(!table->horizontalHeader()->stretchLastSection());
        QVERIFY(qobject_cast<SCDelegate*>(table->itemDelegate()) != nullptr);
        picker.dialog->createTable(); // once more leaves nothing behind
        picker.dialog->OnHeaderClicked(0);
    }

    void aRowOfTheTable()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->createTable();
        QTableWidget* table = picker.access.table();
        picker.dialog->setCellText("Zoe", "m", "1", true);
        picker.dialog->setCellText("Ada", "h", "2", true);
        table->sortItems(0, Qt::AscendingOrder);
        QCOMPARE(row(table, 0), (QStringList{"Ada", "h", "2"}));
        QCOMPARE(row(table, 1), (QStringList{"Zoe", "m", "1"}));
        QCOMPARE(table->rowHeight(0), 14);
        QVERIFY(table->item(0, 0)->flags() & Qt::ItemIsSelectable);
        QVERIFY(!(table->item(0, 0)->flags() & Qt::ItemIsEditable));
        QCOMPARE(table->item(0, 0)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
        QVERIFY(picker.dialog->isNumberAlreadyInTable("2"));
        QVERIFY(!picker.dialog->isNumberAlreadyInTable("Ada"));
    }

    void aNumberOfTheTreeGoesIntoTheTable()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker(true, {"999"});
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->createTable();
        picker.dialog->SetInitialPrerecordSet(true, QList<QString>{"222", "777"});
        QTableWidget* table = picker.access.table();
        QCOMPARE(table->rowCount(), 2);
        QVERIFY(Picker::ticked(picker.item({"PC", "Ada", "o 222"})));
        QVERIFY(picker.dialog->isNumberAlreadyInTable("777"));
        QCOMPARE(picker.access.total()->text(), QString("Total 2, chosen 0"));
        table->selectAll();
        picker.dialog->OnTableItemSelectionChanged();
        QCOMPARE(picker.access.total()->text(), QString("Total 2, chosen 2"));

        QTreeWidgetItem* root = picker.access.tree()->invisibleRootItem();
        QVERIFY(picker.dialog->setPreRecordInTree(root, "111", false, 0));
        QCOMPARE(row(table, 0), (QStringList{"Ada", "m", "111"}));
        QVERIFY(picker.dialog->isNumberAlreadyInPreList("999"));
        QVERIFY(!picker.dialog->isNumberAlreadyInPreList("111"));
    }

    void aNumberIsTickedWithoutTheTable()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        QTreeWidgetItem* root = picker.access.tree()->invisibleRootItem();
        QVERIFY(picker.dialog->setTreeCheckState(root, "111"));
        QVERIFY(Picker::ticked(picker.item({"PC", "Ada", "m 111"})));
        QVERIFY(!picker.dialog->setTreeCheckState(root, "9"));
        QVERIFY(!picker.dialog->setTreeCheckState(nullptr, "9"));
    }

    void selectedRowsAreRemovedFromTheHighestDown()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->createTable();
        QTableWidget* table = picker.access.table();
        for (int i = 0; i < 5; ++i)
            picker.dialog->setCellText(QString::number(i), "m", QString::number(i), false);
        table->sortItems(0, Qt::AscendingOrder);
        table->setSelectionMode(QAbstractItemView::MultiSelection);
        for (const int index : {0, 1, 3})
            table->selectRow(index);
        table->item(1, 0)->setFlags(Qt::ItemIsEnabled); // stays
        table->selectRow(1);
        table->setRangeSelected(QTableWidgetSelectionRange(1, 0, 1, 2), true);
        picker.dialog->OnRemoveButtonClicked();
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(row(table, 0).at(0), QString("1"));
        QCOMPARE(row(table, 1).at(0), QString("2"));
        QCOMPARE(row(table, 2).at(0), QString("4"));
        QVERIFY(picker.access.total()->text().startsWith("Total 3"));
    }

    void addingWalksTheTreeAndLeavesEverything()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->createTable();
        picker.toggle(picker.item({"PC"}));
        picker.dialog->OnAddButtonClicked();
        QCOMPARE(picker.access.table()->rowCount(), 0);
        QCOMPARE(picker.access.total()->text(), QString("Total 0, chosen 0"));
    }

    void theKindsOfNumbers()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->fillComboBox();
        QCOMPARE(picker.access.combo()->count(), 3);
        QCOMPARE(picker.access.combo()->itemText(1), QString("o"));
        QCOMPARE(picker.access.numberType(), QString("m"));
        picker.dialog->OnComboBoxIndexChanged("h");
        QCOMPARE(picker.access.numberType(), QString("h"));
    }

    void tableAndTreeAreCleared()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.buildPane();
        picker.dialog->createTable();
        picker.dialog->setCellText("Ada", "m", "111", true);
        picker.toggle(picker.item({"PC"}));
        picker.dialog->clearTreeandTable();
        QVERIFY(picker.access.table()->item(0, 0) == nullptr);
        QCOMPARE(picker.lines(true), (QStringList{"PC(1)", " Ada", "  m 111"}));
        QVERIFY(picker.chosen().isEmpty());
        picker.dialog->clearTable();
        QVERIFY(picker.access.table()->horizontalHeaderItem(0) == nullptr);
    }
};

QTEST_MAIN(SelectPaneTest)
#include "SelectPaneTest.moc"
