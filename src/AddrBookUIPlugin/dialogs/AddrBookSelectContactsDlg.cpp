#include "dialogs/AddrBookSelectContactsDlg.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/FormFont.h"
#include "widgets/RowFont.h"

// The window of the dialog: how it is built, run and taken down.

namespace
{
const int MARGIN = 14;
const int NODE_HEIGHT = 20;
} // namespace

AddrBookSelectContactsDlg::AddrBookSelectContactsDlg(QWidget* pParent)
    : QWidget(pParent),
      m_pitemLocalTreeWidgetItem(nullptr),
      m_pitemSimTreeWidgetItem(nullptr),
      m_pitemDeviceTreeWidgetItem(nullptr),
      m_bSimEnabled(false),
      m_bOKClicked(false),
      m_strNumberType(QLatin1String("")),
      m_bMultiSelect(true),
      m_iPendingReads(0),
      m_bHideDualModeCardNode(
          CommonUtils::GetSettings(QLatin1String("DualModeCard"), QLatin1String("HideDoubleModeCardNode")) ==
          QLatin1String("true")),
      m_bClosing(false),
      m_textBound(fontMetrics())
{
}

// The workers go first: they read the groups, and their results in flight must be freed while there is a receiver.
AddrBookSelectContactsDlg::~AddrBookSelectContactsDlg()
{
    m_bClosing = true;
    stopAndDeleteThreads();

    delete m_pcomboNumberType;
    delete m_pbuttonAdd;
    delete m_pbuttonRemove;
    delete m_ptreeContacts;
    qDeleteAll(m_lstDetachedNodes);
    clearTable();

    delete m_plabelTotal;
    delete m_pbuttonOK;
    delete m_pbuttonCancel;
    delete m_ptableSelected;
    delete m_phlayoutButtons;
    delete m_pvlayoutLeft;
    delete m_pvlayoutMiddleButtons;
    delete m_pvlayoutRight;
    delete m_phlayoutMain;
    m_lstLocalRecords.clear();
    qDeleteAll(m_lstGroups);
    m_lstFieldNames.clear();
    for (QHash<_ORVA_EN_PHONEBOOK_MEMORY, GroupHash*>::const_iterator it = m_hashMemories.constBegin();
         it != m_hashMemories.constEnd(); ++it)
        freeGroupHash(it.value());

    delete m_pMainWidget;
    delete m_pExtendDialog;
}

// ---- The window ------------------------------------------------------------------------------------------------

void AddrBookSelectContactsDlg::InitDlg(QWidget*, AddrBookLogic* pLogic, bool bFlag, FIELD_TYPE,
                                        QList<QString> lstNumbers)
{
    ADDRBOOK_LOG_ENTER();
    m_bMultiSelect = bFlag;
    m_pMainWidget = new (std::nothrow) QWidget;
    m_pExtendDialog =
        new (std::nothrow) ExtendDialog(CommonUtils::GetMainWindow(), Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    m_lstPreRecords = lstNumbers;
    if (!m_pMainWidget || !m_pExtendDialog)
        return;

    m_pAddrBookLogic = pLogic;
    if (!createCommonUIElements())
        return;
    m_pExtendDialog->AddMainWidget(m_pMainWidget);
    setObjectNames();
    m_pExtendDialog->setWindowModality(Qt::WindowModal);
    m_pExtendDialog->setFixedSize(m_bMultiSelect ? 315 : 320, m_bMultiSelect ? 438 : 405);
    m_pExtendDialog->ExtendDialog::setWindowTitle(addrBookTr(QLatin1String("IDS_ADDR_NUMDLG_TITLE")));
    if (m_pAddrBookLogic) {
        QList<QString> lstNames;
        m_pAddrBookLogic->GetFieldNames(PB_MEM_LOCAL, lstNames);
        m_lstFieldNames += lstNames;
    }
    layOut();
    fitFontToForm(m_pMainWidget);
    fitFontToRows(m_ptreeContacts, NODE_HEIGHT);
    checkSimStatus();
    initTree();
    m_ptreeContacts->setSelectionBehavior(QAbstractItemView::SelectItems);
    connectSignals();
    SetInitialPrerecordSet(bFlag, lstNumbers);
    ADDRBOOK_LOG_EXIT();
}

bool AddrBookSelectContactsDlg::createCommonUIElements()
{
    m_ptreeContacts = new (std::nothrow) QTreeWidget(m_pMainWidget);
    m_pbuttonOK = new (std::nothrow) QPushButton(m_pMainWidget);
    m_pbuttonCancel = new (std::nothrow) QPushButton(m_pMainWidget);
    m_pvlayoutLeft = new (std::nothrow) QVBoxLayout;
    m_phlayoutMain = new (std::nothrow) QHBoxLayout(m_pMainWidget);
    m_phlayoutButtons = new (std::nothrow) QHBoxLayout;
    return m_ptreeContacts && m_pbuttonOK && m_pbuttonCancel && m_pvlayoutLeft && m_phlayoutMain && m_phlayoutButtons;
}

void AddrBookSelectContactsDlg::setObjectNames()
{
    m_ptreeContacts->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_treeContacts"));
    m_pbuttonOK->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonOK"));
    m_pbuttonCancel->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonCancel"));
    m_pvlayoutLeft->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_vlayoutLeft"));
    m_phlayoutMain->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_hlayoutMain"));
    m_phlayoutButtons->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_hlayoutButtons"));

    if (!m_pcomboNumberType || !m_pbuttonAdd || !m_pbuttonRemove || !m_plabelTotal || !m_ptableSelected ||
        !m_pvlayoutMiddleButtons || !m_pvlayoutRight)
        return;
    m_pcomboNumberType->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_comboNumberType"));
    m_pbuttonAdd->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonAdd"));
    m_pbuttonRemove->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_buttonRemove"));
    m_plabelTotal->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_labelTotal"));
    m_ptableSelected->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_tableContacts"));
    m_pvlayoutMiddleButtons->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_vlayoutMiddleButtons"));
    m_pvlayoutRight->setObjectName(QLatin1String("AddrBookUIPlugin_selectContacts_vlayoutRight"));
}

void AddrBookSelectContactsDlg::layOut()
{
    m_pvlayoutLeft->addWidget(m_ptreeContacts);
    m_pvlayoutLeft->addSpacing(m_bMultiSelect ? 7 : 5);
    m_pbuttonOK->setText(addrBookTr(QLatin1String("IDS_BUTTON_OK")));
    m_pbuttonCancel->setText(addrBookTr(QLatin1String("IDS_BUTTON_CANCEL")));
    m_phlayoutButtons->addWidget(m_pbuttonOK);
    m_phlayoutButtons->addWidget(m_pbuttonCancel);
    m_phlayoutButtons->setSpacing(m_bMultiSelect ? 40 : 8);
    m_phlayoutButtons->insertStretch(0, 0);
    m_pvlayoutLeft->addLayout(m_phlayoutButtons);
    m_phlayoutMain->addLayout(m_pvlayoutLeft);
    m_phlayoutMain->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    // The window is exactly as wide as the tree and these margins: one of the frame's own would push the tree out.
    if (QLayout* pFrame = m_pExtendDialog->layout())
        pFrame->setContentsMargins(0, 0, 0, 0);
}

void AddrBookSelectContactsDlg::connectSignals()
{
    connect(m_pbuttonOK, SIGNAL(clicked(bool)), this, SLOT(OnOKButtonClicked()));
    connect(m_pbuttonCancel, SIGNAL(clicked(bool)), this, SLOT(OnCancelButtonClicked()));
    connect(m_ptreeContacts, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this, SLOT(OnTreeClicked(QTreeWidgetItem*)));
    m_ptreeContacts->installEventFilter(this);
    m_ptreeContacts->viewport()->installEventFilter(this);
    if (!m_pAddrBookLogic)
        return;
    connect(m_pAddrBookLogic, SIGNAL(signalSimStatus(bool)), this, SLOT(OnSimStatusChanged(bool)));
    connect(m_pAddrBookLogic, SIGNAL(signalDeviceConnected(bool)), this, SLOT(OnSimStatusChanged(bool)));
    connect(m_pAddrBookLogic, SIGNAL(signalDeviceConnected(bool)), this, SLOT(OnDeviceStatusChanged(bool)));
    connect(m_pAddrBookLogic, SIGNAL(signalAddrBookDeviceReady()), this, SLOT(OnAddrBookDeviceReady()));
    connect(m_pAddrBookLogic, SIGNAL(signalAddrBookSimReady()), this, SLOT(OnAddrBookSimReady()));
}

void AddrBookSelectContactsDlg::Exec()
{
    setParent(CommonUtils::GetMainWindow(), Qt::Dialog);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    // Nothing of this object is touched after the run: its parent may have taken it away.
    ExtendDialog* pDialog = m_pExtendDialog;
    if (pDialog == nullptr)
        return;
    CommonUtils::MoveCentre(pDialog);
    pDialog->raise();
    pDialog->exec();
}

void AddrBookSelectContactsDlg::SetLanguage()
{
    ADDRBOOK_LOG_CALLED();
}

QString AddrBookSelectContactsDlg::tr(QString strId)
{
    return addrBookTr(strId);
}

bool AddrBookSelectContactsDlg::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (m_ptreeContacts && pObject == m_ptreeContacts && pEvent->type() == QEvent::KeyPress)
        return tickByKey(*static_cast<QKeyEvent*>(pEvent));
    if (m_ptreeContacts && pObject == m_ptreeContacts->viewport() && pEvent->type() == QEvent::ToolTip)
        return showWholeText(*static_cast<QHelpEvent*>(pEvent));
    return QWidget::eventFilter(pObject, pEvent);
}

bool AddrBookSelectContactsDlg::tickByKey(const QKeyEvent& event)
{
    QTreeWidgetItem* pitem = m_ptreeContacts->currentItem();
    if (!m_bMultiSelect || event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier || pitem == nullptr)
        return false;
    pitem->setCheckState(0, pitem->checkState(0) == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
    OnTreeClicked(pitem);
    return true;
}

// Two numbers that begin alike must be told apart where the column cuts them.
bool AddrBookSelectContactsDlg::showWholeText(const QHelpEvent& event)
{
    const QTreeWidgetItem* pitem = m_ptreeContacts->itemAt(event.pos());
    if (pitem == nullptr)
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), pitem->text(0), m_ptreeContacts->viewport());
    return true;
}
