#include "common/RecipientCompleter.h"

#include <QAbstractItemView>
#include <QLineEdit>

#include "common/Recipients.h"
#include "shared/HostContacts.h"

namespace
{

const int OFFERED = 12;
const int ROLE_NUMBER = Qt::UserRole;

bool isSeparator(const QChar& c)
{
    return c == QLatin1Char(';') || c == QLatin1Char(',');
}

} // namespace

RecipientCompleter::RecipientCompleter(QLineEdit* pLine, const QString& strName)
    : QObject(pLine), m_pLine(pLine), m_bTyping(false)
{
    m_completer.setModel(&m_model);
    m_completer.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer.setMaxVisibleItems(OFFERED);
    // Not the line's own completer, which would take the whole line for one recipient.
    m_completer.setWidget(m_pLine);
    m_completer.popup()->setObjectName(strName);
    connect(m_pLine, SIGNAL(textEdited(QString)), this, SLOT(OnEdited()));
    connect(&m_completer, SIGNAL(activated(QModelIndex)), this, SLOT(OnChosen(QModelIndex)));
    HostContacts* pContacts = HostContacts::Instance();
    if (pContacts != nullptr) {
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnContactsRead()));
    }
}

void RecipientCompleter::OnEdited()
{
    m_bTyping = true;
    offer();
}

void RecipientCompleter::OnContactsRead()
{
    if (m_bTyping && m_pLine->hasFocus()) {
        offer();
    }
}

void RecipientCompleter::OnChosen(const QModelIndex& index)
{
    m_bTyping = false;
    int iFrom = 0;
    int iTo = 0;
    findRecipient(iFrom, iTo);
    const QString strNumber = index.data(ROLE_NUMBER).toString();
    const QString strText = m_pLine->text();
    const QString strBefore = strText.left(iFrom) + QLatin1String(iFrom > 0 ? " " : "") + strNumber;
    // On to the next recipient.
    const QString strAfter = iTo < strText.length() ? strText.mid(iTo) : QString(QLatin1String("; "));
    m_pLine->setText(strBefore + strAfter);
    m_pLine->setCursorPosition(iTo < strText.length() ? strBefore.length() : m_pLine->text().length());
}

// The recipient that the cursor is in, without the separators around it.
void RecipientCompleter::findRecipient(int& iFrom, int& iTo) const
{
    const QString strText = m_pLine->text();
    iFrom = iTo = m_pLine->cursorPosition();
    while (iFrom > 0 && !isSeparator(strText.at(iFrom - 1))) {
        --iFrom;
    }
    while (iTo < strText.length() && !isSeparator(strText.at(iTo))) {
        ++iTo;
    }
}

void RecipientCompleter::offer()
{
    HostContacts* pContacts = HostContacts::Instance();
    int iFrom = 0;
    int iTo = 0;
    findRecipient(iFrom, iTo);
    const QString strTyped = m_pLine->text().mid(iFrom, iTo - iFrom).trimmed();
    const QList<HostContact> listContacts =
        pContacts == nullptr || strTyped.isEmpty() ? QList<HostContact>() : pContacts->Complete(strTyped, OFFERED);
    m_model.clear();
    foreach (const HostContact& contact, listContacts) {
        QStandardItem* pItem = new QStandardItem(Recipients::WithName(contact.strNumber, contact.strName));
        pItem->setData(contact.strNumber, ROLE_NUMBER);
        m_model.appendRow(pItem);
    }
    const bool bComplete = listContacts.size() == 1 && listContacts.first().strNumber == strTyped;
    if (listContacts.isEmpty() || bComplete) {
        m_completer.popup()->hide();
        return;
    }
    m_completer.complete();
    // A name is nothing that could be sent to, so that Return takes the first of that name; a number is one as it is.
    m_completer.popup()->setCurrentIndex(Recipients::IsNumber(strTyped) ? QModelIndex()
                                                                        : m_completer.completionModel()->index(0, 0));
}
