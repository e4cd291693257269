#include "orva/orva_sdk.h"

#include <algorithm>
#include <climits>

#include "api/Boundary.h"
#include "coding/AlphaIdentifier.h"

using namespace orva;

long ORVA_PBSrv_PBContentCodingJudge(const unsigned short* text, short length, bool not_uim, bool customised,
                                     short* result)
{
    return guarded("ORVA_PBSrv_PBContentCodingJudge", [&] {
        require(text);
        require(result);
        if (length < 0)
            throw Failure(ORVA_E_ARGUMENT, "negative length");
        // What lies behind a zero is never stored, so it does not count; a wrong length cannot lead out of the text.
        std::u16string units;
        units.reserve(static_cast<std::size_t>(length));
        for (short i = 0; i < length && text[i] != 0; ++i)
            units.push_back(text[i]);
        const AlphaRule rule = customised ? AlphaRule::Units : not_uim ? AlphaRule::Sim : AlphaRule::Uim;
        *result = static_cast<short>(std::min(alphaLength(units, rule), SHRT_MAX));
        return ORVA_OK;
    });
}
