#include "dialogs/AddrBookEditDlg.h"

#include "linkhand/core/CommonUtils.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/Texts.h"

void AddrBookEditDlg::OnButtonClickedOK()
{
    ADDRBOOK_LOG_ENTER();
    if (m_enMemory == PB_MEM_LOCAL && !emailsPass())
        return;

    readRecordInfo();
    if (m_record.lstValues.isEmpty()) {
        showError(QLatin1String("IDS_UNSUCCESS"));
        return;
    }
    if (checkRepeatedNumber())
        return;
    if (saveContact() && m_pExtendDialog) {
        m_pExtendDialog->accept();
        m_pExtendDialog->m_iResult = AddrBookNewContactExtendDialog::Saved;
    }
    ADDRBOOK_LOG_EXIT();
}

void AddrBookEditDlg::OnButtonClickedCancel()
{
    if (!m_pExtendDialog)
        return;
    m_pExtendDialog->reject();
    m_pExtendDialog->QWidget::close();
    // The close has left its own result.
    m_pExtendDialog->m_iResult = AddrBookNewContactExtendDialog::Cancelled;
}

// Shows a box for the first address that does not pass.
bool AddrBookEditDlg::emailsPass()
{
    for (int i = 0; i < m_lstFieldItems.size(); ++i) {
        const _AddrBookFieldItem& item = m_lstFieldItems.at(i);
        if (item.strType != QLatin1String("Email") || !item.pLineEdit)
            continue;
        const int iResult = limitEmailAddress(item.pLineEdit->text());
        if (iResult == -1 || iResult == -2) {
            showError(QLatin1String(iResult == -1 ? "IDS_ILLEGAL_EMAIL" : "IDS_ILLEGAL_CHARACTER_EMAIL"));
            return false;
        }
    }
    return true;
}

int AddrBookEditDlg::limitEmailAddress(QString strEmail)
{
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    return pLogic != nullptr ? pLogic->IsValidEmail(strEmail) : -1;
}

void AddrBookEditDlg::showError(const QString& strTextId)
{
    showMessageOk(QMessageBox::Critical, m_pExtendDialog, QLatin1String("IDS_ERROR_CAPTION"), addrBookTr(strTextId));
}

// Leaves the values empty if any of them breaks its field's rule.
void AddrBookEditDlg::readRecordInfo()
{
    m_record.lstValues.clear();
    int iItem = 0;
    for (int i = 0; i < m_lstFieldNames.size(); ++i) {
        const QString& strLabelId = m_lstFieldNames.at(i);
        QString strText;
        const AddrBookField* pField = nullptr;
        if (strLabelId == QLatin1String("ID_STR_NAME") && m_pNameEdit) {
            strText = m_pNameEdit->text();
            pField = &m_pNameEdit->m_field;
        } else if (strLabelId == QLatin1String("ID_STR_MOBILE_PHONE") && m_pMobileEdit) {
            strText = m_pMobileEdit->text();
            pField = &m_pMobileEdit->m_field;
        } else if (strLabelId == QLatin1String("ID_STR_NOTES") && m_pRemarksEdit) {
            strText = m_pRemarksEdit->toPlainText();
            pField = &m_pRemarksEdit->m_field;
        } else if (iItem < m_lstFieldItems.size()) {
            const _AddrBookFieldItem& item = m_lstFieldItems.at(iItem++);
            if (!item.pLineEdit)
                continue;
            strText = item.pLineEdit->text();
            pField = &item.pLineEdit->m_field;
        } else {
            continue;
        }
        if (!checkSaveData(strText, pField->strIncludeChars, pField->strExcludeChars, pField->iMaxLength)) {
            m_record.lstValues.clear();
            return;
        }
        m_record.lstValues.append(strText);
    }
}

bool AddrBookEditDlg::checkSaveData(QString strText, QString strInclude, QString strExclude, int iMaxLength)
{
    if (strText.length() > iMaxLength)
        return false;

    const bool bInclude = strInclude != QLatin1String("null");
    const bool bExclude = strExclude != QLatin1String("null");
    if (bInclude && bExclude) {
        for (int i = 0; i < strExclude.size(); ++i)
            strInclude.remove(strExclude.at(i), Qt::CaseSensitive);
    }
    for (int i = 0; i < strText.size(); ++i) {
        if (bInclude ? !strInclude.contains(strText.at(i)) : bExclude && strExclude.contains(strText.at(i)))
            return false;
    }
    return true;
}

// True if the form must stay open. A memory that cannot be read counts as free of repeats.
bool AddrBookEditDlg::checkRepeatedNumber()
{
    bool bRepeated = false;
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr) {
        ADDRBOOK_LOG_LINE("Exit: Logic object is NULL");
        return bRepeated;
    }

    QList<AddrBookRecord> lstRecords;
    if (pLogic->GetRecordInGroup(lstRecords, m_enMemory, 0) != ADDRBOOK_OK) {
        ADDRBOOK_LOG_LINE("Exit: records are not read");
        return false;
    }
    QString strField;
    bRepeated = checkRepeatedNumber(lstRecords, strField);
    showInfoAlert(bRepeated, strField);
    return bRepeated;
}

bool AddrBookEditDlg::checkRepeatedNumber(QList<AddrBookRecord> lstRecords, QString& strField)
{
    // One list for all: its entries are exchanged, since a list of its own for each contact would cost more than the
    // comparison.
    QList<QString> lstOtherNumbers;
    for (int k = 0; m_enMemory == PB_MEM_LOCAL && k < m_lstNumberIndexes.size(); ++k)
        lstOtherNumbers.append(QString());
    for (int i = 0; i < lstRecords.size(); ++i) {
        const AddrBookRecord& other = lstRecords.at(i);
        if (other.iID == m_record.iID)
            continue;
        for (int k = 0; k < lstOtherNumbers.size(); ++k)
            lstOtherNumbers[k] = other.lstValues.value(m_lstNumberIndexes.at(k));
        if (checkPhoneNumber(other.lstValues.value(m_iMobileIndex), lstOtherNumbers, strField))
            return true;
    }
    return false;
}

// Compares this contact with one other. On a hit strField becomes the label of this contact's field.
bool AddrBookEditDlg::checkPhoneNumber(QString strOtherMobile, QList<QString>& lstOtherNumbers, QString& strField)
{
    const bool bLocal = m_enMemory == PB_MEM_LOCAL;
    const QString strMobile = m_record.lstValues.value(m_iMobileIndex);
    if (!strMobile.isEmpty() &&
        (strMobile == strOtherMobile || (bLocal && compareNumbers(strMobile, lstOtherNumbers)))) {
        strField = addrBookTr(QLatin1String("ID_STR_MOBILE_PHONE"));
        return true;
    }
    if (!bLocal)
        return false;

    const int iCount = qMin(lstOtherNumbers.size(), qMin(m_lstNumberIndexes.size(), m_lstNumberLabels.size()));
    for (int i = 0; i < iCount; ++i) {
        const QString strNumber = m_record.lstValues.value(m_lstNumberIndexes.at(i));
        if (!strNumber.isEmpty() && (strNumber == strOtherMobile || compareNumbers(strNumber, lstOtherNumbers))) {
            strField = addrBookTr(m_lstNumberLabels.at(i));
            return true;
        }
    }
    return false;
}

bool AddrBookEditDlg::compareNumbers(QString strNumber, QList<QString>& lstNumbers)
{
    return lstNumbers.contains(strNumber);
}

// The rule warns and does not forbid: OK takes the flag back, and the contact is saved.
void AddrBookEditDlg::showInfoAlert(bool& bRepeated, QString strField)
{
    if (!bRepeated) {
        ADDRBOOK_LOG_LINE("Exit: no number is repeated");
        return;
    }
    const int iAnswer = CommonUtils::ShowMessage(
        QMessageBox::Question, m_pExtendDialog, strField, addrBookTr(QLatin1String("IDS_STR_REPEARTEDNUMBER")),
        QLatin1String("IDS_OK"), QLatin1String("IDS_CANCEL"), QLatin1String(""), true, Qt::WindowCloseButtonHint,
        nullptr, QLatin1String(""), true);
    if (iAnswer == QMessageBox::Cancel)
        m_record.lstValues.clear();
    else if (iAnswer == QMessageBox::Ok)
        bRepeated = false;
}

bool AddrBookEditDlg::saveContact()
{
    AddrBookLogic* pLogic = AddrBookLogic::Instance();
    if (pLogic == nullptr)
        return false;

    if (m_enOperation == ADDRBOOK_OP_ADD) {
        int iRecordID = 0;
        int iResult = pLogic->AddRecord(m_enMemory, m_record.lstValues, iRecordID);
        if (iResult == ADDRBOOK_OK && iRecordID >= 1) {
            m_record.iID = iRecordID;
            if (m_enMemory == PB_MEM_LOCAL)
                iResult = pLogic->AddAddrToGroup(m_enMemory, iRecordID, m_iGroupId);
        }
        if (iResult != ADDRBOOK_OK) {
            showError(QLatin1String("IDS_UNSUCCESS"));
            return false;
        }
        m_record.iID = iRecordID;
    } else if (m_enOperation == ADDRBOOK_OP_EDIT) {
        if (pLogic->UpdateRecord(m_enMemory, m_record.iID, m_record.lstValues) != ADDRBOOK_OK) {
            showError(QLatin1String("IDS_UNSUCCESS"));
            return false;
        }
    }
    return true;
}
