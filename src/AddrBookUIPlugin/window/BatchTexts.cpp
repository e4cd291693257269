#include "window/BatchTexts.h"

#include "logic/Texts.h"

namespace
{
QString text(const char* pTextId)
{
    return addrBookTr(QLatin1String(pTextId));
}
} // namespace

const char* BatchTexts::progress(_ADDRBOOK_OPERATION_TYPE enOperation)
{
    switch (enOperation) {
    case ADDRBOOK_OP_MOVE:
        return "IDS_MOVE_STATUS";
    case ADDRBOOK_OP_IMPORT:
        return "IDS_IMPORT_STATUS";
    case ADDRBOOK_OP_DELETE:
    case ADDRBOOK_OP_REMOVE_FROM_GROUP:
        return "IDS_DELETE_STATUS";
    default:
        return "IDS_COPY_STATUS";
    }
}

QString BatchTexts::full(_ADDRBOOK_OPERATION_TYPE enOperation, int iSuccess)
{
    QString strText;
    if (enOperation == ADDRBOOK_OP_IMPORT)
        strText = text("IDS_IMPORT_DEVICEFULL");
    else if (enOperation == ADDRBOOK_OP_COPY || enOperation == ADDRBOOK_OP_MOVE)
        strText = text("IDS_MOVE_REC_DEV_FULL");
    return strText.isEmpty() ? strText : strText + QString::number(iSuccess);
}

QString BatchTexts::importEnd(int iTotal, int iSuccess)
{
    return text("IDS_IMPORT_TOTAL_NUMBER") + QString::number(iTotal) + text("IDS_IMPORT_IMPORTED_NUMBER") +
           QString::number(iSuccess);
}

QString BatchTexts::copyEnd(_ADDRBOOK_OPERATION_TYPE enOperation, _ORVA_EN_PHONEBOOK_MEMORY enSource,
                            _ORVA_EN_PHONEBOOK_MEMORY enTarget, int iTotal, int iSuccess)
{
    if (!isDeviceMemory(enTarget) && !isDeviceMemory(enSource))
        return QString();
    QString strText;
    if (enOperation == ADDRBOOK_OP_MOVE)
        strText = text("IDS_MOVE_COMPLETE");
    else if (enOperation == ADDRBOOK_OP_COPY)
        strText = text("IDS_COPY_COMPLETE");
    return strText + QLatin1Char(' ') + text("IDS_TOTAL_COUNT") + QString::number(iTotal) + text("IDS_SUCCESS_COUNT") +
           QString::number(iSuccess);
}
