#ifndef SDK_MODEM_BUS_DEVICETABLE_H
#define SDK_MODEM_BUS_DEVICETABLE_H

#include "modem/ModemWatch.h"

struct udev;

namespace orva
{

// What udev knows of ttys. One thread.
class DeviceTable
{
public:
    DeviceTable();
    ~DeviceTable();
    DeviceTable(const DeviceTable&) = delete;
    DeviceTable& operator=(const DeviceTable&) = delete;

    // Fills in the node and what rules say of the port, if its name is a tty's.
    void describe(ListedPort& port) const;

private:
    udev* m_udev;
};

} // namespace orva

#endif // SDK_MODEM_BUS_DEVICETABLE_H
