#ifndef LINKHAND_HOST_MODEMNOTICES_H
#define LINKHAND_HOST_MODEMNOTICES_H

#include <QObject>
#include <QPointer>
#include <QString>

#include "app/NamedNotices.h"

class MainWindow;
class MessageStore;
class Modem;
class PinForm;

// What a real modem has to tell, brought to the user: notices in the status area, the window's call for attention, and
// the form for a PIN.
class ModemNotices : public QObject
{
    Q_OBJECT

public:
    // All three outlive the object.
    ModemNotices(Modem& modem, MessageStore& store, MainWindow& window);

public slots:
    // The form for the PIN, if the card asks for one.
    void ShowPinForm();

private slots:
    void OnRetranslated();
    void OnStatusChanged();
    void OnMessageFinished(int iId);
    void OnMessageReceived(const QString& strNumber, const QString& strText);
    void OnIncomingCall(const QString& strNumber);
    void OnCallEnded();
    void OnCallFailed(int iProgress, const QString& strDetail);
    void OnRemoveFailed(const QString& strDetail);
    void OnEnableFailed(const QString& strDetail);
    void OnStoreFull();

private:
    // With the modem's own words behind it, if there are any.
    void show(const QString& strText, const QString& strDetail = QString(), const char* pszAbout = "");
    void showNamed(const char* pszId, const QString& strNumber, const QString& strMore, const QString& strDetail,
                   const char* pszAbout = "");
    void call();

    Modem& m_modem;
    MessageStore& m_store;
    MainWindow& m_window;
    NamedNotices m_named;
    QPointer<PinForm> m_pForm;
    bool m_bLocked; // and the form has been shown for it
};

#endif // LINKHAND_HOST_MODEMNOTICES_H
