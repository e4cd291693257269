#include "app/Heap.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void Heap::Share()
{
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
#endif
}

void Heap::GiveBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
