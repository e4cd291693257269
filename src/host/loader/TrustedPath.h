#ifndef LINKHAND_HOST_TRUSTEDPATH_H
#define LINKHAND_HOST_TRUSTEDPATH_H

#include <QString>

struct stat;

// Who may change what. The super-user and the user of this process may; a file or folder that anybody else may change
// is weak, for its code would run with this user's rights.
namespace TrustedPath
{

// True if its owner is one of the two.
bool IsOwned(const struct stat& status);

// The first weak one of the folders on the way to strFolder, each link on it followed, the folder itself included;
// empty if there is none. A folder on the way may be open to all if everybody can only touch his own there (/tmp). A
// group that holds this user alone is this user.
QString WeakFolder(const QString& strFolder);

} // namespace TrustedPath

#endif // LINKHAND_HOST_TRUSTEDPATH_H
