#ifndef LINKHAND_HOST_HOSTTEXT_H
#define LINKHAND_HOST_HOSTTEXT_H

#include <QString>

#include "linkhand/core/Change.h"

// The host's own texts, in the language files under the context "linkhand".
namespace HostText
{

inline QString Get(const QString& strId)
{
    return Change::tr(strId, QLatin1String("linkhand"));
}
inline QString Get(const char* pszId)
{
    return Get(QString::fromLatin1(pszId));
}

} // namespace HostText

#endif // LINKHAND_HOST_HOSTTEXT_H
