#include "single/MeetingPlace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace
{

// A folder of this user that nobody else may look into, opened; -1 for any other.
int openPrivate(const QByteArray& path)
{
    if (!path.startsWith('/')) {
        return -1;
    }
    Handle folder(open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status = {};
    const bool bOurs = folder.IsOpen() && fstat(folder.Get(), &status) == 0 && status.st_uid == geteuid() &&
                       (status.st_mode & 077) == 0 && faccessat(folder.Get(), ".", W_OK | X_OK, AT_EACCESS) == 0;
    return bOurs ? folder.Release() : -1;
}

int openFolder()
{
    const int iFolder = openPrivate(qgetenv("XDG_RUNTIME_DIR"));
    if (iFolder >= 0) {
        return iFolder;
    }
    const QByteArray own = QFile::encodeName(QDir::tempPath()) + "/linkhand-" + QByteArray::number(uint(geteuid()));
    mkdir(own.constData(), 0700);
    return openPrivate(own);
}

// By the folder itself where it is there, else by its path.
QByteArray nameOf(const QString& strDataFolder)
{
    struct stat status = {};
    QByteArray what = QFile::encodeName(QDir(strDataFolder).absolutePath());
    if (stat(what.constData(), &status) == 0) {
        what = QByteArray::number(quint64(status.st_dev)) + ':' + QByteArray::number(quint64(status.st_ino));
    }
    return "linkhand-" + QCryptographicHash::hash(what, QCryptographicHash::Sha1).toHex().left(16);
}

} // namespace

MeetingPlace::MeetingPlace(const QString& strDataFolder) : m_name(nameOf(strDataFolder)), m_folder(openFolder()) {}

MeetingPlace::~MeetingPlace()
{
    // While it is still locked: who waits for it sees that the file has gone, and makes a new one.
    if (m_lock.IsOpen()) {
        unlinkat(m_folder.Get(), (m_name + ".lock").constData(), 0);
    }
}

bool MeetingPlace::Lock()
{
    while (!m_lock.IsOpen()) {
        Handle lock(
            openat(m_folder.Get(), (m_name + ".lock").constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!lock.IsOpen() || flock(lock.Get(), LOCK_EX | LOCK_NB) != 0) {
            if (!lock.IsOpen() || errno != EWOULDBLOCK) {
                m_folder.Reset(); // no place to meet in: its disk may be full
            }
            return false;
        }
        if (holdsLockFile(lock.Get())) {
            m_lock.Reset(lock.Release());
        }
    }
    return true;
}

bool MeetingPlace::holdsLockFile(int iDescriptor) const
{
    struct stat held = {};
    struct stat there = {};
    return fstat(iDescriptor, &held) == 0 &&
           fstatat(m_folder.Get(), (m_name + ".lock").constData(), &there, AT_SYMLINK_NOFOLLOW) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

sockaddr_un MeetingPlace::Address() const
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(m_folder.Get()) + '/' + m_name + ".socket";
    std::memcpy(address.sun_path, path.constData(), size_t(qMin(path.size(), int(sizeof address.sun_path) - 1)));
    return address;
}

void MeetingPlace::RemoveSocket()
{
    unlinkat(m_folder.Get(), (m_name + ".socket").constData(), 0);
}
