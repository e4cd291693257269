#ifndef ADDRBOOKUIPLUGIN_QUEUEDEMIT_H
#define ADDRBOOKUIPLUGIN_QUEUEDEMIT_H

#include "logic/PointerCarrier.h"

// Emits a signal that Qt queues into another thread: QUEUED_EMIT(addResult(true, iRecord)).
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

#define QUEUED_EMIT(signal)                                                                                            \
    do {                                                                                                               \
        const QueuedEmitScope scope;                                                                                   \
        emit signal;                                                                                                   \
    } while (false)

// At the end of QThread::run: covers "finished", which Qt emits when run has returned.
#define QUEUED_EMIT_FINISHED() static thread_local const QueuedEmitScope finishedScope

#else

#define QUEUED_EMIT(signal) emit signal
#define QUEUED_EMIT_FINISHED() static_cast<void>(0)

#endif

#endif // ADDRBOOKUIPLUGIN_QUEUEDEMIT_H
