#ifndef PBCTL_SHOWN_H
#define PBCTL_SHOWN_H

#include <string>

namespace pbctl
{

// A value on one line of a terminal, UTF-8: line ends, tabs and backslashes as "\n", "\r", "\t" and "\\", every other
// control character, also one that turns the direction of text or is a byte of no character, as its code, "\x1b" or
// "\u202e".
std::string shown(const std::string& value);

// Text as a string of JSON, with its quotation marks.
std::string quoted(const std::string& value);

// A moment in the local time, as "2024-01-31 18:05".
std::string shownTime(long long seconds);

} // namespace pbctl

#endif // PBCTL_SHOWN_H
