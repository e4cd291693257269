#ifndef TESTS_SUPPORT_NOTHREADS_H
#define TESTS_SUPPORT_NOTHREADS_H

#include <pthread.h>

#include <cstddef>

// While it lives a process gets no further thread of its standard library: each wants a stack larger than any address
// space. Not under the thread sanitizer, which chooses the sizes of stacks itself.
class NoThreads
{
public:
    NoThreads()
    {
        ::pthread_attr_init(&m_before);
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t wide = m_before;
        ::pthread_attr_setstacksize(&wide, std::size_t(1) << 62);
        ::pthread_setattr_default_np(&wide);
    }
    ~NoThreads()
    {
        ::pthread_setattr_default_np(&m_before);
        ::pthread_attr_destroy(&m_before);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

private:
    pthread_attr_t m_before;
};

#endif // TESTS_SUPPORT_NOTHREADS_H
