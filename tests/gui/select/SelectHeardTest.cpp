#include <QAccessible>

#include "SelectSupport.h"

namespace
{
QStringList s_heard; // names of the nodes whose mark was told, with "*" for a tick

} // namespace

// In Qt's place, which hands nothing on while no screen reader runs.
void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    if (event->type() != QAccessible::StateChanged ||
        !static_cast<QAccessibleStateChangeEvent*>(event)->changedStates().checked)
        return;
    const QAccessibleInterface* node = event->accessibleInterface();
    if (node != nullptr)
        s_heard << QString(node->state().checked ? "*" : "") + node->text(QAccessible::Name);
}

// What a screen reader hears of the check marks.
class SelectHeardTest : public SelectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        SelectTest::init();
        s_heard.clear();
    }

    void eachMarkThatAClickOnAParentChangesIsTold()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        FakeSdk::addRecord(4, {"Bob", "333"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.window()->show();
        picker.access.tree()->expandAll();
        picker.toggle(picker.item({"PC", "Ada"}));
        QCOMPARE(s_heard, (QStringList{"*PC(2)", "*Ada", "*m 111", "*o 222"}));
        s_heard.clear();
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(s_heard, (QStringList{"PC(2)", "Ada", "m 111", "o 222"}));
        s_heard.clear();
        picker.toggle(picker.item({"PC", "Bob", "m 333"}));
        QCOMPARE(s_heard, (QStringList{"*PC(2)", "*Bob", "*m 333"}));
    }

    // Those that nobody can see are told of when their node opens and the reader comes to them.
    void marksInClosedNodesAreNotTold()
    {
        FakeSdk::addRecord(4, {"Ada", "111", "222"});
        Picker picker;
        QVERIFY(picker.waitFilled());
        picker.access.window()->show();
        picker.access.tree()->collapseAll();
        picker.toggle(picker.item({"PC"}));
        QCOMPARE(s_heard, QStringList{"*PC(1)"});
    }
};

QTEST_MAIN(SelectHeardTest)
#include "SelectHeardTest.moc"
