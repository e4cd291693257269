#include "care/BinSection.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "care/CareTable.h"
#include "care/CareText.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_care.h"
#include "shared/NumberDelegate.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

namespace
{

enum Column { COLUMN_TIME, COLUMN_WHAT, COLUMN_NAME, COLUMN_NUMBER, COLUMN_GROUPS, COLUMN_COUNT };

// The first of the numbers.
QString numberOf(const QStringList& lstValues)
{
    return CareText::NameOf(lstValues.mid(1, 3));
}

} // namespace

BinSection::BinSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_bin", pParent),
      m_pHint(new QLabel(this)),
      m_pSearchLabel(new QLabel(this)),
      m_pSearch(new QLineEdit(this)),
      m_pTable(new CareTable("linkhand_Care_bin_list", COLUMN_COUNT, this)),
      m_pRestore(new QPushButton(this))
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_bin_hint"));
    m_pHint->setWordWrap(true);
    m_pSearch->setObjectName(QLatin1String("linkhand_Care_bin_search"));
    m_pSearchLabel->setBuddy(m_pSearch);
    QtCompat::showClearButton(m_pSearch);
    m_pRestore->setObjectName(QLatin1String("linkhand_Care_bin_restore"));
    m_pRestore->setEnabled(false);
    m_pTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pTable->setItemDelegateForColumn(COLUMN_NUMBER, new NumberDelegate(m_pTable));

    WrapLayout* pBar = new WrapLayout;
    pBar->addWidget(m_pSearchLabel);
    pBar->addWidget(m_pSearch);
    pBar->addWidget(m_pRestore);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pTable, 1);
    setTabOrder(m_pSearch, m_pTable);
    setTabOrder(m_pTable, m_pRestore);
    connect(m_pSearch, SIGNAL(textChanged(QString)), m_pTable, SLOT(SetSearch(QString)));
    connect(m_pTable, SIGNAL(chosen()), this, SLOT(OnChosen()));
    connect(m_pRestore, SIGNAL(clicked()), this, SLOT(OnRestore()));
}

QString BinSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_BIN");
}

void BinSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_BIN_HINT").arg(QLocale().toString(ORVA_BIN_DAYS)));
    m_pSearchLabel->setText(HostText::Get("IDS_HOST_CARE_SEARCH"));
    m_pSearch->setAccessibleName(HostText::Get("IDS_HOST_CARE_SEARCH"));
    m_pRestore->setText(HostText::Get("IDS_HOST_CARE_BIN_RESTORE"));
    m_pTable->setAccessibleName(Title());
    m_pTable->SetTitles(
        QStringList() << HostText::Get("IDS_HOST_CARE_COLUMN_WHEN") << HostText::Get("IDS_HOST_CARE_COLUMN_WHAT")
                      << HostText::Get("IDS_HOST_FIELD_NAME") << HostText::Get("IDS_HOST_CARE_COLUMN_NUMBER")
                      << HostText::Get("IDS_HOST_CARE_COLUMN_GROUPS"));
    m_pTable->SetEmptyText(HostText::Get("IDS_HOST_CARE_BIN_NONE"));
    const QString strDeleted = HostText::Get("IDS_HOST_CARE_BIN_DELETED");
    const QString strChanged = HostText::Get("IDS_HOST_CARE_BIN_CHANGED");
    m_pTable->SizeColumns(QStringList() << CareText::Time(1860791880)
                                        << (strDeleted.length() > strChanged.length() ? strDeleted : strChanged)
                                        << QString(22, QLatin1Char('n')) << QLatin1String("+44 1632 960000 00"));
    show(m_listContacts);
}

void BinSection::Read()
{
    begin(new BinReading);
}

void BinSection::Take(const CareTask& task)
{
    if (const BinReading* pReading = dynamic_cast<const BinReading*>(&task)) {
        m_pTable->SetFilled();
        show(pReading->Contacts());
        if (pReading->Code() != ORVA_OK) {
            emit told(CareText::Explain(pReading->Code()));
        }
    } else if (const BinRestoring* pRestoring = dynamic_cast<const BinRestoring*>(&task)) {
        emit told(CareText::Outcome(
            HostText::Get("IDS_HOST_CARE_BIN_RESTORED").arg(QLocale().toString(pRestoring->Restored())),
            pRestoring->Code()));
    }
}

QWidget* BinSection::FocusTarget()
{
    return m_pTable;
}

void BinSection::OnChosen()
{
    enable(m_pRestore, !m_pTable->SelectedIds().isEmpty());
}

void BinSection::OnRestore()
{
    const QList<int> listEntries = m_pTable->SelectedIds();
    if (!listEntries.isEmpty()) {
        begin(new BinRestoring(listEntries));
    }
}

void BinSection::show(const QList<BinContact>& listContacts)
{
    m_listContacts = listContacts;
    QList<CareRow> listRows;
    foreach (const BinContact& contact, m_listContacts) {
        listRows.append(CareRow(
            contact.iEntry,
            QStringList() << CareText::Time(contact.iTime)
                          << HostText::Get(contact.bDeleted ? "IDS_HOST_CARE_BIN_DELETED" : "IDS_HOST_CARE_BIN_CHANGED")
                          << CareText::NameOf(contact.lstValues) << numberOf(contact.lstValues)
                          << contact.lstGroups.join(QLatin1String("; "))));
    }
    m_pTable->SetRows(listRows);
}
