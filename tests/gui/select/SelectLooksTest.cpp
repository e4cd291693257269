#include <QtTest>

#include "../support/LooksTest.h"
#include "SelectSupport.h"

// The window in the real frame and with the real texts: the tree and the buttons inside, the margins even. One
// picture a mode.
class SelectLooksTest : public LooksTest
{
    Q_OBJECT

private slots:
    void init()
    {
        LooksTest::init();
        FakeSdk::addRecord(0, {"Grace", "+447700900777"});
        FakeSdk::addRecord(4, {"Ada Lovelace", "+447700900123", "02079460000"});
        FakeSdk::addRecord(4, {"Mary Somerville", "+447700900456"});
        const int group = FakeSdk::addGroup("Friends");
        FakeSdk::join(group, FakeSdk::addRecord(4, {"Charles Babbage", "+447700900789", "", "02079460001"}));
        FakeSdk::join(FakeSdk::addGroup("Family", group), FakeSdk::addRecord(4, {"Annabella Byron", "+447700900321"}));
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
                       save(picker.access.window(), picture);
                       checkLayout(picker);
                       picker.access.cancel()->click();
                   });
    }

private:
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
};

QTEST_MAIN(SelectLooksTest)
#include "SelectLooksTest.moc"
