#ifndef LINKHAND_HOST_CONTACTLINK_H
#define LINKHAND_HOST_CONTACTLINK_H

#include "device/ContactBook.h"
#include "shared/HostContacts.h"

// The host's contacts for its own plug-ins, published for as long as this lives.
class ContactLink : public HostContacts
{
public:
    ContactLink();
    ~ContactLink() override;

    void Read(bool bAnew) override { m_book.Read(bAnew); }
    QObject* Events() override { return &m_book; }
    QString NameOf(const QString& strNumber) override { return m_book.Index().NameOf(strNumber); }
    QList<HostContact> Complete(const QString& strBeginning, int iAtMost) override
    {
        return m_book.Index().Complete(strBeginning, iAtMost);
    }

private:
    Q_DISABLE_COPY(ContactLink)
    ContactBook m_book;
};

#endif // LINKHAND_HOST_CONTACTLINK_H
