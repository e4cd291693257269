#include "modem/bus/DeviceTable.h"

#include <libudev.h>

#include <cstring>

namespace orva
{

namespace
{

bool says(udev_device* device, const char* property)
{
    const char* const value = udev_device_get_property_value(device, property);
    return value != nullptr && std::strcmp(value, "1") == 0;
}

} // namespace

DeviceTable::DeviceTable() : m_udev(udev_new()) {}

DeviceTable::~DeviceTable()
{
    udev_unref(m_udev);
}

void DeviceTable::describe(ListedPort& port) const
{
    udev_device* const device =
        m_udev != nullptr ? udev_device_new_from_subsystem_sysname(m_udev, "tty", port.name.c_str()) : nullptr;
    if (device == nullptr)
        return;
    const char* const node = udev_device_get_devnode(device);
    port.node = node != nullptr ? node : "";
    port.secondary = says(device, "ID_MM_PORT_TYPE_AT_SECONDARY");
    port.data = says(device, "ID_MM_PORT_TYPE_AT_PPP");
    udev_device_unref(device);
}

} // namespace orva
