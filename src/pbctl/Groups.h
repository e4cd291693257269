#ifndef PBCTL_GROUPS_H
#define PBCTL_GROUPS_H

#include <map>
#include <string>
#include <vector>

namespace pbctl
{

struct Group {
    int id = 0;
    int parent = 0;
    std::string name;
    std::string path; // names from the first level on, with "/" between
    std::vector<int> members;
};

// The groups of the PC's phonebook. A group is told by its path, such as "Friends/Choir".
class Groups
{
public:
    // Reads them all.
    Groups();

    const std::vector<Group>& all() const { return m_groups; }

    // UsageError if there is none.
    const Group& at(const std::string& path) const;

    // The identifier of a group, which is made with those above it if it is not there.
    // UsageError if a level of the path has no name.
    int provide(const std::string& path);

    // Removes those that provide() has made.
    void removeMade();

private:
    std::vector<Group> m_groups;
    std::map<std::string, int> m_ids; // by path
    std::vector<int> m_made;
};

// UsageError for a path with a level that has no name, SdkError(ORVA_E_TOO_LONG) for one that no group can have.
void requireGroupPath(const std::string& path);

// Puts a contact into groups, which are made if needed.
void join(Groups& groups, int record, const std::vector<std::string>& paths);

} // namespace pbctl

#endif // PBCTL_GROUPS_H
