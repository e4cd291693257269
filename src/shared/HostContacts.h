#ifndef LINKHAND_SHARED_HOSTCONTACTS_H
#define LINKHAND_SHARED_HOSTCONTACTS_H

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

// The contacts as this host's own plug-ins see them: names and numbers, found at once in what was last read. Published
// like HostLink; absent in any other host. User-interface thread only.
#define LINKHAND_HOST_CONTACTS "linkhand.hostContacts"

// One number of a contact.
struct HostContact {
    QString strName;
    QString strNumber;
};

class HostContacts
{
public:
    virtual ~HostContacts() {}

    // Has the contacts read in the background, unless that was done a moment ago; with bAnew also then, since somebody
    // may have changed one.
    virtual void Read(bool bAnew) = 0;

    // The object that signals contactsRead() whenever that was done.
    virtual QObject* Events() = 0;

    // The contact with this number, however that is written; empty if there is none, or nothing has been read yet.
    virtual QString NameOf(const QString& strNumber) = 0;

    // At most iAtMost numbers of contacts whose name has words that begin so, or that begin so themselves, with or
    // without what stands before a number of the same country or another one. The first by name for an empty text.
    virtual QList<HostContact> Complete(const QString& strBeginning, int iAtMost) = 0;

    // What the host has published, or null.
    static HostContacts* Instance()
    {
        const QVariant contacts = QCoreApplication::instance()->property(LINKHAND_HOST_CONTACTS);
        return reinterpret_cast<HostContacts*>(static_cast<quintptr>(contacts.toLongLong()));
    }
};

#endif // LINKHAND_SHARED_HOSTCONTACTS_H
