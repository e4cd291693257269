#include "common/Phonebook.h"

#include <QList>
#include <QString>

#include "linkhand/core/Startup.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IAddrBookUIPlugin.h"
#include "shared/HostLink.h"

namespace
{

IAddrBookUIPlugin* service()
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    return pContainer == nullptr ? nullptr
                                 : qobject_cast<IAddrBookUIPlugin*>(pContainer->GetPlugin(
                                       QLatin1String(LINKHAND_ADDRBOOK_NAME), LINKHAND_ADDRBOOK_KIND));
}

} // namespace

bool Phonebook::Available()
{
    return service() != nullptr;
}

bool Phonebook::SelectNumbers(QStringList& lstNumbers)
{
    IAddrBookUIPlugin* pService = service();
    QList<QString> lstChoice = lstNumbers;
    // Many numbers, with check boxes.
    if (pService == nullptr || pService->OpenNumSelectDlg(true, FIELD_TYPE_DEFAULT, lstChoice) != 1) {
        return false;
    }
    // A number that stands in two groups comes twice.
    lstNumbers = QStringList(lstChoice);
    lstNumbers.removeDuplicates();
    return true;
}

void Phonebook::SaveNumber(const QString& strNumber, QWidget* pParent)
{
    IAddrBookUIPlugin* pService = service();
    if (pService != nullptr) {
        HostLink* pLink = HostLink::Instance();
        pService->SaveNumberToAddrBook(pLink == nullptr ? strNumber : pLink->CleanNumber(strNumber), pParent);
    }
}
