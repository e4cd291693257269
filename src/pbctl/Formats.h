#ifndef PBCTL_FORMATS_H
#define PBCTL_FORMATS_H

#include <string>

#include "Arguments.h"

namespace pbctl
{

// Whether a command's file is one of vCards: by --format, else by its ending. UsageError for a format that is none.
bool isCardFile(const Arguments& arguments, const std::string& file);

} // namespace pbctl

#endif // PBCTL_FORMATS_H
