#include <QSet>

#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/PointerCarrier.h"
#include "logic/QueuedEmit.h"
#include "worker/AddrBookThread.h"

// Reading for the select-contacts tree: a memory's contacts, the groups with their members, and the rest.

void AddrBookThread::addTreeNodes()
{
    AddrBookLogic* const pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return;
    QList<AddrBookRecord> lstRecords;
    pLogic->GetRecordInGroup(lstRecords, m_enMemory, 0, [this] { return isToEnd(); });
    for (int i = 0; i < lstRecords.size(); ++i) {
        if (isToEnd())
            return;
        const std::lock_guard<std::mutex> locker(m_mutexHandOver);
        if (SIGNAL_RECEIVERS(signalAddSimOrNvTreeNodes, int, qlonglong, qlonglong, int) == 0)
            return;
        AddrBookRecord* const pCopy = new (std::nothrow) AddrBookRecord(lstRecords.at(i));
        if (pCopy == nullptr)
            return;
        QUEUED_EMIT(signalAddSimOrNvTreeNodes, m_enMemory, pointerToCarrier(pCopy), pointerToCarrier(m_pitemTreeNode),
                    i);
    }
}

void AddrBookThread::addGroupsToTree()
{
    AddrBookLogic* const pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return;
    QSet<int> setMembers;
    for (int i = 0; i < m_listGroups.size() && !isToEnd(); ++i) {
        AddrBookGroup* const pGroup = m_listGroups.at(i);
        QList<AddrBookRecord> lstMembers;
        pLogic->GetRecordInGroup(lstMembers, PB_MEM_LOCAL, pGroup->iGroupID, [this] { return isToEnd(); });
        handOverGroup(*pGroup);
        const bool bWhole = !m_bStop; // a stopped group leaves the list as it was
        for (int iMember = 0; iMember < lstMembers.size(); ++iMember) {
            if (bWhole)
                setMembers.insert(lstMembers.at(iMember).iID);
            handOverMember(pGroup, lstMembers.at(iMember));
        }
    }
    removeLocalRecords(setMembers);
}

void AddrBookThread::handOverGroup(const AddrBookGroup& group)
{
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    if (CommonUtils::IsShuttingDown() || SIGNAL_RECEIVERS(signalAddGroupsToTree, int, qlonglong) == 0)
        return;
    AddrBookGroup* const pCopy = new (std::nothrow) AddrBookGroup(group);
    if (pCopy != nullptr)
        QUEUED_EMIT(signalAddGroupsToTree, m_enMemory, pointerToCarrier(pCopy));
}

void AddrBookThread::handOverMember(const AddrBookGroup* pGroup, const AddrBookRecord& record)
{
    const std::lock_guard<std::mutex> locker(m_mutexHandOver);
    if (CommonUtils::IsShuttingDown() || SIGNAL_RECEIVERS(signalAddContactGroups, int, qlonglong, qlonglong) == 0)
        return;
    AddrBookRecord* const pCopy = new (std::nothrow) AddrBookRecord(record);
    if (pCopy != nullptr)
        QUEUED_EMIT(signalAddContactGroups, m_enMemory, pointerToCarrier(pGroup), pointerToCarrier(pCopy));
}

// One pass for the members of all groups, so that many groups in a large memory do not cost their product.
void AddrBookThread::removeLocalRecords(const QSet<int>& setMembers)
{
    if (setMembers.isEmpty())
        return;
    QList<AddrBookRecord> lstRest;
    for (int i = 0; i < m_listLocalRecords.size(); ++i) {
        if (!setMembers.contains(m_listLocalRecords.at(i).iID))
            lstRest.append(m_listLocalRecords.at(i));
    }
    m_listLocalRecords = lstRest;
}

void AddrBookThread::addContactsToTree()
{
    for (int i = 0; i < m_listLocalRecords.size(); ++i) {
        if (isToEnd())
            return;
        QUEUED_EMIT(signalAddContactsToTree, i);
    }
}
