#ifndef LINKHAND_HOST_OUTBOX_H
#define LINKHAND_HOST_OUTBOX_H

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include "messages/OutgoingMessage.h"

class QXmlStreamReader;

// A message that waits for a modem.
struct OutboxEntry {
    int iId = 0; // 1 and up, in the order of arrival
    QDateTime time;
    OutgoingMessage message;
};

// The messages that no modem has taken, kept in a file of the data folder. A change is on disk when its call returns
// true; one that could not be written is taken back. User-interface thread only.
class Outbox : public QObject
{
    Q_OBJECT

public:
    // Reads strFile; a missing one is an empty outbox. A damaged one is set aside under a name with ".damaged".
    explicit Outbox(const QString& strFile, QObject* pParent = nullptr);

    const QList<OutboxEntry>& Entries() const { return m_listEntries; }

    // True if the file was there and could not be read as an outbox.
    bool WasDamaged() const { return m_bDamaged; }

    bool Add(const OutgoingMessage& message);
    bool Remove(int iId);

signals:
    void changed();

private:
    bool load();
    bool readEntry(QXmlStreamReader& reader);
    bool save() const;

    QString m_strFile;
    QList<OutboxEntry> m_listEntries;
    int m_iNextId;
    bool m_bDamaged;
};

#endif // LINKHAND_HOST_OUTBOX_H
