#include "device/SimulatedModem.h"

#include <QRegExp>

#include "device/DeviceState.h"
#include "messages/Outbox.h"

SimulatedModem::SimulatedModem(Outbox& outbox, QObject* pParent) : Modem(pParent), m_outbox(outbox), m_iType(0) {}

bool SimulatedModem::Dial(const QString& strNumber, int iType)
{
    // Digits, with the signs that a dial string may hold, and blanks or hyphens that people write between them.
    QString strDialled = strNumber;
    strDialled.remove(QRegExp(QLatin1String("[\\s()./-]")));
    const bool bUsable = QRegExp(QLatin1String("\\+?[0-9*#]+")).exactMatch(strDialled);
    if (!bUsable || !m_strNumber.isEmpty() || !DeviceState::Read().Online()) {
        return false;
    }
    m_strNumber = strDialled;
    m_iType = iType;
    emit callStarted(strDialled, iType);
    return true;
}

void SimulatedModem::HangUp()
{
    if (!m_strNumber.isEmpty()) {
        const QString strNumber = m_strNumber;
        m_strNumber.clear();
        emit callEnded(strNumber, m_iType);
    }
}

bool SimulatedModem::Send(const OutgoingMessage& message)
{
    return !message.lstNumbers.isEmpty() && m_outbox.Add(message);
}
