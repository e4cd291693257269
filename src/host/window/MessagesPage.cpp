#include "window/MessagesPage.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
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
#include "shared/HostLink.h"
#include "shared/NumberDelegate.h"
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
    m_pSend->setObjectName(QLatin1String("linkhand_Messages_send"));
    m_pDelete->setObjectName(QLatin1String("linkhand_Messages_delete"));
    m_pList->setObjectName(QLatin1String("linkhand_Messages_list"));
    m_pPreview->setObjectName(QLatin1String("linkhand_Messages_preview"));

    m_pHint->setWordWrap(true);
    prepareList();

    QHBoxLayout* pBar = new QHBoxLayout;
    pBar->addWidget(m_pTitle, 1);
    pBar->addWidget(m_pNewSms);
    pBar->addWidget(m_pNewMms);
    pBar->addWidget(m_pSend);
    pBar->addWidget(m_pDelete);
    m_pSend->setVisible(isReal());
    QSplitter* pSplitter = new QSplitter(Qt::Vertical);
    pSplitter->addWidget(m_pList);
    pSplitter->addWidget(m_pPreview);
    pSplitter->setStretchFactor(0, 3);
    pSplitter->setStretchFactor(1, 1);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(12, 10, 12, 10);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pHint);
    pLayout->addWidget(pSplitter, 1);

    connect(&m_outbox, SIGNAL(changed()), this, SLOT(OnOutboxChanged()));
    // Another program may write to the same store; looking costs microseconds.
    connect(&m_refresh, SIGNAL(timeout()), &m_outbox, SLOT(Refresh()));
    connect(m_pList, SIGNAL(itemSelectionChanged()), this, SLOT(OnSelectionChanged()));
    connect(m_pNewSms, SIGNAL(clicked()), this, SLOT(OnNewSms()));
    connect(m_pNewMms, SIGNAL(clicked()), this, SLOT(OnNewMms()));
    connect(m_pSend, SIGNAL(clicked()), this, SLOT(OnSend()));
    connect(m_pDelete, SIGNAL(clicked()), this, SLOT(OnDelete()));
    if (isReal()) {
        connect(m_pModem, SIGNAL(statusChanged()), this, SLOT(OnSelectionChanged()));
        connect(m_pModem, SIGNAL(messageFinished(int)), this, SLOT(OnOutboxChanged()));
    }
}

void MessagesPage::prepareList()
{
    m_pList->setColumnCount(COLUMN_COUNT);
    m_pList->setRootIsDecorated(false);
    m_pList->setUniformRowHeights(true);
    m_pList->setAlternatingRowColors(true);
    m_pList->setItemDelegateForColumn(COLUMN_TO, new NumberDelegate(m_pList));
    m_pList->setColumnWidth(COLUMN_KIND, 70);
    m_pList->setColumnWidth(COLUMN_TO, isReal() ? 160 : 220); // one number each, or all of a message
    m_pList->setColumnWidth(COLUMN_TEXT, isReal() ? 60 : 340);
    if (isReal()) {
        // What has become of a message is read before what it says, which takes the room that is left.
        m_pList->header()->moveSection(COLUMN_TEXT, COLUMN_COUNT - 1);
    }
}

void MessagesPage::Retranslate()
{
    m_pTitle->setText(HostText::Get(isReal() ? "IDS_HOST_MESSAGES" : "IDS_HOST_OUTBOX"));
    m_pHint->setText(HostText::Get(isReal() ? "IDS_HOST_MESSAGES_HINT" : "IDS_HOST_OUTBOX_HINT"));
    m_pSend->setText(HostText::Get("IDS_HOST_SEND"));
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
        pItem->setText(COLUMN_TO, entry.message.lstNumbers.join(QLatin1String("; ")));
        pItem->setText(COLUMN_TEXT, firstLine(entry.message));
        pItem->setText(COLUMN_TIME, shownTime(entry.time));
        pItem->setText(COLUMN_STATE, stateText(entry));
        pItem->setData(0, ROLE_ID, entry.iId);
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
    m_pDelete->setEnabled(iId != 0 && (m_pModem == nullptr || !m_pModem->IsSending(iId)));
    m_pSend->setEnabled(false);
    m_pPreview->clear();
    foreach (const StoredMessage& entry, m_outbox.Messages()) {
        if (entry.iId == iId) {
            m_pSend->setEnabled(canSend(entry));
            const bool bReceived = entry.iState == MESSAGE_RECEIVED;
            const QString strState = isReal() || entry.iState != MESSAGE_SIMULATED
                                         ? QLatin1String("<p><i>") + html(stateText(entry)) + QLatin1String("</i></p>")
                                         : QString();
            const QString strSubject =
                entry.message.strSubject.isEmpty()
                    ? QString()
                    : QLatin1String("<p><b>") + html(entry.message.strSubject) + QLatin1String("</b></p>");
            m_pPreview->setHtml(
                QLatin1String("<p>") + kindText(entry.message) + QLatin1String(bReceived ? " &larr; " : " &rarr; ") +
                html(entry.message.lstNumbers.join(QLatin1String("; "))) + QLatin1String("</p>") + strState +
                strSubject + QLatin1String("<p>") + html(entry.message.strText) + QLatin1String("</p>"));
        }
    }
}

void MessagesPage::OnSend()
{
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

// What may have left is not sent twice by a press of the wrong button: it is written anew.
bool MessagesPage::canSend(const StoredMessage& stored) const
{
    return isReal() && stored.message.iKind == HOST_MESSAGE_SMS && !m_pModem->IsSending(stored.iId) &&
           (stored.iState == MESSAGE_DRAFT || stored.iState == MESSAGE_FAILED) && m_pModem->Status().bRegistered;
}

// As wide as the language writes a time with two digits everywhere, and the longest of the states.
void MessagesPage::sizeColumns()
{
    QList<QTreeWidgetItem*> listExamples;
    for (StoredMessage stored; stored.iState <= MESSAGE_RECEIVED; ++stored.iState) {
        QTreeWidgetItem* pItem = new QTreeWidgetItem(m_pList);
        pItem->setText(COLUMN_TIME, shownTime(QDateTime(QDate(2028, 12, 28), QTime(22, 58))));
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
    if (m_pModem != nullptr && m_pModem->IsSending(stored.iId)) {
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
