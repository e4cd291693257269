#ifndef TESTS_SUPPORT_MODEM_OPTIONS_H
#define TESTS_SUPPORT_MODEM_OPTIONS_H

#include "support/modem/Plan.h"

namespace modemsim
{

// The plan of a modem from a command line. Takes the option at argv[i] and its value, if it is one that describes the
// modem, and moves i behind it; false if it is none. Throws std::invalid_argument for a wrong value.
bool takeOption(int argc, char** argv, int& i, Plan& plan);
// What they are, for --help.
const char* optionsHelp();

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_OPTIONS_H
