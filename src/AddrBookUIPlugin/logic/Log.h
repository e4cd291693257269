#ifndef ADDRBOOKUIPLUGIN_LOG_H
#define ADDRBOOKUIPLUGIN_LOG_H

#include <QByteArray>
#include <QTime>
#include <QtDebug>

#include "linkhand/QtCompat.h"

// The log lines of this plug-in: time, source file, function. Logging carries no behaviour, and while debug output is
// off a line costs one test, so that a walk over a large memory does not pay for text that nobody reads.

namespace AddrBookLog
{
inline QByteArray now()
{
    return QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz")).toLatin1();
}

// The name of a source file without the folders it was built in.
constexpr const char* baseName(const char* pszPath)
{
    const char* pszName = pszPath;
    for (const char* psz = pszPath; *psz != '\0'; ++psz)
        if (*psz == '/')
            pszName = psz + 1;
    return pszName;
}
} // namespace AddrBookLog

#define ADDRBOOK_FILE AddrBookLog::baseName(__FILE__)

#define ADDRBOOK_LOG_LINE(words, ...)                                                                                  \
    do {                                                                                                               \
        if (QtCompat::debugEnabled())                                                                                  \
            qDebug("%s: %s: %s " words, AddrBookLog::now().constData(), ADDRBOOK_FILE, __func__, ##__VA_ARGS__);       \
    } while (false)

#define ADDRBOOK_LOG_ENTER() ADDRBOOK_LOG_LINE("Enter")
#define ADDRBOOK_LOG_EXIT() ADDRBOOK_LOG_LINE("Exit")
#define ADDRBOOK_LOG_CALLED() ADDRBOOK_LOG_LINE("called")

// Without the time, as some sources have it: "%s: %s: " and a text of the caller's.
#define ADDRBOOK_LOG_UNTIMED(format, ...)                                                                              \
    do {                                                                                                               \
        if (QtCompat::debugEnabled())                                                                                  \
            qDebug("%s: %s: " format, ADDRBOOK_FILE, __func__, ##__VA_ARGS__);                                         \
    } while (false)

// "%s: %s: %s: " and a text of the caller's.
#define ADDRBOOK_LOG(format, ...)                                                                                      \
    do {                                                                                                               \
        if (QtCompat::debugEnabled())                                                                                  \
            qDebug("%s: %s: %s: " format, AddrBookLog::now().constData(), ADDRBOOK_FILE, __func__, ##__VA_ARGS__);     \
    } while (false)

#define ADDRBOOK_WARN(format, ...)                                                                                     \
    qWarning("%s: %s: %s: " format, AddrBookLog::now().constData(), ADDRBOOK_FILE, __func__, ##__VA_ARGS__)

#endif // ADDRBOOKUIPLUGIN_LOG_H
