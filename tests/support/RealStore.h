#ifndef TESTS_SUPPORT_REALSTORE_H
#define TESTS_SUPPORT_REALSTORE_H

#include <QStringList>

#include "orva/orva_sdk.h"

// Contacts in the real SDK's store, made beside the program.
namespace RealStore
{

// Stores a record with the values of its memory's first fields. Its identifier, or -1.
inline int addContact(int memory, const QStringList& values)
{
    static const char* const s_local[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};
    static const char* const s_card[] = {"Name", "Number"};
    void* record = nullptr;
    if (ORVA_PBSrv_CreateAddrRecord(memory, &record) != 0)
        return -1;
    for (int i = 0; i < values.size(); ++i)
        ORVA_PBSrv_AddrRecord_SetValue(record, memory == 4 ? s_local[i] : s_card[i], values.at(i).utf16());
    int id = -1;
    ORVA_PBSrv_AddAddrRec(record, &id);
    ORVA_PBSrv_AddrRecord_Release(record);
    return id;
}

} // namespace RealStore

#endif // TESTS_SUPPORT_REALSTORE_H
