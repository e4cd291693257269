#ifndef TESTS_GUI_SELECT_SELECTWORKERS_H
#define TESTS_GUI_SELECT_SELECTWORKERS_H

#include "SelectSupport.h"

// The five workers of the dialog, and the ways in which the dialog ends under them.
namespace SelectWorkers
{

enum Worker { FirstRead, Card, Device, Groups, Contacts };
enum Act { Ok, Cancel, Close, ShutDown, FirstOfATest }; // a test counts its own on from the last

inline QList<QPair<const char*, int>> all()
{
    return {{"first read", FirstRead}, {"card", Card}, {"device", Device}, {"groups", Groups}, {"contacts", Contacts}};
}

// The call of the SDK that a worker makes once a record.
inline const char* recordCall(int worker)
{
    return worker == Groups || worker == Contacts ? "GetAddrRecord" : "AddrRecordSet_GetID";
}

inline bool isRunning(AddrBookSelectContactsDlgAccess& access, int worker)
{
    switch (worker) {
    case FirstRead:
        return access.threads() > 0;
    case Card:
        return access.simThread() != nullptr;
    case Device:
        return access.deviceThread() != nullptr;
    case Groups:
        return access.groupsThread() != nullptr;
    default:
        return access.contactsThread() != nullptr;
    }
}

inline void act(Picker& picker, int what)
{
    switch (what) {
    case Ok:
        picker.access.ok()->click();
        break;
    case Cancel:
        picker.access.cancel()->click();
        break;
    case ShutDown:
        FakeCore::setShuttingDown(true);
        picker.access.window()->close();
        break;
    default:
        picker.access.window()->close();
        break;
    }
}

} // namespace SelectWorkers

#endif // TESTS_GUI_SELECT_SELECTWORKERS_H
