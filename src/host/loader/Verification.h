#ifndef LINKHAND_HOST_VERIFICATION_H
#define LINKHAND_HOST_VERIFICATION_H

#include <QByteArray>
#include <QString>

// A plug-in's verification text: what "qt_plugin_query_verification_data" returns.
struct Verification {
    QByteArray version;
    QByteArray buildKey;

    // True if text holds the pattern, the version and the build key.
    bool Parse(const QByteArray& text);

    // Finds and parses the text in the bytes of a shared object, before any of its code runs. False if the file holds
    // none, also where the plug-in puts it together only at run time.
    bool ReadFromFile(const QString& strFile);

    // Those of this program.
    static QByteArray OwnVersion();
    static QByteArray OwnBuildKey();
};

#endif // LINKHAND_HOST_VERIFICATION_H
