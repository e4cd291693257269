#include "window/DevicePanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "device/DeviceWatcher.h"
#include "device/Modem.h"
#include "device/SimulatedHardware.h"
#include "fit/PageView.h"
#include "fit/WordBox.h"
#include "orva/orva_sdk.h"
#include "text/HostText.h"
#include "window/HardwarePanel.h"

namespace
{

// The card's PIN: given, not asked for, to be given, blocked.
const int PIN_STATUS[] = {ORVA_PIN_NOT_NEEDED, ORVA_PIN_VERIFIED, 2, 3};
const char* const PIN_IDS[] = {"IDS_HOST_PIN_READY", "IDS_HOST_PIN_OFF", "IDS_HOST_PIN_REQUIRED",
                               "IDS_HOST_PIN_BLOCKED"};

// Product and card type of a SIM product and of a UIM product.
const int MODE_PRODUCT[] = {2, 1};
const int MODE_CARD[] = {1, 3};
const char* const MODE_IDS[] = {"IDS_HOST_MODE_SIM", "IDS_HOST_MODE_UIM"};

const int LEAST_WIDTH = 230;
const int SIDE_MARGIN = 14;

const int SPEED_MS[] = {0, 10, 100};
const char* const SPEED_IDS[] = {"IDS_HOST_SPEED_INSTANT", "IDS_HOST_SPEED_REAL", "IDS_HOST_SPEED_SLOW"};

template <typename T, int N>
int indexOf(const T (&values)[N], const T& value)
{
    for (int i = 0; i < N; ++i) {
        if (values[i] == value) {
            return i;
        }
    }
    return 0;
}

} // namespace

DevicePanel::DevicePanel(DeviceWatcher& watcher, Modem* pModem, QWidget* pParent)
    : QFrame(pParent),
      m_watcher(watcher),
      m_pView(nullptr),
      m_pHardware(new HardwarePanel(pModem, this)),
      m_pTitle(new QLabel(this)),
      m_pHint(new QLabel(this)),
      m_pDevice(new QCheckBox(this)),
      m_pCard(new QCheckBox(this)),
      m_pRadio(new QCheckBox(this)),
      m_pNetwork(new QCheckBox(this)),
      m_pPinLabel(new QLabel(this)),
      m_pPin(new WordBox(this)),
      m_pModeLabel(new QLabel(this)),
      m_pMode(new WordBox(this)),
      m_pSpeedLabel(new QLabel(this)),
      m_pSpeed(new WordBox(this))
{
    setObjectName(QLatin1String("linkhand_DevicePanel"));
    m_pTitle->setObjectName(QLatin1String("linkhand_DevicePanel_title"));
    m_pHint->setObjectName(QLatin1String("linkhand_DevicePanel_hint"));
    m_pDevice->setObjectName(QLatin1String("linkhand_DevicePanel_device"));
    m_pCard->setObjectName(QLatin1String("linkhand_DevicePanel_card"));
    m_pRadio->setObjectName(QLatin1String("linkhand_DevicePanel_radio"));
    m_pNetwork->setObjectName(QLatin1String("linkhand_DevicePanel_network"));
    m_pPin->setObjectName(QLatin1String("linkhand_DevicePanel_pin"));
    m_pMode->setObjectName(QLatin1String("linkhand_DevicePanel_mode"));
    m_pSpeed->setObjectName(QLatin1String("linkhand_DevicePanel_speed"));
    m_pHint->setWordWrap(true);
    m_pPinLabel->setBuddy(m_pPin);
    m_pModeLabel->setBuddy(m_pMode);
    m_pSpeedLabel->setBuddy(m_pSpeed);
    m_pCard->setChecked(true);

    place(pModem == nullptr || pModem->IsSimulated());
    connect(m_pDevice, SIGNAL(clicked(bool)), this, SLOT(OnDevice(bool)));
    connect(m_pCard, SIGNAL(clicked(bool)), this, SLOT(OnCard(bool)));
    connect(m_pRadio, SIGNAL(clicked(bool)), this, SLOT(OnRadio(bool)));
    connect(m_pNetwork, SIGNAL(clicked(bool)), this, SLOT(OnNetwork(bool)));
    connect(m_pPin, SIGNAL(activated(int)), this, SLOT(OnPin(int)));
    connect(m_pMode, SIGNAL(activated(int)), this, SLOT(OnSystemMode(int)));
    connect(m_pSpeed, SIGNAL(activated(int)), this, SLOT(OnSpeed(int)));
    connect(&m_watcher, SIGNAL(changed()), this, SLOT(OnStateChanged()));
}

void DevicePanel::place(bool bSwitches)
{
    QWidget* pContent = new QWidget;
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->setContentsMargins(SIDE_MARGIN, 12, SIDE_MARGIN, 12);
    pLayout->setSpacing(8);
    pLayout->addWidget(m_pHardware);
    QWidget* const apWidgets[] = {m_pTitle,    m_pHint, m_pDevice,    m_pCard, m_pRadio,      m_pNetwork,
                                  m_pPinLabel, m_pPin,  m_pModeLabel, m_pMode, m_pSpeedLabel, m_pSpeed};
    for (QWidget* pWidget : apWidgets) {
        pLayout->addWidget(pWidget);
        pWidget->setVisible(bSwitches);
    }
    pLayout->addStretch(1);
    m_pView = new PageView(pContent);
    QVBoxLayout* pFrame = new QVBoxLayout(this);
    pFrame->setContentsMargins(0, 0, 0, 0);
    pFrame->addWidget(m_pView);
}

void DevicePanel::Retranslate()
{
    m_pHardware->Retranslate();
    m_pTitle->setText(HostText::Get("IDS_HOST_DEVICE_TITLE"));
    m_pHint->setText(HostText::Get("IDS_HOST_DEVICE_HINT"));
    m_pDevice->setText(HostText::Get("IDS_HOST_DEVICE_ATTACHED"));
    m_pCard->setText(HostText::Get("IDS_HOST_CARD_INSERTED"));
    m_pRadio->setText(HostText::Get("IDS_HOST_RADIO_ON"));
    m_pNetwork->setText(HostText::Get("IDS_HOST_NETWORK_ON"));
    m_pPinLabel->setText(HostText::Get("IDS_HOST_PIN"));
    m_pModeLabel->setText(HostText::Get("IDS_HOST_MODE"));
    m_pSpeedLabel->setText(HostText::Get("IDS_HOST_SPEED"));
    fill(m_pPin, PIN_IDS, int(sizeof PIN_IDS / sizeof *PIN_IDS));
    fill(m_pMode, MODE_IDS, int(sizeof MODE_IDS / sizeof *MODE_IDS));
    fill(m_pSpeed, SPEED_IDS, int(sizeof SPEED_IDS / sizeof *SPEED_IDS));
    OnStateChanged();
    fitWidth();
}

void DevicePanel::resizeEvent(QResizeEvent* pEvent)
{
    QFrame::resizeEvent(pEvent);
    // Not from within: the layout would go on with the size that the panel had.
    QMetaObject::invokeMethod(this, "OnResized", Qt::QueuedConnection);
}

void DevicePanel::OnResized()
{
    fitWidth();
}

// As wide as the longest word, and a scroll bar where not all is in sight.
void DevicePanel::fitWidth()
{
    const int iWidth = qMax(LEAST_WIDTH, m_pView->LeastWidth());
    const int iBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    setFixedWidth(iWidth + (m_pView->LeastHeight(iWidth) > height() ? iBar : 0));
}

void DevicePanel::OnStateChanged()
{
    const DeviceState& state = m_watcher.State();
    m_pDevice->setChecked(state.bAttached);
    // Without a device nothing tells whether the card is in.
    if (state.bAttached) {
        m_pCard->setChecked(state.iPinStatus != 0);
    }
    if (state.iPinStatus != 0) {
        m_pPin->setCurrentIndex(indexOf(PIN_STATUS, state.iPinStatus));
    }
    m_pPin->setEnabled(m_pCard->isChecked());
    m_pRadio->setChecked(state.bRadioOn);
    m_pNetwork->setChecked(state.bRegistered);
    m_pMode->setCurrentIndex(state.iProductType == MODE_PRODUCT[1] ? 1 : 0);
}

void DevicePanel::OnDevice(bool bAttached)
{
    SimulatedHardware::SetDevice(bAttached);
    m_watcher.Refresh();
}

void DevicePanel::OnCard(bool bInserted)
{
    SimulatedHardware::SetCard(bInserted);
    m_watcher.Refresh();
    m_pPin->setEnabled(bInserted);
}

void DevicePanel::OnPin(int iIndex)
{
    SimulatedHardware::SetPinStatus(PIN_STATUS[iIndex]);
    m_watcher.Refresh();
}

void DevicePanel::OnRadio(bool bOn)
{
    SimulatedHardware::SetRadio(bOn);
    m_watcher.Refresh();
}

void DevicePanel::OnNetwork(bool bInService)
{
    SimulatedHardware::SetNetwork(bInService);
    m_watcher.Refresh();
}

void DevicePanel::OnSystemMode(int iIndex)
{
    SimulatedHardware::SetProductType(MODE_PRODUCT[iIndex]);
    SimulatedHardware::SetCardType(MODE_CARD[iIndex]);
    m_watcher.AnnounceSystemMode();
    // The memories of the other mode report for themselves.
    SimulatedHardware::SendReady();
}

void DevicePanel::OnSpeed(int iIndex)
{
    SimulatedHardware::SetDelay(SPEED_MS[iIndex]);
}

void DevicePanel::fill(QComboBox* pBox, const char* const* ppszIds, int iCount)
{
    const int iCurrent = qMax(0, pBox->currentIndex());
    pBox->clear();
    for (int i = 0; i < iCount; ++i) {
        pBox->addItem(HostText::Get(ppszIds[i]));
    }
    pBox->setCurrentIndex(iCurrent);
}
