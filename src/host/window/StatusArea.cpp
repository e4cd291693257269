#include "window/StatusArea.h"

#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QTime>
#include <QToolButton>

#include "shared/WrapLayout.h"
#include "text/HostText.h"
#include "window/Glyphs.h"
#include "window/ProblemsDialog.h"

namespace
{

const QChar FIRST_STRONG_ISOLATE(0x2068);
const int TIME_LENGTH = 10; // with the blanks behind it
const int KEPT_NOTICES = 100;
const int SHOWN_NOTICES = 20;
const int NOTICE_MS = 20000; // long enough to be read twice

// As a button or an entry of a menu shows it: a name may hold an ampersand, a notice holds no mnemonic.
QString shown(const QString& strNotice)
{
    return QString(strNotice).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QLabel* newChip(const char* pszName, QWidget* pParent)
{
    QLabel* pLabel = new QLabel(pParent);
    pLabel->setObjectName(QLatin1String(pszName));
    return pLabel;
}

} // namespace

StatusArea::StatusArea(QWidget* pParent)
    : QFrame(pParent),
      m_noticeTime(this),
      m_pCounts(newChip("linkhand_StatusArea_counts", this)),
      m_pNotice(new QToolButton(this)),
      m_pHardware(newChip("linkhand_StatusArea_hardware", this)),
      m_pDevice(newChip("linkhand_StatusArea_device", this)),
      m_pCard(newChip("linkhand_StatusArea_card", this)),
      m_pUnlock(new QToolButton(this)),
      m_pNetwork(newChip("linkhand_StatusArea_network", this)),
      m_pProblems(new QToolButton(this)),
      m_pChanged(new QToolButton(this)),
      m_pFindings(new QToolButton(this)),
      m_iFindings(0)
{
    setObjectName(QLatin1String("linkhand_StatusArea"));
    m_pNotice->setObjectName(QLatin1String("linkhand_StatusArea_notice"));
    m_pNotice->setAutoRaise(true);
    m_pNotice->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_pNotice->setEnabled(false);
    m_pNotice->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_pProblems->setObjectName(QLatin1String("linkhand_StatusArea_problems"));
    m_pProblems->setAutoRaise(true);
    m_pProblems->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_pProblems->hide();
    m_pChanged->setObjectName(QLatin1String("linkhand_StatusArea_changed"));
    m_pChanged->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_pChanged->hide();
    m_pFindings->setObjectName(QLatin1String("linkhand_StatusArea_findings"));
    m_pFindings->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_pFindings->hide();
    m_pUnlock->setObjectName(QLatin1String("linkhand_StatusArea_unlock"));
    m_pUnlock->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_pUnlock->hide();

    WrapLayout* pLayout = new WrapLayout(this);
    pLayout->setContentsMargins(10, 3, 12, 3);
    pLayout->setSpacing(16);
    pLayout->addWidget(m_pCounts);
    pLayout->addWidget(m_pNotice);
    pLayout->AddStretch();
    pLayout->addWidget(m_pFindings);
    pLayout->addWidget(m_pChanged);
    pLayout->addWidget(m_pProblems);
    pLayout->addWidget(m_pHardware);
    pLayout->addWidget(m_pDevice);
    pLayout->addWidget(m_pCard);
    pLayout->addWidget(m_pUnlock);
    pLayout->addWidget(m_pNetwork);
    m_pCounts->hide();
    m_noticeTime.setObjectName(QLatin1String("linkhand_StatusArea_noticeTime"));
    m_noticeTime.setSingleShot(true);
    m_noticeTime.setInterval(NOTICE_MS);
    connect(&m_noticeTime, SIGNAL(timeout()), this, SLOT(OnNoticeOver()));
    connect(m_pNotice, SIGNAL(clicked()), this, SLOT(OnHistory()));
    connect(m_pProblems, SIGNAL(clicked()), this, SLOT(OnProblems()));
    connect(m_pChanged, SIGNAL(clicked()), this, SIGNAL(showChangesRequested()));
    connect(m_pFindings, SIGNAL(clicked()), this, SIGNAL(showFindingsRequested()));
    connect(m_pUnlock, SIGNAL(clicked()), this, SIGNAL(unlockRequested()));
}

void StatusArea::ShowNotice(const QString& strText, const QString& strAbout)
{
    m_lstNotices.prepend(QLocale().toString(QTime::currentTime(), QLatin1String("hh:mm:ss  ")) + strText);
    if (m_lstNotices.size() > KEPT_NOTICES) {
        m_lstNotices.removeLast();
    }
    m_strAbout = strAbout;
    m_pNotice->setText(shown(strText));
    m_pNotice->setEnabled(true);
    m_noticeTime.start();
}

void StatusArea::EndNotice(const QString& strAbout)
{
    if (m_noticeTime.isActive() && m_strAbout == strAbout) {
        OnNoticeOver();
    }
}

void StatusArea::ReplaceNotice(const QString& strText, const QString& strBetter)
{
    for (int i = 0; i < m_lstNotices.size(); ++i) {
        if (m_lstNotices.at(i).mid(TIME_LENGTH) != strText) {
            continue;
        }
        m_lstNotices[i] = m_lstNotices.at(i).left(TIME_LENGTH) + strBetter;
        if (i == 0 && m_noticeTime.isActive()) {
            m_pNotice->setText(shown(strBetter));
        }
        return;
    }
}

// What is left is the way to the past ones.
void StatusArea::OnNoticeOver()
{
    m_noticeTime.stop();
    m_pNotice->setText(HostText::Get("IDS_HOST_NOTICES"));
}

void StatusArea::ForgetNotices()
{
    m_lstNotices.clear();
    m_noticeTime.stop();
    m_pNotice->setText(QString());
    m_pNotice->setEnabled(false);
}

void StatusArea::SetCounts(const StatusCounts& counts)
{
    m_counts = counts;
    const QLocale locale;
    QString strText = HostText::Get(counts.bFound ? "IDS_HOST_COUNT_FOUND" : "IDS_HOST_COUNT_CONTACTS")
                          .arg(locale.toString(counts.iContacts));
    if (counts.iSelected > 0) {
        strText += QString(3, QLatin1Char(' ')) +
                   HostText::Get("IDS_HOST_COUNT_SELECTED").arg(locale.toString(counts.iSelected));
    }
    m_pCounts->setText(strText);
    m_pCounts->setVisible(counts.iContacts >= 0);
}

void StatusArea::SetState(const DeviceState& state)
{
    m_state = state;
    const bool bAttached = state.bAttached || m_modem.bPresent;
    m_pDevice->setText(HostText::Get(bAttached ? "IDS_HOST_STATUS_DEVICE" : "IDS_HOST_STATUS_NO_DEVICE"));
    m_pCard->setText(HostText::Get(m_modem.enLock == ModemStatus::LOCK_PUK    ? "IDS_HOST_STATUS_CARD_BLOCKED"
                                   : m_modem.enLock != ModemStatus::LOCK_NONE ? "IDS_HOST_STATUS_CARD_LOCKED"
                                   : state.bCardReady                         ? "IDS_HOST_STATUS_CARD"
                                   : state.iPinStatus != 0                    ? "IDS_HOST_STATUS_CARD_LOCKED"
                                                                              : "IDS_HOST_STATUS_NO_CARD"));
    m_pNetwork->setText(networkText());
    // Behind a modem of which only ModemManager knows, nothing tells of the card but its lock.
    m_pCard->setVisible(state.bAttached || m_modem.enLock != ModemStatus::LOCK_NONE);
    m_pNetwork->setVisible(bAttached);
    m_pUnlock->setVisible(m_modem.enLock == ModemStatus::LOCK_PIN);
    m_pHardware->setText(isReal() ? hardwareText() : HostText::Get("IDS_HOST_STATUS_SIMULATED"));
    m_pHardware->setToolTip(isReal() ? m_modem.strName : QString());
}

void StatusArea::SetHardware(const QString& strChoice)
{
    m_strHardware = strChoice;
    SetState(m_state);
}

void StatusArea::SetModem(const ModemStatus& status)
{
    m_modem = status;
    SetState(m_state);
}

bool StatusArea::isReal() const
{
    return !m_strHardware.isEmpty() && m_strHardware != QLatin1String("simulated");
}

// Which it is, and what is in the way of its messages and calls.
QString StatusArea::hardwareText() const
{
    const QString strChoice =
        m_strHardware == QLatin1String("auto") ? HostText::Get("IDS_HOST_HARDWARE_AUTO") : m_strHardware;
    const char* const pszState = !m_modem.bBus || !m_modem.bService       ? "IDS_HOST_STATUS_NO_MANAGER"
                                 : !m_modem.bPresent && m_state.bAttached ? "IDS_HOST_STATUS_NOT_MANAGED"
                                 : !m_modem.bPresent                      ? "IDS_HOST_STATUS_NO_MODEM"
                                 : !m_modem.bUsable                       ? "IDS_HOST_STATUS_MODEM_FAILED"
                                 : !m_modem.bMessages && m_modem.bEnabled ? "IDS_HOST_STATUS_NO_MESSAGES"
                                                                          : nullptr;
    return pszState == nullptr ? strChoice : strChoice + QLatin1String(": ") + HostText::Get(pszState);
}

QString StatusArea::networkText() const
{
    if (!isReal() || !m_modem.bPresent) {
        return HostText::Get(m_state.Online() ? "IDS_HOST_STATUS_ONLINE" : "IDS_HOST_STATUS_OFFLINE");
    }
    if (!m_modem.bRegistered) {
        return HostText::Get(m_modem.bEnabled || m_modem.enLock != ModemStatus::LOCK_NONE ? "IDS_HOST_STATUS_OFFLINE"
                                                                                          : "IDS_HOST_STATUS_OFF");
    }
    const QString strOperator =
        m_modem.strOperator.isEmpty() ? HostText::Get("IDS_HOST_STATUS_ONLINE") : m_modem.strOperator;
    return m_modem.iSignal < 0 ? strOperator
                               : QString::fromLatin1("%1, %2 %").arg(strOperator, QLocale().toString(m_modem.iSignal));
}

void StatusArea::SetProblems(const ProblemList& problems)
{
    m_problems = problems;
    m_pProblems->setVisible(!problems.isEmpty());
    if (!problems.isEmpty()) {
        m_pProblems->setText(HostText::Get("IDS_HOST_PROBLEMS_COUNT").arg(QLocale().toString(int(problems.size()))));
        m_pProblems->setIcon(Glyphs::Icon(Glyphs::WARNING, QColor(0xd0, 0x7a, 0x00)));
        // The first says most; the dialog says all.
        m_pProblems->setToolTip(problems.first().strName + QLatin1String(": ") + problems.first().Reason());
    }
}

void StatusArea::SetChangedElsewhere(bool bChanged)
{
    m_pChanged->setVisible(bChanged);
}

void StatusArea::SetFindings(int iCount)
{
    m_iFindings = iCount;
    m_pFindings->setText(HostText::Get("IDS_HOST_FINDINGS_COUNT").arg(QLocale().toString(iCount)));
    m_pFindings->setToolTip(HostText::Get("IDS_HOST_FINDINGS_TIP"));
    m_pFindings->setVisible(iCount > 0);
}

void StatusArea::Retranslate()
{
    SetFindings(m_iFindings);
    SetCounts(m_counts);
    m_pChanged->setText(HostText::Get("IDS_HOST_STATUS_CHANGED"));
    SetState(m_state);
    SetProblems(m_problems);
    m_pUnlock->setText(HostText::Get("IDS_HOST_STATUS_UNLOCK"));
    m_pNotice->setToolTip(HostText::Get("IDS_HOST_NOTICES_TIP"));
    m_pNotice->setAccessibleName(HostText::Get("IDS_HOST_NOTICES_TIP"));
}

void StatusArea::OnHistory()
{
    QMenu menu(this);
    menu.setObjectName(QLatin1String("linkhand_StatusArea_history"));
    foreach (const QString& strNotice, m_lstNotices.mid(0, SHOWN_NOTICES)) {
        // Behind its time it has a direction of its own: a number keeps its plus in front from right to left, too.
        QString strEntry = shown(strNotice);
        menu.addAction(strEntry.insert(TIME_LENGTH, FIRST_STRONG_ISOLATE));
    }
    menu.exec(m_pNotice->mapToGlobal(QPoint(0, -menu.sizeHint().height())));
}

void StatusArea::OnProblems()
{
    ProblemsDialog dialog(m_problems, window());
    dialog.exec();
}
