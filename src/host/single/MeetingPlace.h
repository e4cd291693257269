#ifndef LINKHAND_HOST_SINGLE_MEETINGPLACE_H
#define LINKHAND_HOST_SINGLE_MEETINGPLACE_H

#include <QByteArray>
#include <QString>

#include <sys/un.h>

#include "single/Handle.h"

// Where the programs with one data folder find each other: a lock and a socket in a folder that is the user's alone.
// That is $XDG_RUNTIME_DIR; where it is missing or open to others, linkhand-UID in the folder for temporary files.
class MeetingPlace
{
public:
    // The data folder should be there: it is known by device and inode, however its path is written.
    explicit MeetingPlace(const QString& strDataFolder);
    ~MeetingPlace();

    // False if no folder is private enough, or none takes a lock.
    bool IsUsable() const { return m_folder.IsOpen(); }

    // Gets the lock, which lasts until this object goes or the process ends. False while another process has it.
    bool Lock();

    // The socket's address by way of the open folder: its path may be as long as it likes, and nobody can put another
    // folder in its place.
    sockaddr_un Address() const;

    // Takes away what lies where the socket belongs. Only for who has the lock.
    void RemoveSocket();

private:
    bool holdsLockFile(int iDescriptor) const;

    QByteArray m_name;
    Handle m_folder;
    Handle m_lock;
};

#endif // LINKHAND_HOST_SINGLE_MEETINGPLACE_H
