#ifndef TESTS_GUI_SUPPORT_LOOKSTEST_H
#define TESTS_GUI_SUPPORT_LOOKSTEST_H

#include <QApplication>
#include <QScopedPointer>
#include <QtTest>

#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"
#include "unit/core/FakeHost.h"

// A test of a dialog in the real frame and with the real texts. With LINKHAND_SCREENSHOTS set to a folder its windows
// are also saved there.
class LooksTest : public QObject
{
    Q_OBJECT

protected:
    static QRect inWindow(const QWidget* widget, const QWidget* window)
    {
        return QRect(widget->mapTo(window, QPoint(0, 0)), widget->size());
    }

    static void save(QWidget* window, const QString& picture)
    {
        const QString folder = qEnvironmentVariable("LINKHAND_SCREENSHOTS");
        if (!folder.isEmpty())
            QVERIFY(window->grab().save(folder + "/" + picture + ".png"));
    }

protected slots:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        AddrBookLogic::Destroy();
        FakeSdk::reset();
        m_host.reset(new FakeHost);
        m_host->strLanguagesPath = qEnvironmentVariable("LINKHAND_BUILD_DIR") + "/languages";
    }

    void cleanup()
    {
        AddrBookLogic::Destroy();
        m_host.reset();
    }

private:
    QScopedPointer<FakeHost> m_host;
};

#endif // TESTS_GUI_SUPPORT_LOOKSTEST_H
