#include "linkhand/SdkText.h"
#include "logic/SdkCall.h"
#include "window/AddrBookDlg.h"

bool AddrBookDlg::SavePBInfoForAgent(QString strItem, QString strName, QString strValue)
{
    SdkText directory;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_GetLogDirectory, (directory.out()));
    return m_usageFile.note(lResult == 0 ? directory.toString() : QString(), strItem, strName, strValue);
}
