#include "app/Elsewhere.h"

#include <QString>
#include <QStringList>

#include <cstdio>

#include "app/CommandLine.h"
#include "settings/DataFolder.h"
#include "single/SingleInstance.h"

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
    iExitCode = pszReason == nullptr ? 0 : 3;
    return true;
}
