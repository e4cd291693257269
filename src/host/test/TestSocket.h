#ifndef LINKHAND_HOST_TESTSOCKET_H
#define LINKHAND_HOST_TESTSOCKET_H

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPair>

class QSocketNotifier;

// Serves WidgetQueries on a Unix socket of the user's own. A query is one line; the answer is "ok N" and N lines, or
// "none".
class TestSocket : public QObject
{
    Q_OBJECT

public:
    // Listens at path, where nothing may lie yet; an empty path opens nothing. The umask says who may connect.
    explicit TestSocket(const QByteArray& path);

    // Takes the socket's file away, unless something else has come in its place.
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
    QPair<quint64, quint64> m_identity; // of the socket's file: device and inode; zeros while there is none
    QSocketNotifier* m_pListening;
    QHash<int, Connection> m_hashConnections; // by socket
};

#endif // LINKHAND_HOST_TESTSOCKET_H
