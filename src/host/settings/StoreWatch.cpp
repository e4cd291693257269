#include "settings/StoreWatch.h"

#include <QFile>
#include <QStringList>

#include "orva/orva_store.h"
#include "settings/DataFolder.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Store_GetForeignChanges

StoreWatch::StoreWatch(QObject* pParent) : QObject(pParent), m_iSeen(0), m_bStarted(false)
{
    connect(&m_watcher, SIGNAL(fileChanged(QString)), this, SLOT(OnChanged()));
    connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(OnChanged()));
}

void StoreWatch::Start()
{
    if (&ORVA_Store_GetForeignChanges == nullptr) {
        return;
    }
    m_bStarted = true;
    m_strStore = DataFolder::Path() + QLatin1String("/local.db");
    ORVA_Store_GetForeignChanges(ORVA_MEMORY_LOCAL, &m_iSeen);
    watchFiles();
}

void StoreWatch::Stop()
{
    m_bStarted = false;
    const QStringList lstPaths = m_watcher.files() + m_watcher.directories();
    if (!lstPaths.isEmpty()) {
        m_watcher.removePaths(lstPaths);
    }
}

bool StoreWatch::TakeChange()
{
    int iCount = m_iSeen;
    if (!m_bStarted || ORVA_Store_GetForeignChanges(ORVA_MEMORY_LOCAL, &iCount) != ORVA_OK || iCount == m_iSeen) {
        return false;
    }
    m_iSeen = iCount;
    return true;
}

// The files come and go: the log with the first who writes, and both where a backup takes the store's place.
void StoreWatch::watchFiles()
{
    const QStringList lstWatched = m_watcher.files() + m_watcher.directories();
    const QStringList lstWanted = QStringList()
                                  << DataFolder::Path() << m_strStore << m_strStore + QLatin1String("-wal");
    foreach (const QString& strPath, lstWanted) {
        if (!lstWatched.contains(strPath) && QFile::exists(strPath)) {
            m_watcher.addPath(strPath);
        }
    }
}

void StoreWatch::OnChanged()
{
    if (m_bStarted) {
        watchFiles();
        emit touched();
    }
}
