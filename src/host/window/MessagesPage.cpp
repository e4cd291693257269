#include "window/MessagesPage.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "device/Modem.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IMMSUIPlugin.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "messages/MessageStore.h"
#include "shared/HostContacts.h"
#include "shared/HostLink.h"
#include "shared/MessageForms.h"
#include "shared/NumberDelegate.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

namespace
{

enum Column { COLUMN_KIND, COLUMN_TO, COLUMN_TEXT, COLUMN_TIME, COLUMN_STATE, COLUMN_COUNT };
const int ROLE_ID = Qt::UserRole;
const int REFRESH_MS = 1000;

QString kindText(const OutgoingMessage& message)
{
    return HostText::Get(message.iKind == HOST_MESSAGE_MMS ? "IDS_HOST_KIND_MMS" : "IDS_HOST_KIND_SMS");
}

QString firstLine(const OutgoingMessage& message)
{
    const QString strText = message.strSubject.isEmpty() ? message.strText : message.strSubject;
    return strText.section(QLatin1Char('\n'), 0, 0);
}

QString shownTime(const QDateTime& time)
{
    return QLocale().toString(time, QLocale::ShortFormat);
}

// The numbers, each with its contact's name before it.
QString partners(const OutgoingMessage& message)
{
    HostContacts* pContacts = HostContacts::Instance();
    QStringList lstPartners;
    foreach (const QString& strNumber, message.lstNumbers) {
        const QString strName = pContacts == nullptr ? QString() : pContacts->NameOf(strNumber);
        // Both keep their direction beside one another.
        lstPartners << (strName.isEmpty() ? strNumber
                                          : QChar(0x2068) + strName + QChar(0x2069) + QLatin1String("  ") +
                                                QChar(0x2066) + strNumber + QChar(0x2069));
    }
    return lstPartners.join(QLatin1String("; "));
}

// Whether a message is one that somebody searches by this text.
bool holds(const OutgoingMessage& message, const QString& strText)
{
    return strText.isEmpty() || partners(message).contains(strText, Qt::CaseInsensitive) ||
           message.strText.contains(strText, Qt::CaseInsensitive) ||
           message.strSubject.contains(strText, Qt::CaseInsensitive) ||
           message.lstNumbers.join(QLatin1String("\n")).contains(strText, Qt::CaseInsensitive);
}

// A text with its line breaks.
QString html(const QString& strText)
{
    return QtCompat::htmlEscaped(strText).replace(QLatin1Char('\n'), QLatin1String("<br/>"));
}

} // namespace

MessagesPage::MessagesPage(MessageStore& outbox, IPluginContainer& container, Modem* pModem, QWidget* pParent)
    : QWidget(pParent),
      m_outbox(outbox),
      m_container(container),
      m_pModem(pModem),
      m_pTitle(new QLabel(this)),
      m_pHint(new QLabel(this)),
      m_pNewSms(new QPushButton(this)),
      m_pNewMms(new QPushButton(this)),
      m_pSearch(new QLineEdit(this)),
      m_pOpen(new QPushButton(this)),
      m_pForward(new QPushButton(this)),
      m_pSend(new QPushButton(this)),
      m_pDelete(new QPushButton(this)),
      m_pList(new QTreeWidget),
      m_pPreview(new QTextBrowser)
{
    setObjectName(QLatin1String("linkhand_Page_Messages"));
    m_pTitle->setObjectName(QLatin1String("linkhand_Messages_title"));
    m_pHint->setObjectName(QLatin1String("linkhand_Messages_hint"));
    m_pNewSms->setObjectName(QLatin1String("linkhand_Messages_newSms"));
    m_pNewMms->setObjectName(QLatin1String("linkhand_Messages_newMms"));
    m_pSearch->setObjectName(QLatin1String("linkhand_Messages_search"));
    m_pOpen->setObjectName(QLatin1String("linkhand_Messages_open"));
    m_pForward->setObjectName(QLatin1String("linkhand_Messages_forward"));
    m_pSend->setObjectName(QLatin1String("linkhand_Messages_send"));
    m_pDelete->setObjectName(QLatin1String("linkhand_Messages_delete"));
    m_pList->setObjectName(QLatin1String("linkhand_Messages_list"));
    m_pPreview->setObjectName(QLatin1String("linkhand_Messages_preview"));

    m_pHint->setWordWrap(true);
    prepareList();
    makeLayout();

    connect(&m_outbox, SIGNAL(changed()), this, SLOT(OnOutboxChanged()));
    // Another program may write to the same store; looking costs microseconds.
    connect(&m_refresh, SIGNAL(timeout()), &m_outbox, SLOT(Refresh()));
    connect(m_pList, SIGNAL(itemSelectionChanged()), this, SLOT(OnSelectionChanged()));
    connect(m_pList, SIGNAL(itemActivated(QTreeWidgetItem*, int)), this, SLOT(OnOpen()));
    connect(m_pSearch, SIGNAL(textChanged(QString)), this, SLOT(OnSearch()));
    connect(m_pOpen, SIGNAL(clicked()), this, SLOT(OnOpen()));
    connect(m_pForward, SIGNAL(clicked()), this, SLOT(OnForward()));
    connect(m_pNewSms, SIGNAL(clicked()), this, SLOT(OnNewSms()));
    connect(m_pNewMms, SIGNAL(clicked()), this, SLOT(OnNewMms()));
    connect(m_pSend, SIGNAL(clicked()), this, SLOT(OnSend()));
    connect(m_pDelete, SIGNAL(clicked()), this, SLOT(OnDelete()));
    if (isReal()) {
        connect(m_pModem, SIGNAL(statusChanged()), this, SLOT(OnSelectionChanged()));
        connect(m_pModem, SIGNAL(messageFinished(int)), this, SLOT(OnOutboxChanged()));
    }
}

void MessagesPage::makeLayout()
{
    WrapLayout* pBar = new WrapLayout;
    pBar->addWidget(m_pTitle);
    pBar->AddStretch();
    pBar->addWidget(m_pNewSms);
    pBar->addWidget(m_pNewMms);
    QSplitter* pSplitter = new QSplitter(Qt::Vertical);
    pSplitter->addWidget(m_pList);
    pSplitter->addWidget(m_pPreview);
    pSplitter->setStretchFactor(0, 3);
    pSplitter->setStretchFactor(1, 1);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(12, 10, 12, 10);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(makeDeeds());
    pLayout->addWidget(pSplitter, 1);
}

// What can be done with the message that is selected, beside the search for it.
QLayout* MessagesPage::makeDeeds()
{
    QtCompat::showClearButton(m_pSearch);
    WrapLayout* pDeeds = new WrapLayout;
    pDeeds->addWidget(m_pSearch);
    pDeeds->addWidget(m_pOpen);
    pDeeds->addWidget(m_pForward);
    pDeeds->addWidget(m_pSend);
    pDeeds->addWidget(m_pDelete);
    return pDeeds;
}

void MessagesPage::prepareList()
{
    m_pList->setColumnCount(COLUMN_COUNT);
    m_pList->setRootIsDecorated(false);
    m_pList->setUniformRowHeights(true);
    m_pList->setAlternatingRowColors(true);
    m_pList->setItemDelegateForColumn(COLUMN_TO, new NumberDelegate(m_pList));
    m_pList->setColumnWidth(COLUMN_KIND, 70);
    m_pList->setColumnWidth(COLUMN_TO, isReal() ? 240 : 290); // one number each with its name, or all of a message
    m_pList->setColumnWidth(COLUMN_TEXT, isReal() ? 60 : 270);
    if (isReal()) {
        // What has become of a message is read before what it says, which takes the room that is left.
        m_pList->header()->moveSection(COLUMN_TEXT, COLUMN_COUNT - 1);
    }
}

void MessagesPage::Retranslate()
{
    m_pTitle->setText(HostText::Get(isReal() ? "IDS_HOST_MESSAGES" : "IDS_HOST_OUTBOX"));
    m_pHint->setText(HostText::Get(isReal() ? "IDS_HOST_MESSAGES_HINT" : "IDS_HOST_OUTBOX_HINT"));
    m_pSearch->setPlaceholderText(HostText::Get("IDS_HOST_SEARCH_MESSAGES"));
    m_pSearch->setAccessibleName(m_pSearch->placeholderText());
    m_pOpen->setText(HostText::Get("IDS_HOST_OPEN"));
    m_pForward->setText(HostText::Get("IDS_HOST_FORWARD"));
    m_pNewSms->setText(HostText::Get("IDS_HOST_NEW_SMS"));
    m_pNewMms->setText(HostText::Get("IDS_HOST_NEW_MMS"));
    m_pDelete->setText(HostText::Get("IDS_HOST_DELETE"));
    QStringList lstHeaders;
    lstHeaders << HostText::Get("IDS_HOST_COLUMN_KIND")
               << HostText::Get(isReal() ? "IDS_HOST_COLUMN_PARTNER" : "IDS_HOST_COLUMN_TO")
               << HostText::Get("IDS_HOST_COLUMN_TEXT") << HostText::Get("IDS_HOST_COLUMN_TIME")
               << HostText::Get("IDS_HOST_COLUMN_STATE");
    m_pList->setHeaderLabels(lstHeaders);
    sizeColumns();
    m_pList->setAccessibleName(m_pTitle->text());
    m_pPreview->setAccessibleName(HostText::Get("IDS_HOST_COLUMN_TEXT"));
    OnOutboxChanged();
}

void MessagesPage::Enter()
{
    m_outbox.Refresh();
    if (HostContacts* pContacts = HostContacts::Instance()) {
        // There is none yet when the page is made.
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnOutboxChanged()), Qt::UniqueConnection);
        pContacts->Read(false);
    }
    m_pNewSms->setEnabled(m_container.GetPlugin(QLatin1String(LINKHAND_SMS_ID), LINKHAND_SMS_KIND) != nullptr);
    m_pNewMms->setEnabled(m_container.GetPlugin(QLatin1String(LINKHAND_MMS_ID), LINKHAND_MMS_KIND) != nullptr);
}

void MessagesPage::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    m_refresh.start(REFRESH_MS);
}

void MessagesPage::hideEvent(QHideEvent* pEvent)
{
    QWidget::hideEvent(pEvent);
    m_refresh.stop();
}

void MessagesPage::OnOutboxChanged()
{
    const int iCurrent = currentId();
    m_pList->clear();
    bool bStates = isReal();
    QTreeWidgetItem* pCurrent = nullptr;
    foreach (const StoredMessage& entry, m_outbox.Messages()) {
        QTreeWidgetItem* pItem = new QTreeWidgetItem;
        pItem->setText(COLUMN_KIND, kindText(entry.message));
        pItem->setText(COLUMN_TO, partners(entry.message));
        pItem->setText(COLUMN_TEXT, firstLine(entry.message));
        pItem->setText(COLUMN_TIME, shownTime(entry.time));
        pItem->setText(COLUMN_STATE, stateText(entry));
        pItem->setData(0, ROLE_ID, entry.iId);
        if (!holds(entry.message, m_pSearch->text().trimmed())) {
            delete pItem;
            continue;
        }
        bStates = bStates || entry.iState != MESSAGE_SIMULATED;
        m_pList->insertTopLevelItem(0, pItem); // the latest first
        if (entry.iId == iCurrent) {
            pCurrent = pItem;
        }
    }
    // Where nothing was ever sent, the hint says it for all.
    m_pList->setColumnHidden(COLUMN_STATE, !bStates);
    m_pList->setCurrentItem(pCurrent != nullptr ? pCurrent : m_pList->topLevelItem(0));
    OnSelectionChanged();
}

void MessagesPage::OnSelectionChanged()
{
    const int iId = currentId();
    m_pDelete->setEnabled(iId != 0 && !isSending(iId));
    m_pSend->setEnabled(false);
    m_pSend->setText(HostText::Get("IDS_HOST_SEND"));
    const StoredMessage current = m_outbox.Message(iId);
    m_pOpen->setEnabled(canOpen(current));
    m_pForward->setEnabled(current.iId != 0 && forms(current.message.iKind) != nullptr);
    m_pPreview->clear();
    foreach (const StoredMessage& entry, m_outbox.Messages()) {
        if (entry.iId == iId) {
            const bool bReceived = entry.iState == MESSAGE_RECEIVED;
            m_pSend->setEnabled(canSend(entry));
            if (!entry.IsUnsent() && !isSending(iId)) {
                m_pSend->setText(HostText::Get(bReceived ? "IDS_HOST_REPLY" : "IDS_HOST_SEND_AGAIN"));
            }
            const QString strState = isReal() || entry.iState != MESSAGE_SIMULATED
                                         ? QLatin1String("<p><i>") + html(stateText(entry)) + QLatin1String("</i></p>")
                                         : QString();
            const QString strSubject =
                entry.message.strSubject.isEmpty()
                    ? QString()
                    : QLatin1String("<p><b>") + html(entry.message.strSubject) + QLatin1String("</b></p>");
            m_pPreview->setHtml(QLatin1String("<p>") + kindText(entry.message) +
                                QLatin1String(bReceived ? " &larr; " : " &rarr; ") + html(partners(entry.message)) +
                                QLatin1String("</p>") + strState + strSubject + QLatin1String("<p>") +
                                html(entry.message.strText) + QLatin1String("</p>"));
        }
    }
}

void MessagesPage::OnSearch()
{
    OnOutboxChanged();
}

// What has left, or perhaps has, stays as it is: what it says goes into a new form.
void MessagesPage::OnOpen()
{
    const StoredMessage stored = m_outbox.Message(currentId());
    if (canOpen(stored)) {
        forms(stored.message.iKind)
            ->OpenMessage(stored.IsUnsent() ? stored.iId : 0, stored.message.lstNumbers, stored.message.strSubject,
                          stored.message.strText);
    }
}

void MessagesPage::OnForward()
{
    const StoredMessage stored = m_outbox.Message(currentId());
    IMessageForms* pForms = forms(stored.message.iKind);
    if (stored.iId != 0 && pForms != nullptr) {
        pForms->OpenMessage(0, QStringList(), stored.message.strSubject, stored.message.strText);
    }
}

void MessagesPage::OnSend()
{
    const StoredMessage stored = m_outbox.Message(currentId());
    if (stored.iId != 0 && !stored.IsUnsent()) {
        const bool bReceived = stored.iState == MESSAGE_RECEIVED;
        if (IMessageForms* pForms = forms(stored.message.iKind)) {
            pForms->OpenMessage(0, stored.message.lstNumbers, bReceived ? QString() : stored.message.strSubject,
                                bReceived ? QString() : stored.message.strText);
        }
        return;
    }
    if (m_pModem == nullptr || !m_pModem->SendAgain(currentId())) {
        report("IDS_HOST_SEND_FAILED");
    }
    OnOutboxChanged();
}

void MessagesPage::OnNewSms()
{
    ISMSUIService* pSms =
        qobject_cast<ISMSUIService*>(m_container.GetPlugin(QLatin1String(LINKHAND_SMS_ID), LINKHAND_SMS_KIND));
    if (pSms != nullptr) {
        pSms->SendMessage(QString(), QString(), this);
    }
}

void MessagesPage::OnNewMms()
{
    IMMSUIPlugin* pMms =
        qobject_cast<IMMSUIPlugin*>(m_container.GetPlugin(QLatin1String(LINKHAND_MMS_ID), LINKHAND_MMS_KIND));
    if (pMms != nullptr) {
        pMms->SendMessage(QString());
    }
}

void MessagesPage::OnDelete()
{
    const int iAnswer = CommonUtils::ShowMessage(QMessageBox::Question, window(), m_pTitle->text(),
                                                 HostText::Get("IDS_HOST_DELETE_QUESTION"), QLatin1String("IDS_OK"),
                                                 QLatin1String("IDS_CANCEL"), QString(), false,
                                                 Qt::WindowCloseButtonHint, nullptr, QString(), true);
    const int iId = currentId();
    // Another program may have been quicker.
    if (iAnswer == QMessageBox::Ok && !(m_pModem != nullptr ? m_pModem->Remove(iId) : m_outbox.Remove(iId)) &&
        isThere(iId)) {
        report("IDS_HOST_OUTBOX_FAILED");
    }
}

bool MessagesPage::isThere(int iId) const
{
    foreach (const StoredMessage& stored, m_outbox.Messages()) {
        if (stored.iId == iId) {
            return true;
        }
    }
    return false;
}

bool MessagesPage::isReal() const
{
    return m_pModem != nullptr && !m_pModem->IsSimulated();
}

bool MessagesPage::isSending(int iId) const
{
    return m_pModem != nullptr && m_pModem->IsSending(iId);
}

IMessageForms* MessagesPage::forms(int iKind) const
{
    QObject* pPlugin = iKind == HOST_MESSAGE_MMS
                           ? m_container.GetPlugin(QLatin1String(LINKHAND_MMS_ID), LINKHAND_MMS_KIND)
                           : m_container.GetPlugin(QLatin1String(LINKHAND_SMS_ID), LINKHAND_SMS_KIND);
    return qobject_cast<IMessageForms*>(pPlugin);
}

bool MessagesPage::canOpen(const StoredMessage& stored) const
{
    return stored.iId != 0 && stored.iState != MESSAGE_RECEIVED && !isSending(stored.iId) &&
           forms(stored.message.iKind) != nullptr;
}

// What may have left is not sent twice by a press of the wrong button: a form shows it first.
bool MessagesPage::canSend(const StoredMessage& stored) const
{
    if (m_pModem == nullptr || isSending(stored.iId)) {
        return false;
    }
    if (!stored.IsUnsent()) {
        return forms(stored.message.iKind) != nullptr;
    }
    const bool bRoad = !isReal() || (stored.message.iKind == HOST_MESSAGE_SMS && m_pModem->Status().bRegistered);
    return bRoad && !stored.message.lstNumbers.isEmpty();
}

// As wide as the language writes a time with two digits everywhere, before noon or after, and the longest of the
// states.
void MessagesPage::sizeColumns()
{
    QList<QTreeWidgetItem*> listExamples;
    for (StoredMessage stored; stored.iState <= MESSAGE_RECEIVED; ++stored.iState) {
        QTreeWidgetItem* pItem = new QTreeWidgetItem(m_pList);
        pItem->setText(COLUMN_TIME,
                       shownTime(QDateTime(QDate(2028, 12, 28), QTime(stored.iState % 2 == 0 ? 10 : 22, 58))));
        pItem->setText(COLUMN_STATE, stateText(stored));
        listExamples.append(pItem);
    }
    m_pList->resizeColumnToContents(COLUMN_TIME);
    m_pList->resizeColumnToContents(COLUMN_STATE);
    qDeleteAll(listExamples);
}

QString MessagesPage::stateText(const StoredMessage& stored) const
{
    static const char* const s_apszIds[] = {
        "IDS_HOST_STATE_SIMULATED", "IDS_HOST_STATE_DRAFT",  "IDS_HOST_STATE_UNCERTAIN", "IDS_HOST_STATE_SENT",
        "IDS_HOST_STATE_FAILED",    "IDS_HOST_STATE_PARTLY", "IDS_HOST_STATE_RECEIVED"};
    if (isSending(stored.iId)) {
        return HostText::Get("IDS_HOST_STATE_SENDING");
    }
    return stored.iState >= MESSAGE_SIMULATED && stored.iState <= MESSAGE_RECEIVED
               ? HostText::Get(s_apszIds[stored.iState])
               : QString();
}

void MessagesPage::report(const char* pszId)
{
    CommonUtils::ShowMessage(QMessageBox::Critical, window(), m_pTitle->text(), HostText::Get(pszId),
                             QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr,
                             QString(), true);
}

int MessagesPage::currentId() const
{
    const QList<QTreeWidgetItem*> listSelected = m_pList->selectedItems();
    return listSelected.isEmpty() ? 0 : listSelected.first()->data(0, ROLE_ID).toInt();
}
