// region.

#include <cstdio>
#include <cstdlib>

#include "Commands.h"
#include "Sdk.h"
#include "orva/orva_care.h"

namespace pbctl
{

int runRegion(const Arguments& arguments)
{
    arguments.require(0, 1, {});
    if (arguments.words().size() == 2) {
        const std::string& given = arguments.words()[1];
        // Without a text the library goes back to the locale's, which has a word of its own here.
        const long code = given.empty() ? static_cast<long>(ORVA_E_ARGUMENT)
                                        : ORVA_Care_SetRegion(given == "locale" ? "" : given.c_str());
        if (code == ORVA_E_ARGUMENT)
            throw UsageError("\"" + given + "\" is no region: two letters such as DE, none or locale");
        check(code, "keeping the region");
        const char* const before = std::getenv("LINKHAND_REGION");
        if (before != nullptr && *before != '\0')
            std::fprintf(stderr, "pbctl: LINKHAND_REGION, which is %s here, goes before it\n", before);
        return done;
    }
    char region[3] = "";
    check(ORVA_Care_GetRegion(region), "asking for the region");
    std::printf("%s\n", *region == '\0' ? "none" : region);
    return done;
}

} // namespace pbctl
