#include <QObject>

#include "linkhand/QtCompat.h"
#include "linkhand/plugin/PluginVerification.h"

LINKHAND_EXPORT_VERIFICATION()

// A Qt plug-in, but none of this host.
class NoInterface : public QObject
{
    Q_OBJECT
    LINKHAND_PLUGIN_METADATA("org.example.Something")
};

#include "NoInterface.moc"
