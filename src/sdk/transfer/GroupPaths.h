#ifndef SDK_TRANSFER_GROUPPATHS_H
#define SDK_TRANSFER_GROUPPATHS_H

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace orva
{

class Store;

// The groups of the PC's phonebook by their paths: names from the first level on, with "/" between, such as
// "Friends/Choir".
class GroupPaths
{
public:
    explicit GroupPaths(Store& store) : m_store(store) {}

    // Puts a record into a group, which is made with those above it if it is not there.
    void join(const std::string& path, int record);

    // A Failure for a path that no group can have: ORVA_E_ARGUMENT for a level without a name, ORVA_E_TOO_LONG.
    static void require(const std::string& path);

    // The paths of the groups that each record is in.
    static std::map<int, std::vector<std::string>> byRecord(Store& store);

private:
    int provide(const std::string& path);
    void read();

    Store& m_store;
    bool m_read = false;
    std::unordered_map<std::string, int> m_ids;
};

} // namespace orva

#endif // SDK_TRANSFER_GROUPPATHS_H
