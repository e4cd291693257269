#ifndef LINKHAND_HOST_MODEMMANAGERMODEM_H
#define LINKHAND_HOST_MODEMMANAGERMODEM_H

#include "device/Modem.h"
#include "device/ModemManagerCalls.h"
#include "device/ModemManagerLink.h"
#include "device/ModemManagerMessages.h"

class MessageStore;

// A real modem, by way of ModemManager. Multimedia messages and video calls have no road there: the former stay
// drafts, the latter are refused.
class ModemManagerModem : public Modem
{
    Q_OBJECT

public:
    // strPort is as for ModemManagerLink. The store outlives the modem.
    ModemManagerModem(const QString& strPort, MessageStore& store, QObject* pParent = nullptr);

    bool IsSimulated() const override { return false; }
    void Start() override;
    ModemStatus Status() const override { return m_link.Status(); }
    bool Dial(const QString& strNumber, int iType) override;
    void Answer() override { m_calls.Answer(); }
    void HangUp() override { m_calls.HangUp(); }
    bool Send(const OutgoingMessage& message) override { return m_messages.Send(message); }
    bool SendAgain(int iId) override { return m_messages.SendAgain(iId); }
    bool IsSending(int iId) const override { return m_messages.IsSending(iId); }
    bool Remove(int iId) override { return m_messages.Remove(iId); }
    void SendPin(const QString& strPin) override;
    void Enable() override;
    void Finish() override { m_calls.HangUpNow(); }

private slots:
    void OnModemChanged();
    void OnPinAnswered(QDBusPendingCallWatcher* pWatcher);
    void OnRefreshed();
    void OnEnabled(QDBusPendingCallWatcher* pWatcher);

private:
    ModemManagerLink m_link;
    ModemManagerMessages m_messages;
    ModemManagerCalls m_calls;
    bool m_bPinAsked; // a PIN is with the modem
    bool m_bPinWrong;
    int m_iTriesBefore;
    QString m_strPinDetail;
};

#endif // LINKHAND_HOST_MODEMMANAGERMODEM_H
