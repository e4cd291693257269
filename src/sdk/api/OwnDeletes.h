#ifndef SDK_API_OWNDELETES_H
#define SDK_API_OWNDELETES_H

#include <mutex>
#include <unordered_set>

namespace orva
{

// The records of the PC's phonebook that this process has deleted: of those, nobody needs to be told that they went.
class OwnDeletes
{
public:
    void add(int id)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ids.insert(id);
    }

    bool has(int id) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_ids.count(id) != 0;
    }

private:
    mutable std::mutex m_mutex;
    std::unordered_set<int> m_ids;
};

} // namespace orva

#endif // SDK_API_OWNDELETES_H
