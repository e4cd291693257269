#ifndef LINKHAND_HOST_SDKLISTENER_H
#define LINKHAND_HOST_SDKLISTENER_H

#include <QMetaObject>
#include <mutex>

// Brings the SDK's events to one object of a class, on the thread that it lives on. A callback of the SDK has no
// argument of ours, so that the object is kept here; the lock keeps it alive meanwhile. The class says by the static
// operation Takes(int iEvent) what is for it, and gets that in its slot OnSdkEvent(int iEvent).
template <class Receiver>
class SdkListener
{
public:
    // Before OnEvent is registered with the SDK; null once that is undone.
    static void SetReceiver(Receiver* pReceiver)
    {
        const std::lock_guard<std::mutex> locker(s_mutex);
        s_pReceiver = pReceiver;
    }

    // What is registered with the SDK, which calls it on its event thread.
    static int OnEvent(int iEvent, void*)
    {
        if (!Receiver::Takes(iEvent)) {
            return 0;
        }
        const std::lock_guard<std::mutex> locker(s_mutex);
        if (s_pReceiver != nullptr) {
            QMetaObject::invokeMethod(s_pReceiver, "OnSdkEvent", Qt::QueuedConnection, Q_ARG(int, iEvent));
        }
        return 1;
    }

private:
    inline static std::mutex s_mutex;
    inline static Receiver* s_pReceiver = nullptr;
};

#endif // LINKHAND_HOST_SDKLISTENER_H
