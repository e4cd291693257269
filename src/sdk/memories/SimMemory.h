#ifndef SDK_MEMORIES_SIMMEMORY_H
#define SDK_MEMORIES_SIMMEMORY_H

#include "devices/SimulatedHardware.h"
#include "memories/Limits.h"
#include "memories/Memory.h"
#include "store/Store.h"

namespace orva
{

// A simulated card or device: a store that can be pulled out at any moment and is as slow as it is told to be. Field
// list and capacity come from the hardware at each call, as a modem would tell them.
class SimMemory final : public Memory
{
public:
    // `memory` is ORVA_MEMORY_CARD or ORVA_MEMORY_DEVICE.
    SimMemory(const std::string& folder, SimulatedHardware& hardware, int memory);

    Store& store() { return m_store; }

    std::shared_ptr<const Profile> profile() override;
    int capacity() override;
    int size() override;
    Extent extent() override;
    std::size_t preferredRows() override;
    void read(int first, int last, std::size_t maxRows, RowBlock& rows) override;
    void readSome(const int* ids, std::size_t count, RowBlock& rows) override;
    Values readOne(int id) override;
    int lengthOf(const Field& field, std::u16string_view value) override;
    int add(const Values& values) override;
    void update(int id, const Values& values) override;
    void erase(int id) override;
    void begin() override;
    void end() override;
    std::uint64_t changes() const override;

private:
    LengthOf lengthRule() const;
    void requireWritable(const Values& values);

    SimulatedHardware& m_hardware;
    const int m_memory;
    Store m_store;
};

} // namespace orva

#endif // SDK_MEMORIES_SIMMEMORY_H
