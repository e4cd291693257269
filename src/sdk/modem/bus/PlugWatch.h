#ifndef SDK_MODEM_BUS_PLUGWATCH_H
#define SDK_MODEM_BUS_PLUGWATCH_H

#include "modem/ModemWatch.h"

struct udev;
struct udev_monitor;

namespace orva
{

// Hears of ttys that are plugged, once udev's rules have made them what they are. Its list stays empty.
class PlugWatch final : public ModemWatch
{
public:
    PlugWatch();
    ~PlugWatch() override;
    PlugWatch(const PlugWatch&) = delete;
    PlugWatch& operator=(const PlugWatch&) = delete;

    void fill(std::vector<pollfd>& waited) const override;
    Milliseconds patience() const override;
    void process() noexcept override;
    const ModemList& list() const override { return m_list; }
    std::uint64_t changes() const override { return m_changes; }

private:
    udev* m_udev;
    udev_monitor* m_monitor;
    ModemList m_list;
    std::uint64_t m_changes = 0;
};

} // namespace orva

#endif // SDK_MODEM_BUS_PLUGWATCH_H
