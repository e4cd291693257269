#include "device/BusValues.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QStringList>

namespace
{

// The names of the ports in a modem's list of names and kinds.
QStringList portsOf(const QVariant& value)
{
    QStringList lstPorts;
    if (!value.canConvert<QDBusArgument>()) {
        return lstPorts;
    }
    const QDBusArgument argument = value.value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString strName;
        uint uiKind = 0;
        argument.beginStructure();
        argument >> strName >> uiKind;
        argument.endStructure();
        lstPorts.append(strName);
    }
    argument.endArray();
    return lstPorts;
}

int signalOf(const QVariant& value)
{
    if (!value.canConvert<QDBusArgument>()) {
        return -1;
    }
    const QDBusArgument argument = value.value<QDBusArgument>();
    uint uiPercent = 0;
    bool bRecent = false;
    argument.beginStructure();
    argument >> uiPercent >> bRecent;
    argument.endStructure();
    return int(qMin(uiPercent, 100u));
}

QMap<uint, uint> countsOf(const QVariant& value)
{
    QMap<uint, uint> counts;
    if (!value.canConvert<QDBusArgument>()) {
        return counts;
    }
    const QDBusArgument argument = value.value<QDBusArgument>();
    argument.beginMap();
    while (!argument.atEnd()) {
        uint uiKey = 0;
        uint uiValue = 0;
        argument.beginMapEntry();
        argument >> uiKey >> uiValue;
        argument.endMapEntry();
        counts.insert(uiKey, uiValue);
    }
    argument.endMap();
    return counts;
}

} // namespace

QMap<QString, QVariantMap> BusValues::Interfaces(const QDBusArgument& argument)
{
    QMap<QString, QVariantMap> interfaces;
    argument.beginMap();
    while (!argument.atEnd()) {
        QString strName;
        QVariantMap values;
        argument.beginMapEntry();
        argument >> strName >> values;
        argument.endMapEntry();
        interfaces.insert(strName, values);
    }
    argument.endMap();
    return interfaces;
}

QString BusValues::Path(const QVariant& value)
{
    return value.value<QDBusObjectPath>().path();
}

QVariantMap BusValues::Readable(QVariantMap values)
{
    for (QVariantMap::iterator it = values.begin(); it != values.end(); ++it) {
        if (it.key() == QLatin1String("Ports")) {
            it.value() = portsOf(it.value());
        } else if (it.key() == QLatin1String("SignalQuality")) {
            it.value() = signalOf(it.value());
        } else if (it.key() == QLatin1String("UnlockRetries")) {
            QVariantMap tries;
            const QMap<uint, uint> counts = countsOf(it.value());
            for (QMap<uint, uint>::const_iterator count = counts.begin(); count != counts.end(); ++count) {
                tries.insert(QString::number(count.key()), count.value());
            }
            it.value() = tries;
        } else if (it.value().canConvert<QDBusArgument>()) {
            it.value() = QVariant();
        }
    }
    return values;
}
