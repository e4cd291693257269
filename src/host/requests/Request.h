#ifndef LINKHAND_HOST_REQUESTS_REQUEST_H
#define LINKHAND_HOST_REQUESTS_REQUEST_H

#include <QString>
#include <QStringList>

// What an argument, a link or a drop asks of the program. Nothing of it is done unasked: a number and a message go into
// their form, a file of contacts into a preview, a code is shown.
struct Request {
    enum Kind { NONE, CALL, MESSAGE, CODE, CARDS };

    Kind enKind = NONE;
    QStringList lstNumbers; // to call, to write to; of a code what it says
    QString strExtension;   // of the one to be called
    QString strText;        // of the message
    QString strFile;        // of contacts, an absolute path

    // The request of a text: a "tel:" or "sms:" URI, or the path or "file:" URL of a file called .vcf, .vcard or .csv.
    // A relative path begins at the folder in which the process works.
    static Request Of(const QString& strText);

    // The same text, so that it means the same in a process that works in another folder.
    static QString Portable(const QString& strText);
};

#endif // LINKHAND_HOST_REQUESTS_REQUEST_H
