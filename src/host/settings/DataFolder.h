#ifndef LINKHAND_HOST_DATAFOLDER_H
#define LINKHAND_HOST_DATAFOLDER_H

#include <QString>
#include <QStringList>

#include "text/Problem.h"

// The folder of the user's contacts, outbox and logs: LINKHAND_DATA_DIR, else $XDG_DATA_HOME/linkhand.
namespace DataFolder
{

// The folder's path, without a trailing slash.
QString Path();

// True for the user's own folder, where it is without anybody choosing another.
bool IsOwn();

// The user's INI file: in a data folder that was chosen explicitly, else $XDG_CONFIG_HOME/linkhand/linkhand.ini.
QString SettingsFile();

// Makes the folder, for its owner only, with the folder "OnlineUpdate" beside the log folder that strLogFolder (ending
// in "/") names. Appends to problems what did not work.
void Prepare(const QString& strLogFolder, ProblemList& problems);

// The stores that were found damaged and put aside in the data folder, by file name.
QStringList DamagedStores();

// Appends to problems what the phonebook's store reports about itself, and the damaged stores beyond lstKnown.
void CheckStore(const QStringList& lstKnown, ProblemList& problems);

} // namespace DataFolder

#endif // LINKHAND_HOST_DATAFOLDER_H
