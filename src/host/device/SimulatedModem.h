#ifndef LINKHAND_HOST_SIMULATEDMODEM_H
#define LINKHAND_HOST_SIMULATEDMODEM_H

#include "device/Modem.h"

class Outbox;

// The modem of a computer without one: a call is in progress until somebody hangs up, and nobody hears it; a message
// goes to the outbox and stays there.
class SimulatedModem : public Modem
{
    Q_OBJECT

public:
    // The outbox outlives the modem.
    explicit SimulatedModem(Outbox& outbox, QObject* pParent = nullptr);

    bool Dial(const QString& strNumber, int iType) override;
    void HangUp() override;
    bool Send(const OutgoingMessage& message) override;

private:
    Outbox& m_outbox;
    QString m_strNumber; // of the call in progress, else empty
    int m_iType;
};

#endif // LINKHAND_HOST_SIMULATEDMODEM_H
