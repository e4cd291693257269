#ifndef LINKHAND_HOST_BUSVALUES_H
#define LINKHAND_HOST_BUSVALUES_H

#include <QMap>
#include <QString>
#include <QVariant>

class QDBusArgument;

// ModemManager's values as they come over the bus.
namespace BusValues
{

// Properties by interface.
QMap<QString, QVariantMap> Interfaces(const QDBusArgument& argument);

QString Path(const QVariant& value);

// Takes apart what can be read only once: "Ports" become names, "SignalQuality" percent, "UnlockRetries" a map of
// numbers by the lock's number. Anything else that is no plain value is left out.
QVariantMap Readable(QVariantMap values);

} // namespace BusValues

#endif // LINKHAND_HOST_BUSVALUES_H
