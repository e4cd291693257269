#include "window/WelcomeNote.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "orva/orva_sdk.h"
#include "text/HostText.h"

namespace
{

const int REFRESH_MS = 1000;
const int SIDE_MARGIN = 12;
const int MOST_PART = 4;       // of the window's height: a quarter
const qreal LEAST_LETTERS = 9; // points

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
    pLayout->setContentsMargins(SIDE_MARGIN, 6, SIDE_MARGIN, 6);
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
    fitLetters();
}

void WelcomeNote::resizeEvent(QResizeEvent* pEvent)
{
    QFrame::resizeEvent(pEvent);
    fitLetters();
}

void WelcomeNote::changeEvent(QEvent* pEvent)
{
    QFrame::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange) {
        fitLetters();
    }
}

// It must leave the phonebook its place: in a small window large letters get smaller.
void WelcomeNote::fitLetters()
{
    const int iRoom = window()->height() / MOST_PART;
    const int iWidth = width() - m_pDismiss->sizeHint().width() - 3 * SIDE_MARGIN;
    QFont letters = font();
    const auto fits = [&] {
        const QRect rect(0, 0, iWidth, window()->height());
        return QFontMetrics(letters).boundingRect(rect, Qt::TextWordWrap, m_pText->text()).height() <= iRoom;
    };
    while (letters.pointSizeF() > LEAST_LETTERS && !fits()) {
        letters.setPointSizeF(qMax(LEAST_LETTERS, letters.pointSizeF() - 1));
    }
    if (m_pText->font() != letters) {
        m_pText->setFont(letters);
    }
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
