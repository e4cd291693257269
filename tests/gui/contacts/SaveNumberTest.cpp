#include "ContactsSupport.h"
#include "dialogs/AddrBookNewContactExtendDialog.h"

// A sibling's number, saved to the PC's phonebook.
class SaveNumberTest : public WindowTest
{
    Q_OBJECT

private slots:
    void formOpensWithTheNumberAndCanBeSavedAtOnce()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        FakeCore::clearNotices();
        FakeSdk::clearCalls();
        FormUser user([](AddrBookEditDlgAccess form) { form.ok()->click(); });
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", nullptr), 1);
        QCOMPARE(user.forms(), 1);
        QCOMPARE(user.title(), QString("IDS_ADD_RECORD_INFO"));
        QCOMPARE(user.firstName(), QString());
        QCOMPARE(user.firstNumber(), QString("0123"));
        QVERIFY(user.okAtFirst());
        QCOMPARE(user.parentOfForm(), static_cast<QWidget*>(f.window()));
        QCOMPARE(FakeSdk::record(4, 4), QStringList({"", "0123", "", "", "", ""}));
        QCOMPARE(f.column(1).count("0123"), 1);
        QCOMPARE(Contacts::pushes(), QStringList("288 4 123"));
        // This way in notes no usage.
        QCOMPARE(FakeSdk::count("GetLogDirectory"), 0);
    }

    void formStandsAboveTheSiblingsWindow()
    {
        WindowFixture f;
        f.build();
        QWidget sibling;
        sibling.show();
        FormUser user([](AddrBookEditDlgAccess) {});
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", &sibling), 1);
        QCOMPARE(user.parentOfForm(), &sibling);
    }

    void withTheCardCurrentTheNumberGoesToThePcAndTheTableStays()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.in().sim());
        AddrBookThread* reader = f.in().reader();
        FormUser user("Abel", "0123");
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", nullptr), 1);
        QCOMPARE(FakeSdk::recordIds(4).size(), 4);
        QCOMPARE(FakeSdk::recordIds(0).size(), 1);
        QCOMPARE(f.column(0), QStringList("Dora"));
        QCOMPARE(f.in().reader(), reader);
        QVERIFY(f.in().local()->text(0).endsWith("(4)"));
        // It appears when the PC's node is opened.
        f.click(f.in().local());
        QCOMPARE(f.rowOf("Abel"), 0);
    }

    void withAGroupCurrentTheNumberJoinsTheGroup()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.click(f.node("Friends"));
        FormUser user("Abel", "0123");
        f.window()->SaveNumberToAddrBook("0123", nullptr);
        QVERIFY(FakeSdk::members(FakeSdk::groups().first().id).contains(4));
        QCOMPARE(f.column(0), QStringList({"Abel", "Anna", "Bert"}));
    }

    void fullMemoryIsTheFormsToReport()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        FakeSdk::setCapacity(4, 3);
        f.build();
        QVERIFY(!f.in().newContactEnabled());
        FormUser user([](AddrBookEditDlgAccess form) {
            form.ok()->click();
            QVERIFY(form.window()->isVisible());
        });
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", nullptr), 1);
        QCOMPARE(user.forms(), 1);
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_UNSUCCESS"));
    }

    void dismissedItStillAnswersOne()
    {
        WindowFixture f;
        f.build();
        FormUser user([](AddrBookEditDlgAccess form) { form.cancel()->click(); });
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", nullptr), 1);
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
        QCOMPARE(f.in().operation(), ADDRBOOK_OP_ADD);
        QCOMPARE(f.in().memory(), PB_MEM_LOCAL);
    }

    void valuesOfTheContactEditedBeforeDoNotComeAlong()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        {
            FormUser user([](AddrBookEditDlgAccess form) { form.cancel()->click(); });
            f.window()->OnButtonClickedEditContact();
        }
        FormUser user([](AddrBookEditDlgAccess form) { form.ok()->click(); });
        f.window()->SaveNumberToAddrBook("0123", nullptr);
        QCOMPARE(user.firstName(), QString());
        QCOMPARE(FakeSdk::record(4, 4), QStringList({"", "0123", "", "", "", ""}));
    }

    void parentThatGoesTakesTheFormAlong()
    {
        WindowFixture f;
        f.build();
        QPointer<QWidget> sibling(new QWidget);
        FormUser user([sibling](AddrBookEditDlgAccess) { delete sibling.data(); });
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", sibling), 1);
        QVERIFY(sibling.isNull());
        QVERIFY(FakeSdk::recordIds(4).isEmpty());
    }

    void windowThatGoesWhileTheFormIsOpenIsNotTouchedAgain()
    {
        WindowFixture f;
        f.build();
        FormUser user([&f](AddrBookEditDlgAccess) { f.destroy(); });
        QCOMPARE(f.window()->SaveNumberToAddrBook("0123", nullptr), 1);
        QVERIFY(f.window() == nullptr);
    }
};

QTEST_MAIN(SaveNumberTest)
#include "SaveNumberTest.moc"
