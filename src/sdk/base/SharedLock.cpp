#include "base/SharedLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace orva
{

SharedLock::SharedLock(const std::string& path)
    : m_file(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600))
{
}

SharedLock::~SharedLock()
{
    if (m_file >= 0)
        ::close(m_file);
}

bool SharedLock::tryAlone()
{
    return m_file < 0 || ::flock(m_file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool SharedLock::tryTogether()
{
    return m_file < 0 || ::flock(m_file, LOCK_SH | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

} // namespace orva
