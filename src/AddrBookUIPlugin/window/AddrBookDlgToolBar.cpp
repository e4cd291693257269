#include <QButtonGroup>
#include <QFile>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <QXmlStreamReader>

#include "linkhand/QtCompat.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "window/AddrBookDlg.h"
#include "window/PluginIds.h"
#include "window/ToolItemIds.h"

namespace
{
QString configFile()
{
    return CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/AddrBookUIPlugin/Config.xml");
}

// Attributes of the elements that a menu file is made of.
bool isSendMenu(const QXmlStreamAttributes& attributes)
{
    return attributes.value(QLatin1String("parent")) == QLatin1String("listview") &&
           attributes.value(QLatin1String("type")) == QLatin1String("POPUP") &&
           attributes.value(QLatin1String("name")) == QLatin1String("Send");
}

bool readOn(QXmlStreamReader& reader)
{
    return reader.readNext() != QXmlStreamReader::NoToken && !reader.atEnd();
}
} // namespace

bool AddrBookDlg::createToolBar(QWidget* pParent)
{
    ADDRBOOK_LOG_UNTIMED("Enter");
    m_bSearchBoxShown = false;
    m_pPluginContainer = nullptr;
    ToolBarLogic::GetXmlData(configFile(), m_listToolItems, m_bSubGroupSupported, addrBookPluginName());
    const bool bOk = ToolBarLogic::CreateToolBar(addrBookPluginName(), pParent, m_listToolItems, &m_pbuttonGroup,
                                                 &m_phlayoutToolBar, &m_plineeditSearch, &m_plabelToolBar);
    createSendMenu();
    if (bOk)
        connectToolBar();
    ADDRBOOK_LOG_UNTIMED("Exit");
    return bOk;
}

void AddrBookDlg::connectToolBar()
{
    if (m_pbuttonGroup != nullptr) {
        connect(m_pbuttonGroup, QtCompat::idClicked(), this, SLOT(OnTBBtnClicked(int)));
        appendShortcuts();
    }
    if (m_plineeditSearch != nullptr) {
        connect(m_plineeditSearch, SIGNAL(textEdited(QString)), this, SLOT(OnTextEdited(QString)));
        connect(m_plineeditSearch, SIGNAL(controlN()), this, SLOT(OnButtonClickedNewContact()));
    }
}

QAbstractButton* AddrBookDlg::toolButton(int iId) const
{
    return m_pbuttonGroup != nullptr ? m_pbuttonGroup->button(iId) : nullptr;
}

void AddrBookDlg::appendShortcuts()
{
    if (m_pbuttonGroup == nullptr)
        return;
    setButtonTip(TOOL_SEARCH, "IDS_PMTOOLBAR_SEARCH");
    setButtonTip(TOOL_DELETE, "IDS_PMBTN_DELETE");
    setButtonTip(TOOL_EDIT, "IDS_EDIT_LINKMAN");
    setButtonTip(TOOL_NEW, "IDS_PMBTN_ADD");
    if (ToolBarLogic::getPlugin(PluginId::voiceCall()))
        setButtonTip(TOOL_CALL, "IDS_PMBTN_CALL");
    setButtonTip(TOOL_IMPORT_MOE, "IDS_PMBTN_IMPORT_FROM_MOE");
    setButtonTip(TOOL_IMPORT_MOO, "IDS_PMBTN_IMPORT_FROM_MOO");
    setButtonTip(TOOL_SEND, "IDS_PMMENU_SEND");
}

void AddrBookDlg::setButtonTip(int iId, const char* szTextId)
{
    QAbstractButton* pButton = toolButton(iId);
    if (pButton == nullptr)
        return;
    QString strText;
    QKeySequence key;
    const bool bHasKey = Change::tr(QLatin1String(szTextId), addrBookPluginName(), strText, key);
    pButton->setToolTip(bHasKey ? strText + QLatin1String("  (") + key.toString() + QLatin1Char(')') : strText);
}

void AddrBookDlg::createSendMenu()
{
    QToolButton* pButton = qobject_cast<QToolButton*>(toolButton(TOOL_SEND));
    if (pButton == nullptr)
        return;
    m_pmenuSend = getSendMenu();
    if (m_pmenuSend == nullptr)
        return;
    pButton->setMenu(m_pmenuSend);
    pButton->setPopupMode(QToolButton::InstantPopup);
    pButton->setArrowType(Qt::NoArrow);
}

// The host's tool bar hands back no menu, so that the file is read a second time for the entries of this one.
QMenu* AddrBookDlg::getSendMenu()
{
    QFile file(configFile());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        ADDRBOOK_LOG_UNTIMED("Exit: XML File is not opened");
        return nullptr;
    }
    QMenu* pMenu = new (std::nothrow) QMenu;
    if (pMenu == nullptr)
        return nullptr;
    QXmlStreamReader reader(&file);
    reader.readNext();
    bool bInSendMenu = false;
    while (readOn(reader)) {
        if (!bInSendMenu) {
            bInSendMenu =
                reader.isStartElement() && reader.name() == QLatin1String("menu") && isSendMenu(reader.attributes());
            continue;
        }
        // From the send menu on, every item to the end of the file counts.
        if (reader.name() != QLatin1String("item") ||
            reader.attributes().value(QLatin1String("type")) != QLatin1String("ITEM"))
            continue;
        const QString strId = reader.attributes().value(QLatin1String("id")).toString();
        if (strId == QLatin1String("IDS_PMMENU_SEND_MSG") && ToolBarLogic::getPlugin(PluginId::sms()))
            addSendEntry(pMenu, strId, SLOT(OnButtonClickedSendSMS()));
        else if (strId == QLatin1String("IDS_PMMENU_SEND_MMS") && ToolBarLogic::getPlugin(PluginId::mms()))
            addSendEntry(pMenu, strId, SLOT(OnButtonClickedSendMMS()));
    }
    return pMenu;
}

void AddrBookDlg::addSendEntry(QMenu* pMenu, const QString& strId, const char* szSlot)
{
    QString strText;
    QKeySequence key;
    Change::tr(strId, addrBookPluginName(), strText, key);
    QAction* pAction = pMenu->addAction(strText + QLatin1String("  ") + key.toString());
    connect(pAction, SIGNAL(triggered()), this, szSlot);
}

void AddrBookDlg::destroyToolBar()
{
    ToolBarLogic::DestroyToolButtonGroup(m_listToolItems, &m_pbuttonGroup);
    delete m_phlayoutToolBar;
    m_phlayoutToolBar = nullptr;
    delete m_plineeditSearch;
    m_plineeditSearch = nullptr;
}

void AddrBookDlg::deleteToolBarObjects()
{
    destroyToolBar();
    delete m_pwidgetToolBar;
    m_pwidgetToolBar = nullptr;
    m_plabelToolBar = nullptr;
}

void AddrBookDlg::enableItem(int iId)
{
    ToolBarLogic::EnableDisableItem(addrBookPluginName(), m_listToolItems, iId, true);
}

void AddrBookDlg::disableItem(int iId)
{
    ToolBarLogic::EnableDisableItem(addrBookPluginName(), m_listToolItems, iId, false);
}

void AddrBookDlg::OnTBBtnClicked(int iId)
{
    m_bFocusFromTable = tableHoldsFocus();
    if (m_pwidgetToolBar != nullptr)
        m_pwidgetToolBar->setFocus();
    bool bSearch = false;
    for (int i = 0; i < m_listToolItems.size(); ++i) {
        if (m_listToolItems.at(i).iId == iId) {
            bSearch = m_listToolItems.at(i).bSearch;
            break;
        }
    }
    if (bSearch)
        OnShowHideSearchBox();
    switch (iId) {
    case TOOL_NEW:
        OnButtonClickedNewContact();
        break;
    case TOOL_EDIT:
        OnButtonClickedEditContact();
        break;
    case TOOL_DELETE:
        OnButtonClickedDeleteContact();
        break;
    case TOOL_CALL:
        OnButtonClickedCall();
        break;
    case TOOL_IMPORT_MOE:
        OnBnClickedBtnMOE();
        break;
    case TOOL_IMPORT_MOO:
        OnBnClickedBtnMOO();
        break;
    default: // the send button opens its menu
        break;
    }
}
