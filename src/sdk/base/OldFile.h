#ifndef SDK_BASE_OLDFILE_H
#define SDK_BASE_OLDFILE_H

#include <string>

namespace orva
{

// Keeps a file that is about to be replaced under a name beside it: path with ".~1~" behind it, or the next number that
// is free. Nothing happens if there is none. Where the file system knows no second names, the file is moved.
// Failure(ORVA_E_STORE) if it cannot be kept.
void keepOldFile(const std::string& path);

} // namespace orva

#endif // SDK_BASE_OLDFILE_H
