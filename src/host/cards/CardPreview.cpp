#include "cards/CardPreview.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "cards/CardImport.h"
#include "care/CareTable.h"
#include "care/CareText.h"
#include "text/HostText.h"

namespace
{

const int PROGRESS_MS = 200;

QLabel* newLabel(const char* pszName)
{
    QLabel* pLabel = new QLabel;
    pLabel->setObjectName(QLatin1String(pszName));
    pLabel->setTextFormat(Qt::PlainText); // a file's name may hold marks
    pLabel->setWordWrap(true);
    return pLabel;
}

QPushButton* newButton(const char* pszText, const char* pszName)
{
    QPushButton* pButton = new QPushButton(HostText::Get(pszText));
    pButton->setObjectName(QLatin1String(pszName));
    return pButton;
}

// Name, and the numbers in the order of their fields.
QStringList cellsOf(const QStringList& lstValues)
{
    QStringList lstNumbers;
    const QStringList lstKeys = CareText::FieldKeys();
    for (int i = 0; i < lstKeys.size(); ++i) {
        if (CareText::IsNumber(lstKeys.at(i)) && !lstValues.at(i).isEmpty()) {
            lstNumbers.append(CareText::Number(lstValues.at(i)));
        }
    }
    return QStringList() << CareText::NameOf(lstValues) << lstNumbers.join(QLatin1String(", "));
}

} // namespace

CardPreview::CardPreview(const QString& strFile, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG),
      m_pImport(new CardImport(strFile, this)),
      m_pHead(newLabel("linkhand_Cards_head")),
      m_pState(newLabel("linkhand_Cards_state")),
      m_pList(new CareTable("linkhand_Cards_list", 2, nullptr)),
      m_pStore(newButton("IDS_HOST_CARDS_IMPORT", "linkhand_Cards_import")),
      m_pCancel(newButton("IDS_CANCEL", "linkhand_Cards_cancel")),
      m_bStoring(false)
{
    setObjectName(QLatin1String("linkhand_Cards"));
    setWindowTitle(HostText::Get("IDS_HOST_CARDS_TITLE"));
    m_pHead->setText(HostText::Get("IDS_HOST_CARDS_HEAD").arg(QFileInfo(strFile).fileName()));
    m_pState->setText(HostText::Get("IDS_HOST_CARE_WORKING"));
    m_pList->setAccessibleName(HostText::Get("IDS_HOST_CARDS_TITLE"));
    m_pList->SetTitles(QStringList() << CareText::FieldTitle(QLatin1String("Name"))
                                     << HostText::Get("IDS_HOST_CARE_COLUMN_NUMBER"));
    m_pList->SizeColumns(QStringList(QString(24, QLatin1Char('n'))));
    m_pStore->setEnabled(false);
    m_pStore->setDefault(true);
    m_pCancel->setAutoDefault(false);
    QWidget* pContent = new QWidget;
    makeLayout(pContent);
    AddMainWidget(pContent);
    m_progress.setInterval(PROGRESS_MS);
    connect(&m_progress, SIGNAL(timeout()), this, SLOT(OnProgress()));
    connect(m_pImport, SIGNAL(finished()), this, SLOT(OnFinished()));
    connect(m_pStore, SIGNAL(clicked()), this, SLOT(OnImport()));
    connect(m_pCancel, SIGNAL(clicked()), this, SLOT(reject()));
    m_pCancel->setFocus(Qt::OtherFocusReason);
    m_pImport->Read();
}

bool CardPreview::HasStored() const
{
    return m_pImport->Stored() > 0;
}

void CardPreview::reject()
{
    m_pImport->Cancel();
    if (!m_bStoring) {
        ExtendDialog::reject();
    }
}

void CardPreview::OnFinished()
{
    if (!m_bStoring) {
        showContacts();
        return;
    }
    m_progress.stop();
    const QString strDone =
        HostText::Get("IDS_HOST_CARDS_DONE").arg(m_pImport->Stored()).arg(m_pImport->Contacts().size());
    m_strOutcome = CareText::Outcome(strDone, m_pImport->Code());
    accept();
}

void CardPreview::OnImport()
{
    m_bStoring = true;
    m_pStore->setEnabled(false);
    m_pCancel->setFocus(Qt::OtherFocusReason);
    m_progress.start();
    m_pImport->Store();
    OnProgress();
}

void CardPreview::OnProgress()
{
    m_pState->setText(
        HostText::Get("IDS_HOST_CARDS_PROGRESS").arg(m_pImport->Done()).arg(m_pImport->Contacts().size()));
}

void CardPreview::makeLayout(QWidget* pContent)
{
    QHBoxLayout* pButtons = new QHBoxLayout;
    pButtons->addStretch(1);
    pButtons->addWidget(m_pStore);
    pButtons->addWidget(m_pCancel);
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(m_pHead);
    pLayout->addWidget(m_pList, 1);
    pLayout->addWidget(m_pState);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(460, 320);
}

void CardPreview::showContacts()
{
    QList<CareRow> listRows;
    foreach (const QStringList& lstValues, m_pImport->Contacts()) {
        listRows.append(CareRow(int(listRows.size()) + 1, cellsOf(lstValues)));
    }
    m_pList->SetEmptyText(HostText::Get("IDS_HOST_CARDS_NONE"));
    m_pList->SetFilled();
    m_pList->SetRows(listRows);
    m_pState->setText(m_pImport->Code() != 0 ? HostText::Get("IDS_HOST_CARDS_UNREADABLE")
                                             : HostText::Get("IDS_HOST_CARDS_COUNT").arg(listRows.size()));
    m_pStore->setEnabled(!listRows.isEmpty());
    if (!listRows.isEmpty()) {
        m_pStore->setFocus(Qt::OtherFocusReason);
    }
}
