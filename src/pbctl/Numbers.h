#ifndef PBCTL_NUMBERS_H
#define PBCTL_NUMBERS_H

#include <string>
#include <vector>

#include "Sdk.h"

namespace pbctl
{

// Cleans the numbers of a contact and moves their extensions into its note, where the memory has one. Gives the fields
// whose value is no number for this memory, by their index; those stay as they are.
std::vector<std::size_t> cleanNumbers(int memory, const std::vector<Field>& fields,
                                      std::vector<std::u16string>& values);

// Throws, and names the field, for a value that is no e-mail address which the form would take.
void requireEmails(const std::vector<Field>& fields, const std::vector<std::u16string>& values);

} // namespace pbctl

#endif // PBCTL_NUMBERS_H
