#ifndef LINKHAND_HOST_SIMULATEDMODEM_H
#define LINKHAND_HOST_SIMULATEDMODEM_H

#include <QDateTime>
#include <QElapsedTimer>

#include "device/Modem.h"

class MessageStore;

// The modem of a computer without one: a call is in progress until somebody hangs up or the network goes, and nobody
// hears it; a message goes to the store and stays there, and so does the call when it is over.
class SimulatedModem : public Modem
{
    Q_OBJECT

public:
    // The store outlives the modem.
    explicit SimulatedModem(MessageStore& store, QObject* pParent = nullptr);

    bool IsSimulated() const override { return true; }
    bool Dial(const QString& strNumber, int iType) override;
    void HangUp() override;
    bool Send(const OutgoingMessage& message) override;
    bool SendAgain(int iId) override;
    bool Remove(int iId) override;
    void OnDeviceChanged() override;

private:
    void end(int iProgress);

    MessageStore& m_store;
    QString m_strNumber; // of the call in progress, else empty
    int m_iType;
    QDateTime m_started;
    QElapsedTimer m_elapsed;
};

#endif // LINKHAND_HOST_SIMULATEDMODEM_H
