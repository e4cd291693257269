#ifndef TESTS_GUI_SUPPORT_DIALOGTEST_H
#define TESTS_GUI_SUPPORT_DIALOGTEST_H

#include <QApplication>
#include <QtTest>

#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"

// A test of a dialog on the scripted libraries: each of its functions begins with empty memories and ends without a
// handle, a list or a text of the SDK, a worker or a dialog left over.
class DialogTest : public QObject
{
    Q_OBJECT

protected slots:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        AddrBookLogic::Destroy();
        FakeCore::reset();
        FakeSdk::reset();
    }

    void cleanup()
    {
        AddrBookLogic::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
        QCOMPARE(FakeCore::runningWorkers(), 0);
        QCOMPARE(FakeCore::dialogs().size(), 0);
    }
};

#endif // TESTS_GUI_SUPPORT_DIALOGTEST_H
