#include <QHeaderView>
#include <QSplitter>

#include "WindowFixture.h"
#include "linkhand/QtCompat.h"

// Small rules of the window's parts: who is told, what is read anew, how room is shared.
class FollowTest : public WindowTest
{
    Q_OBJECT

private:
    // The events that both memories have in common.
    static void becomesReady(const WindowFixture& f, bool card)
    {
        if (card)
            f.window()->OnAddrBookSimReady();
        else
            f.window()->OnAddrBookDeviceReady();
    }
    static QTreeWidgetItem* nodeOf(const WindowFixture& f, bool card) { return card ? f.in().sim() : f.in().device(); }

    static void bothMemories()
    {
        QTest::addColumn<bool>("card");
        QTest::newRow("card") << true;
        QTest::newRow("device") << false;
    }

private slots:
    void memoryThatBecomesReadyGetsItsNode_data() { bothMemories(); }
    void memoryThatBecomesReadyGetsItsNode()
    {
        QFETCH(bool, card);
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setDevicePresent(false);
        f.build();
        QVERIFY(nodeOf(f, card) == nullptr);
        FakeSdk::setDevicePresent(true);
        becomesReady(f, card);
        QVERIFY(nodeOf(f, card) != nullptr);
    }

    void memoryThatBecomesReadyShowsItsCount_data() { bothMemories(); }
    void memoryThatBecomesReadyShowsItsCount()
    {
        QFETCH(bool, card);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const QString before = nodeOf(f, card)->text(0);
        FakeSdk::addRecord(card ? 0 : 1, {"Hans", "1"});
        becomesReady(f, card);
        QVERIFY(nodeOf(f, card)->text(0) != before);
        QVERIFY(nodeOf(f, card)->text(0).contains(card ? "(2/" : "(3/"));
    }

    void nodesThatComeAreBroadcast()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        QStringList told;
        for (const FakeCore::Notice& notice : FakeCore::notices()) {
            if (!notice.isPush)
                told << QString("%1 %2 %3").arg(notice.message).arg(notice.param1).arg(notice.param2);
        }
        QCOMPARE(told, (QStringList{"291 1 0", "292 1 0"}));
    }

    void languageBringsTheDirectionOfTheLayoutAndItsIcons()
    {
        WindowFixture f;
        f.build();
        QVERIFY(!f.in().rightToLeft());
        qApp->setLayoutDirection(Qt::RightToLeft);
        FakeCore::clearLog();
        f.window()->SetLanguage();
        const bool turned = f.in().rightToLeft();
        const QStringList log = FakeCore::log().filter("ChangeToolBarIconDirection");
        qApp->setLayoutDirection(Qt::LeftToRight);
        QVERIFY(turned);
        QCOMPARE(log.size(), 1);
        QVERIFY2(log.first().contains("true"), qPrintable(log.first()));
        f.window()->SetLanguage();
        QVERIFY(!f.in().rightToLeft());
    }

    void panesShareTheRoomInFixedParts()
    {
        WindowFixture f;
        f.build();
        const auto share = [&f](const char* name) {
            const QList<int> sizes = f.window()->findChild<QSplitter*>(name)->sizes();
            return sizes.size() == 2 ? 1000 * sizes[0] / (sizes[0] + sizes[1]) : -1;
        };
        const int tree = share("AddrBookUIPlugin_splitterMain");
        QVERIFY2(qAbs(tree - 1000 * 130 / 630) <= 15, qPrintable(QString::number(tree)));
        const int rows = share("AddrBookUIPlugin_splitterPreview");
        QVERIFY2(qAbs(rows - 1000 * 515 / 735) <= 15, qPrintable(QString::number(rows)));
    }

    // The first table, before any node is shown.
    void firstTableAndPreviewShareTheRoomInFixedParts()
    {
        const WindowFixture folder;
        AddrBookDlg window;
        QVERIFY(window.InitWindow(nullptr) != nullptr);
        window.resize(900, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QList<int> sizes = window.findChild<QSplitter*>("AddrBookUIPlugin_splitterPreview")->sizes();
        QCOMPARE(sizes.size(), 2);
        QVERIFY(qAbs(1000 * sizes[0] / (sizes[0] + sizes[1]) - 1000 * 515 / 735) <= 15);
        AddrBookLogic::unSDKRegisterEvent();
    }

    void repaintOfAGroupIsOneTransaction()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::clearCalls();
        f.window()->rePaintTree();
        const QStringList log = FakeSdk::log();
        // The window's around the logic's own.
        const int list = log.indexOf("GetGroupList(4)");
        QVERIFY(list >= 2);
        QCOMPARE(log.at(list - 1), QString("BeginTransaction(4)"));
        QCOMPARE(log.at(list - 2), QString("BeginTransaction(4)"));
        QCOMPARE(FakeSdk::openTransactions(4), 0);
    }

    void repaintAsksForEachGroupByItself()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::addGroup("more");
        f.build();
        FakeSdk::clearCalls();
        f.window()->rePaintTree();
        QVERIFY(FakeSdk::groups().size() > 1);
        QCOMPARE(FakeSdk::count("GetGroupList"), FakeSdk::groups().size());
    }

    void repaintLooksAtThePicturesOnce()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::addGroup("more");
        f.build();
        f.window()->rePaintTree();
        QCOMPARE(f.node("Friends")->icon(0).cacheKey(), f.node("more")->icon(0).cacheKey());
        QVERIFY(f.node("more")->icon(0).cacheKey() != f.in().local()->icon(0).cacheKey());
    }

    void clickOnAHeaderIsNoted()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        QHeaderView* header = f.table()->horizontalHeader();
        const QPoint second(header->sectionViewportPosition(1) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, second);
        const TreeNodeData* data = treeNodeData(f.in().local());
        QVERIFY(data->bSorted);
        QCOMPARE(data->iSortColumn, 1);
        QCOMPARE(data->enSortOrder, header->sortIndicatorOrder());
    }

    void columnIsAsWideAsItsTextAndItsAncestorsAsk()
    {
        WindowFixture f;
        const int outer = FakeSdk::addGroup("Outer");
        FakeSdk::addGroup("Inner", outer);
        f.build();
        const QString text(60, 'w');
        QList<QTreeWidgetItem*> nodes{f.in().local(), f.node("Outer"), f.node("Inner")};
        for (int depth = 0; depth < nodes.size(); ++depth) {
            nodes[depth]->setText(0, text);
            f.tree()->setColumnWidth(0, 10);
            f.in().setTreeColumnWidth(nodes[depth]);
            QCOMPARE(f.tree()->columnWidth(0), QtCompat::textWidth(QFontMetrics(nodes[depth]->font(0)), text) +
                                                   (depth + 2) * f.tree()->indentation() + text.length());
        }
    }

    void everyKeyButOneGoesToTheTableAndEachToTheWindow()
    {
        WindowFixture f;
        const QString letters("ABCDEFGHIJKLNPQRTUVWXYZ0123456789"); // S and O are the table's own
        for (const QChar letter : letters)
            FakeSdk::addRecord(4, {QString(letter) + "x"});
        FakeSdk::addRecord(4, {"Mx"});
        f.build();
        const auto press = [&f](int key, const QString& text) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(f.window(), &event);
            return event.isAccepted();
        };
        QStringList wrong;
        for (const QChar letter : letters + "M") {
            f.table()->keyboardSearch(QString()); // each letter begins a search of its own
            f.table()->setCurrentCell(f.rowOf(letter == 'A' ? "Bx" : "Ax"), 0);
            const QString before = f.table()->item(f.table()->currentRow(), 0)->text();
            // The window's base class has the last word, and ignores the key.
            if (press(letter.unicode(), letter.toLower()))
                wrong << QString("%1 not handed on").arg(letter);
            const QString after = f.table()->item(f.table()->currentRow(), 0)->text();
            if (after != (letter == 'M' ? before : QString(letter) + "x"))
                wrong << QString("%1 led to %2").arg(letter, after);
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(", ")));
        f.table()->setCurrentCell(3, 0);
        QVERIFY(!press(Qt::Key_Down, QString()));
        QCOMPARE(f.table()->currentRow(), 4);
        QVERIFY(!press(Qt::Key_Home, QString()));
        QVERIFY(!press(Qt::Key_S, "s")); // taken by the table
        QVERIFY(!press(Qt::Key_O, "o"));
        QVERIFY(!press(Qt::Key_F5, QString()));
    }
};

QTEST_MAIN(FollowTest)
#include "FollowTest.moc"
