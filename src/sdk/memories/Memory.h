#ifndef SDK_MEMORIES_MEMORY_H
#define SDK_MEMORIES_MEMORY_H

#include <cstddef>
#include <cstdint>
#include <memory>

#include "base/Failure.h"
#include "base/Profile.h"
#include "base/RowBlock.h"
#include "base/Values.h"

namespace orva
{

/*
 * A place where contacts live: the local store, or a card or device behind a backend.
 *
 * The interface also has to fit a modem that is spoken to with AT commands: field lists and capacities are asked for
 * each time since they come from the hardware; reads go in ranges of identifiers, at most preferredRows() at a time;
 * every operation may take long, and may end in Failure(ORVA_E_ABSENT) because the hardware went away meanwhile. A
 * backend whose slots can be reused keeps its own table from identifiers, which never are, to slots.
 *
 * Any thread may call any operation. Errors are thrown as Failure; an operation that throws has changed nothing.
 */
class Memory
{
public:
    virtual ~Memory() = default;

    virtual std::shared_ptr<const Profile> profile() = 0;

    // How many records fit; 0 while the memory is not ready.
    virtual int capacity() = 0;
    virtual int size() = 0;
    virtual Extent extent() = 0;

    // Rows that one read should ask for at most.
    virtual std::size_t preferredRows() = 0;

    // Fills `rows` with records of identifiers first to last, ascending, at most maxRows of them. Fewer than maxRows
    // does not mean that the range is done, an empty block does.
    virtual void read(int first, int last, std::size_t maxRows, RowBlock& rows) = 0;

    // Fills `rows` with the records named, in that order. Identifiers that are not there are passed over.
    virtual void readSome(const int* ids, std::size_t count, RowBlock& rows) = 0;

    // One record; ORVA_E_NOT_FOUND.
    virtual Values readOne(int id) = 0;

    // How much room a value of a field takes, in the units of its maxLength.
    virtual int lengthOf(const Field& field, std::u16string_view value) = 0;

    // Whether clients cut names to what fits.
    virtual bool hasShortNames() const { return true; }

    // Stores a record and gives its identifier. ORVA_E_FULL, ORVA_E_TOO_LONG.
    virtual int add(const Values& values) = 0;

    // Replaces all values of a record. ORVA_E_NOT_FOUND, ORVA_E_TOO_LONG.
    virtual void update(int id, const Values& values) = 0;

    // Deletes a record. ORVA_E_NOT_FOUND.
    virtual void erase(int id) = 0;

    // A flat transaction, as ORVA_PBSrv_BeginTransaction describes it.
    virtual void begin() = 0;
    virtual void end() = 0;

    // Grows with every change of a record that this process makes or notices, so that a reader knows whether rows it
    // read ahead are still right.
    virtual std::uint64_t changes() const = 0;
};

} // namespace orva

#endif // SDK_MEMORIES_MEMORY_H
