#ifndef LINKHAND_HOST_MESSAGESTORE_H
#define LINKHAND_HOST_MESSAGESTORE_H

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "messages/Database.h"
#include "messages/OutgoingMessage.h"

// A message that waits for a modem.
struct StoredMessage {
    int iId = 0; // 1 and up, in the order of arrival, never used again
    QDateTime time;
    OutgoingMessage message;
};

// A call that is over.
struct StoredCall {
    int iId = 0;
    QString strNumber;
    int iType = 0; // HostCallType
    QDateTime time;
    int iSeconds = 0;
};

// The user's messages and calls, in "messages.db" of the data folder. Several programs may use it at once. A change is
// on disk when its call returns true, and has not happened when that returns false. User-interface thread only.
class MessageStore : public QObject
{
    Q_OBJECT

public:
    // Opens the store of a data folder, and makes it with the first change. The outbox of an earlier release is taken
    // over. A damaged file is put aside under a name of its own, and what can be read of it is taken over, too.
    explicit MessageStore(const QString& strFolder, QObject* pParent = nullptr);

    // The files that were found damaged and put aside, by their paths.
    const QStringList& Damaged() const { return m_lstDamaged; }

    // False if what is there was written by a later release, or cannot be opened.
    bool IsUsable() const { return m_bUsable; }

    // As last read.
    const QList<StoredMessage>& Messages() const { return m_listMessages; }
    bool Add(const OutgoingMessage& message);

    // False also where there is no such message, such as one that another program has removed.
    bool Remove(int iId);

    // The latest last.
    QList<StoredCall> Calls();
    bool AddCall(const QString& strNumber, int iType, const QDateTime& time, int iSeconds);

public slots:
    // Reads again if another program has changed something.
    void Refresh();

signals:
    // The messages are others than before.
    void changed();

private:
    bool exists() const;
    bool open();
    bool openFile();
    bool isSound();
    bool mend();
    bool placeMended();
    static bool migrate(Database& database);
    static void takeOver(Database& source, Database& target, const char* pszDirection);
    bool takeOverOutbox();
    int change(const char* pszSql, const QVariantList& listValues);
    QString putAside(const QString& strFile);
    bool read();

    const QString m_strFolder;
    const QString m_strFile;
    Database m_database;
    bool m_bUsable;
    qint64 m_iVersion; // of the data, as this connection saw it last
    QStringList m_lstDamaged;
    QList<StoredMessage> m_listMessages;
};

#endif // LINKHAND_HOST_MESSAGESTORE_H
