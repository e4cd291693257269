#ifndef TESTS_SDK_FILES_PLAINFILES_H
#define TESTS_SDK_FILES_PLAINFILES_H

// Small files in the test's own home, byte for byte.

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "support/Environment.h"

namespace files
{

using check::inHome;

// Gives the file's path.
inline std::string write(const std::string& name, std::string_view content)
{
    const std::string path = inHome(name);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    return path;
}

inline std::string read(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace files

#endif // TESTS_SDK_FILES_PLAINFILES_H
