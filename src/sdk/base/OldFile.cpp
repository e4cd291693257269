#include "base/OldFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "base/Failure.h"
#include "base/Files.h"

namespace orva
{

void keepOldFile(const std::string& path)
{
    for (int number = 1;; ++number) {
        const std::string name = path + ".~" + std::to_string(number) + "~";
        // A second name, so that there is no moment at which the file is under none.
        if (::link(path.c_str(), name.c_str()) == 0 || errno == ENOENT)
            return;
        if (errno == EEXIST || fileExists(name))
            continue;
        if (::rename(path.c_str(), name.c_str()) != 0)
            throw Failure(ORVA_E_STORE, "keeping the old " + path + ": " + std::strerror(errno));
        return;
    }
}

} // namespace orva
