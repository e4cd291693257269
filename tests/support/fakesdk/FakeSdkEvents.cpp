#include "fakesdk/FakeSdkState.h"

#include <thread>

using fakesdk::Service;
using fakesdk::state;

namespace
{

// Held while callbacks run, so that an unregister waits for them; recursive, so that a callback may unregister itself.
std::recursive_mutex& callbackMutex()
{
    static std::recursive_mutex instance;
    return instance;
}

Service serviceOf(int event)
{
    if (event >= 20000 && event < 30000)
        return fakesdk::Phonebook;
    if (event == 6002 || (event >= 6600 && event < 6700))
        return fakesdk::DevMgr;
    return event == 6014 ? fakesdk::DevInit : fakesdk::Net;
}

long add(Service service, ORVA_CALLBACK callback)
{
    if (callback == nullptr)
        return ORVA_E_ARGUMENT;
    if (!state().callbacks[service].contains(callback))
        state().callbacks[service].append(callback);
    return ORVA_OK;
}

} // namespace

#define FAKE_REGISTRATION(prefix, name, service)                                                                       \
    long ORVA_##prefix##Register##name(ORVA_CALLBACK callback)                                                         \
    {                                                                                                                  \
        FAKE_ENTER(shortName(#prefix "Register" #name));                                                               \
        return add(service, callback);                                                                                 \
    }                                                                                                                  \
    long ORVA_##prefix##UnRegister##name(ORVA_CALLBACK callback)                                                       \
    {                                                                                                                  \
        std::lock_guard<std::recursive_mutex> running(callbackMutex());                                                \
        FAKE_ENTER(shortName(#prefix "UnRegister" #name));                                                             \
        return state().callbacks[service].removeAll(callback) > 0 ? ORVA_OK : ORVA_E_NOT_FOUND;                        \
    }

static const char* shortName(const char* name)
{
    return qstrncmp(name, "PBSrv_", 6) == 0 ? name + 6 : name;
}

FAKE_REGISTRATION(DevSrv_, DevInitEventCallback, fakesdk::DevInit)
FAKE_REGISTRATION(DevSrv_, DevMgrCallback, fakesdk::DevMgr)
FAKE_REGISTRATION(NetSrv_, NetSrvEvent, fakesdk::Net)
FAKE_REGISTRATION(PBSrv_, PBCallback, fakesdk::Phonebook)

int FakeSdk::fireHere(int event)
{
    std::lock_guard<std::recursive_mutex> running(callbackMutex());
    QList<ORVA_CALLBACK> callbacks;
    {
        std::lock_guard<std::mutex> lock(fakesdk::mutex());
        callbacks = state().callbacks[serviceOf(event)];
    }
    int result = -1;
    for (ORVA_CALLBACK callback : callbacks)
        result = callback(event, nullptr);
    return result;
}

int FakeSdk::fire(int event)
{
    int result = -1;
    std::thread thread([event, &result] { result = fireHere(event); });
    thread.join();
    return result;
}

int FakeSdk::callbackCount()
{
    std::lock_guard<std::mutex> lock(fakesdk::mutex());
    int count = 0;
    for (const QList<ORVA_CALLBACK>& list : state().callbacks)
        count += list.size();
    return count;
}
