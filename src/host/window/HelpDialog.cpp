#include "window/HelpDialog.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"
#include "linkhand/plugin/Codes.h"
#include "text/HostText.h"
#include "window/CopyKeys.h"
#include "window/PhonebookKeys.h"

namespace
{

struct Key {
    const char* pszKey; // as QKeySequence writes it, "|" between two for the same
    const char* pszText;
};

const Key GENERAL_KEYS[] = {
    {"F1", "IDS_HOST_HELP"},          {"Ctrl+,", "IDS_HOST_PAGE_Preferences"},  {"Tab|Shift+Tab", "IDS_HOST_HELP_TAB"},
    {"Space", "IDS_HOST_HELP_SPACE"}, {"Menu|Shift+F10", "IDS_HOST_HELP_MENU"}, {"Esc", "IDS_HOST_HELP_ESCAPE"},
    {"Ctrl+Q", "IDS_HOST_HELP_QUIT"}};

// Those of the phonebook that its language files do not name.
const Key CONTACT_KEYS[] = {{"Return", "IDS_HOST_HELP_EDIT"},
                            {"Ctrl+A", "IDS_HOST_HELP_ALL"},
                            {"Shift+Up|Shift+Down", "IDS_HOST_HELP_MORE"},
                            {"Ctrl+Space", "IDS_HOST_HELP_ONE_MORE"},
                            {CopyKeys::KEY, "IDS_HOST_HELP_COPY_TO"}};
const Key SEARCH_KEYS[] = {{"Down", "IDS_HOST_HELP_SEARCH_DOWN"}, {"Esc", "IDS_HOST_HELP_SEARCH_ESCAPE"}};
const Key CALL_KEYS[] = {{"Del", "IDS_HOST_HELP_CALL_DELETE"}};
const Key FINDING_KEYS[] = {{"Ctrl+C", "IDS_HOST_FINDINGS_COPY"}, {"Ctrl+S", "IDS_HOST_FINDINGS_SAVE"}};

QString row(const QString& strKey, const QString& strText)
{
    // A key's name stays in one line and reads from left to right.
    return QString::fromLatin1("<tr><td style=\"white-space:pre\" dir=\"ltr\"><b>%1</b>&nbsp;&nbsp;&nbsp;</td>"
                               "<td width=\"100%\">%2</td></tr>")
        .arg(QtCompat::htmlEscaped(strKey), QtCompat::htmlEscaped(strText));
}

QString nativeText(const QString& strKey)
{
    return QKeySequence(strKey).toString(QKeySequence::NativeText);
}

template <int N>
QString rows(const Key (&keys)[N])
{
    QString strHtml;
    for (const Key& key : keys) {
        QStringList lstKeys;
        foreach (const QString& strKey, QString::fromLatin1(key.pszKey).split(QLatin1Char('|'))) {
            lstKeys.append(nativeText(strKey));
        }
        strHtml += row(lstKeys.join(QLatin1String(" / ")), HostText::Get(key.pszText));
    }
    return strHtml;
}

QString phonebookRow(const char* pszId)
{
    QString strText;
    QKeySequence key;
    const bool bKey = Change::tr(QLatin1String(pszId), QLatin1String(LINKHAND_ADDRBOOK_NAME), strText, key);
    return bKey ? row(key.toString(QKeySequence::NativeText), strText) : QString();
}

template <int N>
QString rows(const char* const (&ids)[N])
{
    QString strHtml;
    for (const char* pszId : ids) {
        strHtml += phonebookRow(pszId);
    }
    return strHtml;
}

QString section(const char* pszTitle, const QString& strRows)
{
    return QString::fromLatin1("<h3>%1</h3><table cellspacing=\"2\">%2</table>")
        .arg(QtCompat::htmlEscaped(HostText::Get(pszTitle)), strRows);
}

QString allKeys(const QStringList& lstPages)
{
    QString strPages;
    for (int i = 0; i < lstPages.size(); ++i) {
        strPages += row(nativeText(QString::fromLatin1("Alt+%1").arg(i + 1)), lstPages.at(i));
    }
    return section("IDS_HOST_HELP_GENERAL", rows(GENERAL_KEYS)) + section("IDS_HOST_HELP_PAGES", strPages) +
           section("IDS_HOST_HELP_CONTACTS", rows(PhonebookKeys::CONTACT_IDS) + rows(CONTACT_KEYS)) +
           section("IDS_HOST_HELP_GROUPS", rows(PhonebookKeys::GROUP_IDS)) +
           section("IDS_HOST_HELP_SEARCH", phonebookRow(PhonebookKeys::SEARCH_ID) + rows(SEARCH_KEYS)) +
           section("IDS_HOST_PAGE_VoiceCallPlugin", rows(CALL_KEYS)) + section("IDS_HOST_FINDINGS", rows(FINDING_KEYS));
}

} // namespace

HelpDialog::HelpDialog(const QStringList& lstPages, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG)
{
    setObjectName(QLatin1String("linkhand_Help"));
    setWindowTitle(HostText::Get("IDS_HOST_HELP"));
    QWidget* const pContent = new QWidget;
    QTextBrowser* const pKeys = new QTextBrowser(pContent);
    pKeys->setObjectName(QLatin1String("linkhand_Help_keys"));
    pKeys->setAccessibleName(HostText::Get("IDS_HOST_HELP"));
    pKeys->setHtml(allKeys(lstPages));
    QPushButton* const pClose = new QPushButton(HostText::Get("IDS_HOST_CLOSE"), pContent);
    pClose->setObjectName(QLatin1String("linkhand_Help_close"));
    pClose->setDefault(true);
    connect(pClose, SIGNAL(clicked()), this, SLOT(accept()));

    QHBoxLayout* const pButtons = new QHBoxLayout;
    pButtons->addStretch(1);
    pButtons->addWidget(pClose);
    QVBoxLayout* const pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(pKeys, 1);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(440, 400);
    AddMainWidget(pContent);
}
