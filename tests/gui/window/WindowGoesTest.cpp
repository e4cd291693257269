#include <QMenu>

#include "../contacts/ContactsSupport.h"

// The window is taken away by what an entry of a menu or a key of its own has opened.
class WindowGoesTest : public WindowTest
{
    Q_OBJECT

private:
    // A messaging plug-in that does something while it is asked to send.
    class Sms : public QObject, public ISMSUIService
    {
    public:
        explicit Sms(std::function<void()> function) : m_function(std::move(function)) {}
        void SendMessage(QString, QString, QWidget*) override { m_function(); }
        void* qt_metacast(const char* name) override
        {
            return qstrcmp(name, qobject_interface_iid<ISMSUIService*>()) == 0 ? static_cast<ISMSUIService*>(this)
                                                                               : QObject::qt_metacast(name);
        }

    private:
        std::function<void()> m_function;
    };

    // Picks the entry in the menu that opens next, by key.
    static void pickInTheNextMenu(QTimer& poll, QAction* entry)
    {
        poll.setInterval(0);
        QObject::connect(&poll, &QTimer::timeout, [&poll, entry] {
            QMenu* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            poll.stop();
            menu->setActiveAction(entry);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        poll.start();
    }

    static void rightClick(const WindowFixture& f, QWidget* widget, const QPoint& point)
    {
        QApplication::setActiveWindow(f.window());
        widget->setFocus();
        const QPoint inWindow = widget->mapTo(f.window(), point);
        QContextMenuEvent event(QContextMenuEvent::Mouse, inWindow, f.window()->mapToGlobal(inWindow));
        QCoreApplication::sendEvent(f.window(), &event);
    }

private slots:
    void menuOutlivesTheWindowThatItsEntryTookAway_data()
    {
        QTest::addColumn<bool>("ofTheTree");
        QTest::newRow("delete in the table's menu") << false;
        QTest::newRow("delete in the tree's menu") << true;
    }
    void menuOutlivesTheWindowThatItsEntryTookAway()
    {
        QFETCH(bool, ofTheTree);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        const QPointer<QMenu> menu(ofTheTree ? f.in().treeMenu() : f.in().tableMenu());
        bool alive = false;
        FakeCore::onMessage([&f, &menu, &alive](const FakeCore::Message&) {
            f.destroy();
            alive = !menu.isNull();
        });
        QTimer poll;
        if (ofTheTree) {
            f.click(f.node("Friends"));
            pickInTheNextMenu(poll, f.treeAction("IDS_DEL_GROUP"));
            rightClick(f, f.tree(), f.tree()->visualItemRect(f.node("Friends")).center());
        } else {
            f.selectRows({0});
            pickInTheNextMenu(poll, f.tableAction("IDS_PMMENU_DELETE"));
            rightClick(f, f.table(), QPoint(5, f.table()->viewport()->y() + 5));
        }
        FakeCore::onMessage({});
        QVERIFY(f.window() == nullptr);
        QCOMPARE(FakeCore::messages().size(), 1);
        QVERIFY2(alive, "freed while its entry was under way");
        QTRY_VERIFY(menu.isNull()); // and gone behind it
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
        QCOMPARE(FakeSdk::groups().size(), 1);
    }

    void sendMenuOutlivesWhatItsEntryDoes_data()
    {
        QTest::addColumn<bool>("language");
        QTest::newRow("the window goes") << false;
        QTest::newRow("another language") << true;
    }
    void sendMenuOutlivesWhatItsEntryDoes()
    {
        QFETCH(bool, language);
        WindowFixture f;
        WindowFixture::fillStores();
        bool alive = false;
        QPointer<QMenu> menu;
        Sms sms([&] {
            if (language)
                f.window()->SetLanguage();
            else
                f.destroy();
            alive = !menu.isNull();
        });
        FakeCore::setSiblingObject(FakeCore::SmsId, 4097, &sms);
        f.build();
        f.selectRows({0});
        menu = f.in().sendMenu();
        QTimer poll;
        pickInTheNextMenu(poll, menu->actions().value(0));
        menu->exec(QPoint(10, 10));
        FakeCore::setSiblingObject(FakeCore::SmsId, 4097, nullptr);
        QVERIFY2(alive, "freed while its entry was under way");
        QTRY_VERIFY(menu.isNull());
        QCOMPARE(f.window() != nullptr, language);
        if (language)
            QVERIFY(f.in().sendMenu() != nullptr);
    }

    // Outside of any event loop nothing would come back for them.
    void menusGoWithTheWindowAtTheEnd()
    {
        WindowFixture f;
        f.build();
        const QPointer<QMenu> table(f.in().tableMenu());
        const QPointer<QMenu> tree(f.in().treeMenu());
        const QPointer<QMenu> send(f.in().sendMenu());
        f.destroy();
        QVERIFY(table.isNull());
        QVERIFY(tree.isNull());
        QVERIFY(send.isNull());
    }

    void keyOfTheWindowMayTakeTheWindowAway()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({0});
        FormUser user([&f](AddrBookEditDlgAccess) { f.destroy(); });
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(f.window(), &event);
        QCOMPARE(user.forms(), 1);
        QVERIFY(f.window() == nullptr);
        QVERIFY2(event.isAccepted(), "handed on by the window that is gone");
        QCOMPARE(FakeSdk::recordIds(4).size(), 3);
    }
};

QTEST_MAIN(WindowGoesTest)
#include "WindowGoesTest.moc"
