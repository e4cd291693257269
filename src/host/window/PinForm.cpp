#include "window/PinForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegExp>
#include <QVBoxLayout>

#include "device/Modem.h"
#include "linkhand/QtCompat.h"
#include "text/HostText.h"

namespace
{

const int LONGEST_PIN = 8;
const int LEAST_WIDTH = 388;
const int LINE = 48;   // characters
const int BORDER = 40; // left of the screen

} // namespace

PinForm::PinForm(Modem& modem, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG),
      m_modem(modem),
      m_pHint(new QLabel(this)),
      m_pTries(new QLabel(this)),
      m_pPin(new QLineEdit(this)),
      m_pResult(new QLabel(this)),
      m_pWarning(new QLabel(this)),
      m_pSure(new QCheckBox(this)),
      m_pUnlock(new QPushButton(this)),
      m_pClose(new QPushButton(this)),
      m_pszResult(nullptr),
      m_bAsked(false)
{
    setObjectName(QLatin1String("linkhand_PinForm"));
    m_pTries->setObjectName(QLatin1String("linkhand_PinForm_tries"));
    m_pPin->setObjectName(QLatin1String("linkhand_PinForm_pin"));
    m_pResult->setObjectName(QLatin1String("linkhand_PinForm_result"));
    m_pWarning->setObjectName(QLatin1String("linkhand_PinForm_warning"));
    m_pSure->setObjectName(QLatin1String("linkhand_PinForm_sure"));
    m_pUnlock->setObjectName(QLatin1String("linkhand_PinForm_unlock"));
    m_pClose->setObjectName(QLatin1String("linkhand_PinForm_close"));
    m_pPin->setEchoMode(QLineEdit::Password);
    m_pPin->setMaxLength(LONGEST_PIN);
    m_pPin->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhDigitsOnly);
    m_pUnlock->setDefault(true);
    m_pClose->setAutoDefault(false);
    QFont bold = m_pWarning->font();
    bold.setBold(true);
    m_pWarning->setFont(bold);
    foreach (QLabel* pLabel, QList<QLabel*>() << m_pHint << m_pTries << m_pResult << m_pWarning) {
        pLabel->setWordWrap(true);
    }

    QHBoxLayout* pFoot = new QHBoxLayout;
    pFoot->addStretch(1);
    pFoot->addWidget(m_pUnlock);
    pFoot->addWidget(m_pClose);
    QWidget* pContent = new QWidget;
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    QWidget* const apWidgets[] = {m_pHint, m_pPin, m_pTries, m_pResult, m_pWarning, m_pSure};
    for (QWidget* pWidget : apWidgets) {
        pLayout->addWidget(pWidget);
    }
    pLayout->addStretch(1);
    pLayout->addLayout(pFoot);
    // Large letters need longer lines, or the form is higher than the screen.
    const int iRoom = QtCompat::availableGeometry(this).width() - BORDER;
    pContent->setMinimumWidth(qMax(LEAST_WIDTH, qMin(iRoom, LINE * fontMetrics().averageCharWidth())));
    AddMainWidget(pContent);

    connect(m_pPin, SIGNAL(textChanged(QString)), this, SLOT(OnEdited()));
    connect(m_pSure, SIGNAL(toggled(bool)), this, SLOT(OnEdited()));
    connect(m_pUnlock, SIGNAL(clicked()), this, SLOT(OnUnlock()));
    connect(m_pClose, SIGNAL(clicked()), this, SLOT(close()));
    connect(&m_modem, SIGNAL(statusChanged()), this, SLOT(OnStatusChanged()));
    connect(&m_modem, SIGNAL(pinAnswered(bool, bool, QString)), this, SLOT(OnAnswered(bool, bool, QString)));
    m_pResult->hide();
    Retranslate();
}

PinForm::~PinForm()
{
    m_pPin->clear();
}

void PinForm::Retranslate()
{
    setWindowTitle(HostText::Get("IDS_HOST_PIN_TITLE"));
    m_pPin->setAccessibleName(HostText::Get("IDS_HOST_PIN_TITLE"));
    m_pHint->setText(HostText::Get("IDS_HOST_PIN_HINT"));
    m_pWarning->setText(HostText::Get("IDS_HOST_PIN_WARNING"));
    m_pSure->setText(HostText::Get("IDS_HOST_PIN_SURE"));
    m_pUnlock->setText(HostText::Get("IDS_HOST_PIN_UNLOCK"));
    m_pClose->setText(HostText::Get("IDS_HOST_CLOSE"));
    showResult(m_pszResult, m_strDetail);
    OnStatusChanged();
}

void PinForm::OnStatusChanged()
{
    const ModemStatus status = m_modem.Status();
    // Opened, blocked for good, or pulled.
    if (status.enLock != ModemStatus::LOCK_PIN) {
        if (!m_bAsked) {
            close();
        }
        return;
    }
    m_pTries->setText(status.iTries < 0 ? HostText::Get("IDS_HOST_PIN_TRIES_UNKNOWN")
                                        : HostText::Get("IDS_HOST_PIN_TRIES").arg(QLocale().toString(status.iTries)));
    m_pWarning->setVisible(isLast());
    m_pSure->setVisible(isLast());
    OnEdited();
}

void PinForm::OnEdited()
{
    const bool bPin = QRegExp(QLatin1String("[0-9]{4,8}")).exactMatch(m_pPin->text());
    m_pPin->setEnabled(!m_bAsked);
    m_pSure->setEnabled(!m_bAsked);
    m_pUnlock->setEnabled(bPin && !m_bAsked && (!isLast() || m_pSure->isChecked()));
}

void PinForm::OnUnlock()
{
    if (!m_pUnlock->isEnabled()) {
        return;
    }
    m_bAsked = true;
    const QString strPin = m_pPin->text();
    m_pPin->clear();
    m_pSure->setChecked(false);
    showResult("IDS_HOST_PIN_ASKED", QString());
    OnEdited();
    m_modem.SendPin(strPin);
}

void PinForm::OnAnswered(bool bDone, bool bWrong, const QString& strDetail)
{
    m_bAsked = false;
    if (bDone) {
        close();
        return;
    }
    showResult(bWrong ? "IDS_HOST_PIN_WRONG" : "IDS_HOST_PIN_FAILED", strDetail);
    OnStatusChanged();
    m_pPin->setFocus();
}

// What has become of the PIN; nothing with no id.
void PinForm::showResult(const char* pszId, const QString& strDetail)
{
    m_pszResult = pszId;
    m_strDetail = strDetail;
    const QString strText = pszId == nullptr ? QString() : HostText::Get(pszId);
    m_pResult->setText(strText.contains(QLatin1String("%1")) ? strText.arg(strDetail) : strText);
    m_pResult->setVisible(pszId != nullptr);
}

bool PinForm::isLast() const
{
    return m_modem.Status().iTries <= 1;
}
