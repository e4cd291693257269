#ifndef SDK_CONTACTAPPS_EVOLUTION_H
#define SDK_CONTACTAPPS_EVOLUTION_H

#include <string>
#include <vector>

#include "base/ContactFields.h"

namespace orva
{

// Files of Evolution's local address books in the user's home, the personal one first.
std::vector<std::string> evolutionBooks();

// The contacts of one, in the order in which it keeps them.
std::vector<ContactFields> readEvolutionBook(const std::string& path);

} // namespace orva

#endif // SDK_CONTACTAPPS_EVOLUTION_H
