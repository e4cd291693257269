#include "loader/PluginLoader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

#include <sys/stat.h>
#include <unistd.h>

#include "linkhand/plugin/IBasePlugin.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/SharedObject.h"
#include "loader/Verification.h"

namespace
{

// "AddrBookUIPlugin" for ".../libAddrBookUIPlugin.so".
QString nameOfFile(const QString& strFile)
{
    const QString strName = QFileInfo(strFile).completeBaseName();
    return strName.startsWith(QLatin1String("lib")) ? strName.mid(3) : strName;
}

// What others can change they can make run with this user's rights.
bool checkOwner(const QString& strFile, Problem& problem)
{
    struct stat status = {};
    if (stat(QFile::encodeName(strFile).constData(), &status) != 0 || !S_ISREG(status.st_mode)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_UNREADABLE");
    } else if (status.st_uid != 0 && status.st_uid != geteuid()) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_OWNER");
    } else if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_WRITABLE");
    } else {
        return true;
    }
    return false;
}

bool checkVerification(const Verification& verification, Problem& problem)
{
    if (verification.version != Verification::OwnVersion()) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_VERSION");
        problem.strDetail = QString::fromLatin1(verification.version);
    } else if (verification.buildKey != Verification::OwnBuildKey()) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_BUILDKEY");
        problem.strDetail = QString::fromLatin1(verification.buildKey);
    } else {
        return true;
    }
    return false;
}

// The text that the loaded library gives; it counts where the file itself did not show one.
bool queryVerification(const QString& strFile, Verification& verification, Problem& problem)
{
    typedef const char* (*QueryFunction)();
    QLibrary library(strFile);
    // A missing symbol is to be seen now, not in the middle of a click.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load()) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_LOAD");
        problem.strDetail = library.errorString();
        return false;
    }
    const QueryFunction query = reinterpret_cast<QueryFunction>(library.resolve("qt_plugin_query_verification_data"));
    if (query == nullptr || !verification.Parse(query())) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_NO_VERIFICATION");
        library.unload();
        return false;
    }
    return true;
}

} // namespace

QStringList PluginLoader::Files() const
{
    const QDir folder(m_strFolder);
    QStringList lstFiles;
    foreach (const QString& strName,
             folder.entryList(QStringList(QLatin1String("lib*.so")), QDir::Files | QDir::System, QDir::Name)) {
        lstFiles.append(folder.absoluteFilePath(strName));
    }
    return lstFiles;
}

void PluginLoader::LoadAll(PluginContainer& container, ProblemList& problems) const
{
    foreach (const QString& strFile, Files()) {
        Problem problem;
        PluginHandle* pHandle = Load(strFile, problem);
        if (pHandle == nullptr) {
            problems.append(problem);
        } else if (!container.Add(pHandle)) {
            delete pHandle;
            problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_TWICE");
            problems.append(problem);
        }
    }
}

PluginHandle* PluginLoader::Load(const QString& strFile, Problem& problem)
{
    problem = Problem();
    problem.strName = nameOfFile(strFile);
    if (!checkOwner(strFile, problem)) {
        return nullptr;
    }
    if (!SharedObject::IsWhole(strFile)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_NO_LIBRARY");
        return nullptr;
    }
    Verification verification;
    if (verification.ReadFromFile(strFile) && !checkVerification(verification, problem)) {
        return nullptr;
    }
    if (!queryVerification(strFile, verification, problem) || !checkVerification(verification, problem)) {
        return nullptr;
    }
    QPluginLoader loader(strFile);
    QObject* pRoot = loader.instance();
    if (pRoot == nullptr) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_LOAD");
        problem.strDetail = loader.errorString();
        return nullptr;
    }
    if (qobject_cast<IBasePlugin*>(pRoot) == nullptr && qobject_cast<IUIPlugin*>(pRoot) == nullptr) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_INTERFACE");
        delete pRoot;
        return nullptr;
    }
    return new PluginHandle(pRoot);
}
