#include "app/NamedNotices.h"

#include "shared/HostContacts.h"
#include "text/HostText.h"
#include "window/StatusArea.h"

namespace
{

// The name with the number behind it, or the number alone.
QString whoHas(const QString& strNumber)
{
    HostContacts* const pContacts = HostContacts::Instance();
    const QString strName = pContacts == nullptr ? QString() : pContacts->NameOf(strNumber);
    return strName.isEmpty() ? strNumber : QString::fromLatin1("%1 (%2)").arg(strName, strNumber);
}

} // namespace

NamedNotices::NamedNotices(StatusArea& status) : m_status(status)
{
    if (HostContacts* const pContacts = HostContacts::Instance()) {
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnContactsRead()));
    }
}

void NamedNotices::Show(const NamedNotice& notice)
{
    const Shown shown = {notice, textOf(notice)};
    m_status.ShowNotice(shown.strText, notice.strAbout);
    HostContacts* const pContacts = HostContacts::Instance();
    if (pContacts != nullptr && !notice.strNumber.isEmpty()) {
        m_listShown.append(shown);
        pContacts->Read(true);
    }
}

void NamedNotices::OnContactsRead()
{
    foreach (const Shown& shown, m_listShown) {
        m_status.ReplaceNotice(shown.strText, textOf(shown.notice));
    }
    m_listShown.clear();
}

QString NamedNotices::textOf(const NamedNotice& notice)
{
    const QString strWho =
        notice.strNumber.isEmpty() ? HostText::Get("IDS_HOST_UNKNOWN_NUMBER") : whoHas(notice.strNumber);
    // Neither part may hold a place for the other.
    const QString strPattern = HostText::Get(notice.strId);
    const QString strText =
        strPattern.contains(QLatin1String("%2")) ? strPattern.arg(strWho, notice.strMore) : strPattern.arg(strWho);
    return notice.strDetail.isEmpty() ? strText : strText + QLatin1String(" (") + notice.strDetail + QLatin1Char(')');
}
