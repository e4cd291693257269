#include "care/BackupSection.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "care/CareTable.h"
#include "care/CareText.h"
#include "care/RestoreDialog.h"
#include "orva/orva_sdk.h"
#include "orva/orva_store.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

namespace
{

enum Column { COLUMN_TIME, COLUMN_CONTACTS, COLUMN_STATE, COLUMN_REASON, COLUMN_COUNT };

QString reasonText(int iReason)
{
    static const char* const s_apszIds[] = {"IDS_HOST_CARE_BACKUP_DAILY",   "IDS_HOST_CARE_BACKUP_MIGRATION",
                                            "IDS_HOST_CARE_BACKUP_RESTORE", "IDS_HOST_CARE_BACKUP_MERGE",
                                            "IDS_HOST_CARE_BACKUP_IMPORT",  "IDS_HOST_CARE_BACKUP_ASKED"};
    return iReason >= ORVA_BACKUP_DAILY && iReason <= ORVA_BACKUP_ASKED ? HostText::Get(s_apszIds[iReason - 1])
                                                                        : QString();
}

QString stateText(const Backup& backup)
{
    return backup.nState == ORVA_OK ? HostText::Get("IDS_HOST_CARE_BACKUP_SOUND") : CareText::Explain(backup.nState);
}

} // namespace

BackupSection::BackupSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_backups", pParent),
      m_pHint(new QLabel(this)),
      m_pTable(new CareTable("linkhand_Care_backups_list", COLUMN_COUNT, this)),
      m_pMake(new QPushButton(this)),
      m_pVerify(new QPushButton(this)),
      m_pRestore(new QPushButton(this)),
      m_bTellVerified(false)
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_backups_hint"));
    m_pHint->setWordWrap(true);
    m_pMake->setObjectName(QLatin1String("linkhand_Care_backups_make"));
    m_pVerify->setObjectName(QLatin1String("linkhand_Care_backups_verify"));
    m_pRestore->setObjectName(QLatin1String("linkhand_Care_backups_restore"));
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);

    WrapLayout* pBar = new WrapLayout;
    pBar->AddStretch();
    pBar->addWidget(m_pRestore);
    pBar->addWidget(m_pVerify);
    pBar->addWidget(m_pMake);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pTable, 1);
    setTabOrder(m_pTable, m_pRestore);
    setTabOrder(m_pRestore, m_pVerify);
    setTabOrder(m_pVerify, m_pMake);
    connect(m_pTable, SIGNAL(chosen()), this, SLOT(OnChosen()));
    connect(m_pMake, SIGNAL(clicked()), this, SLOT(OnMake()));
    connect(m_pVerify, SIGNAL(clicked()), this, SLOT(OnVerify()));
    connect(m_pRestore, SIGNAL(clicked()), this, SLOT(OnRestore()));
    OnChosen();
}

QString BackupSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_BACKUPS");
}

void BackupSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_BACKUPS_HINT").arg(QLocale().toString(ORVA_BACKUPS_KEPT)));
    m_pMake->setText(HostText::Get("IDS_HOST_CARE_BACKUP_NOW"));
    m_pVerify->setText(HostText::Get("IDS_HOST_CARE_BACKUP_VERIFY"));
    m_pRestore->setText(HostText::Get("IDS_HOST_CARE_BACKUP_RESTORE_DOTS"));
    m_pTable->setAccessibleName(Title());
    m_pTable->SetTitles(
        QStringList() << HostText::Get("IDS_HOST_CARE_COLUMN_WHEN") << HostText::Get("IDS_HOST_CARE_COLUMN_CONTACTS")
                      << HostText::Get("IDS_HOST_CARE_COLUMN_STATE") << HostText::Get("IDS_HOST_CARE_COLUMN_WHY"));
    m_pTable->SetEmptyText(HostText::Get("IDS_HOST_CARE_BACKUPS_NONE"));
    m_pTable->SizeColumns(QStringList() << CareText::Time(1860791880) << QLatin1String("50,000")
                                        << QString(20, QLatin1Char('n')));
    show(m_listBackups);
}

void BackupSection::Read()
{
    begin(new BackupReading);
}

void BackupSection::Take(const CareTask& task)
{
    if (const BackupReading* pReading = dynamic_cast<const BackupReading*>(&task)) {
        m_pTable->SetFilled();
        show(pReading->Backups());
        if (pReading->Code() != ORVA_OK) {
            emit told(CareText::Explain(pReading->Code()));
        } else if (m_bTellVerified) {
            int iSound = 0;
            foreach (const Backup& backup, m_listBackups) {
                iSound += backup.nState == ORVA_OK ? 1 : 0;
            }
            emit told(HostText::Get("IDS_HOST_CARE_BACKUP_VERIFIED")
                          .arg(QLocale().toString(int(m_listBackups.size())), QLocale().toString(iSound)));
        }
        m_bTellVerified = false;
    } else if (const BackupComparing* pComparing = dynamic_cast<const BackupComparing*>(&task)) {
        ask(*pComparing);
    } else {
        const bool bMade = dynamic_cast<const BackupMaking*>(&task) != nullptr;
        const QString strDone = HostText::Get(bMade ? "IDS_HOST_CARE_BACKUP_MADE" : "IDS_HOST_CARE_RESTORED");
        emit told(task.Code() == ORVA_OK ? strDone : CareText::Explain(task.Code()));
    }
}

QWidget* BackupSection::FocusTarget()
{
    return m_pTable;
}

void BackupSection::OnChosen()
{
    const Backup* const pBackup = chosenBackup();
    enable(m_pRestore, pBackup != nullptr && pBackup->nState == ORVA_OK);
    enable(m_pVerify, !m_listBackups.isEmpty());
}

void BackupSection::OnMake()
{
    begin(new BackupMaking);
}

void BackupSection::OnRestore()
{
    if (const Backup* const pBackup = chosenBackup()) {
        begin(new BackupComparing(pBackup->strName));
    }
}

void BackupSection::OnVerify()
{
    m_bTellVerified = begin(new BackupReading);
}

void BackupSection::show(const QList<Backup>& listBackups)
{
    m_listBackups = listBackups;
    QList<CareRow> listRows;
    for (int i = 0; i < m_listBackups.size(); ++i) {
        const Backup& backup = m_listBackups.at(i);
        listRows.append(CareRow(i + 1, QStringList() << CareText::Time(backup.iTime)
                                                     << (backup.iContacts < 0 ? QString(QChar(0x2013))
                                                                              : QLocale().toString(backup.iContacts))
                                                     << stateText(backup) << reasonText(backup.iReason)));
    }
    m_pTable->SetRows(listRows);
}

// The list may have changed while the backup was compared: the dialog is about that one.
void BackupSection::ask(const BackupComparing& comparing)
{
    if (comparing.Code() != ORVA_OK) {
        emit told(CareText::Explain(comparing.Code()));
        return;
    }
    foreach (const Backup& backup, m_listBackups) {
        if (backup.strName == comparing.Name()) {
            RestoreDialog dialog(backup, comparing.Changes(), window());
            if (dialog.exec() == QDialog::Accepted) {
                begin(new BackupRestoring(comparing.Name()));
            }
            return;
        }
    }
}

const Backup* BackupSection::chosenBackup() const
{
    const QList<int> listIds = m_pTable->SelectedIds();
    const int iAt = listIds.isEmpty() ? -1 : listIds.first() - 1;
    return iAt >= 0 && iAt < m_listBackups.size() ? &m_listBackups.at(iAt) : nullptr;
}
