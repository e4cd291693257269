#include "window/AddrBookDlg.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QSplitter>
#include <QStyle>
#include <QStyleOption>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "dialogs/AddrBookWaitingDlg.h"
#include "dialogs/ChoosePhoneNumber.h"
#include "linkhand/QtCompat.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "logic/Log.h"
#include "logic/SdkCall.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/ContactPreview.h"
#include "widgets/PBTreeWidget.h"
#include "window/ToolItemIds.h"

namespace
{
// What takes a menu away may be what one of its entries opened: the menu's own code then runs on afterwards.
void discardMenu(QMenu*& pMenu)
{
    QMenu* const pGone = pMenu;
    pMenu = nullptr;
    if (pGone == nullptr || !QtCompat::insideEventLoop()) {
        delete pGone;
        return;
    }
    pGone->hide();
    pGone->setParent(nullptr);
    pGone->deleteLater();
}

// What a screen reader says of the parts that have no caption.
void nameParts(QWidget* ptree, QWidget* ptable, QWidget* ppreview)
{
    if (ptree != nullptr)
        ptree->setAccessibleName(addrBookTr(QLatin1String("IDS_PROMPT_CAPTION")));
    if (ptable != nullptr)
        ptable->setAccessibleName(addrBookTr(QLatin1String("IDS_CONTACT_LIST")));
    if (ppreview != nullptr)
        ppreview->setAccessibleName(addrBookTr(QLatin1String("IDS_CONTACT_DETAILS")));
}

void connectStatus(const AddrBookLogic* pLogic, const QSplitter* psplitter, const AddrBookThread* pWorker,
                   AddrBookDlg* pWindow)
{
    QObject::connect(pLogic, SIGNAL(signalSimStatus(bool)), pWindow, SLOT(OnSimStatusChanged(bool)));
    QObject::connect(pWindow, SIGNAL(signalSimStatus(bool)), pWindow, SLOT(OnSimStatusChanged(bool)));
    QObject::connect(pLogic, SIGNAL(signalAddrBookReady()), pWindow, SLOT(OnAddrBookReady()));
    QObject::connect(pLogic, SIGNAL(signalAddrBookSimReady()), pWindow, SLOT(OnAddrBookSimReady()));
    QObject::connect(pLogic, SIGNAL(signalAddrBookDeviceReady()), pWindow, SLOT(OnAddrBookDeviceReady()));
    QObject::connect(pLogic, SIGNAL(signalDeviceConnected(bool)), pWindow, SLOT(OnDeviceStatusChanged(bool)));
    QObject::connect(pLogic, SIGNAL(signalNetStatus(bool)), pWindow, SLOT(OnNetStatusChanged(bool)));
    QObject::connect(psplitter, SIGNAL(splitterMoved(int, int)), pWindow, SLOT(OnSplitterMoved(int, int)));
    QObject::connect(pWorker, SIGNAL(delResult(bool, int)), pWindow, SLOT(OnDelResult(bool, int)));
    QObject::connect(pWorker, SIGNAL(addResult(bool, qlonglong)), pWindow, SLOT(OnAddResult(bool, qlonglong)));
    // There is no such slot: Qt warns, and nothing of the window receives moveResult.
    QObject::connect(pWorker, SIGNAL(moveResult(bool, qlonglong)), pWindow, SLOT(OnMoveResult(bool, qlonglong)));
    QObject::connect(pWorker, SIGNAL(finished()), pWindow, SLOT(OnFinished()));
}
} // namespace

AddrBookDlg::AddrBookDlg() : QWidget(nullptr)
{
    m_pAddrBookLogic = AddrBookLogic::Instance();
    m_bSortPreserve = AddrBookLogic::GetSortPreserve();
    m_bHideDoubleModeCardNode =
        CommonUtils::GetSettings(QLatin1String("DualModeCard"), QLatin1String("HideDoubleModeCardNode")) ==
        QLatin1String("true");
}

AddrBookDlg::~AddrBookDlg()
{
    ADDRBOOK_LOG_ENTER();
    if (m_pthreadRead != nullptr) {
        m_pthreadRead->DisconnectSignals();
        m_pthreadRead->EndOperation();
        delete m_pthreadRead;
        m_pthreadRead = nullptr;
    }
    m_threadWorker.DisconnectSignals();
    m_batch.abandon();

    clearTable(m_ptableContacts);
    delete m_ptableContacts;
    m_ptableContacts = nullptr;
    clearTable(m_ptableContactsOld);
    delete m_ptableContactsOld;
    m_ptableContactsOld = nullptr;
    deleteTreeVariantData();
    deleteToolBarObjects();

    discardMenu(m_pmenuTable);
    discardMenu(m_pmenuTree);
    delete m_ptableMenuOwner;
    m_ptableMenuOwner = nullptr;
    discardMenu(m_pmenuSend);
    m_listTableActions.clear();
    m_listTreeActions.clear();
    delete m_pdlgChoosePhone;
    m_pdlgChoosePhone = nullptr;

    if (m_pAddrBookLogic != nullptr)
        AddrBookLogic::Destroy();
    m_pAddrBookLogic = nullptr;
    delete m_pBuildMenu;
    m_pBuildMenu = nullptr;
    AddrBookWaitingDlg::Destroy();

    // Records that the workers have sent and nobody has taken are still in the event queue. The slots own them on every
    // path; with neither table nor tree nor operation left, all that these do is to drop them.
    m_ptreePhonebook = nullptr;
    m_plabelPreview = nullptr;
    m_enOperation = ADDRBOOK_OP_NONE;
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

QString AddrBookDlg::tr(const QString& strId) const
{
    return addrBookTr(strId);
}

QWidget* AddrBookDlg::InitWindow(QWidget* /*pParent*/)
{
    ADDRBOOK_LOG_ENTER();
    if (!createPanes())
        return nullptr;

    m_psplitterPreview = new (std::nothrow) QSplitter(m_pwidgetSplitter);
    if (m_psplitterPreview == nullptr)
        return nullptr;
    m_psplitterPreview->setObjectName(QLatin1String("AddrBookUIPlugin_splitterPreview"));
    m_psplitterPreview->setOrientation(Qt::Vertical);
    m_psplitterPreview->setHandleWidth(4);

    createNewTable();
    if (m_ptableContacts == nullptr)
        return nullptr;
    constructTable(PB_MEM_LOCAL);
    constructContextMenu();

    m_pwidgetToolBar = new (std::nothrow) QWidget;
    if (m_pwidgetToolBar != nullptr) {
        createToolBar(m_pwidgetToolBar);
        m_pwidgetToolBar->setObjectName(ToolBarLogic::GetObjectName(addrBookPluginName()));
    }
    m_pvlayoutRight->addWidget(m_pwidgetToolBar, 0, Qt::Alignment());
    checkMaxCapacity(PB_MEM_LOCAL, false);
    m_psplitterMain->setSizes(QList<int>() << 130 << 500);
    m_ptreePhonebook->setGeometry(0, 0, 130, 130);
    if (!createPreview())
        return nullptr;

    m_bNetConnected = AddrBookLogic::GetSystemModeStatus();
    connectStatus(m_pAddrBookLogic, m_psplitterMain, &m_threadWorker, this);
    supportShortcutsKeys();
    connectShortcutsKeysToSlot();
    nameParts(m_ptreePhonebook, m_ptableContacts, m_plabelPreview);
    // Last, so that an event that arrives at once finds its receivers.
    AddrBookLogic::RegisterCallbacks();
    readRadio();
    ADDRBOOK_LOG_EXIT();
    return this;
}

// The outer layout, the splitter with the tree, and the pane on its right.
bool AddrBookDlg::createPanes()
{
    m_pvlayoutCentral = new (std::nothrow) QVBoxLayout(this);
    if (m_pvlayoutCentral == nullptr)
        return false;
    setArabicLanguage();
    m_pvlayoutCentral->setSpacing(0);
    m_pvlayoutCentral->setContentsMargins(3, 8, 3, 8);
    m_pvlayoutCentral->setObjectName(QLatin1String("AddrBookUIPlugin_vlayoutCentral"));

    m_psplitterMain = new (std::nothrow) QSplitter(this);
    if (m_psplitterMain == nullptr)
        return false;
    m_psplitterMain->setObjectName(QLatin1String("AddrBookUIPlugin_splitterMain"));
    m_psplitterMain->setOrientation(Qt::Horizontal);
    m_psplitterMain->setHandleWidth(4);
    m_listPreviewSplitterSizes.clear();
    m_listPreviewSplitterSizes << 515 << 220;

    createTreeWidget();
    if (m_ptreePhonebook == nullptr)
        return false;
    m_psplitterMain->addWidget(m_ptreePhonebook);

    m_pwidgetSplitter = new (std::nothrow) QWidget(m_psplitterMain);
    if (m_pwidgetSplitter == nullptr)
        return false;
    m_pwidgetSplitter->setObjectName(QLatin1String("AddrBookUIPlugin_widgetSplitter"));
    m_pvlayoutRight = new (std::nothrow) QVBoxLayout(m_pwidgetSplitter);
    if (m_pvlayoutRight == nullptr)
        return false;
    m_pvlayoutRight->setSpacing(0);
    m_pvlayoutRight->setContentsMargins(0, 0, 0, 0);
    disableSelectionItems();
    return true;
}

bool AddrBookDlg::createPreview()
{
    m_plabelPreview = new (std::nothrow) ContactPreview(m_psplitterPreview);
    if (m_plabelPreview == nullptr)
        return false;
    m_plabelPreview->setObjectName(QLatin1String("AddrBookUIPlugin_labelPreview"));
    m_plabelPreview->setAlignment(Qt::AlignTop);
    m_plabelPreview->setOpenExternalLinks(true);
    m_plabelPreview->ensureCursorVisible();
    m_psplitterPreview->addWidget(m_plabelPreview);

    m_pvlayoutRight->addWidget(m_psplitterPreview, 0, Qt::Alignment());
    m_psplitterPreview->setSizes(QList<int>() << 515 << 220);
    m_psplitterMain->addWidget(m_pwidgetSplitter);
    m_pvlayoutCentral->insertWidget(-1, m_psplitterMain, 0, Qt::Alignment());
    return true;
}

void AddrBookDlg::readRadio()
{
    int iSwitch[2] = {0, 0};
    long lResult = 0;
    SDK_CALL(lResult, ORVA_DevSrv_GetRFSwitch, (iSwitch));
    if (lResult != 0) {
        qWarning("%s : %s : %s : ORVA_DevSrv_GetRFSwitch returned error", AddrBookLog::now().constData(), ADDRBOOK_FILE,
                 __func__);
        return;
    }
    OnRFStatusChanged(!(iSwitch[0] == 1 && iSwitch[1] == 1));
    ToolBarLogic::ChangeToolBarIconDirection(addrBookPluginName(), m_listToolItems, m_bRightToLeft, &m_plabelToolBar);
    setCorrectTreeWidth();
}

void AddrBookDlg::setArabicLanguage()
{
    m_bRightToLeft = !QApplication::isLeftToRight();
}

void AddrBookDlg::SetLanguage()
{
    ADDRBOOK_LOG_ENTER();
    setArabicLanguage();
    ToolBarLogic::ChangeToolBarIconDirection(addrBookPluginName(), m_listToolItems, m_bRightToLeft, &m_plabelToolBar);
    supportShortcutsKeys();
    setMenuShortCuts();
    if (m_bPreviewEmpty)
        showNoRecord();
    const QPointer<AddrBookDlg> pSelf(this);
    CloseEditor();
    // Its box about a name may have outlived the window.
    if (pSelf.isNull())
        return;
    rePaintTree();
    if (m_ptreePhonebook != nullptr)
        OnTreeClicked(m_ptreePhonebook->currentItem());
    retranslateHeader();
    nameParts(m_ptreePhonebook, m_ptableContacts, m_plabelPreview);

    if (m_ptableContacts != nullptr) {
        QString strText;
        const int iRow = m_ptableContacts->currentRow();
        QTableWidgetItem* pitem = m_ptableContacts->item(iRow, 0);
        if (pitem != nullptr) {
            TableRowData* pData = tableRowData(pitem);
            if (pData == nullptr)
                return;
            constructPreview(iRow, m_ptableContacts->columnCount(), strText, pData);
        } else {
            constructPreview(iRow, m_ptableContacts->columnCount(), strText, nullptr);
        }
        if (m_plabelPreview != nullptr)
            m_plabelPreview->setText(strText);
    }
    retranslateToolBar();
    ADDRBOOK_LOG_EXIT();
}

void AddrBookDlg::retranslateHeader()
{
    getFieldNames();
    if (m_ptableContacts == nullptr)
        return;
    const int iCount = qMin(m_ptableContacts->columnCount(), m_listFieldNames.size());
    for (int iSection = 0; iSection < iCount; ++iSection) {
        QTableWidgetItem* pitem = m_ptableContacts->horizontalHeaderItem(iSection);
        if (pitem != nullptr)
            pitem->setText(tr(m_listFieldNames.at(iSection)));
    }
    showEmptyText();
}

void AddrBookDlg::retranslateToolBar()
{
    for (int i = 0; i < m_listToolItems.size(); ++i) {
        ToolItem item = m_listToolItems.at(i);
        if (item.pButton != nullptr) {
            item.pButton->setToolTip(tr(item.strTipId));
            m_listToolItems.replace(i, item);
        }
    }
    appendShortcuts();
    if (m_pmenuSend != nullptr) {
        discardMenu(m_pmenuSend);
        createSendMenu();
    }
}

void AddrBookDlg::OnSplitterMoved(int /*pos*/, int /*index*/)
{
    setCorrectTreeWidth();
}

// Lets a style sheet give this plain widget its background.
void AddrBookDlg::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOption option(1, 0);
    option.initFrom(this);
    QPainter painter(this);
    if (style() != nullptr)
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
