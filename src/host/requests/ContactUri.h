#ifndef LINKHAND_HOST_REQUESTS_CONTACTURI_H
#define LINKHAND_HOST_REQUESTS_CONTACTURI_H

#include <QByteArray>
#include <QString>
#include <QStringList>

// A "tel:" (RFC 3966) or "sms:" (RFC 5724) URI, as it stands in a link or an argument: written by a stranger, so that
// whatever is not plainly one is none.
struct ContactUri {
    enum Kind {
        NONE,
        CALL,
        MESSAGE,
        CODE // a number of it has "*" or "#": what it does is the network's or the modem's business, never a link's
    };

    Kind enKind = NONE;
    QStringList lstNumbers; // digits, perhaps with "+" before them; of a code what its number says
    QString strExtension;   // of the one to be called
    QString strText;        // of the message; line ends are "\n"

    static ContactUri Of(const QByteArray& uri);
};

#endif // LINKHAND_HOST_REQUESTS_CONTACTURI_H
