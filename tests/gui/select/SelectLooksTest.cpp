#include <QtTest>

#include "SelectSupport.h"
#include "unit/core/FakeHost.h"

// The window in the real frame and with the real texts: the tree and the buttons inside, the margins even. With
// LINKHAND_SCREENSHOTS set to a folder the window is also saved there, one picture a mode.
class SelectLooksTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        AddrBookLogic::Destroy();
        FakeSdk::reset();
        m_host.reset(new FakeHost);
        m_host->strLanguagesPath = qEnvironmentVariable("LINKHAND_BUILD_DIR") + "/languages";
        FakeSdk::addRecord(0, {"Grace", "+447700900777"});
        FakeSdk::addRecord(4, {"Ada Lovelace", "+447700900123", "02079460000"});
        FakeSdk::addRecord(4, {"Mary Somerville", "+447700900456"});
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Charles Babbage", "+447700900789", "", "02079460001"}));
        FakeSdk::join(FakeSdk::addGroup("Family", group), FakeSdk::addRecord(4, {"Annabella Byron", "+447700900321"}));
    }
    void cleanup()
    {
        AddrBookLogic::Destroy();
        m_host.reset();
    }

    void bothModes_data()
    {
        QTest::addColumn<bool>("multi");
        QTest::addColumn<QString>("picture");
        QTest::newRow("many") << true << "pick-many";
        QTest::newRow("one") << false << "pick-one";
    }
    void bothModes()
    {
        QFETCH(bool, multi);
        QFETCH(QString, picture);
        Picker picker(multi, {"+447700900789"});
        picker.run([&] { return picker.access.filled(); },
                   [&] {
                       picker.access.tree()->expandAll();
                       const QString folder = qEnvironmentVariable("LINKHAND_SCREENSHOTS");
                       if (!folder.isEmpty())
                           QVERIFY(picker.access.window()->grab().save(folder + "/" + picture + ".png"));
                       checkLayout(picker);
                       picker.access.cancel()->click();
                   });
    }

private:
    static QRect inWindow(const QWidget* widget, const QWidget* window)
    {
        return QRect(widget->mapTo(window, QPoint(0, 0)), widget->size());
    }

    static void checkLayout(Picker& picker)
    {
        ExtendDialog* window = picker.access.window();
        const QRect tree = inWindow(picker.access.tree(), window);
        const QRect ok = inWindow(picker.access.ok(), window);
        const QRect cancel = inWindow(picker.access.cancel(), window);
        QVERIFY(window->rect().contains(tree));
        QVERIFY(window->rect().contains(ok));
        QVERIFY(window->rect().contains(cancel));
        QVERIFY(tree.width() >= 287);
        QVERIFY(!tree.intersects(ok) && !tree.intersects(cancel) && !ok.intersects(cancel));
        QCOMPARE(ok.y(), cancel.y());
        QCOMPARE(cancel.right(), tree.right());
        // Even margins on both sides.
        QVERIFY(qAbs(tree.left() - (window->width() - 1 - tree.right())) <= 1);
        QVERIFY(picker.access.ok()->width() >= picker.access.ok()->minimumSizeHint().width());
        QVERIFY(picker.item({"Computer", "Ada Lovelace", "Mobile +447700900123"}) != nullptr);
    }

    QScopedPointer<FakeHost> m_host;
};

QTEST_MAIN(SelectLooksTest)
#include "SelectLooksTest.moc"
