#include "loader/TrustedPath.h"

#include <QFile>
#include <QFileInfo>
#include <QList>

#include <cstring>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

const int MOST_LINKS = 40;

// The group that many systems make for each user, who is then its only member. An access list shows in the rights of
// the group, and may name others.
bool isOwnGroup(const QByteArray& folder, gid_t uiGroup)
{
    if (uiGroup != getegid() || getxattr(folder.constData(), "system.posix_acl_access", nullptr, 0) > 0) {
        return false;
    }
    const passwd* pUser = getpwuid(geteuid());
    const QByteArray name = pUser != nullptr ? pUser->pw_name : "";
    const group* pGroup = getgrgid(uiGroup);
    if (pGroup == nullptr || name.isEmpty() || name != pGroup->gr_name) {
        return false;
    }
    for (char** ppszMember = pGroup->gr_mem; *ppszMember != nullptr; ++ppszMember) {
        if (name != *ppszMember) {
            return false;
        }
    }
    return true;
}

bool isWeak(const QByteArray& folder, const struct stat& status, bool bLast)
{
    if (!TrustedPath::IsOwned(status)) {
        return true;
    }
    const bool bOthers = (status.st_mode & S_IWOTH) != 0;
    const bool bGroup = (status.st_mode & S_IWGRP) != 0 && !isOwnGroup(folder, status.st_gid);
    const bool bOwnOnly = (status.st_mode & S_ISVTX) != 0 && !bLast;
    return (bOthers || bGroup) && !bOwnOnly;
}

QList<QByteArray> partsOf(const QByteArray& path)
{
    QList<QByteArray> listParts = path.split('/');
    listParts.removeAll(QByteArray());
    listParts.removeAll(".");
    return listParts;
}

} // namespace

bool TrustedPath::IsOwned(const struct stat& status)
{
    return status.st_uid == 0 || status.st_uid == geteuid();
}

QString TrustedPath::WeakFolder(const QString& strFolder)
{
    QList<QByteArray> listLeft = partsOf(QFile::encodeName(QFileInfo(strFolder).absoluteFilePath()));
    QByteArray at = "/";
    int iLinks = 0;
    for (;;) {
        struct stat status = {};
        if (lstat(at.constData(), &status) != 0 || isWeak(at, status, listLeft.isEmpty())) {
            return QFile::decodeName(at);
        }
        if (listLeft.isEmpty()) {
            return QString();
        }
        const QByteArray part = listLeft.takeFirst();
        if (part == "..") {
            at = at.left(qMax(1, at.lastIndexOf('/')));
            continue;
        }
        const QByteArray next = (at == "/" ? at : at + '/') + part;
        char acTarget[4096];
        const ssize_t iLength = readlink(next.constData(), acTarget, sizeof acTarget);
        if (iLength < 0) {
            at = next;
            continue;
        }
        // A link is as good as who may put another in its place, and as the way that it leads.
        if (lstat(next.constData(), &status) != 0 || !IsOwned(status) || iLength == ssize_t(sizeof acTarget) ||
            ++iLinks > MOST_LINKS) {
            return QFile::decodeName(next);
        }
        const QByteArray target(acTarget, int(iLength));
        listLeft = partsOf(target) + listLeft;
        at = target.startsWith('/') ? QByteArray("/") : at;
    }
}
