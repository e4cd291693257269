#include "dialogs/AddrBookEditDlg.h"

#include <QRegExp>
#include <new>

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/FormFont.h"

namespace
{
const int DIALOG_WIDTH = 410;
const int CAPTION_WIDTH = 155;
const int DEVICE_FORM_HEIGHT = 145;
const int PLAIN_FORM_HEIGHT = 364;
const int BUTTON_SPACING = 9;

bool equalKeys(const QString& strKey, const char* pszOther)
{
    return strKey.compare(QLatin1String(pszOther), Qt::CaseInsensitive) == 0;
}
} // namespace

AddrBookEditDlg::AddrBookEditDlg(QWidget* pParent)
    : QWidget(pParent),
      m_iRemarksMaxLength(0),
      m_iMobileIndex(1),
      m_record(),
      m_enMemory(PB_MEM_LOCAL),
      m_strPrevName(QLatin1String("")),
      m_enOperation(ADDRBOOK_OP_NONE),
      m_iGroupId(-1),
      m_strPrevRemarks(QLatin1String(""))
{
}

AddrBookEditDlg::~AddrBookEditDlg()
{
    delete m_pNameLabel;
    delete m_pMobileLabel;
    delete m_pRemarksLabel;
    delete m_pNameEdit;
    delete m_pMobileEdit;
    delete m_pRemarksEdit;
    delete m_pNameValidator;
    delete m_pMobileValidator;
    for (int i = 0; i < m_lstFieldItems.size(); ++i) {
        delete m_lstFieldItems.at(i).pLineEdit;
        delete m_lstFieldItems.at(i).pLabel;
        delete m_lstFieldItems.at(i).pValidator;
    }
    delete m_pOkButton;
    delete m_pCancelButton;
    delete m_pButtonLayout;
    delete m_pGridLayout;
    delete m_pMainLayout;
    delete m_pMainWidget;
    delete m_pExtendDialog;
}

void AddrBookEditDlg::InitDialog(QWidget* pParent, int iGroupId, _ORVA_EN_PHONEBOOK_MEMORY enType,
                                 _ADDRBOOK_OPERATION_TYPE enOperation)
{
    ADDRBOOK_LOG_ENTER();
    m_pMainWidget = new (std::nothrow) QWidget;
    m_pExtendDialog = new (std::nothrow) AddrBookNewContactExtendDialog(pParent, Qt::WindowCloseButtonHint);
    if (!m_pMainWidget || !m_pExtendDialog || !createCommonUIElements(enType))
        return;

    m_enOperation = enOperation;
    m_iGroupId = iGroupId;
    m_pExtendDialog->AddMainWidget(m_pMainWidget);
    m_pMainWidget->setObjectName(QLatin1String("AddrBookUIPlugin_New_Edit_Dlg"));
    m_pExtendDialog->setWindowModality(Qt::WindowModal);
    m_pExtendDialog->setFixedSize(DIALOG_WIDTH, getDialogHeight(enType));
    m_pExtendDialog->ExtendDialog::setWindowFlags(Qt::CustomizeWindowHint | Qt::Window | Qt::WindowTitleHint |
                                                  Qt::WindowCloseButtonHint);
    m_pGridLayout->setColumnMinimumWidth(0, CAPTION_WIDTH);

    m_lstFieldNames.clear();
    if (!getFieldInfoCreateFields(enType))
        return;

    layOutButtons();
    setTabOrders();
    fitFontToForm(m_pMainWidget);
    m_pOkButton->setEnabled(false);
    CommonUtils::MoveCentre(m_pExtendDialog);
    m_record.iID = -1;
    if (m_pNameEdit) {
        m_pNameEdit->deselect();
        m_pNameEdit->end(false);
    }
    ADDRBOOK_LOG_EXIT();
}

bool AddrBookEditDlg::createCommonUIElements(_ORVA_EN_PHONEBOOK_MEMORY enType)
{
    m_enMemory = enType;
    m_pMainLayout = new (std::nothrow) QVBoxLayout(m_pMainWidget);
    m_pGridLayout = new (std::nothrow) QGridLayout;
    m_pOkButton = new (std::nothrow) QPushButton(addrBookTr(QLatin1String("IDS_BUTTON_OK")), m_pMainWidget);
    m_pCancelButton = new (std::nothrow) QPushButton(addrBookTr(QLatin1String("IDS_BUTTON_CANCEL")), m_pMainWidget);
    m_pButtonLayout = new (std::nothrow) QHBoxLayout;
    if (!m_pMainLayout || !m_pGridLayout || !m_pOkButton || !m_pCancelButton || !m_pButtonLayout) {
        ADDRBOOK_LOG_LINE("Fail Exit:either of the objects creation failed");
        return false;
    }

    // Both buttons bear the name of OK: style sheets of the host count on it.
    m_pOkButton->setObjectName(QLatin1String("AddrBookUIPlugin_New_Edit_Dlg_OK_Button"));
    m_pCancelButton->setObjectName(QLatin1String("AddrBookUIPlugin_New_Edit_Dlg_OK_Button"));
    return true;
}

// In pixels.
int AddrBookEditDlg::getDialogHeight(_ORVA_EN_PHONEBOOK_MEMORY enType)
{
    if (enType != PB_MEM_LOCAL)
        return DEVICE_FORM_HEIGHT;

    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return PLAIN_FORM_HEIGHT;

    QList<AddrBookField> lstFields;
    pLogic->GetAllFields(lstFields, enType);
    int iHeight = 86;
    for (int i = 0; i < lstFields.size(); ++i)
        iHeight += lstFields.at(i).strType == QLatin1String("Remaik") ? 128 : 24;
    return iHeight + 30;
}

bool AddrBookEditDlg::getFieldInfoCreateFields(_ORVA_EN_PHONEBOOK_MEMORY enType)
{
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return false;

    QList<AddrBookField> lstFields;
    pLogic->GetAllFields(lstFields, enType);
    pLogic->GetFieldNames(enType, m_lstFieldNames);

    int iRow = 0;
    for (int i = 0; i < lstFields.size(); ++i) {
        const AddrBookField& field = lstFields.at(i);
        if (field.strType == QLatin1String("Mobile")) {
            m_iMobileIndex = i;
        } else if (field.strType == QLatin1String("Number")) {
            m_lstNumberIndexes.append(i);
            m_lstNumberLabels.append(field.strLangID);
        }
        if (!createFields(field, m_lstFieldNames.value(i), iRow))
            return false;
    }
    const QList<NewContactLineEdit*> lstEdits = m_pMainWidget->findChildren<NewContactLineEdit*>();
    for (NewContactLineEdit* pEdit : lstEdits)
        pEdit->m_pNote = m_pRemarksEdit;
    return true;
}

bool AddrBookEditDlg::createFields(const AddrBookField& field, const QString& strLabelId, int& iRow)
{
    if (equalKeys(field.strName, "Name"))
        return createNameField(field, strLabelId, iRow);
    if (equalKeys(field.strName, "Mobile"))
        return createMobNumField(field, strLabelId, iRow);
    if (field.strName == QLatin1String("remark"))
        return createRemarksField(field, strLabelId, iRow);
    return createConfigEditField(field, strLabelId, iRow);
}

bool AddrBookEditDlg::createNameField(const AddrBookField& field, const QString& strLabelId, int& iRow)
{
    m_pNameLabel = createCaption(strLabelId);
    m_pNameEdit = createLineEdit(field);
    if (!m_pNameLabel || !m_pNameEdit)
        return false;

    connect(m_pNameEdit, SIGNAL(textChanged(QString)), this, SLOT(OnTextChangedInAnyField(QString)));
    if (m_enMemory == PB_MEM_SIM)
        connect(m_pNameEdit, SIGNAL(textChanged(QString)), this, SLOT(OnNameTextChanged(QString)));
    addRow(m_pNameLabel, m_pNameEdit, iRow);
    return true;
}

bool AddrBookEditDlg::createMobNumField(const AddrBookField& field, const QString& strLabelId, int& iRow)
{
    m_pMobileLabel = createCaption(strLabelId);
    m_pMobileEdit = createLineEdit(field);
    if (!m_pMobileLabel || !m_pMobileEdit)
        return false;

    m_pMobileEdit->m_bNumberKeysOnly = true;
    connect(m_pMobileEdit, SIGNAL(textChanged(QString)), this, SLOT(OnTextChangedInAnyField(QString)));
    addRow(m_pMobileLabel, m_pMobileEdit, iRow);
    return true;
}

bool AddrBookEditDlg::createRemarksField(const AddrBookField& field, const QString& strLabelId, int& iRow)
{
    m_pRemarksLabel = createCaption(strLabelId);
    m_pRemarksEdit = new (std::nothrow) NewContactTextEdit(m_pMainWidget);
    if (!m_pRemarksLabel || !m_pRemarksEdit)
        return false;

    m_iRemarksMaxLength = field.iMaxLength;
    m_pRemarksEdit->m_field = field;
    m_pRemarksEdit->setContextMenuPolicy(Qt::NoContextMenu);
    m_pRemarksEdit->setTabChangesFocus(true);
    m_pRemarksEdit->setAcceptRichText(false);
    m_pRemarksLabel->setBuddy(m_pRemarksEdit);
    connect(m_pRemarksEdit, SIGNAL(textChanged()), this, SLOT(OnTextChanged()));
    m_pGridLayout->addWidget(m_pRemarksLabel, iRow++, 0);
    m_pGridLayout->addWidget(m_pRemarksEdit, iRow++, 0, 1, 2);
    return true;
}

bool AddrBookEditDlg::createConfigEditField(const AddrBookField& field, const QString& strLabelId, int& iRow)
{
    _AddrBookFieldItem item;
    item.strType = field.strType;
    item.pLabel = createCaption(strLabelId);
    item.pLineEdit = createLineEdit(field);
    if (!item.pLabel || !item.pLineEdit) {
        delete item.pLabel;
        delete item.pLineEdit;
        return false;
    }

    connect(item.pLineEdit, SIGNAL(textChanged(QString)), this, SLOT(OnTextChangedInAnyField(QString)));
    addRow(item.pLabel, item.pLineEdit, iRow);
    m_lstFieldItems.append(item);
    return true;
}

QLabel* AddrBookEditDlg::createCaption(const QString& strLabelId)
{
    return new (std::nothrow) QLabel(addrBookTr(strLabelId), m_pMainWidget);
}

NewContactLineEdit* AddrBookEditDlg::createLineEdit(const AddrBookField& field)
{
    NewContactLineEdit* pEdit = new (std::nothrow) NewContactLineEdit(m_pMainWidget);
    if (pEdit != nullptr) {
        pEdit->m_field = field;
        pEdit->setMaxLength(field.iMaxLength);
        pEdit->setContextMenuPolicy(Qt::NoContextMenu);
    }
    return pEdit;
}

void AddrBookEditDlg::addRow(QLabel* pLabel, QWidget* pEdit, int& iRow)
{
    pLabel->setBuddy(pEdit);
    m_pGridLayout->addWidget(pLabel, iRow, 0);
    m_pGridLayout->addWidget(pEdit, iRow, 1);
    ++iRow;
}

void AddrBookEditDlg::layOutButtons()
{
    m_pMainLayout->addLayout(m_pGridLayout);
    connect(m_pOkButton, SIGNAL(clicked()), this, SLOT(OnButtonClickedOK()));
    connect(m_pCancelButton, SIGNAL(clicked()), this, SLOT(OnButtonClickedCancel()));
    m_pButtonLayout->addWidget(m_pOkButton);
    m_pButtonLayout->addWidget(m_pCancelButton);
    m_pButtonLayout->setAlignment(Qt::AlignRight);
    m_pMainLayout->addSpacing(BUTTON_SPACING);
    m_pMainLayout->addLayout(m_pButtonLayout);
    m_pOkButton->setDefault(true);
}

// Tab goes down the form and then to the buttons, which were made first. The form opens in its first input.
void AddrBookEditDlg::setTabOrders()
{
    QWidget* pFirst = nullptr;
    QWidget* pPrevious = nullptr;
    for (int iRow = 0; iRow < m_pGridLayout->rowCount(); ++iRow) {
        for (int iColumn = 0; iColumn < m_pGridLayout->columnCount(); ++iColumn) {
            QLayoutItem* pitem = m_pGridLayout->itemAtPosition(iRow, iColumn);
            QWidget* pWidget = pitem != nullptr ? pitem->widget() : nullptr;
            if (pWidget == nullptr || pWidget == pPrevious || pWidget->focusPolicy() == Qt::NoFocus)
                continue;
            if (pPrevious != nullptr)
                QWidget::setTabOrder(pPrevious, pWidget);
            else
                pFirst = pWidget;
            pPrevious = pWidget;
        }
    }
    if (pPrevious != nullptr)
        QWidget::setTabOrder(pPrevious, m_pOkButton);
    QWidget::setTabOrder(m_pOkButton, m_pCancelButton);
    if (pFirst != nullptr)
        pFirst->setFocus();
}

void AddrBookEditDlg::setRegEx()
{
    if (m_pNameEdit) {
        delete m_pNameValidator;
        m_pNameValidator = createValidator(m_pNameEdit);
    }
    if (m_pMobileEdit) {
        delete m_pMobileValidator;
        m_pMobileValidator = createValidator(m_pMobileEdit);
    }
    for (int i = 0; i < m_lstFieldItems.size(); ++i) {
        _AddrBookFieldItem& item = m_lstFieldItems[i];
        if (item.pLineEdit) {
            delete item.pValidator;
            item.pValidator = createValidator(item.pLineEdit);
        }
    }
}

// Null for a field without a character rule.
QRegExpValidator* AddrBookEditDlg::createValidator(NewContactLineEdit* pEdit)
{
    const AddrBookField& field = pEdit->m_field;
    const QString strPattern =
        getQRegExpStr(field.strIncludeChars, field.strExcludeChars, QString::number(field.iMaxLength));
    const QRegExp regExp(strPattern, Qt::CaseSensitive, QRegExp::RegExp);
    if (field.strIncludeChars == QLatin1String("null") && field.strExcludeChars == QLatin1String("null"))
        return nullptr;

    QRegExpValidator* pValidator = new (std::nothrow) QRegExpValidator(regExp, this);
    if (pValidator != nullptr)
        pEdit->setValidator(pValidator);
    return pValidator;
}

// The sets are written in the field list as the inside of a character class, and go in as they stand. A plus sign is
// taken in the first place alone, whatever the set says.
QString AddrBookEditDlg::getQRegExpStr(QString strInclude, QString strExclude, QString strMax)
{
    const QString strNull = QLatin1String("null");
    strInclude.remove(QLatin1Char('+'), Qt::CaseSensitive);

    QString strClass;
    if (strMax == QLatin1String("0")) {
        strClass = strNull;
    } else if (strInclude == strNull) {
        strClass = strExclude == strNull ? strNull : QLatin1Char('^') + strExclude;
    } else {
        if (strExclude != strNull) {
            for (int i = 0; i < strExclude.size(); ++i)
                strInclude.remove(strExclude.at(i), Qt::CaseSensitive);
        }
        strClass = strInclude;
    }
    return QLatin1String("[+]{0,1}[") + strClass + QLatin1String("]{0,") + strMax + QLatin1String("}");
}

void AddrBookEditDlg::getStringForRegExpr(int iLength, QString& strOut)
{
    strOut = QLatin1String("[+]{0,1}[0-9*#]{0,") + QString::number(iLength) + QLatin1String("}");
}

void AddrBookEditDlg::SetWindowTitle(QString strTitle)
{
    if (m_pExtendDialog)
        m_pExtendDialog->ExtendDialog::setWindowTitle(strTitle);
}

void AddrBookEditDlg::SetEditCotactDetails(AddrBookRecord record)
{
    m_record = record;
    int iItem = 0;
    for (int i = 0; i < m_lstFieldNames.size(); ++i) {
        const QString& strLabelId = m_lstFieldNames.at(i);
        const QString strValue = record.lstValues.value(i);
        if (strLabelId == QLatin1String("ID_STR_NAME") && m_pNameEdit) {
            m_pNameEdit->setText(strValue);
        } else if (strLabelId == QLatin1String("ID_STR_MOBILE_PHONE") && m_pMobileEdit) {
            m_pMobileEdit->setText(strValue);
        } else if (strLabelId == QLatin1String("ID_STR_NOTES") && m_pRemarksEdit) {
            m_pRemarksEdit->setPlainText(strValue);
        } else if (iItem < m_lstFieldItems.size()) {
            if (m_lstFieldItems.at(iItem).pLineEdit)
                m_lstFieldItems.at(iItem).pLineEdit->setText(strValue);
            ++iItem;
        }
    }
    if (m_pOkButton)
        m_pOkButton->setEnabled(false);
}

void AddrBookEditDlg::ConstructSaveContact(QList<QString>& lstValues, QString strNumber)
{
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr) {
        ADDRBOOK_LOG_LINE(": AddrBookLogicObject is NULL.");
        return;
    }

    QList<AddrBookField> lstFields;
    pLogic->GetAllFields(lstFields, PB_MEM_LOCAL);
    for (int i = 0; i < lstFields.size(); ++i)
        lstValues.append(lstFields.at(i).strType == QLatin1String("Mobile") ? strNumber : QString(QLatin1String("")));
}

int AddrBookEditDlg::Exec()
{
    if (!m_pExtendDialog)
        return -1;
    m_pExtendDialog->exec();
    return m_pExtendDialog ? m_pExtendDialog->m_iResult : -1;
}

AddrBookRecord AddrBookEditDlg::GetNewRecordInfo()
{
    return m_record;
}

void AddrBookEditDlg::SetLanguage() {}

QString AddrBookEditDlg::tr(QString strId)
{
    return addrBookTr(strId);
}
