#ifndef LINKHAND_HOST_HEAP_H
#define LINKHAND_HOST_HEAP_H

// The heap of the whole program, where the C library lets it be set.
class Heap
{
public:
    // Has all threads share one heap. Contacts are read by one thread and kept and freed by another: with a heap each,
    // what is freed on the one side is of no use to the other. Before the first thread.
    static void Share();

    // Gives back what is free in whole pages, as after the start, which needs more for a while than what stays.
    static void GiveBack();
};

#endif // LINKHAND_HOST_HEAP_H
