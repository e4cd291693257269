#include "memories/Limits.h"

#include <algorithm>
#include <climits>

#include "coding/AlphaIdentifier.h"

namespace orva
{

int plainLength(const Field& /*field*/, std::u16string_view value)
{
    return static_cast<int>(std::min<std::size_t>(value.size(), INT_MAX));
}

int cardLength(const Field& field, std::u16string_view value)
{
    return field.kind == "Name" ? alphaLength(value, AlphaRule::Sim) : plainLength(field, value);
}

void requireFit(const Profile& profile, const Values& values, LengthOf lengthOf)
{
    if (values.size() != profile.fields().size())
        throw Failure(ORVA_E_ARGUMENT, "the record was made for other fields");
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Field& field = profile.fields()[i];
        if (lengthOf(field, values[i]) > field.maxLength)
            throw Failure(ORVA_E_TOO_LONG, "a value of the field " + field.key + " is too long");
    }
}

} // namespace orva
