#ifndef LINKHAND_HOST_CARE_BINTASKS_H
#define LINKHAND_HOST_CARE_BINTASKS_H

#include <QList>
#include <QStringList>

#include "care/CareTask.h"

// A contact in the bin.
struct BinContact {
    int iEntry = 0;
    bool bDeleted = false; // else it was changed
    qint64 iTime = 0;
    QStringList lstValues; // by CareText::FieldKeys()
    QStringList lstGroups; // their paths
};

// Reads the bin, the newest first.
class BinReading : public CareTask
{
public:
    BinReading() : CareTask(READING) {}
    void Run() override;

    const QList<BinContact>& Contacts() const { return m_listContacts; }

private:
    bool read(BinContact& contact);

    QList<BinContact> m_listContacts;
};

// Brings contacts back, one after the other; those that went back or out of the bin meanwhile are passed over.
class BinRestoring : public CareTask
{
public:
    explicit BinRestoring(const QList<int>& listEntries) : CareTask(WRITING), m_listEntries(listEntries), m_iRestored(0)
    {
    }
    void Run() override;

    int Restored() const { return m_iRestored; }

private:
    const QList<int> m_listEntries;
    int m_iRestored;
};

#endif // LINKHAND_HOST_CARE_BINTASKS_H
