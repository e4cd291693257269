#ifndef SDK_TRANSFER_CONTACTEXPORT_H
#define SDK_TRANSFER_CONTACTEXPORT_H

#include <functional>
#include <string>
#include <vector>

#include "memories/Memory.h"

namespace orva
{

class LocalMemory;
class Store;

// Told how many of how many records have been taken; true to break off, which is Failure(ORVA_E_CANCELLED).
using ExportProgress = std::function<bool(int done, int total)>;

// Contacts given out, in the order in which they are named; those that are not there are passed over. A file of that
// name is kept, with ".~1~" or a higher number behind its name. Failure(ORVA_E_STORE); ORVA_E_ARGUMENT for a name with
// "*" in it.

// Whether a last column holds the names of groups.
enum class GroupsColumn { IfAny, Always };

// As CSV. `groups` is the store of a memory that has groups, else null.
void exportRows(const std::string& file, Memory& memory, Store* groups, const std::vector<int>& ids,
                GroupsColumn column, const ExportProgress& progress = {});

// As vCard 3.0, which most programs read, with their groups and all that is kept with them.
void exportCards(const std::string& file, LocalMemory& memory, const std::vector<int>& ids,
                 const ExportProgress& progress = {});

// The path under which a file is written: Failure(ORVA_E_ARGUMENT) for a pattern.
void requireNoPattern(const std::string& file);

} // namespace orva

#endif // SDK_TRANSFER_CONTACTEXPORT_H
