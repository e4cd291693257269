#include "app/Elsewhere.h"

#include <QApplication>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstdio>

#include "app/CommandLine.h"
#include "app/Services.h"
#include "linkhand/core/CommonUtils.h"
#include "settings/DataFolder.h"
#include "settings/HostSettings.h"
#include "single/SingleInstance.h"
#include "text/HostText.h"
#include "text/LanguageCatalog.h"

namespace
{

// Null for what only a command line asks for, and reads.
const char* textIdOf(SingleInstance::Outcome enOutcome)
{
    return enOutcome == SingleInstance::NO_ANSWER  ? "IDS_HOST_ELSEWHERE_NO_ANSWER"
           : enOutcome == SingleInstance::FOREIGN  ? "IDS_HOST_ELSEWHERE_FOREIGN"
           : enOutcome == SingleInstance::TOO_MUCH ? "IDS_HOST_ELSEWHERE_TOO_MUCH"
                                                   : nullptr;
}

// Qt 4 has only the one that shows something.
bool hasDisplay()
{
    const QString strPlatform = qApp->property("platformName").toString();
    return strPlatform != QLatin1String("offscreen") && strPlatform != QLatin1String("minimal");
}

// Whoever started it from a menu or a link sees no error channel. In the user's language, of which nothing else has
// been made yet.
void show(const char* pszTextId)
{
    Services services(QCoreApplication::applicationDirPath(), DataFolder::SettingsFile());
    const QString strChosen = HostSettings(services.SettingsFile()).Language();
    const LanguageCatalog languages(services.LanguagesPath());
    services.SetLanguage(languages.BestFor(strChosen.isEmpty() ? QLocale::system().name() : strChosen));
    services.Publish();
    QApplication::setLayoutDirection(QLocale(services.Language()).textDirection());
    CommonUtils::ShowMessage(QMessageBox::Warning, nullptr, HostText::Get("IDS_HOST_TITLE"), HostText::Get(pszTextId),
                             QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr,
                             QString(), true);
    services.Withdraw();
}

} // namespace

bool Elsewhere::IsTaken(const CommandLine& line, SingleInstance& instance, int& iExitCode)
{
    if (!line.strScreenshot.isEmpty()) {
        return false;
    }
    const SingleInstance::Outcome enOutcome =
        instance.Begin(QStringList(QString::fromLatin1(qgetenv("XDG_ACTIVATION_TOKEN"))) + line.lstOpened);
    if (enOutcome == SingleInstance::FIRST) {
        return false;
    }
    const bool bPassed = enOutcome == SingleInstance::PASSED_ON;
    const char* const pszReason = enOutcome == SingleInstance::FOREIGN ? "its place is taken by another user's program"
                                  : enOutcome == SingleInstance::TOO_MUCH ? "this is more than it opens at once"
                                  : !bPassed                              ? "it does not answer"
                                  : !line.strHardware.isEmpty() ? "--hardware counts from a start on; quit it first"
                                                                : nullptr;
    if (pszReason != nullptr) {
        const QString strLine = QString::fromLatin1("linkhand: runs already with %1: %2\n")
                                    .arg(DataFolder::Path(), QLatin1String(pszReason));
        std::fputs(strLine.toLocal8Bit().constData(), stderr);
    }
    if (textIdOf(enOutcome) != nullptr && hasDisplay()) {
        show(textIdOf(enOutcome));
    }
    iExitCode = pszReason == nullptr ? 0 : 3;
    return true;
}
