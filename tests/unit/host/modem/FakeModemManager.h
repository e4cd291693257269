#ifndef LINKHAND_TESTS_FAKEMODEMMANAGER_H
#define LINKHAND_TESTS_FAKEMODEMMANAGER_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

// A ModemManager that does what a test says: an object tree with properties, answers and errors at will, and calls that
// stay unanswered until the test lets them go. It has the bus's name while it runs.
class FakeModemManager : public QDBusVirtualObject
{
    Q_OBJECT

public:
    FakeModemManager();
    ~FakeModemManager() override;

    // Takes the name or gives it back, as a daemon that starts or ends.
    void Run();
    void End();

    // A modem with card, messages and calls, in a network, at the path; and its end.
    QString Plug(int iNumber = 0, const QString& strPort = "ttyUSB0");
    void Unplug(int iNumber = 0);
    static QString ModemPath(int iNumber = 0);

    // Changes properties of an object and tells so. Interfaces without what they all begin with.
    void Set(const QString& strPath, const QString& strInterface, const QVariantMap& values);
    void Lock(uint uiLock, int iTries);

    // The next call of a method gets this error, or stays without an answer until Release.
    void Fail(const QString& strMethod, const QString& strError, const QString& strText = "no");
    void Hold(const QString& strMethod);
    void Release(const QString& strMethod, const QString& strError = QString());
    bool IsHeld(const QString& strMethod) const { return m_held.contains(strMethod); }

    // Something from outside: its path.
    QString Receive(const QString& strNumber, const QString& strText, const QString& strStamp, uint uiState = 3);
    QString Ring(const QString& strNumber);
    void SetCall(const QString& strPath, int iState, uint uiReason);

    // The methods that were called, with their texts: "Create +49 Hello", "Send".
    const QStringList& Calls() const { return m_lstCalls; }
    int Count(const QString& strMethod) const { return m_lstCalls.filter(strMethod).size(); }
    const QMap<QString, QMap<QString, QVariantMap>>& Objects() const { return m_objects; }

    QString introspect(const QString&) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusMessage answer(const QDBusMessage& message);
    QVariantMap wire(const QString& strInterface, const QVariantMap& values) const;
    QVariant interfaces(const QString& strPath) const;
    QString add(const QString& strKind, const QString& strInterface, const QVariantMap& values);
    void signal(const QString& strPath, const QString& strInterface, const QString& strName,
                const QVariantList& arguments);

    QDBusConnection m_bus;
    QMap<QString, QMap<QString, QVariantMap>> m_objects; // properties by path and interface
    QMap<QString, QPair<QString, QString>> m_errors;
    QStringList m_lstHold;
    QMap<QString, QDBusMessage> m_held;
    QStringList m_lstCalls;
    int m_iNext;
    bool m_bRuns;
};

#endif // LINKHAND_TESTS_FAKEMODEMMANAGER_H
