#ifndef LINKHAND_TESTS_DESKTOPTEST_H
#define LINKHAND_TESTS_DESKTOPTEST_H

#include <QScopedPointer>
#include <QTemporaryDir>
#include <QtTest>

#include "HostDriver.h"
#include "PbCtl.h"

// A test that uses the program. Each of its functions ends the program, if it still runs, in the way of a person, and
// finds nothing on its error channel that should not be there. A function that fails leaves a picture of the screen.
class DesktopTest : public QObject
{
    Q_OBJECT

protected:
    // Lines of the error channel that the function brings about, as a regular expression.
    void Expect(const QString& strLines) { m_strExpected = strLines; }

    QScopedPointer<HostDriver> m_pHost;

protected slots:
    void init();
    void cleanup();

private:
    QString m_strExpected;
};

// One with a folder of its own, and the store in it as the command line sees it.
class DesktopStoreTest : public DesktopTest
{
    Q_OBJECT

protected:
    QString DataFolder() const { return m_pFolder->filePath("data"); }

    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<PbCtl> m_pStore;

protected slots:
    void init();
};

#endif // LINKHAND_TESTS_DESKTOPTEST_H
