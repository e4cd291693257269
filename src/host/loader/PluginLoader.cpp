#include "loader/PluginLoader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>

#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "linkhand/plugin/IBasePlugin.h"
#include "linkhand/plugin/IUIPlugin.h"
#include "loader/PluginContainer.h"
#include "loader/PluginHandle.h"
#include "loader/SharedObject.h"
#include "loader/TrustedPath.h"
#include "loader/Verification.h"

namespace
{

// "AddrBookUIPlugin" for ".../libAddrBookUIPlugin.so".
QString nameOfFile(const QString& strFile)
{
    const QString strName = QFileInfo(strFile).completeBaseName();
    return strName.startsWith(QLatin1String("lib")) ? strName.mid(3) : strName;
}

// Opens the file and looks at who may change what was opened.
bool openTrusted(const QString& strFile, QFile& file, Problem& problem)
{
    const int iFile = open(QFile::encodeName(strFile).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    const bool bLink = iFile < 0 && errno == ELOOP;
    struct stat status = {};
    if (bLink) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_LINK");
    } else if (iFile < 0 || fstat(iFile, &status) != 0 || !S_ISREG(status.st_mode)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_UNREADABLE");
    } else if (!TrustedPath::IsOwned(status)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_OWNER");
    } else if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_WRITABLE");
    } else if (file.open(iFile, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        return true;
    }
    if (iFile >= 0) {
        close(iFile);
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

typedef const char* (*QueryFunction)();
typedef QObject* (*InstanceFunction)();

// Has the library make its root object. Null if it is not what its file said, or no plug-in of this host.
QObject* rootOf(void* pLibrary, const Verification& verification, Problem& problem)
{
    const QueryFunction query = reinterpret_cast<QueryFunction>(dlsym(pLibrary, "qt_plugin_query_verification_data"));
    const InstanceFunction instance = reinterpret_cast<InstanceFunction>(dlsym(pLibrary, "qt_plugin_instance"));
    Verification said;
    if (query == nullptr || !said.Parse(query()) || !(said == verification)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_NO_VERIFICATION");
        return nullptr;
    }
    QObject* pRoot = instance != nullptr ? instance() : nullptr;
    if (qobject_cast<IBasePlugin*>(pRoot) == nullptr && qobject_cast<IUIPlugin*>(pRoot) == nullptr) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_INTERFACE");
        delete pRoot;
        return nullptr;
    }
    return pRoot;
}

} // namespace

QStringList PluginLoader::Files() const
{
    const QDir folder(m_strFolder);
    QStringList lstFiles;
    foreach (const QString& strName, folder.entryList(QDir::Files | QDir::System, QDir::Name)) {
        if (strName.startsWith(QLatin1String("lib"), Qt::CaseInsensitive) &&
            strName.endsWith(QLatin1String(".so"), Qt::CaseInsensitive)) {
            lstFiles.append(folder.absoluteFilePath(strName));
        }
    }
    return lstFiles;
}

void PluginLoader::LoadAll(PluginContainer& container, ProblemList& problems) const
{
    const QString strWeak = QFileInfo(m_strFolder).exists() ? TrustedPath::WeakFolder(m_strFolder) : QString();
    if (!strWeak.isEmpty()) {
        problems.append(Problem(strWeak, "IDS_HOST_PLUGIN_FOLDER"));
        return;
    }
    foreach (const QString& strFile, Files()) {
        Problem problem;
        PluginHandle* pHandle = Load(strFile, problem);
        if (pHandle == nullptr) {
            problems.append(problem);
        } else if (!container.Add(pHandle)) {
            void* pLibrary = pHandle->Library();
            delete pHandle;
            dlclose(pLibrary);
            problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_TWICE");
            problems.append(problem);
        }
    }
}

PluginHandle* PluginLoader::Load(const QString& strFile, Problem& problem)
{
    problem = Problem();
    problem.strName = nameOfFile(strFile);
    if (!TrustedPath::WeakFolder(QFileInfo(strFile).path()).isEmpty()) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_FOLDER");
        return nullptr;
    }
    QFile file;
    if (!openTrusted(strFile, file, problem)) {
        return nullptr;
    }
    Verification verification;
    if (!SharedObject::IsWhole(file)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_NO_LIBRARY");
    } else if (!verification.ReadFromFile(file)) {
        problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_NO_VERIFICATION");
    } else if (checkVerification(verification, problem)) {
        // A missing symbol is to be seen now, not in the middle of a click.
        void* pLibrary = dlopen(QFile::encodeName(strFile).constData(), RTLD_NOW | RTLD_LOCAL);
        if (pLibrary == nullptr) {
            problem.strReasonId = QLatin1String("IDS_HOST_PLUGIN_LOAD");
            problem.strDetail = QString::fromLocal8Bit(dlerror());
            return nullptr;
        }
        QObject* pRoot = rootOf(pLibrary, verification, problem);
        if (pRoot != nullptr) {
            return new PluginHandle(pRoot, pLibrary);
        }
        dlclose(pLibrary);
    }
    return nullptr;
}
