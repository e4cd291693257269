#include "BatchFixture.h"

// A batch and the contact forms, a number saved by a sibling among them: each works on its own memory, its own record
// and its own announcements.
class BatchFormsTest : public WindowTest
{
    Q_OBJECT

private:
    // Three contacts on the card, all selected, and their deletion held at the nth.
    static void startDelete(BatchFixture& f, int nth)
    {
        Contacts::fill(0, "Card", 3);
        FakeSdk::addRecord(4, {"Anna", "111"});
        f.build();
        f.click(f.in().sim());
        Contacts::selectAll(f);
        FakeCore::clearNotices();
        f.held = std::make_unique<Held>("DelAddrRec", nth);
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(f.held->wait());
    }

    // The form that is open above another one.
    static AddrBookEditDlgAccess formAbove(const AddrBookEditDlgAccess& below)
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            AddrBookEditDlg* dialog = qobject_cast<AddrBookEditDlg*>(widget);
            if (dialog == nullptr || dialog == below.d)
                continue;
            const AddrBookEditDlgAccess form{dialog};
            if (form.window() != nullptr && form.window()->isVisible())
                return form;
        }
        return AddrBookEditDlgAccess{nullptr};
    }

private slots:
    void endOfABatchIsToldUnderAnOpenForm_data()
    {
        QTest::addColumn<bool>("import");
        QTest::newRow("import") << true;
        QTest::newRow("copy") << false;
    }
    void endOfABatchIsToldUnderAnOpenForm()
    {
        QFETCH(bool, import);
        BatchFixture f;
        BatchFixture::fillLocal();
        f.build();
        if (import)
            f.cancelledImport(3);
        else
            f.cancelledCopy();
        FormUser user([&f](AddrBookEditDlgAccess form) {
            f.letEnd();
            form.cancel()->click();
        });
        f.window()->OnButtonClickedNewContact();
        QCOMPARE(user.forms(), 1);
        QCOMPARE(FakeCore::messageTexts(),
                 QStringList(import ? BatchFixture::imported(3, 1) : BatchFixture::copied(4, 1)));
    }

    void numberSavedMeanwhileLeavesABatchItsMemoryItsNoticesAndItsFigures()
    {
        BatchFixture f;
        startDelete(f, 1);
        FormUser user("Abel", "999");
        f.window()->SaveNumberToAddrBook("999", nullptr);
        QCOMPARE(user.forms(), 1);
        const int local = f.in().localUsed();
        f.letEnd();
        QVERIFY(FakeSdk::recordIds(0).isEmpty());
        QStringList pushes = Contacts::pushes();
        pushes.sort();
        QCOMPARE(pushes, QStringList({"288 4 999", "290 0 1001", "290 0 1002", "290 0 1003"}));
        QCOMPARE(f.in().simUsed(), 0);
        QCOMPARE(f.in().localUsed(), local);
    }

    void numberSavedMeanwhileLeavesABatchToBeCancelledByItsCard()
    {
        BatchFixture f;
        startDelete(f, 1);
        FormUser user("Abel", "999");
        f.window()->SaveNumberToAddrBook("999", nullptr);
        f.window()->OnSimDisabled(true);
        QVERIFY(WindowFixture::waiting() == nullptr);
        f.letEnd();
        QCOMPARE(FakeSdk::recordIds(0).size(), 2);
    }

    void numberSavedMeanwhileLeavesACopyItsMessage()
    {
        BatchFixture f;
        BatchFixture::fillLocal();
        f.build();
        f.held = std::make_unique<Held>("AddAddrRec", 1);
        QVERIFY(f.drop(f.in().local(), BatchFixture::ones(), f.in().sim()));
        QVERIFY(f.held->wait());
        FormUser user("Abel", "999");
        f.window()->SaveNumberToAddrBook("999", nullptr);
        f.letEnd();
        QCOMPARE(CopyFixture::stored(0).size(), 4);
        QCOMPARE(FakeCore::messageTexts(), QStringList(BatchFixture::copied(4, 4)));
    }

    void editAnnouncesItsOwnContactThoughANumberWasSavedMeanwhile()
    {
        BatchFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({f.rowOf("Bert")});
        FakeCore::clearNotices();
        int saved = 0;
        FormUser user([&](AddrBookEditDlgAccess form) {
            // The sibling's form is above this one by then; its own user takes it from here.
            if (saved++ > 0)
                return;
            QTimer::singleShot(0, qApp, [&form] {
                QTRY_VERIFY(formAbove(form).d != nullptr);
                const AddrBookEditDlgAccess above = formAbove(form);
                above.name()->setText("Abel");
                above.ok()->click();
            });
            f.window()->SaveNumberToAddrBook("999", nullptr);
            form.mobile()->setText("445");
            form.ok()->click();
        });
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(FakeSdk::record(4, 2).mid(0, 2), QStringList({"Bert", "445"}));
        QCOMPARE(FakeSdk::record(4, 4).mid(0, 2), QStringList({"Abel", "999"}));
        QCOMPARE(Contacts::pushes(), QStringList({"288 4 999", "289 4 444", "289 4 445"}));
    }

    void questionIsAnsweredForTheMemoryThatItWasAskedFor()
    {
        BatchFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        f.selectRows({0});
        FormUser user("Abel", "999");
        FakeCore::onMessage([&f](const FakeCore::Message& message) {
            if (message.text == "IDS_FLEXIT_UI_DELETE_ITEM")
                f.window()->SaveNumberToAddrBook("999", nullptr);
        });
        f.window()->OnButtonClickedDeleteContact();
        QVERIFY(Contacts::waitBatch(f));
        FakeCore::onMessage(nullptr);
        QVERIFY(FakeSdk::recordIds(0).isEmpty());
        QCOMPARE(FakeSdk::recordIds(4).size(), 4);
    }
};

QTEST_MAIN(BatchFormsTest)
#include "BatchFormsTest.moc"
