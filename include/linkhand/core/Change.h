#ifndef LINKHAND_CORE_CHANGE_H
#define LINKHAND_CORE_CHANGE_H

#include <QKeySequence>
#include <QString>

#include "linkhand/core/CoreExport.h"

// Texts and shortcut keys from the language files. User-interface thread only.
class LINKHAND_CORE_API Change
{
public:
    // The text of strId in the current language, for the plug-in named. A text missing there is taken from English;
    // an id unknown to both comes back as it is.
    static QString tr(const QString& strId, const QString& strPlugin);

    // The same, into strText, with the id's shortcut in key (empty if it has none). True if it has one.
    static bool tr(const QString& strId, const QString& strPlugin, QString& strText, QKeySequence& key);
};

#endif // LINKHAND_CORE_CHANGE_H
