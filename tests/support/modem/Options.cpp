#include "support/modem/Options.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace modemsim
{

// That many entries on the card, in a storage that has room for them.
static void fillCard(Plan& plan, int count)
{
    for (StoragePlan& storage : plan.card.storages) {
        if (storage.name != "SM")
            continue;
        storage.total = std::max(storage.total, count);
        storage.entries.clear();
        for (int i = 1; i <= count; ++i) {
            Entry entry;
            entry.location = i;
            entry.number = "+49170" + std::to_string(1000000 + i);
            entry.name = "Contact " + std::to_string(i);
            storage.entries.push_back(entry);
        }
    }
}

using Setting = std::function<void(Plan&, const std::string&)>;

static Setting integer(int Plan::*member)
{
    return [member](Plan& plan, const std::string& value) { plan.*member = std::stoi(value); };
}

bool takeOption(int argc, char** argv, int& i, Plan& plan)
{
    static const std::map<std::string, Setting> settings = {
        {"--quirk", [](Plan& p, const std::string& value) { p.quirks.set(value); }},
        {"--pin", [](Plan& p, const std::string& value) { p.card.pin = value; }},
        {"--iccid", [](Plan& p, const std::string& value) { p.card.iccid = value; }},
        {"--imei", [](Plan& p, const std::string& value) { p.imei = value; }},
        {"--operator", [](Plan& p, const std::string& value) { p.operatorName = value; }},
        {"--entries", [](Plan& p, const std::string& value) { fillCard(p, std::stoi(value)); }},
        {"--registration", integer(&Plan::registration)},
        {"--signal", integer(&Plan::signal)},
        {"--baud", integer(&Plan::baud)},
        {"--command-ms", integer(&Plan::commandMs)},
        {"--entry-ms", integer(&Plan::entryMs)},
        {"--write-ms", integer(&Plan::writeMs)},
        {"--dial-ms", integer(&Plan::dialMs)},
    };
    const std::string name = argv[i];
    if (name == "--no-card") {
        plan.cardIn = false;
        return true;
    }
    const auto found = settings.find(name);
    if (found == settings.end())
        return false;
    if (i + 1 >= argc)
        throw std::invalid_argument(name + " needs a value");
    found->second(plan, argv[++i]);
    return true;
}

const char* optionsHelp()
{
    return "  --quirk NAME[=VALUE]   a quirk of real modems; --quirks lists them\n"
           "  --no-card              the slot is empty\n"
           "  --pin PIN              the card asks for it\n"
           "  --iccid N  --imei N  --operator NAME  --registration N  --signal N\n"
           "  --entries N            that many entries on the card\n"
           "  --baud N               the speed of the line; without it as fast as the machine\n"
           "  --command-ms N  --entry-ms N  --write-ms N  --dial-ms N\n";
}

} // namespace modemsim
