#include "care/CarePage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "care/BackupSection.h"
#include "care/BinSection.h"
#include "care/CareRunner.h"
#include "care/CareSdk.h"
#include "care/CareSection.h"
#include "care/CheckSection.h"
#include "care/DetailSection.h"
#include "care/DuplicateSection.h"
#include "care/ImportSection.h"
#include "care/SyncSdk.h"
#include "care/SyncSection.h"
#include "fit/PageView.h"
#include "text/HostText.h"

namespace
{

// What is done sooner than that shows no progress.
const int LOOK_MS = 200;

} // namespace

CarePage::CarePage(QWidget* pParent)
    : QWidget(pParent),
      m_pRunner(new CareRunner(this)),
      m_pTitle(new QLabel(this)),
      m_pTabs(new QTabWidget(this)),
      m_pFoot(new QStackedWidget(this)),
      m_pTold(new QLabel),
      m_pWork(new QWidget),
      m_pWorkText(new QLabel),
      m_pProgress(new QProgressBar),
      m_pCancel(new QPushButton)
{
    setObjectName(QLatin1String("linkhand_Page_Care"));
    m_pTitle->setObjectName(QLatin1String("linkhand_Care_title"));
    m_pTabs->setObjectName(QLatin1String("linkhand_Care_tabs"));
    m_pTold->setObjectName(QLatin1String("linkhand_Care_told"));
    m_pProgress->setObjectName(QLatin1String("linkhand_Care_progress"));
    m_pCancel->setObjectName(QLatin1String("linkhand_Care_cancel"));
    m_pTold->setWordWrap(true);
    m_pTabs->setDocumentMode(true);

    QHBoxLayout* pWork = new QHBoxLayout(m_pWork);
    pWork->setContentsMargins(0, 0, 0, 0);
    pWork->addWidget(m_pWorkText);
    pWork->addWidget(m_pProgress, 1);
    pWork->addWidget(m_pCancel);
    m_pFoot->addWidget(m_pTold);
    m_pFoot->addWidget(m_pWork);
    m_pFoot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(12, 10, 12, 10);
    pLayout->addWidget(m_pTitle);
    pLayout->addWidget(m_pTabs, 1);
    pLayout->addWidget(m_pFoot);

    addSection(new BinSection(*m_pRunner, this));
    addSection(new BackupSection(*m_pRunner, this));
    addSection(new DuplicateSection(*m_pRunner, this));
    addSection(new CheckSection(*m_pRunner, this));
    addSection(new DetailSection(*m_pRunner, this));
    if (CareSdk::HasImport()) {
        addSection(new ImportSection(*m_pRunner, this));
    }
    if (SyncSdk::IsThere()) {
        addSection(new SyncSection(*m_pRunner, this));
    }
    connect(m_pTabs, SIGNAL(currentChanged(int)), this, SLOT(OnTabChosen()));
    connect(m_pRunner, SIGNAL(begun()), this, SLOT(OnBegun()));
    connect(m_pRunner, SIGNAL(ended(bool)), this, SLOT(OnEnded(bool)));
    connect(m_pCancel, SIGNAL(clicked()), this, SLOT(OnCancel()));
    connect(&m_look, SIGNAL(timeout()), this, SLOT(OnProgress()));
}

// Before the sections, which it hands results to.
CarePage::~CarePage()
{
    delete m_pRunner;
}

bool CarePage::IsPossible()
{
    return CareSdk::IsThere();
}

void CarePage::Retranslate()
{
    m_pTitle->setText(HostText::Get("IDS_HOST_PAGE_Care"));
    m_pTabs->setAccessibleName(m_pTitle->text());
    m_pCancel->setText(HostText::Get("IDS_CANCEL"));
    m_pWorkText->setText(HostText::Get("IDS_HOST_CARE_WORKING"));
    m_pProgress->setAccessibleName(m_pWorkText->text());
    m_pTold->clear();
    for (int i = 0; i < m_listSections.size(); ++i) {
        m_pTabs->setTabText(i, m_listSections.at(i)->Title());
        m_listSections.at(i)->Retranslate();
    }
}

void CarePage::Enter()
{
    setAllStale();
    readCurrent();
}

void CarePage::ShowBackups()
{
    m_pTabs->setCurrentWidget(PageView::Of(findChild<BackupSection*>()));
}

void CarePage::OnTabChosen()
{
    m_pTold->clear();
    m_listSections.at(m_pTabs->currentIndex())->SetStale(true);
    readCurrent();
}

void CarePage::OnTold(const QString& strText)
{
    m_pTold->setText(strText);
    m_pTold->setAccessibleName(strText);
}

void CarePage::OnBegun()
{
    m_look.start(LOOK_MS);
}

void CarePage::OnEnded(bool bWrote)
{
    if (m_pRunner->Current() == nullptr) {
        m_look.stop();
        if (m_pCancel->hasFocus()) {
            m_listSections.at(m_pTabs->currentIndex())->FocusTarget()->setFocus(Qt::OtherFocusReason);
        }
        m_pFoot->setCurrentWidget(m_pTold);
    }
    if (bWrote) {
        setAllStale();
        emit contactsChanged();
    }
    readCurrent();
}

void CarePage::OnCancel()
{
    m_pRunner->CancelCurrent();
}

void CarePage::OnProgress()
{
    const CareTask* const pTask = m_pRunner->Current();
    if (pTask == nullptr) {
        // A section asks the user something about what was found.
        m_pFoot->setCurrentWidget(m_pTold);
    } else {
        m_pProgress->setRange(0, pTask->Total());
        m_pProgress->setValue(pTask->Done());
        m_pFoot->setCurrentWidget(m_pWork);
    }
}

void CarePage::addSection(CareSection* pSection)
{
    m_listSections.append(pSection);
    m_pTabs->addTab(new PageView(pSection), QString());
    connect(pSection, SIGNAL(told(QString)), this, SLOT(OnTold(QString)));
}

void CarePage::readCurrent()
{
    CareSection* const pSection = m_listSections.at(m_pTabs->currentIndex());
    const CareTask* const pTask = m_pRunner->Current();
    // Else it is read when that has ended.
    if (isVisible() && pSection->IsStale() && (pTask == nullptr || pTask->KindOf() == CareTask::READING)) {
        pSection->SetStale(false);
        pSection->Read();
    }
}

void CarePage::setAllStale()
{
    foreach (CareSection* pSection, m_listSections) {
        pSection->SetStale(true);
    }
}
