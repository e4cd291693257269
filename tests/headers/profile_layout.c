/* The layout of a field list as clients of either word size read it. */

#include "orva/orva_sdk.h"

#define AT(member, words)                                                                                              \
    _Static_assert(__builtin_offsetof(ORVA_PROFILE_ENTRY, member) == (words) * sizeof(void*), #member " moved")

AT(key, 0);
AT(max_length, 1);
AT(accepted, 2);
AT(refused, 3);
AT(kind, 4);
AT(flag, 5);
AT(label_id, 6);
_Static_assert(sizeof(ORVA_PROFILE_ENTRY) == (sizeof(void*) == 4 ? 28 : 56), "an entry has another size");
