#ifndef SDK_CSV_GROUPCOLUMN_H
#define SDK_CSV_GROUPCOLUMN_H

#include <string>
#include <vector>

namespace orva
{

// The paths of a contact's groups as they stand in one column of a file: with ";" between them, and a backslash before
// a semicolon or backslash in a name.
std::string joinedGroups(const std::vector<std::string>& paths);

} // namespace orva

#endif // SDK_CSV_GROUPCOLUMN_H
