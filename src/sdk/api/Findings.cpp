// What an import left.

#include <memory>

#include "api/Boundary.h"
#include "api/ImportFindings.h"
#include "api/Library.h"
#include "base/Text.h"
#include "orva/orva_care.h"

using namespace orva;

long ORVA_Care_GetFindings(ORVA_FINDING** findings, int* count, int* total, unsigned short** source)
{
    return guarded(__func__, [&] {
        require(findings);
        require(count);
        *findings = nullptr;
        *count = 0;
        const std::shared_ptr<const ImportFindings> last = lastImport().get();
        std::unique_ptr<ORVA_FINDING[]> copies(last ? last->copies() : nullptr);
        if (source != nullptr)
            *source = toApi(fromUtf8(last ? last->source() : std::string()));
        if (total != nullptr)
            *total = last ? last->total() : 0;
        *count = last ? static_cast<int>(last->kept().size()) : 0;
        *findings = copies.release();
        return ORVA_OK;
    });
}

long ORVA_Care_FindingsRelease(ORVA_FINDING** findings)
{
    return guarded(__func__, [&] {
        require(findings);
        delete[] * findings;
        *findings = nullptr;
        return ORVA_OK;
    });
}
