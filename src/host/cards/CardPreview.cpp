#include "cards/CardPreview.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "cards/CardImport.h"
#include "care/CareTable.h"
#include "care/CareText.h"
#include "care/ImportText.h"
#include "findings/FindingsDialog.h"
#include "shared/NumberDelegate.h"
#include "text/HostText.h"

namespace
{

enum Column { COLUMN_NAME, COLUMN_NUMBER, COLUMN_OUTCOME, COLUMN_COUNT };

const int PROGRESS_MS = 200;

QLabel* newLabel(const char* pszName)
{
    QLabel* pLabel = new QLabel;
    pLabel->setObjectName(QLatin1String(pszName));
    pLabel->setTextFormat(Qt::PlainText); // a file's name may hold marks
    pLabel->setWordWrap(true);
    return pLabel;
}

QPushButton* newButton(const QString& strText, const char* pszName)
{
    QPushButton* pButton = new QPushButton(strText);
    pButton->setObjectName(QLatin1String(pszName));
    return pButton;
}

} // namespace

CardPreview::CardPreview(const QString& strFile, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG),
      m_pImport(new CardImport(this)),
      m_pHead(newLabel("linkhand_Cards_head")),
      m_pExistingLabel(newLabel("linkhand_Cards_existing_label")),
      m_pExisting(new QComboBox),
      m_pList(new CareTable("linkhand_Cards_list", COLUMN_COUNT, nullptr)),
      m_pState(newLabel("linkhand_Cards_state")),
      m_pLeft(newButton(QString(), "linkhand_Cards_left")),
      m_pStore(newButton(HostText::Get("IDS_HOST_CARDS_IMPORT"), "linkhand_Cards_import")),
      m_pCancel(newButton(HostText::Get("IDS_CANCEL"), "linkhand_Cards_cancel")),
      m_iInFile(0),
      m_bStored(false),
      m_bLooked(false),
      m_bAgain(false)
{
    setObjectName(QLatin1String("linkhand_Cards"));
    setWindowTitle(HostText::Get("IDS_HOST_CARDS_TITLE"));
    m_plan.strSource = strFile;
    m_plan.strShown = QFileInfo(strFile).fileName();
    m_pHead->setText(HostText::Get("IDS_HOST_CARDS_HEAD").arg(m_plan.strShown));
    m_pExistingLabel->setText(HostText::Get("IDS_HOST_CARE_IMPORT_EXISTING"));
    m_pExistingLabel->setWordWrap(false);
    m_pExistingLabel->setBuddy(m_pExisting);
    m_pExisting->setObjectName(QLatin1String("linkhand_Cards_existing"));
    m_pExisting->setAccessibleName(m_pExistingLabel->text());
    m_pExisting->addItems(ImportText::ExistingChoices());
    m_pExisting->setCurrentIndex(m_plan.iExisting);
    m_pList->setAccessibleName(HostText::Get("IDS_HOST_CARDS_TITLE"));
    m_pList->setItemDelegateForColumn(COLUMN_NUMBER, new NumberDelegate(m_pList));
    m_pList->SetTitles(ImportText::Titles());
    m_pList->SetEmptyText(HostText::Get("IDS_HOST_CARDS_NONE"));
    m_pList->SizeColumns(QStringList() << QString(22, QLatin1Char('n')) << QLatin1String("+44 1632 960000 00"));
    m_pLeft->hide();
    m_pStore->setEnabled(false);
    m_pStore->setDefault(true);
    m_pCancel->setAutoDefault(false);
    QWidget* pContent = new QWidget;
    makeLayout(pContent);
    AddMainWidget(pContent);
    m_progress.setInterval(PROGRESS_MS);
    connect(&m_progress, SIGNAL(timeout()), this, SLOT(OnProgress()));
    connect(m_pImport, SIGNAL(finished()), this, SLOT(OnFinished()));
    connect(m_pExisting, SIGNAL(activated(int)), this, SLOT(OnExisting()));
    connect(m_pLeft, SIGNAL(clicked()), this, SLOT(OnLeft()));
    connect(m_pStore, SIGNAL(clicked()), this, SLOT(OnImport()));
    connect(m_pCancel, SIGNAL(clicked()), this, SLOT(reject()));
    m_pCancel->setFocus(Qt::OtherFocusReason);
    look();
}

// A file that is being stored is told of before the dialog goes.
void CardPreview::reject()
{
    const bool bStoring = m_pImport->IsRunning() && !m_pImport->Task().IsTry();
    m_bAgain = false;
    m_pImport->Cancel();
    if (!bStoring) {
        ExtendDialog::reject();
    }
}

void CardPreview::OnFinished()
{
    m_progress.stop();
    if (!m_pImport->Task().IsTry()) {
        showImport();
    } else if (m_bAgain) {
        look();
    } else if (!m_pImport->Task().IsCancelled()) {
        showLook();
    }
}

void CardPreview::OnImport()
{
    m_pStore->setEnabled(false);
    m_pExisting->setEnabled(false);
    m_pLeft->hide();
    m_pCancel->setFocus(Qt::OtherFocusReason);
    m_pImport->Begin(m_plan, false);
    m_progress.start();
    OnProgress();
}

void CardPreview::OnExisting()
{
    if (m_pExisting->currentIndex() == m_plan.iExisting) {
        return;
    }
    m_plan.iExisting = m_pExisting->currentIndex();
    m_pStore->setEnabled(false);
    m_bAgain = m_pImport->IsRunning();
    if (m_bAgain) {
        m_pImport->Cancel();
    } else {
        look();
    }
}

void CardPreview::OnLeft()
{
    FindingsDialog dialog(m_pImport->Task().Findings(), this);
    dialog.exec();
}

void CardPreview::OnProgress()
{
    const ContactImporting& task = m_pImport->Task();
    const int iTotal = qMax(task.Total(), m_iInFile);
    const QLocale locale;
    m_pState->setText(
        iTotal > 0 ? HostText::Get("IDS_HOST_CARDS_PROGRESS").arg(locale.toString(task.Done()), locale.toString(iTotal))
                   : HostText::Get("IDS_HOST_CARE_WORKING"));
}

void CardPreview::makeLayout(QWidget* pContent)
{
    QHBoxLayout* pExisting = new QHBoxLayout;
    pExisting->addWidget(m_pExistingLabel);
    pExisting->addWidget(m_pExisting);
    pExisting->addStretch(1);
    QHBoxLayout* pButtons = new QHBoxLayout;
    pButtons->addWidget(m_pLeft);
    pButtons->addStretch(1);
    pButtons->addWidget(m_pStore);
    pButtons->addWidget(m_pCancel);
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(m_pHead);
    pLayout->addLayout(pExisting);
    pLayout->addWidget(m_pList, 1);
    pLayout->addWidget(m_pState);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(560, 360);
}

void CardPreview::look()
{
    m_bAgain = false;
    m_pImport->Begin(m_plan, true);
    m_progress.start();
    m_pState->setText(HostText::Get("IDS_HOST_CARE_WORKING"));
}

void CardPreview::showLook()
{
    const ContactImporting& task = m_pImport->Task();
    const ORVA_IMPORT_COUNTS& counts = task.Counts();
    const long nCode = task.Code();
    showRows();
    // Many kinds of files have no contact in them.
    const bool bUnreadable = ImportText::IsOfSource(nCode) || (nCode == ORVA_OK && counts.total == 0);
    m_pState->setText(bUnreadable        ? HostText::Get("IDS_HOST_CARDS_UNREADABLE")
                      : nCode == ORVA_OK ? ImportText::Summary(true, m_plan.strShown, counts)
                                         : CareText::Explain(nCode));
    m_iInFile = counts.total;
    m_pStore->setEnabled(nCode == ORVA_OK && counts.added + counts.changed > 0);
    // Whoever has chosen what becomes of those that are there goes on choosing.
    if (!m_bLooked && m_pStore->isEnabled()) {
        m_pStore->setFocus(Qt::OtherFocusReason);
    }
    m_bLooked = true;
}

void CardPreview::showImport()
{
    const ContactImporting& task = m_pImport->Task();
    const ORVA_IMPORT_COUNTS& counts = task.Counts();
    const int iStored = counts.added + counts.changed;
    m_bStored = iStored > 0;
    // A file that was not read to its end does not tell how many it holds.
    const QLocale locale;
    const QString strTotal = locale.toString(qMax(counts.total, m_iInFile));
    const QString strDone = HostText::Get("IDS_HOST_CARDS_DONE").arg(locale.toString(iStored), strTotal);
    m_strOutcome =
        task.IsCut() ? HostText::Get("IDS_HOST_CARE_IMPORT_CANCELLED") : CareText::Outcome(strDone, task.Code());
    if (task.IsCancelled() || (task.Code() == ORVA_OK && counts.left == 0)) {
        accept();
        return;
    }
    showRows();
    const QString strSummary = ImportText::Summary(false, m_plan.strShown, counts);
    m_pState->setText(CareText::Outcome(strSummary, task.Code()));
    m_pCancel->setText(HostText::Get("IDS_HOST_CLOSE"));
}

void CardPreview::showRows()
{
    const ContactImporting& task = m_pImport->Task();
    m_pList->SetFilled();
    m_pList->SetRows(ImportText::Rows(task.Rows()));
    m_pLeft->setText(ImportText::Left(task.Findings()));
    m_pLeft->setVisible(task.Findings().Total() > 0);
}
