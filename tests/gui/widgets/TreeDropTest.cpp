#include <QSignalSpy>

#include "OpenTreeTest.h"

// Contacts that are let go over the phonebook tree.
class TreeDropTest : public OpenTreeTest
{
    Q_OBJECT

private slots:
    void init()
    {
        OpenTreeTest::init();
        tree->showNode(tree->group1);
        tree->enter(*contacts());
        entered = std::make_unique<QSignalSpy>(tree.get(), SIGNAL(itemEntered(QTreeWidgetItem*, int)));
    }
    void cleanup()
    {
        entered.reset();
        OpenTreeTest::cleanup();
    }

    void aDropCollectsTheIdsAndTellsTheWindow();
    void theTextIsSplitAtTheSeparator_data();
    void theTextIsSplitAtTheSeparator();
    void aSecondDropReplacesTheFirst();
    void controlAtTheDropMeansCopy_data();
    void controlAtTheDropMeansCopy();
    void theNodeToldIsTheLastOneLit();
    void aDropOnEmptyAreaEndsTracking();
    void foreignDataIsRefusedOnceMore_data();
    void foreignDataIsRefusedOnceMore();
    void aDropOnAFullRootGoesBack_data();
    void aDropOnAFullRootGoesBack();
    void aDropOnAGroupOfAFullMemoryIsTaken();
    void aDropOnAFullRootWithoutANodeToGoBackTo();
    void aDropOnANodeWithoutDataIsTaken();
    void aDropCallsNoSdk();

private:
    std::unique_ptr<QSignalSpy> entered;
};

void TreeDropTest::aDropCollectsTheIdsAndTellsTheWindow()
{
    tree->hover(tree->card);
    QVERIFY(tree->drop(*contacts(), tree->over(tree->card)));
    QVERIFY(tree->m_bDropped);
    QCOMPARE(tree->m_listDragData, (QList<QString>{"12", "3", "7", "3"}));
    QCOMPARE(tree->m_enDragMemory, PB_MEM_NONE);
    QCOMPARE(tree->m_iDragGroupId, -1);
    QVERIFY(!tree->m_bCopyInLocal);
    QVERIFY(!tree->m_bHandleSelection); // until the window has dealt with it
    QCOMPARE(entered->count(), 1);
    QCOMPARE(entered->at(0).at(0).value<QTreeWidgetItem*>(), tree->card);
    QCOMPARE(entered->at(0).at(1).toInt(), 0);
}

void TreeDropTest::theTextIsSplitAtTheSeparator_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("root") << QByteArray("12-10-17-10-1") << QStringList{"12", "0", "7", "0"};
    QTest::newRow("identifiers of ones") << QByteArray("1-11-1") << QStringList{"1", "1"};
    QTest::newRow("separator alone") << QByteArray("-1") << QStringList();
    QTest::newRow("empty pieces are dropped") << QByteArray("5-1-1-16-1") << QStringList{"5", "6"};
}

void TreeDropTest::theTextIsSplitAtTheSeparator()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, ids);
    tree->hover(tree->card);
    tree->drop(*contacts(text), tree->over(tree->card));
    QCOMPARE(QStringList(tree->m_listDragData), ids);
    QVERIFY(tree->m_bDropped);
}

void TreeDropTest::aSecondDropReplacesTheFirst()
{
    tree->drop(*contacts("1-12-1"), tree->over(tree->card));
    tree->drop(*contacts("3-14-1"), tree->over(tree->card));
    QCOMPARE(tree->m_listDragData, (QList<QString>{"3", "4"}));
}

void TreeDropTest::controlAtTheDropMeansCopy_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<bool>("copies");
    QTest::newRow("none") << int(Qt::NoModifier) << false;
    QTest::newRow("Ctrl") << int(Qt::ControlModifier) << true;
    QTest::newRow("Shift") << int(Qt::ShiftModifier) << false;
    QTest::newRow("Ctrl+Shift") << int(Qt::ControlModifier | Qt::ShiftModifier) << true;
}

void TreeDropTest::controlAtTheDropMeansCopy()
{
    QFETCH(int, keys);
    QFETCH(bool, copies);
    tree->m_bCopyInLocal = !copies;
    tree->drop(*contacts(), tree->over(tree->group2), Qt::KeyboardModifiers(keys));
    QCOMPARE(tree->m_bCopyInLocal, copies);
}

void TreeDropTest::theNodeToldIsTheLastOneLit()
{
    tree->hover(tree->card);
    tree->drop(*contacts(), tree->over(tree->device)); // no hover came in between
    QCOMPARE(entered->at(0).at(0).value<QTreeWidgetItem*>(), tree->card);
}

void TreeDropTest::aDropOnEmptyAreaEndsTracking()
{
    tree->setMouseTracking(true);
    QVERIFY(tree->drop(*contacts(), tree->emptyArea())); // accepted, and nothing done
    QVERIFY(!tree->hasMouseTracking());
    QVERIFY(!tree->m_bDropped);
    QVERIFY(tree->m_listDragData.isEmpty());
    QCOMPARE(entered->count(), 0);
}

void TreeDropTest::foreignDataIsRefusedOnceMore_data()
{
    QTest::addColumn<QByteArray>("ids");
    QTest::addColumn<QByteArray>("colour");
    QTest::newRow("no text") << QByteArray() << QByteArray("#00000000");
    QTest::newRow("another end") << QByteArray("1-10") << QByteArray("#00000000");
    QTest::newRow("no colour") << QByteArray("1-10-1") << QByteArray();
    QTest::newRow("no valid colour") << QByteArray("1-10-1") << QByteArray("nothing");
}

void TreeDropTest::foreignDataIsRefusedOnceMore()
{
    QFETCH(QByteArray, ids);
    QFETCH(QByteArray, colour);
    QMimeData data;
    if (!ids.isEmpty())
        data.setData("Text/stringids", ids);
    if (!colour.isEmpty())
        data.setData("Text/colordata", colour);
    tree->setMouseTracking(true);
    QVERIFY(tree->drop(data, tree->over(tree->card)));
    QVERIFY(!tree->hasMouseTracking());
    QVERIFY(!tree->m_bDropped);
    QCOMPARE(tree->m_iDragGroupId, 1);
    QCOMPARE(entered->count(), 0);
}

void TreeDropTest::aDropOnAFullRootGoesBack_data()
{
    QTest::addColumn<QString>("root");
    QTest::newRow("local") << "PC";
    QTest::newRow("card") << "SIM";
    QTest::newRow("device") << "Device";
}

void TreeDropTest::aDropOnAFullRootGoesBack()
{
    QFETCH(QString, root);
    tree->m_iLocalCapacity = tree->m_iLocalUsed = 1;
    tree->m_iSimCapacity = tree->m_iSimUsed = 1;
    tree->m_iDeviceCapacity = tree->m_iDeviceUsed = 1;
    tree->setCurrentItem(tree->node(root));
    QVERIFY(tree->drop(*contacts(), tree->over(tree->node(root))));
    QCOMPARE(tree->currentItem(), tree->group1);
    QVERIFY(!tree->m_bDropped);
    QVERIFY(tree->hasMouseTracking());
    QCOMPARE(tree->m_enDragMemory, PB_MEM_LOCAL);
    QCOMPARE(entered->count(), 0);
}

void TreeDropTest::aDropOnAGroupOfAFullMemoryIsTaken()
{
    tree->m_iLocalCapacity = tree->m_iLocalUsed = 1;
    QVERIFY(!tree->hover(tree->group2)); // only the hover keeps it away
    tree->drop(*contacts(), tree->over(tree->group2));
    QVERIFY(tree->m_bDropped);
}

void TreeDropTest::aDropOnAFullRootWithoutANodeToGoBackTo()
{
    tree->m_iSimCapacity = tree->m_iSimUsed = 1;
    tree->m_pitemPrevious = nullptr;
    tree->drop(*contacts(), tree->over(tree->card));
    QVERIFY(!tree->m_bDropped);
    QVERIFY(tree->currentItem() == nullptr);
}

void TreeDropTest::aDropOnANodeWithoutDataIsTaken()
{
    auto* bare = new QTreeWidgetItem(tree.get());
    bare->setText(0, "bare");
    QCoreApplication::processEvents();
    tree->drop(*contacts(), tree->over(bare));
    QVERIFY(tree->m_bDropped);
}

void TreeDropTest::aDropCallsNoSdk()
{
    FakeSdk::clearCalls();
    tree->drop(*contacts(), tree->over(tree->card));
    QCOMPARE(FakeSdk::totalCalls(), 0);
}

QTEST_MAIN(TreeDropTest)
#include "TreeDropTest.moc"
