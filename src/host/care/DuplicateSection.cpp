#include "care/DuplicateSection.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "care/CareTable.h"
#include "care/CareText.h"
#include "linkhand/core/CommonUtils.h"
#include "orva/orva_sdk.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

namespace
{

enum Column { COLUMN_NAMES, COLUMN_KIND, COLUMN_COUNT };

// Side by side: the fields' titles, what would become of them, and so many contacts.
const int MOST_SIDES = 8;
const int COLUMN_FIELD = 0;
const int COLUMN_MERGED = 1;
const int COLUMN_FIRST = 2;

QString namesOf(const DuplicateSet& set)
{
    QStringList lstNames;
    foreach (const QStringList& lstValues, set.listValues) {
        lstNames.append(CareText::NameOf(lstValues));
    }
    return lstNames.join(QLatin1String("; "));
}

} // namespace

DuplicateSection::DuplicateSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_duplicates", pParent),
      m_pHint(new QLabel(this)),
      m_pTable(new CareTable("linkhand_Care_duplicates_list", COLUMN_COUNT, this)),
      m_pSides(new CareTable("linkhand_Care_duplicates_sides", COLUMN_FIRST + MOST_SIDES, this)),
      m_pMerge(new QPushButton(this)),
      m_pSkip(new QPushButton(this)),
      m_pMergeAll(new QPushButton(this))
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_duplicates_hint"));
    m_pHint->setWordWrap(true);
    m_pMerge->setObjectName(QLatin1String("linkhand_Care_duplicates_merge"));
    m_pSkip->setObjectName(QLatin1String("linkhand_Care_duplicates_skip"));
    m_pMergeAll->setObjectName(QLatin1String("linkhand_Care_duplicates_all"));
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pSides->setSelectionMode(QAbstractItemView::SingleSelection);
    // A note has several lines.
    m_pSides->setUniformRowHeights(false);

    WrapLayout* pBar = new WrapLayout;
    pBar->AddStretch();
    pBar->addWidget(m_pMerge);
    pBar->addWidget(m_pSkip);
    pBar->addWidget(m_pMergeAll);
    QSplitter* pSplitter = new QSplitter(Qt::Vertical, this);
    pSplitter->setObjectName(QLatin1String("linkhand_Care_duplicates_splitter"));
    pSplitter->addWidget(m_pTable);
    pSplitter->addWidget(m_pSides);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pBar);
    pLayout->addWidget(pSplitter, 1);
    setTabOrder(m_pTable, m_pMerge);
    setTabOrder(m_pMerge, m_pSkip);
    setTabOrder(m_pSkip, m_pMergeAll);
    setTabOrder(m_pMergeAll, m_pSides);
    connect(m_pTable, SIGNAL(chosen()), this, SLOT(OnChosen()));
    connect(m_pMerge, SIGNAL(clicked()), this, SLOT(OnMerge()));
    connect(m_pSkip, SIGNAL(clicked()), this, SLOT(OnSkip()));
    connect(m_pMergeAll, SIGNAL(clicked()), this, SLOT(OnMergeAll()));
    show();
}

QString DuplicateSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_DUPLICATES");
}

void DuplicateSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_DUPLICATES_HINT"));
    m_pMerge->setText(HostText::Get("IDS_HOST_CARE_MERGE"));
    m_pSkip->setText(HostText::Get("IDS_HOST_CARE_SKIP"));
    m_pMergeAll->setText(HostText::Get("IDS_HOST_CARE_MERGE_ALL"));
    m_pTable->setAccessibleName(Title());
    m_pTable->SetTitles(QStringList() << HostText::Get("IDS_HOST_CARE_COLUMN_CONTACTS")
                                      << HostText::Get("IDS_HOST_CARE_COLUMN_ALIKE"));
    m_pTable->SetEmptyText(HostText::Get("IDS_HOST_CARE_DUPLICATES_NONE"));
    m_pTable->SizeColumns(QStringList() << QString(40, QLatin1Char('n')));
    m_pSides->setAccessibleName(HostText::Get("IDS_HOST_CARE_SIDES"));
    show();
}

void DuplicateSection::Read()
{
    begin(new DuplicateReading);
}

void DuplicateSection::Take(const CareTask& task)
{
    if (const DuplicateReading* pReading = dynamic_cast<const DuplicateReading*>(&task)) {
        m_pTable->SetFilled();
        m_listSets = pReading->Sets();
        show();
    } else if (const MergePreview* pPreview = dynamic_cast<const MergePreview*>(&task)) {
        const DuplicateSet* const pSet = chosenSet();
        if (pSet != nullptr && pSet->listIds == pPreview->Ids() && pPreview->Code() == ORVA_OK) {
            showSideBySide(*pSet, pPreview);
        }
    } else if (const Merging* pMerging = dynamic_cast<const Merging*>(&task)) {
        if (pMerging->Code() == ORVA_OK) {
            emit told(HostText::Get("IDS_HOST_CARE_MERGED").arg(QLocale().toString(pMerging->Sets())));
        }
    }
    if (task.Code() != ORVA_OK) {
        emit told(CareText::Explain(task.Code()));
    }
}

QWidget* DuplicateSection::FocusTarget()
{
    return m_pTable;
}

void DuplicateSection::OnChosen()
{
    const DuplicateSet* const pSet = chosenSet();
    enable(m_pMerge, pSet != nullptr);
    enable(m_pSkip, pSet != nullptr);
    // Without contacts there is nothing to have titles for.
    if (pSet == nullptr && m_pSides->hasFocus()) {
        FocusTarget()->setFocus(Qt::OtherFocusReason);
    }
    m_pSides->setVisible(pSet != nullptr);
    if (pSet == nullptr) {
        m_pSides->SetRows(QList<CareRow>());
        return;
    }
    showSideBySide(*pSet, nullptr);
    // Not while the rows are being changed, and once for several changes.
    QMetaObject::invokeMethod(this, "OnPreview", Qt::QueuedConnection);
}

void DuplicateSection::OnPreview()
{
    if (const DuplicateSet* const pSet = chosenSet()) {
        begin(new MergePreview(pSet->listIds));
    }
}

void DuplicateSection::OnMerge()
{
    if (const DuplicateSet* const pSet = chosenSet()) {
        merge(QList<DuplicateSet>() << *pSet);
    }
}

void DuplicateSection::OnSkip()
{
    if (const DuplicateSet* const pSet = chosenSet()) {
        m_setSkipped.insert(pSet->listIds.first());
        show();
    }
}

void DuplicateSection::OnMergeAll()
{
    const QList<DuplicateSet> listSets = samePeople();
    if (listSets.isEmpty()) {
        return;
    }
    const int iAnswer = CommonUtils::ShowMessage(
        QMessageBox::Question, window(), Title(),
        HostText::Get("IDS_HOST_CARE_MERGE_QUESTION").arg(QLocale().toString(int(listSets.size()))),
        QLatin1String("IDS_OK"), QLatin1String("IDS_CANCEL"), QString(), false, Qt::WindowCloseButtonHint, nullptr,
        QString(), true);
    if (iAnswer == QMessageBox::Ok) {
        merge(listSets);
    }
}

void DuplicateSection::show()
{
    QList<CareRow> listRows;
    for (int i = 0; i < m_listSets.size(); ++i) {
        const DuplicateSet& set = m_listSets.at(i);
        if (!m_setSkipped.contains(set.listIds.first())) {
            listRows.append(CareRow(i + 1, QStringList() << namesOf(set)
                                                         << HostText::Get(set.bSame ? "IDS_HOST_CARE_ALIKE_SAME"
                                                                                    : "IDS_HOST_CARE_ALIKE_NUMBER")));
        }
    }
    m_pTable->SetRows(listRows);
    enable(m_pMergeAll, !samePeople().isEmpty());
}

void DuplicateSection::showSideBySide(const DuplicateSet& set, const MergePreview* pPreview)
{
    const int iSides = qMin(MOST_SIDES, int(set.listValues.size()));
    QStringList lstTitles = QStringList() << HostText::Get("IDS_HOST_CARE_COLUMN_FIELD")
                                          << HostText::Get("IDS_HOST_CARE_COLUMN_MERGED");
    for (int i = 0; i < iSides; ++i) {
        lstTitles.append(HostText::Get("IDS_HOST_CARE_COLUMN_SIDE").arg(QLocale().toString(i + 1)));
    }
    QList<CareRow> listRows;
    const QStringList lstKeys = CareText::FieldKeys();
    for (int iField = 0; iField < lstKeys.size(); ++iField) {
        QStringList lstCells(pPreview != nullptr ? pPreview->Values().value(iField) : QString());
        for (int i = 0; i < iSides; ++i) {
            lstCells.append(set.listValues.at(i).value(iField));
        }
        for (int i = 0; CareText::IsNumber(lstKeys.at(iField)) && i < lstCells.size(); ++i) {
            lstCells[i] = CareText::Number(lstCells.at(i));
        }
        lstCells.prepend(CareText::FieldTitle(lstKeys.at(iField)));
        listRows.append(CareRow(iField + 1, lstCells));
    }
    if (pPreview != nullptr && !pPreview->Groups().isEmpty()) {
        listRows.append(CareRow(int(lstKeys.size()) + 1, QStringList()
                                                             << HostText::Get("IDS_HOST_CARE_COLUMN_GROUPS")
                                                             << pPreview->Groups().join(QLatin1String("; "))));
    }
    m_pSides->SetTitles(lstTitles);
    m_pSides->SetRows(listRows);
    for (int i = COLUMN_FIELD; i < COLUMN_FIRST + MOST_SIDES; ++i) {
        m_pSides->setColumnHidden(i, i >= COLUMN_FIRST + iSides);
    }
    m_pSides->resizeColumnToContents(COLUMN_FIELD);
    const int iShare = (m_pSides->viewport()->width() - m_pSides->columnWidth(COLUMN_FIELD)) / qMin(iSides + 1, 4);
    for (int i = COLUMN_MERGED; i < COLUMN_FIRST + iSides; ++i) {
        m_pSides->setColumnWidth(i, qMax(iShare, m_pSides->header()->sectionSizeHint(i)));
    }
}

void DuplicateSection::merge(const QList<DuplicateSet>& listSets)
{
    begin(new Merging(listSets));
}

const DuplicateSet* DuplicateSection::chosenSet() const
{
    const QList<int> listIds = m_pTable->SelectedIds();
    const int iAt = listIds.isEmpty() ? -1 : listIds.first() - 1;
    return iAt >= 0 && iAt < m_listSets.size() ? &m_listSets.at(iAt) : nullptr;
}

// What the user has put aside is not merged with the rest.
QList<DuplicateSet> DuplicateSection::samePeople() const
{
    QList<DuplicateSet> listSets;
    foreach (const DuplicateSet& set, m_listSets) {
        if (set.bSame && !m_setSkipped.contains(set.listIds.first())) {
            listSets.append(set);
        }
    }
    return listSets;
}
