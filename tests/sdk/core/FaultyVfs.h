#ifndef TESTS_SDK_CORE_FAULTYVFS_H
#define TESTS_SDK_CORE_FAULTYVFS_H

// A file layer under SQLite that fails on order. Once installed it is the process's default, and so the library's.

#include <sqlite3.h>

#include <atomic>
#include <csignal>
#include <cstring>
#include <new>
#include <string>

namespace faulty
{

enum class Fault { None, Io, Full, CannotOpen, Death }; // Death ends the process

struct Plan {
    std::atomic<long> operations{0}; // counted since the last arm()
    std::atomic<long> failAt{-1};    // the operation that fails; -1 for none
    std::atomic<bool> stays{false};  // and all after it
    std::atomic<Fault> fault{Fault::None};
    std::atomic<long> hits{0};
};

inline Plan& plan()
{
    static Plan one;
    return one;
}

inline void arm(Fault fault, long failAt, bool stays)
{
    plan().fault = fault;
    plan().operations = 0;
    plan().hits = 0;
    plan().stays = stays;
    plan().failAt = failAt;
}

inline void disarm()
{
    plan().failAt = -1;
    plan().fault = Fault::None;
}

// Counts an operation; true if it is to fail.
inline bool hit()
{
    const long failAt = plan().failAt;
    const long number = plan().operations++;
    if (failAt < 0 || (plan().stays ? number < failAt : number != failAt))
        return false;
    if (plan().fault == Fault::Death)
        ::raise(SIGKILL);
    ++plan().hits;
    return true;
}

struct File {
    sqlite3_file base;
    sqlite3_file* real;
};

inline sqlite3_file* realOf(sqlite3_file* file)
{
    return reinterpret_cast<File*>(file)->real;
}

inline int writeFault(int io)
{
    return plan().fault == Fault::Full ? SQLITE_FULL : io;
}

inline int xClose(sqlite3_file* file)
{
    sqlite3_file* const real = realOf(file);
    const int result = real->pMethods != nullptr ? real->pMethods->xClose(real) : SQLITE_OK;
    ::operator delete(real);
    return result;
}

inline int xRead(sqlite3_file* file, void* data, int size, sqlite3_int64 offset)
{
    if (plan().fault == Fault::Io && hit())
        return SQLITE_IOERR_READ;
    return realOf(file)->pMethods->xRead(realOf(file), data, size, offset);
}

inline int xWrite(sqlite3_file* file, const void* data, int size, sqlite3_int64 offset)
{
    if (hit())
        return writeFault(SQLITE_IOERR_WRITE);
    return realOf(file)->pMethods->xWrite(realOf(file), data, size, offset);
}

inline int xTruncate(sqlite3_file* file, sqlite3_int64 size)
{
    if (hit())
        return writeFault(SQLITE_IOERR_TRUNCATE);
    return realOf(file)->pMethods->xTruncate(realOf(file), size);
}

inline int xSync(sqlite3_file* file, int flags)
{
    if (hit())
        return writeFault(SQLITE_IOERR_FSYNC);
    return realOf(file)->pMethods->xSync(realOf(file), flags);
}

inline int xFileSize(sqlite3_file* file, sqlite3_int64* size)
{
    if (plan().fault == Fault::Io && hit())
        return SQLITE_IOERR_FSTAT;
    return realOf(file)->pMethods->xFileSize(realOf(file), size);
}

inline int xLock(sqlite3_file* file, int level)
{
    if (plan().fault == Fault::Io && hit())
        return SQLITE_IOERR_LOCK;
    return realOf(file)->pMethods->xLock(realOf(file), level);
}

inline int xUnlock(sqlite3_file* file, int level)
{
    return realOf(file)->pMethods->xUnlock(realOf(file), level);
}

inline int xCheckReservedLock(sqlite3_file* file, int* result)
{
    return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result);
}

inline int xFileControl(sqlite3_file* file, int op, void* argument)
{
    return realOf(file)->pMethods->xFileControl(realOf(file), op, argument);
}

inline int xSectorSize(sqlite3_file* file)
{
    return realOf(file)->pMethods->xSectorSize(realOf(file));
}

inline int xDeviceCharacteristics(sqlite3_file* file)
{
    return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
}

inline int xShmMap(sqlite3_file* file, int page, int size, int extend, void volatile** memory)
{
    if (hit())
        return writeFault(SQLITE_IOERR_SHMMAP);
    return realOf(file)->pMethods->xShmMap(realOf(file), page, size, extend, memory);
}

inline int xShmLock(sqlite3_file* file, int offset, int count, int flags)
{
    if ((flags & SQLITE_SHM_LOCK) != 0 && plan().fault == Fault::Io && hit())
        return SQLITE_IOERR_SHMLOCK;
    return realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
}

inline void xShmBarrier(sqlite3_file* file)
{
    realOf(file)->pMethods->xShmBarrier(realOf(file));
}

inline int xShmUnmap(sqlite3_file* file, int remove)
{
    return realOf(file)->pMethods->xShmUnmap(realOf(file), remove);
}

inline sqlite3_vfs& realVfs()
{
    static sqlite3_vfs* const real = sqlite3_vfs_find(nullptr);
    return *real;
}

inline int xOpen(sqlite3_vfs* /*vfs*/, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    static const sqlite3_io_methods methods = {2,
                                               xClose,
                                               xRead,
                                               xWrite,
                                               xTruncate,
                                               xSync,
                                               xFileSize,
                                               xLock,
                                               xUnlock,
                                               xCheckReservedLock,
                                               xFileControl,
                                               xSectorSize,
                                               xDeviceCharacteristics,
                                               xShmMap,
                                               xShmLock,
                                               xShmBarrier,
                                               xShmUnmap,
                                               nullptr,
                                               nullptr};
    file->pMethods = nullptr;
    if (hit())
        return SQLITE_CANTOPEN;
    auto* const own = reinterpret_cast<File*>(file);
    const auto size = static_cast<std::size_t>(realVfs().szOsFile);
    own->real = static_cast<sqlite3_file*>(::operator new(size));
    std::memset(static_cast<void*>(own->real), 0, size);
    const int result = realVfs().xOpen(&realVfs(), name, own->real, flags, outFlags);
    if (result != SQLITE_OK) {
        if (own->real->pMethods != nullptr)
            own->real->pMethods->xClose(own->real);
        ::operator delete(own->real);
        return result;
    }
    file->pMethods = &methods;
    return SQLITE_OK;
}

inline int xDelete(sqlite3_vfs* /*vfs*/, const char* name, int syncFolder)
{
    if (hit())
        return SQLITE_IOERR_DELETE;
    return realVfs().xDelete(&realVfs(), name, syncFolder);
}

// Makes this layer the process's default, once and for good.
inline void install()
{
    static sqlite3_vfs vfs = realVfs();
    if (vfs.xOpen == xOpen)
        return;
    vfs.zName = "faulty";
    vfs.szOsFile = sizeof(File);
    vfs.pNext = nullptr;
    vfs.xOpen = xOpen;
    vfs.xDelete = xDelete;
    sqlite3_vfs_register(&vfs, 1);
}

} // namespace faulty

#endif // TESTS_SDK_CORE_FAULTYVFS_H
