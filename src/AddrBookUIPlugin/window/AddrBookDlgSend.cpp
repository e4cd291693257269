#include <QStringList>

#include "dialogs/ChoosePhoneNumber.h"
#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IMMSUIPlugin.h"
#include "linkhand/plugin/IPluginContainer.h"
#include "linkhand/plugin/ISMSUIService.h"
#include "logic/AddrBookLogic.h"
#include "logic/Log.h"
#include "logic/Texts.h"
#include "widgets/AddrBookTableWidget.h"
#include "window/AddrBookDlg.h"
#include "window/TableRows.h"

namespace
{
// The sibling that sends, as the interface that it serves; null if it is not there. Leaves the container that was
// asked.
template <class Interface>
Interface* sibling(IPluginContainer*& pContainer, const char* szId, int iKind)
{
    pContainer = Startup::GetPluginContainer();
    if (pContainer == nullptr) {
        ADDRBOOK_LOG_UNTIMED("Plugin container is null ");
        return nullptr;
    }
    QObject* pPlugin = pContainer->GetPlugin(QLatin1String(szId), iKind);
    if (pPlugin == nullptr)
        ADDRBOOK_LOG_UNTIMED("IBase plugin is null ");
    return qobject_cast<Interface*>(pPlugin);
}
} // namespace

void AddrBookDlg::OnButtonClickedSendSMS()
{
    if (isOnline() && tableSelectionStatus() != ADDRBOOK_ENABLE_TABLE_NONE)
        sendSMS(ADDRBOOK_SEND_SINGLE);
}

void AddrBookDlg::OnButtonClickedSendMMS()
{
    if (isOnline() && tableSelectionStatus() != ADDRBOOK_ENABLE_TABLE_NONE)
        sendMMS(ADDRBOOK_SEND_SINGLE);
}

void AddrBookDlg::OnButtonClickedSendGroupSMS()
{
    if (isOnline())
        sendSMS(ADDRBOOK_SEND_GROUP);
}

void AddrBookDlg::OnButtonClickedSendGroupMMS()
{
    if (isOnline())
        sendMMS(ADDRBOOK_SEND_GROUP);
}

void AddrBookDlg::sendSMS(ADDRBOOK_SEND_TYPE enType)
{
    ISMSUIService* pService = sibling<ISMSUIService>(m_pPluginContainer, LINKHAND_SMS_ID, LINKHAND_SMS_KIND);
    if (pService != nullptr && m_ptableContacts != nullptr)
        pService->SendMessage(enType == ADDRBOOK_SEND_GROUP ? sendMultipleSMS() : sendSingleSMS(), QLatin1String(""),
                              qobject_cast<QWidget*>(parent()));
}

void AddrBookDlg::sendMMS(ADDRBOOK_SEND_TYPE enType)
{
    IMMSUIPlugin* pPlugin = sibling<IMMSUIPlugin>(m_pPluginContainer, LINKHAND_MMS_ID, LINKHAND_MMS_KIND);
    if (pPlugin != nullptr && m_ptableContacts != nullptr)
        pPlugin->SendMessage(enType == ADDRBOOK_SEND_GROUP ? sendMultipleSMS() : sendSingleSMS());
}

// The first field behind the name is the number; further numbers of a contact are not sent to.
QString AddrBookDlg::sendSingleSMS() const
{
    QStringList lstNumbers;
    if (m_ptableContacts == nullptr)
        return QLatin1String("");
    foreach (int iRow, TableRows::selected(m_ptableContacts)) {
        const QString strNumber = TableRows::text(m_ptableContacts, iRow, 1);
        if (!strNumber.isEmpty())
            lstNumbers.append(strNumber);
    }
    return lstNumbers.join(QLatin1String(";"));
}

// From the SDK and not from the table: contacts that a search hides count.
QString AddrBookDlg::sendMultipleSMS() const
{
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = -1;
    getGroupId(enMemory, iGroupId);
    if (m_pAddrBookLogic == nullptr)
        return QLatin1String("");
    QList<AddrBookRecord> lstRecords;
    QList<AddrBookField> lstFields;
    m_pAddrBookLogic->GetRecordInGroup(lstRecords, enMemory, iGroupId);
    m_pAddrBookLogic->GetAllFields(lstFields, enMemory);
    int iIndex = 0;
    while (iIndex < lstFields.size() && lstFields.at(iIndex).strType != QLatin1String("Mobile"))
        ++iIndex;
    QStringList lstNumbers;
    if (iIndex == lstFields.size())
        return QLatin1String("");
    foreach (const AddrBookRecord& record, lstRecords) {
        if (record.lstValues.size() > iIndex && !record.lstValues.at(iIndex).isEmpty())
            lstNumbers.append(record.lstValues.at(iIndex));
    }
    return lstNumbers.join(QLatin1String(";"));
}

void AddrBookDlg::OnButtonClickedCall()
{
    if (!isOnline() || tableSelectionStatus() != ADDRBOOK_ENABLE_TABLE_SINGLE)
        return;
    // The one row selected need not be the current one: Ctrl takes a row out of the selection and leaves it current.
    TableRows::makeCurrent(m_ptableContacts, m_ptableContacts->selectedItems().value(0));
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    getGroupId(enMemory, iGroupId);
    int iFields = 0;
    getColumnCount(enMemory, iFields);
    if (m_pdlgChoosePhone == nullptr)
        m_pdlgChoosePhone = new (std::nothrow) ChoosePhoneNumber;
    if (m_pdlgChoosePhone == nullptr || m_ptableContacts == nullptr)
        return;

    // Columns by position: mobile, business and home number.
    static const char* const LABELS[] = {"ID_STR_MOBILE_PHONE", "ID_STR_BUSINESS_PHONE", "ID_STR_HOME_PHONE"};
    const int iRow = m_ptableContacts->currentRow();
    const int iLastColumn = iFields > 2 ? 3 : 1;
    QStringList lstNumbers;
    QStringList lstLabels;
    for (int iColumn = 1; iColumn <= iLastColumn; ++iColumn) {
        const QString strNumber = TableRows::text(m_ptableContacts, iRow, iColumn);
        if (strNumber.isEmpty())
            continue;
        lstNumbers.append(strNumber);
        lstLabels.append(tr(QLatin1String(LABELS[iColumn - 1])));
    }
    if (lstNumbers.size() > 1)
        m_pdlgChoosePhone->ShowPhoneNumDlg(this, lstNumbers, lstLabels);
    else if (lstNumbers.size() == 1)
        CommonUtils::MakeCall(lstNumbers.at(0), UI_CALL_VOICE);
}
