#include "app/ContactLink.h"

ContactLink::ContactLink()
{
    const HostContacts* pSelf = this;
    QCoreApplication::instance()->setProperty(LINKHAND_HOST_CONTACTS,
                                              QVariant(static_cast<qlonglong>(reinterpret_cast<quintptr>(pSelf))));
}

ContactLink::~ContactLink()
{
    QCoreApplication::instance()->setProperty(LINKHAND_HOST_CONTACTS, QVariant());
}
