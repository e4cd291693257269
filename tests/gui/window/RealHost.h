#ifndef TESTS_GUI_WINDOW_REALHOST_H
#define TESTS_GUI_WINDOW_REALHOST_H

#include <QCoreApplication>
#include <QVariant>

#include <atomic>

#include "linkhand/core/HostServices.h"

// A host without a window and siblings behind the real user-interface library: it knows where the build tree's files
// lie, answers each message box with its first button, and counts workers.
class RealHost : public HostServices
{
public:
    explicit RealHost(const QString& strBuildFolder) : m_strFolder(strBuildFolder)
    {
        qApp->setProperty(LINKHAND_HOST_SERVICES, QVariant(qlonglong(quintptr(this))));
    }
    ~RealHost() override { qApp->setProperty(LINKHAND_HOST_SERVICES, QVariant()); }

    QWidget* MainWindow() override { return nullptr; }
    IPluginContainer* PluginContainer() override { return nullptr; }
    bool IsPluginAvailable(const QString&) override { return false; }
    bool MakeCall(const QString&, int) override { return false; }
    QString LibraryPath() override { return m_strFolder; }
    QString LanguagesPath() override { return m_strFolder + QLatin1String("/languages"); }
    QString Language() override { return QLatin1String("en"); }
    QString SettingsFile() override { return m_strFolder + QLatin1String("/no-settings.ini"); }
    int MessageAnswer(QMessageBox::Icon, const QString&, const QString&) override { return QMessageBox::Ok; }
    bool IsShuttingDown() override { return false; }
    void ThreadCountInc(const QString&, const QString&) override { ++m_iWorkers; }
    void ThreadCountDec(const QString&, const QString&) override { --m_iWorkers; }
    int workers() const { return m_iWorkers; }

private:
    Q_DISABLE_COPY(RealHost)
    QString m_strFolder;
    std::atomic<int> m_iWorkers{0};
};

#endif // TESTS_GUI_WINDOW_REALHOST_H
