#ifndef ADDRBOOKUIPLUGIN_DRAGFORMAT_H
#define ADDRBOOKUIPLUGIN_DRAGFORMAT_H

#include <QString>

// The names that a drag of contacts is told by. They are the system's own, and the capitals matter.
inline QString dragIdsFormat()
{
    return QLatin1String("Text/stringids");
}

inline QString dragColourFormat()
{
    return QLatin1String("Text/colordata");
}

// Stands behind each identifier, so that a valid text ends in it.
inline QString dragSeparator()
{
    return QLatin1String("-1");
}

#endif // ADDRBOOKUIPLUGIN_DRAGFORMAT_H
