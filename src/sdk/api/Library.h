#ifndef SDK_API_LIBRARY_H
#define SDK_API_LIBRARY_H

#include <string>

#include "memories/Memory.h"

namespace orva
{

class EventHub;
class Hardware;
class LastImport;
class LocalMemory;
class ModemHardware;
class ModemMemory;
class OwnDeletes;
class SimulatedHardware;
class Store;

/*
 * What this process has of the library: made on first use, closed at the process's end or by resetLibrary().
 */

// The memory of a number. Failure(ORVA_E_ARGUMENT) for an unknown one. Whether a card or device is there shows when
// it is used (ORVA_E_ABSENT).
Memory& memoryFor(int memory);

// The store of the PC's phonebook, which alone has groups and a bin. ORVA_E_ARGUMENT, or ORVA_E_UNSUPPORTED for another
// memory.
Store& groupStore(int memory);
LocalMemory& localMemory();

// The store behind a memory; ORVA_E_ABSENT for that of a memory that is not there. The second one also gives that.
Store& storeFor(int memory);
Store& anyStore(int memory);

Hardware& hardware();

// The same with its switches. ORVA_E_UNSUPPORTED while the hardware is real.
SimulatedHardware& simulatedHardware();

// The real hardware and its memories; null while it is simulated, and for a memory that is no card and no device.
ModemHardware* modemHardware();
ModemMemory* modemMemory(int memory);

EventHub& events();
LastImport& lastImport();
OwnDeletes& ownDeletes();

// Commits and closes everything and forgets all handles. A null folder stands for what the environment says.
void resetLibrary(const char* folder);

} // namespace orva

#endif // SDK_API_LIBRARY_H
