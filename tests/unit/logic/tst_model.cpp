#include <memory>

#include "LogicTest.h"
#include "logic/ItemData.h"

class TestModel : public LogicTest
{
    Q_OBJECT

private slots:
    void aNewGroupIsEmpty()
    {
        const AddrBookGroup group;
        QCOMPARE(group.iGroupID, 0);
        QCOMPARE(group.iParentID, 0);
        QCOMPARE(group.iSize, 0);
        QCOMPARE(group.strName, QString(""));
    }

    void aNewFieldHasNullTexts()
    {
        AddrBookField field;
        QVERIFY(field.strName.isNull() && field.strType.isNull() && field.strLangID.isNull());
        QVERIFY(field.strExcludeChars.isNull() && field.strIncludeChars.isNull());
    }

    void aNodeOfAMemoryHasNoGroup_data()
    {
        QTest::addColumn<qlonglong>("memory");
        QTest::newRow("card") << qlonglong(PB_MEM_SIM);
        QTest::newRow("device") << qlonglong(PB_MEM_ME);
        QTest::newRow("local") << qlonglong(PB_MEM_LOCAL);
    }

    void aNodeOfAMemoryHasNoGroup()
    {
        QFETCH(qlonglong, memory);
        const TreeNodeData data = {memory, 0, false, Qt::AscendingOrder};
        QVERIFY(!isGroupValue(data.iMemoryOrGroup));
        QVERIFY(groupOf(&data) == nullptr);
    }

    void aNodeOfAGroupGivesThatGroup()
    {
        AddrBookGroup group;
        group.iGroupID = 12;
        group.strName = "Friends";
        const TreeNodeData data = {pointerToCarrier(&group), 0, false, Qt::AscendingOrder};
        QVERIFY(isGroupValue(data.iMemoryOrGroup));
        QCOMPARE(groupOf(&data), &group);
        QCOMPARE(groupOf(&data)->strName, QString("Friends"));
    }

    void itemDataThatIsNotThereIsNull()
    {
        QVERIFY(tableRowData(nullptr) == nullptr);
        QVERIFY(treeNodeData(nullptr) == nullptr);
        QVERIFY(groupOf(nullptr) == nullptr);
        QTableWidgetItem item;
        item.setData(Qt::UserRole, QString("no number"));
        QVERIFY(tableRowData(&item) == nullptr);
        QTreeWidgetItem node;
        QVERIFY(treeNodeData(&node) == nullptr);
    }

    void itemDataComesBackAsItWentIn()
    {
        TableRowData row = {PB_MEM_SIM, 7, 0};
        QTableWidgetItem item;
        item.setData(Qt::UserRole, pointerToCarrier(&row));
        QCOMPARE(tableRowData(&item), &row);
        TreeNodeData data = {PB_MEM_LOCAL, 0, false, Qt::AscendingOrder};
        QTreeWidgetItem node;
        node.setData(0, Qt::UserRole, pointerToCarrier(&data));
        QCOMPARE(treeNodeData(&node), &data);
    }

    void recordsOfTwoMemoriesHaveTheirOwnNumberOfValues()
    {
        FakeSdk::addRecord(PB_MEM_SIM, {"Anna", "123"});
        FakeSdk::addRecord(PB_MEM_LOCAL, contact("Bruno", "456"));
        QList<AddrBookRecord> card;
        QList<AddrBookRecord> local;
        QCOMPARE(logic()->GetRecordInGroup(card, PB_MEM_SIM, 0), 0);
        QCOMPARE(logic()->GetRecordInGroup(local, PB_MEM_LOCAL, 0), 0);
        QCOMPARE(card.first().lstValues, QList<QString>({"Anna", "123"}));
        QCOMPARE(local.first().lstValues.size(), 6);
    }

    void theNumbersOfTheOperationsAreFixed()
    {
        QCOMPARE(int(ADDRBOOK_OP_DELETE), 0);
        QCOMPARE(int(ADDRBOOK_OP_ADD), 2);
        QCOMPARE(int(ADDRBOOK_OP_MOVE), 8);
        QCOMPARE(int(ADDRBOOK_OP_READ), 9);
        QCOMPARE(int(ADDRBOOK_OP_NONE), 15);
        QCOMPARE(int(ADDRBOOK_SEND_GROUP), 1);
        QCOMPARE(int(ADDRBOOK_ENABLE_TABLE_NONE), 5);
        QCOMPARE(int(ADDRBOOK_ENABLE_TABLE_IN_GROUP), 6);
    }
};

QTEST_GUILESS_MAIN(TestModel)
#include "tst_model.moc"
