#ifndef SDK_MEMORIES_MODEMMEMORY_H
#define SDK_MEMORIES_MODEMMEMORY_H

#include <atomic>
#include <string>

#include "memories/Limits.h"
#include "memories/Memory.h"
#include "modem/ModemHardware.h"

namespace orva
{

/*
 * A card or device behind a modem. Reads come from what was read in the background, so that they never wait for the
 * card; until it is there, the memory is empty and its capacity 0. A write waits for its turn, is read back and then
 * durable, within a transaction or not: a card has none. A begin only says that others may have been at the card since.
 */
class ModemMemory final : public Memory
{
public:
    // `memory` is ORVA_MEMORY_CARD or ORVA_MEMORY_DEVICE.
    ModemMemory(ModemHardware& hardware, int memory) : m_hardware(hardware), m_memory(memory) {}

    std::shared_ptr<const Profile> profile() override { return m_hardware.profile(m_memory); }
    int capacity() override { return m_hardware.capacity(m_memory); }
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
    std::uint64_t changes() const override { return m_hardware.epoch(); }

    // Whether names count one for each UTF-16 unit; the modem has the last word.
    void setCountsUnits(bool units) { m_countsUnits = units; }

    // The whole of it into a new file, and back again from one of the same card or modem.
    void backup(const std::string& path);
    void restore(const std::string& path);

private:
    LengthOf lengthRule() const;
    PhonebookEntry entryFor(const Values& values);

    ModemHardware& m_hardware;
    const int m_memory;
    std::atomic<bool> m_batch{false}; // a begin has been, and no write since
    std::atomic<bool> m_countsUnits{false};
};

} // namespace orva

#endif // SDK_MEMORIES_MODEMMEMORY_H
