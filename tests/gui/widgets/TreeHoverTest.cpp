#include <QSignalSpy>

#include "OpenTreeTest.h"

// Contacts on their way over the phonebook tree: which node may take them, and how it shows. The keyboard's entries.
class TreeHoverTest : public OpenTreeTest
{
    Q_OBJECT

private slots:
    void aFreshTreeHasItsInitialState();
    void enteringRefreshesTheCountsOfAllMemories();
    void enteringAsksForTheLocalMemoryFirst();
    void aFailingSdkAtTheEnterNeverBlocks_data();
    void aFailingSdkAtTheEnterNeverBlocks();
    void foreignDataIsRefusedAtTheEnter_data();
    void foreignDataIsRefusedAtTheEnter();
    void whichNodeTakesContacts_data();
    void whichNodeTakesContacts();
    void anUnknownOrEmptyCapacityNeverBlocks_data();
    void anUnknownOrEmptyCapacityNeverBlocks();
    void aMemoryThatFillsUpDuringADragIsNotNoticedByTheHover();
    void overEmptyAreaTheHoverGoesBackToTheSource();
    void withoutANodeToGoBackToTheCurrentOneStays();
    void aHoverCallsNoSdk();
    void aHoverExpandsNoCollapsedNode();
    void aHoverBesideTheNodesIsAcceptedAndLightsNothing();
    void afterACancelledDragTheStateStaysHovering();
    void theKeyHeldIsNotLookedAt();
    void memoryAndGroupOfANode();
    void aNodeWithoutDataWritesNothing();
    void theFirstNodeThatHoldsARectangleWins();
    void aMemoryIsFullWhenUsedReachesTotal_data();
    void aMemoryIsFullWhenUsedReachesTotal();
    void otherMemoriesAreNeverFull();
    void groupsAreCreatedBelowTheLocalRootAlone();
    void shortcutsLookAtTheCurrentNode_data();
    void shortcutsLookAtTheCurrentNode();
    void messagesNeedTheTreesFocus();
    void keysMoveThroughTheTreeButNotDuringShutdown();
    void theWindowCanRaiseASelectionChange();
    void nullEventsDoNothing();

private:
    QTreeWidgetItem* node(const QString& name) const { return tree->node(name); }
};

void TreeHoverTest::aFreshTreeHasItsInitialState()
{
    QVERIFY(tree->m_listDragData.isEmpty());
    QVERIFY(!tree->m_bCopyInLocal && !tree->m_bCreateInGroup && !tree->m_bDropped && tree->m_bHandleSelection);
    QCOMPARE(tree->m_enDragMemory, PB_MEM_NONE);
    QCOMPARE(tree->m_iDragGroupId, -1);
    QVERIFY(tree->m_pitemPrevious == nullptr);
    for (int count : {tree->m_iSimUsed, tree->m_iSimCapacity, tree->m_iLocalUsed, tree->m_iLocalCapacity,
                      tree->m_iDeviceUsed, tree->m_iDeviceCapacity})
        QCOMPARE(count, -1);
}

void TreeHoverTest::enteringRefreshesTheCountsOfAllMemories()
{
    FakeSdk::setCapacity(PB_MEM_LOCAL, 1000);
    FakeSdk::setSize(PB_MEM_LOCAL, 10);
    FakeSdk::setSize(PB_MEM_SIM, 20);
    FakeSdk::setSize(PB_MEM_ME, 30);
    tree->setMouseTracking(false);
    QVERIFY(tree->enter(*contacts()));
    QVERIFY(tree->hasMouseTracking());
    QCOMPARE(tree->m_iLocalCapacity, 1000);
    QCOMPARE(tree->m_iLocalUsed, 10);
    QCOMPARE(tree->m_iSimCapacity, 250);
    QCOMPARE(tree->m_iSimUsed, 20);
    QCOMPARE(tree->m_iDeviceCapacity, 500);
    QCOMPARE(tree->m_iDeviceUsed, 30);
}

void TreeHoverTest::enteringAsksForTheLocalMemoryFirst()
{
    FakeSdk::clearCalls();
    tree->enter(*contacts());
    QStringList memories;
    for (const FakeSdk::Call& call : FakeSdk::calls()) {
        if (call.name == "GetCapacity")
            memories << call.arguments.value(0);
    }
    QCOMPARE(memories, (QStringList{"4", "0", "1"}));
}

void TreeHoverTest::aFailingSdkAtTheEnterNeverBlocks_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::newRow("capacity") << QByteArray("GetCapacity");
    QTest::newRow("size") << QByteArray("GetSize");
}

void TreeHoverTest::aFailingSdkAtTheEnterNeverBlocks()
{
    QFETCH(QByteArray, operation);
    FakeSdk::setSize(PB_MEM_SIM, 250); // full, but nobody can tell
    FakeSdk::failAlways(operation);
    QVERIFY(tree->enter(*contacts()));
    tree->showNode(tree->local);
    QVERIFY(tree->hover(tree->card));
    QVERIFY(tree->hover(tree->device));
}

void TreeHoverTest::foreignDataIsRefusedAtTheEnter_data()
{
    QTest::addColumn<QByteArray>("idsFormat");
    QTest::addColumn<QByteArray>("ids");
    QTest::addColumn<QByteArray>("colour");
    const QByteArray colour = "#00000000";
    QTest::newRow("no colour") << QByteArray("Text/stringids") << QByteArray("1-10-1") << QByteArray();
    QTest::newRow("no valid colour") << QByteArray("Text/stringids") << QByteArray("1-10-1") << QByteArray("colour");
    QTest::newRow("no text") << QByteArray() << QByteArray() << colour;
    QTest::newRow("empty text") << QByteArray("Text/stringids") << QByteArray() << colour;
    QTest::newRow("another end") << QByteArray("Text/stringids") << QByteArray("1-10-2") << colour;
    QTest::newRow("no separator") << QByteArray("Text/stringids") << QByteArray("1") << colour;
    QTest::newRow("blank behind") << QByteArray("Text/stringids") << QByteArray("1-10-1 ") << colour;
    QTest::newRow("other capitals") << QByteArray("text/stringids") << QByteArray("1-10-1") << colour;
}

void TreeHoverTest::foreignDataIsRefusedAtTheEnter()
{
    QFETCH(QByteArray, idsFormat);
    QFETCH(QByteArray, ids);
    QFETCH(QByteArray, colour);
    QMimeData data;
    if (!idsFormat.isEmpty())
        data.setData(QString::fromLatin1(idsFormat), ids);
    if (!colour.isEmpty())
        data.setData("Text/colordata", colour);
    tree->setMouseTracking(false);
    FakeSdk::clearCalls();
    QVERIFY(!tree->enter(data));
    QVERIFY(!tree->hasMouseTracking());
    QCOMPARE(FakeSdk::totalCalls(), 0);
    QCOMPARE(tree->m_iSimCapacity, -1);
}

void TreeHoverTest::whichNodeTakesContacts_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("full"); // the memory that is full
    QTest::addColumn<bool>("taken");
    const QStringList nodes = {"PC", "Friends", "Work", "SIM", "Device"};
    for (const QString& source : nodes) {
        for (const QString& target : nodes) {
            const QString memory = target == "Friends" || target == "Work" ? QString("PC") : target;
            for (const QString& full : {QString(), QString("PC"), QString("SIM"), QString("Device")}) {
                QTest::addRow("%s to %s, full: %s", qPrintable(source), qPrintable(target), qPrintable(full))
                    << source << target << full << (source != target && full != memory);
            }
        }
    }
}

void TreeHoverTest::whichNodeTakesContacts()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(QString, full);
    QFETCH(bool, taken);
    FakeSdk::setCapacity(PB_MEM_LOCAL, 10);
    FakeSdk::setSize(PB_MEM_LOCAL, full == "PC" ? 10 : 9);
    FakeSdk::setSize(PB_MEM_SIM, full == "SIM" ? 250 : 249);
    FakeSdk::setSize(PB_MEM_ME, full == "Device" ? 500 : 499);
    tree->showNode(node(source));
    tree->enter(*contacts());
    tree->setMouseTracking(false);
    QCOMPARE(tree->hover(node(target)), taken);
    QCOMPARE(tree->currentItem(), taken ? node(target) : node(source));
    QCOMPARE(tree->m_bHandleSelection, !taken);
    QVERIFY(tree->hasMouseTracking());
}

void TreeHoverTest::anUnknownOrEmptyCapacityNeverBlocks_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("used");
    QTest::newRow("before the first enter") << -1 << -1;
    QTest::newRow("no capacity") << 0 << 0;
    QTest::newRow("no capacity, some used") << 0 << 5;
}

void TreeHoverTest::anUnknownOrEmptyCapacityNeverBlocks()
{
    QFETCH(int, total);
    QFETCH(int, used);
    tree->m_iSimCapacity = total;
    tree->m_iSimUsed = used;
    tree->showNode(tree->local);
    QVERIFY(!tree->isMaxContactsPresent(PB_MEM_SIM));
    QVERIFY(tree->hover(tree->card));
    tree->drop(*contacts(), tree->over(tree->card));
    QVERIFY(tree->m_bDropped);
}

void TreeHoverTest::aMemoryThatFillsUpDuringADragIsNotNoticedByTheHover()
{
    FakeSdk::setSize(PB_MEM_SIM, 249);
    tree->showNode(tree->local);
    tree->enter(*contacts());
    FakeSdk::setSize(PB_MEM_SIM, 250);
    QVERIFY(tree->hover(tree->card));
    tree->enter(*contacts());
    QVERIFY(!tree->hover(tree->card));
}

void TreeHoverTest::overEmptyAreaTheHoverGoesBackToTheSource()
{
    tree->showNode(tree->group1);
    QVERIFY(tree->hover(tree->card));
    QCOMPARE(tree->currentItem(), tree->card);
    tree->setMouseTracking(false);
    QVERIFY(!tree->hover(tree->emptyArea()));
    QCOMPARE(tree->currentItem(), tree->group1);
    QVERIFY(!tree->hasMouseTracking()); // left as it is
    tree->setMouseTracking(true);
    QVERIFY(!tree->hover(tree->emptyArea()));
    QVERIFY(tree->hasMouseTracking());
}

void TreeHoverTest::withoutANodeToGoBackToTheCurrentOneStays()
{
    tree->setCurrentItem(tree->device);
    QVERIFY(!tree->hover(tree->emptyArea()));
    QCOMPARE(tree->currentItem(), tree->device);
}

void TreeHoverTest::aHoverCallsNoSdk()
{
    tree->showNode(tree->local);
    tree->enter(*contacts());
    FakeSdk::clearCalls();
    for (QTreeWidgetItem* target : {tree->local, tree->group1, tree->card, tree->device})
        tree->hover(target);
    QCOMPARE(FakeSdk::totalCalls(), 0);
}

void TreeHoverTest::aHoverExpandsNoCollapsedNode()
{
    tree->setAutoExpandDelay(0);
    tree->collapseItem(tree->local);
    tree->showNode(tree->card);
    QVERIFY(tree->hover(tree->local));
    QCoreApplication::processEvents();
    QVERIFY(!tree->local->isExpanded());
}

// Left of a group lies its indentation: a row of the tree, but not the node.
void TreeHoverTest::aHoverBesideTheNodesIsAcceptedAndLightsNothing()
{
    tree->showNode(tree->card);
    tree->setMouseTracking(false);
    const QPoint beside(2, tree->over(tree->group1).y());
    QVERIFY(tree->indexAt(beside).isValid());
    QVERIFY(tree->hover(beside));
    QCOMPARE(tree->currentItem(), tree->card);
    QVERIFY(tree->m_bHandleSelection);
    QVERIFY(!tree->hasMouseTracking());
}

void TreeHoverTest::afterACancelledDragTheStateStaysHovering()
{
    tree->showNode(tree->local);
    tree->enter(*contacts());
    tree->hover(tree->card);
    QDragLeaveEvent leave;
    QApplication::sendEvent(tree->viewport(), &leave);
    QVERIFY(!tree->m_bHandleSelection);
    QVERIFY(tree->hasMouseTracking()); // so that itemEntered goes on noting the node under the mouse
    QSignalSpy entered(tree.get(), SIGNAL(itemEntered(QTreeWidgetItem*, int)));
    const QPoint device = tree->over(tree->device);
    QMouseEvent move(QEvent::MouseMove, device, tree->viewport()->mapToGlobal(device), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(tree->viewport(), &move);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(entered.at(0).at(0).value<QTreeWidgetItem*>(), tree->device);
}

void TreeHoverTest::theKeyHeldIsNotLookedAt()
{
    tree->showNode(tree->card);
    for (Qt::KeyboardModifiers keys : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
        QVERIFY(tree->hover(tree->over(tree->group1), keys));
        QVERIFY(!tree->hover(tree->over(tree->card), keys));
    }
}

void TreeHoverTest::memoryAndGroupOfANode()
{
    const QList<std::pair<QTreeWidgetItem*, std::pair<_ORVA_EN_PHONEBOOK_MEMORY, int>>> expected = {
        {tree->local, {PB_MEM_LOCAL, 0}},
        {tree->group1, {PB_MEM_LOCAL, 1}},
        {tree->group2, {PB_MEM_LOCAL, 2}},
        {tree->card, {PB_MEM_SIM, 0}},
        {tree->device, {PB_MEM_ME, 0}}};
    for (const auto& [item, place] : expected) {
        _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_NONE;
        int group = -1;
        tree->getGroupId(item, memory, group);
        QCOMPARE(memory, place.first);
        QCOMPARE(group, place.second);
    }
}

void TreeHoverTest::aNodeWithoutDataWritesNothing()
{
    _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_NONE;
    int group = 77;
    tree->getGroupId(nullptr, memory, group);
    QTreeWidgetItem bare;
    tree->getGroupId(&bare, memory, group);
    bare.setData(0, Qt::UserRole, 0);
    tree->getGroupId(&bare, memory, group);
    QCOMPARE(memory, PB_MEM_NONE);
    QCOMPARE(group, 77);
}

void TreeHoverTest::theFirstNodeThatHoldsARectangleWins()
{
    QTreeWidgetItem* found = tree->device;
    _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_LOCAL;
    int group = 5;
    tree->GetItemAtPos(QRect(tree->emptyArea(), QSize(1, 1)), memory, group, &found);
    QCOMPARE(found, tree->device); // left as it was
    QCOMPARE(memory, PB_MEM_NONE);
    QCOMPARE(group, -1);
    tree->GetItemAtPos(QRect(tree->over(tree->group2), QSize(1, 1)), memory, group, &found);
    QCOMPARE(found, tree->group2);
    QCOMPARE(memory, PB_MEM_LOCAL);
    QCOMPARE(group, 2);
    // A rectangle over two nodes lies in neither.
    tree->GetItemAtPos(tree->visualItemRect(tree->card) | tree->visualItemRect(tree->device), memory, group, &found);
    QCOMPARE(memory, PB_MEM_NONE);
}

void TreeHoverTest::aMemoryIsFullWhenUsedReachesTotal_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("used");
    QTest::addColumn<bool>("full");
    QTest::newRow("unknown") << -1 << -1 << false;
    QTest::newRow("none") << 0 << 0 << false;
    QTest::newRow("room for one") << 10 << 9 << false;
    QTest::newRow("full") << 10 << 10 << true;
    QTest::newRow("more than full") << 10 << 11 << true;
    QTest::newRow("one") << 1 << 1 << true;
}

void TreeHoverTest::aMemoryIsFullWhenUsedReachesTotal()
{
    QFETCH(int, total);
    QFETCH(int, used);
    QFETCH(bool, full);
    tree->m_iSimCapacity = total;
    tree->m_iSimUsed = used;
    QCOMPARE(tree->isMaxContactsPresent(PB_MEM_SIM), full);
    tree->m_iLocalCapacity = total;
    tree->m_iLocalUsed = used;
    QCOMPARE(tree->isMaxContactsPresent(PB_MEM_LOCAL), full);
    tree->m_iDeviceCapacity = total;
    tree->m_iDeviceUsed = used;
    QCOMPARE(tree->isMaxContactsPresent(PB_MEM_ME), full);
}

void TreeHoverTest::otherMemoriesAreNeverFull()
{
    QVERIFY(!tree->isMaxContactsPresent(PB_MEM_NONE));
    tree->getMaxCapacity(PB_MEM_NONE); // stored nowhere
    QCOMPARE(tree->m_iSimCapacity, -1);
    QCOMPARE(tree->m_iLocalCapacity, -1);
    QCOMPARE(tree->m_iDeviceCapacity, -1);
}

void TreeHoverTest::groupsAreCreatedBelowTheLocalRootAlone()
{
    QVERIFY(tree->checkIfCreateNew(PB_MEM_LOCAL, 0));
    QVERIFY(!tree->checkIfCreateNew(PB_MEM_LOCAL, 3));
    QVERIFY(!tree->checkIfCreateNew(PB_MEM_SIM, 0));
    QVERIFY(!tree->checkIfCreateNew(PB_MEM_ME, 0));
    QVERIFY(!tree->checkIfCreateNew(PB_MEM_NONE, 0));
    tree->m_bCreateInGroup = true;
    QVERIFY(tree->checkIfCreateNew(PB_MEM_LOCAL, 3));
    QVERIFY(!tree->checkIfCreateNew(PB_MEM_SIM, 3));
}

void TreeHoverTest::shortcutsLookAtTheCurrentNode_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("creates");
    QTest::addColumn<bool>("renames");
    QTest::addColumn<bool>("deletes");
    QTest::newRow("none") << "" << false << false << false;
    QTest::newRow("local root") << "PC" << true << false << false;
    QTest::newRow("group") << "Friends" << false << true << true;
    QTest::newRow("card") << "SIM" << false << false << false;
    QTest::newRow("device") << "Device" << false << false << false;
}

void TreeHoverTest::shortcutsLookAtTheCurrentNode()
{
    QFETCH(QString, current);
    QFETCH(bool, creates);
    QFETCH(bool, renames);
    QFETCH(bool, deletes);
    tree->setCurrentItem(current.isEmpty() ? nullptr : node(current));
    QSignalSpy created(tree.get(), SIGNAL(newGroup()));
    QSignalSpy renamed(tree.get(), SIGNAL(renameGroup()));
    QSignalSpy deleted(tree.get(), SIGNAL(deleteGroup()));
    tree->OnShortKeyNewGroup();
    tree->OnShortKeyRenameGroup();
    tree->OnShortKeyDelGroup();
    QCOMPARE(created.count(), creates ? 1 : 0);
    QCOMPARE(renamed.count(), renames ? 1 : 0);
    QCOMPARE(deleted.count(), deletes ? 1 : 0);
}

void TreeHoverTest::messagesNeedTheTreesFocus()
{
    QSignalSpy sms(tree.get(), SIGNAL(sendMessage()));
    QSignalSpy mms(tree.get(), SIGNAL(sendMmsMessage()));
    tree->clearFocus();
    tree->OnSendSMS();
    tree->OnSendMMS();
    QCOMPARE(sms.count() + mms.count(), 0);
    QApplication::setActiveWindow(tree.get());
    tree->setFocus();
    QTRY_VERIFY(tree->hasFocus());
    tree->OnSendSMS();
    QCOMPARE(sms.count(), 1);
    QCOMPARE(mms.count(), 0);
    tree->OnSendMMS();
    QCOMPARE(mms.count(), 1);
}

void TreeHoverTest::keysMoveThroughTheTreeButNotDuringShutdown()
{
    tree->setCurrentItem(tree->local);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    tree->keyPressEvent(&down);
    QCOMPARE(tree->currentItem(), tree->group1);
    FakeCore::setShuttingDown(true);
    tree->keyPressEvent(&down);
    QCOMPARE(tree->currentItem(), tree->group1);
}

void TreeHoverTest::theWindowCanRaiseASelectionChange()
{
    QSignalSpy changed(tree.get(), SIGNAL(itemSelectionChanged()));
    tree->ItemSelectionChanged();
    QCOMPARE(changed.count(), 1);
}

void TreeHoverTest::nullEventsDoNothing()
{
    tree->showNode(tree->local);
    tree->dragEnterEvent(nullptr);
    tree->dragMoveEvent(nullptr);
    tree->dropEvent(nullptr);
    tree->keyPressEvent(nullptr);
    QVERIFY(!tree->m_bDropped);
    QCOMPARE(tree->currentItem(), tree->local);
}

QTEST_MAIN(TreeHoverTest)
#include "TreeHoverTest.moc"
