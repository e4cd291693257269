#ifndef LINKHAND_HOST_CARE_BACKUPTASKS_H
#define LINKHAND_HOST_CARE_BACKUPTASKS_H

#include <QList>
#include <QString>

#include "care/CareTask.h"

struct Backup {
    QString strName;
    qint64 iTime = 0;
    int iReason = 0;   // ORVA_BACKUP_...
    int iContacts = 0; // -1: it cannot be read
    long nState = 0;   // what a restore would give
};

// Reads the list of backups and looks through each.
class BackupReading : public CareTask
{
public:
    BackupReading() : CareTask(READING) {}
    void Run() override;

    const QList<Backup>& Backups() const { return m_listBackups; }

private:
    QList<Backup> m_listBackups;
};

// Makes one now.
class BackupMaking : public CareTask
{
public:
    BackupMaking() : CareTask(WRITING) {}
    void Run() override;
};

// What a restore would do to a contact.
struct RestoreChange {
    int iKind; // ORVA_RESTORE_...
    QString strName;
};

// Finds out what a restore would do.
class BackupComparing : public CareTask
{
public:
    explicit BackupComparing(const QString& strName) : CareTask(ASKING), m_strName(strName) {}
    void Run() override;

    const QString& Name() const { return m_strName; }
    const QList<RestoreChange>& Changes() const { return m_listChanges; }

private:
    const QString m_strName;
    QList<RestoreChange> m_listChanges;
};

// Restores one.
class BackupRestoring : public CareTask
{
public:
    explicit BackupRestoring(const QString& strName) : CareTask(WRITING), m_strName(strName) {}
    void Run() override;

private:
    const QString m_strName;
};

#endif // LINKHAND_HOST_CARE_BACKUPTASKS_H
