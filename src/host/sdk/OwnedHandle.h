#ifndef LINKHAND_HOST_OWNEDHANDLE_H
#define LINKHAND_HOST_OWNEDHANDLE_H

#include <utility>

#include "orva/orva_sdk.h"

// A handle of the SDK, released at the end of its scope by the operation of its kind. Movable, not to be copied:
// ORVA_PBSrv_GetAddrRecord(iId, iMemory, record.Out()).
template <long (*Release)(void*)>
class OwnedHandle
{
public:
    OwnedHandle() : m_pHandle(nullptr) {}
    OwnedHandle(OwnedHandle&& other) noexcept : m_pHandle(other.m_pHandle) { other.m_pHandle = nullptr; }
    OwnedHandle& operator=(OwnedHandle&& other) noexcept
    {
        std::swap(m_pHandle, other.m_pHandle);
        return *this;
    }
    OwnedHandle(const OwnedHandle&) = delete;
    OwnedHandle& operator=(const OwnedHandle&) = delete;
    ~OwnedHandle() { release(); }

    bool IsNull() const { return m_pHandle == nullptr; }
    void* Get() const { return m_pHandle; }

    // Where the SDK is to put its handle.
    void** Out()
    {
        release();
        return &m_pHandle;
    }

private:
    void release()
    {
        if (m_pHandle != nullptr) {
            Release(m_pHandle);
        }
        m_pHandle = nullptr;
    }

    void* m_pHandle;
};

typedef OwnedHandle<ORVA_PBSrv_AddrRecord_Release> OwnedRecord;
typedef OwnedHandle<ORVA_PBSrv_AddrRecordSet_Release> OwnedRecordSet;

#endif // LINKHAND_HOST_OWNEDHANDLE_H
