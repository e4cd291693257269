#include "window/ExportChoice.h"

#include <QTableWidget>

#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "window/TableRows.h"

ExportChoice ExportChoice::of(QTableWidget* ptable, _ADDRBOOK_OPERATION_TYPE enOperation,
                              _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId)
{
    ExportChoice choice;
    choice.enOperation = enOperation;
    choice.enMemory = enMemory;
    choice.iGroupId = iGroupId;
    choice.pTable = ptable;
    if (ptable == nullptr)
        return choice;
    choice.bTable = true;
    choice.bComplete = ptable->isSortingEnabled();
    QList<int> lstRows;
    if (enOperation == ADDRBOOK_OP_EXPORT_SELECTED)
        lstRows = TableRows::selected(ptable);
    for (int iRow = 0; enOperation == ADDRBOOK_OP_EXPORT_ALL && iRow < ptable->rowCount(); ++iRow)
        lstRows.append(iRow);
    foreach (int iRow, lstRows) {
        const TableRowData* pData = tableRowData(ptable->item(iRow, 0));
        // Rows left over from a memory whose node has gone stay that memory's.
        if (pData != nullptr)
            choice.enMemory = pData->enType;
        choice.lstIds.append(pData != nullptr ? pData->iRecordID : 0);
    }
    return choice;
}

ExportChoice ExportChoice::followedBy(const ExportChoice& now) const
{
    if (now.pTable.data() == pTable.data())
        return now;
    const bool bSameNode = now.enMemory == enMemory && now.iGroupId == iGroupId;
    ExportChoice still = enOperation == ADDRBOOK_OP_EXPORT_ALL && bSameNode && now.bComplete ? now : *this;
    still.bTable = now.bTable;
    return still;
}

void ExportChoice::writeTo(const QString& strFile, AddrBookLogic* pLogic, QWidget* pParent) const
{
    ADDRBOOK_LOG_ENTER();
    if (!bTable || (enOperation != ADDRBOOK_OP_EXPORT_SELECTED && enOperation != ADDRBOOK_OP_EXPORT_ALL))
        return;
    // The memory is asked for each contact once more, as for every operation on rows; what it answers is not looked at.
    foreach (int iId, lstIds) {
        QList<QString> lstValues;
        if (iId != 0 && pLogic != nullptr)
            pLogic->GetRecord(enMemory, iId, lstValues);
    }
    const int iResult =
        pLogic != nullptr ? pLogic->ExportToFile(strFile, lstIds, enMemory) : static_cast<int>(ADDRBOOK_FAILED);
    const bool bOk = iResult == ADDRBOOK_OK;
    showMessageOk(QMessageBox::Information, pParent, QLatin1String(bOk ? "IDS_PROMPT_CAPTION" : "IDS_ERROR_CAPTION"),
                  addrBookTr(QLatin1String(bOk ? "IDS_SMS_EXPORTSUCCESS_COUNT" : "IDS_SMS_EXPORTFAILURE_COUNT")));
    ADDRBOOK_LOG_EXIT();
}
