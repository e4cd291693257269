#include "cards/CardImport.h"

#include <QFileInfo>
#include <QVector>

#include "care/CareText.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "orva/orva_sdk.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

namespace
{

const int AT_ONCE = 200; // contacts a transaction

// The titles of the file's columns; empty if it cannot be read.
QStringList titlesOf(const QString& strFile, long& nCode)
{
    // What is no plain file, such as a pipe, may never end.
    int iLength = 0;
    if (!QFileInfo(strFile).isFile() || ORVA_PBSrv_GetFileFieldDescription(strFile.utf16(), nullptr, &iLength) != 2 ||
        iLength <= 0) {
        nCode = ORVA_E_FORMAT;
        return QStringList();
    }
    QByteArray titles(iLength, '\0');
    nCode = ORVA_PBSrv_GetFileFieldDescription(strFile.utf16(), titles.data(), &iLength);
    return nCode == ORVA_OK
               ? QString::fromLocal8Bit(titles.constData()).split(QLatin1Char(','), QtCompat::KeepEmptyParts)
               : QStringList();
}

// Each field from the column that is called like it. The SDK makes such columns up for files with other titles.
QVector<int> mapOf(const QStringList& lstTitles)
{
    QVector<int> map;
    foreach (const QString& strKey, CareText::FieldKeys()) {
        int iColumn = int(lstTitles.lastIndexOf(strKey));
        for (int i = 0; iColumn < 0 && i < lstTitles.size(); ++i) {
            iColumn = lstTitles.at(i).compare(strKey, Qt::CaseInsensitive) == 0 ? i : -1;
        }
        map.append(iColumn);
    }
    return map;
}

QStringList valuesIn(void* pSet)
{
    QStringList lstValues;
    foreach (const QString& strKey, CareText::FieldKeys()) {
        lstValues.append(RecordText::Of(pSet, strKey.toLatin1().constData()));
    }
    return lstValues;
}

// True for what the next contact would meet as well.
bool isOfStore(long nCode)
{
    return nCode == ORVA_E_FULL || nCode == ORVA_E_STORE || nCode == ORVA_E_BUSY || nCode == ORVA_E_NO_SPACE ||
           nCode == ORVA_E_READ_ONLY;
}

long add(const QStringList& lstValues)
{
    OwnedRecord record;
    long nCode = ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, record.Out());
    const QStringList lstKeys = CareText::FieldKeys();
    for (int i = 0; nCode == ORVA_OK && i < lstKeys.size(); ++i) {
        nCode =
            ORVA_PBSrv_AddrRecord_SetValue(record.Get(), lstKeys.at(i).toLatin1().constData(), lstValues.at(i).utf16());
    }
    int iId = 0;
    if (nCode == ORVA_OK) {
        nCode = ORVA_PBSrv_AddAddrRec(record.Get(), &iId);
    }
    return nCode;
}

} // namespace

CardImport::CardImport(const QString& strFile, QObject* pParent)
    : QThread(pParent), m_strFile(strFile), m_bStoring(false), m_bCancelled(false), m_iDone(0), m_iStored(0), m_nCode(0)
{
}

CardImport::~CardImport()
{
    Cancel();
    wait();
}

void CardImport::Read()
{
    m_bStoring = false;
    start();
}

void CardImport::Store()
{
    m_bStoring = true;
    start();
}

void CardImport::run()
{
    m_nCode = ORVA_OK;
    m_iDone = 0;
    // The host's end waits for it, and the phonebook is not read anew meanwhile.
    CommonUtils::ThreadCountInc(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
    if (m_bStoring) {
        store();
    } else {
        read();
    }
    CommonUtils::ThreadCountDec(QLatin1String(__FILE__), QLatin1String(__FUNCTION__));
}

void CardImport::read()
{
    m_listContacts.clear();
    long nCode = ORVA_OK;
    QVector<int> map = mapOf(titlesOf(m_strFile, nCode));
    OwnedRecordSet set;
    if (!succeeded(nCode) ||
        !succeeded(ORVA_PBSrv_ImportFromFile(m_strFile.utf16(), map.data(), ORVA_MEMORY_LOCAL, set.Out())) ||
        set.IsNull()) {
        return;
    }
    for (nCode = ORVA_PBSrv_AddrRecordSet_MoveFirst(set.Get()); nCode == ORVA_OK && !m_bCancelled;
         nCode = ORVA_PBSrv_AddrRecordSet_MoveNext(set.Get())) {
        m_listContacts.append(valuesIn(set.Get()));
        ++m_iDone;
    }
}

void CardImport::store()
{
    m_iStored = 0;
    const int iCount = int(m_listContacts.size());
    for (int iFirst = 0; iFirst < iCount && !m_bCancelled; iFirst += AT_ONCE) {
        int iStored = 0;
        ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
        const long nCode = storeSome(iFirst, qMin(iFirst + AT_ONCE, iCount), iStored);
        // What is not committed has not been stored.
        if (!succeeded(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL))) {
            return;
        }
        m_iStored += iStored;
        if (isOfStore(nCode)) {
            return;
        }
    }
}

// One that is refused, as for its number, does not stop those behind it; no room does. Gives the last code.
long CardImport::storeSome(int iFirst, int iEnd, int& iStored)
{
    long nCode = ORVA_OK;
    for (int i = iFirst; i < iEnd && !m_bCancelled; ++i) {
        nCode = add(m_listContacts.at(i));
        ++m_iDone;
        if (succeeded(nCode)) {
            ++iStored;
        } else if (isOfStore(nCode)) {
            break;
        }
    }
    return nCode;
}

bool CardImport::succeeded(long nCode)
{
    if (nCode != ORVA_OK && m_nCode == 0) {
        m_nCode = nCode;
    }
    return nCode == ORVA_OK;
}
