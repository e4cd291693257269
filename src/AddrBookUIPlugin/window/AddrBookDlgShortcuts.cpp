#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>

#include "linkhand/plugin/Codes.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"

namespace
{
void makeShortcut(QShortcut*& pShortcut, QWidget* pParent)
{
    if (pShortcut == nullptr && pParent != nullptr)
        pShortcut = new (std::nothrow) QShortcut(pParent);
}

void setKey(QShortcut* pShortcut, const char* szId)
{
    if (pShortcut == nullptr)
        return;
    QString strText;
    QKeySequence key;
    Change::tr(QLatin1String(szId), addrBookPluginName(), strText, key);
    pShortcut->setKey(key);
}

// The key events of a table, for its window.
struct TableKeys : AddrBookTableWidget {
    using AddrBookTableWidget::keyPressEvent;
};
} // namespace

void AddrBookDlg::supportShortcutsKeys()
{
    makeShortcut(m_pshortcutSendSMS, this);
    makeShortcut(m_pshortcutSendMMS, this);
    makeShortcut(m_pshortcutNewContact, this);
    makeShortcut(m_pshortcutEditContact, this);
    makeShortcut(m_pshortcutDelete, this);
    makeShortcut(m_pshortcutSearch, this);
    makeShortcut(m_pshortcutCall, this);
    makeShortcut(m_pshortcutNewGroup, m_ptreePhonebook);
    makeShortcut(m_pshortcutRenameGroup, m_ptreePhonebook);

    setKey(m_pshortcutSendSMS, "IDS_PMMENU_SEND_MSG");
    setKey(m_pshortcutSendMMS, "IDS_PMMENU_SEND_MMS");
    setKey(m_pshortcutNewContact, "IDS_PMMENU_ADD");
    setKey(m_pshortcutEditContact, "IDS_PMMENU_DETAIL");
    setKey(m_pshortcutDelete, "IDS_PMMENU_DELETE");
    setKey(m_pshortcutSearch, "IDS_PMTOOLBAR_SEARCH");
    if (CommonUtils::IsPluginAvailable(QLatin1String(LINKHAND_VOICECALL_ID)))
        setKey(m_pshortcutCall, "IDS_PMMENU_CALL");
    setKey(m_pshortcutNewGroup, "IDS_Add_GROUP");
    setKey(m_pshortcutRenameGroup, "IDS_EDIT_GROUP");
}

void AddrBookDlg::connectShortcutsKeysToSlot()
{
    const char* const szActivated = SIGNAL(activated());
    if (m_pshortcutSendSMS != nullptr)
        connect(m_pshortcutSendSMS, szActivated, this, SLOT(OnShortKeySendSMS()));
    if (m_pshortcutSendMMS != nullptr)
        connect(m_pshortcutSendMMS, szActivated, this, SLOT(OnShortKeySendMMS()));
    if (m_pshortcutNewContact != nullptr)
        connect(m_pshortcutNewContact, szActivated, this, SLOT(OnButtonClickedNewContact()));
    if (m_pshortcutEditContact != nullptr && m_ptableContacts != nullptr)
        connect(m_pshortcutEditContact, szActivated, this, SLOT(OnShortKeyEditContact()));
    if (m_pshortcutDelete != nullptr)
        connect(m_pshortcutDelete, szActivated, this, SLOT(OnShortKeyDel()));
    if (m_pshortcutSearch != nullptr)
        connect(m_pshortcutSearch, szActivated, this, SLOT(OnShowHideSearchBox()));
    if (m_pshortcutCall != nullptr)
        connect(m_pshortcutCall, szActivated, this, SLOT(OnButtonClickedCall()));
    if (m_pshortcutNewGroup != nullptr)
        connect(m_pshortcutNewGroup, szActivated, this, SLOT(OnShortKeyNewGroup()));
    if (m_pshortcutRenameGroup != nullptr)
        connect(m_pshortcutRenameGroup, szActivated, this, SLOT(OnShortKeyRenameGroup()));
}

void AddrBookDlg::setMenuShortCuts()
{
    foreach (const MENU::QActionInfo& info, m_listTableActions + m_listTreeActions) {
        if (info.pAction == nullptr)
            continue;
        QString strText;
        QKeySequence key;
        Change::tr(info.strId, addrBookPluginName(), strText, key);
        info.pAction->setShortcut(key);
        info.pAction->setText(strText);
    }
}

void AddrBookDlg::setShortCutToQAction(QAction* pAction, const QKeySequence& key) const
{
    if (pAction == nullptr)
        return;
    if (QApplication::isRightToLeft())
        pAction->setText(QChar(0x202e) + pAction->text() + QChar(0x202d) + key.toString() + QLatin1Char(' '));
    else
        pAction->setText(pAction->text() + QLatin1String(" \t ") + key.toString());
}

// The table gets every key of the window but one.
void AddrBookDlg::keyPressEvent(QKeyEvent* event)
{
    const QPointer<AddrBookDlg> pSelf(this);
    if (m_ptableContacts != nullptr && event->key() != Qt::Key_M)
        (m_ptableContacts->*&TableKeys::keyPressEvent)(event);
    // The form that Return opens may have outlived the window.
    if (pSelf.isNull())
        return;
    QWidget::keyPressEvent(event);
}

void AddrBookDlg::OnShortKeySendSMS()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->hasFocus())
        m_ptreePhonebook->OnSendSMS();
    else
        OnButtonClickedSendSMS();
}

void AddrBookDlg::OnShortKeySendMMS()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->hasFocus())
        m_ptreePhonebook->OnSendMMS();
    else
        OnButtonClickedSendMMS();
}

void AddrBookDlg::OnShortKeyEditContact()
{
    if (m_ptableContacts != nullptr)
        m_ptableContacts->OnShortKeyEditContact();
}

void AddrBookDlg::OnShortKeyDel()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->hasFocus())
        m_ptreePhonebook->OnShortKeyDelGroup();
    else if (m_ptableContacts != nullptr)
        m_ptableContacts->OnShortKeyDelContact();
}

void AddrBookDlg::OnShortKeyNewGroup()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->hasFocus())
        m_ptreePhonebook->OnShortKeyNewGroup();
}

void AddrBookDlg::OnShortKeyRenameGroup()
{
    if (m_ptreePhonebook != nullptr && m_ptreePhonebook->hasFocus())
        m_ptreePhonebook->OnShortKeyRenameGroup();
}
