#ifndef LINKHAND_HOST_MESSAGESTORE_H
#define LINKHAND_HOST_MESSAGESTORE_H

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "messages/Database.h"
#include "messages/OutgoingMessage.h"

// What has become of a message. The numbers stand in the file.
enum MessageState {
    MESSAGE_SIMULATED = 0, // it was given to the simulated modem: nothing has left
    MESSAGE_DRAFT = 1,     // it was not sent
    MESSAGE_UNCERTAIN = 2, // it was given to a modem, and nobody knows what that did with it
    MESSAGE_SENT = 3,      // the network has taken it
    MESSAGE_FAILED = 4,    // nothing of it has left
    MESSAGE_PARTLY = 5,    // a later part of it was refused
    MESSAGE_RECEIVED = 6
};

// A message of this user, with the other side's numbers.
struct StoredMessage {
    int iId = 0; // 1 and up, in the order of arrival, never used again
    QDateTime time;
    OutgoingMessage message;
    int iState = MESSAGE_SIMULATED;
    QString strDetail; // why it was not sent, in a modem's words; of a received one, the network's time stamp

    // True if nothing of it has left, and nobody has pretended so.
    bool IsUnsent() const { return iState == MESSAGE_DRAFT || iState == MESSAGE_FAILED; }
};

// A call that is over. The numbers stand in the file; what earlier releases did not keep is unknown.
struct StoredCall {
    int iId = 0; // 1 and up, never used again
    QString strNumber;
    int iType = 0;       // HostCallType
    QDateTime time;      // at which it began
    int iSeconds = 0;    // for which it was active
    int iDirection = 2;  // HostCallDirection
    int iEnd = -1;       // how it ended, a HostCallProgress; -1: nobody knows
    int iSimulated = -1; // 0 or 1; -1: nobody knows
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
    bool Add(const OutgoingMessage& message) { return Add(message, MESSAGE_SIMULATED) != 0; }

    // The same with what has become of it, and why; its identifier, 0 on failure.
    int Add(const OutgoingMessage& message, MessageState enState, const QString& strDetail = QString(),
            const QDateTime& time = QDateTime());
    bool SetState(int iId, MessageState enState, const QString& strDetail = QString());

    // Makes a draft or a message that was not sent this draft, of this moment. False for any other, and where there is
    // none.
    bool Replace(int iId, const OutgoingMessage& message);

    // The message with this identifier, with 0 for one if there is none.
    StoredMessage Message(int iId) const;

    // The identifier of a received message, 0 if it is not there.
    int Received(const QString& strNumber, const QString& strText, const QString& strStamp) const;

    // False also where there is no such message, such as one that another program has removed.
    bool Remove(int iId);

    // By the time at which they began, the latest first: iAtMost of them, or all with -1, behind the first iSkipped.
    QList<StoredCall> Calls(int iSkipped = 0, int iAtMost = -1);

    // The call's identifier counts for nothing.
    bool AddCall(const StoredCall& call);

    // False also where there is no such call.
    bool RemoveCall(int iId);

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
    static void takeOverCalls(Database& source, Database& target, const char* pszDirection);
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
