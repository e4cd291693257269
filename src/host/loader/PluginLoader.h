#ifndef LINKHAND_HOST_PLUGINLOADER_H
#define LINKHAND_HOST_PLUGINLOADER_H

#include <QString>
#include <QStringList>

#include "text/Problem.h"

class PluginContainer;
class PluginHandle;

// Loads the plug-ins of one folder. A file that does not pass is a Problem with its name and reason, nothing of it
// stays loaded, and the next one is tried. Order of the tests: who may change the folder and those above it, the file
// itself, which must be no link, and whether it is whole; its verification text, read from the file; then its code
// runs, and must give the same text and an object with the interfaces. The file is opened once for what is read of it,
// and once more by the dynamic linker: in between, only those may change it who may change everything else of this
// user. User-interface thread only.
class PluginLoader
{
public:
    explicit PluginLoader(const QString& strFolder) : m_strFolder(strFolder) {}

    // The shared objects in the folder, by name.
    QStringList Files() const;

    // Loads all into container; problems gets those that were refused.
    void LoadAll(PluginContainer& container, ProblemList& problems) const;

    // Loads one file. Null, with the reason in problem, if it was refused; otherwise the caller owns the handle.
    static PluginHandle* Load(const QString& strFile, Problem& problem);

private:
    QString m_strFolder;
};

#endif // LINKHAND_HOST_PLUGINLOADER_H
