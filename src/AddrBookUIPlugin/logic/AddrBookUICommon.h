#ifndef ADDRBOOKUIPLUGIN_ADDRBOOKUICOMMON_H
#define ADDRBOOKUIPLUGIN_ADDRBOOKUICOMMON_H

#include <QObject>
#include <QString>

#include "logic/AddrBookTypes.h"

// Texts of the memories' tree nodes. Static helpers; user-interface thread.
class AddrBookUICommon : public QObject
{
    Q_OBJECT

public:
    // The word for the card: the setting "uimtype" or "simtype" of section "customize", after the product's type.
    static QString GetUserIdentityByString();

    // The label of a memory's node; empty for the local memory.
    static QString GetNodeText(ADDRBOOK_TYPE enType);
    static QString GetSIMText();

private:
    static QString m_sstrUserIdentity;
};

#endif // ADDRBOOKUIPLUGIN_ADDRBOOKUICOMMON_H
