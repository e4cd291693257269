#ifndef LINKHAND_HOST_MODEMMANAGERLINK_H
#define LINKHAND_HOST_MODEMMANAGERLINK_H

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariant>

#include "device/BusService.h"
#include "device/ModemStatus.h"

class QDBusPendingCallWatcher;

// ModemManager on the system bus, and the one modem of it that this program uses. A bus that is not there, a daemon
// that goes and returns, a modem that is pulled are states that pass: it looks again by itself. Nothing waits for an
// answer. User-interface thread only.
class ModemManagerLink : public QObject
{
    Q_OBJECT

public:
    // With the path of a port only the modem that has it; with an empty one the first modem that there is.
    explicit ModemManagerLink(const QString& strPort, QObject* pParent = nullptr);

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
    void OnBusChanged();
    void OnOwnerChanged();
    void OnHeard(const QDBusMessage& message);
    void OnManagedObjects(QDBusPendingCallWatcher* pWatcher);
    void OnRefreshed(QDBusPendingCallWatcher* pWatcher);

private:
    typedef QMap<QString, QVariantMap> Interfaces; // properties by interface

    void readObjects();
    void interfacesAdded(const QDBusMessage& message);
    void interfacesRemoved(const QDBusMessage& message);
    void propertiesChanged(const QDBusMessage& message);
    void takeObject(const QString& strPath, const Interfaces& interfaces);
    bool isWanted(const Interfaces& interfaces) const;
    void choose();
    void update();
    ModemStatus read() const;
    ModemStatus::Lock lock() const;
    int tries() const;
    QVariant property(const char* pszInterface, const char* pszName) const;

    const QString m_strPort; // its path, which may be a link
    BusService m_bus;
    QTimer m_retry;
    bool m_bService;                    // it has answered
    QMap<QString, Interfaces> m_modems; // by path
    QString m_strModem;
    int m_iMostTries; // -1: as the modem says
    ModemStatus m_status;
};

#endif // LINKHAND_HOST_MODEMMANAGERLINK_H
