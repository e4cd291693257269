#include <QAction>

#include "logic/AddrBookLogic.h"
#include "window/AddrBookDlg.h"
#include "window/ToolItemIds.h"

void AddrBookDlg::enableDisableNewContact(int iTotal, int iUsed)
{
    // A total of 0 is a memory that is not ready, or none: it counts as room.
    const bool bRoom = !(iTotal > 0 && iUsed >= iTotal);
    setTableActionEnabled("IDS_PMMENU_ADD", bRoom);
    setTableActionEnabled("IDS_IMPORT_PHONEBOOK", bRoom);
    if (bRoom)
        enableItem(TOOL_NEW);
    else
        disableItem(TOOL_NEW);
    m_bNewContactEnabled = bRoom;
}

void AddrBookDlg::checkMaxCapacity(_ORVA_EN_PHONEBOOK_MEMORY enType, bool bRefresh)
{
    if (m_pAddrBookLogic == nullptr)
        return;
    int iTotal = 0;
    int iUsed = 0;
    m_pAddrBookLogic->GetAddrCapacity(enType, iTotal, iUsed);
    if (bRefresh) {
        switch (enType) {
        case PB_MEM_SIM:
            m_iSimTotalCount = iTotal;
            m_iSimUsedCount = iUsed;
            break;
        case PB_MEM_ME:
            m_iDeviceTotalCount = iTotal;
            m_iDeviceUsedCount = iUsed;
            break;
        case PB_MEM_LOCAL:
            m_iLocalTotalCount = iTotal;
            m_iLocalUsedCount = iUsed;
            break;
        default:
            break;
        }
    }
    enableDisableNewContact(iTotal, iUsed);
}
