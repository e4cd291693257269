#include "../contacts/ContactsSupport.h"
#include "CopyFixture.h"

// A table that is read anew keeps the keys that the old one had.
class TableFocusTest : public WindowTest
{
    Q_OBJECT

private:
    static void focus(const WindowFixture& f, QWidget* widget)
    {
        QApplication::setActiveWindow(f.window());
        widget->setFocus();
        QTRY_VERIFY(widget->hasFocus());
    }

private slots:
    void reloadGivesTheNewTableTheFocusOfTheOld_data()
    {
        QTest::addColumn<bool>("ofTheTable");
        QTest::newRow("table") << true;
        QTest::newRow("tree") << false;
    }
    void reloadGivesTheNewTableTheFocusOfTheOld()
    {
        QFETCH(bool, ofTheTable);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        focus(f, ofTheTable ? static_cast<QWidget*>(f.table()) : f.tree());
        const AddrBookTableWidget* before = f.table();
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
        QVERIFY(f.table() != before);
        QCOMPARE(f.window()->focusWidget(), ofTheTable ? static_cast<QWidget*>(f.table()) : f.tree());
        QVERIFY(f.waitRead());
    }

    void secondDeleteKeyAsksForNoGroup()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        focus(f, f.table());
        f.selectRows({0});
        f.window()->OnShortKeyDel();
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(f.window()->focusWidget(), static_cast<QWidget*>(f.table()));
        QApplication::setActiveWindow(f.window());
        f.window()->OnShortKeyDel();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_FLEXIT_UI_DELETE_ITEM"));
        QCOMPARE(FakeSdk::groups().size(), 1);
    }

    void toolButtonGivesTheFocusBackToTheTable_data()
    {
        QTest::addColumn<bool>("twice");
        QTest::newRow("once") << false;
        QTest::newRow("twice in a row") << true;
    }
    void toolButtonGivesTheFocusBackToTheTable()
    {
        QFETCH(bool, twice);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        focus(f, f.table());
        f.selectRows({0});
        if (twice) {
            FakeCore::answer(QMessageBox::Cancel);
            f.window()->OnTBBtnClicked(TOOL_DELETE);
        }
        f.window()->OnTBBtnClicked(TOOL_DELETE);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(f.table()->rowCount(), 2);
        QCOMPARE(f.window()->focusWidget(), static_cast<QWidget*>(f.table()));
    }

    void toolButtonTakesNoFocusFromTheTree()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        focus(f, f.tree());
        f.selectRows({0});
        f.window()->OnTBBtnClicked(TOOL_DELETE);
        QVERIFY(Contacts::waitBatch(f));
        QVERIFY(f.window()->focusWidget() != f.table());
    }

    void dropLeavesTheFocusInTheTable()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        f.build();
        const std::unique_ptr<QMimeData> rows = f.take(f.in().local(), {"Carl"});
        focus(f, f.table());
        QVERIFY(f.hover(*rows, f.node("Friends")));
        f.release(*rows, f.node("Friends"));
        QVERIFY(f.waitDone());
        QCOMPARE(f.window()->focusWidget(), static_cast<QWidget*>(f.table()));
    }

    void importLeavesTheFocusInTheTable()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        focus(f, f.table());
        f.in().memory() = PB_MEM_LOCAL;
        f.in().setOperation(ADDRBOOK_OP_IMPORT);
        f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(4, "New", 3), 0);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(f.table()->rowCount(), 6);
        QCOMPARE(f.window()->focusWidget(), static_cast<QWidget*>(f.table()));
        FakeCore::clearMessages();
    }
};

QTEST_MAIN(TableFocusTest)
#include "TableFocusTest.moc"
