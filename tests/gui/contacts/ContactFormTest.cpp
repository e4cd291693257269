#include "ContactsSupport.h"
#include "dialogs/AddrBookNewContactExtendDialog.h"

// New and edit: the form runs, and window, table and siblings follow.
class ContactFormTest : public WindowTest
{
    Q_OBJECT

private:
    static void search(const WindowFixture& f, const QString& text)
    {
        f.window()->OnShowHideSearchBox();
        f.in().searchBox()->setText(text);
        f.window()->OnTextEdited(text);
        QVERIFY(f.waitRead());
    }

private slots:
    // ---- New -----------------------------------------------------------------------------------------------------

    void newContactGoesToTheMemoryOfTheCurrentNode_data()
    {
        QTest::addColumn<int>("memory");
        QTest::newRow("PC") << 4;
        QTest::newRow("card") << 0;
        QTest::newRow("device") << 1;
    }
    void newContactGoesToTheMemoryOfTheCurrentNode()
    {
        QFETCH(int, memory);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(memory == 4 ? f.in().local() : memory == 0 ? f.in().sim() : f.in().device());
        const int before = f.table()->rowCount();
        FakeCore::clearNotices();
        FormUser user("Abel", "12345");
        f.window()->OnButtonClickedNewContact();

        QCOMPARE(user.forms(), 1);
        QCOMPARE(user.title(), QString("IDS_ADD_RECORD_INFO"));
        QCOMPARE(user.parentOfForm(), static_cast<QWidget*>(f.window()));
        QCOMPARE(user.firstName(), QString());
        QCOMPARE(FakeSdk::recordIds(memory).size(), before + 1);
        QCOMPARE(FakeSdk::record(memory, FakeSdk::recordIds(memory).last()).mid(0, 2), QStringList({"Abel", "12345"}));
        // The row is there, in its place, selected and current, without a reload.
        QCOMPARE(f.table()->rowCount(), before + 1);
        QCOMPARE(f.rowOf("Abel"), 0);
        QCOMPARE(f.table()->selectedRanges().size(), 1);
        QCOMPARE(f.table()->selectedRanges().first().topRow(), 0);
        QVERIFY(f.table()->isSortingEnabled());
        QVERIFY(f.previewText().contains("Abel"));
        QCOMPARE(Contacts::pushes(), QStringList(QString("288 %1 12345").arg(memory)));
        QVERIFY(FakeCore::messages().isEmpty());
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_ADD);
    }

    void newContactCountsInTheTree()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FormUser user("Abel", "12345");
        f.window()->OnButtonClickedNewContact();
        QVERIFY2(f.in().local()->text(0).endsWith("(4)"), qPrintable(f.in().local()->text(0)));
    }

    void newContactWhileTheTableShowsAGroupAppearsAtOnceInSortOrder()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        QCOMPARE(f.column(0), QStringList({"Anna", "Bert"}));
        AddrBookThread* reader = f.in().reader();
        FormUser user("Aron", "12345");
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(f.column(0), QStringList({"Anna", "Aron", "Bert"}));
        QCOMPARE(f.in().reader(), reader);
        const int group = FakeSdk::groups().first().id;
        QCOMPARE(tableRowData(f.table()->item(1, 0))->iGroupID, group);
        QVERIFY(FakeSdk::members(group).contains(tableRowData(f.table()->item(1, 0))->iRecordID));
        QVERIFY(f.node("Friends(3)") != nullptr);
    }

    void contactThatTheSearchHidesCountsInTheTreeAndGetsNoRow()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        search(f, "ann");
        QCOMPARE(f.column(0), QStringList("Anna"));
        FormUser user("Zoe", "12345");
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(f.column(0), QStringList("Anna"));
        QVERIFY(f.in().local()->text(0).endsWith("(4)"));
        // It is told of all the same.
        QCOMPARE(Contacts::pushes().last(), QString("288 4 12345"));
    }

    void contactThatTheSearchShowsGetsItsRow_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("in the name, other case") << "AB";
        QTest::newRow("in the number") << "234";
        QTest::newRow("in the last column") << "remark";
        QTest::newRow("no text") << "";
    }
    void contactThatTheSearchShowsGetsItsRow()
    {
        QFETCH(QString, text);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        search(f, text);
        FormUser user([](AddrBookEditDlgAccess form) {
            form.name()->setText("Abel");
            form.mobile()->setText("12345");
            form.remarks()->setPlainText("a remark");
            form.ok()->click();
        });
        f.window()->OnButtonClickedNewContact();
        QVERIFY(f.rowOf("Abel") >= 0);
    }

    void searchShownWithoutASearchBoxHidesTheNewRow()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeCore::setToolItems(QList<ToolItem>(), false);
        FakeCore::setCreateToolBarResult(false);
        f.build();
        QVERIFY(f.in().searchBox() == nullptr);
        f.window()->OnShowHideSearchBox();
        QVERIFY(f.in().searchShown());
        FormUser user("Abel", "12345");
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(FakeSdk::recordIds(4).size(), 4);
        QCOMPARE(f.rowOf("Abel"), -1);
    }

    void memoryThatIsStillInitialisingShowsABoxAndNoForm()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::failAlways("GetProfile");
        AddrBookLogic::Instance()->ClearDeviceInfo();
        f.click(f.in().sim());
        FormUser user("Abel", "12345");
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(user.forms(), 0);
        QCOMPARE(FakeCore::messages().size(), 1);
        const FakeCore::Message message = FakeCore::messages().first();
        QCOMPARE(message.icon, QMessageBox::Critical);
        QCOMPARE(message.caption, QString("IDS_ERROR_CAPTION"));
        QCOMPARE(message.text, QString("IDS_INIT_DEV_UNDERWAY"));
        QCOMPARE(message.buttons, QStringList("IDS_OK"));
        QVERIFY(message.flag);
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QCOMPARE(message.parent, static_cast<QWidget*>(f.window()));
    }

    void dismissedFormLeavesEverythingButTheOperation_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<int>("way");
        for (int way = 0; way < 3; ++way) {
            const char* names[] = {"cancel", "close", "escape"};
            QTest::newRow(qPrintable(QString("new, %1").arg(names[way]))) << false << way;
            QTest::newRow(qPrintable(QString("edit, %1").arg(names[way]))) << true << way;
        }
    }
    void dismissedFormLeavesEverythingButTheOperation()
    {
        QFETCH(bool, edit);
        QFETCH(int, way);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({1});
        const QStringList names = f.column(0);
        FakeCore::clearNotices();
        FakeSdk::clearCalls();
        FormUser user([way](AddrBookEditDlgAccess form) {
            form.name()->setText("Changed");
            if (way == 0)
                form.cancel()->click();
            else if (way == 1)
                form.window()->close();
            else
                QTest::keyClick(form.window(), Qt::Key_Escape);
        });
        if (edit)
            f.window()->OnButtonClickedEditContact();
        else
            f.window()->OnButtonClickedNewContact();
        QCOMPARE(user.forms(), 1);
        QCOMPARE(f.column(0), names);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeSdk::record(4, 2).first(), QString("Bert"));
        QCOMPARE(FakeSdk::count("GetLogDirectory"), 0);
        QVERIFY(Contacts::pushes().isEmpty());
        QCOMPARE(f.in().operation(), edit ? ADDRBOOK_OP_EDIT : ADDRBOOK_OP_ADD);
        QCOMPARE(f.table()->currentRow(), 1);
    }

    // ---- Edit ----------------------------------------------------------------------------------------------------

    void editRewritesTheRowInSortOrderAndKeepsItSelected()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        AddrBookThread* reader = f.in().reader();
        FormUser user("Zara", "999");
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.title(), QString("IDS_RECORD_INFO"));
        QCOMPARE(user.firstName(), QString("Anna"));
        QCOMPARE(user.firstNumber(), QString("111"));
        QVERIFY(!user.okAtFirst());
        QCOMPARE(FakeSdk::record(4, 1).mid(0, 2), QStringList({"Zara", "999"}));
        QCOMPARE(f.column(0), QStringList({"Bert", "Carl", "Zara"}));
        QCOMPARE(f.column(1).last(), QString("999"));
        QCOMPARE(f.table()->currentRow(), 2);
        QCOMPARE(f.table()->selectedRanges().first().topRow(), 2);
        QCOMPARE(f.in().reader(), reader);
        QVERIFY(f.previewText().contains("Zara"));
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_EDIT);
    }

    void editTellsTheOldNumbersAndTheNewOnes()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FakeCore::clearNotices();
        FormUser user("Zara", "999");
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(Contacts::pushes(),
                 QStringList({"289 4 111", "289 4 222", "289 4 333", "289 4 999", "289 4 222", "289 4 333"}));
    }

    void editWithoutASelectionDoesNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({});
        FormUser user("Zara", "999");
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.forms(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void editTakesTheFirstOfSeveralSelectedRows()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0, 2});
        FormUser user([](AddrBookEditDlgAccess) {});
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.firstName(), f.table()->selectedItems().first()->text());
    }

    void editOfARecordThatCannotBeReadEndsWithoutAWord_data()
    {
        QTest::addColumn<bool>("gone");
        QTest::newRow("gone") << true;
        QTest::newRow("the read fails") << false;
    }
    void editOfARecordThatCannotBeReadEndsWithoutAWord()
    {
        QFETCH(bool, gone);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        if (gone)
            FakeSdk::removeRecord(4, 1);
        else
            FakeSdk::failAlways("GetAddrRecord");
        FormUser user("Zara", "999");
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.forms(), 0);
        QVERIFY(FakeCore::messages().isEmpty());
    }

    void usageIsNotedBehindANewContactAndInFrontOfAnEditedOne()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeSdk::clearCalls();
        {
            FormUser user("Abel", "12345");
            f.window()->OnButtonClickedNewContact();
        }
        QStringList names = FakeSdk::names();
        QCOMPARE(names.count("GetLogDirectory"), 1);
        QCOMPARE(names.last(), QString("GetLogDirectory"));

        f.selectRows({0});
        FakeSdk::clearCalls();
        FormUser user("Abe", "12345");
        f.window()->OnButtonClickedEditContact();
        names = FakeSdk::names();
        QCOMPARE(names.count("GetLogDirectory"), 1);
        QVERIFY(names.indexOf("GetLogDirectory") > names.indexOf("UpdateAddrRec"));
        QVERIFY(names.indexOf("GetLogDirectory") < names.lastIndexOf("GetGroupList"));
        QVERIFY(names.last() != QString("GetLogDirectory"));
    }

    void rowLeftOverFromACardThatHasGoneIsNotEdited()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        // Card and device have the same fields and a record of the same identifier.
        f.build();
        f.click(f.in().sim());
        f.selectRows({0});
        f.tree()->setCurrentItem(f.in().device());
        f.in().current() = f.in().device();
        // The table was left as it is on purpose: put the card's rows back under the device's node.
        f.window()->OnTreeClicked(f.in().sim());
        QVERIFY(f.waitRead());
        f.selectRows({0});
        {
            const QSignalBlocker quiet(f.tree());
            f.tree()->setCurrentItem(f.in().device());
        }
        FormUser user("Wrong", "1");
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.forms(), 0);
        QCOMPARE(FakeSdk::record(1, 1).first(), QString("Emil"));
    }

    void buttonsOfTheBarOpenTheForm()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({1});
        FormUser user([](AddrBookEditDlgAccess) {});
        f.button(TOOL_EDIT)->click();
        QCOMPARE(user.title(), QString("IDS_RECORD_INFO"));
        QCOMPARE(user.firstName(), QString("Bert"));
        f.button(TOOL_NEW)->click();
        QCOMPARE(user.title(), QString("IDS_ADD_RECORD_INFO"));
        QCOMPARE(user.firstName(), QString());
        QCOMPARE(user.forms(), 2);
    }

    // ---- What happens meanwhile ------------------------------------------------------------------------------------

    void contactSavedWhileAReadRunsLeavesEachRowWhole()
    {
        WindowFixture f;
        for (int i = 60; i > 0; --i)
            FakeSdk::addRecord(4, {QString("n%1").arg(i, 2, 10, QChar('0')), QString::number(1000 + i)});
        f.build();
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 5);
        f.in().current() = nullptr;
        f.window()->OnTreeClicked(f.in().local());
        QTRY_VERIFY(f.table()->rowCount() > 5);
        FormUser user("n00", "1000");
        f.window()->OnButtonClickedNewContact();
        const int atSave = f.table()->rowCount();
        QVERIFY(f.waitRead());
        FakeSdk::setDelay("AddrRecordSet_MoveNext", 0);
        QVERIFY(atSave < f.table()->rowCount());
        QCOMPARE(f.table()->rowCount(), 61);
        for (int row = 0; row < 61; ++row) {
            QCOMPARE(f.column(0).at(row), QString("n%1").arg(row, 2, 10, QChar('0')));
            QCOMPARE(f.column(1).at(row), QString::number(1000 + row));
        }
    }

    void windowThatGoesWhileTheFormIsOpenIsNotTouchedAgain_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::newRow("new") << false;
        QTest::newRow("edit") << true;
    }
    void windowThatGoesWhileTheFormIsOpenIsNotTouchedAgain()
    {
        QFETCH(bool, edit);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FormUser user([&f](AddrBookEditDlgAccess form) {
            form.name()->setText("Changed");
            f.destroy();
        });
        if (edit)
            f.window()->OnButtonClickedEditContact();
        else
            f.window()->OnButtonClickedNewContact();
        QVERIFY(f.window() == nullptr);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeSdk::record(4, 1).first(), QString("Anna"));
    }

    void cardThatGoesWhileTheFormIsOpenLeavesTheTableOnThePc()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        FormUser user([&f](AddrBookEditDlgAccess form) {
            FakeSdk::setDevicePresent(false);
            f.window()->OnDeviceStatusChanged(false);
            form.name()->setText("Abel");
            form.mobile()->setText("1");
            form.ok()->click();
        });
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
        QVERIFY(f.waitRead());
        QCOMPARE(f.column(0), QStringList({"Anna", "Bert", "Carl"}));
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    void batchThatEndsWhileTheFormIsOpenLosesNoContact()
    {
        WindowFixture f;
        Contacts::fill(4, "Name", 6);
        f.build();
        f.selectRows({0, 1, 2, 3});
        FormUser user([&f](AddrBookEditDlgAccess form) {
            QVERIFY(Contacts::waitBatch(f));
            form.name()->setText("Abel");
            form.mobile()->setText("12345");
            form.ok()->click();
        });
        Contacts::atRecord("DelAddrRec", 2, [&f] {
            Contacts::cancelButton()->click();
            f.window()->OnButtonClickedNewContact();
        });
        f.window()->OnButtonClickedDeleteContact();
        QTRY_COMPARE(user.forms(), 1);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::recordIds(4).size(), 5);
        QCOMPARE(f.rowOf("Abel"), 0);
        QCOMPARE(f.table()->rowCount(), 5);
        QCOMPARE(Contacts::pushes().last(), QString("288 4 12345"));
    }
};

QTEST_MAIN(ContactFormTest)
#include "ContactFormTest.moc"
