#ifndef TESTS_GUI_WIDGETS_OPENTREETEST_H
#define TESTS_GUI_WIDGETS_OPENTREETEST_H

#include <QtTest>

#include <memory>

#include "TestTree.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"

// A test of the phonebook tree: each of its functions has one on the screen.
class OpenTreeTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<TestTree> tree;

protected slots:
    void initTestCase() { qRegisterMetaType<QTreeWidgetItem*>(); }

    void init()
    {
        FakeCore::reset();
        FakeSdk::reset();
        tree = std::make_unique<TestTree>();
        tree->show();
        QVERIFY(QTest::qWaitForWindowExposed(tree.get()));
    }

    void cleanup()
    {
        tree.reset();
        AddrBookLogic::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
    }
};

#endif // TESTS_GUI_WIDGETS_OPENTREETEST_H
