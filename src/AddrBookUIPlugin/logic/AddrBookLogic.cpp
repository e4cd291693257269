#include "logic/AddrBookLogic.h"

#include <QCoreApplication>
#include <QThread>

#include <new>

#include "logic/Log.h"
#include "logic/LogicUser.h"

std::atomic<AddrBookLogic*> AddrBookLogic::m_pInstance(nullptr);
std::atomic<bool> AddrBookLogic::m_bPbServiceReady(false);

AddrBookLogic::AddrBookLogic() : m_iMobileIndex(1), m_iDeviceGeneration(0)
{
    ADDRBOOK_LOG_CALLED();
    resetState();
}

AddrBookLogic::~AddrBookLogic()
{
    ADDRBOOK_LOG_CALLED();
    resetState();
}

void AddrBookLogic::resetState()
{
    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    m_hashRecordCount[PB_MEM_LOCAL] = 0;
    m_hashRecordCount[PB_MEM_SIM] = 0;
    m_hashRecordCount[PB_MEM_ME] = 0;
    m_bPbServiceReady = false;
}

AddrBookLogic* AddrBookLogic::Instance()
{
    // A worker that comes after the end must not bring the object back.
    const QCoreApplication* const pApplication = QCoreApplication::instance();
    if (m_pInstance == nullptr && pApplication != nullptr && pApplication->thread() == QThread::currentThread())
        m_pInstance = new (std::nothrow) AddrBookLogic;
    return m_pInstance;
}

void AddrBookLogic::Destroy()
{
    LogicUser::endAll();
    delete m_pInstance.exchange(nullptr);
}

void AddrBookLogic::ClearDeviceInfo()
{
    ADDRBOOK_LOG_CALLED();
    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    m_hashFields.remove(PB_MEM_SIM);
    m_hashFields.remove(PB_MEM_ME);
    ++m_iDeviceGeneration;
}

int AddrBookLogic::GetMobileIndex()
{
    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    return m_iMobileIndex;
}

void AddrBookLogic::setRecordCount(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iCount)
{
    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    m_hashRecordCount[enMemory] = iCount;
}

int AddrBookLogic::recordCount(_ORVA_EN_PHONEBOOK_MEMORY enMemory) const
{
    const std::lock_guard<std::mutex> locker(m_mutexCaches);
    return m_hashRecordCount.value(enMemory);
}
