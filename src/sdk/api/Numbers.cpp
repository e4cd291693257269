// Telephone numbers as people write them.

#include "orva/orva_care.h"

#include <cstring>
#include <memory>

#include "api/Boundary.h"
#include "base/DataFolder.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Unicode.h"
#include "care/NumberKey.h"

using namespace orva;

namespace
{

Pauses pausesIn(int memory)
{
    switch (memory) {
    case ORVA_MEMORY_CARD:
    case ORVA_MEMORY_DEVICE:
        return Pauses::Yes;
    case ORVA_MEMORY_LOCAL:
        return Pauses::No;
    default:
        throw Failure(ORVA_E_ARGUMENT, "unknown memory");
    }
}

} // namespace

long ORVA_Care_CleanNumber(int memory, const unsigned short* text, unsigned short** number, unsigned short** extension)
{
    return guarded(__func__, [&] {
        const Pauses pauses = pausesIn(memory);
        require(number);
        const std::optional<NumberText> read = readNumber(fromApi(text), pauses);
        // Asked for each key and each row: a refusal is an answer, and no line in the log.
        if (!read || (extension == nullptr && !read->extension.empty()))
            return static_cast<long>(ORVA_E_NUMBER);
        std::unique_ptr<unsigned short[]> cleaned(toApi(read->number));
        if (extension != nullptr)
            *extension = toApi(read->extension);
        *number = cleaned.release();
        return static_cast<long>(ORVA_OK);
    });
}

long ORVA_Care_NumberKey(const unsigned short* text, unsigned short** key)
{
    return guarded(__func__, [&] {
        require(key);
        const std::optional<NumberText> read = readNumber(fromApi(text), Pauses::Yes);
        if (!read)
            return static_cast<long>(ORVA_E_NUMBER);
        *key = toApi(fromUtf8(numberKey(read->number, chosenRegion(dataFolder()))));
        return static_cast<long>(ORVA_OK);
    });
}

long ORVA_Care_GetRegion(char* region)
{
    return guarded(__func__, [&] {
        require(region);
        std::memcpy(region, (chosenRegion(dataFolder()) + std::string(2, '\0')).c_str(), 3);
        return ORVA_OK;
    });
}

long ORVA_Care_SetRegion(const char* region)
{
    return guarded(__func__, [&] {
        require(region);
        keepRegion(dataFolder(), region);
        return ORVA_OK;
    });
}
