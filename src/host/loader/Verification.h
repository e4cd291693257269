#ifndef LINKHAND_HOST_VERIFICATION_H
#define LINKHAND_HOST_VERIFICATION_H

#include <QByteArray>
#include <QFile>

// A plug-in's verification text: what "qt_plugin_query_verification_data" returns.
struct Verification {
    QByteArray version;
    QByteArray buildKey;

    // True if text holds the pattern, the version and the build key.
    bool Parse(const QByteArray& text);

    // Finds and parses the text in the bytes of an open shared object, none of whose code runs. False if the file holds
    // none.
    bool ReadFromFile(QFile& file);

    bool operator==(const Verification& other) const { return version == other.version && buildKey == other.buildKey; }

    // Those of this program.
    static QByteArray OwnVersion();
    static QByteArray OwnBuildKey();
};

#endif // LINKHAND_HOST_VERIFICATION_H
