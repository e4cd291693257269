#ifndef LINKHAND_HOST_TESTSOCKET_H
#define LINKHAND_HOST_TESTSOCKET_H

#include <QByteArray>
#include <QHash>
#include <QObject>

class QSocketNotifier;

// Serves WidgetQueries on a Unix socket of the user's own, at the path that the environment variable
// LINKHAND_TEST_SOCKET gives. Without the variable nothing is opened. A query is one line; the answer is "ok N" and N
// lines, or "none".
class TestSocket : public QObject
{
    Q_OBJECT

public:
    explicit TestSocket(QObject* pParent = nullptr);
    ~TestSocket() override;

private slots:
    void OnConnection();
    void OnReadable(int iSocket);

private:
    void answer(int iSocket, const QByteArray& query);

    struct Connection {
        QSocketNotifier* pNotifier;
        QByteArray pending; // what has come of the next query
    };

    int m_iListener;
    QByteArray m_path;
    QSocketNotifier* m_pListening;
    QHash<int, Connection> m_hashConnections; // by socket
};

#endif // LINKHAND_HOST_TESTSOCKET_H
