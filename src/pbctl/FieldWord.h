#ifndef PBCTL_FIELDWORD_H
#define PBCTL_FIELDWORD_H

#include <cstddef>
#include <string>
#include <vector>

#include "Sdk.h"

namespace pbctl
{

// FIELD=VALUE of a command line taken apart.
struct FieldWord {
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    // Splits the word at its first '=', and finds the field of that key, in capitals or not.
    FieldWord(const std::string& word, const std::vector<Field>& fields);

    bool hasField() const { return assigns && field != none; }

    std::string key;
    std::string value;
    bool assigns;      // there is a '='
    std::size_t field; // its place among the fields
};

// UsageError that names the fields there are.
[[noreturn]] void refuseWord(const std::string& word, const std::vector<Field>& fields);

} // namespace pbctl

#endif // PBCTL_FIELDWORD_H
