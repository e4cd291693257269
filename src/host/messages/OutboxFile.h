#ifndef LINKHAND_HOST_OUTBOXFILE_H
#define LINKHAND_HOST_OUTBOXFILE_H

#include <QByteArray>
#include <QDateTime>
#include <QList>

#include "messages/OutgoingMessage.h"

// The outbox as earlier releases kept it, an XML file: read once, to be taken over.
struct OutboxFile {
    struct Entry {
        QDateTime time; // invalid where the file does not tell
        OutgoingMessage message;
    };

    QList<Entry> listEntries;
    bool bDamaged = false; // there is more in it than could be read

    // Reads what can be read: of a damaged file each message that stands in it whole.
    static OutboxFile Read(const QByteArray& content);
};

#endif // LINKHAND_HOST_OUTBOXFILE_H
