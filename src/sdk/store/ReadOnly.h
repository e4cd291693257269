#ifndef SDK_STORE_READONLY_H
#define SDK_STORE_READONLY_H

#include <cstdint>
#include <memory>
#include <string>

#include "store/Database.h"

namespace orva
{

// What tells one state of a store's two files from another, without a look inside.
struct FileState {
    std::uint64_t file = 0;
    std::int64_t size = -1; // -1: there is none
    std::int64_t changed = 0;

    bool operator==(const FileState& other) const
    {
        return file == other.file && size == other.size && changed == other.changed;
    }
    bool operator!=(const FileState& other) const { return !(*this == other); }
};

struct StoreState {
    FileState store;
    FileState log;

    bool operator!=(const StoreState& other) const { return store != other.store || log != other.log; }
};

StoreState stateOfStore(const std::string& path);

// Whether the user lacks the right to write a store, or its folder is another user's; not so on a disk that fails.
bool mayOnlyRead(const std::string& path);

// A store that is read because it cannot be written.
struct OpenedForReading {
    std::unique_ptr<Database> db;
    bool live = false; // shows what other processes write; else it shows the files as they were when it was opened
};

// Opens a store without writing a byte, with what its write-ahead log holds: by the log's index if other processes have
// it in use, else with an index in this process's memory, and without either where there is no log. SqlFailure if the
// file cannot be read.
OpenedForReading openForReading(const std::string& path);

} // namespace orva

#endif // SDK_STORE_READONLY_H
