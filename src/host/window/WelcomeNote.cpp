#include "window/WelcomeNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "orva/orva_sdk.h"
#include "text/HostText.h"

namespace
{

const int REFRESH_MS = 1000;

// A phonebook that cannot be read is not one to begin with.
bool isPhonebookEmpty()
{
    int iSize = 0;
    return ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iSize) == ORVA_OK && iSize == 0;
}

} // namespace

WelcomeNote::WelcomeNote(QWidget* pParent)
    : QFrame(pParent),
      m_pText(new QLabel(this)),
      m_pDismiss(new QToolButton(this)),
      m_bDismissed(true),
      m_bPhonebookShown(false)
{
    setObjectName(QLatin1String("linkhand_WelcomeNote"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_pText->setObjectName(QLatin1String("linkhand_WelcomeNote_text"));
    m_pText->setForegroundRole(QPalette::ToolTipText);
    m_pText->setWordWrap(true);
    m_pDismiss->setObjectName(QLatin1String("linkhand_WelcomeNote_dismiss"));
    QHBoxLayout* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(12, 6, 12, 6);
    pLayout->addWidget(m_pText, 1);
    pLayout->addWidget(m_pDismiss);
    hide();
    connect(m_pDismiss, SIGNAL(clicked()), this, SLOT(OnDismiss()));
    // Nobody says that a contact has come, least of all another process. Looking costs microseconds, and is done while
    // the note is on the screen alone.
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnRefresh()));
}

void WelcomeNote::SetDismissed(bool bDismissed)
{
    m_bDismissed = bDismissed;
    OnRefresh();
}

void WelcomeNote::SetPhonebookShown(bool bShown)
{
    m_bPhonebookShown = bShown;
    OnRefresh();
}

void WelcomeNote::Retranslate()
{
    m_pText->setText(HostText::Get("IDS_HOST_WELCOME"));
    m_pDismiss->setText(HostText::Get("IDS_HOST_WELCOME_DISMISS"));
}

void WelcomeNote::OnDismiss()
{
    SetDismissed(true);
    emit dismissed();
}

void WelcomeNote::OnRefresh()
{
    const bool bShown = !m_bDismissed && m_bPhonebookShown && isPhonebookEmpty();
    setVisible(bShown);
    if (bShown && !m_timer.isActive()) {
        m_timer.start(REFRESH_MS);
    } else if (!bShown) {
        m_timer.stop();
    }
}
