#include "dialogs/AddrBookFieldMapDlg.h"

#include <QHeaderView>
#include <QItemSelectionModel>

#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/AddrBookUICommon.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/FormFont.h"
#include "widgets/RowFont.h"

namespace
{
enum { TABLE_SOURCE = 1, TABLE_MEMORY = 2 };
enum { COLUMN_FIELD = 0, COLUMN_MAPPED = 1 };

const int TABLE_HEIGHT = 205;

QString unmapped()
{
    return QLatin1String(" ");
}

QString unused()
{
    return QLatin1String("");
}

QString memoryName(_ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    switch (enMemory) {
    case PB_MEM_SIM:
        return AddrBookUICommon::GetSIMText();
    case PB_MEM_LOCAL:
        return addrBookTr(QLatin1String("IDS_LOCAL_PHONEBOOKUI"));
    case PB_MEM_ME:
        return AddrBookUICommon::GetNodeText(enMemory);
    case PB_MEM_NONE:
        break;
    }
    return QString();
}

// The last title that is the field's label or name, or the mark of a field without one.
QString titleOfField(const QList<QString>& lstTitles, const QString& strLabel, const QString& strName)
{
    QString strMatch = unmapped();
    for (const QString& strTitle : lstTitles) {
        if (strTitle.compare(strLabel, Qt::CaseInsensitive) == 0 || strTitle.compare(strName, Qt::CaseInsensitive) == 0)
            strMatch = strTitle;
    }
    return strMatch;
}

void setHeading(QTableWidget* ptable, int iColumn, const char* pszId)
{
    QTableWidgetItem* pitem = new (std::nothrow) QTableWidgetItem(addrBookTr(QLatin1String(pszId)));
    if (pitem == nullptr)
        return;
    pitem->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
    ptable->setHorizontalHeaderItem(iColumn, pitem);
}

void clearItems(QTableWidget* ptable)
{
    if (ptable == nullptr)
        return;
    for (int iColumn = 0; iColumn < ptable->columnCount(); ++iColumn) {
        for (int iRow = 0; iRow < ptable->rowCount(); ++iRow)
            delete ptable->takeItem(iRow, iColumn);
        delete ptable->takeHorizontalHeaderItem(iColumn);
    }
}
} // namespace

AddrBookFieldMapDlg::AddrBookFieldMapDlg(QObject* pParent) : QObject(pParent), m_enMemory(PB_MEM_LOCAL) {}

AddrBookFieldMapDlg::~AddrBookFieldMapDlg()
{
    delete m_plabelTips.data();
    delete m_plabelSpacer.data();
    delete m_plabelSource.data();
    delete m_plabelMemory.data();
    clearFirstTable();
    clearSecondTable();
    delete m_ptableFirst.data();
    delete m_ptableSecond.data();
    delete m_pOkButton.data();
    delete m_pCancelButton.data();
    delete m_pButtonLayout.data();
    delete m_pGridLayout.data();
    delete m_pMainWidget.data();
    delete m_pExtendDialog.data();
}

void AddrBookFieldMapDlg::InitDialog(QWidget* pParent, _ORVA_EN_PHONEBOOK_MEMORY enMemory, QString strTitle)
{
    ADDRBOOK_LOG_ENTER();
    m_pMainWidget = new (std::nothrow) QWidget;
    m_pExtendDialog = new (std::nothrow) ExtendDialog(pParent, Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    if (m_pMainWidget == nullptr || m_pExtendDialog == nullptr || !createCommonUIElements(enMemory, strTitle)) {
        ADDRBOOK_LOG("a part of the dialog is missing");
        return;
    }
    m_pExtendDialog->AddMainWidget(m_pMainWidget);
    m_pExtendDialog->setWindowModality(Qt::WindowModal);
    m_pExtendDialog->setFixedSize(390, 367);
    setUpTables();
    setUpButtons();
    layOutParts();
    fitFontToForm(m_pMainWidget);
    m_pExtendDialog->setWindowTitle(addrBookTr(QLatin1String("IDS_MAP_CAPTION")));
    CommonUtils::MoveCentre(m_pExtendDialog);
    ADDRBOOK_LOG_EXIT();
}

bool AddrBookFieldMapDlg::createCommonUIElements(_ORVA_EN_PHONEBOOK_MEMORY enMemory, const QString& strTitle)
{
    m_enMemory = enMemory;
    m_plabelTips = new (std::nothrow) QLabel(addrBookTr(QLatin1String("IDS_MAP_TIPSINFO")), m_pMainWidget);
    m_plabelSource = new (std::nothrow) QLabel(strTitle, m_pMainWidget);
    m_plabelSpacer = new (std::nothrow) QLabel(m_pMainWidget);
    m_plabelMemory = new (std::nothrow) QLabel(memoryName(enMemory), m_pMainWidget);
    m_ptableFirst = new (std::nothrow) FieldMapTable1Widget(m_pMainWidget);
    m_ptableSecond = new (std::nothrow) FieldMapTable2Widget(m_pMainWidget);
    m_pOkButton = new (std::nothrow) QPushButton(addrBookTr(QLatin1String("IDS_BUTTON_OK")), m_pMainWidget);
    m_pCancelButton = new (std::nothrow) QPushButton(addrBookTr(QLatin1String("IDS_BUTTON_CANCEL")), m_pMainWidget);
    m_pGridLayout = new (std::nothrow) QGridLayout(m_pMainWidget);
    m_pButtonLayout = new (std::nothrow) QHBoxLayout;
    return m_plabelTips != nullptr && m_plabelSource != nullptr && m_plabelSpacer != nullptr &&
           m_plabelMemory != nullptr && m_ptableFirst != nullptr && m_ptableSecond != nullptr &&
           m_pOkButton != nullptr && m_pCancelButton != nullptr && m_pGridLayout != nullptr &&
           m_pButtonLayout != nullptr;
}

void AddrBookFieldMapDlg::setTableProperties(QTableWidget* ptable)
{
    ptable->setSelectionBehavior(QAbstractItemView::SelectRows);
    ptable->setSelectionMode(QAbstractItemView::SingleSelection);
    ptable->verticalHeader()->hide();
    ptable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ptable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ptable->horizontalHeader()->setTextElideMode(Qt::ElideRight);
    ptable->horizontalHeader()->setHighlightSections(false);
    ptable->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // The arrows move in the table; Tab goes on to the next part.
    ptable->setTabKeyNavigation(false);
    // The columns are as wide as the table; a frame would leave them a scroll bar.
    ptable->setFrameShape(QFrame::NoFrame);
}

void AddrBookFieldMapDlg::setUpTables()
{
    setTableProperties(m_ptableFirst);
    m_ptableFirst->setColumnCount(1);
    m_ptableFirst->setMaximumSize(140, TABLE_HEIGHT);
    m_ptableFirst->setColumnWidth(COLUMN_FIELD, 140);
    setHeading(m_ptableFirst, COLUMN_FIELD, "IDS_ADDR_FROM_VALUE");
    m_ptableFirst->setAccessibleName(addrBookTr(QLatin1String("IDS_ADDR_FROM_VALUE")));

    setTableProperties(m_ptableSecond);
    m_ptableSecond->setColumnCount(2);
    m_ptableSecond->setMaximumSize(180, TABLE_HEIGHT);
    m_ptableSecond->setColumnWidth(COLUMN_FIELD, 90);
    m_ptableSecond->setColumnWidth(COLUMN_MAPPED, 90);
    setHeading(m_ptableSecond, COLUMN_FIELD, "IDS_ADDR_TO_FIELD");
    setHeading(m_ptableSecond, COLUMN_MAPPED, "IDS_ADDR_TO_FROM");
    m_ptableSecond->setAccessibleName(addrBookTr(QLatin1String("IDS_ADDR_TO_FIELD")));

    connect(m_ptableFirst, SIGNAL(itemSelectionChanged()), this, SLOT(OnItemSelectionChanged()));
    connect(m_ptableSecond, SIGNAL(cellEntered(int, int)), this, SLOT(OnCellEntered(int, int)));
}

void AddrBookFieldMapDlg::setUpButtons()
{
    m_pOkButton->setObjectName(QLatin1String("AddrUIplugin_FieldMapokbtn"));
    m_pCancelButton->setObjectName(QLatin1String("AddrUIplugin_FieldMapCancelbtn"));
    m_pOkButton->setMaximumSize(72, 22);
    m_pCancelButton->setMaximumSize(72, 22);
    connect(m_pOkButton, SIGNAL(clicked()), this, SLOT(OnButtonClickedOK()));
    connect(m_pCancelButton, SIGNAL(clicked()), this, SLOT(OnButtonClickedCancel()));
}

void AddrBookFieldMapDlg::layOutParts()
{
    m_plabelTips->setWordWrap(true);
    // The name of a file is no mark-up, and a long caption must not push the tables aside.
    m_plabelSource->setTextFormat(Qt::PlainText);
    m_plabelSource->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_plabelMemory->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pGridLayout->setContentsMargins(5, 35, 5, 11);
    m_pGridLayout->setHorizontalSpacing(6);
    m_pGridLayout->setVerticalSpacing(0);
    m_pGridLayout->setColumnStretch(0, 1);
    m_pGridLayout->addWidget(m_plabelTips, 0, 0, 1, 2);
    m_pGridLayout->addWidget(m_plabelSpacer, 2, 0, 1, 2);
    m_pGridLayout->addWidget(m_plabelSource, 4, 0);
    m_pGridLayout->addWidget(m_plabelMemory, 4, 1);
    m_pGridLayout->addWidget(m_ptableFirst, 5, 0);
    m_pGridLayout->addWidget(m_ptableSecond, 5, 1);

    m_pButtonLayout->setContentsMargins(0, 11, 0, 0);
    m_pButtonLayout->setSpacing(15);
    m_pButtonLayout->addWidget(m_pOkButton);
    m_pButtonLayout->addWidget(m_pCancelButton);
    m_pGridLayout->addLayout(m_pButtonLayout, 6, 1, Qt::AlignRight);
}

QTableWidget* AddrBookFieldMapDlg::table(int iTable) const
{
    if (iTable == TABLE_SOURCE)
        return m_ptableFirst;
    return iTable == TABLE_MEMORY ? static_cast<QTableWidget*>(m_ptableSecond) : nullptr;
}

void AddrBookFieldMapDlg::SetRowCount(int iTable, int iRows)
{
    if (QTableWidget* ptable = table(iTable))
        ptable->setRowCount(iRows);
}

void AddrBookFieldMapDlg::SetRowHeight(int iTable, int iHeight)
{
    QTableWidget* ptable = table(iTable);
    if (ptable == nullptr)
        return;
    if (iHeight < ptable->verticalHeader()->minimumSectionSize())
        ptable->verticalHeader()->setMinimumSectionSize(iHeight);
    fitFontToRows(ptable, iHeight);
    for (int iRow = 0; iRow < ptable->rowCount(); ++iRow)
        ptable->setRowHeight(iRow, iHeight);
}

// A cell without text stands for nothing: it can be neither selected nor mapped.
void AddrBookFieldMapDlg::constructTableWidgetItem(QTableWidget* ptable, int iRow, int iColumn, const QString& strText)
{
    if (ptable == nullptr)
        return;
    QTableWidgetItem* pitem = new (std::nothrow) QTableWidgetItem(strText);
    if (pitem == nullptr)
        return;
    pitem->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
    if (strText.isEmpty())
        pitem->setFlags(pitem->flags() & ~(Qt::ItemIsEditable | Qt::ItemIsEnabled));
    ptable->setItem(iRow, iColumn, pitem);
}

void AddrBookFieldMapDlg::SetFirstTableInfo(QList<QString> lstTitles)
{
    if (m_ptableFirst == nullptr)
        return;
    for (int iRow = 0; iRow < lstTitles.size(); ++iRow) {
        if (iRow >= m_ptableFirst->rowCount())
            m_ptableFirst->insertRow(iRow);
        constructTableWidgetItem(m_ptableFirst, iRow, COLUMN_FIELD, lstTitles.at(iRow));
    }
    for (int iRow = lstTitles.size(); iRow < m_ptableFirst->rowCount(); ++iRow)
        constructTableWidgetItem(m_ptableFirst, iRow, COLUMN_FIELD, unused());
}

void AddrBookFieldMapDlg::SetSecondTableInfo(QList<QString> lstTitles, _ORVA_EN_PHONEBOOK_MEMORY enMemory)
{
    if (m_ptableSecond == nullptr)
        return;
    QList<QString> lstLabels;
    QList<AddrBookField> lstFields;
    if (AddrBookLogic* pLogic = AddrBookLogic::Instance()) {
        pLogic->GetFieldNames(enMemory, lstLabels);
        pLogic->GetAllFields(lstFields, enMemory);
    }
    const int iFieldCount = qMin(lstLabels.size(), lstFields.size());
    for (int iRow = 0; iRow < iFieldCount; ++iRow) {
        if (iRow >= m_ptableSecond->rowCount())
            m_ptableSecond->insertRow(iRow);
        const QString strLabel = addrBookTr(lstLabels.at(iRow));
        constructTableWidgetItem(m_ptableSecond, iRow, COLUMN_FIELD, strLabel);
        constructTableWidgetItem(m_ptableSecond, iRow, COLUMN_MAPPED,
                                 titleOfField(lstTitles, strLabel, lstFields.at(iRow).strName));
    }
    for (int iRow = iFieldCount; iRow < m_ptableSecond->rowCount(); ++iRow) {
        constructTableWidgetItem(m_ptableSecond, iRow, COLUMN_FIELD, unused());
        constructTableWidgetItem(m_ptableSecond, iRow, COLUMN_MAPPED, unused());
    }
}

int AddrBookFieldMapDlg::Exec()
{
    return m_pExtendDialog != nullptr ? m_pExtendDialog->exec() : -1;
}

QList<QString> AddrBookFieldMapDlg::GetFieldMapData() const
{
    return m_listFieldMapData;
}

// A press on a source column: the other table may take a drop from now on.
void AddrBookFieldMapDlg::OnItemSelectionChanged()
{
    if (m_ptableSecond == nullptr)
        return;
    m_ptableSecond->setCurrentCell(0, 0, QItemSelectionModel::Clear);
    m_ptableSecond->setMouseTracking(true);
    m_ptableSecond->setAcceptDrops(true);
}

// The first movement after a drop places its text; without a drop, the table needs a new press first.
void AddrBookFieldMapDlg::OnCellEntered(int iRow, int iColumn)
{
    if (m_ptableSecond == nullptr)
        return;
    m_ptableSecond->setMouseTracking(false);
    m_ptableSecond->setAcceptDrops(false);
    if (m_ptableSecond->m_strDropText.isEmpty())
        return;
    if (QTableWidgetItem* pitem = m_ptableSecond->takeItem(iRow, COLUMN_MAPPED)) {
        if (pitem->flags() & Qt::ItemIsEditable)
            pitem->setText(m_ptableSecond->m_strDropText);
        m_ptableSecond->setItem(iRow, COLUMN_MAPPED, pitem);
    }
    m_ptableSecond->setCurrentCell(iRow, iColumn);
    m_ptableSecond->m_strDropText = QLatin1String("");
    m_ptableSecond->setFocus();
}

void AddrBookFieldMapDlg::OnButtonClickedOK()
{
    m_listFieldMapData.clear();
    if (m_ptableSecond != nullptr) {
        for (int iRow = 0; iRow < m_ptableSecond->rowCount(); ++iRow) {
            if (const QTableWidgetItem* pitem = m_ptableSecond->item(iRow, COLUMN_MAPPED))
                m_listFieldMapData.append(pitem->text());
        }
    }
    if (m_pExtendDialog == nullptr)
        return;
    m_pExtendDialog->close();
    m_pExtendDialog->accept();
}

void AddrBookFieldMapDlg::OnButtonClickedCancel()
{
    m_listFieldMapData.clear();
    if (m_pExtendDialog == nullptr)
        return;
    m_pExtendDialog->reject();
    m_pExtendDialog->close();
}

void AddrBookFieldMapDlg::clearFirstTable()
{
    clearItems(m_ptableFirst);
}

void AddrBookFieldMapDlg::clearSecondTable()
{
    clearItems(m_ptableSecond);
}
