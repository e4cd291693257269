#ifndef ADDRBOOKUIPLUGIN_POINTERCARRIER_H
#define ADDRBOOKUIPLUGIN_POINTERCARRIER_H

#include <QtGlobal>

#if defined(__SANITIZE_THREAD__)
#define ADDRBOOK_TSAN 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ADDRBOOK_TSAN 1
#endif
#endif

#ifdef ADDRBOOK_TSAN
extern "C" void __tsan_acquire(void* pAddress);
extern "C" void __tsan_release(void* pAddress);
#endif

// Pointers travel through queued signals and item data as integers, which Qt carries without registering a type.
// These two are the only places that cast. Qt's event queue orders sender and receiver, but the distribution's Qt is
// not built for the thread sanitizer: the calls below tell it what the queue does.
inline qlonglong pointerToCarrier(const void* pObject)
{
#ifdef ADDRBOOK_TSAN
    if (pObject != nullptr)
        __tsan_release(const_cast<void*>(pObject));
#endif
    return static_cast<qlonglong>(reinterpret_cast<quintptr>(pObject));
}

template <class T>
inline T* carrierToPointer(qlonglong iCarrier)
{
    void* pObject = reinterpret_cast<void*>(static_cast<quintptr>(iCarrier));
#ifdef ADDRBOOK_TSAN
    if (pObject != nullptr)
        __tsan_acquire(pObject);
#endif
    return static_cast<T*>(pObject);
}

#endif // ADDRBOOKUIPLUGIN_POINTERCARRIER_H
