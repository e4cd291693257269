#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKUISERVICE_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKUISERVICE_H

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>

#include "linkhand/plugin/IAddrBookUIPlugin.h"

class AddrBookDlg;

// What the plug-in does for its host and siblings; owner of the one window. User-interface thread only, no lock.
class CAddrBookUIService : public QObject, public IAddrBookUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(IAddrBookUIPlugin)

public:
    // Created on the first call, and anew on the first one after Destroy.
    static CAddrBookUIService* instance();
    static void Destroy();

    // IAddrBookUIPlugin. The first and the last build the window where there is none yet.
    int SaveNumberToAddrBook(QString strNumber, QWidget* pParent) override;
    void SearchMobile(QString strNumber, QString strText, int& iResult, bool bFlag) override;
    int OpenNumSelectDlg(bool bFlag, FIELD_TYPE enFieldType, QList<QString>& lstNumbers) override;

    // On behalf of CAddrBookUIPlugin.
    bool Init();
    bool ShowWindow(QWidget* pParent, QRect& rect);
    void Hide();
    void FitSize(QRect& rect);
    int DoModal();
    int Notify(unsigned int uiCode, unsigned int uiParam1, unsigned int uiParam2);
    void unSDKRegisterEvent();

    // 0, also where the window is there already; 13 where it could not be allocated.
    int constructDialog(QWidget* pParent);

    // The same, and tells the window the state of the network. 1, or 0 without a window.
    int createWindow(QWidget* pParent);

    QString tr(const QString& strId) const;

private:
    CAddrBookUIService();
    ~CAddrBookUIService() override;
    Q_DISABLE_COPY(CAddrBookUIService)

    static CAddrBookUIService* m_pInstance;
    QPointer<AddrBookDlg> m_pAddrBookDlg; // goes with the host's page if that goes first
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKUISERVICE_H
