#include <QShortcut>

#include "WindowFixture.h"

// The shortcuts and the keys of the window.
class ShortcutTest : public WindowTest
{
    Q_OBJECT

private:
    static void activate(WindowFixture& f)
    {
        f.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(f.window()));
    }

private slots:
    void eachShortcutLeadsToItsSlotAlone_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<bool>("tree");
        QTest::addColumn<QByteArray>("slot");
        const auto row = [](const char* id, bool tree, const char* slot) {
            QTest::newRow(id) << QString(id) << tree << QByteArray(slot);
        };
        row("IDS_PMMENU_SEND_MSG", false, SLOT(OnShortKeySendSMS()));
        row("IDS_PMMENU_SEND_MMS", false, SLOT(OnShortKeySendMMS()));
        row("IDS_PMMENU_ADD", false, SLOT(OnButtonClickedNewContact()));
        row("IDS_PMMENU_DETAIL", false, SLOT(OnShortKeyEditContact()));
        row("IDS_PMMENU_DELETE", false, SLOT(OnShortKeyDel()));
        row("IDS_PMTOOLBAR_SEARCH", false, SLOT(OnShowHideSearchBox()));
        row("IDS_PMMENU_CALL", false, SLOT(OnButtonClickedCall()));
        row("IDS_Add_GROUP", true, SLOT(OnShortKeyNewGroup()));
        row("IDS_EDIT_GROUP", true, SLOT(OnShortKeyRenameGroup()));
    }
    void eachShortcutLeadsToItsSlotAlone()
    {
        QFETCH(QString, id);
        QFETCH(bool, tree);
        QFETCH(QByteArray, slot);
        WindowFixture f;
        FakeCore::setShortcut(id, QKeySequence("Ctrl+F11"));
        f.build();
        f.window()->SetLanguage(); // sets the keys again, and connects nothing twice
        QVERIFY(f.waitRead());
        QList<QShortcut*> found;
        for (QShortcut* shortcut : f.window()->findChildren<QShortcut*>()) {
            if (shortcut->key() == QKeySequence("Ctrl+F11"))
                found << shortcut;
        }
        QCOMPARE(found.size(), 1);
        QWidget* const parent = tree ? static_cast<QWidget*>(f.tree()) : f.window();
        QCOMPARE(found[0]->parent(), static_cast<QObject*>(parent));
        QVERIFY(QObject::disconnect(found[0], SIGNAL(activated()), f.window(), slot.constData()));
        QVERIFY(!QObject::disconnect(found[0], SIGNAL(activated()), f.window(), nullptr));
    }

    void callKeyNeedsTheCallPlugin()
    {
        WindowFixture f;
        FakeCore::setSibling(FakeCore::VoiceCallId, false);
        FakeCore::setShortcut("IDS_PMMENU_CALL", QKeySequence("Ctrl+2"));
        f.build();
        for (const QShortcut* shortcut : f.window()->findChildren<QShortcut*>())
            QVERIFY(shortcut->key() != QKeySequence("Ctrl+2"));
    }

    void shortcutsReachTheirSlots()
    {
        WindowFixture f;
        FakeCore::setShortcut("IDS_PMTOOLBAR_SEARCH", QKeySequence("Ctrl+F"));
        FakeCore::setShortcut("IDS_PMMENU_SEND_MSG", QKeySequence("Ctrl+M"));
        FakeCore::setShortcut("IDS_PMMENU_SEND_MMS", QKeySequence("Ctrl+Shift+M"));
        FakeCore::setShortcut("IDS_PMMENU_CALL", QKeySequence("Ctrl+T"));
        WindowFixture::fillStores();
        f.build();
        activate(f);
        f.table()->setFocus();
        f.selectRows({1});
        QTest::keyClick(f.table(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(f.in().searchShown());
        f.table()->setFocus();
        QTest::keyClick(f.table(), Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(FakeCore::sms().size(), 1);
        QCOMPARE(FakeCore::sms().first().numbers, QString("444"));
        QTest::keyClick(f.table(), Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(FakeCore::mms(), QStringList{"444"});
        QTest::keyClick(f.table(), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(FakeCore::madeCalls().size(), 1);
        // With the tree in focus the message goes to the node.
        f.tree()->setFocus();
        QTest::keyClick(f.tree(), Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(FakeCore::sms().last().numbers, QString("111;444;555"));
        QTest::keyClick(f.tree(), Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(FakeCore::mms().last(), QString("111;444;555"));
    }

    void groupShortcutsNeedTheFocusOfTheTree()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        activate(f);
        int asked = 0;
        QObject::connect(f.tree(), &PBTreeWidget::newGroup, [&asked] { ++asked; });
        // What a new group opens is another test's matter.
        QObject::disconnect(f.tree(), SIGNAL(newGroup()), f.window(), nullptr);
        f.table()->setFocus();
        f.window()->OnShortKeyNewGroup();
        QCOMPARE(asked, 0);
        f.tree()->setFocus();
        f.window()->OnShortKeyNewGroup();
        QCOMPARE(asked, 1);
    }

    void theKeyMAloneIsKeptFromTheTable()
    {
        WindowFixture f;
        for (const char* name : {"Anna", "Max", "Nils"})
            FakeSdk::addRecord(4, {name});
        f.build();
        activate(f);
        f.table()->setCurrentCell(0, 0);
        const auto press = [&f](int key, const QString& text) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(f.window(), &event);
            return event.isAccepted();
        };
        press(Qt::Key_N, "n"); // keyboard search of the table
        QCOMPARE(f.table()->currentRow(), 2);
        f.table()->setCurrentCell(0, 0);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        QVERIFY(!press(Qt::Key_M, "m"));
        QCOMPARE(f.table()->currentRow(), 0);
        // Every other key reaches the base class behind the table, which ignores it.
        QVERIFY(!press(Qt::Key_F5, QString()));
    }
};

QTEST_MAIN(ShortcutTest)
#include "ShortcutTest.moc"
