#include "window/ContactFile.h"

#include <QScopedPointer>

#include <memory>
#include <new>

#include "dialogs/AddrBookFieldMapDlg.h"
#include "linkhand/QtCompat.h"
#include "linkhand/SdkText.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "orva/orva_sdk.h"

QString ContactFile::startPath()
{
    return QtCompat::desktopFolder() + QLatin1String("/*.csv");
}

QString ContactFile::filter()
{
    return QLatin1String("Excel Files (*.csv)");
}

QString ContactFile::withExtension(const QString& strFile)
{
    const int iLength = strFile.length();
    const bool bOtherExtension = iLength > 3 && strFile.at(iLength - 4) != QLatin1Char('.');
    if (!strFile.contains(QLatin1Char('.')) || bOtherExtension)
        return strFile + QLatin1String(".csv");
    return strFile;
}

QList<QString> ContactFile::titles(const QString& strPath)
{
    ADDRBOOK_LOG_ENTER();
    QList<QString> lstTitles;
    int iLength = 0;
    long lResult = 0;
    const long lLengthGiven = 2;
    SDK_CALL_OR(lLengthGiven, lResult, ORVA_PBSrv_GetFileFieldDescription, (sdkText(strPath), nullptr, &iLength));
    if (lResult != lLengthGiven) {
        ADDRBOOK_LOG("%s", iLength == 0 ? "no records or isn't compatible file" : "FAILED");
        return lstTitles;
    }
    if (iLength <= 0)
        return lstTitles;
    // One byte more than asked for: the text ends even if the file grew in between.
    const std::unique_ptr<char[]> pBuffer(new (std::nothrow) char[static_cast<size_t>(iLength) + 1]());
    if (pBuffer == nullptr)
        return lstTitles;
    SDK_CALL(lResult, ORVA_PBSrv_GetFileFieldDescription, (sdkText(strPath), pBuffer.get(), &iLength));
    if (lResult == 0)
        lstTitles += QString::fromLocal8Bit(pBuffer.get()).split(QLatin1Char(','), QtCompat::KeepEmptyParts);
    ADDRBOOK_LOG_EXIT();
    return lstTitles;
}

QList<int> ContactFile::positions(const QList<QString>& lstTexts, const QList<QString>& lstTitles)
{
    QList<int> lstPositions;
    foreach (const QString& strText, lstTexts) {
        const bool bBlank = strText == QLatin1String(" ");
        const int iPosition = bBlank ? -1 : lstTitles.lastIndexOf(strText);
        if (bBlank || iPosition >= 0)
            lstPositions.append(iPosition);
    }
    return lstPositions;
}

bool ContactFile::askPositions(QWidget* pParent, const QString& strSource, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                               const QList<QString>& lstTitles, QList<int>& lstPositions)
{
    const QScopedPointer<AddrBookFieldMapDlg> pdlgMap(new (std::nothrow) AddrBookFieldMapDlg);
    if (pdlgMap.isNull())
        return false;
    pdlgMap->InitDialog(pParent, enMemory, strSource);
    pdlgMap->SetRowCount(1, 11);
    pdlgMap->SetRowCount(2, 11);
    pdlgMap->SetRowHeight(1, 15);
    pdlgMap->SetRowHeight(2, 15);
    pdlgMap->SetFirstTableInfo(lstTitles);
    pdlgMap->SetSecondTableInfo(lstTitles, enMemory);
    if (pdlgMap->Exec() == 0)
        return false;
    lstPositions = positions(pdlgMap->GetFieldMapData(), lstTitles);
    return true;
}
