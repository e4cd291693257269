#ifndef ADDRBOOKUIPLUGIN_SDKPROFILE_H
#define ADDRBOOKUIPLUGIN_SDKPROFILE_H

#include <QtGlobal>

#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

// The field list of a memory as the SDK gives it, released at the end of its scope.
class SdkProfile
{
public:
    explicit SdkProfile(int iMemory, const char* pszFile = SDK_CALLER_FILE,
                        const char* pszFunction = SDK_CALLER_FUNCTION)
        : m_iMemory(iMemory), m_caller(pszFile, pszFunction), m_pEntries(nullptr), m_iCount(0)
    {
    }
    ~SdkProfile() { release(); }

    // False if the SDK refuses or has no list.
    bool fetch()
    {
        release();
        long lResult = 0;
        SDK_CALL_AT(m_caller, lResult, 0, ORVA_PBSrv_GetProfile, (m_iMemory, &m_pEntries, &m_iCount));
        if (lResult != 0)
            m_pEntries = nullptr;
        return m_pEntries != nullptr;
    }

    int count() const { return m_pEntries != nullptr ? m_iCount : 0; }
    const ORVA_PROFILE_ENTRY& at(int i) const { return m_pEntries[i]; }

    // False if the SDK refuses.
    bool release()
    {
        if (m_pEntries == nullptr)
            return true;
        long lResult = 0;
        SDK_CALL_AT(m_caller, lResult, 0, ORVA_PBSrv_ProfileRelease, (m_iMemory, &m_pEntries));
        m_pEntries = nullptr;
        return lResult == 0;
    }

private:
    Q_DISABLE_COPY(SdkProfile)

    const int m_iMemory;
    const SdkCaller m_caller;
    ORVA_PROFILE_ENTRY* m_pEntries;
    int m_iCount;
};

#endif // ADDRBOOKUIPLUGIN_SDKPROFILE_H
