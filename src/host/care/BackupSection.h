#ifndef LINKHAND_HOST_CARE_BACKUPSECTION_H
#define LINKHAND_HOST_CARE_BACKUPSECTION_H

#include <QList>

#include "care/BackupTasks.h"
#include "care/CareSection.h"

class CareTable;
class QLabel;
class QPushButton;

// The copies of the PC's phonebook, whether they are sound, and the way back to one.
class BackupSection : public CareSection
{
    Q_OBJECT

public:
    BackupSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

private slots:
    void OnChosen();
    void OnMake();
    void OnRestore();
    void OnVerify();

private:
    void show(const QList<Backup>& listBackups);
    void ask(const BackupComparing& comparing);
    const Backup* chosenBackup() const;

    QLabel* m_pHint;
    CareTable* m_pTable;
    QPushButton* m_pMake;
    QPushButton* m_pVerify;
    QPushButton* m_pRestore;
    QList<Backup> m_listBackups;
    bool m_bTellVerified;
};

#endif // LINKHAND_HOST_CARE_BACKUPSECTION_H
