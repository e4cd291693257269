#ifndef SDK_API_PATHS_H
#define SDK_API_PATHS_H

#include <string>

#include "api/Boundary.h"
#include "base/Text.h"

namespace orva
{

// A client's path as the system takes it. Failure(ORVA_E_ARGUMENT) for none.
inline std::string pathFrom(const unsigned short* path)
{
    require(path);
    std::string file = toUtf8(fromApi(path));
    if (file.empty())
        throw Failure(ORVA_E_ARGUMENT, "empty path");
    return file;
}

} // namespace orva

#endif // SDK_API_PATHS_H
