#include <QMimeData>
#include <QTreeWidgetItemIterator>

#include "WindowFixture.h"

// The tree: its nodes, their texts, widths and pictures, and what a click does.
class TreeTest : public WindowTest
{
    Q_OBJECT

private:
    static QColor colour(const QIcon& icon, QIcon::Mode mode, int x)
    {
        return icon.pixmap(16, 16, mode).toImage().pixelColor(x, 8);
    }

private slots:
    void nodesStandInTheOrderOfTheSdk()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setMemoryList({1, -1, 0, 7});
        f.build();
        QCOMPARE(f.tree()->topLevelItemCount(), 3);
        QCOMPARE(f.tree()->topLevelItem(0), f.in().local());
        QCOMPARE(f.tree()->topLevelItem(1), f.in().device());
        QCOMPARE(f.tree()->topLevelItem(2), f.in().sim());
        for (QTreeWidgetItemIterator it(f.tree()); *it != nullptr; ++it) {
            QCOMPARE((*it)->sizeHint(0), QSize(25, 20));
            QVERIFY(treeNodeData(*it) != nullptr);
        }
        QCOMPARE(treeNodeData(f.in().local())->iMemoryOrGroup, qlonglong(4));
        QCOMPARE(treeNodeData(f.in().sim())->iMemoryOrGroup, qlonglong(0));
        QCOMPARE(treeNodeData(f.in().device())->iMemoryOrGroup, qlonglong(1));
        QCOMPARE(groupOf(treeNodeData(f.node("Friends")))->strName, QString("Friends"));
    }

    void treeStartsWithoutHeaderOnTheExpandedLocalNode()
    {
        WindowFixture f;
        f.build();
        QCOMPARE(f.tree()->objectName(), QString("AddrBookUIPlugin_TreeWidget"));
        QCOMPARE(f.tree()->selectionBehavior(), QAbstractItemView::SelectItems);
        QVERIFY(f.tree()->isHeaderHidden());
        QVERIFY(f.tree()->expandsOnDoubleClick());
        QVERIFY(!f.tree()->rootIsDecorated());
        QCOMPARE(f.tree()->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QCOMPARE(f.tree()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QVERIFY(f.in().local()->isExpanded());
        QCOMPARE(f.tree()->currentItem(), f.in().local());
    }

    void countsOfNothingShowNoneUntilARepaintShowsZeros()
    {
        WindowFixture f;
        FakeSdk::setCapacity(1, 0);
        f.build();
        const QString name = f.in().device()->text(0);
        QVERIFY(!name.contains("("));
        QVERIFY(f.window()->setNodeText(f.in().device(), PB_MEM_ME, true));
        QCOMPARE(f.in().device()->text(0), name);
        f.window()->rePaintTree();
        QCOMPARE(f.in().device()->text(0), name + "(0/0)");
        f.window()->updateNodes();
        QCOMPARE(f.in().device()->text(0), name);
    }

    void countsStandBehindTheNames()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        QCOMPARE(f.in().local()->text(0), QString("IDS_LOCAL_PHONEBOOKUI(3)"));
        QVERIFY(f.in().sim()->text(0).endsWith("(1/250)"));
        QVERIFY(f.in().device()->text(0).endsWith("(2/500)"));
        QVERIFY(f.node("Friends(2)") != nullptr);
        f.window()->setNodeText(f.in().sim(), PB_MEM_SIM, false);
        QVERIFY(!f.in().sim()->text(0).contains("("));
    }

    void repaintShowsTheRecordsAndOtherwiseTheUsedPlacesCount()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setSize(0, 7); // of which one can be read
        f.build();
        QVERIFY(f.in().sim()->text(0).endsWith("(7/250)"));
        f.window()->rePaintTree();
        QVERIFY(f.in().sim()->text(0).endsWith("(1/250)"));
        f.window()->updateNodes();
        QVERIFY(f.in().sim()->text(0).endsWith("(7/250)"));
    }

    void countThatCannotBeReadShowsZero()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::failAlways("GetAddrRecList");
        FakeSdk::failAlways("AddrRecordSet_GetAddrRecordCount");
        FakeSdk::failAlways("GetSize");
        f.window()->setLocalText();
        QCOMPARE(f.in().local()->text(0), QString("IDS_LOCAL_PHONEBOOKUI(0)"));
        f.window()->rePaintTree();
        QVERIFY(f.in().sim()->text(0).contains("(0/"));
    }

    void groupsThatGrowAreRefreshedByARepaint()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::join(FakeSdk::groups().first().id, 3);
        f.window()->rePaintTree();
        QVERIFY(f.node("Friends(3)") != nullptr);
        QCOMPARE(FakeSdk::openTransactions(4), 0);
    }

    void nestedGroupIsWiderThanItsParentWithTheSameText()
    {
        WindowFixture f;
        const QString name(60, 'm'); // wider than the tree, whose one column fills it otherwise
        const int outer = FakeSdk::addGroup(name);
        FakeSdk::addGroup(name, outer);
        f.build();
        QTreeWidgetItem* parent = f.node(name);
        QCOMPARE(parent->parent(), f.in().local());
        QCOMPARE(parent->childCount(), 1);
        QTreeWidgetItem* child = parent->child(0);
        const auto widthFor = [&f](QTreeWidgetItem* node) {
            f.tree()->setColumnWidth(0, 1);
            f.in().setTreeColumnWidth(node);
            return f.tree()->columnWidth(0);
        };
        const QString text = child->text(0);
        QCOMPARE(parent->text(0), text);
        const int textWidth = QFontMetrics(child->font(0)).horizontalAdvance(text) + text.length();
        QCOMPARE(widthFor(parent), textWidth + 3 * f.tree()->indentation());
        QCOMPARE(widthFor(child), textWidth + 4 * f.tree()->indentation());
    }

    void textWiderThanTheTreeIsTheTooltip()
    {
        WindowFixture f;
        f.build();
        QTreeWidgetItem* node = f.in().local();
        f.tree()->resize(1000, 300);
        node->setText(0, "short");
        f.in().setTreeColumnWidth(node);
        QCOMPARE(node->toolTip(0), QString(""));
        f.tree()->resize(40, 300);
        f.in().setTreeColumnWidth(node);
        QCOMPARE(node->toolTip(0), QString("short"));
        f.tree()->setColumnWidth(0, 5000);
        f.in().setTreeColumnWidth(node);
        QCOMPARE(f.tree()->columnWidth(0), 5000); // only grows
        f.in().setCorrectTreeWidth();
        QVERIFY(f.tree()->columnWidth(0) < 5000); // and shrinks here
    }

    void clickOnTheCurrentNodeDoesNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const AddrBookThread* reader = f.in().reader();
        f.in().searchBox()->setText("an");
        f.click(f.in().local());
        QCOMPARE(static_cast<const AddrBookThread*>(f.in().reader()), reader);
        QCOMPARE(f.in().searchBox()->text(), QString("an"));
        f.click(f.node("Friends"));
        QCOMPARE(f.in().searchBox()->text(), QString(""));
        QCOMPARE(f.column(0), (QStringList{"Anna", "Bert"}));
    }

    void clickNotesWhereADragWouldStart()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        QCOMPARE(f.tree()->m_enDragMemory, PB_MEM_LOCAL);
        QCOMPARE(f.tree()->m_iDragGroupId, FakeSdk::groups().first().id);
        QCOMPARE(f.tree()->m_pitemPrevious, f.node("Friends"));
        f.click(f.in().sim());
        QCOMPARE(f.tree()->m_enDragMemory, PB_MEM_SIM);
        QCOMPARE(f.tree()->m_iDragGroupId, 0);
        // It is the node that is current at that moment, not yet the one that becomes so.
        f.window()->OnTreeClicked(f.in().device());
        QVERIFY(f.waitRead());
        QCOMPARE(f.tree()->m_enDragMemory, PB_MEM_SIM);
        QCOMPARE(f.tree()->m_pitemPrevious, f.in().device());
        QCOMPARE(f.tree()->currentItem(), f.in().device());
    }

    void selectionChangeTurnsTheTablesItemsOffWithNothingSelected()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.button(TOOL_EDIT)->setEnabled(true);
        f.window()->OnTreeItemSelectionChanged();
        QVERIFY(!f.button(TOOL_EDIT)->isEnabled());
        f.selectRows({0});
        f.window()->OnTreeItemSelectionChanged();
        QVERIFY(f.button(TOOL_EDIT)->isEnabled());
    }

    void hiddenNodeOfADualModeCardIsPresent_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("hidden");
        QTest::newRow("hidden") << 1 << "true" << true;
        QTest::newRow("setting other") << 1 << "TRUE" << false;
        QTest::newRow("no setting") << 1 << "" << false;
        QTest::newRow("single mode") << 0 << "true" << false;
    }
    void hiddenNodeOfADualModeCardIsPresent()
    {
        QFETCH(int, status);
        QFETCH(QString, setting);
        QFETCH(bool, hidden);
        WindowFixture f;
        FakeSdk::setMultiModeCard(static_cast<unsigned char>(status), 0xff);
        FakeCore::setSetting("DualModeCard", "HideDoubleModeCardNode", setting);
        f.build();
        QVERIFY(f.window()->isNodePresentInTree(f.in().sim()));
        QCOMPARE(f.in().sim()->isHidden(), hidden);
        QCOMPARE(f.in().device()->isHidden(), hidden);
        f.window()->updateDeviceAndSimNode(true);
        QCOMPARE(f.tree()->topLevelItemCount(), 3);
    }

    void cardThatIsRefusedCanBeAddedWithoutTheCheck()
    {
        WindowFixture f;
        FakeSdk::setPinStatus(2);
        f.build();
        QVERIFY(f.in().sim() == nullptr);
        f.window()->updateDeviceAndSimNode(true);
        QVERIFY(f.in().sim() == nullptr);
        FakeCore::clearNotices();
        f.window()->updateDeviceAndSimNode(false);
        QVERIFY(f.in().sim() != nullptr);
        QCOMPARE(FakeCore::notices().size(), 1);
        QCOMPARE(FakeCore::notices().first().message, 291u);
        QCOMPARE(FakeCore::notices().first().param1, 1u);
    }

    void selectedPictureOfAMemoryTurnsWithTheLayout_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }
    void selectedPictureOfAMemoryTurnsWithTheLayout()
    {
        QFETCH(bool, rightToLeft);
        WindowFixture f;
        WindowFixture::fillStores();
        qApp->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        f.build();
        qApp->setLayoutDirection(Qt::LeftToRight);
        const QIcon memory = f.in().local()->icon(0);
        QCOMPARE(colour(memory, QIcon::Normal, 2), QColor(Qt::white));
        QCOMPARE(colour(memory, QIcon::Normal, 12), QColor(30, 0, 0));
        QCOMPARE(colour(memory, QIcon::Selected, rightToLeft ? 12 : 2), QColor(Qt::white));
        QCOMPARE(colour(memory, QIcon::Selected, rightToLeft ? 2 : 12), QColor(60, 0, 0));
        const QIcon group = f.node("Friends")->icon(0);
        QCOMPARE(colour(group, QIcon::Normal, 2), QColor(Qt::white));
        QCOMPARE(colour(group, QIcon::Normal, 12), QColor(210, 0, 0));
        QCOMPARE(colour(group, QIcon::Selected, 12), QColor(210, 0, 0));
    }

    void missingStripGivesEmptyIcons()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        QVERIFY(QFile::remove(f.folder() + "/plugins/AddrBookUIPlugin/addr_tre_images"));
        f.build();
        QVERIFY(f.in().local()->icon(0).isNull());
        QCOMPARE(f.table()->rowCount(), 3);
    }

    void memoryListThatFailsGivesTheLocalNodeAlone()
    {
        WindowFixture f;
        FakeSdk::failAlways("PBGetMemoryListType");
        f.build();
        QCOMPARE(f.tree()->topLevelItemCount(), 1);
        FakeSdk::clearFailures();
        FakeSdk::fail("PBGetMemoryListType", 2);
        f.window()->updateDeviceAndSimNode(true);
        QCOMPARE(f.tree()->topLevelItemCount(), 1);
    }

    void memoryListOfNoneGivesTheLocalNodeAlone()
    {
        WindowFixture f;
        FakeSdk::setMemoryList({});
        f.build();
        QCOMPARE(f.tree()->topLevelItemCount(), 1);
        FakeSdk::clearCalls();
        f.window()->updateDeviceAndSimNode(false);
        QCOMPARE(FakeSdk::names(), QStringList{"PBGetMemoryListType"}); // not asked to fill in a list
        QCOMPARE(f.tree()->topLevelItemCount(), 1);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void groupsThatFailGiveTheLocalNodeNoChildren()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::failAlways("GetGroupList");
        f.build();
        QCOMPARE(f.in().local()->childCount(), 0);
    }

    void setOfGroupsThatFailsHalfWayGivesNoNodes()
    {
        WindowFixture f;
        for (const char* name : {"One", "Two", "Three"})
            FakeSdk::addGroup(name);
        FakeSdk::fail("AddrGroupSet_GetGroupSize", 2);
        f.build();
        QVERIFY(!FakeSdk::failedCall().isEmpty());
        QCOMPARE(f.in().local()->childCount(), 0);
    }

    void groupWithoutItsParentBecomesNoNode()
    {
        WindowFixture f;
        FakeSdk::addGroup("Lost", 999);
        FakeSdk::addGroup("There");
        f.build();
        QVERIFY(f.node("Lost") == nullptr);
        QVERIFY(f.node("There") != nullptr);
    }

    void nodesAreDecoded()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        const int outer = FakeSdk::groups().first().id;
        const int inner = FakeSdk::addGroup("Inner", outer);
        f.build();
        _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_NONE;
        int group = -5;
        int parent = -6;
        QCOMPARE(f.window()->getGroupAndParentIds(memory, group, parent, f.node("Inner")), f.node("Inner"));
        QCOMPARE(memory, PB_MEM_LOCAL);
        QCOMPARE(group, inner);
        QCOMPARE(parent, outer);
        QCOMPARE(f.window()->getGroupAndParentIds(memory, group, parent, f.in().device()), f.in().device());
        QCOMPARE(memory, PB_MEM_ME);
        QCOMPARE(group, 0);
        QCOMPARE(parent, outer); // a memory leaves it
        QTreeWidgetItem bare;
        memory = PB_MEM_NONE;
        group = -5;
        QCOMPARE(f.window()->getGroupAndParentIds(memory, group, parent, &bare), &bare);
        QCOMPARE(memory, PB_MEM_NONE);
        QCOMPARE(group, -5);
        QCOMPARE(f.window()->getGroupId(memory, group), f.in().local());
        QCOMPARE(memory, PB_MEM_LOCAL);
        QVERIFY(!f.window()->isNodePresentInTree(f.node("Inner")));
        QVERIFY(!f.window()->isNodePresentInTree(nullptr));
        QVERIFY(!f.window()->isNodePresentInTree(&bare));
    }

    // A name whose only owner is the test again has left with its group's block.
    void groupsGoWithTheWindow()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const QString name = QString("The one and only");
        groupOf(treeNodeData(f.node("Friends")))->strName = name;
        QVERIFY(!name.isDetached());
        f.destroy();
        QVERIFY(name.isDetached());
    }

    void absentMemoryCountsAsExisting()
    {
        WindowFixture f;
        FakeSdk::setDevicePresent(false);
        f.build();
        f.in().memory() = PB_MEM_SIM;
        QVERIFY(f.window()->isSimorDeviceNodeExist());
        f.in().memory() = PB_MEM_ME;
        QVERIFY(f.window()->isSimorDeviceNodeExist());
    }

    void selectionChangeDuringAHoverIsNotTheUsers()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.tree()->m_bHandleSelection = false;
        f.tree()->setCurrentItem(f.in().sim());
        QCOMPARE(f.in().current(), f.in().local());
        f.tree()->m_bHandleSelection = true;
        f.tree()->setCurrentItem(f.in().device());
        QCOMPARE(f.in().current(), f.in().device());
        QVERIFY(f.waitRead());
    }

    void nodeThatWasEnteredBecomesCurrentAtTheNextSelectionChange()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.tree()->setMouseTracking(true);
        f.window()->OnTreeItemEntered(f.in().device());
        QCOMPARE(f.in().entered(), f.in().device());
        f.tree()->setCurrentItem(f.in().sim());
        QVERIFY(f.waitRead());
        QCOMPARE(f.tree()->currentItem(), f.in().device());
        QVERIFY(f.in().entered() == nullptr);
        QVERIFY(!f.tree()->hasMouseTracking());
        QCOMPARE(f.column(0), (QStringList{"Emil", "Frida"}));
    }

    void afterACancelledDragTheNotedNodeBecomesCurrentAndIsNotLoaded()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        QWidget* viewport = f.tree()->viewport();
        const auto over = [&f](QTreeWidgetItem* node) { return f.tree()->visualItemRect(node).center(); };
        QMimeData rows;
        rows.setData("Text/stringids", "1-10-1");
        rows.setData("Text/colordata", QVariant(QColor(Qt::transparent)).toByteArray());
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(over(f.in().local()), actions, &rows, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QDragMoveEvent hover(over(f.in().sim()), actions, &rows, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &hover);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(viewport, &leave);
        QCOMPARE(f.tree()->currentItem(), f.in().sim());
        QVERIFY(f.tree()->hasMouseTracking());

        const QPoint device = over(f.in().device());
        QMouseEvent move(QEvent::MouseMove, device, viewport->mapToGlobal(device), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        QCOMPARE(f.in().entered(), f.in().device());
        f.tree()->setCurrentItem(f.node("Friends"));
        QCOMPARE(f.tree()->currentItem(), f.in().device());
        QVERIFY(f.in().entered() == nullptr);
        QVERIFY(!f.tree()->hasMouseTracking());
        QCOMPARE(f.in().current(), f.in().local());
        QCOMPARE(f.column(0), (QStringList{"Anna", "Bert", "Carl"}));
        f.click(f.in().device()); // the mouse still loads
        QCOMPARE(f.column(0), (QStringList{"Emil", "Frida"}));
    }

    void dragThatEntersAnotherWidgetGoesBackToTheShownNode()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.tree()->m_bHandleSelection = false;
        f.tree()->setCurrentItem(f.in().sim());
        f.window()->OnDragTargetChanged(f.table());
        QCOMPARE(f.tree()->currentItem(), f.in().sim());
        f.window()->OnDragTargetChanged(f.window());
        QCOMPARE(f.tree()->currentItem(), f.in().local());
    }

    void dragThatEntersAnotherWidgetLightsNothingWithNoNodeToGoBackTo()
    {
        WindowFixture f;
        f.build();
        f.tree()->m_bHandleSelection = false;
        f.tree()->m_pitemPrevious = nullptr;
        f.window()->OnDragTargetChanged(f.window());
        QVERIFY(f.tree()->currentItem() == nullptr);
    }
};

QTEST_MAIN(TreeTest)
#include "TreeTest.moc"
