#include "common/CallBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "linkhand/core/Change.h"
#include "shared/HostLink.h"

CallBox::CallBox(const QString& strPlugin, QWidget* pParent)
    : QFrame(pParent),
      m_strPlugin(strPlugin),
      m_pNumber(new QLabel(this)),
      m_pState(new QLabel(this)),
      m_pDuration(new QLabel(this)),
      m_pHangUp(new QPushButton(this))
{
    setObjectName(m_strPlugin + QLatin1String("_callBox"));
    m_pNumber->setObjectName(m_strPlugin + QLatin1String("_labelNumber"));
    m_pState->setObjectName(m_strPlugin + QLatin1String("_labelState"));
    m_pDuration->setObjectName(m_strPlugin + QLatin1String("_labelDuration"));
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
    pLayout->addWidget(m_pHangUp);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnTick()));
    connect(m_pHangUp, SIGNAL(clicked()), this, SLOT(OnHangUp()));
    Retranslate();
}

void CallBox::Start(const QString& strNumber)
{
    m_pNumber->setText(strNumber);
    m_elapsed.start();
    m_timer.start(1000);
    OnTick();
}

void CallBox::Stop()
{
    m_timer.stop();
}

void CallBox::Retranslate()
{
    m_pState->setText(Change::tr(QLatin1String("IDS_CALL_STATE"), m_strPlugin));
    m_pHangUp->setText(Change::tr(QLatin1String("IDS_HANG_UP"), m_strPlugin));
}

QString CallBox::DurationText(int iSeconds)
{
    return QString::fromLatin1("%1:%2").arg(iSeconds / 60).arg(iSeconds % 60, 2, 10, QLatin1Char('0'));
}

void CallBox::OnTick()
{
    m_pDuration->setText(DurationText(Seconds()));
}

void CallBox::OnHangUp()
{
    HostLink* pLink = HostLink::Instance();
    if (pLink != nullptr) {
        pLink->HangUp();
    }
}
