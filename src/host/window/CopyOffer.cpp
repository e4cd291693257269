#include "window/CopyOffer.h"

#include <QLocale>

#include "device/SimulatedContacts.h"
#include "linkhand/core/CommonUtils.h"
#include "text/HostText.h"

namespace
{

int show(QMessageBox::Icon enIcon, QWidget* pParent, const QString& strText, const char* pszFirst,
         const char* pszSecond, const char* pszThird)
{
    return CommonUtils::ShowMessage(enIcon, pParent, HostText::Get("IDS_HOST_TITLE"), strText, QLatin1String(pszFirst),
                                    QLatin1String(pszSecond), QLatin1String(pszThird), true, Qt::WindowCloseButtonHint,
                                    nullptr, QString(), true);
}

} // namespace

bool CopyOffer::Settle(QWidget* pParent)
{
    const int iMissing = SimulatedContacts::CountMissing();
    if (iMissing == 0) {
        return true;
    }
    const int iAnswer =
        show(QMessageBox::Question, pParent, HostText::Get("IDS_HOST_COPY_OFFER").arg(QLocale().toString(iMissing)),
             "IDS_HOST_COPY_TO_PC", "IDS_HOST_COPY_NOT", "IDS_CANCEL");
    if (iAnswer == QMessageBox::No) {
        return true;
    }
    if (iAnswer != QMessageBox::Ok) {
        return false;
    }
    if (!SimulatedContacts::CopyToPc()) {
        show(QMessageBox::Critical, pParent, HostText::Get("IDS_HOST_COPY_FAILED"), "IDS_OK", "", "");
        return false;
    }
    return true;
}
