#ifndef LINKHAND_HOST_BUSSERVICE_H
#define LINKHAND_HOST_BUSSERVICE_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QTimer>

class QDBusPendingCallWatcher;

// One service of the system bus, called and heard without ever waiting for the bus: Qt's own way waits for its welcome
// and for its answer to each wish to hear something, half a minute if the bus hangs, and so do all other buses of the
// process. A bus that is not there or goes is looked for again. User-interface thread only.
class BusService : public QObject
{
    Q_OBJECT

public:
    explicit BusService(const QString& strName, QObject* pParent = nullptr);
    ~BusService() override;

    // A signal of the service that heard() passes on. Before Start.
    void Listen(const char* pszInterface, const char* pszMember);

    void Start();

    // The bus has welcomed us.
    bool HasBus() const { return m_bWelcome; }

    // As far as is known.
    bool IsRunning() const { return !m_strOwner.isEmpty(); }

    // Calls a method of the service, which is not started for that.
    QDBusPendingCall Call(const QString& strPath, const QString& strInterface, const QString& strMethod,
                          const QVariantList& listArguments = QVariantList(), int iTimeoutMs = -1) const;

    // Gives the answer to a slot that takes a QDBusPendingCallWatcher* and releases it with deleteLater. With the bus
    // the question goes unanswered.
    QDBusPendingCallWatcher* Watch(const QDBusPendingCall& call, QObject* pReceiver, const char* pszSlot);

signals:
    void busChanged();

    // The service has come or gone, or is another run of it. Its bus may have gone with it.
    void ownerChanged();
    void heard(const QDBusMessage& message);

private slots:
    void OnRetry();
    void OnWelcomed(QDBusPendingCallWatcher* pWatcher);
    void OnOwnerTold(QDBusPendingCallWatcher* pWatcher);
    void OnOwnerChanged(const QDBusMessage& message);
    void OnDisconnected();
    void OnSignal(const QDBusMessage& message);

private:
    QDBusPendingCall ask(const char* pszMethod, const QString& strArgument = QString()) const;
    void hear(const QString& strSender, const QString& strInterface, const QString& strMember, const char* pszSlot);
    void close();
    void setOwner(const QString& strOwner);

    const QString m_strName;
    QDBusConnection m_bus;
    QList<QPair<QString, QString>> m_listWanted; // interface and member
    QTimer m_retry;
    bool m_bOpen;
    bool m_bWelcome;
    bool m_bOwnerTold; // by a change, which is newer than any answer
    QString m_strOwner;
};

#endif // LINKHAND_HOST_BUSSERVICE_H
