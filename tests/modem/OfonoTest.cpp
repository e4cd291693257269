// oFono as a third independent client, and the only one that comes over TCP. Its configuration stands in /etc: root
// puts another file there for the daemon alone, in a mount namespace. So this runs in the long form, as root, where
// oFono is installed; else it says why not.

#include "support/Check.h"
#include "support/modem/Modem.h"
#include "support/modem/PrivateBus.h"

#include <cstdlib>
#include <fstream>
#include <thread>
#include <unistd.h>

using namespace modemsim;

namespace
{

constexpr int skipped = 77;

Outcome ofono(const PrivateBus& bus, const std::string& method, std::vector<std::string> arguments = {})
{
    arguments.insert(arguments.begin(), {"dbus-send", "--system", "--print-reply", "--dest=org.ofono", "/phonesim",
                                         "org.ofono." + method});
    return runProgram(arguments, bus.environment());
}

bool comesTo(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(Milliseconds(50)); // another program's progress, told by nothing
    }
    return true;
}

bool offers(const PrivateBus& bus, const std::string& name)
{
    return ofono(bus, "Modem.GetProperties").output.find("org.ofono." + name) != std::string::npos;
}

} // namespace

TEST(ofonoReadsThePhonebooksAndSendsAMessage)
{
    Plan plan = standardPlan();
    plan.ports = {{PortPlan::Tcp, "0"}};
    Modem modem(plan);
    const PrivateBus bus;
    const std::string configuration = bus.folder() + "/phonesim.conf";
    std::ofstream(configuration) << "[phonesim]\nAddress=127.0.0.1\nPort=" << modem.terminal(0) << '\n';
    const Child daemon({"unshare", "--mount", "sh", "-c",
                        "mount --bind " + configuration +
                            " /etc/ofono/phonesim.conf && exec ofonod --nodetach --plugin=phonesim,atmodem"},
                       bus.environment(), bus.folder() + "/ofono.log");
    REQUIRE(comesTo([&] { return ofono(bus, "Modem.GetProperties").status == 0; }));
    ofono(bus, "Modem.SetProperty", {"string:Powered", "variant:boolean:true"});
    REQUIRE(comesTo([&] { return offers(bus, "Phonebook"); }));
    const Outcome read = ofono(bus, "Phonebook.Import");
    // It cuts the name with quotation marks at the first of them.
    for (const char* text :
         {"FN:Anna", "TEL;TYPE=VOICE:+491711234567", "FN:Zo\u00EB M\u00FCller", "FN:\u0418\u0432\u0430\u043D",
          "FN:\u5317\u4EAC", "FN:Last ", "FN:R\u00E9my", "FN:Device entry"}) {
        if (read.output.find(text) == std::string::npos)
            check::report(__FILE__, __LINE__, std::string("not read: ") + text);
    }
    ofono(bus, "Modem.SetProperty", {"string:Online", "variant:boolean:true"});
    REQUIRE(comesTo([&] { return offers(bus, "MessageManager"); }));
    CHECK_EQ(ofono(bus, "MessageManager.SendMessage", {"string:+491711", "string:From oFono"}).status, 0);
    CHECK(modem.waitFor([&] { return !modem.sentMessages().empty(); }));
    CHECK_EQ(modem.sentMessages().at(0).text, "From oFono");
}

int main(int argc, char** argv)
{
    const char* reason = std::getenv("LINKHAND_FULL") == nullptr           ? "only in the long form"
                         : ::geteuid() != 0                                ? "its configuration in /etc needs root"
                         : ::access("/etc/ofono/phonesim.conf", R_OK) != 0 ? "oFono is not installed"
                                                                           : nullptr;
    if (reason != nullptr) {
        std::printf("Skipped: %s\n", reason);
        return skipped;
    }
    return check::runAll(argc, argv);
}
