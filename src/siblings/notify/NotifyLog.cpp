#include "notify/NotifyLog.h"

#include <QDateTime>

namespace
{

const qint64 LARGEST = 1024 * 1024;
const int GATHER_MS = 500;

} // namespace

NotifyLog::NotifyLog(const QString& strFolder)
    : m_file(strFolder.isEmpty() ? QString() : strFolder + QLatin1String("notifications.log"))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(Flush()));
    open();
}

NotifyLog::~NotifyLog()
{
    m_file.close();
}

void NotifyLog::Append(const QString& strLine)
{
    if (!m_file.isOpen()) {
        return;
    }
    const QString strTime = QDateTime::currentDateTime().toString(Qt::ISODate);
    m_file.write((strTime + QLatin1Char(' ') + strLine + QLatin1Char('\n')).toUtf8());
    if (!m_timer.isActive()) {
        m_timer.start(GATHER_MS);
    }
}

void NotifyLog::Flush()
{
    m_file.flush();
    if (m_file.size() > LARGEST) {
        m_file.close();
        const QString strName = m_file.fileName();
        QFile::remove(strName + QLatin1String(".1"));
        QFile::rename(strName, strName + QLatin1String(".1"));
        open();
    }
}

void NotifyLog::open()
{
    if (!m_file.fileName().isEmpty() && m_file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
}
