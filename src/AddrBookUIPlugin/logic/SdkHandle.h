#ifndef ADDRBOOKUIPLUGIN_SDKHANDLE_H
#define ADDRBOOKUIPLUGIN_SDKHANDLE_H

#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

// A handle of the SDK, released at the end of its scope by the operation of its kind; a failed release is only logged.
// Movable, not to be copied. SDK_CALL(lResult, ORVA_PBSrv_GetAddrRecord, (id, memory, &record.out())).
template <class Kind>
class SdkHandle
{
public:
    explicit SdkHandle(const char* pszFile = SDK_CALLER_FILE, const char* pszFunction = SDK_CALLER_FUNCTION)
        : m_hHandle(nullptr), m_caller(pszFile, pszFunction)
    {
    }
    SdkHandle(SdkHandle&& other) noexcept : m_hHandle(other.m_hHandle), m_caller(other.m_caller)
    {
        other.m_hHandle = nullptr;
    }
    SdkHandle& operator=(SdkHandle&& other) noexcept
    {
        if (this != &other) {
            release();
            m_hHandle = other.m_hHandle;
            other.m_hHandle = nullptr;
        }
        return *this;
    }
    SdkHandle(const SdkHandle&) = delete;
    SdkHandle& operator=(const SdkHandle&) = delete;
    ~SdkHandle() { release(); }

    bool isNull() const { return m_hHandle == nullptr; }
    void* get() const { return m_hHandle; }

    // Where the SDK is to put its handle.
    void*& out()
    {
        release();
        return m_hHandle;
    }

    void release()
    {
        if (m_hHandle == nullptr)
            return;
        Kind::release(m_caller, m_hHandle);
        m_hHandle = nullptr;
    }

private:
    void* m_hHandle;
    SdkCaller m_caller;
};

struct SdkRecordKind {
    static void release(const SdkCaller& caller, void* hRecord)
    {
        long lResult = 0;
        SDK_CALL_AT(caller, lResult, 0, ORVA_PBSrv_AddrRecord_Release, (hRecord));
    }
};

struct SdkRecordSetKind {
    static void release(const SdkCaller& caller, void* hSet)
    {
        long lResult = 0;
        SDK_CALL_AT(caller, lResult, 0, ORVA_PBSrv_AddrRecordSet_Release, (hSet));
    }
};

struct SdkGroupKind {
    static void release(const SdkCaller& caller, void* hGroup)
    {
        long lResult = 0;
        SDK_CALL_AT(caller, lResult, 0, ORVA_PBSrv_AddrGroup_Release, (hGroup));
    }
};

struct SdkGroupSetKind {
    static void release(const SdkCaller& caller, void* hSet)
    {
        long lResult = 0;
        SDK_CALL_AT(caller, lResult, 0, ORVA_PBSrv_AddrGroupSet_Release, (hSet));
    }
};

typedef SdkHandle<SdkRecordKind> SdkRecord;
typedef SdkHandle<SdkRecordSetKind> SdkRecordSet;
typedef SdkHandle<SdkGroupKind> SdkGroup;
typedef SdkHandle<SdkGroupSetKind> SdkGroupSet;

// True while the walk over a record set has a further record.
inline bool moveToNextRecord(void* hAddrRecordSet, const char* pszFile = SDK_CALLER_FILE,
                             const char* pszFunction = SDK_CALLER_FUNCTION)
{
    long lResult = 0;
    SDK_CALL_AT(SdkCaller(pszFile, pszFunction), lResult, lResult, ORVA_PBSrv_AddrRecordSet_MoveNext, (hAddrRecordSet));
    return lResult == 0;
}

inline bool moveToFirstRecord(void* hAddrRecordSet, const char* pszFile = SDK_CALLER_FILE,
                              const char* pszFunction = SDK_CALLER_FUNCTION)
{
    long lResult = 0;
    SDK_CALL_AT(SdkCaller(pszFile, pszFunction), lResult, 0, ORVA_PBSrv_AddrRecordSet_MoveFirst, (hAddrRecordSet));
    return lResult == 0;
}

#endif // ADDRBOOKUIPLUGIN_SDKHANDLE_H
