#include "logic/AddrBookUICommon.h"

#include "logic/SdkCall.h"
#include "logic/Texts.h"
#include "orva/orva_sdk.h"

QString AddrBookUICommon::m_sstrUserIdentity;

QString AddrBookUICommon::GetUserIdentityByString()
{
    m_sstrUserIdentity = QString();
    int iProduct = 0;
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetProductType, (&iProduct));
    if (lResult == 0)
        m_sstrUserIdentity = CommonUtils::GetSettings(
            QLatin1String("customize"), iProduct == 1 ? QLatin1String("uimtype") : QLatin1String("simtype"));
    return m_sstrUserIdentity;
}

QString AddrBookUICommon::GetNodeText(ADDRBOOK_TYPE enType)
{
    switch (enType) {
    case PB_MEM_SIM:
        return GetSIMText();
    case PB_MEM_ME:
        return addrBookTr(QLatin1String("IDS_NV"));
    default:
        qDebug("QString AddrBookUICommon::GetNodeText(ADDRBOOK_TYPE enType) compilation fix in qt");
        return QString();
    }
}

QString AddrBookUICommon::GetSIMText()
{
    QString strText = addrBookTr(QLatin1String("IDS_SIM"));
    strText.replace(QLatin1String("%s"), GetUserIdentityByString(), Qt::CaseSensitive);
    return strText;
}
