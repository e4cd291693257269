#ifndef LINKHAND_HOST_MODEMMANAGERLINK_H
#define LINKHAND_HOST_MODEMMANAGERLINK_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariant>

#include "device/ModemStatus.h"

class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

// ModemManager on the system bus, and the one modem of it that this program uses. A bus that is not there, a daemon
// that goes and returns, a modem that is pulled are states that pass: it looks again by itself. Nothing waits for an
// answer. User-interface thread only.
class ModemManagerLink : public QObject
{
    Q_OBJECT

public:
    // With the path of a port only the modem that has it; with an empty one the first modem that there is.
    explicit ModemManagerLink(const QString& strPort, QObject* pParent = nullptr);
    ~ModemManagerLink() override;

    void Start();

    const ModemStatus& Status() const { return m_status; }

    // The modem's object, and its card's; empty without.
    const QString& ModemPath() const { return m_strModem; }
    QString CardPath() const;

    // Calls a method; the interface without "org.freedesktop.ModemManager1." before it.
    QDBusPendingCall Call(const QString& strPath, const char* pszInterface, const char* pszMethod,
                          const QVariantList& listArguments = QVariantList(), int iTimeoutMs = -1) const;

    // Asks for all properties of an object that is no modem, such as a message.
    QDBusPendingCall Properties(const QString& strPath, const char* pszInterface) const;

    // Gives the answer to a slot that takes a QDBusPendingCallWatcher* and releases it with deleteLater. With the
    // connection the question goes unanswered; modemChanged has told before.
    QDBusPendingCallWatcher* Watch(const QDBusPendingCall& call, QObject* pReceiver, const char* pszSlot);

    // A try at the PIN has failed: from now on at most iTries are left, whatever the modem says until it says less.
    void LimitTries(int iTries);

    // Reads the modem's properties anew; refreshed() follows, also if that fails.
    void Refresh();

signals:
    // The status is another one than before.
    void changed();

    // The modem has gone, or is another one: what was asked of the old one is not answered any more.
    void modemChanged();
    void refreshed();

    void messageAdded(const QString& strPath, bool bReceived);
    void callAdded(const QString& strPath);
    void callStateChanged(const QString& strPath, int iState, int iReason);

    // Of an object that is no modem.
    void messageChanged(const QString& strPath);

private slots:
    void OnRetry();
    void OnDisconnected();
    void OnOwnerChanged(const QString& strService, const QString& strOld, const QString& strNew);
    void OnManagedObjects(QDBusPendingCallWatcher* pWatcher);
    void OnRefreshed(QDBusPendingCallWatcher* pWatcher);
    void OnInterfacesAdded(const QDBusMessage& message);
    void OnInterfacesRemoved(const QDBusMessage& message);
    void OnPropertiesChanged(const QDBusMessage& message);
    void OnMessageAdded(const QDBusMessage& message);
    void OnCallAdded(const QDBusMessage& message);
    void OnCallStateChanged(const QDBusMessage& message);

private:
    typedef QMap<QString, QVariantMap> Interfaces; // properties by interface

    void open();
    void close();
    void listen(const char* pszInterface, const char* pszSignal, const char* pszSlot);
    void readObjects();
    void takeObject(const QString& strPath, const Interfaces& interfaces);
    bool isWanted(const Interfaces& interfaces) const;
    void choose();
    void update();
    ModemStatus read() const;
    ModemStatus::Lock lock() const;
    int tries() const;
    QVariant property(const char* pszInterface, const char* pszName) const;

    const QString m_strPort; // its path, which may be a link
    QDBusConnection m_bus;
    QDBusServiceWatcher* m_pOwner;
    QTimer m_retry;
    bool m_bBus;
    bool m_bService;
    QMap<QString, Interfaces> m_modems; // by path
    QString m_strModem;
    int m_iMostTries; // -1: as the modem says
    ModemStatus m_status;
};

#endif // LINKHAND_HOST_MODEMMANAGERLINK_H
