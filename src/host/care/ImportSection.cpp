#include "care/ImportSection.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "care/CareTable.h"
#include "care/CareText.h"
#include "care/ImportText.h"
#include "findings/FindingsDialog.h"
#include "orva/orva_sync.h"
#include "shared/NumberDelegate.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

namespace
{

enum Column { COLUMN_NAME, COLUMN_NUMBER, COLUMN_OUTCOME, COLUMN_COUNT };

// What the SDK calls them.
const char* const EVOLUTION = "Outlook";
const char* const THUNDERBIRD = "Outlook Express";

} // namespace

ImportSection::ImportSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_import", pParent),
      m_pHint(new QLabel(this)),
      m_pFile(newButton("linkhand_Care_import_file")),
      m_pThunderbird(newButton("linkhand_Care_import_thunderbird")),
      m_pEvolution(newButton("linkhand_Care_import_evolution")),
      m_pExport(newButton("linkhand_Care_export")),
      m_pExistingLabel(new QLabel(this)),
      m_pExisting(new QComboBox(this)),
      m_pTable(new CareTable("linkhand_Care_import_list", COLUMN_COUNT, this)),
      m_pSummary(new QLabel(this)),
      m_pLeft(newButton("linkhand_Care_import_left")),
      m_pImport(newButton("linkhand_Care_import_do")),
      m_bTry(true),
      m_counts()
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_import_hint"));
    m_pHint->setWordWrap(true);
    m_pExisting->setObjectName(QLatin1String("linkhand_Care_import_existing"));
    // The texts of another language may be longer.
    m_pExisting->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_pExistingLabel->setBuddy(m_pExisting);
    m_pSummary->setObjectName(QLatin1String("linkhand_Care_import_summary"));
    m_pSummary->setTextFormat(Qt::PlainText);
    m_pSummary->setWordWrap(true);
    m_pTable->setItemDelegateForColumn(COLUMN_NUMBER, new NumberDelegate(m_pTable));
    m_pTable->SetFilled();
    for (int i = ORVA_EXISTING_ADD; i <= ORVA_EXISTING_UPDATE; ++i) {
        m_pExisting->addItem(QString());
    }
    m_pExisting->setCurrentIndex(m_plan.iExisting);
    layOut();
    connect(m_pFile, SIGNAL(clicked()), this, SLOT(OnFile()));
    connect(m_pThunderbird, SIGNAL(clicked()), this, SLOT(OnThunderbird()));
    connect(m_pEvolution, SIGNAL(clicked()), this, SLOT(OnEvolution()));
    connect(m_pExport, SIGNAL(clicked()), this, SLOT(OnExport()));
    connect(m_pExisting, SIGNAL(activated(int)), this, SLOT(OnExisting()));
    connect(m_pLeft, SIGNAL(clicked()), this, SLOT(OnLeft()));
    connect(m_pImport, SIGNAL(clicked()), this, SLOT(OnImport()));
    show();
}

QPushButton* ImportSection::newButton(const char* pszName)
{
    QPushButton* pButton = new QPushButton(this);
    pButton->setObjectName(QLatin1String(pszName));
    return pButton;
}

void ImportSection::layOut()
{
    WrapLayout* pBar = new WrapLayout;
    pBar->addWidget(m_pFile);
    pBar->addWidget(m_pThunderbird);
    pBar->addWidget(m_pEvolution);
    pBar->AddStretch();
    pBar->addWidget(m_pExport);
    WrapLayout* pExisting = new WrapLayout;
    pExisting->addWidget(m_pExistingLabel);
    pExisting->addWidget(m_pExisting);
    pExisting->AddStretch();
    QHBoxLayout* pEnd = new QHBoxLayout;
    pEnd->addWidget(m_pSummary, 1);
    pEnd->addWidget(m_pLeft);
    pEnd->addWidget(m_pImport);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pBar);
    pLayout->addLayout(pExisting);
    pLayout->addWidget(m_pTable, 1);
    pLayout->addLayout(pEnd);
    QWidget* pBefore = m_pFile;
    foreach (QWidget* pNext, (QList<QWidget*>() << m_pThunderbird << m_pEvolution << m_pExport << m_pExisting
                                                << m_pTable << m_pLeft << m_pImport)) {
        setTabOrder(pBefore, pNext);
        pBefore = pNext;
    }
}

QString ImportSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_IMPORT");
}

void ImportSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_IMPORT_HINT"));
    m_pFile->setText(HostText::Get("IDS_HOST_CARE_IMPORT_FILE"));
    m_pThunderbird->setText(HostText::Get("IDS_HOST_CARE_IMPORT_PROGRAM").arg(QLatin1String("Thunderbird")));
    m_pEvolution->setText(HostText::Get("IDS_HOST_CARE_IMPORT_PROGRAM").arg(QLatin1String("Evolution")));
    m_pExport->setText(HostText::Get("IDS_HOST_CARE_EXPORT"));
    m_pExistingLabel->setText(HostText::Get("IDS_HOST_CARE_IMPORT_EXISTING"));
    m_pExisting->setAccessibleName(m_pExistingLabel->text());
    for (int i = 0; i < m_pExisting->count(); ++i) {
        m_pExisting->setItemText(i, ImportText::ExistingChoices().value(i));
    }
    m_pImport->setText(HostText::Get("IDS_HOST_CARE_IMPORT_DO"));
    m_pTable->setAccessibleName(Title());
    m_pTable->SetTitles(ImportText::Titles());
    m_pTable->SetEmptyText(HostText::Get("IDS_HOST_CARE_IMPORT_NONE"));
    m_pTable->SizeColumns(QStringList() << QString(26, QLatin1Char('n')) << QLatin1String("+44 1632 960000 00"));
    show();
}

void ImportSection::Read()
{
    m_pThunderbird->setVisible(ORVA_PBSrv_IsOutlookInstalled(THUNDERBIRD) == ORVA_OK);
    m_pEvolution->setVisible(ORVA_PBSrv_IsOutlookInstalled(EVOLUTION) == ORVA_OK);
    look();
}

void ImportSection::Take(const CareTask& task)
{
    if (const ContactImporting* pImporting = dynamic_cast<const ContactImporting*>(&task)) {
        takeImport(*pImporting);
    } else if (const ContactExporting* pExporting = dynamic_cast<const ContactExporting*>(&task)) {
        takeExport(*pExporting);
    }
}

QWidget* ImportSection::FocusTarget()
{
    return m_pTable;
}

void ImportSection::SetFile(const QString& strFile)
{
    choose(strFile, QFileInfo(strFile).fileName(), false);
}

void ImportSection::ExportTo(const QString& strFile)
{
    begin(new ContactExporting(strFile));
}

void ImportSection::OnFile()
{
    const QString strFile =
        QFileDialog::getOpenFileName(this, HostText::Get("IDS_HOST_CARE_IMPORT_FILE"), QDir::homePath(),
                                     QLatin1String("vCard, CSV (*.vcf *.vcard *.csv *.txt *.VCF *.CSV);;* (*)"));
    if (!strFile.isEmpty()) {
        SetFile(strFile);
    }
}

void ImportSection::OnThunderbird()
{
    choose(QLatin1String(THUNDERBIRD), QLatin1String("Thunderbird"), true);
}

void ImportSection::OnEvolution()
{
    choose(QLatin1String(EVOLUTION), QLatin1String("Evolution"), true);
}

void ImportSection::OnExisting()
{
    m_plan.iExisting = m_pExisting->currentIndex();
    look();
}

void ImportSection::OnImport()
{
    if (!m_plan.strSource.isEmpty()) {
        begin(new ContactImporting(m_plan, false));
    }
}

void ImportSection::OnLeft()
{
    FindingsDialog dialog(m_findings, window());
    dialog.exec();
}

// Whatever is there under that name stays under another one, so nobody is asked.
void ImportSection::OnExport()
{
    QString strFilter = QLatin1String("vCard (*.vcf)");
    QString strFile = QFileDialog::getSaveFileName(
        this, HostText::Get("IDS_HOST_CARE_EXPORT"), QDir::home().filePath(QLatin1String("contacts.vcf")),
        QLatin1String("vCard (*.vcf);;CSV (*.csv)"), &strFilter, QFileDialog::DontConfirmOverwrite);
    if (strFile.isEmpty()) {
        return;
    }
    if (QFileInfo(strFile).suffix().isEmpty()) {
        strFile += QLatin1String(strFilter.startsWith(QLatin1String("CSV")) ? ".csv" : ".vcf");
    }
    ExportTo(strFile);
}

void ImportSection::choose(const QString& strSource, const QString& strShown, bool bProgram)
{
    m_plan.strSource = strSource;
    m_plan.strShown = strShown;
    m_plan.bProgram = bProgram;
    look();
}

void ImportSection::look()
{
    if (!m_plan.strSource.isEmpty()) {
        begin(new ContactImporting(m_plan, true));
    }
}

void ImportSection::takeImport(const ContactImporting& importing)
{
    // Another source may have been chosen meanwhile.
    if (importing.IsTry() && importing.Plan().strSource != m_plan.strSource) {
        return;
    }
    const long nCode = importing.Code();
    const bool bSource = ImportText::IsOfSource(nCode);
    if (!importing.IsTry() || bSource) {
        m_plan.strSource.clear();
    }
    m_strShown = importing.Plan().strShown;
    m_bTry = importing.IsTry();
    m_listRows = importing.Rows();
    m_counts = importing.Counts();
    m_findings = importing.Findings();
    show();
    if (bSource) {
        emit told(HostText::Get("IDS_HOST_CARE_IMPORT_UNREADABLE").arg(m_strShown));
    } else if (!m_bTry || nCode != ORVA_OK) {
        emit told(
            importing.IsCut()
                ? HostText::Get("IDS_HOST_CARE_IMPORT_CANCELLED")
                : CareText::Outcome(
                      HostText::Get("IDS_HOST_CARE_IMPORT_DONE").arg(m_strShown, QLocale().toString(m_counts.added)),
                      nCode));
    }
}

void ImportSection::takeExport(const ContactExporting& exporting)
{
    const QString strFile = QDir::toNativeSeparators(exporting.File());
    if (exporting.Code() == ORVA_E_CANCELLED) {
        emit told(HostText::Get("IDS_HOST_CARE_EXPORT_CANCELLED"));
        return;
    }
    if (exporting.Code() != ORVA_OK) {
        emit told(HostText::Get("IDS_HOST_FINDINGS_NOT_SAVED").arg(strFile));
        return;
    }
    QString strText = HostText::Get("IDS_HOST_CARE_EXPORT_DONE").arg(strFile, QLocale().toString(exporting.Written()));
    if (exporting.HasKept()) {
        strText += QLatin1Char(' ') + HostText::Get("IDS_HOST_CARE_EXPORT_KEPT");
    }
    emit told(strText);
}

void ImportSection::show()
{
    m_pTable->SetRows(ImportText::Rows(m_listRows));
    m_pSummary->setText(m_strShown.isEmpty() ? QString() : ImportText::Summary(m_bTry, m_strShown, m_counts));
    m_pLeft->setText(ImportText::Left(m_findings));
    enable(m_pLeft, m_findings.Total() > 0);
    enable(m_pImport, !m_plan.strSource.isEmpty());
}
