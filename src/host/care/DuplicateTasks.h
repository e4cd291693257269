#ifndef LINKHAND_HOST_CARE_DUPLICATETASKS_H
#define LINKHAND_HOST_CARE_DUPLICATETASKS_H

#include <QList>
#include <QStringList>

#include "care/CareTask.h"

// Contacts that belong together.
struct DuplicateSet {
    bool bSame = false; // the same person; else people with one number
    QList<int> listIds;
    QList<QStringList> listValues; // of each, by CareText::FieldKeys()
};

// Looks for them.
class DuplicateReading : public CareTask
{
public:
    DuplicateReading() : CareTask(READING) {}
    void Run() override;

    const QList<DuplicateSet>& Sets() const { return m_listSets; }

private:
    QList<DuplicateSet> m_listSets;
};

// Finds out what would become of a set.
class MergePreview : public CareTask
{
public:
    explicit MergePreview(const QList<int>& listIds) : CareTask(ASKING), m_listIds(listIds) {}
    void Run() override;

    const QList<int>& Ids() const { return m_listIds; }
    const QStringList& Values() const { return m_lstValues; }
    const QStringList& Groups() const { return m_lstGroups; }

private:
    const QList<int> m_listIds;
    QStringList m_lstValues;
    QStringList m_lstGroups;
};

// Makes one contact of each set, or nothing of all.
class Merging : public CareTask
{
public:
    explicit Merging(const QList<DuplicateSet>& listSets) : CareTask(WRITING), m_listSets(listSets) {}
    void Run() override;

    int Sets() const { return int(m_listSets.size()); }

private:
    const QList<DuplicateSet> m_listSets;
};

#endif // LINKHAND_HOST_CARE_DUPLICATETASKS_H
