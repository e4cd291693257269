#ifndef LINKHAND_TESTS_FAKECONTACTS_H
#define LINKHAND_TESTS_FAKECONTACTS_H

#include <QCoreApplication>
#include <QMap>
#include <QObject>

#include "shared/HostContacts.h"

// Contacts that a host has read, or will have in a moment.
class FakeContacts : public QObject, public HostContacts
{
    Q_OBJECT

public:
    FakeContacts()
    {
        const HostContacts* pSelf = this;
        QCoreApplication::instance()->setProperty(LINKHAND_HOST_CONTACTS, qlonglong(reinterpret_cast<quintptr>(pSelf)));
    }
    ~FakeContacts() override { QCoreApplication::instance()->setProperty(LINKHAND_HOST_CONTACTS, QVariant()); }

    void Read(bool) override { ++iReadings; }
    QObject* Events() override { return this; }
    QString NameOf(const QString& strNumber) override { return names.value(strNumber); }
    QList<HostContact> Complete(const QString& strBeginning, int) override
    {
        QList<HostContact> listFound;
        foreach (const QString& strNumber, names.keys()) {
            if (strNumber.startsWith(strBeginning) || names[strNumber].startsWith(strBeginning)) {
                HostContact contact;
                contact.strName = names[strNumber];
                contact.strNumber = strNumber;
                listFound << contact;
            }
        }
        return listFound;
    }

    QMap<QString, QString> names; // by number
    int iReadings = 0;

signals:
    void contactsRead();
};

#endif // LINKHAND_TESTS_FAKECONTACTS_H
