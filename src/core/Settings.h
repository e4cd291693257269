#ifndef LINKHAND_CORE_SETTINGS_H
#define LINKHAND_CORE_SETTINGS_H

#include <QString>

// The host's configuration. User-interface thread only.
namespace Settings
{

// The value of a key: the user's, also an empty one, else the shipped default, else empty.
QString value(const QString& strSection, const QString& strKey);

} // namespace Settings

#endif // LINKHAND_CORE_SETTINGS_H
