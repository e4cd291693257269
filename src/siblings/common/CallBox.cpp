#include "common/CallBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTime>
#include <QVBoxLayout>

#include "linkhand/core/Change.h"
#include "shared/HostContacts.h"
#include "shared/HostLink.h"

CallBox::CallBox(const QString& strPlugin, QWidget* pParent)
    : QFrame(pParent),
      m_strPlugin(strPlugin),
      m_pNumber(new QLabel(this)),
      m_pState(new QLabel(this)),
      m_pDuration(new QLabel(this)),
      m_pAnswer(new QPushButton(this)),
      m_pHangUp(new QPushButton(this)),
      m_iProgress(-1)
{
    setObjectName(m_strPlugin + QLatin1String("_callBox"));
    m_pNumber->setObjectName(m_strPlugin + QLatin1String("_labelNumber"));
    m_pState->setObjectName(m_strPlugin + QLatin1String("_labelState"));
    m_pDuration->setObjectName(m_strPlugin + QLatin1String("_labelDuration"));
    m_pAnswer->setObjectName(m_strPlugin + QLatin1String("_buttonAnswer"));
    m_pHangUp->setObjectName(m_strPlugin + QLatin1String("_buttonHangUp"));
    setFrameShape(QFrame::StyledPanel);
    QFont font = m_pNumber->font();
    // A font that is told in pixels has no point size.
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * 1.5);
    }
    m_pNumber->setFont(font);
    m_pState->setWordWrap(true);

    QVBoxLayout* pTexts = new QVBoxLayout;
    // A label puts a number to the left in any layout; as wide as its text it stands where the others begin.
    pTexts->addWidget(m_pNumber, 0, Qt::AlignLeading);
    pTexts->addWidget(m_pState);
    QHBoxLayout* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(14, 12, 14, 12);
    pLayout->setSpacing(16);
    pLayout->addLayout(pTexts, 1);
    pLayout->addWidget(m_pDuration);
    pLayout->addWidget(m_pAnswer);
    pLayout->addWidget(m_pHangUp);
    m_pAnswer->hide();
    if (HostContacts* pContacts = HostContacts::Instance()) {
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnContactsRead()));
    }
    connect(m_pAnswer, SIGNAL(clicked()), this, SLOT(OnAnswer()));
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnTick()));
    connect(m_pHangUp, SIGNAL(clicked()), this, SLOT(OnHangUp()));
    Retranslate();
}

void CallBox::Start(const QString& strNumber)
{
    HostLink* pLink = HostLink::Instance();
    m_strNumber = strNumber;
    OnContactsRead();
    // Who it is may be known only then; a large phonebook takes longer than a call may wait for.
    if (HostContacts* pContacts = HostContacts::Instance()) {
        pContacts->Read(true);
    }
    m_iProgress = pLink == nullptr || pLink->IsSimulated() ? -1 : int(HOST_CALL_DIALLING);
    m_elapsed.start();
    if (m_iProgress < 0) {
        m_timer.start(1000);
    } else {
        m_timer.stop();
    }
    m_pAnswer->hide();
    Retranslate();
    OnTick();
}

void CallBox::SetProgress(int iProgress)
{
    if (iProgress == HOST_CALL_ACTIVE && m_iProgress != HOST_CALL_HELD) {
        m_elapsed.start();
        m_timer.start(1000);
    }
    m_iProgress = iProgress;
    m_pAnswer->setVisible(iProgress == HOST_CALL_INCOMING);
    Retranslate();
    OnTick();
}

QString CallBox::ProgressText(int iProgress, const QString& strPlugin)
{
    const char* const pszId = iProgress == HOST_CALL_DIALLING         ? "IDS_CALL_DIALLING"
                              : iProgress == HOST_CALL_RINGING        ? "IDS_CALL_RINGING"
                              : iProgress == HOST_CALL_INCOMING       ? "IDS_CALL_INCOMING"
                              : iProgress == HOST_CALL_ACTIVE         ? "IDS_CALL_ACTIVE"
                              : iProgress == HOST_CALL_HELD           ? "IDS_CALL_HELD"
                              : iProgress == HOST_CALL_ENDED_BY_OTHER ? "IDS_CALL_ENDED_BY_OTHER"
                              : iProgress == HOST_CALL_REFUSED        ? "IDS_CALL_REFUSED"
                              : iProgress == HOST_CALL_NOT_ANSWERED   ? "IDS_CALL_NOT_ANSWERED"
                              : iProgress == HOST_CALL_NOT_CONNECTED  ? "IDS_CALL_NOT_CONNECTED"
                              : iProgress == HOST_CALL_FAILED         ? "IDS_CALL_BROKEN"
                              : iProgress == HOST_CALL_MISSED         ? "IDS_CALL_MISSED"
                              : iProgress == HOST_CALL_LOST           ? "IDS_CALL_LOST"
                                                                      : "IDS_CALL_ENDED";
    return Change::tr(QLatin1String(pszId), strPlugin);
}

void CallBox::Stop()
{
    m_timer.stop();
}

void CallBox::Retranslate()
{
    m_pState->setText(m_iProgress < 0 ? Change::tr(QLatin1String("IDS_CALL_STATE"), m_strPlugin)
                                      : ProgressText(m_iProgress, m_strPlugin));
    m_pAnswer->setText(m_iProgress < 0 ? QString() : Change::tr(QLatin1String("IDS_ANSWER"), m_strPlugin));
    m_pHangUp->setText(Change::tr(QLatin1String("IDS_HANG_UP"), m_strPlugin));
}

QString CallBox::DurationText(int iSeconds)
{
    const QLocale locale;
    return locale.toString(iSeconds / 60) + locale.toString(QTime(0, 0, iSeconds % 60), QLatin1String(":ss"));
}

void CallBox::OnContactsRead()
{
    HostContacts* pContacts = HostContacts::Instance();
    const QString strName = pContacts == nullptr ? QString() : pContacts->NameOf(m_strNumber);
    m_pNumber->setText(strName.isEmpty() ? m_strNumber : strName + QLatin1String("  ") + m_strNumber);
}

void CallBox::OnTick()
{
    m_pDuration->setText(DurationText(Seconds()));
}

void CallBox::OnAnswer()
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        pLink->Answer();
    }
}

void CallBox::OnHangUp()
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        pLink->HangUp();
    }
}
