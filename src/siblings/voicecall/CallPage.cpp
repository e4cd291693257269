#include "voicecall/CallPage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "common/CallBox.h"
#include "common/Recipients.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "shared/HostLink.h"
#include "shared/NumberDelegate.h"

namespace
{

enum Column { COLUMN_NUMBER, COLUMN_TIME, COLUMN_DURATION, COLUMN_COUNT };
const int ROLE_TIME = Qt::UserRole;

void showTime(QTreeWidgetItem* pItem)
{
    pItem->setText(COLUMN_TIME, QLocale().toString(pItem->data(COLUMN_TIME, ROLE_TIME).toTime(), QLocale::ShortFormat));
}

} // namespace

CallPage::CallPage(const QString& strPlugin)
    : m_strPlugin(strPlugin),
      m_pTitle(new QLabel(this)),
      m_pHint(new QLabel(this)),
      m_pNumber(new QLineEdit(this)),
      m_pCall(new QPushButton(this)),
      m_pVideoCall(new QPushButton(this)),
      m_pBox(new CallBox(strPlugin, this)),
      m_bInCall(false),
      m_iEnd(-1),
      m_pCalls(new QTreeWidget(this))
{
    setObjectName(m_strPlugin + QLatin1String("_MainWidget"));
    m_pTitle->setObjectName(QLatin1String("linkhand_Calls_title"));
    m_pHint->setObjectName(QLatin1String("linkhand_Calls_hint"));
    m_pNumber->setObjectName(m_strPlugin + QLatin1String("_lineeditNumber"));
    m_pCall->setObjectName(m_strPlugin + QLatin1String("_buttonCall"));
    m_pVideoCall->setObjectName(m_strPlugin + QLatin1String("_buttonVideoCall"));
    m_pCalls->setObjectName(m_strPlugin + QLatin1String("_treeCalls"));
    m_pHint->setWordWrap(true);
    m_pBox->hide();
    m_pCalls->setColumnCount(COLUMN_COUNT);
    m_pCalls->setRootIsDecorated(false);
    m_pCalls->setAlternatingRowColors(true);
    m_pCalls->setColumnWidth(COLUMN_NUMBER, 260);
    m_pCalls->setItemDelegateForColumn(COLUMN_NUMBER, new NumberDelegate(m_pCalls));

    QHBoxLayout* pDial = new QHBoxLayout;
    pDial->addWidget(m_pNumber, 1);
    pDial->addWidget(m_pCall);
    pDial->addWidget(m_pVideoCall);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(12, 10, 12, 10);
    pLayout->addWidget(m_pTitle);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pDial);
    pLayout->addWidget(m_pBox);
    pLayout->addWidget(m_pCalls, 1);
    connect(m_pNumber, SIGNAL(textChanged(QString)), this, SLOT(OnEdited()));
    connect(m_pNumber, SIGNAL(returnPressed()), this, SLOT(OnCall()));
    connect(m_pCall, SIGNAL(clicked()), this, SLOT(OnCall()));
    connect(m_pVideoCall, SIGNAL(clicked()), this, SLOT(OnVideoCall()));
    Retranslate();
}

void CallPage::Start(const QString& strNumber, int iType)
{
    QTreeWidgetItem* pItem = new QTreeWidgetItem;
    pItem->setText(COLUMN_NUMBER, strNumber);
    pItem->setData(COLUMN_TIME, ROLE_TIME, QTime::currentTime());
    showTime(pItem);
    m_pCalls->insertTopLevelItem(0, pItem); // the latest first
    // A video call has its own window, but one call at a time counts for both.
    m_bInCall = true;
    m_iEnd = -1;
    m_pBox->Start(strNumber);
    m_pBox->setVisible(iType == HOST_CALL_VOICE);
    OnEdited();
}

void CallPage::Stop()
{
    if (m_pCalls->topLevelItem(0) != nullptr) {
        const QString strDuration = CallBox::DurationText(m_pBox->Seconds());
        // One that never was active says why instead.
        m_pCalls->topLevelItem(0)->setText(COLUMN_DURATION, m_iEnd < 0 || m_pBox->Seconds() > 0
                                                                ? strDuration
                                                                : CallBox::ProgressText(m_iEnd, m_strPlugin));
    }
    m_bInCall = false;
    m_pBox->Stop();
    m_pBox->hide();
    OnEdited();
}

void CallPage::SetProgress(int iProgress)
{
    if (iProgress < HOST_CALL_ENDED) {
        m_pBox->SetProgress(iProgress);
    } else {
        m_iEnd = iProgress;
    }
}

void CallPage::Retranslate()
{
    m_pTitle->setText(text("IDS_TITLE"));
    HostLink* pLink = HostLink::Instance();
    m_pHint->setText(text(pLink == nullptr || pLink->IsSimulated() ? "IDS_HINT" : "IDS_HINT_REAL"));
    m_pNumber->setAccessibleName(text("IDS_COLUMN_NUMBER"));
    m_pCalls->setAccessibleName(text("IDS_TITLE"));
    m_pCall->setText(text("IDS_CALL"));
    m_pVideoCall->setText(text("IDS_VIDEO_CALL"));
    QStringList lstHeaders;
    lstHeaders << text("IDS_COLUMN_NUMBER") << text("IDS_COLUMN_TIME") << text("IDS_COLUMN_DURATION");
    m_pCalls->setHeaderLabels(lstHeaders);
    for (int i = 0; i < m_pCalls->topLevelItemCount(); ++i) {
        showTime(m_pCalls->topLevelItem(i));
    }
    m_pBox->Retranslate();
    Enter();
}

void CallPage::Enter()
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    HostLink* pLink = HostLink::Instance();
    // A real modem has no road for pictures.
    m_pVideoCall->setVisible((pLink == nullptr || pLink->IsSimulated()) && pContainer != nullptr &&
                             pContainer->GetPlugin(QLatin1String(LINKHAND_VIDEOCALL_ID), 0) != nullptr);
    OnEdited();
}

void CallPage::OnEdited()
{
    const bool bDialable = Recipients::IsNumber(m_pNumber->text().trimmed()) && !m_bInCall;
    m_pCall->setEnabled(bDialable);
    m_pVideoCall->setEnabled(bDialable);
}

void CallPage::OnCall()
{
    if (m_pCall->isEnabled()) {
        dial(HOST_CALL_VOICE);
    }
}

void CallPage::OnVideoCall()
{
    dial(HOST_CALL_VIDEO);
}

QString CallPage::text(const char* pszId) const
{
    return Change::tr(QLatin1String(pszId), m_strPlugin);
}

void CallPage::dial(int iType)
{
    HostLink* pLink = HostLink::Instance();
    if (pLink == nullptr || !pLink->Dial(m_pNumber->text().trimmed(), static_cast<HostCallType>(iType))) {
        CommonUtils::ShowMessage(QMessageBox::Critical, window(), text("IDS_TITLE"), text("IDS_CALL_FAILED"),
                                 QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowCloseButtonHint,
                                 nullptr, QString(), true);
    }
}
