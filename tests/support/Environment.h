#ifndef TESTS_SUPPORT_ENVIRONMENT_H
#define TESTS_SUPPORT_ENVIRONMENT_H

#include <cstdlib>
#include <string>

namespace check
{

// A variable of the environment; empty if it is not set.
inline std::string environment(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

// A path in the test's own home.
inline std::string inHome(const std::string& name)
{
    return environment("HOME") + "/" + name;
}

} // namespace check

#endif // TESTS_SUPPORT_ENVIRONMENT_H
