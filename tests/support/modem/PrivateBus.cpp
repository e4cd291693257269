#include "support/modem/PrivateBus.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace modemsim
{

static const char configuration[] = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=FOLDER</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

PrivateBus::PrivateBus()
{
    const char* base = std::getenv("TMPDIR");
    m_folder = std::string(base != nullptr ? base : "/tmp") + "/modembus-XXXXXX";
    if (::mkdtemp(m_folder.data()) == nullptr)
        throw std::runtime_error("no folder " + m_folder);
    std::string text = configuration;
    text.replace(text.find("FOLDER"), 6, m_folder);
    std::ofstream(m_folder + "/bus.conf") << text;
    m_daemon = std::make_unique<Child>(std::vector<std::string>{
        "dbus-daemon", "--config-file=" + m_folder + "/bus.conf", "--nofork", "--nopidfile", "--print-address"});
    while (m_address.compare(0, 5, "unix:") != 0) {
        if (!m_daemon->readLine(m_address))
            throw std::runtime_error("dbus-daemon does not start");
    }
}

PrivateBus::~PrivateBus()
{
    m_daemon.reset();
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

Environment PrivateBus::environment() const
{
    return {{"DBUS_SESSION_BUS_ADDRESS", m_address}, {"DBUS_SYSTEM_BUS_ADDRESS", m_address}};
}

} // namespace modemsim
