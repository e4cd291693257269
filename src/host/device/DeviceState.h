#ifndef LINKHAND_HOST_DEVICESTATE_H
#define LINKHAND_HOST_DEVICESTATE_H

// What the SDK says of the device at one moment. A question that fails counts as no.
struct DeviceState {
    bool bAttached = false;
    bool bCardReady = false; // a card is in and its PIN has been given
    bool bRadioOn = false;
    bool bRegistered = false; // in the network
    int iPinStatus = 0;       // 0 without a card
    int iProductType = 0;
    int iCardType = 0;

    bool Online() const { return bAttached && bRadioOn && bRegistered; }
    bool operator==(const DeviceState& other) const;

    // Any thread; several short SDK calls.
    static DeviceState Read();
};

#endif // LINKHAND_HOST_DEVICESTATE_H
