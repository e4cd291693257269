#ifndef SDK_MEMORIES_LIMITS_H
#define SDK_MEMORIES_LIMITS_H

#include <cstddef>
#include <string_view>

#include "memories/Memory.h"

namespace orva
{

// Rows that a reader of a store holds: enough to make the cost of a query small, few enough to let writers in soon.
constexpr std::size_t rowsReadAhead = 256;

// How much room a value of a field takes, in the units of its maxLength.
using LengthOf = int (*)(const Field& field, std::u16string_view value);

// One a UTF-16 unit.
int plainLength(const Field& field, std::u16string_view value);

// A name as the card stores it; numbers by their digits.
int cardLength(const Field& field, std::u16string_view value);

// Failure(ORVA_E_ARGUMENT) for values that are not one a field, ORVA_E_TOO_LONG for one that does not fit.
void requireFit(const Profile& profile, const Values& values, LengthOf lengthOf);

} // namespace orva

#endif // SDK_MEMORIES_LIMITS_H
