#include "window/HardwarePanel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "device/HardwareChoice.h"
#include "device/Modem.h"
#include "linkhand/QtCompat.h"
#include "text/HostText.h"
#include "window/CopyOffer.h"

namespace
{

// The entries of the box; behind them stands a port, if one is chosen, or is typed.
const char* const CHOICES[] = {"simulated", "auto"};
const char* const CHOICE_IDS[] = {"IDS_HOST_HARDWARE_SIMULATED", "IDS_HOST_HARDWARE_AUTO"};
const int PORT_ENTRY = 2;
const int BUTTON_WIDTH = 36;

QString stateText(const ModemStatus& status)
{
    if (!status.bPresent) {
        return HostText::Get(status.bService ? "IDS_HOST_MODEM_ABSENT" : "IDS_HOST_MANAGER_ABSENT");
    }
    QString strText = status.strName;
    if (!status.bUsable) {
        strText += QLatin1Char('\n') + HostText::Get("IDS_HOST_STATUS_MODEM_FAILED");
    }
    if (status.bRegistered) {
        strText += QLatin1Char('\n') + HostText::Get("IDS_HOST_MODEM_NETWORK").arg(status.strOperator);
        if (status.iSignal >= 0) {
            strText +=
                QLatin1Char('\n') + HostText::Get("IDS_HOST_MODEM_SIGNAL").arg(QLocale().toString(status.iSignal));
        }
    }
    if (status.bEnabled && !status.bMessages) {
        strText += QLatin1Char('\n') + HostText::Get("IDS_HOST_STATUS_NO_MESSAGES");
    }
    if (status.bEnabled && !status.bCalls) {
        strText += QLatin1Char('\n') + HostText::Get("IDS_HOST_STATUS_NO_CALLS");
    }
    return strText;
}

} // namespace

HardwarePanel::HardwarePanel(Modem* pModem, QWidget* pParent)
    : QWidget(pParent),
      m_pModem(pModem),
      m_pTitle(new QLabel(this)),
      m_pChoice(new QComboBox(this)),
      m_pNote(new QLabel(this)),
      m_pState(new QLabel(this)),
      m_pEnable(new QPushButton(this)),
      m_strCurrent(HardwareChoice::Current()),
      m_strChosen(m_strCurrent),
      m_bRefused(false),
      m_bAsking(false)
{
    m_pTitle->setObjectName(QLatin1String("linkhand_HardwarePanel_title"));
    m_pChoice->setObjectName(QLatin1String("linkhand_HardwarePanel_choice"));
    m_pNote->setObjectName(QLatin1String("linkhand_HardwarePanel_note"));
    m_pState->setObjectName(QLatin1String("linkhand_HardwarePanel_state"));
    m_pEnable->setObjectName(QLatin1String("linkhand_HardwarePanel_enable"));
    m_pTitle->setBuddy(m_pChoice);
    m_pNote->setWordWrap(true);
    m_pState->setWordWrap(true);
    m_pChoice->setEditable(true);
    m_pChoice->setInsertPolicy(QComboBox::NoInsert);
    m_pChoice->setEnabled(!HardwareChoice::IsFixed());
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 8);
    QWidget* const apWidgets[] = {m_pTitle, m_pChoice, m_pNote, m_pState, m_pEnable};
    for (QWidget* pWidget : apWidgets) {
        pLayout->addWidget(pWidget);
    }
    connect(m_pChoice, SIGNAL(activated(int)), this, SLOT(OnChosen(int)));
    connect(m_pChoice->lineEdit(), SIGNAL(editingFinished()), this, SLOT(OnPortEntered()));
    connect(m_pEnable, SIGNAL(clicked()), this, SLOT(OnEnable()));
    if (m_pModem != nullptr) {
        connect(m_pModem, SIGNAL(statusChanged()), this, SLOT(OnStatusChanged()));
        connect(m_pModem, SIGNAL(enableFailed(QString)), this, SLOT(OnStatusChanged()));
    }
}

void HardwarePanel::Retranslate()
{
    m_pTitle->setText(HostText::Get("IDS_HOST_HARDWARE"));
    m_pEnable->setText(HostText::Get("IDS_HOST_MODEM_ON"));
    m_pChoice->setToolTip(HostText::Get("IDS_HOST_HARDWARE_TIP"));
    showChoice();
    OnStatusChanged();
}

void HardwarePanel::KeepToContent()
{
    m_pChoice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    layout()->setAlignment(m_pChoice, Qt::AlignLeft);
    layout()->setAlignment(m_pEnable, Qt::AlignLeft);
}

void HardwarePanel::SetChoice(const QString& strChoice)
{
    m_strChosen = strChoice;
    m_bRefused = false;
    showChoice();
}

void HardwarePanel::OnChosen(int iIndex)
{
    choose(iIndex < PORT_ENTRY ? QString(QLatin1String(CHOICES[iIndex])) : m_pChoice->itemText(iIndex));
}

void HardwarePanel::OnPortEntered()
{
    const QString strText = m_pChoice->currentText().trimmed();
    const int iEntry = m_pChoice->findText(strText);
    choose(iEntry >= 0 && iEntry < PORT_ENTRY ? QString(QLatin1String(CHOICES[iEntry])) : strText);
}

void HardwarePanel::OnStatusChanged()
{
    const bool bReal = m_pModem != nullptr && !m_pModem->IsSimulated();
    const ModemStatus status = bReal ? m_pModem->Status() : ModemStatus();
    m_pState->setVisible(bReal);
    // A modem's name is in Latin letters, and would turn what is below it around.
    const QString strMark = isRightToLeft() ? QString(QChar(0x200f)) : QString();
    m_pState->setText(bReal ? strMark + stateText(status) : QString());
    m_pEnable->setVisible(bReal && status.bPresent && status.bUsable && !status.bEnabled &&
                          status.enLock == ModemStatus::LOCK_NONE);
    m_pEnable->setEnabled(true);
}

void HardwarePanel::OnEnable()
{
    m_pEnable->setEnabled(false); // until the modem says something
    m_pModem->Enable();
}

void HardwarePanel::choose(const QString& strChoice)
{
    if (strChoice == m_strChosen || m_bAsking) {
        return;
    }
    m_bRefused = !HardwareChoice::IsKnown(strChoice);
    // What the user is asked takes the keyboard from the box, which then tells of its text again.
    m_bAsking = true;
    const bool bLeaving = m_strCurrent == QLatin1String(CHOICES[0]) && m_strChosen == m_strCurrent;
    if (!m_bRefused && (!bLeaving || CopyOffer::Settle(window()))) {
        m_bRefused = !HardwareChoice::Keep(strChoice);
        if (!m_bRefused) {
            m_strChosen = strChoice;
            emit choiceKept(strChoice);
        }
    }
    m_bAsking = false;
    showChoice();
}

void HardwarePanel::showChoice()
{
    m_pChoice->clear();
    int iCurrent = PORT_ENTRY;
    int iWidest = 0;
    for (int i = 0; i < PORT_ENTRY; ++i) {
        m_pChoice->addItem(HostText::Get(CHOICE_IDS[i]));
        iWidest = qMax(iWidest, QtCompat::textWidth(fontMetrics(), m_pChoice->itemText(i)));
        iCurrent = m_strChosen == QLatin1String(CHOICES[i]) ? i : iCurrent;
    }
    if (iCurrent == PORT_ENTRY) {
        m_pChoice->addItem(m_strChosen);
    }
    m_pChoice->setMinimumWidth(iWidest + BUTTON_WIDTH); // a port may be longer
    m_pChoice->setCurrentIndex(iCurrent);
    const char* const pszNote = HardwareChoice::IsFixed()     ? "IDS_HOST_HARDWARE_FIXED"
                                : m_bRefused                  ? "IDS_HOST_HARDWARE_REFUSED"
                                : m_strChosen != m_strCurrent ? "IDS_HOST_HARDWARE_NEXT"
                                                              : nullptr;
    m_pNote->setText(pszNote == nullptr ? QString() : HostText::Get(pszNote));
    m_pNote->setVisible(pszNote != nullptr);
}
