#include "window/Capacity.h"

Capacity::Figures* Capacity::of(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    switch (enMemory) {
    case PB_MEM_SIM:
        return &m_sim;
    case PB_MEM_ME:
        return &m_device;
    case PB_MEM_LOCAL:
        return &m_local;
    default:
        return nullptr;
    }
}

void Capacity::set(_ORVA_EN_PHONEBOOK_MEMORY enMemory, int iTotal, int iUsed)
{
    const Figures* pFigures = of(enMemory);
    if (pFigures == nullptr)
        return;
    pFigures->iUsed = iUsed;
    pFigures->iTotal = iTotal;
}

void Capacity::follow(_ORVA_EN_PHONEBOOK_MEMORY enMemory, _ADDRBOOK_OPERATION_TYPE enOperation, int& iTotal, int& iUsed)
{
    iTotal = 0;
    iUsed = 0;
    const Figures* pFigures = of(enMemory);
    if (pFigures == nullptr)
        return;
    if (enOperation == ADDRBOOK_OP_DELETE)
        --pFigures->iUsed;
    else if (enOperation == ADDRBOOK_OP_ADD)
        ++pFigures->iUsed;
    iTotal = pFigures->iTotal;
    iUsed = pFigures->iUsed;
}
