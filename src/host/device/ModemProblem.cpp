#include "device/ModemProblem.h"

#include "device/DeviceWatcher.h"
#include "device/HardwareChoice.h"
#include "device/Modem.h"
#include "linkhand/SdkText.h"
#include "orva/orva_modem.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Modem_GetProblem
#pragma weak ORVA_Modem_GetMessageStore

namespace
{

const int LOOK_MS = 2000;

// A full store is emptied by anybody, another telephone perhaps.
const int LOOKS_WHILE_FULL = 5;

} // namespace

ModemProblem::ModemProblem(const Modem& modem, const DeviceWatcher& watcher, QObject* pParent)
    : QObject(pParent), m_modem(modem), m_watcher(watcher), m_bFull(false), m_bAsk(false), m_iLooksUnasked(0)
{
    connect(&m_modem, SIGNAL(messageReceived(QString, QString)), this, SLOT(OnMessages()));
    connect(&m_modem, SIGNAL(messageFinished(int)), this, SLOT(OnMessages()));
    connect(&m_modem, SIGNAL(messageStoreFull()), this, SLOT(OnMessages()));
    connect(&m_modem, SIGNAL(statusChanged()), this, SLOT(OnMessages()));
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
    lookAtMessages();
}

void ModemProblem::OnMessages()
{
    m_bAsk = true;
}

void ModemProblem::lookAtMessages()
{
    if (&ORVA_Modem_GetMessageStore == nullptr) {
        return;
    }
    const bool bAsk = m_bAsk || (m_bFull && m_iLooksUnasked >= LOOKS_WHILE_FULL);
    m_bAsk = false;
    m_iLooksUnasked = bAsk ? 0 : m_iLooksUnasked + 1;
    int iUsed = 0;
    int iTotal = 0;
    // What is not known is no problem.
    const bool bKnown = ORVA_Modem_GetMessageStore(bAsk ? 1 : 0, &iUsed, &iTotal) == ORVA_OK;
    const bool bFull = bKnown && iUsed >= iTotal;
    if (bFull == m_bFull) {
        return;
    }
    m_bFull = bFull;
    emit changed();
    if (bFull) {
        emit messageStoreFull();
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
