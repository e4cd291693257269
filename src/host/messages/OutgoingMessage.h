#ifndef LINKHAND_HOST_OUTGOINGMESSAGE_H
#define LINKHAND_HOST_OUTGOINGMESSAGE_H

#include <QString>
#include <QStringList>

// A message on its way to the modem.
struct OutgoingMessage {
    int iKind = 0; // HostMessageKind
    QStringList lstNumbers;
    QString strSubject; // MMS only
    QString strText;
};

#endif // LINKHAND_HOST_OUTGOINGMESSAGE_H
