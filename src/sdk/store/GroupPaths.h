#ifndef SDK_STORE_GROUPPATHS_H
#define SDK_STORE_GROUPPATHS_H

namespace orva
{

// The paths of the groups that a record, bound to 1, is in. A parent has a smaller identifier than its child, so that
// this ends whatever a file holds.
constexpr const char* groupPathsSql = "WITH RECURSIVE above (id, parent, path) AS ("
                                      "SELECT groups.id, parent, name FROM groups JOIN memberships ON grp = groups.id "
                                      "WHERE record = ? UNION ALL "
                                      "SELECT groups.id, groups.parent, groups.name || '/' || path FROM groups "
                                      "JOIN above ON groups.id = above.parent AND groups.id < above.id) "
                                      "SELECT path FROM above WHERE coalesce(parent, 0) = 0";

} // namespace orva

#endif // SDK_STORE_GROUPPATHS_H
