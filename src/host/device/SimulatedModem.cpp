#include "device/SimulatedModem.h"

#include "device/DeviceState.h"
#include "device/DialString.h"
#include "messages/MessageStore.h"
#include "shared/HostLink.h"

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
    end(HOST_CALL_ENDED);
}

void SimulatedModem::OnDeviceChanged()
{
    if (!m_strNumber.isEmpty() && !DeviceState::Read().Online()) {
        end(HOST_CALL_LOST);
    }
}

void SimulatedModem::end(int iProgress)
{
    if (m_strNumber.isEmpty()) {
        return;
    }
    StoredCall call;
    call.strNumber = m_strNumber;
    call.iType = m_iType;
    call.time = m_started;
    call.iSeconds = int(m_elapsed.elapsed() / 1000);
    call.iDirection = HOST_CALL_OUTGOING;
    call.iEnd = iProgress;
    call.iSimulated = 1;
    m_strNumber.clear();
    m_store.AddCall(call);
    emit callProgress(iProgress);
    emit callEnded(call.strNumber, m_iType);
}

bool SimulatedModem::Send(const OutgoingMessage& message)
{
    return !message.lstNumbers.isEmpty() && m_store.Add(message);
}

bool SimulatedModem::SendAgain(int iId)
{
    const StoredMessage stored = m_store.Message(iId);
    return stored.iId != 0 && stored.IsUnsent() && !stored.message.lstNumbers.isEmpty() &&
           m_store.SetState(iId, MESSAGE_SIMULATED);
}

bool SimulatedModem::Remove(int iId)
{
    return m_store.Remove(iId);
}
