#include "SelectSupport.h"

#include <QToolTip>

// The window around the tree: how it looks, and how it ends while the tree still fills.
class SelectWindowTest : public SelectTest
{
    Q_OBJECT

    // Enough records, slowly read, for the user to act in the middle.
    static void slowPhonebook()
    {
        for (int i = 0; i < 20; ++i)
            FakeSdk::addRecord(4, {QString("Local %1").arg(i), QString::number(i)});
        FakeSdk::setDelay("AddrRecordSet_GetID", 2);
    }

private slots:
    void namesSizesAndLayouts_data()
    {
        QTest::addColumn<bool>("multi");
        QTest::newRow("multi") << true;
        QTest::newRow("single") << false;
    }
    void namesSizesAndLayouts()
    {
        QFETCH(bool, multi);
        QWidget mainWindow;
        FakeCore::setMainWindow(&mainWindow);
        Picker picker(multi);
        ExtendDialog* window = picker.access.window();
        QVERIFY(window->parentWidget() == &mainWindow);
        QCOMPARE(window->size(), multi ? QSize(315, 438) : QSize(320, 405));
        QCOMPARE(window->minimumSize(), window->maximumSize());
        QCOMPARE(window->windowModality(), Qt::WindowModal);
        QCOMPARE(window->windowTitle(), QString("IDS_ADDR_NUMDLG_TITLE"));
        QCOMPARE(FakeCore::content(window), picker.access.content());
        QCOMPARE(picker.access.tree()->objectName(), QString("AddrBookUIPlugin_selectContacts_treeContacts"));
        QCOMPARE(picker.access.ok()->objectName(), QString("AddrBookUIPlugin_selectContacts_buttonOK"));
        QCOMPARE(picker.access.cancel()->objectName(), QString("AddrBookUIPlugin_selectContacts_buttonCancel"));
        QCOMPARE(picker.access.left()->objectName(), QString("AddrBookUIPlugin_selectContacts_vlayoutLeft"));
        QCOMPARE(picker.access.main()->objectName(), QString("AddrBookUIPlugin_selectContacts_hlayoutMain"));
        QCOMPARE(picker.access.buttons()->objectName(), QString("AddrBookUIPlugin_selectContacts_hlayoutButtons"));
        QCOMPARE(picker.access.ok()->text(), QString("IDS_BUTTON_OK"));
        QCOMPARE(picker.access.cancel()->text(), QString("IDS_BUTTON_CANCEL"));
        QCOMPARE(picker.access.buttons()->spacing(), multi ? 40 : 8);
        QCOMPARE(picker.access.buttons()->stretch(0), 0);
        QVERIFY(picker.access.buttons()->itemAt(0)->spacerItem() != nullptr);
        QCOMPARE(picker.access.left()->itemAt(1)->spacerItem()->sizeHint().height(), multi ? 7 : 5);
        QCOMPARE(picker.access.main()->contentsMargins(), QMargins(14, 14, 14, 14));
        QCOMPARE(picker.access.tree()->minimumWidth(), 287);
        QVERIFY(picker.access.tree()->expandsOnDoubleClick());
        QCOMPARE(picker.access.tree()->selectionBehavior(), QAbstractItemView::SelectItems);
        QCOMPARE(picker.access.content()->cursor().shape(), Qt::WaitCursor);
        QVERIFY(picker.waitFilled());
        QCOMPARE(picker.access.content()->cursor().shape(), Qt::ArrowCursor);
        FakeCore::setMainWindow(nullptr);
        picker.dialog.reset();
    }

    void theObjectItselfIsNeverShown()
    {
        QWidget mainWindow;
        FakeCore::setMainWindow(&mainWindow);
        Picker picker;
        picker.run([] { return true; },
                   [&] {
                       QVERIFY(picker.access.window()->isVisible());
                       QVERIFY(!picker.dialog->isVisible());
                       QVERIFY(picker.dialog->parentWidget() == &mainWindow);
                       picker.access.window()->close();
                   });
        QVERIFY(!picker.dialog->GetButtonClicked());
        picker.dialog.reset();
    }

    void okWhileTheTreeFillsEndsTheDialogAtOnce()
    {
        slowPhonebook();
        Picker picker(true, {"999"});
        picker.run([&] { return picker.access.threads() > 0; }, [&] { picker.access.ok()->click(); });
        QVERIFY(!picker.access.filled());
        QVERIFY(picker.dialog->GetButtonClicked());
        // The caller's numbers have not been applied yet.
        QList<QString> numbers{"999"};
        picker.dialog->GetRecords(numbers);
        QVERIFY(numbers.isEmpty());
    }

    void cancelWhileTheTreeFillsEndsTheDialogAtOnce()
    {
        slowPhonebook();
        Picker picker;
        picker.run([&] { return picker.access.threads() > 0; }, [&] { picker.access.cancel()->click(); });
        QVERIFY(!picker.access.filled());
        QVERIFY(!picker.dialog->GetButtonClicked());
    }

    void theCloseControlCountsAsCancel()
    {
        Picker picker;
        picker.run([&] { return picker.access.filled(); }, [&] { picker.access.window()->close(); });
        QVERIFY(!picker.dialog->GetButtonClicked());
        QList<QString> numbers{"kept"};
        picker.dialog->GetRecords(numbers);
        QCOMPARE(numbers, QList<QString>{"kept"});
    }

    void cancelAfterOkTakesTheAnswerBack()
    {
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.dialog->OnOKButtonClicked();
        QVERIFY(picker.dialog->GetButtonClicked());
        picker.dialog->OnCancelButtonClicked();
        QVERIFY(!picker.dialog->GetButtonClicked());
    }

    void escapeCountsAsCancel()
    {
        Picker picker;
        picker.run([&] { return picker.access.filled(); },
                   [&] { QTest::keyClick(picker.access.window(), Qt::Key_Escape); });
        QVERIFY(!picker.dialog->GetButtonClicked());
    }

    void theSpaceBarTicksLikeAClick()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker;
        picker.run([&] { return picker.access.filled(); },
                   [&] {
                       picker.access.tree()->setCurrentItem(picker.item({"PC", "Ada"}));
                       QTest::keyClick(picker.access.tree(), Qt::Key_Space);
                       QCOMPARE(picker.lines(true), (QStringList{"*PC(1)", " *Ada", "  *m 111", "  *o 222"}));
                       picker.access.tree()->setCurrentItem(picker.item({"PC", "Ada", "m 111"}));
                       QTest::keyClick(picker.access.tree(), Qt::Key_Space);
                       picker.access.ok()->click();
                   });
        QCOMPARE(picker.result(), QStringList("222"));
    }

    void aMouseClickOnTheBoxTicks()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        Picker picker;
        picker.run([&] { return picker.access.filled(); },
                   [&] {
                       QTreeWidget* tree = picker.access.tree();
                       QTreeWidgetItem* ada = picker.item({"PC", "Ada"});
                       const QRect rect = tree->visualItemRect(ada);
                       QStyleOptionViewItem option;
                       option.initFrom(tree);
                       option.rect = rect;
                       option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
                       option.text = ada->text(0);
                       const QRect box =
                           tree->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, tree);
                       QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
                       QVERIFY(Picker::ticked(ada));
                       QCOMPARE(picker.chosen(), QStringList("111"));
                       QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
                       QVERIFY(!Picker::ticked(ada));
                       QVERIFY(picker.chosen().isEmpty());
                       picker.access.ok()->click();
                   });
    }

    void aNodesToolTipIsItsWholeText()
    {
        FakeSdk::addRecord(4, {QString(300, 'W'), "111"});
        Picker picker;
        picker.run([&] { return picker.access.filled(); },
                   [&] {
                       QTreeWidget* tree = picker.access.tree();
                       const QRect rect = tree->visualItemRect(picker.access.localNode()->child(0));
                       const QPoint position(40, rect.center().y());
                       QHelpEvent over(QEvent::ToolTip, position, tree->viewport()->mapToGlobal(position));
                       QApplication::sendEvent(tree->viewport(), &over);
                       QCOMPARE(QToolTip::text(), QString(300, 'W'));
                       const QPoint below(5, tree->viewport()->height() - 2);
                       QHelpEvent beside(QEvent::ToolTip, below, tree->viewport()->mapToGlobal(below));
                       QApplication::sendEvent(tree->viewport(), &beside);
                       QTRY_VERIFY(!QToolTip::isVisible());
                       picker.access.cancel()->click();
                   });
    }

    void tabGoesFromTheTreeToOkAndCancel()
    {
        Picker picker;
        picker.run([&] { return picker.access.filled(); },
                   [&] {
                       ExtendDialog* window = picker.access.window();
                       picker.access.tree()->setFocus();
                       QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
                       QVERIFY(window->focusWidget() == picker.access.ok());
                       QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
                       QVERIFY(window->focusWidget() == picker.access.cancel());
                       picker.access.cancel()->click();
                   });
    }

    void theMainWindowMayGoWithTheDialogOpen()
    {
        auto* mainWindow = new QWidget;
        FakeCore::setMainWindow(mainWindow);
        slowPhonebook();
        auto* dialog = new AddrBookSelectContactsDlg;
        const QPointer<AddrBookSelectContactsDlg> guard(dialog);
        dialog->InitDlg(nullptr, AddrBookLogic::Instance(), true, FIELD_TYPE_DEFAULT, QList<QString>());
        QTimer::singleShot(0, qApp, [&] { delete mainWindow; });
        dialog->Exec();
        QVERIFY(guard.isNull()); // it had become the window's child
        FakeCore::setMainWindow(nullptr);
    }

    void withoutALogicObjectTheWindowStandsAndFillsNothing()
    {
        FakeSdk::addRecord(4, {"Ada", "111"});
        AddrBookSelectContactsDlg dialog;
        AddrBookSelectContactsDlgAccess access(dialog);
        dialog.InitDlg(nullptr, nullptr, true, FIELD_TYPE_DEFAULT, QList<QString>{"1"});
        QTRY_COMPARE(access.content()->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(access.tree()->topLevelItemCount(), 1);
        QCOMPARE(access.localNode()->text(0), QString());
    }

    void aDialogNeverBuiltDoesNothing()
    {
        AddrBookSelectContactsDlg dialog;
        dialog.Exec();
        dialog.SetLanguage();
        QCOMPARE(dialog.tr(QString("IDS_SIM")), QString("Card"));
        dialog.OnOKButtonClicked();
        QList<QString> numbers{"kept"};
        dialog.GetRecords(numbers);
        QCOMPARE(numbers, QList<QString>{"kept"});
        dialog.OnTreeClicked(nullptr);
        dialog.SetPrerecordSet(true, numbers);
        dialog.SetInitialPrerecordSet(true, numbers);
        dialog.OnSimStatusChanged(true);
        dialog.OnDeviceStatusChanged(false);
        dialog.OnAddrBookSimReady();
        dialog.OnAddrBookDeviceReady();
        dialog.OnContactsReadFinished();
    }
};

QTEST_MAIN(SelectWindowTest)
#include "SelectWindowTest.moc"
