#ifndef LINKHAND_HOST_MODEMSTATUS_H
#define LINKHAND_HOST_MODEMSTATUS_H

#include <QString>

// What is known of a real modem through ModemManager at one moment.
struct ModemStatus {
    // What the card asks for.
    enum Lock { LOCK_NONE, LOCK_PIN, LOCK_PUK, LOCK_OTHER };

    bool bBus = false;     // there is a bus
    bool bService = false; // ModemManager runs on it
    bool bPresent = false; // and has the modem; what follows is empty without
    QString strName;       // maker and model
    bool bUsable = false;  // neither failed nor still being looked at
    bool bEnabled = false; // its radio works
    bool bRegistered = false;
    Lock enLock = LOCK_NONE;
    int iTries = -1; // left for the lock; -1: nobody knows
    QString strOperator;
    int iSignal = -1; // percent; -1: nobody knows
    bool bMessages = false;
    bool bCalls = false;

    bool operator==(const ModemStatus& other) const
    {
        return bBus == other.bBus && bService == other.bService && bPresent == other.bPresent &&
               strName == other.strName && bUsable == other.bUsable && bEnabled == other.bEnabled &&
               bRegistered == other.bRegistered && enLock == other.enLock && iTries == other.iTries &&
               strOperator == other.strOperator && iSignal == other.iSignal && bMessages == other.bMessages &&
               bCalls == other.bCalls;
    }
};

#endif // LINKHAND_HOST_MODEMSTATUS_H
