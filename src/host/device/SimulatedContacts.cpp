#include "device/SimulatedContacts.h"

#include <QList>
#include <QPair>
#include <QSet>
#include <QString>

#include "orva/orva_sdk.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

namespace
{

typedef QPair<QString, QString> Contact; // name and number

QList<Contact> contactsOf(int iMemory, const char* pszNumberKey)
{
    QList<Contact> listContacts;
    OwnedRecordSet set;
    int iCount = 0;
    if (ORVA_PBSrv_GetAddrRecList(iMemory, set.Out()) != ORVA_OK || set.IsNull()) {
        return listContacts;
    }
    if (ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set.Get(), &iCount) == ORVA_OK && iCount > 0 &&
        ORVA_PBSrv_AddrRecordSet_MoveFirst(set.Get()) == ORVA_OK) {
        do {
            listContacts.append(Contact(RecordText::Of(set.Get(), "Name"), RecordText::Of(set.Get(), pszNumberKey)));
        } while (ORVA_PBSrv_AddrRecordSet_MoveNext(set.Get()) == ORVA_OK);
    }
    return listContacts;
}

// A card's number may hold pauses and waits, which the PC's fields do not take: what follows the first of them is
// dialled by hand, and is kept as a note.
int firstPause(const QString& strNumber)
{
    for (int i = 0; i < strNumber.length(); ++i) {
        if (strNumber.at(i).toLower() == QLatin1Char('p') || strNumber.at(i).toLower() == QLatin1Char('w')) {
            return i;
        }
    }
    return strNumber.length();
}

Contact asOnPc(const Contact& contact)
{
    return Contact(contact.first, contact.second.left(firstPause(contact.second)));
}

// As they are on the card, each once.
QList<Contact> missing()
{
    QSet<Contact> known;
    foreach (const Contact& contact, contactsOf(ORVA_MEMORY_LOCAL, "Mobile")) {
        known.insert(contact);
    }
    QList<Contact> listMissing;
    foreach (const Contact& contact,
             contactsOf(ORVA_MEMORY_CARD, "Number") + contactsOf(ORVA_MEMORY_DEVICE, "Number")) {
        if (!known.contains(asOnPc(contact))) {
            known.insert(asOnPc(contact));
            listMissing.append(contact);
        }
    }
    return listMissing;
}

bool set(void* pRecord, const char* pszKey, const QString& strValue)
{
    return ORVA_PBSrv_AddrRecord_SetValue(pRecord, pszKey, reinterpret_cast<const unsigned short*>(strValue.utf16())) ==
           ORVA_OK;
}

// The new contact's identifier, 0 if it is refused.
int add(const Contact& contact)
{
    OwnedRecord record;
    int iId = 0;
    if (ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, record.Out()) != ORVA_OK || record.IsNull()) {
        return 0;
    }
    const Contact onPc = asOnPc(contact);
    const bool bWhole = onPc == contact;
    const bool bSet = set(record.Get(), "Name", onPc.first) && set(record.Get(), "Mobile", onPc.second) &&
                      (bWhole || set(record.Get(), "remark", contact.second));
    if (!bSet || ORVA_PBSrv_AddAddrRec(record.Get(), &iId) != ORVA_OK) {
        iId = 0;
    }
    return iId;
}

} // namespace

int SimulatedContacts::CountMissing()
{
    return missing().size();
}

bool SimulatedContacts::CopyToPc()
{
    QList<int> listAdded;
    bool bCopied = true;
    ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_LOCAL);
    foreach (const Contact& contact, missing()) {
        const int iId = add(contact);
        if (iId == 0) {
            bCopied = false;
            break;
        }
        listAdded.append(iId);
    }
    if (!bCopied) {
        foreach (const int iId, listAdded) {
            ORVA_PBSrv_DelAddrRec(iId, ORVA_MEMORY_LOCAL);
        }
    }
    return ORVA_PBSrv_EndTransaction(ORVA_MEMORY_LOCAL) == ORVA_OK && bCopied;
}
