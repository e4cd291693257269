#ifndef LINKHAND_HOST_SERVICES_H
#define LINKHAND_HOST_SERVICES_H

#include <QList>
#include <QPointer>

#include "device/Modem.h"
#include "linkhand/core/HostServices.h"
#include "loader/RunState.h"

// What the host's user-interface library asks of the host. Published before the first plug-in is loaded and kept until
// the process ends.
class Services : public HostServices
{
public:
    // strRoot is the program's folder, strSettingsFile the user's INI file.
    Services(const QString& strRoot, const QString& strSettingsFile);

    // Makes this object the one that the library finds, or takes it away again.
    void Publish();
    void Withdraw();

    void SetMainWindow(QWidget* pWindow) { m_pMainWindow = pWindow; }
    void SetContainer(IPluginContainer* pContainer) { m_pContainer = pContainer; }
    void SetAnswers(const QList<int>& listAnswers) { m_listAnswers = listAnswers; }
    void SetModem(Modem* pModem) { m_pModem = pModem; }
    void SetLanguage(const QString& strLanguage) { m_strLanguage = strLanguage; }
    RunState& State() { return m_state; }
    WorkerCount& Workers() { return m_state.Workers(); }
    QString PluginsPath() const;

    QWidget* MainWindow() override { return m_pMainWindow; }
    IPluginContainer* PluginContainer() override;
    bool IsPluginAvailable(const QString& strId) override;
    bool MakeCall(const QString& strNumber, int iType) override;
    QString LibraryPath() override { return m_strRoot; }
    QString LanguagesPath() override;
    QString Language() override { return m_strLanguage; }
    QString SettingsFile() override { return m_strSettingsFile; }

    // Boxes are shown, except that the first ones take the answers that were set, and that one which comes while the
    // program is closing is closed as if nobody had answered.
    int MessageAnswer(QMessageBox::Icon enIcon, const QString& strCaption, const QString& strText) override;

    bool IsShuttingDown() override { return m_state.IsShuttingDown(); }
    void ThreadCountInc(const QString& strFile, const QString& strFunction) override;
    void ThreadCountDec(const QString& strFile, const QString& strFunction) override;

private:
    QString m_strRoot;
    QString m_strSettingsFile;
    QString m_strLanguage;
    QPointer<QWidget> m_pMainWindow;
    IPluginContainer* m_pContainer;
    QPointer<Modem> m_pModem;
    RunState m_state;
    QList<int> m_listAnswers;
};

#endif // LINKHAND_HOST_SERVICES_H
