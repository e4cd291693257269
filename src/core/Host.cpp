#include "Host.h"

#include <atomic>

#include <QCoreApplication>
#include <QThread>
#include <QVariant>

namespace
{
// Dynamic properties belong to the user-interface thread; workers read this copy.
std::atomic<HostServices*> s_pServices(nullptr);
} // namespace

HostServices* Host::services()
{
    HostServices* pServices = nullptr;
    if (const QCoreApplication* pApp = QCoreApplication::instance()) {
        const qlonglong iAddress = pApp->property(LINKHAND_HOST_SERVICES).toLongLong();
        pServices = reinterpret_cast<HostServices*>(static_cast<quintptr>(iAddress));
    }
    s_pServices.store(pServices, std::memory_order_release);
    return pServices;
}

HostServices* Host::servicesFromAnyThread()
{
    const QCoreApplication* pApp = QCoreApplication::instance();
    if (pApp != nullptr && QThread::currentThread() == pApp->thread())
        return services();
    return s_pServices.load(std::memory_order_acquire);
}

QString Host::libraryPath()
{
    HostServices* pServices = services();
    QString strPath = pServices != nullptr ? pServices->LibraryPath() : QString();
    if (strPath.isEmpty())
        strPath = QCoreApplication::applicationDirPath();
    while (strPath.length() > 1 && strPath.endsWith(QLatin1Char('/')))
        strPath.chop(1);
    return strPath;
}
