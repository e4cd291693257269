#include "settings/DataFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include "orva/orva_sdk.h"

namespace
{

QString fromEnvironment(const char* pszName)
{
    return QFile::decodeName(qgetenv(pszName));
}

QString orDefault(const QString& strFolder, const char* pszDefault)
{
    // A relative folder in these variables is to be ignored.
    return strFolder.startsWith(QLatin1Char('/')) ? strFolder : QDir::homePath() + QLatin1String(pszDefault);
}

QString ownPath()
{
    return orDefault(fromEnvironment("XDG_DATA_HOME"), "/.local/share") + QLatin1String("/linkhand");
}

} // namespace

QString DataFolder::Path()
{
    const QString strChosen = fromEnvironment("LINKHAND_DATA_DIR");
    return strChosen.isEmpty() ? ownPath() : QDir(strChosen).absolutePath();
}

bool DataFolder::IsOwn()
{
    return Path() == ownPath();
}

QString DataFolder::SettingsFile()
{
    if (!fromEnvironment("LINKHAND_DATA_DIR").isEmpty()) {
        return Path() + QLatin1String("/linkhand.ini");
    }
    return orDefault(fromEnvironment("XDG_CONFIG_HOME"), "/.config") + QLatin1String("/linkhand/linkhand.ini");
}

void DataFolder::Prepare(const QString& strLogFolder, ProblemList& problems)
{
    const QString strPath = Path();
    if (!QDir().mkpath(strPath)) {
        problems.append(Problem(strPath, "IDS_HOST_PROBLEM_FOLDER_CREATE"));
        return;
    }
    // The access call also knows of read-only mounts, which the mode bits do not show.
    if (access(QFile::encodeName(strPath).constData(), R_OK | W_OK | X_OK) != 0) {
        problems.append(Problem(strPath, "IDS_HOST_PROBLEM_FOLDER_WRITE"));
        return;
    }
    if (strLogFolder.endsWith(QLatin1Char('/'))) {
        QDir().mkpath(strLogFolder);
        QDir().mkpath(QFileInfo(strLogFolder.left(strLogFolder.length() - 1)).path() + QLatin1String("/OnlineUpdate"));
    }
}

QStringList DataFolder::DamagedStores()
{
    QStringList lstStores;
    foreach (const QString& strFile, QDir(Path()).entryList(QDir::Files, QDir::Name)) {
        // SQLite's side files belong to their store.
        if (strFile.contains(QLatin1String(".damaged-"), Qt::CaseInsensitive) &&
            !strFile.endsWith(QLatin1String("-wal")) && !strFile.endsWith(QLatin1String("-shm"))) {
            lstStores.append(strFile);
        }
    }
    return lstStores;
}

void DataFolder::CheckStore(const QStringList& lstKnown, ProblemList& problems)
{
    int iSize = 0;
    const long lResult = ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iSize);
    if (lResult == ORVA_E_VERSION) {
        problems.append(Problem(Path(), "IDS_HOST_PROBLEM_STORE_NEWER"));
    } else if (lResult != ORVA_OK) {
        problems.append(Problem(Path(), "IDS_HOST_PROBLEM_STORE", QString::number(lResult)));
    }
    foreach (const QString& strFile, DamagedStores()) {
        if (!lstKnown.contains(strFile)) {
            problems.append(Problem(Path() + QLatin1Char('/') + strFile, "IDS_HOST_PROBLEM_DAMAGED"));
        }
    }
}
