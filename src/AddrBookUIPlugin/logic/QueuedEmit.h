#ifndef ADDRBOOKUIPLUGIN_QUEUEDEMIT_H
#define ADDRBOOKUIPLUGIN_QUEUEDEMIT_H

#include <QObject>

#include <type_traits>

#include "logic/PointerCarrier.h"

// Emits a signal that Qt queues into another thread: QUEUED_EMIT(addResult, true, iRecord). The arguments are held
// against the declared signal, so that no pointer's carrier is cut to an int.
//
// Qt copies the arguments in code that the thread sanitizer does not see, and hands them over by a lock that it does
// not see either, so that it would take each reading of them for a race. What the emission itself touches is therefore
// left out of its records; what is passed by pointer is ordered by the carrier. Without that sanitizer it is a plain
// emit.

#ifdef ADDRBOOK_TSAN

extern "C" void AnnotateIgnoreReadsBegin(const char* pszFile, int iLine);
extern "C" void AnnotateIgnoreReadsEnd(const char* pszFile, int iLine);
extern "C" void AnnotateIgnoreWritesBegin(const char* pszFile, int iLine);
extern "C" void AnnotateIgnoreWritesEnd(const char* pszFile, int iLine);

class QueuedEmitScope
{
public:
    QueuedEmitScope()
    {
        AnnotateIgnoreReadsBegin(__FILE__, __LINE__);
        AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    }
    ~QueuedEmitScope()
    {
        AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
        AnnotateIgnoreReadsEnd(__FILE__, __LINE__);
    }
};

// At the end of QThread::run: covers "finished", which Qt emits when run has returned.
#define QUEUED_EMIT_FINISHED() static thread_local const QueuedEmitScope finishedScope

#else

class QueuedEmitScope
{
public:
    QueuedEmitScope() {}
    ~QueuedEmitScope() {}
};

#define QUEUED_EMIT_FINISHED() static_cast<void>(0)

#endif

namespace AddrBookSignals
{
// An argument fits where it has the declared type; an enumerator goes as an int.
template <class Declared, class Given>
struct Fits {
    static const bool value =
        std::is_same<Declared, Given>::value || (std::is_same<Declared, int>::value && std::is_enum<Given>::value);
};

template <class Object, class... Declared, class... Given>
inline void queuedEmit(Object* pSender, void (Object::*pSignal)(Declared...), Given... arguments)
{
    static_assert(sizeof...(Declared) == sizeof...(Given), "the signal has another number of arguments");
    static_assert((Fits<Declared, Given>::value && ...), "an argument has another type than the signal declares");
    const QueuedEmitScope scope;
    (pSender->*pSignal)(arguments...);
}

template <class... Arguments>
struct SignalOf {
    template <class Object>
    static constexpr bool isDeclared(void (Object::*)(Arguments...))
    {
        return true;
    }
};
} // namespace AddrBookSignals

// From within a member of the sender's class, or with the sender named.
#define QUEUED_EMIT(signal, ...) QUEUED_EMIT_FROM(this, signal, ##__VA_ARGS__)
#define QUEUED_EMIT_FROM(sender, signal, ...)                                                                          \
    AddrBookSignals::queuedEmit((sender), &std::remove_reference<decltype(*(sender))>::type::signal, ##__VA_ARGS__)

// How many receivers a signal of this object has: SIGNAL_RECEIVERS(addResult, bool, qlonglong). With other types than
// the declared ones it does not compile, where receivers() by itself would count none.
#define SIGNAL_RECEIVERS(signal, ...)                                                                                  \
    (AddrBookSignals::SignalOf<__VA_ARGS__>::isDeclared(&std::remove_reference<decltype(*this)>::type::signal)         \
         ? receivers(SIGNAL(signal(__VA_ARGS__)))                                                                      \
         : 0)

#endif // ADDRBOOKUIPLUGIN_QUEUEDEMIT_H
