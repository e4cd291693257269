#ifndef SDK_BASE_SHAREDLOCK_H
#define SDK_BASE_SHAREDLOCK_H

#include <string>

namespace orva
{

// A lock between processes on a file of its own, that many may have together or one alone; let go with the object. It
// is had without a question where the file cannot be made or its file system knows no locks.
class SharedLock
{
public:
    explicit SharedLock(const std::string& path);
    ~SharedLock();
    SharedLock(const SharedLock&) = delete;
    SharedLock& operator=(const SharedLock&) = delete;

    bool tryAlone();
    bool tryTogether();

private:
    int m_file;
};

} // namespace orva

#endif // SDK_BASE_SHAREDLOCK_H
