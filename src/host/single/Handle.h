#ifndef LINKHAND_HOST_SINGLE_HANDLE_H
#define LINKHAND_HOST_SINGLE_HANDLE_H

#include <unistd.h>

// A file descriptor that is closed with its owner.
class Handle
{
public:
    explicit Handle(int iDescriptor = -1) : m_iDescriptor(iDescriptor) {}
    ~Handle() { Reset(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    int Get() const { return m_iDescriptor; }
    bool IsOpen() const { return m_iDescriptor >= 0; }

    void Reset(int iDescriptor = -1)
    {
        if (m_iDescriptor >= 0) {
            close(m_iDescriptor);
        }
        m_iDescriptor = iDescriptor;
    }

    int Release()
    {
        const int iDescriptor = m_iDescriptor;
        m_iDescriptor = -1;
        return iDescriptor;
    }

private:
    int m_iDescriptor;
};

#endif // LINKHAND_HOST_SINGLE_HANDLE_H
