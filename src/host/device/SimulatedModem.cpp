#include "device/SimulatedModem.h"

#include "device/DeviceState.h"
#include "device/DialString.h"
#include "messages/MessageStore.h"

SimulatedModem::SimulatedModem(MessageStore& store, QObject* pParent) : Modem(pParent), m_store(store), m_iType(0) {}

bool SimulatedModem::Dial(const QString& strNumber, int iType)
{
    const QString strDialled = DialString::Of(strNumber);
    if (strDialled.isEmpty() || !m_strNumber.isEmpty() || !DeviceState::Read().Online()) {
        return false;
    }
    m_strNumber = strDialled;
    m_iType = iType;
    m_started = QDateTime::currentDateTime();
    m_elapsed.start();
    emit callStarted(strDialled, iType);
    return true;
}

void SimulatedModem::HangUp()
{
    if (!m_strNumber.isEmpty()) {
        const QString strNumber = m_strNumber;
        m_strNumber.clear();
        m_store.AddCall(strNumber, m_iType, m_started, int(m_elapsed.elapsed() / 1000));
        emit callEnded(strNumber, m_iType);
    }
}

bool SimulatedModem::Send(const OutgoingMessage& message)
{
    return !message.lstNumbers.isEmpty() && m_store.Add(message);
}

bool SimulatedModem::Remove(int iId)
{
    return m_store.Remove(iId);
}
