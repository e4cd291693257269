#include "care/RestoreDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "care/CareTable.h"
#include "care/CareText.h"
#include "orva/orva_store.h"
#include "text/HostText.h"

namespace
{

const struct {
    int iKind;
    const char* pszCountId;
    const char* pszRowId;
} KINDS[] = {
    {ORVA_RESTORE_RETURNS, "IDS_HOST_CARE_RESTORE_RETURNS", "IDS_HOST_CARE_RESTORE_ROW_RETURNS"},
    {ORVA_RESTORE_GOES, "IDS_HOST_CARE_RESTORE_GOES", "IDS_HOST_CARE_RESTORE_ROW_GOES"},
    {ORVA_RESTORE_CHANGES, "IDS_HOST_CARE_RESTORE_CHANGES", "IDS_HOST_CARE_RESTORE_ROW_CHANGES"},
};

// The list, in the order of the kinds; their numbers go into the head.
QList<CareRow> rowsOf(const QList<RestoreChange>& listChanges, QString& strHead)
{
    QList<CareRow> listRows;
    for (const auto& kind : KINDS) {
        const int iBefore = int(listRows.size());
        foreach (const RestoreChange& change, listChanges) {
            if (change.iKind == kind.iKind) {
                listRows.append(
                    CareRow(int(listRows.size()) + 1, QStringList() << HostText::Get(kind.pszRowId) << change.strName));
            }
        }
        strHead +=
            QLatin1Char('\n') + HostText::Get(kind.pszCountId).arg(QLocale().toString(int(listRows.size()) - iBefore));
    }
    return listRows;
}

} // namespace

RestoreDialog::RestoreDialog(const Backup& backup, const QList<RestoreChange>& listChanges, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG)
{
    setObjectName(QLatin1String("linkhand_Restore"));
    setWindowTitle(HostText::Get("IDS_HOST_CARE_RESTORE"));
    QWidget* pContent = new QWidget;
    QString strHead = HostText::Get("IDS_HOST_CARE_RESTORE_HEAD").arg(CareText::Time(backup.iTime));
    CareTable* pList = new CareTable("linkhand_Restore_list", 2, pContent);
    pList->setSelectionMode(QAbstractItemView::SingleSelection);
    pList->SetTitles(QStringList() << HostText::Get("IDS_HOST_CARE_RESTORE_COLUMN")
                                   << HostText::Get("IDS_HOST_FIELD_NAME"));
    pList->SetRows(rowsOf(listChanges, strHead));
    pList->setAccessibleName(HostText::Get("IDS_HOST_CARE_RESTORE_COLUMN"));
    QLabel* pHead = new QLabel(strHead, pContent);
    pHead->setObjectName(QLatin1String("linkhand_Restore_head"));
    pHead->setWordWrap(true);
    QLabel* pFoot = new QLabel(HostText::Get("IDS_HOST_CARE_RESTORE_FOOT"), pContent);
    pFoot->setWordWrap(true);
    QPushButton* pRestore = new QPushButton(HostText::Get("IDS_HOST_CARE_RESTORE"), pContent);
    pRestore->setObjectName(QLatin1String("linkhand_Restore_ok"));
    pRestore->setAutoDefault(false);
    QPushButton* pCancel = new QPushButton(HostText::Get("IDS_CANCEL"), pContent);
    pCancel->setObjectName(QLatin1String("linkhand_Restore_cancel"));
    pCancel->setDefault(true);
    connect(pRestore, SIGNAL(clicked()), this, SLOT(accept()));
    connect(pCancel, SIGNAL(clicked()), this, SLOT(reject()));

    QHBoxLayout* pButtons = new QHBoxLayout;
    pButtons->addStretch(1);
    pButtons->addWidget(pRestore);
    pButtons->addWidget(pCancel);
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(pHead);
    pLayout->addWidget(pList, 1);
    pLayout->addWidget(pFoot);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(480, 340);
    AddMainWidget(pContent);
    // In the style of the dialog, which it has only now.
    pList->SizeColumns(QStringList(HostText::Get("IDS_HOST_CARE_RESTORE_ROW_CHANGES")));
    pCancel->setFocus(Qt::OtherFocusReason);
}
