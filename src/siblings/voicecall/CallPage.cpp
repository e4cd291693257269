#include "voicecall/CallPage.h"

#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/CallBox.h"
#include "common/Phonebook.h"
#include "common/Recipients.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "shared/HostContacts.h"
#include "shared/HostLink.h"
#include "shared/WrapLayout.h"
#include "voicecall/CallList.h"

namespace
{

ISMSUIService* messages()
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    return pContainer == nullptr
               ? nullptr
               : qobject_cast<ISMSUIService*>(pContainer->GetPlugin(QLatin1String(LINKHAND_SMS_ID), LINKHAND_SMS_KIND));
}

// The list shows who they are as soon as that is known.
void readContacts(bool bAnew)
{
    if (HostContacts* pContacts = HostContacts::Instance()) {
        pContacts->Read(bAnew);
    }
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
      m_pSearch(new QLineEdit(this)),
      m_pCalls(new CallList(strPlugin, this))
{
    setObjectName(m_strPlugin + QLatin1String("_MainWidget"));
    m_pTitle->setObjectName(QLatin1String("linkhand_Calls_title"));
    m_pHint->setObjectName(QLatin1String("linkhand_Calls_hint"));
    m_pNumber->setObjectName(m_strPlugin + QLatin1String("_lineeditNumber"));
    m_pCall->setObjectName(m_strPlugin + QLatin1String("_buttonCall"));
    m_pVideoCall->setObjectName(m_strPlugin + QLatin1String("_buttonVideoCall"));
    m_pCalls->setObjectName(m_strPlugin + QLatin1String("_treeCalls"));
    m_pSearch->setObjectName(m_strPlugin + QLatin1String("_lineeditSearch"));
    QtCompat::showClearButton(m_pSearch);
    m_pHint->setWordWrap(true);
    m_pBox->hide();
    m_callNumber = makeDeed("CallNumber", SLOT(OnCallNumber()));
    m_message = makeDeed("Message", SLOT(OnMessage()));
    m_saveNumber = makeDeed("SaveNumber", SLOT(OnSaveNumber()));
    m_delete = makeDeed("Delete", SLOT(OnDelete()));
    m_delete.pAction->setShortcut(QKeySequence(QKeySequence::Delete));
    m_delete.pAction->setShortcutContext(Qt::WidgetShortcut);
    m_pCalls->setContextMenuPolicy(Qt::ActionsContextMenu);
    makeLayout();
    connect(m_pNumber, SIGNAL(textChanged(QString)), this, SLOT(OnEdited()));
    connect(m_pNumber, SIGNAL(returnPressed()), this, SLOT(OnCall()));
    connect(m_pCall, SIGNAL(clicked()), this, SLOT(OnCall()));
    connect(m_pVideoCall, SIGNAL(clicked()), this, SLOT(OnVideoCall()));
    connect(m_pSearch, SIGNAL(textChanged(QString)), this, SLOT(OnSearch()));
    connect(m_pCalls, SIGNAL(itemSelectionChanged()), this, SLOT(OnSelectionChanged()));
    connect(m_pCalls, SIGNAL(itemActivated(QTreeWidgetItem*, int)), this, SLOT(OnActivated()));
    Retranslate();
}

void CallPage::Start(const QString& strNumber, int iType)
{
    // A video call has its own window, but one call at a time counts for both.
    m_bInCall = true;
    m_pCalls->Begin(strNumber, iType);
    m_pBox->Start(strNumber);
    m_pBox->setVisible(iType == HOST_CALL_VOICE);
    OnEdited();
}

void CallPage::Stop()
{
    m_bInCall = false;
    m_pCalls->End(m_pBox->Seconds());
    m_pBox->Stop();
    m_pBox->hide();
    OnEdited();
}

void CallPage::Fill(const QString& strNumber)
{
    m_pNumber->setText(strNumber);
    m_pNumber->setFocus();
    m_pNumber->selectAll();
}

void CallPage::SetProgress(int iProgress)
{
    m_pCalls->SetProgress(iProgress);
    if (iProgress < HOST_CALL_ENDED) {
        m_pBox->SetProgress(iProgress);
    }
}

void CallPage::Retranslate()
{
    m_pTitle->setText(text("IDS_TITLE"));
    HostLink* pLink = HostLink::Instance();
    m_pHint->setText(text(pLink == nullptr || pLink->IsSimulated() ? "IDS_HINT" : "IDS_HINT_REAL"));
    m_pNumber->setAccessibleName(text("IDS_COLUMN_NUMBER"));
    m_pSearch->setPlaceholderText(text("IDS_SEARCH"));
    m_pSearch->setAccessibleName(text("IDS_SEARCH"));
    m_pCall->setText(text("IDS_CALL"));
    m_pVideoCall->setText(text("IDS_VIDEO_CALL"));
    setText(m_callNumber, "IDS_CALL_NUMBER");
    setText(m_message, "IDS_MESSAGE");
    setText(m_saveNumber, "IDS_SAVE_NUMBER");
    setText(m_delete, "IDS_DELETE");
    m_pCalls->Retranslate();
    m_pBox->Retranslate();
    lookAround();
}

void CallPage::Enter()
{
    readContacts(false);
    lookAround();
    m_pCalls->Refresh();
}

void CallPage::OnEdited()
{
    const bool bDialable = Recipients::IsNumber(m_pNumber->text().trimmed()) && !m_bInCall;
    m_pCall->setEnabled(bDialable);
    m_pVideoCall->setEnabled(bDialable);
    OnSelectionChanged();
}

void CallPage::OnCall()
{
    if (m_pCall->isEnabled()) {
        dial(m_pNumber->text().trimmed(), HOST_CALL_VOICE);
    }
}

void CallPage::OnVideoCall()
{
    dial(m_pNumber->text().trimmed(), HOST_CALL_VIDEO);
}

void CallPage::OnSearch()
{
    m_pCalls->Search(m_pSearch->text().trimmed());
    OnSelectionChanged();
}

void CallPage::OnSelectionChanged()
{
    const HostCall call = m_pCalls->Current();
    const bool bNumber = Recipients::IsNumber(call.strNumber);
    setEnabled(m_callNumber, bNumber && !m_bInCall);
    setEnabled(m_message, bNumber && messages() != nullptr);
    setEnabled(m_saveNumber, bNumber && Phonebook::Available());
    setEnabled(m_delete, call.iId != 0);
}

// Nothing is dialled by a press on a row: its number goes where it can be.
void CallPage::OnActivated()
{
    if (Recipients::IsNumber(m_pCalls->Current().strNumber)) {
        Fill(m_pCalls->Current().strNumber);
    }
}

void CallPage::OnCallNumber()
{
    dial(m_pCalls->Current().strNumber, HOST_CALL_VOICE);
}

void CallPage::OnMessage()
{
    ISMSUIService* pMessages = messages();
    if (pMessages != nullptr) {
        pMessages->SendMessage(m_pCalls->Current().strNumber, QString(), window());
    }
}

void CallPage::OnSaveNumber()
{
    Phonebook::SaveNumber(m_pCalls->Current().strNumber, window());
    readContacts(true); // it may have a name now
    m_pCalls->Refresh();
}

void CallPage::OnDelete()
{
    HostLink* pLink = HostLink::Instance();
    const HostCall call = m_pCalls->Current();
    if (pLink == nullptr || call.iId == 0) {
        return;
    }
    const int iAnswer = CommonUtils::ShowMessage(
        QMessageBox::Question, window(), text("IDS_TITLE"), text("IDS_DELETE_QUESTION"), QLatin1String("IDS_OK"),
        QLatin1String("IDS_CANCEL"), QString(), false, Qt::WindowCloseButtonHint, nullptr, QString(), true);
    if (iAnswer != QMessageBox::Ok) {
        return;
    }
    const bool bRemoved = pLink->RemoveCall(call.iId);
    m_pCalls->Refresh();
    // Another program may have been quicker.
    if (!bRemoved && m_pCalls->Holds(call.iId)) {
        report("IDS_DELETE_FAILED");
    }
}

QString CallPage::text(const char* pszId) const
{
    return Change::tr(QLatin1String(pszId), m_strPlugin);
}

CallPage::Deed CallPage::makeDeed(const char* pszName, const char* pszSlot)
{
    Deed deed;
    deed.pButton = new QPushButton(this);
    deed.pButton->setObjectName(m_strPlugin + QLatin1String("_button") + QLatin1String(pszName));
    deed.pAction = new QAction(this);
    deed.pAction->setObjectName(m_strPlugin + QLatin1String("_action") + QLatin1String(pszName));
    m_pCalls->addAction(deed.pAction);
    connect(deed.pButton, SIGNAL(clicked()), this, pszSlot);
    connect(deed.pAction, SIGNAL(triggered()), this, pszSlot);
    return deed;
}

void CallPage::setEnabled(const Deed& deed, bool bEnabled)
{
    deed.pButton->setEnabled(bEnabled);
    deed.pAction->setEnabled(bEnabled);
}

void CallPage::setText(const Deed& deed, const char* pszId)
{
    deed.pButton->setText(text(pszId));
    deed.pAction->setText(text(pszId));
}

void CallPage::makeLayout()
{
    WrapLayout* pDial = new WrapLayout;
    pDial->addWidget(m_pNumber);
    pDial->addWidget(m_pCall);
    pDial->addWidget(m_pVideoCall);
    WrapLayout* pDeeds = new WrapLayout;
    pDeeds->addWidget(m_callNumber.pButton);
    pDeeds->addWidget(m_message.pButton);
    pDeeds->addWidget(m_saveNumber.pButton);
    pDeeds->AddStretch();
    pDeeds->addWidget(m_delete.pButton);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(12, 10, 12, 10);
    pLayout->addWidget(m_pTitle);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pDial);
    pLayout->addWidget(m_pBox);
    pLayout->addWidget(m_pSearch);
    pLayout->addWidget(m_pCalls, 1);
    pLayout->addLayout(pDeeds);
}

void CallPage::lookAround()
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    HostLink* pLink = HostLink::Instance();
    // A real modem has no road for pictures.
    m_pVideoCall->setVisible((pLink == nullptr || pLink->IsSimulated()) && pContainer != nullptr &&
                             pContainer->GetPlugin(QLatin1String(LINKHAND_VIDEOCALL_ID), 0) != nullptr);
    OnEdited();
}

void CallPage::dial(const QString& strNumber, int iType)
{
    HostLink* pLink = HostLink::Instance();
    if (pLink == nullptr || !pLink->Dial(strNumber, static_cast<HostCallType>(iType))) {
        report("IDS_CALL_FAILED");
    }
}

void CallPage::report(const char* pszId)
{
    CommonUtils::ShowMessage(QMessageBox::Critical, window(), text("IDS_TITLE"), text(pszId), QLatin1String("IDS_OK"),
                             QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr, QString(), true);
}
