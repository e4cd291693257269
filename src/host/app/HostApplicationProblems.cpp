// What stands in the way of something, and how the window says so.

#include <QFile>

#include "app/HostApplication.h"
#include "device/ModemProblem.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/plugin/Codes.h"
#include "loader/PluginContainer.h"
#include "messages/MessageStore.h"
#include "settings/DataFolder.h"
#include "text/HostText.h"
#include "window/MainWindow.h"
#include "window/StatusArea.h"

// Only what touches the contacts themselves interrupts the user; the rest waits in the status area.
void HostApplication::OnReportProblems()
{
    foreach (const Problem& problem, m_problems) {
        if (problem.IsGrave()) {
            CommonUtils::ShowMessage(QMessageBox::Critical, m_pWindow.data(), HostText::Get("IDS_HOST_TITLE"),
                                     problem.strName + QLatin1String("\n\n") + problem.Reason(),
                                     QLatin1String("IDS_OK"), QString(), QString(), true, Qt::WindowCloseButtonHint,
                                     nullptr, QString(), true);
        }
    }
}

// No box: a batch may be running, whose own end tells of it.
void HostApplication::OnLost(const ProblemList& problems)
{
    m_problems += problems;
    showProblems();
}

void HostApplication::OnAccessChanged(const ProblemList& problems)
{
    m_access = problems;
    showProblems();
    m_pWindow->Status().ShowNotice(problems.isEmpty() ? HostText::Get("IDS_HOST_STORE_WRITABLE")
                                                      : problems.first().Reason());
}

void HostApplication::OnReadableAgain()
{
    for (int i = m_problems.size() - 1; i >= 0; --i) {
        if (m_problems.at(i).strReasonId == QLatin1String("IDS_HOST_PROBLEM_STORE")) {
            m_problems.removeAt(i);
        }
    }
    showProblems();
    OnContactsChanged();
}

void HostApplication::OnModemProblem()
{
    m_modem.clear();
    if (!m_pModemProblem->Text().isEmpty()) {
        m_modem.append(Problem(m_pModemProblem->Name(), "IDS_HOST_PROBLEM_MODEM", m_pModemProblem->Text()));
    }
    if (m_pModemProblem->IsMessageStoreFull()) {
        m_modem.append(Problem(m_pModemProblem->Name(), "IDS_HOST_SMS_STORE_FULL"));
    }
    showProblems();
}

void HostApplication::showProblems()
{
    m_pWindow->Status().SetProblems(m_problems + m_access + m_modem);
}

// What ought to be there, and without which the program runs all the same.
void HostApplication::checkInstallation()
{
    const QString strPhonebook = QLatin1String(LINKHAND_ADDRBOOK_NAME);
    const QString strFolder = m_services.PluginsPath() + QLatin1Char('/') + strPhonebook;
    if (!m_services.IsPluginAvailable(strPhonebook)) {
        m_problems.append(Problem(strPhonebook, "IDS_HOST_PLUGIN_ABSENT"));
    } else if (m_pContainer->FindByName(strPhonebook) != nullptr) {
        foreach (const char* pszFile, (QList<const char*>() << "/Config.xml"
                                                            << "/addr_tre_images")) {
            if (!QFile::exists(strFolder + QLatin1String(pszFile))) {
                m_problems.append(Problem(strFolder + QLatin1String(pszFile), "IDS_HOST_PROBLEM_FILE"));
            }
        }
    }
    if (!m_languages.Contains(QLatin1String("en"))) {
        // Not an id: no file has a text for one.
        m_problems.append(
            Problem(m_services.LanguagesPath(), "No English language file was found; texts show as ids."));
    }
    foreach (const QString& strFile, m_pMessages->Damaged()) {
        m_problems.append(Problem(strFile, "IDS_HOST_PROBLEM_OUTBOX"));
    }
    if (!m_pMessages->IsUsable()) {
        m_problems.append(Problem(DataFolder::Path() + QLatin1String("/messages.db"), "IDS_HOST_PROBLEM_MESSAGES"));
    }
}
