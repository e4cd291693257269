#include "FieldMapFixture.h"

// The dialog in which the user says which column of a file feeds which field: its shape, what it maps by itself, and
// what it gives.
class FieldMapDlgTest : public FieldMapFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void theDialogHasItsShape();
    void theTablesHaveTheirShape();
    void theMemoryIsNamedAboveTheRightTable_data();
    void theMemoryIsNamedAboveTheRightTable();
    void aLongNameOfAFilePushesNothingAside();
    void theColumnsFillTheTables();
    void everyRowIsFifteenPixelsHigh();
    void moreColumnsThanRowsGrowTheLeftTable();
    void rowsBeyondTheTitlesAreDisabled();
    void anEmptyTitleIsADisabledRow();
    void aMemoryWithFewerFieldsThanRowsHasDisabledRows();
    void aMemoryWithMoreFieldsThanRowsGrowsTheRightTable();
    void titlesAreMappedByLabelOrName_data();
    void titlesAreMappedByLabelOrName();
    void theLastMatchingTitleWins();
    void oneTitleMayServeTwoFields();
    void anSdkThatFailsLeavesTheFieldsEmpty();
    void okGivesOneTextPerRow();
    void cancelGivesNothing_data();
    void cancelGivesNothing();
    void withoutADialogExecTellsSo();
    void callsBeforeInitDialogDoNothing();
    void aDialogThatWentWithItsParentIsNotTouched();
    void anUnknownTableNumberDoesNothing();
};

void FieldMapDlgTest::theDialogHasItsShape()
{
    fill({"Name"});
    QCOMPARE(dialog()->parentWidget(), parent.get());
    QVERIFY(dialog()->windowFlags() & Qt::WindowCloseButtonHint);
    QCOMPARE(dialog()->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog()->minimumSize(), QSize(390, 367));
    QCOMPARE(dialog()->maximumSize(), QSize(390, 367));
    QCOMPARE(dialog()->windowTitle(), QString("IDS_MAP_CAPTION"));
    QCOMPARE(FakeCore::log().count("MoveCentre"), 1);
    auto* grid = qobject_cast<QGridLayout*>(FakeCore::content(dialog())->layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(5, 35, 5, 11));
    QCOMPARE(grid->horizontalSpacing(), 6);
    QCOMPARE(grid->verticalSpacing(), 0);
    auto* tips = qobject_cast<QLabel*>(grid->itemAtPosition(0, 0)->widget());
    QCOMPARE(tips->text(), QString("IDS_MAP_TIPSINFO"));
    QVERIFY(tips->wordWrap());
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), static_cast<QWidget*>(tips));
    QCOMPARE(qobject_cast<QLabel*>(grid->itemAtPosition(2, 1)->widget())->text(), QString());
    QCOMPARE(qobject_cast<QLabel*>(grid->itemAtPosition(4, 0)->widget())->text(), QString("contacts.csv"));
    QCOMPARE(grid->itemAtPosition(5, 0)->widget(), static_cast<QWidget*>(left()));
    QCOMPARE(grid->itemAtPosition(5, 1)->widget(), static_cast<QWidget*>(right()));
    QLayout* buttons = grid->itemAtPosition(6, 1)->layout();
    QVERIFY(buttons);
    QCOMPARE(buttons->contentsMargins(), QMargins(0, 11, 0, 0));
    QCOMPARE(buttons->spacing(), 15);
    QCOMPARE(buttons->alignment(), Qt::AlignRight);
    QCOMPARE(ok()->text(), QString("IDS_BUTTON_OK"));
    QCOMPARE(cancel()->text(), QString("IDS_BUTTON_CANCEL"));
    QCOMPARE(ok()->maximumSize(), QSize(72, 22));
    QCOMPARE(cancel()->maximumSize(), QSize(72, 22));
}

void FieldMapDlgTest::theTablesHaveTheirShape()
{
    fill({"Name"});
    for (QTableWidget* table : {static_cast<QTableWidget*>(left()), static_cast<QTableWidget*>(right())}) {
        QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
        QVERIFY(table->verticalHeader()->isHidden());
        QCOMPARE(table->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
        QCOMPARE(table->horizontalHeader()->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(table->horizontalHeader()->textElideMode(), Qt::ElideRight);
        QCOMPARE(table->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        for (int column = 0; column < table->columnCount(); ++column)
            QCOMPARE(table->horizontalHeaderItem(column)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
    }
    QCOMPARE(left()->columnCount(), 1);
    QCOMPARE(left()->maximumSize(), QSize(140, 205));
    QCOMPARE(left()->columnWidth(0), 140);
    QCOMPARE(left()->horizontalHeaderItem(0)->text(), QString("IDS_ADDR_FROM_VALUE"));
    QCOMPARE(right()->columnCount(), 2);
    QCOMPARE(right()->maximumSize(), QSize(180, 205));
    QCOMPARE(right()->columnWidth(0), 90);
    QCOMPARE(right()->columnWidth(1), 90);
    QCOMPARE(right()->horizontalHeaderItem(0)->text(), QString("IDS_ADDR_TO_FIELD"));
    QCOMPARE(right()->horizontalHeaderItem(1)->text(), QString("IDS_ADDR_TO_FROM"));
    QCOMPARE(left()->item(0, 0)->textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
}

void FieldMapDlgTest::theMemoryIsNamedAboveTheRightTable_data()
{
    QTest::addColumn<int>("memory");
    QTest::addColumn<QString>("name");
    QTest::newRow("PC") << int(PB_MEM_LOCAL) << "IDS_LOCAL_PHONEBOOKUI";
    QTest::newRow("card") << int(PB_MEM_SIM) << AddrBookUICommon::GetSIMText();
    QTest::newRow("device") << int(PB_MEM_ME) << AddrBookUICommon::GetNodeText(PB_MEM_ME);
}

void FieldMapDlgTest::theMemoryIsNamedAboveTheRightTable()
{
    QFETCH(int, memory);
    QFETCH(QString, name);
    fill({"Name"}, static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory));
    auto* grid = qobject_cast<QGridLayout*>(FakeCore::content(dialog())->layout());
    QVERIFY(!name.isEmpty());
    QCOMPARE(qobject_cast<QLabel*>(grid->itemAtPosition(4, 1)->widget())->text(), name);
}

void FieldMapDlgTest::aLongNameOfAFilePushesNothingAside()
{
    const QString name = "<b>" + QString(300, 'x') + "</b>.csv";
    map->InitDialog(parent.get(), PB_MEM_LOCAL, name);
    open();
    auto* grid = qobject_cast<QGridLayout*>(FakeCore::content(dialog())->layout());
    auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(4, 0)->widget());
    QCOMPARE(label->text(), name);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(dialog()->width(), 390);
    QVERIFY(label->geometry().right() < right()->geometry().left());
    QVERIFY(dialog()->rect().contains(QRect(right()->mapTo(dialog(), QPoint()), right()->size())));
}

void FieldMapDlgTest::theColumnsFillTheTables()
{
    fill({"Name"});
    open();
    QCOMPARE(left()->width(), 140);
    QCOMPARE(right()->width(), 180);
    QVERIFY(!left()->horizontalScrollBar()->isVisible() || left()->verticalScrollBar()->isVisible());
    QVERIFY(QFontMetrics(left()->font()).height() <= 15);
    QVERIFY(QFontMetrics(right()->font()).height() <= 15);
}

void FieldMapDlgTest::everyRowIsFifteenPixelsHigh()
{
    fill({"Name"});
    for (int row = 0; row < 11; ++row) {
        QCOMPARE(left()->rowHeight(row), 15);
        QCOMPARE(right()->rowHeight(row), 15);
    }
}

void FieldMapDlgTest::moreColumnsThanRowsGrowTheLeftTable()
{
    QStringList titles;
    for (int i = 1; i <= 14; ++i)
        titles << QString("Column %1").arg(i);
    fill(titles);
    QCOMPARE(left()->rowCount(), 14);
    QCOMPARE(left()->item(13, 0)->text(), QString("Column 14"));
    QCOMPARE(left()->rowHeight(10), 15);
    for (int row = 11; row < 14; ++row)
        QCOMPARE(left()->rowHeight(row), left()->verticalHeader()->defaultSectionSize());
    QVERIFY(left()->rowHeight(13) > 15);
}

void FieldMapDlgTest::rowsBeyondTheTitlesAreDisabled()
{
    fill({"Name", "Mobile"});
    QCOMPARE(left()->rowCount(), 11);
    QVERIFY(left()->item(1, 0)->flags() & Qt::ItemIsEnabled);
    for (int row = 2; row < 11; ++row) {
        QCOMPARE(left()->item(row, 0)->text(), QString());
        QVERIFY(!(left()->item(row, 0)->flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable)));
    }
}

void FieldMapDlgTest::anEmptyTitleIsADisabledRow()
{
    fill({"Name", "", "Mobile", ""});
    QVERIFY(!(left()->item(1, 0)->flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable)));
    QVERIFY(!(left()->item(3, 0)->flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable)));
    QCOMPARE(left()->item(2, 0)->text(), QString("Mobile"));
    QVERIFY(left()->item(2, 0)->flags() & Qt::ItemIsEnabled);
}

void FieldMapDlgTest::aMemoryWithFewerFieldsThanRowsHasDisabledRows()
{
    fill({"Name", "Tel"}, PB_MEM_SIM);
    QCOMPARE(right()->rowCount(), 11);
    QCOMPARE(right()->item(0, 0)->text(), QString("Name"));
    QCOMPARE(right()->item(1, 0)->text(), QString("Mobile phone"));
    QVERIFY(right()->item(1, 1)->flags() & Qt::ItemIsEditable);
    for (int row = 2; row < 11; ++row) {
        for (int column = 0; column < 2; ++column) {
            QCOMPARE(right()->item(row, column)->text(), QString());
            QVERIFY(!(right()->item(row, column)->flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable)));
        }
    }
}

void FieldMapDlgTest::aMemoryWithMoreFieldsThanRowsGrowsTheRightTable()
{
    map->InitDialog(parent.get(), PB_MEM_LOCAL, "contacts.csv");
    map->SetRowCount(2, 2);
    map->SetRowHeight(2, 15);
    map->SetSecondTableInfo({"Notes"}, PB_MEM_LOCAL);
    QCOMPARE(right()->rowCount(), 6);
    QCOMPARE(mapped(), (QStringList{" ", " ", " ", " ", " ", "Notes"}));
    QCOMPARE(right()->rowHeight(1), 15);
    QVERIFY(right()->rowHeight(5) > 15);
}

void FieldMapDlgTest::titlesAreMappedByLabelOrName_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("row"); // -1: none
    QTest::newRow("label") << "Mobile phone" << 1;
    QTest::newRow("label in another case") << "mObIlE PHONE" << 1;
    QTest::newRow("name") << "Mobile" << 1;
    QTest::newRow("name in another case") << "OFFICEPHONE" << 2;
    QTest::newRow("name of the last field") << "remark" << 5;
    QTest::newRow("blank before") << " Mobile" << -1;
    QTest::newRow("blank behind") << "Mobile phone " << -1;
    QTest::newRow("part of a label") << "phone" << -1;
    QTest::newRow("empty") << "" << -1;
}

void FieldMapDlgTest::titlesAreMappedByLabelOrName()
{
    QFETCH(QString, title);
    QFETCH(int, row);
    fill({"Other", title});
    for (int i = 0; i < 6; ++i)
        QCOMPARE(right()->item(i, 1)->text(), i == row ? title : QString(" "));
}

void FieldMapDlgTest::theLastMatchingTitleWins()
{
    fill({"Mobile", "Name", "MOBILE PHONE", "name"});
    QCOMPARE(right()->item(0, 1)->text(), QString("name"));
    QCOMPARE(right()->item(1, 1)->text(), QString("MOBILE PHONE"));
}

void FieldMapDlgTest::oneTitleMayServeTwoFields()
{
    FakeCore::setText("ID_STR_HOME_PHONE", "Phone");
    FakeCore::setText("ID_STR_BUSINESS_PHONE", "phone");
    fill({"PHONE"});
    QCOMPARE(right()->item(2, 1)->text(), QString("PHONE"));
    QCOMPARE(right()->item(3, 1)->text(), QString("PHONE"));
}

void FieldMapDlgTest::anSdkThatFailsLeavesTheFieldsEmpty()
{
    FakeSdk::failAlways("GetProfile");
    fill({"Name", "Mobile"});
    QCOMPARE(mapped(), QStringList(QVector<QString>(11, QString()).toList()));
    QCOMPARE(left()->item(0, 0)->text(), QString("Name"));
}

void FieldMapDlgTest::okGivesOneTextPerRow()
{
    fill({"Mobile", "Name", "Tel"});
    int closed = 0;
    QCOMPARE(run([&] {
                 QVERIFY(dialog()->isVisible());
                 connect(dialog(), &QDialog::finished, this, [&closed] { ++closed; });
                 ok()->click();
             }),
             1);
    QVERIFY(closed > 0);
    QCOMPARE(map->GetFieldMapData(), (QList<QString>{"Name", "Mobile", " ", " ", " ", " ", "", "", "", "", ""}));
}

void FieldMapDlgTest::cancelGivesNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("close button") << "close";
    QTest::newRow("Escape") << "escape";
}

void FieldMapDlgTest::cancelGivesNothing()
{
    QFETCH(QString, way);
    fill({"Name"});
    const int result = run([&] {
        if (way == "button")
            cancel()->click();
        else if (way == "close")
            dialog()->close();
        else
            QTest::keyClick(dialog(), Qt::Key_Escape);
    });
    QCOMPARE(result, 0);
    QVERIFY(map->GetFieldMapData().isEmpty());
    QVERIFY(dialog()->isHidden());
}

void FieldMapDlgTest::withoutADialogExecTellsSo()
{
    QCOMPARE(map->Exec(), -1);
    QVERIFY(map->GetFieldMapData().isEmpty());
}

void FieldMapDlgTest::callsBeforeInitDialogDoNothing()
{
    map->SetRowCount(1, 11);
    map->SetRowHeight(2, 15);
    map->SetFirstTableInfo({"Name"});
    map->SetSecondTableInfo({"Name"}, PB_MEM_LOCAL);
    map->OnItemSelectionChanged();
    map->OnCellEntered(0, 0);
    map->OnButtonClickedOK();
    map->OnButtonClickedCancel();
    QVERIFY(map->GetFieldMapData().isEmpty());
}

void FieldMapDlgTest::aDialogThatWentWithItsParentIsNotTouched()
{
    fill({"Name"});
    // The host takes the window down while the dialog runs in it.
    QCOMPARE(run([this] {
                 dialog()->close();
                 parent.reset();
             }),
             0);
    QCOMPARE(FakeCore::dialogs().size(), 0);
    map->SetRowCount(1, 3);
    map->OnButtonClickedOK();
    map->OnButtonClickedCancel();
    QCOMPARE(map->Exec(), -1);
}

void FieldMapDlgTest::anUnknownTableNumberDoesNothing()
{
    fill({"Name"});
    map->SetRowCount(0, 3);
    map->SetRowCount(3, 3);
    map->SetRowHeight(0, 3);
    QCOMPARE(left()->rowCount(), 11);
    QCOMPARE(right()->rowCount(), 11);
}

QTEST_MAIN(FieldMapDlgTest)
#include "FieldMapDlgTest.moc"
