#include "dialogs/ChoosePhoneNumber.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QVBoxLayout>

#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/FormFont.h"
#include "widgets/GridDelegate.h"
#include "widgets/RowFont.h"

namespace
{
enum { COLUMN_TYPE, COLUMN_VALUE, COLUMN_COUNT };

const int ROW_HEIGHT = 14;
const int MARGIN = 4; // leaves the two columns their width, so that no scroll bar is needed

QTableWidgetItem* newCell(const QString& strText)
{
    QTableWidgetItem* pitem = new (std::nothrow) QTableWidgetItem(strText);
    if (pitem != nullptr)
        pitem->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
    return pitem;
}
} // namespace

ChoosePhoneNumber::ChoosePhoneNumber(QObject* pParent)
    : QObject(pParent), m_pitemTypeHeader(nullptr), m_pitemValueHeader(nullptr)
{
}

ChoosePhoneNumber::~ChoosePhoneNumber()
{
    if (m_ptableNumbers != nullptr)
        delete m_pitemValueHeader;
    delete m_pbuttonOK.data();
    if (m_ptableNumbers != nullptr)
        delete m_pitemTypeHeader;
    delete m_ptableNumbers.data();
    delete m_pMainWidget.data();
    delete m_pExtendDialog.data();
}

// Makes window, content, table, headings and buttons; on failure what was made is gone again.
bool ChoosePhoneNumber::createParts(QWidget* pParent)
{
    m_pExtendDialog =
        new (std::nothrow) ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG);
    m_pMainWidget = new (std::nothrow) QWidget(pParent);
    m_ptableNumbers = m_pMainWidget == nullptr ? nullptr : new (std::nothrow) QTableWidget(m_pMainWidget);
    m_pbuttonOK = m_pMainWidget == nullptr ? nullptr : new (std::nothrow) QPushButton(m_pMainWidget);
    m_pitemTypeHeader = newCell(QString());
    m_pitemValueHeader = newCell(QString());
    if (m_pExtendDialog != nullptr && m_ptableNumbers != nullptr && m_pbuttonOK != nullptr &&
        m_pitemTypeHeader != nullptr && m_pitemValueHeader != nullptr) {
        m_ptableNumbers->setColumnCount(COLUMN_COUNT);
        m_ptableNumbers->setHorizontalHeaderItem(COLUMN_TYPE, m_pitemTypeHeader);
        m_ptableNumbers->setHorizontalHeaderItem(COLUMN_VALUE, m_pitemValueHeader);
        return true;
    }
    delete m_pitemTypeHeader;
    delete m_pitemValueHeader;
    m_pitemTypeHeader = nullptr;
    m_pitemValueHeader = nullptr;
    delete m_pMainWidget.data();
    delete m_pExtendDialog.data();
    return false;
}

void ChoosePhoneNumber::createPhoneNumDlg(QWidget* pParent)
{
    onCancelButtonClicked(); // a window still open would answer for the new one
    if (!createParts(pParent))
        return;
    m_pExtendDialog->setObjectName(QLatin1String("ChoosePhoneNumbere_ExtendedDlg"));
    m_pMainWidget->setObjectName(QLatin1String("ChoosePhoneNumber_WidgetMain"));
    m_ptableNumbers->setObjectName(QLatin1String("ChoosePhoneNumber_TableWidget"));
    m_pbuttonOK->setObjectName(QLatin1String("ChoosePhoneNumber_buttonOk"));
    setUpTable();
    layOutParts();
    changeLang();
    setUpWindow();
}

void ChoosePhoneNumber::setUpTable()
{
    m_ptableNumbers->horizontalHeader()->setTextElideMode(Qt::ElideRight);
    m_ptableNumbers->horizontalHeader()->setMinimumHeight(20);
    m_ptableNumbers->horizontalHeader()->setHighlightSections(false);
    m_ptableNumbers->setColumnWidth(COLUMN_TYPE, 140);
    m_ptableNumbers->setColumnWidth(COLUMN_VALUE, 140);
    m_ptableNumbers->clearContents();
    m_ptableNumbers->setRowCount(0);
    m_ptableNumbers->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_ptableNumbers->verticalHeader()->hide();
    m_ptableNumbers->verticalHeader()->setMinimumSectionSize(ROW_HEIGHT);
    fitFontToRows(m_ptableNumbers, ROW_HEIGHT);
    m_ptableNumbers->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_ptableNumbers->setTabKeyNavigation(false);
    m_ptableNumbers->setItemDelegate(new GridDelegate(m_ptableNumbers));
    m_ptableNumbers->setSelectionMode(QAbstractItemView::SingleSelection);
    m_ptableNumbers->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void ChoosePhoneNumber::layOutParts()
{
    QWidget* pwidgetButton = new QWidget(m_pMainWidget);
    pwidgetButton->setObjectName(QLatin1String("ChoosePhoneNumber_widgetButton"));
    QPushButton* pbuttonCancel = new QPushButton(m_pMainWidget);
    pbuttonCancel->setObjectName(QLatin1String("ChoosePhoneNumber_buttonCancel"));
    pbuttonCancel->setFocusPolicy(Qt::NoFocus);

    QHBoxLayout* playoutButton = new QHBoxLayout(pwidgetButton);
    playoutButton->setObjectName(QLatin1String("ChoosePhoneNumber_layoutButton"));
    playoutButton->setContentsMargins(0, 0, 0, 0);
    playoutButton->setAlignment(Qt::AlignRight);
    playoutButton->addWidget(m_pbuttonOK);
    playoutButton->addWidget(pbuttonCancel);

    QVBoxLayout* playoutMain = new QVBoxLayout(m_pMainWidget);
    playoutMain->setObjectName(QLatin1String("ChoosePhoneNumber_layoutMain"));
    playoutMain->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    playoutMain->addWidget(m_ptableNumbers);
    playoutMain->addWidget(pwidgetButton);

    connect(m_pbuttonOK, SIGNAL(clicked()), this, SLOT(onOkButtonClicked()));
    connect(pbuttonCancel, SIGNAL(clicked()), this, SLOT(onCancelButtonClicked()));
    connect(m_pExtendDialog, SIGNAL(rejected()), this, SLOT(onCancelButtonClicked()));
}

void ChoosePhoneNumber::setUpWindow()
{
    m_pExtendDialog->setAttribute(Qt::WA_DeleteOnClose);
    m_pExtendDialog->AddMainWidget(m_pMainWidget);
    m_pExtendDialog->setFixedSize(305, 225);
    fitFontToForm(m_pMainWidget);
    m_pExtendDialog->setWindowModality(Qt::WindowModal);
}

QPushButton* ChoosePhoneNumber::cancelButton() const
{
    if (m_pMainWidget == nullptr)
        return nullptr;
    return m_pMainWidget->findChild<QPushButton*>(QLatin1String("ChoosePhoneNumber_buttonCancel"));
}

void ChoosePhoneNumber::changeLang()
{
    if (m_ptableNumbers != nullptr) {
        m_pitemTypeHeader->setText(addrBookTr(QLatin1String("IDS_PHONE_TYPE")));
        m_pitemValueHeader->setText(addrBookTr(QLatin1String("IDS_PHONE_VALUE")));
        m_ptableNumbers->setAccessibleName(addrBookTr(QLatin1String("IDS_ADDR_NUMDLG_TITLE")));
    }
    if (m_pbuttonOK != nullptr)
        m_pbuttonOK->setText(addrBookTr(QLatin1String("IDS_BUTTON_OK")));
    if (QPushButton* pbuttonCancel = cancelButton())
        pbuttonCancel->setText(addrBookTr(QLatin1String("IDS_BUTTON_CANCEL")));
    if (m_pExtendDialog != nullptr)
        m_pExtendDialog->setWindowTitle(addrBookTr(QLatin1String("IDS_ADDR_NUMDLG_TITLE")));
}

void ChoosePhoneNumber::ShowPhoneNumDlg(QWidget* pParent, QStringList lstNumbers, QStringList lstTypes)
{
    ADDRBOOK_LOG_ENTER();
    createPhoneNumDlg(pParent);
    if (m_pExtendDialog == nullptr || m_ptableNumbers == nullptr)
        return;
    changeLang();
    m_ptableNumbers->clearContents();
    m_ptableNumbers->setRowCount(lstNumbers.size());
    for (int iRow = 0; iRow < lstNumbers.size(); ++iRow) {
        m_ptableNumbers->setItem(iRow, COLUMN_TYPE, newCell(lstTypes.value(iRow)));
        m_ptableNumbers->setItem(iRow, COLUMN_VALUE, newCell(lstNumbers.at(iRow)));
        m_ptableNumbers->setRowHeight(iRow, ROW_HEIGHT);
    }
    m_pbuttonOK->setFocus();
    m_ptableNumbers->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_ptableNumbers->setCurrentItem(m_ptableNumbers->item(0, COLUMN_TYPE));
    CommonUtils::MoveCentre(m_pExtendDialog);
    m_pExtendDialog->show();
    ADDRBOOK_LOG_EXIT();
}

// The window deletes itself from the event loop; until then its table can be read.
void ChoosePhoneNumber::onCancelButtonClicked()
{
    if (m_pExtendDialog != nullptr)
        m_pExtendDialog->close();
    m_pExtendDialog = nullptr;
}

void ChoosePhoneNumber::onOkButtonClicked()
{
    ADDRBOOK_LOG_CALLED();
    onCancelButtonClicked();
    const QTableWidgetItem* pitem =
        m_ptableNumbers == nullptr ? nullptr : m_ptableNumbers->item(m_ptableNumbers->currentRow(), COLUMN_VALUE);
    if (pitem == nullptr)
        return;
    if (CommonUtils::MakeCall(pitem->text(), UI_CALL_VOICE))
        return;
    CommonUtils::ShowMessage(QMessageBox::Information, m_pExtendDialog, addrBookTr(QLatin1String("IDS_PROMPT_CAPTION")),
                             addrBookTr(QLatin1String("IDS_STR_MAKECALLFAILED")), QLatin1String("IDS_OK"),
                             QLatin1String(""), QLatin1String(""), false, Qt::WindowCloseButtonHint, nullptr,
                             QLatin1String(""), true);
}
