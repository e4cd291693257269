#ifndef ADDRBOOKUIPLUGIN_CAPACITY_H
#define ADDRBOOKUIPLUGIN_CAPACITY_H

#include "logic/AddrBookTypes.h"

// How full the three memories are, as last read and as followed since while a batch runs. The figures are the owner's.
class Capacity
{
public:
    struct Figures {
        int& iUsed;
        int& iTotal;
    };
    Capacity(Figures sim, Figures device, Figures local) : m_sim(sim), m_device(device), m_local(local) {}

    // What the store says. Another memory is passed over.
    void set(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iTotal, int iUsed);

    // One record was added, or deleted. What there is then; two zeros for another memory.
    void follow(_ORVA_EN_PHONEBOOK_MEMORY enMemory, _ADDRBOOK_OPERATION_TYPE enOperation, int& iTotal, int& iUsed);

    // A total of 0 is a memory that is not ready, or none: it counts as room.
    static bool hasRoom(int iTotal, int iUsed) { return !(iTotal > 0 && iUsed >= iTotal); }

private:
    Figures* of(_ORVA_EN_PHONEBOOK_MEMORY enMemory);

    Figures m_sim;
    Figures m_device;
    Figures m_local;
};

#endif // ADDRBOOKUIPLUGIN_CAPACITY_H
