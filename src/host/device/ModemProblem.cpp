#include "device/ModemProblem.h"

#include "device/DeviceWatcher.h"
#include "device/HardwareChoice.h"
#include "device/Modem.h"
#include "linkhand/SdkText.h"
#include "orva/orva_modem.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Modem_GetProblem

namespace
{

const int LOOK_MS = 2000;

} // namespace

ModemProblem::ModemProblem(const Modem& modem, const DeviceWatcher& watcher, QObject* pParent)
    : QObject(pParent), m_modem(modem), m_watcher(watcher)
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(OnLook()));
}

void ModemProblem::Start()
{
    if (!m_modem.IsSimulated() && &ORVA_Modem_GetProblem != nullptr) {
        m_timer.start(LOOK_MS);
    }
}

QString ModemProblem::Name() const
{
    const QString strName = m_modem.Status().strName;
    return strName.isEmpty() ? HardwareChoice::Current() : strName;
}

void ModemProblem::OnLook()
{
    const QString strText = read();
    const bool bStays = strText == m_strSeen;
    m_strSeen = strText;
    if (bStays && strText != m_strText) {
        m_strText = strText;
        emit changed();
    }
}

QString ModemProblem::read() const
{
    const bool bThere = m_watcher.State().bAttached || m_modem.Status().bPresent;
    SdkText text;
    if ((!bThere && HardwareChoice::Port().isEmpty()) || ORVA_Modem_GetProblem(text.out()) != ORVA_OK) {
        return QString();
    }
    return text.toString();
}
