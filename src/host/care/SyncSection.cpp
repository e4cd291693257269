#include "care/SyncSection.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "care/SyncForm.h"
#include "care/SyncSdk.h"
#include "care/SyncText.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

SyncSection::SyncSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_sync", pParent),
      m_pHint(new QLabel(this)),
      m_pForm(new SyncForm(this)),
      m_pTimer(new QCheckBox(this)),
      m_pSetUp(new QPushButton(this)),
      m_pNow(new QPushButton(this)),
      m_pLast(new QTextBrowser(this)),
      m_bRead(false),
      m_enTimer(TIMER_UNKNOWN)
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_sync_hint"));
    m_pHint->setWordWrap(true);
    m_pSetUp->setObjectName(QLatin1String("linkhand_Care_sync_setup"));
    m_pNow->setObjectName(QLatin1String("linkhand_Care_sync_now"));
    m_pTimer->setObjectName(QLatin1String("linkhand_Care_sync_timer"));
    m_pLast->setObjectName(QLatin1String("linkhand_Care_sync_last"));
    lay();
    connect(m_pForm, SIGNAL(changed()), this, SLOT(OnFormChanged()));
    connect(m_pSetUp, SIGNAL(clicked()), this, SLOT(OnSetUp()));
    connect(m_pNow, SIGNAL(clicked()), this, SLOT(OnNow()));
    connect(m_pTimer, SIGNAL(clicked(bool)), this, SLOT(OnTimer(bool)));
    OnFormChanged();
    showTimer();
}

void SyncSection::lay()
{
    WrapLayout* pBar = new WrapLayout;
    pBar->addWidget(m_pTimer);
    pBar->AddStretch();
    pBar->addWidget(m_pSetUp);
    pBar->addWidget(m_pNow);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pHint);
    pLayout->addWidget(m_pForm);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pLast, 1);
    setTabOrder(m_pTimer, m_pSetUp);
    setTabOrder(m_pSetUp, m_pNow);
    setTabOrder(m_pNow, m_pLast);
}

QString SyncSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_SYNC");
}

void SyncSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_SYNC_HINT"));
    m_pForm->Retranslate();
    m_pSetUp->setText(HostText::Get("IDS_HOST_CARE_SYNC_SETUP"));
    m_pNow->setText(HostText::Get("IDS_HOST_CARE_SYNC_NOW"));
    m_pTimer->setText(HostText::Get("IDS_HOST_CARE_SYNC_TIMER"));
    m_pLast->setAccessibleName(Title());
    showTimer();
    show();
}

void SyncSection::Read()
{
    begin(new SyncReading);
}

void SyncSection::Take(const CareTask& task)
{
    if (const SyncReading* pReading = dynamic_cast<const SyncReading*>(&task)) {
        m_bRead = true;
        m_setup = pReading->Setup();
        m_last = pReading->Last();
        m_enTimer = pReading->Timer();
        m_pForm->Show(m_setup);
        OnFormChanged();
        showTimer();
        show();
    } else if (const SyncRunning* pRunning = dynamic_cast<const SyncRunning*>(&task)) {
        emit told(pRunning->Outcome().bThere ? SyncText::Told(pRunning->Outcome())
                                             : SyncText::Explain(pRunning->Code()));
    } else if (const SyncTimerSwitching* pSwitching = dynamic_cast<const SyncTimerSwitching*>(&task)) {
        emit told(pSwitching->IsDone() ? QString() : HostText::Get("IDS_HOST_CARE_SYNC_TIMER_FAILED"));
    } else {
        const bool bDone = task.Code() == ORVA_OK;
        if (bDone) {
            m_pForm->SetUntouched();
        }
        emit told(bDone                          ? HostText::Get("IDS_HOST_CARE_SYNC_SET")
                  : task.Code() == ORVA_E_CLIENT ? HostText::Get("IDS_HOST_CARE_SYNC_CLIENT_NOT")
                                                 : SyncText::Explain(task.Code()));
    }
}

QWidget* SyncSection::FocusTarget()
{
    return m_pForm->First();
}

void SyncSection::OnFormChanged()
{
    enable(m_pSetUp, m_pForm->IsComplete());
    enable(m_pNow, m_setup.bSetUp);
}

void SyncSection::OnSetUp()
{
    begin(new SyncSetting(m_pForm->Entered()));
}

void SyncSection::OnNow()
{
    begin(new SyncRunning);
}

void SyncSection::OnTimer(bool bOn)
{
    begin(new SyncTimerSwitching(bOn));
}

void SyncSection::show()
{
    m_pLast->setHtml(m_bRead ? SyncText::Html(m_last, m_setup.bSetUp) : QString());
}

void SyncSection::showTimer()
{
    // What is on can be turned off, even where nothing is set up any more.
    enable(m_pTimer, m_enTimer == TIMER_ON || (m_enTimer == TIMER_OFF && m_setup.bSetUp));
    m_pTimer->setChecked(m_enTimer == TIMER_ON);
    m_pTimer->setToolTip(m_enTimer == TIMER_UNKNOWN ? HostText::Get("IDS_HOST_CARE_SYNC_TIMER_NOT") : QString());
}
