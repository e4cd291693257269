#include "common/MessageEditor.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/Phonebook.h"
#include "common/RecipientCompleter.h"
#include "common/RecipientDialog.h"
#include "common/Recipients.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"
#include "shared/HostContacts.h"
#include "shared/SmsLength.h"
#include "shared/WrapLayout.h"

MessageEditor::MessageEditor(const QString& strPlugin, HostMessageKind enKind, QWidget* pParent)
    : QWidget(pParent),
      m_strPlugin(strPlugin),
      m_enKind(enKind),
      m_iDraft(0),
      m_pToLabel(new QLabel(this)),
      m_pTo(new QLineEdit(this)),
      m_pByName(new QPushButton(this)),
      m_pAdd(new QPushButton(this)),
      m_pSave(new QPushButton(this)),
      m_pRecipients(new QLabel(this)),
      m_pSubjectLabel(new QLabel(this)),
      m_pSubject(new QLineEdit(this)),
      m_pText(new QPlainTextEdit(this)),
      m_pLength(new QLabel(this)),
      m_pSend(new QPushButton(this)),
      m_pClose(new QPushButton(this))
{
    name(this, "editor");
    name(m_pTo, "lineeditTo");
    name(m_pByName, "buttonByName");
    name(m_pRecipients, "labelRecipients");
    name(m_pAdd, "buttonAddRecipients");
    name(m_pSave, "buttonSaveNumber");
    name(m_pSubject, "lineeditSubject");
    name(m_pText, "texteditText");
    name(m_pLength, "labelLength");
    name(m_pSend, "buttonSend");
    name(m_pClose, "buttonClose");
    m_pToLabel->setBuddy(m_pTo);
    m_pSubjectLabel->setBuddy(m_pSubject);
    m_pLength->setWordWrap(true);
    m_pLength->setTextFormat(Qt::PlainText);
    m_pRecipients->setWordWrap(true);
    m_pRecipients->setTextFormat(Qt::PlainText);
    m_pText->setTabChangesFocus(true);
    // Return belongs to the text.
    m_pByName->setAutoDefault(false);
    m_pAdd->setAutoDefault(false);
    m_pSave->setAutoDefault(false);
    m_pSend->setAutoDefault(false);
    m_pClose->setAutoDefault(false);
    makeLayout();

    connect(m_pTo, SIGNAL(textChanged(QString)), this, SLOT(OnEdited()));
    connect(m_pSubject, SIGNAL(textChanged(QString)), this, SLOT(OnEdited()));
    connect(m_pText, SIGNAL(textChanged()), this, SLOT(OnEdited()));
    new RecipientCompleter(m_pTo, m_strPlugin + QLatin1String("_listContacts"));
    if (HostContacts* pContacts = HostContacts::Instance()) {
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnContactsRead()));
    }
    connect(m_pByName, SIGNAL(clicked()), this, SLOT(OnByName()));
    connect(m_pAdd, SIGNAL(clicked()), this, SLOT(OnAddRecipients()));
    connect(m_pSave, SIGNAL(clicked()), this, SLOT(OnSaveNumber()));
    connect(m_pSend, SIGNAL(clicked()), this, SLOT(OnSend()));
    connect(m_pClose, SIGNAL(clicked()), this, SIGNAL(closed()));
    Retranslate();
}

void MessageEditor::SetRecipients(const QStringList& lstNumbers)
{
    m_pTo->setText(Recipients::Join(lstNumbers));
}

QStringList MessageEditor::GetRecipients() const
{
    return Recipients::Split(m_pTo->text());
}

void MessageEditor::SetText(const QString& strText)
{
    m_pText->setPlainText(strText);
}

void MessageEditor::SetSubject(const QString& strSubject)
{
    m_pSubject->setText(strSubject);
}

void MessageEditor::Begin(int iId)
{
    m_iDraft = iId;
    m_strBegun = contents();
}

bool MessageEditor::MayClose()
{
    if (!isUnsaved()) {
        return true;
    }
    // Sending is offered where it is possible, and takes more than Return.
    const QString strSend = m_pSend->isEnabled() && !(isReal() && m_enKind == HOST_MESSAGE_MMS)
                                ? QString(QLatin1String("IDS_HOST_SEND"))
                                : QString();
    const int iAnswer =
        CommonUtils::ShowMessage(QMessageBox::Question, window(), text("IDS_TITLE"), text("IDS_CLOSE_QUESTION"),
                                 QLatin1String("IDS_HOST_KEEP_DRAFT"), strSend, QLatin1String("IDS_HOST_DISCARD"), true,
                                 Qt::WindowCloseButtonHint, nullptr, QString(), true);
    switch (iAnswer) {
    case QMessageBox::Ok:
        if (!KeepUnsaved()) {
            report("IDS_KEEP_FAILED");
            return false;
        }
        return true;
    case QMessageBox::No:
        return send();
    case QMessageBox::Ignore:
        m_strBegun = contents();
        return true;
    default:
        return false;
    }
}

bool MessageEditor::KeepUnsaved()
{
    if (!isUnsaved()) {
        return true;
    }
    HostLink* pLink = HostLink::Instance();
    const int iKept = pLink == nullptr ? 0
                                       : pLink->KeepDraft(m_iDraft, m_enKind, GetRecipients(), m_pSubject->text(),
                                                          m_pText->toPlainText());
    if (iKept != 0) {
        Begin(iKept);
        pLink->ShowStatus(text("IDS_DRAFT_KEPT"));
    }
    return iKept != 0;
}

void MessageEditor::Retranslate()
{
    m_pToLabel->setText(text("IDS_TO"));
    m_pByName->setText(text("IDS_BY_NAME"));
    m_pAdd->setText(text("IDS_ADD_RECIPIENTS"));
    m_pSave->setText(text("IDS_SAVE_NUMBER"));
    m_pSubjectLabel->setText(text("IDS_SUBJECT"));
    m_pText->setAccessibleName(text("IDS_TEXT"));
    const bool bKeptOnly = isReal() && m_enKind == HOST_MESSAGE_MMS;
    m_pSend->setText(text(bKeptOnly ? "IDS_KEEP_DRAFT" : "IDS_SEND"));
    m_pSend->setToolTip(text(isReal() ? "IDS_SEND_TIP_REAL" : "IDS_SEND_TIP"));
    m_pClose->setText(text("IDS_CLOSE"));
    OnEdited();
}

void MessageEditor::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    if (HostContacts* pContacts = HostContacts::Instance()) {
        pContacts->Read(false);
    }
    OnEdited();
    QWidget* pFirst = m_pTo->text().isEmpty() ? static_cast<QWidget*>(m_pTo) : m_pText;
    pFirst->setFocus();
}

void MessageEditor::OnEdited()
{
    const QStringList lstNumbers = GetRecipients();
    QString strReason;
    foreach (const QString& strNumber, lstNumbers) {
        strReason = strReason.isEmpty() ? reasonAgainst(strNumber) : strReason;
    }
    const bool bAllValid = strReason.isEmpty();
    const bool bText = !m_pText->document()->isEmpty() || !m_pSubject->text().isEmpty();
    const bool bPhonebook = Phonebook::Available();
    m_pAdd->setEnabled(bPhonebook);
    m_pByName->setEnabled(HostContacts::Instance() != nullptr);
    m_pRecipients->setText(recipientsText(lstNumbers));
    m_pRecipients->setVisible(!m_pRecipients->text().isEmpty());
    m_pSave->setEnabled(bPhonebook && !lstNumbers.isEmpty());
    m_pSend->setEnabled(HostLink::Instance() != nullptr && !lstNumbers.isEmpty() && bAllValid && bText);

    if (!bAllValid) {
        m_pLength->setText(strReason);
    } else if (m_enKind == HOST_MESSAGE_SMS) {
        m_pLength->setText(lengthText(lstNumbers));
    } else {
        m_pLength->setText(isReal() ? text("IDS_NO_ROAD") : QString());
    }
}

// The contacts among them, each with its number.
QString MessageEditor::recipientsText(const QStringList& lstNumbers) const
{
    HostContacts* pContacts = HostContacts::Instance();
    QStringList lstNamed;
    foreach (const QString& strNumber, lstNumbers) {
        const QString strName =
            pContacts != nullptr && Recipients::IsNumber(strNumber) ? pContacts->NameOf(strNumber) : QString();
        if (!strName.isEmpty()) {
            lstNamed << Recipients::WithName(strNumber, strName);
        }
    }
    return lstNamed.join(QLatin1String("; "));
}

// Why nothing can be sent there; empty for a number.
QString MessageEditor::reasonAgainst(const QString& strRecipient) const
{
    if (Recipients::IsNumber(strRecipient)) {
        return QString();
    }
    bool bLetters = false;
    foreach (const QChar c, strRecipient) {
        bLetters = bLetters || c.isLetter();
    }
    // What was typed keeps its direction, and leaves the sentence its own.
    return text(bLetters ? "IDS_BAD_NUMBER_NAME" : "IDS_BAD_NUMBER").arg(QChar(0x2068) + strRecipient + QChar(0x2069));
}

// Each recipient gets, and is paid for with, a message of its own.
QString MessageEditor::lengthText(const QStringList& lstNumbers) const
{
    const SmsLength length = SmsLength::Of(m_pText->toPlainText());
    const QLocale locale;
    QString strText = text("IDS_LENGTH").arg(locale.toString(length.iUnits), locale.toString(length.iMessages));
    if (lstNumbers.size() > 1) {
        strText += QLatin1String("; ") + text("IDS_LENGTH_TOTAL")
                                             .arg(locale.toString(int(lstNumbers.size())),
                                                  locale.toString(int(lstNumbers.size()) * length.iMessages));
    }
    return strText;
}

void MessageEditor::OnContactsRead()
{
    OnEdited();
}

void MessageEditor::OnByName()
{
    RecipientDialog dialog(m_strPlugin, window());
    if (dialog.exec() == QDialog::Accepted) {
        QStringList lstNumbers = GetRecipients() + dialog.Numbers();
        lstNumbers.removeDuplicates();
        SetRecipients(lstNumbers);
    }
}

void MessageEditor::OnAddRecipients()
{
    QStringList lstNumbers = GetRecipients();
    if (Phonebook::SelectNumbers(lstNumbers)) {
        SetRecipients(lstNumbers);
    }
}

void MessageEditor::OnSaveNumber()
{
    const QStringList lstNumbers = GetRecipients();
    if (lstNumbers.size() == 1) {
        Phonebook::SaveNumber(lstNumbers.first(), window());
        return;
    }
    QMenu menu(this);
    name(&menu, "menuSaveNumber");
    foreach (const QString& strNumber, lstNumbers) {
        // What was typed is no mnemonic.
        menu.addAction(QString(strNumber).replace(QLatin1Char('&'), QLatin1String("&&")))->setData(strNumber);
    }
    const QAction* pChosen = menu.exec(m_pSave->mapToGlobal(QPoint(0, m_pSave->height())));
    if (pChosen != nullptr) {
        Phonebook::SaveNumber(pChosen->data().toString(), window());
    }
}

void MessageEditor::OnSend()
{
    if (send()) {
        emit sent();
    }
}

bool MessageEditor::send()
{
    HostLink* pLink = HostLink::Instance();
    const QStringList lstNumbers = GetRecipients();
    if (pLink == nullptr || !pLink->SendMessage(m_enKind, lstNumbers, m_pSubject->text(), m_pText->toPlainText())) {
        report("IDS_SEND_FAILED");
        return false;
    }
    // The host has it; only then may the draft go.
    if (m_iDraft != 0) {
        pLink->ForgetDraft(m_iDraft);
    }
    Begin(0);
    // What becomes of it with a real modem, the host tells.
    if (pLink->IsSimulated()) {
        pLink->ShowStatus(text("IDS_IN_OUTBOX").arg(QLocale().toString(int(lstNumbers.size()))));
    }
    return true;
}

// Recipients alone are nothing that somebody has written.
bool MessageEditor::isUnsaved() const
{
    const bool bText = !m_pText->toPlainText().trimmed().isEmpty() || !m_pSubject->text().trimmed().isEmpty();
    return (bText || m_iDraft != 0) && contents() != m_strBegun;
}

QString MessageEditor::contents() const
{
    return Recipients::Join(GetRecipients()) + QChar(0) + m_pSubject->text() + QChar(0) + m_pText->toPlainText();
}

bool MessageEditor::isReal() const
{
    HostLink* pLink = HostLink::Instance();
    return pLink != nullptr && !pLink->IsSimulated();
}

QString MessageEditor::text(const char* pszId) const
{
    return Change::tr(QLatin1String(pszId), m_strPlugin);
}

void MessageEditor::name(QWidget* pWidget, const char* pszRole)
{
    pWidget->setObjectName(m_strPlugin + QLatin1Char('_') + QLatin1String(pszRole));
}

void MessageEditor::makeLayout()
{
    QGridLayout* pHead = new QGridLayout;
    pHead->addWidget(m_pToLabel, 0, 0);
    pHead->addWidget(m_pTo, 0, 1);
    pHead->addWidget(m_pRecipients, 1, 1);
    // Beneath the line, which would have no room beside them in some languages.
    WrapLayout* pWays = new WrapLayout;
    pWays->addWidget(m_pByName);
    pWays->addWidget(m_pAdd);
    pWays->addWidget(m_pSave);
    pWays->AddStretch();
    pHead->addLayout(pWays, 2, 1);
    pHead->addWidget(m_pSubjectLabel, 3, 0);
    pHead->addWidget(m_pSubject, 3, 1);
    m_pSubjectLabel->setVisible(m_enKind == HOST_MESSAGE_MMS);
    m_pSubject->setVisible(m_enKind == HOST_MESSAGE_MMS);
    WrapLayout* pFoot = new WrapLayout;
    // All that the buttons leave: a text that may break would else do so early.
    m_pLength->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    pFoot->addWidget(m_pLength);
    pFoot->addWidget(m_pSend);
    pFoot->addWidget(m_pClose);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pHead);
    pLayout->addWidget(m_pText, 1);
    pLayout->addLayout(pFoot);
    setMinimumSize(640, 400); // three numbers beside one another
}

void MessageEditor::report(const char* pszId)
{
    CommonUtils::ShowMessage(QMessageBox::Critical, window(), text("IDS_TITLE"), text(pszId), QLatin1String("IDS_OK"),
                             QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr, QString(), true);
}
