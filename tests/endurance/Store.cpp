#include "Store.h"

#include "../support/RealStore.h"
#include "linkhand/QtCompat.h"

namespace
{
int addGroup(const QString& name)
{
    void* group = nullptr;
    if (ORVA_PBSrv_CreateAddrGroup(4, &group) != 0)
        return -1;
    ORVA_PBSrv_AddrGroup_SetName(group, name.utf16());
    ORVA_PBSrv_AddrGroup_SetParentID(group, 0);
    int id = -1;
    ORVA_PBSrv_AddGroup(group, &id);
    ORVA_PBSrv_AddrGroup_Release(group);
    return id;
}
} // namespace

void Store::fill()
{
    const QStringList names = QStringList() << "Ada" << QString::fromUtf8("Zoë") << QString::fromUtf8("Олег")
                                            << QString::fromUtf8("王芳") << QString::fromUtf8("سلمى")
                                            << QString::fromUtf8("Jürgen") << "a much longer name than a card takes";
    const int groups[] = {addGroup("Friends"), addGroup("Family"), addGroup(QString::fromUtf8("Büro"))};
    for (int i = 0; i < 60; ++i) {
        const QString number = QString::number(491700000 + i);
        const int id = RealStore::addContact(4, QStringList() << names.at(i % names.size()) + QString(" %1").arg(i)
                                                              << number << (i % 3 == 0 ? number + "1" : QString())
                                                              << (i % 5 == 0 ? number + "2" : QString()));
        ORVA_PBSrv_AddAddrToGroup(groups[i % 3], id, 4);
    }
    for (int i = 0; i < 20; ++i)
        RealStore::addContact(0, QStringList() << QString("Card %1").arg(i) << QString::number(300000 + i));
    for (int i = 0; i < 10; ++i)
        RealStore::addContact(1, QStringList() << QString("Device %1").arg(i) << QString::number(400000 + i));
}

int Store::records(int memory)
{
    int size = 0;
    return ORVA_PBSrv_GetSize(memory, &size) == 0 ? size : -1;
}

bool Store::holds(const QString& beginning)
{
    void* set = nullptr;
    if (ORVA_PBSrv_GetAddrRecList(4, &set) != 0 || set == nullptr)
        return false;
    bool found = false;
    for (long result = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); result == 0 && !found;
         result = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        unsigned short* name = nullptr;
        if (ORVA_PBSrv_AddrRecordSet_GetValue(set, "Name", &name) == 0 && name != nullptr)
            found = QtCompat::fromUtf16(name).startsWith(beginning);
        delete[] name;
    }
    ORVA_PBSrv_AddrRecordSet_Release(set);
    return found;
}

QHash<int, int> Store::groupSizes()
{
    QHash<int, int> sizes;
    void* set = nullptr;
    if (ORVA_PBSrv_GetGroupList(4, &set) != 0 || set == nullptr)
        return sizes;
    for (long result = ORVA_PBSrv_AddrGroupSet_MoveFirst(set); result == 0;
         result = ORVA_PBSrv_AddrGroupSet_MoveNext(set)) {
        int id = 0;
        int size = 0;
        ORVA_PBSrv_AddrGroupSet_GetID(set, &id);
        ORVA_PBSrv_AddrGroupSet_GetGroupSize(set, &size);
        sizes.insert(id, size);
    }
    ORVA_PBSrv_AddrGroupSet_Release(set);
    return sizes;
}
