#include "loader/WorkerCount.h"

namespace
{

QString nameOf(const QString& strFile, const QString& strFunction)
{
    return strFile + QLatin1String(": ") + strFunction;
}

} // namespace

void WorkerCount::Increment(const QString& strFile, const QString& strFunction)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    ++m_hashNames[nameOf(strFile, strFunction)];
    ++m_iRunning;
}

void WorkerCount::Decrement(const QString& strFile, const QString& strFunction)
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    QHash<QString, int>::iterator it = m_hashNames.find(nameOf(strFile, strFunction));
    if (it == m_hashNames.end()) {
        return;
    }
    if (--it.value() == 0) {
        m_hashNames.erase(it);
    }
    --m_iRunning;
}

QStringList WorkerCount::Names() const
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    return m_hashNames.keys();
}
