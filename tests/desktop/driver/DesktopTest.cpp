#include "DesktopTest.h"

#include <QRegularExpression>

void DesktopTest::init()
{
    m_strExpected.clear();
    m_pHost.reset(new HostDriver);
}

void DesktopTest::cleanup()
{
    if (m_pHost->Running()) {
        if (QTest::currentTestFailed()) {
            m_pHost->Screenshot(QStringLiteral("%1.png").arg(QTest::currentTestFunction()));
        }
        m_pHost->WaitForMainWindow();
        QVERIFY2(m_pHost->Quit() >= 0, qPrintable(m_pHost->Log()));
    }
    QStringList lstErrors = m_pHost->ErrorLines();
    if (!m_strExpected.isEmpty()) {
        foreach (const QString& strLine, lstErrors.filter(QRegularExpression(m_strExpected))) {
            lstErrors.removeAll(strLine);
        }
    }
    QVERIFY2(lstErrors.isEmpty(), qPrintable(lstErrors.join('\n')));
    m_pHost.reset();
}

void DesktopStoreTest::init()
{
    DesktopTest::init();
    m_pFolder.reset(new QTemporaryDir);
    m_pStore.reset(new PbCtl(DataFolder()));
}
