#ifndef ADDRBOOKUIPLUGIN_SDKCALL_H
#define ADDRBOOKUIPLUGIN_SDKCALL_H

#include "logic/Log.h"

// The log lines around a call of the SDK: one before it, one behind it with its code, and a warning if it failed. They
// name the file and the function that wanted the call, so that what a scope or a helper does is found where it is used.

struct SdkCaller {
    SdkCaller(const char* pszPathOfFile, const char* pszName) : pszPath(pszPathOfFile), pszFunction(pszName) {}

    const char* file() const { return AddrBookLog::baseName(pszPath); }

    const char* pszPath;
    const char* pszFunction;
};

// The two default arguments by which a helper learns its caller.
#define SDK_CALLER_FILE __builtin_FILE()
#define SDK_CALLER_FUNCTION __builtin_FUNCTION()

namespace AddrBookLog
{
inline void sdkCalling(const SdkCaller& caller, const char* pszCall)
{
    if (QtCompat::debugEnabled())
        qDebug("%s: %s: %s: Calling %s", now().constData(), caller.file(), caller.pszFunction, pszCall);
}

// `lHarmless` is a further code that is no failure.
inline void sdkReturned(const SdkCaller& caller, const char* pszCall, long lResult, long lHarmless)
{
    if (QtCompat::debugEnabled())
        qDebug("%s: %s: %s: %s returned %li", now().constData(), caller.file(), caller.pszFunction, pszCall, lResult);
    if (lResult != 0 && lResult != lHarmless)
        qWarning("%s: %s: %s: %s returned %li", now().constData(), caller.file(), caller.pszFunction, pszCall, lResult);
}
} // namespace AddrBookLog

#define SDK_CALL_AT(caller, result, harmless, function, arguments)                                                     \
    do {                                                                                                               \
        AddrBookLog::sdkCalling(caller, #function);                                                                    \
        (result) = function arguments;                                                                                 \
        AddrBookLog::sdkReturned(caller, #function, (result), (harmless));                                             \
    } while (false)

// SDK_CALL(lResult, ORVA_PBSrv_DelAddrRec, (id, memory)); `lResult` is a long of the caller's.
#define SDK_CALL(result, function, arguments) SDK_CALL_AT(SdkCaller(__FILE__, __func__), result, 0, function, arguments)

// The same where one code besides 0 is an answer and no failure.
#define SDK_CALL_OR(harmless, result, function, arguments)                                                             \
    SDK_CALL_AT(SdkCaller(__FILE__, __func__), result, harmless, function, arguments)

// The same for the step of a walk, whose every code but 0 is the end.
#define SDK_WALK(result, function, arguments)                                                                          \
    SDK_CALL_AT(SdkCaller(__FILE__, __func__), result, result, function, arguments)

#endif // ADDRBOOKUIPLUGIN_SDKCALL_H
