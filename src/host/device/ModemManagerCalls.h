#ifndef LINKHAND_HOST_MODEMMANAGERCALLS_H
#define LINKHAND_HOST_MODEMMANAGERCALLS_H

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

class MessageStore;
class ModemManagerLink;
class QDBusPendingCall;
class QDBusPendingCallWatcher;

// Voice calls by way of ModemManager, one at a time, kept in the store when they are over. What is heard is the modem's
// matter.
class ModemManagerCalls : public QObject
{
    Q_OBJECT

public:
    // Link and store outlive the object.
    ModemManagerCalls(ModemManagerLink& link, MessageStore& store, QObject* pParent = nullptr);

    // Dials. False without a network, in a call, or for what is no number.
    bool Dial(const QString& strNumber);
    void Answer();

    // Ends the call or refuses it.
    void HangUp();

    // The same at the end of the program: waits until the modem has been told, a second at most.
    void HangUpNow();

signals:
    // iType is a HostCallType, iProgress a HostCallProgress.
    void callStarted(const QString& strNumber, int iType);
    void callProgress(int iProgress);
    void callEnded(const QString& strNumber, int iType);

    // One that comes in rings; during another call it is only told.
    void incoming(const QString& strNumber);

    // How a call that was to be made has failed, in the modem's words, which may be none.
    void failed(int iProgress, const QString& strDetail);

private slots:
    void OnModemChanged();
    void OnStatusChanged();
    void OnCreated(QDBusPendingCallWatcher* pWatcher);
    void OnStarted(QDBusPendingCallWatcher* pWatcher);
    void OnAnswered(QDBusPendingCallWatcher* pWatcher);
    void OnListed(QDBusPendingCallWatcher* pWatcher);
    void OnCallAdded(const QString& strPath);
    void OnRead(QDBusPendingCallWatcher* pWatcher);
    void OnStateChanged(const QString& strPath, int iState, int iReason);

private:
    void begin(const QString& strNumber, int iProgress);
    void progress(int iProgress);
    void end(int iProgress, const QString& strDetail = QString());
    void keep(const QString& strNumber, bool bIncoming, const QDateTime& begun, int iSeconds, int iProgress);
    int endOf(int iReason) const;
    QDBusPendingCallWatcher* watch(const QDBusPendingCall& call, const char* pszSlot);
    bool isStale(QDBusPendingCallWatcher* pWatcher) const;

    ModemManagerLink& m_link;
    MessageStore& m_store;
    QString m_strNumber;
    QString m_strPath; // of the call's object, once there is one
    bool m_bInCall;
    bool m_bIncoming;
    bool m_bStarting;  // the modem has been told to dial and has not answered
    bool m_bHangingUp; // the user wants its end
    int m_iProgress;   // HostCallProgress
    QDateTime m_begun;
    QElapsedTimer m_active;
    bool m_bListed; // of the present modem
    int m_iCall;    // counts calls and modems
};

#endif // LINKHAND_HOST_MODEMMANAGERCALLS_H
