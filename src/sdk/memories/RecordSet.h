#ifndef SDK_MEMORIES_RECORDSET_H
#define SDK_MEMORIES_RECORDSET_H

#include <memory>
#include <string_view>

#include "memories/Memory.h"

namespace orva
{

// A cursor over records. It starts in front of the first one.
class RecordSet
{
public:
    virtual ~RecordSet() = default;

    // Number of records when the set was made.
    virtual int count() const = 0;

    // Both give false when there is no record to move to.
    virtual bool moveFirst() = 0;
    virtual bool moveNext() = 0;

    // The current record. Failure(ORVA_E_END) when there is none.
    virtual int id() const = 0;

    // A value of the current record; ORVA_E_ARGUMENT for an unknown key. Valid until the next call on the set.
    virtual std::u16string_view value(const char* key) = 0;
};

// A set over what a memory holds: the records that are there when it is made, read in ranges as the walk goes on.
// A record deleted meanwhile is passed over. Holds one range of rows and no lock.
class StoredRecordSet final : public RecordSet
{
public:
    // The memory must outlive the set.
    StoredRecordSet(Memory& memory, Extent extent);

    int count() const override { return m_extent.count; }
    bool moveFirst() override;
    bool moveNext() override;
    int id() const override;
    std::u16string_view value(const char* key) override;

private:
    bool fetchFrom(int first);

    Memory& m_memory;
    std::shared_ptr<const Profile> m_profile;
    Extent m_extent;
    RowBlock m_rows;
    std::size_t m_row = 0;
    std::size_t m_ahead;         // rows to ask for next time
    std::uint64_t m_changes = 0; // of the memory, when m_rows was read
    bool m_valid = false;        // m_row names the current record
    bool m_started = false;      // the walk has begun
    int m_hint = 0;              // field asked for next, most likely
};

// A set over rows that are in memory, such as those of an import. Identifiers are those of the block.
class RowsRecordSet final : public RecordSet
{
public:
    RowsRecordSet(std::shared_ptr<const Profile> profile, RowBlock rows);

    int count() const override { return static_cast<int>(m_rows.rows()); }
    bool moveFirst() override;
    bool moveNext() override;
    int id() const override;
    std::u16string_view value(const char* key) override;

private:
    std::shared_ptr<const Profile> m_profile;
    RowBlock m_rows;
    std::size_t m_next = 0; // behind the current row; 0 in front of the first
    int m_hint = 0;
};

} // namespace orva

#endif // SDK_MEMORIES_RECORDSET_H
