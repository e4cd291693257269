// Telephone numbers as people write them.

#include "orva/orva_care.h"

#include <memory>

#include "api/Boundary.h"
#include "base/NumberText.h"
#include "base/Text.h"

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
