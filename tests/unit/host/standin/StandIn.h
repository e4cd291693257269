#ifndef LINKHAND_TESTS_STANDIN_H
#define LINKHAND_TESTS_STANDIN_H

#include <QPointer>
#include <QStringList>
#include <QThread>
#include <QWidget>

#include "linkhand/QtCompat.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "linkhand/plugin/INotify.h"
#include "linkhand/plugin/IUIPlugin.h"

#ifndef STANDIN_NAME
#define STANDIN_NAME "StandInPlugin"
#endif
#ifndef STANDIN_CLASS_ID
#define STANDIN_CLASS_ID nullptr
#endif

// What the phonebook serves, as far as siblings ask for it. The next choice of numbers is the property "choice".
class StandInService : public QObject, public IAddrBookUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IAddrBookUIPlugin)

public:
    int SaveNumberToAddrBook(QString strNumber, QWidget* pParent) override;
    void SearchMobile(QString strNumber, QString strText, int& iResult, bool bFlag) override;
    int OpenNumSelectDlg(bool bFlag, FIELD_TYPE enFieldType, QList<QString>& lstNumbers) override;
};

// A worker that reports each record to a slot and waits for it, as the phonebook's does; counted by the host.
class StandInWorker : public QThread
{
    Q_OBJECT

public:
    void run() override;

signals:
    void record();
};

// A plug-in that implements the real interfaces and notes every call in its dynamic property "calls". What it should
// do differently it reads from properties of the application: "standin.initFails", "standin.showFails".
class StandIn : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)
    LINKHAND_PLUGIN_METADATA("com.teskra.linkhand.plugin.IUIPlugin")

public:
    StandIn();
    ~StandIn() override;

    void Release() override { note("Release"); }
    int GetLastError() override { return 0; }
    void OnDestroy() override;
    void UnSDKRegisterEvent() override;
    bool Init() override;
    int GetPluginType() override { return 0; }
    QString GetCLSID() override { return QString::fromLatin1(STANDIN_CLASS_ID); }
    int GetVersion() override { return 0; }
    QString GetPluginName() override { return QLatin1String(STANDIN_NAME); }
    bool IsAllowRelease() override { return false; }
    int QueryInterface(int iId, QObject** ppObject) override;
    bool ShowWindow(QWidget* pParent, QRect& rect) override;
    int DoModal() override { return 1; }
    void Hide() override;
    void FitSize(QRect& rect) override;
    bool IsReady() override { return false; }
    bool ChangeLang(const QString& strLang) override { return !strLang.isEmpty(); }
    int Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2) override;

public slots:
    // Starts the worker; the slot that it waits for runs only from the event loop.
    void StartWorker();

private slots:
    void OnRecord();

private:
    void note(const QString& strCall);

    QPointer<QWidget> m_pWindow;
    StandInService m_service;
    StandInWorker m_worker;
};

#endif // LINKHAND_TESTS_STANDIN_H
