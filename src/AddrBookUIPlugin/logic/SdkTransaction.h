#ifndef ADDRBOOKUIPLUGIN_SDKTRANSACTION_H
#define ADDRBOOKUIPLUGIN_SDKTRANSACTION_H

#include <QtGlobal>

#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

// A transaction on a memory, from here to the end of the scope or to end(). A failed begin or end is only logged.
// A batch that commits on its way ends it and begins it anew.
class SdkTransaction
{
public:
    explicit SdkTransaction(int iMemory, const char* pszFile = SDK_CALLER_FILE,
                            const char* pszFunction = SDK_CALLER_FUNCTION)
        : m_iMemory(iMemory), m_caller(pszFile, pszFunction), m_bOpen(false)
    {
        begin();
    }
    ~SdkTransaction() { end(); }

    void begin()
    {
        long lResult = 0;
        SDK_CALL_AT(m_caller, lResult, 0, ORVA_PBSrv_BeginTransaction, (m_iMemory));
        m_bOpen = true;
    }

    // The SDK's code; 0 where nothing is open any more.
    long end()
    {
        long lResult = 0;
        if (m_bOpen)
            SDK_CALL_AT(m_caller, lResult, 0, ORVA_PBSrv_EndTransaction, (m_iMemory));
        m_bOpen = false;
        return lResult;
    }

    // Begins once more and leaves the end to others.
    void leaveOpen()
    {
        begin();
        m_bOpen = false;
    }

    int memory() const { return m_iMemory; }

private:
    Q_DISABLE_COPY(SdkTransaction)

    const int m_iMemory;
    const SdkCaller m_caller;
    bool m_bOpen;
};

#endif // ADDRBOOKUIPLUGIN_SDKTRANSACTION_H
