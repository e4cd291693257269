#include "modem/bus/PlugWatch.h"

#include <libudev.h>

#include <cstring>

namespace orva
{

namespace
{

constexpr Milliseconds nothingDue(60000);

} // namespace

PlugWatch::PlugWatch()
    : m_udev(udev_new()), m_monitor(m_udev != nullptr ? udev_monitor_new_from_netlink(m_udev, "udev") : nullptr)
{
    m_list.settled = true;
    if (m_monitor != nullptr) {
        udev_monitor_filter_add_match_subsystem_devtype(m_monitor, "tty", nullptr);
        udev_monitor_enable_receiving(m_monitor);
    }
}

PlugWatch::~PlugWatch()
{
    udev_monitor_unref(m_monitor);
    udev_unref(m_udev);
}

void PlugWatch::fill(std::vector<pollfd>& waited) const
{
    if (m_monitor != nullptr)
        waited.push_back({udev_monitor_get_fd(m_monitor), POLLIN, 0});
}

Milliseconds PlugWatch::patience() const
{
    return nothingDue;
}

void PlugWatch::process() noexcept
{
    if (m_monitor == nullptr)
        return;
    while (udev_device* const device = udev_monitor_receive_device(m_monitor)) {
        const char* const action = udev_device_get_action(device);
        if (action != nullptr && std::strcmp(action, "add") == 0)
            ++m_changes;
        udev_device_unref(device);
    }
}

} // namespace orva
