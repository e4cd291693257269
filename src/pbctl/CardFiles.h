#ifndef PBCTL_CARDFILES_H
#define PBCTL_CARDFILES_H

#include <string>
#include <vector>

#include "Arguments.h"

namespace pbctl
{

// Whether a command's file is one of vCards: by --format, else by its ending. UsageError for a format that is none.
bool isCardFile(const Arguments& arguments, const std::string& file);

// Takes the cards of a file, which is called `name`, into the PC's phonebook; an exit code.
int importCards(const Arguments& arguments, const std::string& file, const std::string& name);

// Writes contacts of the PC's phonebook with their groups, as vCard 3.0, which most programs read.
void exportCards(const std::string& file, const std::vector<int>& ids);

} // namespace pbctl

#endif // PBCTL_CARDFILES_H
