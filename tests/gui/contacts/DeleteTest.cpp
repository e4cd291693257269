#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>

#include "ContactsSupport.h"

// Delete and remove from a group, from the user's order to the end of the batch.
class DeleteTest : public WindowTest
{
    Q_OBJECT

private:
    // The identifiers of the worker's calls, in their order.
    static QStringList calls(const QString& name)
    {
        QStringList list;
        for (const FakeSdk::Call& call : FakeSdk::calls()) {
            if (call.name == name.toLatin1())
                list << call.arguments.join(",");
        }
        return list;
    }

private slots:
    void deleteAsksFirst()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0, 1});
        FakeCore::answer(QMessageBox::Cancel);
        f.window()->OnButtonClickedDeleteContact();
        QCOMPARE(FakeCore::messages().size(), 1);
        const FakeCore::Message message = FakeCore::messages().first();
        QCOMPARE(message.icon, QMessageBox::Question);
        QCOMPARE(message.parent, static_cast<QWidget*>(f.window()));
        QCOMPARE(message.caption, QString("IDS_PROMPT_CAPTION"));
        QCOMPARE(message.text, QString("IDS_FLEXIT_UI_DELETE_ITEM"));
        QCOMPARE(message.buttons, QStringList({"IDS_OK", "IDS_CANCEL"}));
        QVERIFY(!message.flag);
        QVERIFY(message.modal);
        QCOMPARE(message.windowFlags, Qt::WindowFlags(Qt::WindowCloseButtonHint));
        QVERIFY(!f.in().threadBusy());
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(f.table()->selectedItems().size(), 2 * f.table()->columnCount());
    }

    void anyOtherAnswerThanOkDeletesNothing_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("cancel") << int(QMessageBox::Cancel);
        QTest::newRow("close button") << 0;
        QTest::newRow("yes") << int(QMessageBox::Yes);
        QTest::newRow("error") << -1;
    }
    void anyOtherAnswerThanOkDeletesNothing()
    {
        QFETCH(int, answer);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FakeCore::answer(answer);
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(!f.in().threadBusy());
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    void confirmedItDeletesTheSelectionBehindTheProgressWindow()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0, 1});
        FakeCore::clearNotices();
        QString status;
        QStringList counter;
        Qt::WindowModality modality = Qt::NonModal;
        QWidget* parent = nullptr;
        int steps = 0;
        for (int nth = 1; nth <= 2; ++nth) {
            Contacts::atRecord("DelAddrRec", nth, [&] {
                ABWaitingDlg* window = Contacts::waitingWindow();
                QVERIFY(window != nullptr && window->isVisible());
                const QList<QLabel*> labels = window->findChildren<QLabel*>();
                for (QLabel* label : labels) {
                    if (label->text().contains('/'))
                        counter << label->text();
                    else if (!label->text().isEmpty())
                        status = label->text();
                }
                modality = window->windowModality();
                parent = window->parentWidget();
                steps = window->findChild<QProgressBar*>()->maximum();
            });
        }
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(f.in().threadBusy());
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_DELETE);
        QVERIFY(Contacts::waitBatch(f));

        QCOMPARE(status, QString("IDS_DELETE_STATUS"));
        QCOMPARE(counter, QStringList({"0/2", "1/2"}));
        QCOMPARE(modality, Qt::WindowModal);
        QCOMPARE(parent, static_cast<QWidget*>(f.window()));
        QCOMPARE(steps, 2);
        QCOMPARE(FakeSdk::recordIds(4), QList<int>({3}));
        QCOMPARE(f.column(0), QStringList("Carl"));
        QVERIFY(f.in().local()->text(0).endsWith("(1)"));
        QVERIFY(f.node("Friends(0)") != nullptr);
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_NONE);
        QVERIFY(f.in().waitingDialog().isNull());
        // Each number of each contact; no message at the end.
        QStringList pushes = Contacts::pushes();
        pushes.sort();
        QCOMPARE(pushes, QStringList({"290 4 111", "290 4 222", "290 4 333", "290 4 444"}));
        QCOMPARE(FakeCore::messages().size(), 1);
    }

    void lastRangeOfTheSelectionGoesFirst()
    {
        WindowFixture f;
        Contacts::fill(4, "Name", 9);
        f.build();
        const int lastColumn = f.table()->columnCount() - 1;
        f.table()->setRangeSelected(QTableWidgetSelectionRange(1, 0, 2, lastColumn), true);
        f.table()->setRangeSelected(QTableWidgetSelectionRange(5, 0, 7, lastColumn), true);
        const QList<QTableWidgetSelectionRange> ranges = f.table()->selectedRanges();
        QCOMPARE(ranges.size(), 2);
        QStringList expected;
        for (int i = 1; i >= 0; --i) {
            for (int row = ranges.at(i).topRow(); row <= ranges.at(i).bottomRow(); ++row)
                expected << QString("%1,4").arg(tableRowData(f.table()->item(row, 0))->iRecordID);
        }
        QCOMPARE(expected.size(), 5);
        FakeSdk::clearCalls();
        f.window()->handleMultipleContact(ADDRBOOK_OP_DELETE);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(calls("DelAddrRec"), expected);
    }

    void removalFromAGroupAsksNothingAndKeepsTheContacts()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        Contacts::selectAll(f);
        FakeCore::clearNotices();
        QString status;
        Contacts::atRecord("DelAddrFromGroup", 1, [&] {
            for (QLabel* label : Contacts::waitingWindow()->findChildren<QLabel*>()) {
                if (label->text().startsWith("IDS"))
                    status = label->text();
            }
        });
        f.window()->OnRemoveFromGroupClicked();
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(status, QString("IDS_DELETE_STATUS"));
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(FakeSdk::members(FakeSdk::groups().first().id).isEmpty());
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(f.table()->rowCount(), 0);
        QVERIFY(f.node("Friends(0)") != nullptr);
        // The contacts are still there, so nobody is told.
        QVERIFY(Contacts::pushes().isEmpty());
    }

    void emptySelectionLeavesTheTableListening()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({});
        AddrBookTableWidget* table = f.table();
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(!f.in().threadBusy());
        QVERIFY(Contacts::waitingWindow() == nullptr);
        QCOMPARE(f.table(), table);
        f.selectRows({0});
        QVERIFY(f.button(TOOL_EDIT)->isEnabled());
    }

    void tableIsDeafWhileTheBatchRunsAndListensAgainBehindIt()
    {
        WindowFixture f;
        Contacts::fill(4, "Name", 3);
        f.build();
        f.selectRows({0, 1});
        FormUser user([](AddrBookEditDlgAccess) {});
        int before = -1;
        Contacts::atRecord("DelAddrRec", 1, [&] {
            QMetaObject::invokeMethod(f.table(), "newContact");
            QMetaObject::invokeMethod(f.table(), "deleteContact");
            before = user.forms();
        });
        f.window()->handleMultipleContact(ADDRBOOK_OP_DELETE);
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(before, 0);
        QVERIFY(FakeCore::messages().isEmpty());
        // Once, not twice.
        QMetaObject::invokeMethod(f.table(), "newContact");
        QCOMPARE(user.forms(), 1);
        FakeCore::answer(QMessageBox::Cancel);
        QMetaObject::invokeMethod(f.table(), "deleteContact");
        QCOMPARE(FakeCore::messages().size(), 1);
    }

    void memoryWhoseNodeHasLeftTheTreeLeavesTheTableDeaf()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        f.selectRows({0});
        f.in().memory() = PB_MEM_SIM;
        QTreeWidgetItem* node = f.in().sim();
        QTreeWidgetItem* root = f.tree()->invisibleRootItem();
        AddrBookTableWidget* table = f.table();
        {
            const QSignalBlocker quiet(f.tree());
            root->takeChild(root->indexOfChild(node));
        }
        f.window()->handleMultipleContact(ADDRBOOK_OP_DELETE);
        QVERIFY(!f.in().threadBusy());
        QCOMPARE(FakeSdk::recordIds(0).size(), 1);
        QCOMPARE(f.table(), table);
        QMetaObject::invokeMethod(table, "deleteContact");
        QVERIFY(FakeCore::messages().isEmpty());
        root->addChild(node);
    }

    void cardThatGoesDuringTheQuestionDeletesNothing_data()
    {
        QTest::addColumn<bool>("whole");
        QTest::newRow("device pulled out") << true;
        QTest::newRow("card alone") << false;
    }
    void cardThatGoesDuringTheQuestionDeletesNothing()
    {
        QFETCH(bool, whole);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnSimStatusChanged(true);
        f.click(f.in().sim());
        f.selectRows({0});
        FakeCore::onMessage([&f, whole](const FakeCore::Message&) {
            if (whole) {
                FakeSdk::setDevicePresent(false);
                f.window()->OnDeviceStatusChanged(false);
            } else {
                FakeSdk::setCardPresent(false);
                f.window()->OnSimStatusChanged(false);
            }
        });
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        FakeCore::onMessage(nullptr);
        QCOMPARE(FakeSdk::recordIds(0).size(), 1);
        QCOMPARE(FakeSdk::recordIds(1).size(), 2);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    void rowsLeftOverFromACardThatHasGoneDeleteNobodyElse()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.window()->OnSimStatusChanged(true);
        f.click(f.in().sim());
        QCOMPARE(f.column(0), QStringList("Dora"));
        f.window()->OnSimStatusChanged(false);
        // The table still shows the card's row under another memory's node.
        QCOMPARE(f.column(0), QStringList("Dora"));
        f.selectRows({0});
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        QCOMPARE(FakeSdk::recordIds(1).size(), 2);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeSdk::recordIds(0).size(), 1);
    }

    void rowWithoutDataDeletesNobody()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        // The contact edited last is not the one selected.
        f.selectRows({2});
        {
            FormUser user([](AddrBookEditDlgAccess form) { form.cancel()->click(); });
            f.window()->OnButtonClickedEditContact();
        }
        f.selectRows({0, 1});
        TableRowData* data = tableRowData(f.table()->item(0, 0));
        f.table()->item(0, 0)->setData(Qt::UserRole, QVariant());
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        delete data;
        QCOMPARE(FakeSdk::recordIds(4), QList<int>({1, 3}));
    }

    void windowThatGoesDuringTheQuestionIsNotTouchedAgain()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FakeCore::onMessage([&f](const FakeCore::Message&) { f.destroy(); });
        f.window()->OnButtonClickedDeleteContact();
        FakeCore::onMessage(nullptr);
        QVERIFY(f.window() == nullptr);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }

    void recordOfARowIsReadAnew()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        AddrBookRecord record;
        record.iID = 77;
        record.lstValues << "old";
        f.window()->getContactInfoFromSDK(nullptr, record);
        QCOMPARE(record.iID, 77);
        QVERIFY(record.lstValues.isEmpty());
        f.window()->getContactInfoFromSDK(f.table()->item(0, 1), record);
        QCOMPARE(record.iID, 1);
        // A line feed is a blank in the cell alone.
        QCOMPARE(record.lstValues.last(), QString("first\nsecond"));
        FakeSdk::failAlways("GetAddrRecord");
        f.window()->getContactInfoFromSDK(f.table()->item(1, 0), record);
        QCOMPARE(record.iID, 2);
        QVERIFY(record.lstValues.isEmpty());
    }
};

QTEST_MAIN(DeleteTest)
#include "DeleteTest.moc"
