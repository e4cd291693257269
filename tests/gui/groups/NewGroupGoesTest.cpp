#include "GroupsFixture.h"
#include "frame/AddrBookUIService.h"

// A new group whose editor is open, and the node, the window or the page under it goes.
class NewGroupGoesTest : public WindowTest
{
    Q_OBJECT

private slots:
    void windowThatGoesWhileABoxIsOpenIsNotTouchedAgain_data()
    {
        QTest::addColumn<QByteArray>("slot"); // what ends the editor
        QTest::newRow("closed from outside") << QByteArray("close");
        QTest::newRow("another language") << QByteArray("language");
    }
    void windowThatGoesWhileABoxIsOpenIsNotTouchedAgain()
    {
        QFETCH(QByteArray, slot);
        GroupsFixture f;
        f.build();
        QVERIFY(f.startNew() != nullptr);
        FakeCore::onMessage([&f](const FakeCore::Message&) { f.destroy(); });
        if (slot == "close")
            f.window()->CloseEditor();
        else
            f.window()->SetLanguage();
        FakeCore::onMessage({});
        QVERIFY(f.window() == nullptr);
        QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
    }

    void pageThatGoesTakesTheWindowAlong_data()
    {
        QTest::addColumn<bool>("box");
        QTest::newRow("by itself") << false;
        QTest::newRow("under a box at its hiding") << true;
    }
    void pageThatGoesTakesTheWindowAlong()
    {
        QFETCH(bool, box);
        GroupsFixture f; // the stores; the window is the service's
        CAddrBookUIService* service = CAddrBookUIService::instance();
        QVERIFY(service->Init());
        QWidget* page = new QWidget;
        QRect rect(0, 0, 900, 600);
        QVERIFY(service->ShowWindow(page, rect));
        page->show();
        QPointer<AddrBookDlg> window(page->findChild<AddrBookDlg*>("AddrBookUIPlugin_MainWidget"));
        QVERIFY(!window.isNull());
        if (box) {
            window->OnNewGroupClicked();
            FakeCore::onMessage([page](const FakeCore::Message&) { delete page; });
            service->Hide();
            FakeCore::onMessage({});
            QCOMPARE(FakeCore::messageTexts(), QStringList("IDS_GROUP_NAME_NULL"));
        } else {
            delete page;
        }
        QVERIFY(window.isNull());
        service->Hide();
        service->FitSize(rect);
        QCOMPARE(service->Notify(320, 0, 0), 0);
        QVERIFY(service->ShowWindow(nullptr, rect)); // a new one
        service->unSDKRegisterEvent();
        service->Destroy();
    }

    void nodeThatGoesUnderTheEditorIsForgotten()
    {
        GroupsFixture f;
        f.build();
        const QPointer<QLineEdit> editor = f.startNew();
        f.window()->removeTreeItem(f.in().local(), f.in().editedGroup());
        QVERIFY(f.in().editedGroup() == nullptr);
        if (editor != nullptr)
            f.window()->OnEditorClosed(editor);
        QVERIFY(!GroupsFixture::writesToGroups());
        QVERIFY(FakeCore::messages().isEmpty());
        QVERIFY(f.tree()->m_pitemPrevious != nullptr);
        QTRY_VERIFY(editor.isNull());
    }

    void nodeThatGoesWhileABoxIsOpenIsForgotten_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("blank name") << "";
        QTest::newRow("taken name") << "Friends";
    }
    void nodeThatGoesWhileABoxIsOpenIsForgotten()
    {
        QFETCH(QString, name);
        GroupsFixture f;
        f.build();
        QLineEdit* editor = f.startNew();
        QTest::keyClicks(editor, name);
        FakeCore::onMessage([&f](const FakeCore::Message&) {
            if (f.in().editedGroup() != nullptr)
                f.window()->removeTreeItem(f.in().local(), f.in().editedGroup());
        });
        GroupsFixture::press(editor, Qt::Key_Return);
        QCOMPARE(FakeCore::messages().size(), 1);
        QCOMPARE(f.in().local()->childCount(), 1);
        QVERIFY(f.in().editedGroup() == nullptr);
        FakeCore::onMessage({});
        GroupsFixture::type(f.startNew(), "Work");
        QVERIFY(f.node("Work(0)") != nullptr);
    }

    void windowThatGoesUnderTheEditorLeaksNothing()
    {
        GroupsFixture f;
        f.build();
        QTest::keyClicks(f.startNew(), "Work");
        f.destroy();
    }
};

QTEST_MAIN(NewGroupGoesTest)
#include "NewGroupGoesTest.moc"
