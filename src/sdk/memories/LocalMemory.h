#ifndef SDK_MEMORIES_LOCALMEMORY_H
#define SDK_MEMORIES_LOCALMEMORY_H

#include "devices/SimulatedHardware.h"
#include "memories/Memory.h"
#include "store/Store.h"

namespace orva
{

// The PC's phonebook: a store, and nothing that could go away.
class LocalMemory final : public Memory
{
public:
    LocalMemory(const std::string& folder, SimulatedHardware& hardware);

    Store& store() { return m_store; }

    std::shared_ptr<const Profile> profile() override { return m_profile; }
    int capacity() override;
    int size() override { return m_store.size(); }
    Extent extent() override { return m_store.extent(); }
    std::size_t preferredRows() override;
    void read(int first, int last, std::size_t maxRows, RowBlock& rows) override;
    void readSome(const int* ids, std::size_t count, RowBlock& rows) override;
    Values readOne(int id) override;
    int lengthOf(const Field& field, std::u16string_view value) override;
    bool hasShortNames() const override { return false; }
    int add(const Values& values) override { return add(values, nullptr); }
    void update(int id, const Values& values) override { update(id, values, nullptr); }

    // With what is kept with the record beside its fields; null leaves that as it is.
    int add(const Values& values, const std::string* kept);
    void update(int id, const Values& values, const std::string* kept);

    void erase(int id) override { m_store.erase(id); }
    void begin() override { m_store.begin(); }
    void end() override { m_store.end(); }
    std::uint64_t changes() const override { return m_store.changes(); }

private:
    SimulatedHardware& m_hardware; // for the capacity, which is configured with that of the others
    const std::shared_ptr<const Profile> m_profile;
    Store m_store;
};

} // namespace orva

#endif // SDK_MEMORIES_LOCALMEMORY_H
