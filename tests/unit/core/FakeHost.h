#ifndef TESTS_UNIT_CORE_FAKEHOST_H
#define TESTS_UNIT_CORE_FAKEHOST_H

#include <QAtomicInt>
#include <QCoreApplication>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QVariant>

#include "linkhand/core/HostServices.h"

// A host that answers what a test told it, published for as long as it lives.
class FakeHost : public HostServices, public IPluginContainer
{
public:
    FakeHost() { publish(this); }
    ~FakeHost() override { publish(nullptr); }
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    QWidget* MainWindow() override { return pMainWindow; }
    IPluginContainer* PluginContainer() override { return bHasContainer ? this : nullptr; }
    bool IsPluginAvailable(const QString& strId) override { return installed.contains(strId); }
    bool MakeCall(const QString& strNumber, int iType) override
    {
        lstCalls.append(strNumber + QLatin1Char('/') + QString::number(iType));
        return bCallSucceeds;
    }
    QString LibraryPath() override { return strLibraryPath; }
    QString LanguagesPath() override { return strLanguagesPath; }
    QString Language() override { return strLanguage; }
    QString SettingsFile() override { return strSettingsFile; }
    int MessageAnswer(QMessageBox::Icon, const QString& strCaption, const QString& strText) override
    {
        lstMessages.append(strCaption + QLatin1String(": ") + strText);
        return iMessageAnswer;
    }
    bool IsShuttingDown() override { return iShuttingDown.loadRelaxed() != 0; }
    void ThreadCountInc(const QString& strFile, const QString& strFunction) override
    {
        Q_UNUSED(strFile);
        Q_UNUSED(strFunction);
        iThreads.ref();
    }
    void ThreadCountDec(const QString& strFile, const QString& strFunction) override
    {
        Q_UNUSED(strFile);
        Q_UNUSED(strFunction);
        iThreads.deref();
    }

    QObject* GetPlugin(QString strId, int iKind) override { return iKind == 0 ? loaded.value(strId) : nullptr; }

    QWidget* pMainWindow = nullptr;
    bool bHasContainer = true;
    QSet<QString> installed;
    QMap<QString, QObject*> loaded;
    bool bCallSucceeds = true;
    QStringList lstCalls;
    QString strLibraryPath = qEnvironmentVariable("LINKHAND_BUILD_DIR");
    QString strLanguagesPath = strLibraryPath + QLatin1String("/languages");
    QString strLanguage = QLatin1String("en");
    QString strSettingsFile;
    int iMessageAnswer = -1;
    QStringList lstMessages;
    QAtomicInt iShuttingDown;
    QAtomicInt iThreads;

private:
    static void publish(HostServices* pServices)
    {
        const QVariant value = pServices != nullptr ? QVariant(qlonglong(quintptr(pServices))) : QVariant();
        QCoreApplication::instance()->setProperty(LINKHAND_HOST_SERVICES, value);
    }
};

#endif // TESTS_UNIT_CORE_FAKEHOST_H
