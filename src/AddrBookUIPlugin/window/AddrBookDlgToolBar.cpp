#include <QButtonGroup>
#include <QFile>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QMenu>
#include <QToolButton>
#include <QXmlStreamReader>

#include "linkhand/QtCompat.h"
#include "linkhand/plugin/Codes.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "window/AddrBookDlg.h"
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

void setTip(const QButtonGroup* pGroup, int iId, const char* szTextId)
{
    QAbstractButton* pButton = pGroup->button(iId);
    if (pButton == nullptr)
        return;
    QString strText;
    QKeySequence key;
    const bool bHasKey = Change::tr(QLatin1String(szTextId), addrBookPluginName(), strText, key);
    pButton->setToolTip(bHasKey ? strText + QLatin1String("  (") + key.toString() + QLatin1Char(')') : strText);
}

void addEntry(QMenu* pMenu, const QString& strId, QObject* pWindow, const char* szSlot)
{
    QString strText;
    QKeySequence key;
    Change::tr(strId, addrBookPluginName(), strText, key);
    QAction* pAction = pMenu->addAction(strText + QLatin1String("  ") + key.toString());
    QObject::connect(pAction, SIGNAL(triggered()), pWindow, szSlot);
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
    if (bOk && m_pbuttonGroup != nullptr) {
        connect(m_pbuttonGroup, QtCompat::idClicked(), this, SLOT(OnTBBtnClicked(int)));
        appendShortcuts();
    }
    if (bOk && m_plineeditSearch != nullptr) {
        connect(m_plineeditSearch, SIGNAL(textEdited(QString)), this, SLOT(OnTextEdited(QString)));
        connect(m_plineeditSearch, SIGNAL(controlN()), this, SLOT(OnButtonClickedNewContact()));
    }
    ADDRBOOK_LOG_UNTIMED("Exit");
    return bOk;
}

void AddrBookDlg::appendShortcuts()
{
    if (m_pbuttonGroup == nullptr)
        return;
    setTip(m_pbuttonGroup, TOOL_SEARCH, "IDS_PMTOOLBAR_SEARCH");
    setTip(m_pbuttonGroup, TOOL_DELETE, "IDS_PMBTN_DELETE");
    setTip(m_pbuttonGroup, TOOL_EDIT, "IDS_EDIT_LINKMAN");
    setTip(m_pbuttonGroup, TOOL_NEW, "IDS_PMBTN_ADD");
    if (ToolBarLogic::getPlugin(QLatin1String(LINKHAND_VOICECALL_ID)))
        setTip(m_pbuttonGroup, TOOL_CALL, "IDS_PMBTN_CALL");
    setTip(m_pbuttonGroup, TOOL_IMPORT_MOE, "IDS_PMBTN_IMPORT_FROM_MOE");
    setTip(m_pbuttonGroup, TOOL_IMPORT_MOO, "IDS_PMBTN_IMPORT_FROM_MOO");
    setTip(m_pbuttonGroup, TOOL_SEND, "IDS_PMMENU_SEND");
}

void AddrBookDlg::createSendMenu()
{
    QToolButton* pButton =
        qobject_cast<QToolButton*>(m_pbuttonGroup != nullptr ? m_pbuttonGroup->button(TOOL_SEND) : nullptr);
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
        if (strId == QLatin1String("IDS_PMMENU_SEND_MSG") && ToolBarLogic::getPlugin(QLatin1String(LINKHAND_SMS_ID)))
            addEntry(pMenu, strId, this, SLOT(OnButtonClickedSendSMS()));
        else if (strId == QLatin1String("IDS_PMMENU_SEND_MMS") &&
                 ToolBarLogic::getPlugin(QLatin1String(LINKHAND_MMS_ID)))
            addEntry(pMenu, strId, this, SLOT(OnButtonClickedSendMMS()));
    }
    return pMenu;
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
